// The step buttons of the triangle boards: each opens its list; the fifth takes a step back.

#include "board/DialogTrojuhelniku.h"
#include "engine/Sluzby.h"
#include "shell/Misc.h"

namespace rysovna {

namespace {

// Sizes of the list, px.
constexpr int VYSKA_RADKU = 20;
constexpr int OKRAJ_SEZNAMU = 4;
constexpr int SIRKA_UZKA = 105, RADEK_UZKY = 101;
constexpr int SIRKA_SIROKA = 200, RADEK_SIROKY = 196;

constexpr int NASTROJ_ZPET = 5;

constexpr int VyskaSeznamu(std::size_t radku) {
    return static_cast<int>(radku) * VYSKA_RADKU + OKRAJ_SEZNAMU;
}

bool JePrimkaSJmenem(const Utvar& u) {
    return u.Druh == ROVNOBEZKA || u.Druh == KOLMICE || u.Druh == PRIMKA;
}

}  // namespace

void DialogTrojuhelniku::StiskNastroje(int i) {
    const Panel panel = UkazPanel();
    if (i < 1 || i > NASTROJ_ZPET || !panel.cmd[static_cast<std::size_t>(i - 1)].Zive) return;
    KonstrukceZahajena = ANO;
    ZavriSeznam();
    if (i == NASTROJ_ZPET) return Zpet();
    if (stav_.Faze >= 4) return;  // a full construction takes no further object
    stav_.KrokChybny = false;
    switch (i) {
        case 1:
            return stav_.Faze == 1 ? NabidniStrany() : NabidniPaprsky();
        case 2:
            return NabidniKolmice();
        case 3:
            return NabidniRovnobezky();
        default:
            return NabidniKruznice();
    }
}

void DialogTrojuhelniku::ZavriSeznam() {
    stav_.Combo.Otevreny = false;
}

void DialogTrojuhelniku::OtevriSeznam(int sirka, int sirkaRadku, std::size_t kolik,
                                      std::vector<RadekSeznamu> radky) {
    stav_.Combo = {true, sirka, VyskaSeznamu(kolik), sirkaRadku, std::move(radky)};
}

/// Whether the letter is a name of the last object, in phase 3 also of the one before.
bool DialogTrojuhelniku::VrcholVDosahu(std::string_view pismeno) const {
    const int kolik = stav_.Faze == 3 ? 2 : 1;
    for (int i = PocetUtvaru; i > PocetUtvaru - kolik && i >= 1; --i) {
        if (Utvary[i].Jmeno1 == pismeno || Utvary[i].Jmeno2 == pismeno) return true;
    }
    return false;
}

void DialogTrojuhelniku::NabidniStrany() {
    stav_.ZvolenyUtvar = USECKA;
    Priklady[cisloPrikladu_].Kroky[1].Hotovo = ANO;
    std::vector<RadekSeznamu> radky;
    for (const RadekStrany& r : pravidla_.Strany)
        radky.push_back({std::string(r.Text), true, true, {}});
    const std::size_t kolik = radky.size();
    OtevriSeznam(SIRKA_UZKA, RADEK_UZKY, kolik, std::move(radky));
}

void DialogTrojuhelniku::NabidniPaprsky() {
    stav_.ZvolenyUtvar = POLOPRIMKA;
    std::vector<RadekSeznamu> radky;
    for (const RadekPaprsku& r : pravidla_.Paprsky) {
        radky.push_back({std::string(r.Vrchol) + (stav_.Faze == 2 ? "X" : "Y"),
                         true,
                         VrcholVDosahu(r.Vrchol),
                         {}});
    }
    const std::size_t kolik = radky.size();
    OtevriSeznam(SIRKA_UZKA, RADEK_UZKY, kolik, std::move(radky));
}

void DialogTrojuhelniku::NabidniKolmice() {
    stav_.ZvolenyUtvar = KOLMICE;
    std::vector<RadekSeznamu> radky(3);
    for (RadekSeznamu& r : radky) r.Videt = r.Ziva = false;
    const auto napln = [&radky](int i, std::string text, std::string jmena) {
        radky[static_cast<std::size_t>(i - 1)] = {std::move(text), true, true, std::move(jmena)};
    };
    const std::string prvni = Utvary[1].Jmeno1 + Utvary[1].Jmeno2;
    napln(1, "k úsečce " + prvni, prvni);
    std::size_t radku = 1;
    for (int i = 1; i <= PocetUtvaru; ++i) {
        const Utvar& u = Utvary[i];
        if (u.Druh == POLOPRIMKA) {
            napln(i, "k polopřímce " + u.Jmeno1 + u.Jmeno2, u.Jmeno1 + u.Jmeno2);
        } else if (u.Druh == ROVNOBEZKA || u.Druh == KOLMICE) {
            napln(i, "k přímce " + u.Jmeno1, u.Jmeno1);
        } else {
            continue;
        }
        if (i >= 2) radku = 2;
    }
    OtevriSeznam(SIRKA_SIROKA, RADEK_SIROKY, radku, std::move(radky));
}

void DialogTrojuhelniku::NabidniRovnobezky() {
    stav_.ZvolenyUtvar = ROVNOBEZKA;
    stav_.ZvolenyNazev.clear();
    std::vector<RadekSeznamu> radky(3);
    for (RadekSeznamu& r : radky) r.Videt = r.Ziva = false;
    std::size_t radku = 0;
    for (int i = 1; i <= PocetUtvaru && i <= 2; ++i) {
        const Utvar& u = Utvary[i];
        std::string text;
        if (u.Druh == USECKA) text = "s úsečkou " + u.Jmeno1 + u.Jmeno2;
        if (u.Druh == POLOPRIMKA) text = "s polopřímkou " + u.Jmeno1 + u.Jmeno2;
        if (JePrimkaSJmenem(u)) text = "s přímkou " + u.Jmeno1;
        if (text.empty()) continue;
        radky[radku++] = {std::move(text), true, true, u.Jmeno1 + u.Jmeno2};
    }
    OtevriSeznam(SIRKA_SIROKA, RADEK_SIROKY, radku, std::move(radky));
}

void DialogTrojuhelniku::NabidniKruznice() {
    stav_.ZvolenyUtvar = KRUZNICE;
    const std::string uvod = stav_.Faze == 2 ? "kružnice k, " : "kružnice l, ";
    std::vector<RadekSeznamu> radky;
    for (const RadekKruznice& r : pravidla_.Kruznice) {
        radky.push_back({uvod + std::string(r.Text), true, StredVDosahu(r.Stred), {}});
    }
    const std::size_t kolik = radky.size();
    OtevriSeznam(SIRKA_SIROKA, RADEK_SIROKY, kolik, std::move(radky));
}

bool DialogTrojuhelniku::StredVDosahu(std::string_view stred) const {
    return VrcholVDosahu(stred);
}

void DialogTrojuhelniku::Zpet() {
    platna_.Pic.DrawWidth = 1;
    --PocetUtvaru;
    --PocetTrojic;
    --stav_.Faze;
    stav_.CekaNaKresleni = false;
    stav_.ZvolenyUtvar.clear();
    stav_.HotovaKonstrukce = false;
    stav_.Vrchol = BEZ_BODU;
    if (stav_.Faze >= 2) {
        auto& kroky = Priklady[cisloPrikladu_].Kroky;
        kroky[2].Hotovo = NE;
        kroky[3].Hotovo = NE;
    }
    // The closing added a snap record of its own: the count of two objects is known.
    if (stav_.Faze == 3) PocetUtvaru = PocetTrojic = 2;
    PrekresliVse(platna_.HidenPic, platna_.Pic);
}

}  // namespace rysovna
