#include "rules/Troj1Dialog.h"

#include <algorithm>

#include "rules/Misc.h"
#include "rules/RadkyTrojuhelniku.h"
#include "rules/Ulohy.h"

namespace rysovna {

namespace {

constexpr PravidlaTrojuhelniku PRAVIDLA{.Kruznice = KRUZNICE_VRCHOLU,
                                        .Ceny = CENY_STRAN,
                                        .NacrtFigury = {NACRT_STRAN, PISMENA_NACRTU},
                                        .ChybaRovnobezky = CHYBA_ROVNOBEZKA};

// ---- Values of an example --------------------------------------------------------------------

/// How the three values of a kind are drawn. Of two angles the other one is drawn again by the key
/// angle.
struct Losovani {
    std::string_view Druh;
    std::array<Vzorec, 3> Vzorce;
    int Klic = -1, Jiny = -1;  ///< which values are the key angle and the other; -1: none
    bool Nerovnost = false;    ///< the three are sides of a triangle
};
constexpr Vzorec STRANA{20, 10}, UHEL{140, 20}, KLICOVY{70, 20};
constexpr Losovani LOSOVANI[] = {
    {"1", {{{15, 10}, {15, 10}, {10, 10}}}, -1, -1, true},
    {"2", {{UHEL, STRANA, STRANA}}},
    {"3", {{STRANA, UHEL, STRANA}}},
    {"4", {{STRANA, STRANA, UHEL}}},
    {"5", {{STRANA, KLICOVY, UHEL}}, 1, 2},
    {"6", {{KLICOVY, STRANA, UHEL}}, 0, 2},
    {"7", {{KLICOVY, UHEL, STRANA}}, 0, 1},
};

/// The other angle, drawn again where Nad < key angle <= Nejvyse, degrees.
struct DruhyUhel {
    int Nad, Nejvyse;
    Vzorec Jiny;
};
constexpr DruhyUhel DRUHE_UHLY[] = {{60, 90, {25, 20}}, {0, 60, {45, 20}}};

constexpr int SOUCET_DVOU_UHLU = 180;  // degrees, never reached

bool Vyhovuje(const Losovani& l, const HodnotyPrikladu& h) {
    if (l.Nerovnost) return Trojuhelnikova(h[0], h[1], h[2]);
    if (l.Klic < 0) return true;
    return h[static_cast<std::size_t>(l.Klic)] + h[static_cast<std::size_t>(l.Jiny)] <
           SOUCET_DVOU_UHLU;
}

// ---- The assignment --------------------------------------------------------------------------

/// A given quantity: a side by its letter, or an angle that is named anew only when the data's name
/// is the given word.
struct NazevVZadani {
    bool Uhel;
    std::string_view Slovo;  ///< a side: its fixed letter, empty: the data's name
    std::string_view Nazev;  ///< of an angle
};
struct ZadaniDruhu {
    std::string_view Druh;
    std::array<NazevVZadani, 3> Nazvy;
};

constexpr NazevVZadani Strana(std::string_view pevne = "") {
    return {false, pevne, ""};
}
constexpr NazevVZadani Uhel(std::string_view slovo, std::string_view nazev) {
    return {true, slovo, nazev};
}
constexpr NazevVZadani ALFA = Uhel("alfa", "alfa"), BETA = Uhel("beta", "beta"),
                       GAMA = Uhel("gama", "gama");
// Kind 7 tests its second name against "gama" and would set "beta": the data write "beta", so what
// is shown stays the designed one, which is "b" as well.
constexpr ZadaniDruhu ZADANI[] = {
    {"1", {Strana("a"), Strana("b"), Strana("c")}},
    {"2", {ALFA, Strana(), Strana()}},
    {"3", {Strana(), BETA, Strana()}},
    {"4", {Strana(), Strana(), GAMA}},
    {"5", {Strana(), BETA, GAMA}},
    {"6", {ALFA, Strana(), GAMA}},
    {"7", {ALFA, Uhel("gama", "beta"), Strana()}},
};

// By its task the board knows whether a circle is an object that no step expects.
constexpr int ULOHA_SSS = 1, ULOHA_SUS = 2, ULOHA_USU = 3;
static_assert(std::ranges::all_of(ULOHY,
                                  [](const Uloha& u) {
                                      return u.deska != Deska::Troj1Form || u.Cislo == ULOHA_SSS ||
                                             u.Cislo == ULOHA_SUS || u.Cislo == ULOHA_USU;
                                  }),
              "a task of this board of which it does not know whether a circle is wrong");

}  // namespace

Troj1Dialog::Troj1Dialog(Misc& misc, Platna platna) : DialogTrojuhelniku(misc, platna, PRAVIDLA) {}

bool Troj1Dialog::VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) {
    const auto* l = std::ranges::find(LOSOVANI, p.Druh, &Losovani::Druh);
    if (l == std::end(LOSOVANI)) return false;
    do {
        VylosujTri(misc_.Generator, l->Vzorce, hodnoty);
        if (l->Klic < 0) continue;
        const int klic = hodnoty[static_cast<std::size_t>(l->Klic)];
        for (const DruhyUhel& u : DRUHE_UHLY) {
            if (klic <= u.Nad || klic > u.Nejvyse) continue;
            hodnoty[static_cast<std::size_t>(l->Jiny)] =
                misc_.Generator.D(u.Jiny.Rozpeti, u.Jiny.Zaklad);
        }
    } while (!Vyhovuje(*l, hodnoty));
    return true;
}

void Troj1Dialog::SestavZadani(std::vector<ZadanaVelicina>& zadani) const {
    const auto* s = std::ranges::find(ZADANI, std::string_view(Hrany().Druh), &ZadaniDruhu::Druh);
    if (s == std::end(ZADANI)) return;
    const std::vector<Zadana> zadane = Zadane();
    for (std::size_t i = 0; i < s->Nazvy.size(); ++i) {
        const NazevVZadani& n = s->Nazvy[i];
        ZadanaVelicina& z = zadani[i];
        z.Co = n.Uhel ? ZadanaVelicina::Druh::Uhel : ZadanaVelicina::Druh::Delka;
        if (!n.Uhel) {
            z.Nazev = n.Slovo.empty() ? zadane[i].Nazev : n.Slovo;
        } else if (zadane[i].Nazev == n.Slovo) {
            z.Nazev = n.Nazev;
        }
        z.Hodnota = TextHodnoty(Hodnoty()[i], zadane[i].Jednotka, i + 1 == s->Nazvy.size());
    }
}

bool Troj1Dialog::KruzniceJeChyba(bool /*krokCekal*/) const {
    return misc_.CisloUlohy != ULOHA_SSS && misc_.CisloUlohy != ULOHA_SUS;
}

}  // namespace rysovna
