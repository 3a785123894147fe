#include "rules/Troj1Dialog.h"

#include <algorithm>

#include "rules/Misc.h"
#include "rules/RadkyTrojuhelniku.h"

namespace rysovna {

namespace {

constexpr PravidlaTrojuhelniku PRAVIDLA{.Kruznice = KRUZNICE_VRCHOLU,
                                        .Ceny = CENY_STRAN,
                                        .Nacrt = NACRT_STRAN,
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

/// A label with a name: a side by its letter, or an angle whose caption is set only when the
/// data's name is the given word.
struct NazevVZadani {
    bool Uhel;
    std::string_view Slovo;    ///< a side: its fixed letter, empty: the data's name
    std::string_view Pismeno;  ///< an angle: its Symbol letter
    int MezeraPred, MezeraZa;  ///< px before the label and before its value
};
struct Sazba {
    std::string_view Druh;
    std::array<NazevVZadani, 3> Nazvy;
};

constexpr int MEZERA_SIRSI = 5;  // px
constexpr NazevVZadani Strana(std::string_view pevne = "", int za = MEZERA) {
    return {false, pevne, "", MEZERA, za};
}
constexpr NazevVZadani Uhel(std::string_view slovo, std::string_view pismeno,
                            int za = MEZERA_UHLU) {
    return {true, slovo, pismeno, MEZERA, za};
}
// Kind 7 tests its second name against "gama" and would set "b": the data write "beta", so the
// caption stays the designed one, which is "b" as well.
constexpr Sazba SAZBA[] = {
    {"1", {Strana("a"), Strana("b"), Strana("c")}},
    {"2", {Uhel("alfa", "a"), Strana(), Strana()}},
    {"3", {Strana(), Uhel("beta", "b"), Strana()}},
    {"4", {Strana(), Strana(), Uhel("gama", "g")}},
    {"5", {Strana(), Uhel("beta", "b", MEZERA_SIRSI), Uhel("gama", "g", MEZERA_SIRSI)}},
    {"6", {Uhel("alfa", "a"), Strana(), Uhel("gama", "g", MEZERA_SIRSI)}},
    {"7", {Uhel("alfa", "a"), Uhel("gama", "b"), Strana("", MEZERA_SIRSI)}},
};

constexpr int ULOHA_SSS = 1, ULOHA_SUS = 2;

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

void Troj1Dialog::SestavZadani(std::vector<PolozkaZadani>& zadani) const {
    const auto* s = std::ranges::find(SAZBA, std::string_view(Hrany().Druh), &Sazba::Druh);
    if (s == std::end(SAZBA)) return;
    const std::vector<Zadana> zadane = Zadane();
    for (std::size_t i = 0; i < s->Nazvy.size(); ++i) {
        const NazevVZadani& n = s->Nazvy[i];
        const bool novyRadek = i != 1;
        PolozkaZadani& nazev = zadani[2 * i];
        if (n.Uhel) {
            const bool shoda = zadane[i].Nazev == n.Slovo;
            nazev = NazevUhlu(shoda ? n.Pismeno : std::string_view(nazev.Text), n.MezeraPred,
                              novyRadek);
        } else {
            nazev =
                NazevStrany(n.Slovo.empty() ? zadane[i].Nazev : n.Slovo, n.MezeraPred, novyRadek);
        }
        const bool posledni = i + 1 == s->Nazvy.size();
        zadani[2 * i + 1] =
            HodnotaZadani(TextHodnoty(Hodnoty()[i], zadane[i].Jednotka, posledni), n.MezeraZa);
    }
}

bool Troj1Dialog::KruzniceJeChyba(bool /*krokCekal*/) const {
    return misc_.CisloUlohy != ULOHA_SSS && misc_.CisloUlohy != ULOHA_SUS;
}

}  // namespace rysovna
