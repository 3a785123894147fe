#include "store/TabulkaVysledku.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "base/Cisla.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna {
namespace {

// Both marks begin with a character that ends a text file for many programs and stands in no name.
constexpr std::string_view ZACATEK_ZURNALU = "\x1ARYSOVNA1-ZURNAL\r\n";
constexpr std::string_view KONEC_ZURNALU = "\x1ARYSOVNA1-HOTOVO ";
constexpr char VYPLN = '\x1A';
constexpr std::size_t CISLIC = 16;
// Mark, length of the new table, check sum of it, with a blank between and an end of line.
constexpr std::size_t DELKA_KONCE = KONEC_ZURNALU.size() + 2 * CISLIC + 3;

constexpr std::string_view PRIPONA_NOVE = ".nove";

/// FNV-1a: enough to know a table that came to the disk in part.
std::uint64_t Soucet(std::string_view bajty) {
    std::uint64_t soucet = 0xCBF29CE484222325U;
    for (const char c : bajty) soucet = (soucet ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return soucet;
}

std::string Zaver(std::string_view nova) {
    return std::string(KONEC_ZURNALU) + Sestnactkove(nova.size()) + " " +
           Sestnactkove(Soucet(nova)) + "\r\n";
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

/// What the order of a score table compares: less stands before.
std::array<double, 3> Klic(const ZaznamTabulky& z) {
    return {std::trunc(Cislo(z.Znamka)), -std::trunc(Cislo(z.Spravne)),
            std::trunc(Cislo(z.Spatne))};
}

std::string TextRadku(const ZaznamTabulky& z) {
    std::string radek = z.Jmeno + "|" + z.Spravne + "|" + z.Spatne + "|" + z.Znamka;
    radek += KONEC_RADKU;
    return radek;
}

}  // namespace

bool JeLepsi(const ZaznamTabulky& a, const ZaznamTabulky& b) {
    return Klic(a) < Klic(b);
}

int VlozZaznam(std::vector<ZaznamTabulky>& zaznamy, ZaznamTabulky novy) {
    // A file that somebody edited may be out of order; then the whole list is sorted.
    if (!std::ranges::is_sorted(zaznamy, JeLepsi)) std::ranges::stable_sort(zaznamy, JeLepsi);
    const auto misto = std::ranges::upper_bound(zaznamy, novy, JeLepsi);
    const auto poradi = static_cast<int>(misto - zaznamy.begin()) + 1;
    zaznamy.insert(misto, std::move(novy));
    return poradi;
}

std::vector<ZaznamTabulky> RozdelTabulku(std::string_view obsah) {
    std::vector<ZaznamTabulky> zaznamy;
    for (const std::string& radek : NaRadky(obsah)) {
        const auto pole = Rozdel<4>(radek, '|');
        zaznamy.push_back({.Jmeno = std::string(pole[0]),
                           .Spravne = std::string(pole[1]),
                           .Spatne = std::string(pole[2]),
                           .Znamka = std::string(pole[3])});
    }
    return zaznamy;
}

std::string SlozTabulku(const std::vector<ZaznamTabulky>& zaznamy) {
    std::string obsah;
    for (const ZaznamTabulky& z : zaznamy) obsah += TextRadku(z);
    return obsah;
}

std::vector<ZaznamTabulky> NactiTabulku(Disk& disk, const std::filesystem::path& soubor) {
    // A writer may be changing the file in place. Twice the same is no mixture: while the old
    // table is being written over, the whole new one stands behind it.
    constexpr int NEJVYSE = 20;
    const auto cti = [&] { return disk.Otevri(soubor, Disk::Jak::Cteni)->Cti(); };
    std::string bajty = cti();
    for (int i = 0; i < NEJVYSE; ++i) {
        std::string znovu = cti();
        const bool stejne = znovu == bajty;
        bajty = std::move(znovu);
        if (stejne) break;
    }
    std::vector<ZaznamTabulky> zaznamy = RozdelTabulku(PlatnaTabulka(bajty));
    for (ZaznamTabulky& z : zaznamy) {
        for (std::string* pole : {&z.Jmeno, &z.Spravne, &z.Spatne, &z.Znamka})
            *pole = Z1250Vzdy(*pole);
    }
    return zaznamy;
}

std::string Zurnal(std::size_t delkaStare, std::string_view nova) {
    std::string zurnal(ZACATEK_ZURNALU);
    // The new table must not begin where it is going to be written itself.
    const std::size_t predNi = delkaStare + zurnal.size();
    if (predNi < nova.size()) zurnal.append(nova.size() - predNi, VYPLN);
    zurnal += nova;
    return zurnal + Zaver(nova);
}

std::string_view PlatnaTabulka(std::string_view bajty) {
    if (bajty.size() >= DELKA_KONCE) {
        const std::size_t telo = bajty.size() - DELKA_KONCE;
        const std::string_view zaver = bajty.substr(telo);
        const std::size_t delka = zaver.starts_with(KONEC_ZURNALU) ? DelkaZeZaveru(zaver) : 0;
        if (delka > 0 && delka <= telo) {
            const std::string_view nova = bajty.substr(telo - delka, delka);
            if (zaver == Zaver(nova)) return nova;
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

OtevrenaTabulka::OtevrenaTabulka(Disk& disk, const std::filesystem::path& soubor)
    : disk_(disk), cesta_(disk.Jednoznacna(soubor)) {
    try {
        soubor_ = disk.Otevri(cesta_, Disk::Jak::Zapis);
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::Neni) throw;
        return;
    }
    bajty_ = soubor_->Cti();
    platna_ = PlatnaTabulka(bajty_);
}

int OtevrenaTabulka::Kolikrat(const ZaznamTabulky& zaznam) const {
    // As it reads once it was written: a "|" in the name shifts its fields.
    const ZaznamTabulky cteny = RozdelTabulku(TextRadku(zaznam)).front();
    return static_cast<int>(std::ranges::count(RozdelTabulku(platna_), cteny));
}

int OtevrenaTabulka::VlozNovyZaznam(const ZaznamTabulky& zaznam) {
    std::vector<ZaznamTabulky> zaznamy = RozdelTabulku(platna_);
    const int misto = VlozZaznam(zaznamy, zaznam);
    UlozTabulku(SlozTabulku(zaznamy));
    return misto;
}

void OtevrenaTabulka::UlozTabulku(std::string_view nova) {
    if (!Vymen(nova)) PrepisNaMiste(nova);
    UklidVedle();
}

void OtevrenaTabulka::Potvrd() {
    Uzdrav();
    if (soubor_) soubor_->NaDisk();
    disk_.SlozkaNaDisk(cesta_.parent_path());
}

bool OtevrenaTabulka::Vymen(std::string_view nova) {
    std::filesystem::path vedle = cesta_;
    vedle += "." + NahodneCislice();
    vedle += PRIPONA_NOVE;
    bool vyrobeno = false;
    const bool byla = soubor_ != nullptr;
    try {
        const auto soubor = disk_.NovySoubor(vedle);
        vyrobeno = true;
        if (soubor_) soubor->PrevezmiPrava(*soubor_);
        soubor->Pis(0, nova);
        soubor->NaDisk();
        mohlaSeZmenit_ = true;
        // There are systems where nothing that is open can be replaced.
        soubor_.reset();
        disk_.Nahrad(vedle, cesta_);
    } catch (const ChybaDisku& chyba) {
        if (vyrobeno) OdstranPotichu(disk_, vedle);
        // A table that is there and is open to this account can be written into.
        if (chyba.Proc() != Pricina::Nepovoleno || !byla) throw;
        if (!soubor_) soubor_ = disk_.Otevri(cesta_, Disk::Jak::Zapis);
        mohlaSeZmenit_ = false;
        return false;
    }
    try {
        disk_.SlozkaNaDisk(cesta_.parent_path());
    } catch (const ChybaDisku&) {
        // The new table is there for all who look, and the row must not be put in again.
    }
    return true;
}

void OtevrenaTabulka::PrepisNaMiste(std::string_view nova) {
    Uzdrav();
    mohlaSeZmenit_ = true;
    try {
        soubor_->Pis(platna_.size(), Zurnal(platna_.size(), nova));
        soubor_->NaDisk();
    } catch (const ChybaDisku&) {
        try {
            soubor_->Zkrat(platna_.size());
            mohlaSeZmenit_ = false;
        } catch (const ChybaDisku&) {
            // Readers know a journal that is not whole, and the next writer takes it away.
        }
        throw;
    }
    // From here on the file is the new table, whatever becomes of the rest.
    bajty_ = platna_ + Zurnal(platna_.size(), nova);
    platna_ = nova;
    try {
        Uzdrav();
    } catch (const ChybaDisku&) {
        // The next writer will do it.
    }
}

/// Makes the file hold its table and nothing else.
void OtevrenaTabulka::Uzdrav() {
    if (!soubor_ || bajty_ == platna_) return;
    if (!bajty_.starts_with(platna_)) {
        soubor_->Pis(0, platna_);
        // What is cut off next is what the table would be healed from.
        soubor_->NaDisk();
    }
    soubor_->Zkrat(platna_.size());
    soubor_->NaDisk();
    bajty_ = platna_;
}

/// Takes away what writers of this table that were broken off left beside it. All of them held the
/// lock that is held now.
void OtevrenaTabulka::UklidVedle() {
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
