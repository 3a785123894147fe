#include "store/Ukladani.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

#include "store/JmenaSouboru.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

ZaznamTabulky RadekTextu(const Vysledek& v) {
    return {.Jmeno = v.Jmeno, .Spravne = v.Kladne, .Spatne = v.Zaporne, .Znamka = v.Znamka};
}

/// As it stands in the file.
ZaznamTabulky RadekSouboru(const Vysledek& v) {
    return {.Jmeno = Do1250(v.Jmeno),
            .Spravne = Do1250(v.Kladne),
            .Spatne = Do1250(v.Zaporne),
            .Znamka = Do1250(v.Znamka)};
}

/// What must stand before the first line that is written at this place, so that it is a new line.
std::string_view PredRadkem(Soubor& denik, std::uint64_t kde) {
    const std::string posledni = kde == 0 ? "\n" : denik.Cti(kde - 1, 1);
    if (posledni == "\n") return {};
    return posledni == "\r" ? "\n" : KONEC_RADKU;
}

/// Notes how far an entry came, where the note only saves work later.
void PoznamenejPotichu(const CekajiciVysledek& v, Fronta* fronta) {
    try {
        if (!v.Soubor_.empty() && fronta != nullptr) fronta->Poznamenej(v, false);
    } catch (const ChybaDisku&) {
        // What stands in log and table tells it too.
    }
}

/// Whether a file is certainly not there.
bool NeniTam(Disk& disk, const fs::path& soubor) {
    try {
        static_cast<void>(disk.Otevri(soubor, Disk::Jak::Cteni));
        return false;
    } catch (const ChybaDisku& chyba) {
        return chyba.Proc() == Pricina::Neni;
    }
}

constexpr const char* ULOZEN_STRANOU =
    "Je uložen stranou a zapíše se s příštím výsledkem nebo při příštím spuštění programu.";

std::string JenVPameti(const std::string& proc) {
    return "Nelze jej ani uložit stranou: " + proc +
           ". Program zkusí zápis znovu s příštím výsledkem. Kdyby byl předtím ukončen, výsledek "
           "se ztratí.";
}

}  // namespace

Ukladani::Ukladani(Disk& disk, std::function<std::uint32_t()> ted, const fs::path& koren,
                   fs::path slozkaStavu)
    : UkladaniNaDisk(disk, std::move(ted)),
      koren_(disk.Jednoznacna(koren)),
      slozkaStavu_(std::move(slozkaStavu)) {}

Cinnost<Ukladani::Ulozeni> Ukladani::Uloz(Vysledek vysledek) {
    // No fault of any kind may end the game over a result, one of the memory included.
    try {
        cekaji_.push_back({.Koren = koren_.string(), .Co = vysledek});
        co_return co_await Zapis();
    } catch (const std::exception&) {
        co_return Ulozeni{.Text = "Výsledek se nepodařilo zapsat.", .Misto = 0};
    }
}

Cinnost<std::string> Ukladani::ZkusCekajici() {
    try {
        if (cekaji_.empty() && PocetCekajicich(disk_, slozkaStavu_) == 0) co_return {};
        const Ulozeni zprava = co_await Zapis();
        co_return zprava.Text;
    } catch (const std::exception&) {
        co_return {};  // a queue that cannot be looked into; the next result will tell
    }
}

std::vector<ZaznamTabulky> Ukladani::Nezapsane(int cisloUlohy) const {
    std::vector<ZaznamTabulky> zaznamy;
    for (const CekajiciVysledek& v : cekaji_) {
        if (v.Co.CisloUlohy == cisloUlohy && !v.VTabulce) zaznamy.push_back(RadekTextu(v.Co));
    }
    return zaznamy;
}

Cinnost<> Ukladani::PockejNaZamek(std::shared_ptr<Soubor> soubor, fs::path cesta) {
    while (!soubor->Zamkni()) {
        if (ted_() - od_ + KROK_CEKANI > NEJDELE_NA_ZAMEK)
            throw ChybaDisku(Pricina::Zamceno, cesta);
        co_await Cekani::SVstupem(KROK_CEKANI);
    }
}

Cinnost<Ukladani::Ulozeni> Ukladani::Zapis() {
    od_ = ted_();
    Rozvrh rozvrh = co_await Rozvrhni();
    Fronta* const fronta = rozvrh.Fronta ? &*rozvrh.Fronta : nullptr;
    Ulozeni zprava;
    std::string zamceno;  // waited for once, not for each result
    for (CekajiciVysledek& v : rozvrh.Zapsat) {
        std::string proc = zamceno;
        // A table too large for the memory is a fault of one result and no more.
        try {
            if (zamceno.empty()) {
                if (!v.VDeniku || !v.VTabulce) {
                    const fs::path cesta = Cesta(JMENO_DENIKU);
                    const std::shared_ptr<Soubor> denik = disk_.Otevri(cesta, Disk::Jak::Pripisek);
                    co_await PockejNaZamek(denik, cesta);
                    if (!v.VDeniku) {
                        ZapisVysledek(v, *denik, fronta);
                        co_await PockejNaUchovani(cesta);
                        v.VDeniku = true;
                        PoznamenejPotichu(v, fronta);
                    }
                    if (!v.VTabulce) {
                        DoTabulky(v, fronta);
                        co_await PockejNaUchovani(cesta);
                        v.VTabulce = true;
                        PoznamenejPotichu(v, fronta);
                    }
                }
                VyradZapsany(v, fronta);
                zprava.Misto = v.Misto;  // the newest is the last
                continue;
            }
        } catch (const ChybaDisku& chyba) {
            proc = chyba.what();
            if (chyba.Proc() == Pricina::Zamceno) zamceno = proc;
        } catch (const std::exception& chyba) {
            proc = chyba.what();
        }
        Neuspel(std::move(v), proc, fronta, zprava);
    }
    for (CekajiciVysledek& v : rozvrh.Nechat) Neuspel(std::move(v), rozvrh.Proc, nullptr, zprava);
    co_return zprava;
}

/// Keeps a result that did not go, and tells it once.
void Ukladani::Neuspel(CekajiciVysledek v, const std::string& proc, Fronta* fronta,
                       Ulozeni& zprava) {
    zprava.Misto = 0;
    if (!v.Ohlaseno) {
        v.Ohlaseno = true;
        try {
            if (fronta != nullptr) {
                PoznamenejPotichu(v, fronta);
            } else if (!v.Soubor_.empty()) {
                Fronta(disk_, slozkaStavu_).PoznamenejOhlaseni(v);
            }
        } catch (const ChybaDisku&) {
            // It will be told again.
        }
        zprava.Text = "Výsledek se nepodařilo zapsat: " + proc + ".\n\n" +
                      (v.Soubor_.empty() || v.Nejisty ? JenVPameti(bezFronty_) : ULOZEN_STRANOU);
    }
    cekaji_.push_back(std::move(v));
}

/// Puts what is in memory alone into the queue and takes over all that is there. Where another
/// program of the account is at work in the queue for too long, its entries are left to that one;
/// what could not be put there is written all the same.
Cinnost<Ukladani::Rozvrh> Ukladani::Rozvrhni() {
    Rozvrh rozvrh;
    std::vector<fs::path> nove;
    bezFronty_.clear();
    try {
        rozvrh.Fronta.emplace(disk_, slozkaStavu_);
        Zarad(rozvrh, nove);
        co_await PockejNaZamek(rozvrh.Fronta->OtevriZamek(), Fronta::Zamek(slozkaStavu_));
        Prevezmi(rozvrh);
        co_return rozvrh;
    } catch (const ChybaDisku& chyba) {
        rozvrh.Fronta.reset();
        rozvrh.Proc = chyba.what();
        // It works, only not for us: what is in it goes its way.
        if (chyba.Proc() == Pricina::Zamceno) nove.clear();
    } catch (const std::exception& chyba) {
        rozvrh.Fronta.reset();
        rozvrh.Proc = chyba.what();
    }
    if (bezFronty_.empty()) bezFronty_ = rozvrh.Proc;
    Stahni(rozvrh, nove);
    co_return rozvrh;
}

/// nove: the files of entries that were not there before.
void Ukladani::Zarad(Rozvrh& rozvrh, std::vector<fs::path>& nove) {
    for (CekajiciVysledek& v : cekaji_) {
        if (v.Nejisty && NeniTam(disk_, v.Soubor_)) {
            v.Soubor_.clear();
            v.Nejisty = false;
        }
        if (!v.Soubor_.empty()) continue;
        try {
            rozvrh.Fronta->Zarad(v);
            nove.push_back(v.Soubor_);
        } catch (const std::exception& chyba) {
            bezFronty_ = chyba.what();
        }
    }
}

/// With the lock: all of the queue, as it stands there (another program may have gone on with it),
/// and behind it what is not there.
void Ukladani::Prevezmi(Rozvrh& rozvrh) {
    std::vector<CekajiciVysledek> fronta = rozvrh.Fronta->Cekajici(koren_.string());
    std::vector<CekajiciVysledek> zpameti;
    for (const CekajiciVysledek& v : cekaji_) {
        const bool tam = std::ranges::any_of(
            fronta, [&](const auto& u) { return u.Soubor_ == v.Soubor_ && u.Co == v.Co; });
        if (tam) continue;
        if (v.Soubor_.empty() || v.Nejisty) {
            zpameti.push_back(v);
            continue;
        }
        // Gone: another program has stored it and taken it out.
        if (NeniTam(disk_, v.Soubor_)) continue;
        rozvrh.Nechat.push_back(v);
        rozvrh.Proc = ChybaDisku(Pricina::Jina, v.Soubor_).what();
    }
    rozvrh.Zapsat = std::move(fronta);
    std::ranges::move(zpameti, std::back_inserter(rozvrh.Zapsat));
    cekaji_.clear();
}

/// Without the lock: what is in memory alone is written, and what was put in just now (nove) is
/// taken out again for it, as there nobody can be at it. The rest stays.
void Ukladani::Stahni(Rozvrh& rozvrh, const std::vector<fs::path>& nove) {
    for (CekajiciVysledek& v : cekaji_) {
        if (std::ranges::find(nove, v.Soubor_) != nove.end()) {
            try {
                disk_.Odstran(v.Soubor_);
                v.Soubor_.clear();
            } catch (const ChybaDisku&) {
                // Then it waits there.
            }
        }
        (v.Soubor_.empty() ? rozvrh.Zapsat : rozvrh.Nechat).push_back(std::move(v));
    }
    cekaji_.clear();
}

/// Notes how far an entry came, before what is noted happens; one that is in memory alone knows it
/// anyway. An entry that takes no notes is taken out and goes on in memory: a full home must not
/// keep the result from log and table. ChybaDisku if that fails too.
void Ukladani::Poznamenej(CekajiciVysledek& v, Fronta* fronta) {
    if (v.Soubor_.empty() || fronta == nullptr) return;
    try {
        fronta->Poznamenej(v, true);
    } catch (const ChybaDisku& chyba) {
        fronta->Vyrad(v);
        v.Soubor_.clear();
        v.Nejisty = false;
        bezFronty_ = chyba.what();
    }
}

void Ukladani::VyradZapsany(const CekajiciVysledek& v, Fronta* fronta) {
    try {
        if (fronta != nullptr && !v.Soubor_.empty()) fronta->Vyrad(v);
    } catch (const ChybaDisku&) {
        // It stays, and says that all is done.
    }
}

void Ukladani::ZapisVysledek(CekajiciVysledek& v, Soubor& denik, Fronta* fronta) {
    const std::string text = RadkyDeniku(v.Co);
    const std::uint64_t delka = denik.Delka();
    std::optional<std::string> zbyva;
    if (v.DelkaDeniku && *v.DelkaDeniku <= delka) {
        // A program that was killed began it: what stands at its place tells how far it came.
        const std::string cele = std::string(PredRadkem(denik, *v.DelkaDeniku)) + text;
        const std::string tam = denik.Cti(*v.DelkaDeniku, cele.size());
        if (cele.starts_with(tam)) zbyva = cele.substr(tam.size());
    }
    if (!zbyva) {
        v.DelkaDeniku = delka;
        Poznamenej(v, fronta);
        zbyva = std::string(PredRadkem(denik, delka)) + text;
    }
    try {
        if (!zbyva->empty()) denik.Pripis(*zbyva);
    } catch (const ChybaDisku&) {
        // Nothing of it is there: the same lines of somebody else, later and at this place, must
        // not pass for these.
        if (denik.Delka() == v.DelkaDeniku) {
            v.DelkaDeniku.reset();
            PoznamenejPotichu(v, fronta);
        }
        throw;
    }
    denik.NaDisk();
}

void Ukladani::DoTabulky(CekajiciVysledek& v, Fronta* fronta) {
    const fs::path cesta = Cesta(JmenoTabulky(v.Co.CisloUlohy));
    const ZaznamTabulky radek = RadekSouboru(v.Co);
    OtevrenaTabulka tabulka(disk_, cesta);
    const int stejnych = tabulka.Kolikrat(radek);
    if (v.StejnychRadku && stejnych > *v.StejnychRadku) {
        // A program that was killed put it in.
        tabulka.Potvrd();
    } else {
        v.StejnychRadku = stejnych;
        Poznamenej(v, fronta);
        try {
            v.Misto = tabulka.VlozNovyZaznam(radek);
        } catch (const ChybaDisku&) {
            // It is not there: the same row of somebody else, later, must not pass for this one.
            if (!tabulka.MohlaSeZmenit()) {
                v.StejnychRadku.reset();
                PoznamenejPotichu(v, fronta);
            }
            throw;
        }
    }
}

fs::path Ukladani::Cesta(std::string_view jmeno) const {
    return disk_.Skutecna((koren_ / jmeno).string());
}

}  // namespace rysovna
