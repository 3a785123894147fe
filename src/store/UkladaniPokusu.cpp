#include "store/UkladaniPokusu.h"

#include <array>
#include <charconv>
#include <exception>
#include <random>
#include <utility>

#include "base/Cisla.h"
#include "store/Fronta.h"
#include "store/TextPokusu.h"
#include "store/TextRadku.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view PRIPONA_NOVEHO = ".novy";  // of a file that is being written
constexpr const char* JMENO_ZNAMKY = "pokusy-ohlaseny";
constexpr std::string_view KOREN = "koren=";  // the first line in the queue: where it belongs

/// "20261122": the names of files stand in the order of their days.
std::string Den(const DatumACas& d) {
    return std::to_string(d.Rok) + DveCislice(d.Mesic) + DveCislice(d.Den);
}

/// Sixteen digits that no other file has.
std::string Nahodne() {
    std::random_device zdroj;
    std::string text;
    for (int i = 0; i < 2; ++i) {
        std::array<char, 8> cislice{};
        const auto* const konec =
            std::to_chars(cislice.data(), cislice.data() + cislice.size(), zdroj(), 16).ptr;
        const std::string_view cislo(cislice.data(),
                                     static_cast<std::size_t>(konec - cislice.data()));
        text.append(cislice.size() - cislo.size(), '0').append(cislo);
    }
    return text;
}

void OdstranPotichu(Disk& disk, const fs::path& soubor) {
    try {
        disk.Odstran(soubor);
    } catch (const ChybaDisku&) {
        // It will be taken away another time.
    }
}

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

/// Whether nobody writes into a file of the queue any more. Where locks are not kept only what is
/// of an earlier day is taken for such.
bool JeOpusteny(Soubor& soubor, bool dnesni) {
    try {
        return soubor.Zamkni();
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::NejdeZamek) throw;
        return !dnesni;
    }
}

}  // namespace

UkladaniPokusu::UkladaniPokusu(Disk& disk, const fs::path& koren, const fs::path& slozkaStavu)
    : disk_(disk),
      koren_(disk.Jednoznacna(koren)),
      fronta_(slozkaStavu.empty() ? fs::path() : Fronta::Slozka(slozkaStavu)) {}

fs::path UkladaniPokusu::Znamka() const {
    return fronta_ / JMENO_ZNAMKY;
}

void UkladaniPokusu::Zacni(const Pokus& pokus) {
    const DatumACas& d = pokus.Zacatek;
    jmeno_ = Den(d) + "-" + DveCislice(d.Hodina) + DveCislice(d.Minuta) + "-" +
             DveCislice(pokus.CisloUlohy) + "-" + Nahodne() + std::string(PRIPONA);
    text_ = ZacatekPokusu(pokus);
    cisloUlohy_ = pokus.CisloUlohy;
    neco_ = false;
    rozepsany_.reset();
}

void UkladaniPokusu::Pridej(const HranyPriklad& priklad) {
    if (jmeno_.empty()) return;
    text_ += TextPrikladu(priklad, cisloUlohy_);
    neco_ = neco_ || !priklad.Udalosti.empty();
    Rozepis();
}

/// Writes the series as far as it is known into the queue. What cannot be put there is kept in
/// memory alone.
void UkladaniPokusu::Rozepis() {
    if (fronta_.empty() || !neco_) return;
    const std::string hlavicka = std::string(KOREN) + NaRadek(koren_.string()) + "\n";
    try {
        if (!rozepsany_) {
            disk_.ZalozSlozku(fronta_);
            rozepsany_ = disk_.NovySoubor(fronta_ / jmeno_);
            static_cast<void>(JeOpusteny(*rozepsany_, true));
        }
        // The whole attempt lies in memory, so what is written of it has a size there too.
        const auto delka = static_cast<std::size_t>(rozepsany_->Delka());
        const std::string cele = hlavicka + text_;
        if (delka < cele.size()) rozepsany_->Pis(delka, std::string_view(cele).substr(delka));
    } catch (const std::exception&) {
        // The next example tries it again, from where this one came to.
    }
}

std::string UkladaniPokusu::Dokonci(bool dokonceny, bool smiRici) {
    if (jmeno_.empty()) return {};
    const std::string jmeno = std::exchange(jmeno_, {});
    if (!neco_) return {};
    text_ += KonecPokusu(dokonceny);
    std::string zprava;
    try {
        UlozSoubor(jmeno, text_);
        const bool vRade = std::exchange(rozepsany_, nullptr) != nullptr;
        if (vRade) OdstranPotichu(disk_, fronta_ / jmeno);
        ZapomenOznameni();
    } catch (const std::exception& chyba) {
        jmeno_ = jmeno;
        Rozepis();
        jmeno_.clear();
        const bool ceka = rozepsany_ != nullptr;
        rozepsany_.reset();
        if (smiRici) zprava = Oznam(chyba.what(), ceka);
    }
    text_.clear();
    return zprava;
}

/// Whole or not at all: beside its name first, then under it. A name that is there is this very
/// attempt, stored before the program was killed.
void UkladaniPokusu::UlozSoubor(const std::string& jmeno, std::string_view text) {
    const fs::path slozka = koren_ / SLOZKA;
    if (!disk_.JeSlozka(slozka)) disk_.ZalozPodslozku(slozka);
    const fs::path cil = slozka / jmeno;
    if (disk_.JeSoubor(cil)) return;
    const fs::path novy = slozka / (jmeno + std::string(PRIPONA_NOVEHO));
    std::unique_ptr<Soubor> soubor = NovyCisty(disk_, novy);
    try {
        soubor->Pis(0, text);
        soubor->NaDisk();
        soubor.reset();  // not everywhere can an open file be given another name
        disk_.Nahrad(novy, cil);
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
void UkladaniPokusu::UlozCekajici(const std::string& jmeno, const std::string& dnes) {
    const fs::path cesta = fronta_ / jmeno;
    std::unique_ptr<Soubor> soubor = disk_.Otevri(cesta, Disk::Jak::Zapis);
    const bool dnesni = jmeno >= dnes;
    if (!JeOpusteny(*soubor, dnesni)) return;
    std::string text = soubor->Cti();
    text.erase(text.rfind('\n') + 1);  // half a line counts for nothing
    const std::string hlavicka = std::string(KOREN) + NaRadek(koren_.string()) + "\n";
    if (text.starts_with(hlavicka)) {
        text.erase(0, hlavicka.size());
        if (!MaKonec(text)) text += KonecPokusu(false);
        if (CtiPokus(text).Co) UlozSoubor(jmeno, text);
    } else if (text.starts_with(KOREN) || dnesni) {
        return;  // it belongs elsewhere
    }
    soubor.reset();
    disk_.Odstran(cesta);
}

std::string UkladaniPokusu::ZkusCekajici(const DatumACas& dnes) {
    try {
        if (fronta_.empty() || !disk_.JeSlozka(fronta_)) return {};
        for (const std::string& jmeno : disk_.Jmena(fronta_)) {
            if (jmeno.ends_with(PRIPONA)) UlozCekajici(jmeno, Den(dnes));
        }
        ZapomenOznameni();
        return {};
    } catch (const std::exception& chyba) {
        return Oznam(chyba.what(), true);
    }
}

}  // namespace rysovna
