#include "rules/Troj2Dialog.h"

#include <algorithm>
#include <cstdlib>

#include "rules/Misc.h"
#include "rules/Radky.h"
#include "rules/RadkyTrojuhelniku.h"
#include "rules/Ulohy.h"

namespace rysovna {

namespace {

// A circle about a midpoint stands for its median, whatever the first side.
using Podle = RadekKruznice::Podle;
constexpr std::array<Podle, 3> Teznice(std::string_view prvek, std::string_view nazev) {
    return {Podle{prvek, nazev}, Podle{prvek, nazev}, Podle{prvek, nazev}};
}
constexpr auto KRUZNICE_RADKY =
    Spoj(KRUZNICE_VRCHOLU,
         std::array<RadekKruznice, 3>{{{"Sc", "střed ve středu AB", Teznice("Sck", "tc"), 37},
                                       {"Sb", "střed ve středu AC", Teznice("Sbk", "tb"), 36},
                                       {"Sa", "střed ve středu BC", Teznice("Sak", "ta"), 35}}});

constexpr auto CENY = Spoj(CENY_STRAN, std::array<CenaVeliciny, 6>{{{KRUZNICE, "ta", 55, 52},
                                                                    {KRUZNICE, "tb", 56, 53},
                                                                    {KRUZNICE, "tc", 57, 54},
                                                                    {ROVNOBEZKA, "va", 130, 58},
                                                                    {ROVNOBEZKA, "vb", 131, 59},
                                                                    {ROVNOBEZKA, "vc", 132, 60}}});

// The sketch has the heights and medians, too. In it the heights would lie on sides and on a
// median, so each is drawn as a dimension line of the right length and direction outside. The zones
// of the medians keep clear of the vertices and of the angles.
constexpr auto NACRT =
    Spoj(NACRT_STRAN,
         std::array<PrvekNacrtu, 6>{
             {CaraNacrtu("va", {20, 130, -1, 140, 5}, {20, 120}, {130, 10}, {38, 72}),
              CaraNacrtu("vb", {170, 280, 1, -160, 5}, {170, 10}, {280, 120}, {243, 66}),
              CaraNacrtu("vc", {5, 11, 0, 85, 55}, {8, 30}, {8, 140}, {12, 78}),
              CaraNacrtu("ta", {90, 190, -1 / 3.0, 460 / 3.0, 4}, {40, 140}, {205, 85}, {166, 76}),
              CaraNacrtu("tb", {110, 210, 1 / 3.0, 160 / 3.0, 4}, {260, 140}, {95, 85}, {118, 76}),
              CaraNacrtu("tc", {147, 153, 0, 97, 37}, {150, 30}, {150, 140}, {155, 114})}});

constexpr PravidlaTrojuhelniku PRAVIDLA{.Kruznice = KRUZNICE_RADKY,
                                        .Ceny = CENY,
                                        .NacrtFigury = {NACRT, PISMENA_NACRTU},
                                        .ChybaRovnobezky = {}};

// ---- Values of an example --------------------------------------------------------------------

/// A condition that the three values must meet together.
using Podminka = bool (*)(int p, int q, int r);

constexpr int ODSTUP_TEZNICE = 4;  // cm by which a median exceeds what it is held against

bool Vzdy(int, int, int) {
    return true;
}
/// The other side, the half of the first one and the median to it make a triangle.
bool PulkaTvoriTrojuhelnik(int p, int q, int r) {
    return 2 * r > q && 2 * r < q + 2 * p && 2 * p < q + 2 * r;
}
/// The vertex of the angle lies inside the median's circle.
bool TeznicePresPulku(int p, int q, int) {
    return 2 * q > p + 2 * ODSTUP_TEZNICE;
}
/// Whichever side the height falls on, the other is longer than it.
bool ObeStranyNadVysku(int p, int q, int r) {
    return p > r && q > r;
}
bool TezniceNadVysku(int, int q, int r) {
    return r > q + ODSTUP_TEZNICE;
}

/// How the three values are drawn, kinds from Od to Po (two digits, so text compares as numbers).
struct Losovani {
    std::string_view Od, Po;
    std::array<Vzorec, 3> Vzorce;
    Podminka Plati;
};
constexpr Losovani LOSOVANI[] = {
    {"01", "06", {{{15, 10}, {10, 10}, {100, 20}}}, Vzdy},
    {"07", "12", {{{15, 10}, {15, 10}, {15, 10}}}, PulkaTvoriTrojuhelnik},
    {"13", "18", {{{15, 10}, {10, 10}, {105, 20}}}, TeznicePresPulku},
    {"19", "24", {{{20, 10}, {20, 10}, {20, 10}}}, ObeStranyNadVysku},
    {"25", "27", {{{20, 10}, {15, 10}, {15, 10}}}, TezniceNadVysku},
};

/// Whose letter tells the side to start with, by the task: the second name or the third.
struct PrvniStrana {
    int Uloha;
    std::string Priklad::*Nazev;
};
constexpr PrvniStrana PRVNI_STRANA[] = {{4, &Priklad::Nazev2},
                                        {5, &Priklad::Nazev3},
                                        {6, &Priklad::Nazev2},
                                        {7, &Priklad::Nazev3},
                                        {8, &Priklad::Nazev2}};
static_assert(std::ranges::all_of(ULOHY,
                                  [](const Uloha& u) {
                                      return u.deska != Deska::Troj2Form ||
                                             std::ranges::find(PRVNI_STRANA, u.Cislo,
                                                               &PrvniStrana::Uloha) !=
                                                 std::end(PRVNI_STRANA);
                                  }),
              "a task of this board without the side to start with");

/// The names of sides' midpoints, and so of the circles about them, begin with this letter.
constexpr char STRED_STRANY = 'S';
constexpr std::string_view STRED_USECKY = "Střed úsečky";
constexpr int DOSAH_STREDU = 5;  // px, on either axis

}  // namespace

Troj2Dialog::Troj2Dialog(Misc& misc, Platna platna) : DialogTrojuhelniku(misc, platna, PRAVIDLA) {}

bool Troj2Dialog::VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) {
    for (const Losovani& l : LOSOVANI) {
        if (p.Druh < l.Od || p.Druh > l.Po) continue;
        do {
            VylosujTri(misc_.Generator, l.Vzorce, hodnoty);
        } while (!l.Plati(hodnoty[0], hodnoty[1], hodnoty[2]));
        return true;
    }
    return false;
}

bool Troj2Dialog::PrvniStranaSpravna(std::string_view prvek) const {
    const auto* s = std::ranges::find(PRVNI_STRANA, misc_.CisloUlohy, &PrvniStrana::Uloha);
    if (s == std::end(PRVNI_STRANA)) return JeZadana(prvek);
    const std::string& nazev = Hrany().*(s->Nazev);
    return !nazev.empty() && nazev.substr(1) == prvek;
}

bool Troj2Dialog::KruzniceJeChyba(bool krokCekal) const {
    return !krokCekal;
}

bool Troj2Dialog::DruhSedi(const Krok& krok, std::string_view druh) const {
    return !druh.empty() && (krok.Utvar == druh || krok.UtvarB == druh);
}

bool Troj2Dialog::StredVDosahu(std::string_view stred) const {
    if (!stred.starts_with(STRED_STRANY)) return DialogTrojuhelniku::StredVDosahu(stred);
    return std::any_of(&misc_.Utvary[1], &misc_.Utvary[misc_.PocetUtvaru] + 1,
                       [stred](const Utvar& u) { return u.Jmeno3 == stred; });
}

bool Troj2Dialog::ChytaStredStrany() const {
    return Stav().ZvolenyPrvek.starts_with(STRED_STRANY);
}

bool Troj2Dialog::ZacinaSpravne() const {
    if (!ChytaStredStrany()) return DialogTrojuhelniku::ZacinaSpravne();
    const std::string& prvek = Stav().ZvolenyPrvek;
    const std::string stred = prvek.substr(0, prvek.size() - 1);
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar& u = misc_.Utvary[i];
        if (u.Jmeno3 == stred && Bod{u.X3, u.Y3} == Stav().Start) return true;
    }
    return false;
}

Gumicka Troj2Dialog::Prejezd(float x, float y) const {
    const auto blizko = [](float ukazatel, int bod) {
        return std::abs(ukazatel - static_cast<float>(bod)) <= static_cast<float>(DOSAH_STREDU);
    };
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar& u = misc_.Utvary[i];
        if (u.Jmeno3.empty() || !blizko(x, u.X3) || !blizko(y, u.Y3)) continue;
        return {.Text = std::string(STRED_USECKY), .JmenoBodu = true};
    }
    return {};
}

}  // namespace rysovna
