#include "store/UkladaniPokusu.h"

#include <exception>
#include <utility>

#include "store/Fronta.h"
#include "store/JmenaSouboru.h"
#include "store/TextPokusu.h"
#include "store/TextRadku.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

constexpr const char* JMENO_ZNAMKY = "pokusy-ohlaseny";
constexpr std::string_view KOREN = "koren=";  // the first line in the queue: where it belongs

/// A file that nobody has; one that a program which was killed left under this name goes.
std::unique_ptr<Soubor> NovyCisty(Disk& disk, const fs::path& cesta) {
    try {
        return disk.NovySoubor(cesta);
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::UzJe) throw;
    }
    disk.Odstran(cesta);
    return disk.NovySoubor(cesta);
}

/// Locks a file of the queue: nobody else writes into it then. Where locks are not kept, jinak.
bool Zamkni(Soubor& soubor, bool jinak) {
    try {
        return soubor.Zamkni();
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::NejdeZamek) throw;
        return jinak;
    }
}

std::string BezPripony(const std::string& jmeno) {
    return jmeno.substr(0, jmeno.size() - PRIPONA_POKUSU.size());
}

/// An attempt without its last line, which says whether it was finished.
std::string_view BezKonce(std::string_view text) {
    const std::size_t radek = text.rfind('\n', text.size() - 2);
    return text.substr(0, radek == std::string_view::npos ? 0 : radek + 1);
}

}  // namespace

UkladaniPokusu::UkladaniPokusu(Disk& disk, std::function<std::uint32_t()> ted,
                               const fs::path& koren, const fs::path& slozkaStavu)
    : UkladaniNaDisk(disk, std::move(ted)),
      koren_(disk.Jednoznacna(koren)),
      fronta_(slozkaStavu.empty() ? fs::path() : Fronta::Slozka(slozkaStavu)) {}

/// What a file in the queue has before the attempt.
std::string UkladaniPokusu::HlavickaFronty() const {
    return std::string(KOREN) + NaRadek(koren_.string()) + "\n";
}

fs::path UkladaniPokusu::Znamka() const {
    return fronta_ / JMENO_ZNAMKY;
}

void UkladaniPokusu::Zacni(const Pokus& pokus) {
    serie_ = {.Jmeno = ZacatekJmenaPokusu(pokus.Zacatek, pokus.CisloUlohy) + NahodneCislice() +
                       std::string(PRIPONA_POKUSU),
              .Text = ZacatekPokusu(pokus),
              .CisloUlohy = pokus.CisloUlohy};
}

void UkladaniPokusu::Pridej(const HranyPriklad& priklad) {
    if (serie_.Jmeno.empty()) return;
    serie_.Text += TextPrikladu(priklad, serie_.CisloUlohy);
    serie_.Neco = serie_.Neco || !priklad.Udalosti.empty();
    if (serie_.Neco) static_cast<void>(Rozepis(serie_));
}

/// Writes the series as far as it is known into the queue. What cannot be put there is kept in
/// memory alone: false.
bool UkladaniPokusu::Rozepis(Serie& serie) {
    if (fronta_.empty()) return false;
    const std::string hlavicka = HlavickaFronty();
    try {
        if (!serie.Rozepsany) {
            disk_.ZalozSlozku(fronta_);
            serie.Rozepsany = disk_.NovySoubor(fronta_ / serie.Jmeno);
            static_cast<void>(Zamkni(*serie.Rozepsany, true));
        }
        // The whole attempt lies in memory, so what is written of it has a size there too.
        const auto delka = static_cast<std::size_t>(serie.Rozepsany->Delka());
        const std::string cele = hlavicka + serie.Text;
        if (delka < cele.size()) serie.Rozepsany->Pis(delka, std::string_view(cele).substr(delka));
        return true;
    } catch (const std::exception&) {
        // The next example tries it again, from where this one came to.
        return false;
    }
}

/// It is stored: out of the queue.
void UkladaniPokusu::Stahni(Serie& serie) {
    if (std::exchange(serie.Rozepsany, nullptr) != nullptr)
        OdstranPotichu(disk_, fronta_ / serie.Jmeno);
    ZapomenOznameni();
}

Cinnost<std::string> UkladaniPokusu::Dokonci(bool dokonceny) {
    Serie serie = std::exchange(serie_, {});
    if (serie.Jmeno.empty() || !serie.Neco) co_return {};
    serie.Text += KonecPokusu(dokonceny);
    std::string proc;
    try {
        UlozSoubor(serie.Jmeno, serie.Text);
        co_await PockejNaUchovani(koren_ / SLOZKA_POKUSU / serie.Jmeno);
        Stahni(serie);
        co_return {};
    } catch (const std::exception& chyba) {
        proc = chyba.what();
    }
    const bool ceka = Rozepis(serie);
    co_return Oznam(proc, ceka);
}

void UkladaniPokusu::Opust() {
    Serie serie = std::exchange(serie_, {});
    if (serie.Jmeno.empty() || !serie.Neco) return;
    serie.Text += KonecPokusu(false);
    try {
        UlozSoubor(serie.Jmeno, serie.Text);
        // What is not kept yet stays in the queue too; the next start finds it in both.
        if (disk_.Uchovano()) Stahni(serie);
    } catch (const std::exception&) {
        static_cast<void>(Rozepis(serie));
    }
}

void UkladaniPokusu::Prevezmi(const std::string& jmeno, std::string_view text) {
    UlozSoubor(jmeno, text);
}

/// Whether a file is this very attempt, stored before the program was killed, maybe with another
/// end.
bool UkladaniPokusu::JeUlozen(const fs::path& cesta, std::string_view text) {
    return disk_.JeSoubor(cesta) &&
           disk_.Otevri(cesta, Disk::Jak::Cteni)->Cti().starts_with(BezKonce(text));
}

/// False if the name is another attempt's.
bool UkladaniPokusu::DejJmeno(const fs::path& novy, const fs::path& cil, std::string_view text) {
    try {
        disk_.Prejmenuj(novy, cil);
        return true;
    } catch (const ChybaDisku& chyba) {
        // Some servers have done it and say so when they are asked for the second time.
        if (chyba.Proc() != Pricina::UzJe) throw;
        if (!JeUlozen(cil, text)) return false;
    }
    OdstranPotichu(disk_, novy);
    return true;
}

/// Whole or not at all.
void UkladaniPokusu::UlozSoubor(const std::string& jmeno, std::string_view text) {
    constexpr int NEJVIC_JMEN = 8;  // a disk on which all names are taken is none
    const fs::path slozka = koren_ / SLOZKA_POKUSU;
    if (!disk_.JeSlozka(slozka)) disk_.ZalozPodslozku(slozka);
    if (JeUlozen(slozka / jmeno, text)) return;
    const fs::path novy = slozka / (jmeno + std::string(PRIPONA_NOVEHO));
    std::unique_ptr<Soubor> soubor = NovyCisty(disk_, novy);
    try {
        soubor->Pis(0, text);
        soubor->NaDisk();
        soubor.reset();  // not everywhere can an open file be given another name
        fs::path cil = slozka / jmeno;
        for (int i = 0; !DejJmeno(novy, cil, text); ++i) {
            if (i == NEJVIC_JMEN) throw ChybaDisku(Pricina::UzJe, cil);
            cil =
                slozka / (BezPripony(jmeno) + "-" + NahodneCislice() + std::string(PRIPONA_POKUSU));
        }
    } catch (const ChybaDisku&) {
        soubor.reset();
        OdstranPotichu(disk_, novy);
        throw;
    }
    try {
        disk_.SlozkaNaDisk(slozka);
    } catch (const ChybaDisku&) {
        // It is there for all who look.
    }
}

/// The message, unless it was told before and something waits since.
std::string UkladaniPokusu::Oznam(const std::string& proc, bool ceka) {
    try {
        if (!fronta_.empty() && disk_.JeSoubor(Znamka())) ohlaseno_ = true;
        if (std::exchange(ohlaseno_, true)) return {};
        if (!fronta_.empty()) static_cast<void>(disk_.NovySoubor(Znamka()));
    } catch (const std::exception&) {
        // Then the next run tells it again.
    }
    return "Záznam pokusu se nepodařilo uložit: " + proc + ".\n\nHry ani výsledku se to netýká. " +
           (ceka ? "Záznam je uložen stranou a program to zkusí znovu při příštím spuštění."
                 : "Nelze jej uložit ani stranou, proto je ztracen.");
}

/// All is stored again: what fails next is told.
void UkladaniPokusu::ZapomenOznameni() {
    ohlaseno_ = false;
    if (!fronta_.empty() && disk_.JeSoubor(Znamka())) OdstranPotichu(disk_, Znamka());
}

/// One that cannot be read as what it should be stays where it is as long as it may be in the
/// making.
Cinnost<> UkladaniPokusu::UlozCekajici(std::string jmeno, std::string dnes) {
    const fs::path cesta = fronta_ / jmeno;
    std::unique_ptr<Soubor> soubor = disk_.Otevri(cesta, Disk::Jak::Zapis);
    const bool dnesni = jmeno >= dnes;
    // Without locks only what is of an earlier day is taken for one that nobody writes any more.
    if (!Zamkni(*soubor, !dnesni)) co_return;
    std::string text = soubor->Cti();
    text.erase(text.rfind('\n') + 1);  // half a line counts for nothing
    const std::string hlavicka = HlavickaFronty();
    if (text.starts_with(hlavicka)) {
        text.erase(0, hlavicka.size());
        if (!MaKonec(text)) text += KonecPokusu(false);
        const PrectenyPokus precteny = CtiPokus(text);
        if (precteny.JinaVerze) co_return;  // that one will know what to do with it
        if (precteny.Co) {
            UlozSoubor(jmeno, text);
            co_await PockejNaUchovani(koren_ / SLOZKA_POKUSU / jmeno);
        }
    } else if (text.starts_with(KOREN) || dnesni) {
        co_return;  // it belongs elsewhere
    }
    soubor.reset();
    disk_.Odstran(cesta);
}

Cinnost<std::string> UkladaniPokusu::ZkusCekajici(DatumACas dnes) {
    std::string proc;
    try {
        if (fronta_.empty() || !disk_.JeSlozka(fronta_)) co_return {};
        for (const std::string& jmeno : disk_.Jmena(fronta_)) {
            if (!jmeno.ends_with(PRIPONA_POKUSU)) continue;
            // One that cannot be read keeps none of the others from being stored.
            try {
                co_await UlozCekajici(jmeno, DenPokusu(dnes));
            } catch (const std::exception& chyba) {
                if (proc.empty()) proc = chyba.what();
            }
        }
        if (proc.empty()) {
            ZapomenOznameni();
            co_return {};
        }
    } catch (const std::exception& chyba) {
        proc = chyba.what();
    }
    co_return Oznam(proc, true);
}

}  // namespace rysovna
