#include "hrac/Ctyruhelnik.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "hrac/Trojuhelnik.h"

namespace rysovna::hrac {
namespace {

constexpr MistoZnacky ZNACKY[] = {{"a", {145, 150}},   {"b", {230, 87}},     {"c", {145, 33}},
                                  {"d", {60, 79}},     {"e", {120, 100}},    {"f", {210, 121}},
                                  {"alfa", {74, 140}}, {"beta", {212, 138}}, {"gama", {203, 72}},
                                  {"delta", {87, 59}}, {"delt", {87, 59}}};

/// Parallel sides and the angles at the centre have no mark.
bool MaZnacku(std::string_view velicina) {
    return std::ranges::find(ZNACKY, velicina, &MistoZnacky::Velicina) != std::end(ZNACKY);
}

/// The quantity that a typed row asks for: "délka strany a = ", "vel. úhlu beta = ".
std::string VelicinaRadku(const std::string& popis) {
    const std::size_t konec = popis.find(" = ");
    const std::size_t od = popis.rfind(' ', konec - 1) + 1;
    return popis.substr(od, konec - od);
}

}  // namespace

Bod MistoNaNacrtuCtyruhelniku(std::string_view velicina) {
    return NajdiMisto(ZNACKY, velicina);
}

Bod VrcholNaPlose(std::string_view pismeno) {
    for (int i = 1; i <= 3; ++i) {
        if (Utvary[i].Jmeno1 == pismeno) return {Utvary[i].X1, Utvary[i].Y1};
    }
    throw NejdeUdelat("není vrchol " + std::string(pismeno));
}

void ZakCtyruhelniku::Oznac() {
    for (const Zadano& z : ruka_.Zadani()) {
        if (MaZnacku(z.Velicina)) ruka_.Oznac(MistoNaNacrtuCtyruhelniku(z.Velicina));
    }
}

void ZakCtyruhelniku::Trojuhelnik() {
    ruka_.Nastroj(1).Vyber(Priklad_().Text2);
    ruka_.Nastroj(2).Vyber(Priklad_().Text1 == "sss" ? "podle věty SSS" : "podle věty SUS");
    const auto radky = ruka_.Hrany().UkazPanel().Vstupy;
    for (std::size_t i = 0; i < radky.size(); ++i) {
        std::string velicina = VelicinaRadku(radky[i].Nazev);
        // A half of a diagonal is asked for by the letters of its ends.
        const bool pulka = velicina.size() == 2 && velicina.find('S') != std::string::npos;
        if (pulka) velicina = velicina.find_first_of("AC") != std::string::npos ? "e" : "f";
        if (!ruka_.JeZadano(velicina) && velicina == "delt") velicina = "delta";
        ruka_.Napis(ruka_.Hodnota(velicina) / (pulka ? 2 : 1), static_cast<int>(i) + 1);
    }
    ruka_.Nastroj(6);
}

// ---- By two objects --------------------------------------------------------------------------

void DokonalyCtyruhelnik::Sestroj() {
    constexpr int POSUNU = 15;  // an arrow goes seven steps either way
    constexpr int KROK = 20;    // px
    Oznac();
    ruka_.ZasunPanel();
    Trojuhelnik();
    std::array<int, 2> poradi = {1, 2};
    std::ranges::shuffle(poradi, nahoda_);
    for (const int n : poradi) Narysuj(n);
    Bod posunuto{};
    for (int i = 0; i < POSUNU * POSUNU && !VejdeSe(); ++i) {
        const Bod kam{(i % POSUNU - POSUNU / 2) * KROK, (i / POSUNU - POSUNU / 2) * KROK};
        ruka_.Zpet().Zpet();
        ruka_.Posun(kam.X - posunuto.X, kam.Y - posunuto.Y);
        posunuto = kam;
        for (const int n : poradi) Narysuj(n);
    }
}

void DokonalyCtyruhelnik::Narysuj(int n) {
    const Krok& krok = Priklad_().Kroky[n];
    const std::string prvek = krok.UtvarB;
    if (krok.Utvar == KRUZNICE) {
        NarysujKruznici(prvek.substr(1), ruka_.Hodnota(krok.Jmeno));
    } else if (krok.Utvar == POLOPRIMKA) {
        NarysujPaprsek(prvek.substr(0, 1), prvek.substr(3), ruka_.Hodnota(krok.Jmeno));
    } else {
        NarysujRovnobezku(krok.Jmeno.substr(0, 2));
    }
}

void DokonalyCtyruhelnik::NarysujKruznici(const std::string& stred, int cm) {
    const bool prvni = Dialogem().Stav().Faze == 2;
    const Bod b = VrcholNaPlose(stred);
    ruka_.Nastroj(4)
        .Vyber(std::string("kružnice ") + (prvni ? "k" : "l") + ", střed v bodě " + stred)
        .Napis(cm)
        .Tahni(b, {b.X + (b.X > 180 ? -1 : 1) * cm * PIXELU_NA_CM, b.Y + Cislo(13) - 6});
}

void DokonalyCtyruhelnik::NarysujPaprsek(const std::string& vrchol, const std::string& rameno,
                                         int stupnu) {
    const bool prvni = Dialogem().Stav().Faze == 2;
    const int posun = Cislo(13) - 6;  // the press snaps
    const Bod v = VrcholNaPlose(vrchol);
    const Bod r = VrcholNaPlose(rameno);
    const Bod t = Treti(vrchol, rameno);
    const bool vlevo = (r.X - v.X) * (t.Y - v.Y) - (r.Y - v.Y) * (t.X - v.X) < 0;
    ruka_.Nastroj(1)
        .Vyber(vrchol + (prvni ? "X" : "Y") + ", svírající úhel s úsečkou " + vrchol + rameno)
        .Napis(stupnu)
        .Tahni({v.X - posun, v.Y + posun}, PodUhlem(v, r, vlevo ? stupnu : -stupnu));
}

/// From the middle of the side to where the parallel misses the third vertex by a few pixels.
void DokonalyCtyruhelnik::NarysujRovnobezku(const std::string& strana) {
    const std::string od = strana.substr(0, 1);
    const std::string k = strana.substr(1);
    const Bod p = VrcholNaPlose(od);
    const Bod q = VrcholNaPlose(k);
    const Bod t = Treti(od, k);
    const Bod stred{(p.X + q.X) / 2, (p.Y + q.Y) / 2};
    const double o = (Cislo(11) - 5) / std::hypot(q.X - p.X, q.Y - p.Y);
    ruka_.Nastroj(3);
    ruka_.Vyber(ruka_.JeVSeznamu(strana) ? strana : "s úsečkou " + strana)
        .Tahni(stred, {t.X + stred.X - p.X + Zaokrouhli(o * (q.Y - p.Y)),
                       t.Y + stred.Y - p.Y - Zaokrouhli(o * (q.X - p.X))});
}

/// Whether the closed figure lies on the plane.
bool DokonalyCtyruhelnik::VejdeSe() const {
    constexpr int SIRKA = 384, VYSKA = 335, OKRAJ = 20;  // px
    if (!ruka_.Hrany().Hotova()) return false;
    return std::ranges::all_of(std::array{1, 2, 3, 6}, [](int i) {
        const Utvar& u = Utvary[i];
        return u.X2 >= OKRAJ && u.Y2 >= OKRAJ && u.X2 < SIRKA - OKRAJ && u.Y2 < VYSKA - OKRAJ;
    });
}

Bod DokonalyCtyruhelnik::Treti(const std::string& a, const std::string& b) const {
    for (const char c : Priklad_().Text2) {
        if (c != a[0] && c != b[0]) return VrcholNaPlose({&c, 1});
    }
    return {};
}

// ---- By symmetry -----------------------------------------------------------------------------

/// A missed click costs nothing.
Bod DokonalyRovnobeznik::Nekam() {
    return {Cislo(360), Cislo(310)};  // px of the plane, off the arrows
}

void DokonalyRovnobeznik::Stred() {
    const std::string t = Priklad_().Text2;
    ruka_.Nastroj(1);
    if (t[2] == 'S') {
        ruka_.Vyber("vrchol S");
        return;
    }
    std::string uhlopricka{t[0], t[2]};
    std::ranges::sort(uhlopricka);
    ruka_.Vyber("střed úsečky " + uhlopricka).Klikni(Nekam());
}

void DokonalyRovnobeznik::Obrazy() {
    constexpr std::string_view UVOD = "hledaný bod ";
    while (!ruka_.Hrany().Hotova()) {
        ruka_.Nastroj(2);
        // "hledaný bod D je obrazem vrcholu A": the pupil sees which point is looked for.
        const std::string radek = ruka_.Hrany().UkazPanel().Combo.Radky.back().Text;
        const char pres = "CDAB"[radek[UVOD.size()] - 'A'];
        const int pred = Dialogem().Stav().Faze;
        ruka_.Vyber(radek.substr(0, radek.size() - 1) + pres).Klikni(Nekam());
        if (Dialogem().Stav().Faze == pred) throw NejdeUdelat("obraz se nenakreslil");
    }
}

void DokonalyRovnobeznik::Sestroj() {
    Oznac();
    ruka_.ZasunPanel();
    Trojuhelnik();
    Stred();
    Obrazy();
}

}  // namespace rysovna::hrac
