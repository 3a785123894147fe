// The tools of the triangle boards: each opens its list; a chosen line names the new object,
// prompts for its value and is judged.

#include <algorithm>

#include "rules/Chyby.h"
#include "rules/DialogTrojuhelniku.h"
#include "rules/Misc.h"
#include "rules/NazvyPrimek.h"

namespace rysovna {

namespace {

/// A side that the triangle starts with: its list line, the letters of both ends; wrong step when
/// it is not the one to start with.
struct RadekStrany {
    std::string_view Text, Prvek;
    ChybaKroku ChybaVolby;
};
constexpr RadekStrany STRANY[] = {{"AB", "c", 3}, {"AC", "b", 2}, {"BC", "a", 1}};

/// The angle at a vertex; wrong steps when it is not given.
struct RadekPaprsku {
    std::string_view Vrchol, Uhel;
    ChybaKroku ChybaFaze2, ChybaFaze3;
};
constexpr RadekPaprsku PAPRSKY[] = {
    {"A", "alfa", 38, 39}, {"B", "beta", 40, 41}, {"C", "gama", 42, 43}};

/// The height that a parallel to a side stands for; wrong step when it is not given.
struct VyskaStrany {
    std::string_view Strana, Vyska;
    ChybaKroku ChybaVolby;
};
constexpr VyskaStrany VYSKY[] = {{"AB", "vc", 26}, {"AC", "vb", 25}, {"BC", "va", 24}};

}  // namespace

/// A kind of object: its list, and what becomes of a chosen line.
struct DialogTrojuhelniku::RadekNastroje {
    Nastroj Co;
    std::string_view Druh;
    Seznam::Obsah CoRika;
    std::vector<RadekSeznamu> (DialogTrojuhelniku::*Radky)() const;
    void (DialogTrojuhelniku::*Zvol)(std::size_t i);
};

std::span<const DialogTrojuhelniku::RadekNastroje> DialogTrojuhelniku::Nastroje() {
    using D = DialogTrojuhelniku;
    using enum Seznam::Obsah;
    static constexpr RadekNastroje NASTROJE[] = {
        {Nastroj::Usecka, USECKA, Jmena, &D::Strany, &D::ZvolStranu},
        {Nastroj::Poloprimka, POLOPRIMKA, Jmena, &D::Paprsky, &D::ZvolPaprsek},
        {Nastroj::Kolmice, KOLMICE, Popisy, &D::Primky, &D::ZvolKolmici},
        {Nastroj::Rovnobezka, ROVNOBEZKA, Popisy, &D::Primky, &D::ZvolRovnobezku},
        {Nastroj::Kruznice, KRUZNICE, Popisy, &D::Kruznice, &D::ZvolKruznici}};
    return NASTROJE;
}

void DialogTrojuhelniku::Nabidni(Nastroj co) {
    const RadekNastroje& n = *std::ranges::find(Nastroje(), co, &RadekNastroje::Co);
    stav_.ZvolenyUtvar = n.Druh;
    if (n.Druh == USECKA) HranyProUpravu().Kroky[1].Hotovo = ANO;
    if (n.Druh == ROVNOBEZKA) stav_.ZvolenyNazev.clear();
    OtevriSeznam(n.CoRika, (this->*n.Radky)());
}

void DialogTrojuhelniku::ZvolRadek(std::size_t i) {
    stav_.Velicina.clear();
    for (const RadekNastroje& n : Nastroje()) {
        if (n.Druh == stav_.ZvolenyUtvar) return (this->*n.Zvol)(i);
    }
}

// ---- Lists -----------------------------------------------------------------------------------

/// Whether the letter is a name of the last object, in phase 3 also of the one before.
bool DialogTrojuhelniku::VrcholVDosahu(std::string_view pismeno) const {
    const int kolik = stav_.Faze == 3 ? 2 : 1;
    for (int i = misc_.PocetUtvaru; i > misc_.PocetUtvaru - kolik && i >= 1; --i) {
        if (misc_.Utvary[i].Jmeno1 == pismeno || misc_.Utvary[i].Jmeno2 == pismeno) return true;
    }
    return false;
}

bool DialogTrojuhelniku::StredVDosahu(std::string_view stred) const {
    return VrcholVDosahu(stred);
}

std::vector<RadekSeznamu> DialogTrojuhelniku::Strany() const {
    std::vector<RadekSeznamu> radky;
    for (const RadekStrany& r : STRANY) radky.push_back({std::string(r.Text), true, true, {}});
    return radky;
}

std::vector<RadekSeznamu> DialogTrojuhelniku::Paprsky() const {
    std::vector<RadekSeznamu> radky;
    for (const RadekPaprsku& r : PAPRSKY) {
        radky.push_back({std::string(r.Vrchol) + Jmeno(), true, VrcholVDosahu(r.Vrchol), {}});
    }
    return radky;
}

/// What a perpendicular or a parallel can go by: the first side, and the first object if straight.
std::vector<RadekSeznamu> DialogTrojuhelniku::Primky() const {
    std::vector<RadekSeznamu> radky;
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        auto r = RadekPrimky(misc_.Utvary[i], stav_.ZvolenyUtvar == KOLMICE);
        if (r) radky.push_back(std::move(*r));
    }
    return radky;
}

std::vector<RadekSeznamu> DialogTrojuhelniku::Kruznice() const {
    std::vector<RadekSeznamu> radky;
    for (const RadekKruznice& r : pravidla_.Kruznice) {
        radky.push_back(
            {"kružnice " + Jmeno() + ", " + std::string(r.Text), true, StredVDosahu(r.Stred), {}});
    }
    return radky;
}

// ---- Choosing a line -------------------------------------------------------------------------

bool DialogTrojuhelniku::PrvniStranaSpravna(std::string_view prvek) const {
    return JeZadana(prvek);
}

void DialogTrojuhelniku::ZvolStranu(std::size_t i) {
    const RadekStrany& r = STRANY[i];
    const std::string strana(r.Text);
    stav_.ZvolenyPrvek = r.Prvek;
    stav_.Velicina = r.Prvek;
    ZacniUtvar(strana.substr(0, 1), strana.substr(1));
    Vyzvi("úsečka " + strana + ", |" + strana + "| = ", " cm");
    if (!PrvniStranaSpravna(r.Prvek)) ChybnaVolba(r.ChybaVolby);
    Zapis(USECKA, r.Prvek);
}

void DialogTrojuhelniku::ZvolPaprsek(std::size_t i) {
    const RadekPaprsku& r = PAPRSKY[i];
    const std::string vrchol(r.Vrchol);
    const Utvar& posledni = misc_.Utvary[misc_.PocetUtvaru];
    stav_.Velicina = r.Uhel;
    stav_.ZvolenyPrvek = vrchol + stav_.Velicina;
    ZacniPaprsek(posledni.Jmeno1 == vrchol ? posledni.Jmeno2 : posledni.Jmeno1, vrchol);
    if (!ObsadKrok(POLOPRIMKA)) {
        ChybnaVolba(CHYBA_PAPRSEK_NECEKANY);
    } else if (!JeZadana(stav_.Velicina)) {
        ChybnaVolba(stav_.Faze == 2 ? r.ChybaFaze2 : r.ChybaFaze3);
    }
    Zapis(POLOPRIMKA, stav_.Velicina);
}

void DialogTrojuhelniku::ZvolRovnobezku(std::size_t i) {
    stav_.ZvolenyNazev = stav_.Vyber.Radky[i].Jmena;
    ZacniPrimku(stav_.ZvolenyNazev, stav_.ZvolenyNazev);
    ChybaKroku chyba;  // of a parallel to what is no side: none, and no value either
    for (const VyskaStrany& v : VYSKY) {
        if (v.Strana != stav_.ZvolenyNazev) continue;
        stav_.Velicina = v.Vyska;
        chyba = v.ChybaVolby;
    }
    stav_.ZvolenyPrvek = stav_.Velicina;
    const bool soudiSe = !pravidla_.ChybaRovnobezky && chyba;
    if (soudiSe && !JeZadana(stav_.Velicina)) ChybnaVolba(chyba);
    Zapis(ROVNOBEZKA, stav_.Velicina);
}

void DialogTrojuhelniku::ZvolKruznici(std::size_t i) {
    const RadekKruznice& r = pravidla_.Kruznice[i];
    const Utvar& strana = misc_.Utvary[stav_.Faze == 2 ? misc_.PocetUtvaru : misc_.PocetUtvaru - 1];
    const std::string jmena = strana.Jmeno1 + strana.Jmeno2;
    const std::size_t podle = jmena == "AB" ? 0 : jmena == "AC" ? 1 : 2;
    if (const RadekKruznice::Podle& p = r.PodleStrany[podle]; !p.Prvek.empty()) {
        stav_.ZvolenyPrvek = p.Prvek;
        stav_.ZvolenyNazev = p.Nazev;
    }
    stav_.Velicina = stav_.ZvolenyNazev;
    ZacniKruznici(r.Stred);
    const bool ceka = ObsadKrok(KRUZNICE);
    if (KruzniceJeChyba(ceka)) {
        ChybnaVolba(CHYBA_KRUZNICE_NECEKANA);
    } else if (!JeZadana(stav_.Velicina)) {
        ChybnaVolba(r.ChybaVolby);
    }
    Zapis(KRUZNICE, stav_.Velicina);
}

void DialogTrojuhelniku::ZvolKolmici(std::size_t i) {
    const RadekSeznamu& r = stav_.Vyber.Radky[i];
    // The only lead-in that the line loses: the comparisons for the longer ones look at the first
    // nine characters alone and never match, so those captions stay whole.
    stav_.ZvolenyNazev = r.Text.starts_with(UVOD_USECKY.Kolmice) ? r.Jmena : r.Text;
    ZacniPrimku(r.Jmena, stav_.ZvolenyNazev);
    Zapis(KOLMICE, "");
}

}  // namespace rysovna
