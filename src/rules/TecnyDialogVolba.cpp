// The tools with their lists, and the pick of a line.

#include <algorithm>

#include "engine/Kresleni.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"
#include "rules/NazvyPrimek.h"
#include "rules/SlovaKroku.h"
#include "rules/TecnyDialog.h"

namespace rysovna {

namespace {

/// The base's name behind the words that the list of perpendiculars or that of parallels has for
/// its kind; empty when there is no such object.
std::string SlovyPrimku(const Tabulky& t, std::string_view jmeno, bool kolmice) {
    const int i = NajdiCaru(t, jmeno);
    if (i == 0) return {};
    const UvodZakladny& uvod = t.Utvary[i].Druh == USECKA ? UVOD_USECKY : UVOD_PRIMKY;
    return std::string(kolmice ? uvod.Kolmice : uvod.Rovnobezka) + std::string(jmeno);
}

}  // namespace

// ---- Tools -----------------------------------------------------------------------------------

void TecnyDialog::StiskNastroje(int i) {
    const MistaNastroju nastroje = UkazPanel().Nastroje;
    if (i < 1 || i > NASTROJ_ZPET || !nastroje[static_cast<std::size_t>(i - 1)].Zivy()) return;
    misc_.KonstrukceZahajena = ANO;
    if (i == NASTROJ_ZPET) return Zpet();
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr) return;
    Odzbroj();
    stav_.VRuce = krok->Nastroje[static_cast<std::size_t>(i - 1)];
    stav_.Spravny = stav_.VRuce == krok->Spravny;
    if (std::ranges::find(krok->Chybne, stav_.VRuce) != krok->Chybne.end()) Chybne();
    switch (stav_.VRuce) {
        case Nastroj::Prusecik:
            return PripravOznaceni(*krok);
        case Nastroj::Stred:
            return PripravStred(*krok);
        case Nastroj::Osa: {
            stav_.ZvolenyUtvar = OSA;
            const std::string jmeno = std::string(krok->Body[0]) + std::string(krok->Body[1]);
            return OtevriSeznam({{"úsečky " + jmeno, true, true, jmeno}});
        }
        case Nastroj::Poloprimka: {
            const std::string od(Hrane()->PocatekPoloprimky);
            stav_.ZvolenyUtvar = POLOPRIMKA;
            stav_.Jmeno = od;
            stav_.Rysovane = "polopřímka " + od + "Y";
            stav_.CekaNaKresleni = true;
            return;
        }
        case Nastroj::Primka:
            stav_.ZvolenyUtvar = PRIMKA;
            return NabidniSpojnice(*krok);
        case Nastroj::Kruznice:
            stav_.ZvolenyUtvar = KRUZNICE;
            return NabidniKruznice(*krok);
        case Nastroj::Kolmice:
            stav_.ZvolenyUtvar = KOLMICE;
            return NabidniPrimky(*krok);
        case Nastroj::Rovnobezka:
            stav_.ZvolenyUtvar = ROVNOBEZKA;
            return NabidniPrimky(*krok);
        default:
            return;
    }
}

/// A wrong tool: charged at once; the object can be drawn all the same and costs no more.
void TecnyDialog::Chybne() {
    PridejChybu(misc_, CHYBA_NASTROJ);
    stav_.KrokChybny = true;
}

/// Lays the step in hand down, so that the tools are live again.
void TecnyDialog::Odzbroj() {
    static_cast<KrokVRuce&>(stav_) = {};
}

void TecnyDialog::ZavriSeznam() {
    if (stav_.Vyber.Otevreny) Odzbroj();
}

/// A list without a row cannot be picked from: the object is then drawn as dragged.
void TecnyDialog::OtevriSeznam(std::vector<RadekSeznamu> radky) {
    if (radky.empty()) {
        stav_.CekaNaKresleni = true;
        return;
    }
    stav_.Vyber = {true, Seznam::Obsah::Popisy, std::move(radky)};
}

/// Perpendicular and parallel: the bases that there are.
void TecnyDialog::NabidniPrimky(const KrokTecny& krok) {
    const bool kolmice = stav_.VRuce == Nastroj::Kolmice;
    std::vector<RadekSeznamu> radky;
    const auto pridej = [&](std::string_view jmeno) {
        std::string text = SlovyPrimku(misc_, jmeno, kolmice);
        if (!text.empty()) radky.push_back({std::move(text), true, true, std::string(jmeno)});
    };
    if (stav_.Spravny) {
        for (const Volba& v : krok.Volby) pridej(v.Prvek);
    } else {
        for (const std::string_view z : krok.Zakladny) pridej(z);
    }
    stav_.Jmeno = stav_.Spravny ? std::string(VolneJmeno(krok)) : "p" + std::to_string(stav_.Faze);
    OtevriSeznam(std::move(radky));
}

void TecnyDialog::NabidniKruznice(const KrokTecny& krok) {
    if (!stav_.Spravny) {
        const std::string_view jmeno = Hrane()->ChybnaKruznice;
        stav_.Jmeno = jmeno.empty() ? "k" + std::to_string(stav_.Faze) : std::string(jmeno);
        stav_.Rysovane = "kružnice " + stav_.Jmeno;
        stav_.CekaNaKresleni = true;
        return;
    }
    stav_.Jmeno = VolneJmeno(krok);
    std::vector<RadekSeznamu> radky;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek.empty() || NajdiBod(misc_, v.Prvek) == BEZ_BODU) continue;
        radky.push_back({"kružnice " + stav_.Jmeno + ", střed v bodě " + std::string(v.Prvek), true,
                         true, std::string(v.Prvek)});
    }
    OtevriSeznam(std::move(radky));
}

/// Lines through two named points.
void TecnyDialog::NabidniSpojnice(const KrokTecny& krok) {
    std::vector<RadekSeznamu> radky;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek.empty()) continue;
        radky.push_back({"přímka " + std::string(v.Prvek), true, true, std::string(v.Prvek)});
    }
    stav_.Jmeno = VolneJmeno(krok);
    OtevriSeznam(std::move(radky));
}

void TecnyDialog::PripravStred(const KrokTecny& krok) {
    stav_.ZvolenyUtvar = STRED;
    stav_.Jmeno =
        stav_.Spravny ? std::string(VolneJmeno(krok)) : std::string(krok.JmenoChybnehoStredu);
    stav_.Rysovane = "střed úsečky " + std::string(krok.Body[0]) + std::string(krok.Body[1]);
    const Bod a = NajdiBod(misc_, krok.Body[0]);
    const Bod b = NajdiBod(misc_, krok.Body[1]);
    if (!(a == BEZ_BODU) && !(b == BEZ_BODU)) stav_.StredUsecky = StredUseckyBodu(a, b);
    stav_.CekaNaKresleni = true;
}

void TecnyDialog::PripravOznaceni(const KrokTecny& krok) {
    stav_.ZvolenyUtvar = PRUSECIK;
    stav_.OcekavanyBod = krok.Jmena[0];
    stav_.CekaNaKresleni = true;
}

/// The first of the names that the step can give whose solution entry is not done.
std::string_view TecnyDialog::VolneJmeno(const KrokTecny& krok) const {
    const auto hotovo = [this](std::string_view jmeno) {
        for (int i = 1; i <= decltype(Priklad::Kroky)::POSLEDNI; ++i) {
            const Krok& k = misc_.Priklady[cisloPrikladu_].Kroky[i];
            if (k.Jmeno == jmeno && k.Hotovo != NE) return true;
        }
        return false;
    };
    return !krok.Jmena[1].empty() && hotovo(krok.Jmena[0]) ? krok.Jmena[1] : krok.Jmena[0];
}

// ---- The pick of a line ----------------------------------------------------------------------

void TecnyDialog::VyberRadku(int i) {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr || !stav_.Vyber.Otevreny || i < 1 ||
        i > static_cast<int>(stav_.Vyber.Radky.size())) {
        return;
    }
    const RadekSeznamu radek = stav_.Vyber.Radky[static_cast<std::size_t>(i - 1)];
    if (!radek.Videt || !radek.Ziva) return;
    stav_.Vyber.Otevreny = false;
    stav_.OcekavanyBod = radek.Jmena;
    if (stav_.VRuce == Nastroj::Osa) return ZvolOsu();
    stav_.CekaNaKresleni = true;
    if (stav_.Spravny && !krok->SpravnaVolba.empty() && radek.Jmena != krok->SpravnaVolba) {
        PridejChybu(misc_, krok->ChybaVolby);
        stav_.KrokChybny = true;
    }
    if (stav_.VRuce == Nastroj::Kruznice) return ZvolKruznici(*krok, radek.Jmena);
    if (stav_.VRuce == Nastroj::Primka) {
        stav_.Rysovane = radek.Text;
        // A line that is no result gets no result's name.
        if (radek.Jmena == krok->VedlejsiVolba || JeVzata(i)) {
            stav_.Jmeno = "p" + std::to_string(stav_.Faze);
            stav_.Spravny = false;
        }
        return;
    }
    ZvolPrimku(radek.Jmena);
}

/// Whether another line was drawn by this row of the list already: it cannot be both results.
bool TecnyDialog::JeVzata(int radek) const {
    return !KrokFaze()->Jmena[1].empty() && (stav_.Pouzite >> (radek - 1) & 1U) != 0;
}

/// Perpendicular or parallel to a base.
void TecnyDialog::ZvolPrimku(const std::string& zaklad) {
    stav_.Zakladna = NajdiCaru(misc_, zaklad);
    misc_.VybranyUtvar = stav_.Zakladna;
    stav_.Rysovane = stav_.VRuce == Nastroj::Rovnobezka ? NazevRovnobezky(stav_.Jmeno, zaklad)
                                                        : NazevKolmice(stav_.Jmeno, zaklad);
}

void TecnyDialog::ZvolKruznici(const KrokTecny& krok, const std::string& stred) {
    stav_.StredKruznice = stred;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek != stred) continue;
        stav_.Rysovane =
            "kružnice " + stav_.Jmeno + "(" + stred + ", r = " + NazevPolomeru(v) + ")";
    }
}

/// The axis of a segment: the perpendicular and the midpoint at once, the line first. It does this
/// step and the next one.
void TecnyDialog::ZvolOsu() {
    const KrokTecny stred = *KrokFaze();
    const KrokTecny kolmice = *KrokFaze(stav_.Faze + 1);
    const int usecka = NajdiCaru(misc_, stav_.OcekavanyBod);
    const Bod a = NajdiBod(misc_, stred.Body[0]);
    const Bod b = NajdiBod(misc_, stred.Body[1]);
    const Bod C = StredUseckyBodu(a, b);
    const std::string jmenoC(stred.Jmena[0]);
    const std::string jmenoB(kolmice.Jmena[0]);
    Pamatuj();
    const Dvojice body = Kolme(misc_.Utvary[usecka], C, C);
    KresliKolmici(misc_, platna_.Pic, misc_.NovyUtvar(jmenoB, ""),
                  {.Druh = KOLMICE, .P1 = body.P1, .P2 = body.P2}, ANO);
    misc_.Utvary[misc_.PocetUtvaru].Jak = {stav_.ZvolenyUtvar, stav_.OcekavanyBod, ""};
    NakresliBod(C, jmenoC, stred.NaPrimce);
    misc_.Utvary[misc_.PocetUtvaru].Jak = {
        STRED, std::string(stred.Body[0]) + " " + std::string(stred.Body[1]), ""};
    Zapis(stav_.Faze, BOD, jmenoC);
    Zapis(stav_.Faze + 1, KOLMICE, jmenoB);
    SplnPolozku(jmenoC);
    SpocitejPruseciky(kolmice);
    Odzbroj();
    stav_.Faze += 2;
    stav_.Zpatky = false;
}

}  // namespace rysovna
