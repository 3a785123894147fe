// The triangle by a height or a median, at the dialogue: the perfect pupil, every charge, undo,
// the careless pupil.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

#include "podpora/Stul.h"
#include "podpora/Zak.h"
#include "tasks/Troj2Form.h"

namespace rysovna::testy {
namespace {

using StulTroj2 = Stul<Troj2Dialog>;

void Oznac(StulTroj2& s, const std::string& velicina) {
    s.Oznac(MistoNaNacrtu(velicina));
}

/// The closed figure against the given values: to half a centimetre, which is the play
/// that the read-outs leave.
void Zmer(const StulTroj2& s) {
    const Utvar& prvni = Utvary[1];
    std::map<std::string_view, Bod> v = {{prvni.Jmeno1, {prvni.X1, prvni.Y1}},
                                         {prvni.Jmeno2, {prvni.X2, prvni.Y2}}};
    const Bod treti = s.dialog.Stav().Vrchol;
    v[s.dialog.Stav().PismenoVrcholu] = treti;
    for (const auto& [velicina, hodnota] : s.Zadani()) {
        double chyba = 0;
        if (const auto vrchol = VrcholUhlu(velicina); !vrchol.empty()) {
            const Bod rameno = v[vrchol == prvni.Jmeno1 ? prvni.Jmeno2 : prvni.Jmeno1];
            chyba = OdPaprsku(v[vrchol], rameno, treti, hodnota);
        } else {
            const KonceStrany& k = Konce(velicina.substr(velicina.size() - 1));
            const Bod p = v[k.Od];
            const Bod q = v[k.Do];
            const Bod r = v[k.Treti];
            const double px = velicina.size() == 1 ? Delka(p, q)
                              : velicina[0] == 'v' ? OdPrimky(r, p, q)
                                                   : Delka(r, {(p.X + q.X) / 2, (p.Y + q.Y) / 2});
            chyba = std::fabs(px - hodnota * PIXELU_NA_CM);
        }
        EXPECT_LE(chyba, PIXELU_NA_CM / 2) << velicina << " = " << hodnota;
    }
}

class Troj2Dokonaly : public testing::TestWithParam<int> {};

TEST_P(Troj2Dokonaly, KazdyRadekDaDesetBoduAZadanyTrojuhelnik) {
    StulTroj2 s(GetParam());
    Pokryti pokryti;
    for (std::uint32_t seminko = 1; !pokryti.Cele(); ++seminko) {
        s.Zacni(seminko);
        DokonalyTrojuhelnik(s, seminko).Sestroj();
        ASSERT_EQ(s.PoKontrole(), "") << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        ASSERT_TRUE(s.dialog.Hotova()) << "seed " << seminko;
        Zmer(s);
        ASSERT_FALSE(HasFailure()) << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        pokryti.Odehran(s.dialog.CisloPrikladu());
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, Troj2Dokonaly, testing::Values(4, 5, 6, 7, 8));

// Side c from (100, 250), 12 cm and more; values of the example are set by the test's own seed.
constexpr Bod A{100, 250};

/// One example with a fault or two, and what it costs. Strana: the given value that side AB takes
/// before, drawn right; 0 for none.
struct Pripad {
    const char* Popis;
    int Uloha;
    const char* Radek;
    int Strana;
    std::vector<Pohyb> Pohyby;
    std::string Chyby;
};

const char* const V_U = "05##c#vc#alfa#cm#cm#°#usecka##rovnobezka##poloprimka#";
const char* const S_T = "12##b#c#tc#cm#cm#cm#usecka##kruznice##kruznice#";
const char* const T_U = "18##c#tc#alfa#cm#cm#°#usecka##kruznice##poloprimka#";

/// What starts on the first side: a height or a perpendicular, up by 20 px.
Pohyb Od(int nastroj, const char* radek) {
    return {nastroj, radek, 3, {150, 250}, {150, 230}};
}
const char* const STRED_AB = "kružnice k, střed ve středu AB";
const char* const K_V_A = "kružnice k, střed v bodě A";

const std::vector<Pripad> PRIPADY = {
    {"not the height's side: its values are free", 4, V_U, 0, {{1, "AC", 99}}, "2/3"},
    {"the median's side, not the other given one", 5, S_T, 0, {{1, "BC"}}, "1/3"},
    {"typed and drawn value of the first side", 4, V_U, 0, {{1, "AB", 99}}, "9/1 15/1"},
    {"height, both values", 4, V_U, 1, {Od(3, "s úsečkou AB")}, "132/1 60/1"},
    {"downward reads a minus", 4, V_U, 1, {{3, "s úsečkou AB", -2, {150, 250}, {0, 1}}}, "60/1"},
    {"a height not given: free values", 5, S_T, 2, {Od(3, "s úsečkou AB")}, "26/3"},
    {"heights by the first side",
     5,
     "08##b#a#ta#cm#cm#cm#usecka##kruznice##kruznice#",
     0,
     {{1, "BC", -2, A, {1, 0}}, Od(3, "s úsečkou BC")},
     "24/3"},
    {"the same on AC",
     5,
     "09##a#b#tb#cm#cm#cm#usecka##kruznice##kruznice#",
     0,
     {{1, "AC", -2, A, {1, 0}}, Od(3, "s úsečkou AC")},
     "25/3"},
    {"median: values, centre", 5, S_T, 2, {{4, STRED_AB, 3}}, "57/1 54/1 22/1"},
    {"median as the second object beside its centre",
     5,
     S_T,
     2,
     {{4, K_V_A, -1, A, {1, 0}}, {4, "kružnice l, střed ve středu AB", -3, {30, 30}, {1, 0}}},
     "45/1"},
    {"median that is not given, where a circle is expected",
     7,
     "24##b#c#vc#cm#cm#cm#usecka##kruznice##rovnobezka#",
     2,
     {{4, STRED_AB, 3}},
     "37/3"},
    {"medians by the first side",
     7,
     "20##a#c#va#cm#cm#cm#usecka##kruznice##rovnobezka#",
     0,
     {{1, "BC", -1, A, {1, 0}}, {4, "kružnice k, střed ve středu BC", 3}},
     "35/3"},
    {"the same on AC",
     7,
     "22##b#c#vb#cm#cm#cm#usecka##kruznice##rovnobezka#",
     0,
     {{1, "AC", -1, A, {1, 0}}, {4, "kružnice k, střed ve středu AC", 3}},
     "36/3"},
    {"no circle expected", 4, V_U, 1, {{4, K_V_A}}, "21/3"},
    {"a second circle",
     6,
     T_U,
     1,
     {{4, STRED_AB, -2, {30, 30}, {1, 0}}, {4, "kružnice l, střed v bodě B"}},
     "22/1 21/3"},
    {"no ray expected", 5, S_T, 2, {{1, "AX", 3}}, "18/3"},
    {"a ray of an angle that is not given; of one that is, wrong all over",
     4,
     V_U,
     1,
     {{1, "BX", 3}, {5}, {1, "AX", 3}},
     "40/3 10/1 30/1 31/1"},
    {"a perpendicular costs at every press, and the check counts the elements",
     4,
     V_U,
     1,
     {Od(2, "k úsečce AB"), {5}, Od(2, "k úsečce AB"), {0}},
     "19/3 19/3 301/2 16/1 300/10"},
    {"a parallel to a ray stands for no height",
     4,
     V_U,
     1,
     {{1, "AX", 3}, Od(3, "s polopřímkou AX"), {0}},
     "10/1 30/1 31/1 301/1 16/1 300/10"},
};

TEST(Troj2Chyby, KazdaStojiCoMa) {
    for (const Pripad& p : PRIPADY) {
        SCOPED_TRACE(p.Popis);
        StulTroj2 s(p.Uloha);
        s.Radek(p.Radek).Zacni(5);
        Oznac(s, "a");
        if (p.Strana > 0) s.Proved({{1, "AB", -p.Strana, A, {1, 0}}});
        s.Proved(p.Pohyby);
        EXPECT_EQ(StulTroj2::Chyby(), p.Chyby);
    }
}

TEST(Troj2Panel, StredUseckyUkazeSvouPopiskuASeznamNabidneJenSvujStred) {
    StulTroj2 s(5);
    s.Radek(S_T).Zacni();
    EXPECT_FALSE(s.dialog.UkazPanel().cmd[0].Zive) << "no mark yet";
    Oznac(s, "tc");
    s.Proved({{1, "AB", -2, A, {1, 0}}});
    const Bod m{Utvary[1].X3, Utvary[1].Y3};
    const auto popiska = [&](int dx, int dy) {
        return s.dialog.Prejezd(static_cast<float>(m.X + dx), static_cast<float>(m.Y + dy));
    };
    EXPECT_EQ(popiska(5, -5).Text, "Střed úsečky");
    EXPECT_EQ(popiska(5, -5).Odsazeni, 15);
    EXPECT_EQ(popiska(6, 0).Text, "");
    s.Nastroj(4);
    std::string zive;
    for (const RadekSeznamu& r : s.dialog.UkazPanel().Combo.Radky) zive += r.Ziva ? '1' : '0';
    EXPECT_EQ(zive, "110100");
    s.Vyber("kružnice k, střed ve středu AB");
    EXPECT_EQ(s.dialog.UkazPanel().lblText3, "kružnice k(Sc, r = ");
}

TEST(Troj2Zpet, ZeVsechFaziAZnovuBezChyby) {
    StulTroj2 s(8);
    for (std::uint32_t seminko = 1; seminko <= 30; ++seminko) {
        s.Zacni(seminko);
        DokonalyTrojuhelnik(s, seminko).Sestroj();
        ASSERT_TRUE(s.dialog.Hotova());
        s.Zpet();
        EXPECT_FALSE(s.dialog.Hotova());
        EXPECT_EQ(PocetUtvaru, 2);
        EXPECT_EQ(s.dialog.UkazPanel().lblText2, "2. útvar:");
        s.Zpet();
        EXPECT_EQ(s.dialog.UkazPanel().lblText2, "1. útvar:");
        s.Zpet();
        EXPECT_EQ(PocetUtvaru, 0);
        EXPECT_EQ(PocetTrojic, 0);
        for (const std::string& n : {s.Zaznam().Nazev1, s.Zaznam().Nazev2, s.Zaznam().Nazev3}) {
            Oznac(s, n);  // unmarks: the pupil marks them anew
        }
        DokonalyTrojuhelnik(s, seminko + 7).Sestroj();
        ASSERT_EQ(s.PoKontrole(), "") << seminko;
        ASSERT_TRUE(s.dialog.Hotova()) << seminko;
    }
}

}  // namespace
}  // namespace rysovna::testy
