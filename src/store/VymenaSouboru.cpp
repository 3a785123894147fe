#include "store/VymenaSouboru.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Cisla.h"

namespace rysovna {
namespace {

// Both marks begin with a character that ends a text file for many programs and stands in no name.
constexpr std::string_view ZACATEK_ZURNALU = "\x1ARYSOVNA1-ZURNAL\r\n";
constexpr std::string_view KONEC_ZURNALU = "\x1ARYSOVNA1-HOTOVO ";
constexpr char VYPLN = '\x1A';
constexpr std::size_t CISLIC = 16;
// Mark, length of the new bytes, check sum of them, with a blank between and an end of line.
constexpr std::size_t DELKA_KONCE = KONEC_ZURNALU.size() + 2 * CISLIC + 3;

constexpr std::string_view PRIPONA_NOVE = ".nove";

/// FNV-1a: enough to know bytes that came to the disk in part.
std::uint64_t Soucet(std::string_view bajty) {
    std::uint64_t soucet = 0xCBF29CE484222325U;
    for (const char c : bajty) soucet = (soucet ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return soucet;
}

std::string Zaver(std::string_view nove) {
    return std::string(KONEC_ZURNALU) + Sestnactkove(nove.size()) + " " +
           Sestnactkove(Soucet(nove)) + "\r\n";
}

/// The length that stands in an end of a journal; 0 if it is none.
std::size_t DelkaZeZaveru(std::string_view zaver) {
    std::size_t delka = 0;
    for (const char c : zaver.substr(KONEC_ZURNALU.size(), CISLIC)) {
        const std::size_t cislice = std::string_view("0123456789abcdef").find(c);
        if (cislice == std::string_view::npos) return 0;
        delka = delka * 16 + cislice;
    }
    return delka;
}

}  // namespace

std::string Zurnal(std::size_t delkaStarych, std::string_view nove) {
    std::string zurnal(ZACATEK_ZURNALU);
    // The new bytes must not begin where they are going to be written themselves.
    const std::size_t predNimi = delkaStarych + zurnal.size();
    if (predNimi < nove.size()) zurnal.append(nove.size() - predNimi, VYPLN);
    zurnal += nove;
    return zurnal + Zaver(nove);
}

std::string_view PlatneBajty(std::string_view bajty) {
    if (bajty.size() >= DELKA_KONCE) {
        const std::size_t telo = bajty.size() - DELKA_KONCE;
        const std::string_view zaver = bajty.substr(telo);
        const std::size_t delka = zaver.starts_with(KONEC_ZURNALU) ? DelkaZeZaveru(zaver) : 0;
        if (delka > 0 && delka <= telo) {
            const std::string_view nove = bajty.substr(telo - delka, delka);
            if (zaver == Zaver(nove)) return nove;
        }
    }
    if (const auto i = bajty.find(ZACATEK_ZURNALU); i != std::string_view::npos)
        return bajty.substr(0, i);
    // The beginning of a journal that came to the disk in part: of its mark, or room alone.
    for (std::size_t n = std::min(ZACATEK_ZURNALU.size() - 1, bajty.size()); n > 0; --n) {
        if (bajty.ends_with(ZACATEK_ZURNALU.substr(0, n))) return bajty.substr(0, bajty.size() - n);
    }
    return bajty.substr(0, bajty.find_last_not_of('\0') + 1);
}

std::string NactiPlatne(Disk& disk, const std::filesystem::path& soubor) {
    // A writer may be changing the file in place. Twice the same is no mixture: while the old
    // bytes are being written over, all the new ones stand behind them.
    constexpr int NEJVYSE = 20;
    const auto cti = [&] { return disk.Otevri(soubor, Disk::Jak::Cteni)->Cti(); };
    std::string bajty = cti();
    for (int i = 0; i < NEJVYSE; ++i) {
        std::string znovu = cti();
        const bool stejne = znovu == bajty;
        bajty = std::move(znovu);
        if (stejne) break;
    }
    return std::string(PlatneBajty(bajty));
}

VymenaSouboru::VymenaSouboru(Disk& disk, const std::filesystem::path& soubor)
    : disk_(disk), cesta_(disk.Jednoznacna(soubor)) {
    try {
        soubor_ = disk.Otevri(cesta_, Disk::Jak::Zapis);
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::Neni) throw;
        return;
    }
    bajty_ = soubor_->Cti();
    platne_ = PlatneBajty(bajty_);
}

void VymenaSouboru::Uloz(std::string_view nove) {
    if (!Vymen(nove)) PrepisNaMiste(nove);
    UklidVedle();
}

void VymenaSouboru::Potvrd() {
    Uzdrav();
    if (soubor_) soubor_->NaDisk();
    disk_.SlozkaNaDisk(cesta_.parent_path());
}

bool VymenaSouboru::Vymen(std::string_view nove) {
    std::filesystem::path vedle = cesta_;
    vedle += "." + NahodneCislice();
    vedle += PRIPONA_NOVE;
    bool vyrobeno = false;
    const bool byl = soubor_ != nullptr;
    try {
        const auto soubor = disk_.NovySoubor(vedle);
        vyrobeno = true;
        if (soubor_) soubor->PrevezmiPrava(*soubor_);
        soubor->Pis(0, nove);
        soubor->NaDisk();
        mohlSeZmenit_ = true;
        // There are systems where nothing that is open can be replaced.
        soubor_.reset();
        disk_.Nahrad(vedle, cesta_);
    } catch (const ChybaDisku& chyba) {
        if (vyrobeno) OdstranPotichu(disk_, vedle);
        // A file that is there and is open to this account can be written into.
        if (chyba.Proc() != Pricina::Nepovoleno || !byl) throw;
        if (!soubor_) soubor_ = disk_.Otevri(cesta_, Disk::Jak::Zapis);
        mohlSeZmenit_ = false;
        return false;
    }
    try {
        disk_.SlozkaNaDisk(cesta_.parent_path());
    } catch (const ChybaDisku&) {
        // The new file is there for all who look, and the change must not be made again.
    }
    return true;
}

void VymenaSouboru::PrepisNaMiste(std::string_view nove) {
    Uzdrav();
    mohlSeZmenit_ = true;
    try {
        soubor_->Pis(platne_.size(), Zurnal(platne_.size(), nove));
        soubor_->NaDisk();
    } catch (const ChybaDisku&) {
        try {
            soubor_->Zkrat(platne_.size());
            mohlSeZmenit_ = false;
        } catch (const ChybaDisku&) {
            // Readers know a journal that is not whole, and the next writer takes it away.
        }
        throw;
    }
    // From here on the file holds the new bytes, whatever becomes of the rest.
    bajty_ = platne_ + Zurnal(platne_.size(), nove);
    platne_ = nove;
    try {
        Uzdrav();
    } catch (const ChybaDisku&) {
        // The next writer will do it.
    }
}

/// Makes the file hold its valid bytes and nothing else.
void VymenaSouboru::Uzdrav() {
    if (!soubor_ || bajty_ == platne_) return;
    if (!bajty_.starts_with(platne_)) {
        soubor_->Pis(0, platne_);
        // What is cut off next is what the file would be healed from.
        soubor_->NaDisk();
    }
    soubor_->Zkrat(platne_.size());
    soubor_->NaDisk();
    bajty_ = platne_;
}

/// Takes away what writers of this file that were broken off left beside it. All of them held the
/// lock that is held now.
void VymenaSouboru::UklidVedle() {
    const std::string zacatek = cesta_.filename().string() + ".";
    std::vector<std::string> jmena;
    try {
        jmena = disk_.Jmena(cesta_.parent_path());
    } catch (const ChybaDisku&) {
        return;  // they hinder nobody
    }
    for (const std::string& jmeno : jmena) {
        const bool nase = jmeno.starts_with(zacatek) && jmeno.ends_with(PRIPONA_NOVE);
        if (nase) OdstranPotichu(disk_, cesta_.parent_path() / jmeno);
    }
}

}  // namespace rysovna
