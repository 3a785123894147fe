// The trapezoid, at the dialogue: what differs from the general quadrilateral.

#include "tasks/CtyrU_zak.h"
#include "tasks/LichoForm.h"

namespace rysovna::testy {
namespace {

using StulLicho = Stul<LichoDialog>;

TEST(LichoDokonaly, KazdyRadekDaDesetBoduALichobeznik) {
    OdehrajSoubor<LichoDialog>(11);
}

const char* const RADEK = "01#ABC#a#b#beta#cm#cm#°#sus#AB||CD##rovnobezka#vc#d#cm#kruznice#KA";

TEST(LichoRovnobezka, NestojiNicAVedeVrcholemJenZBlizka) {
    StulLicho s(11);
    s.Radek(RADEK).Zacni(4);
    OznacCtyruhelnik(s, "a");
    DokonalyCtyruhelnik(s, 1).Trojuhelnik();
    const Bod a = VrcholNaPlose("A");
    const Bod c = VrcholNaPlose("C");
    for (const auto& [mimo, vedena] :
         {std::pair{7, true}, std::pair{-7, true}, std::pair{8, false}}) {
        s.Nastroj(3).Vyber("AB").Napis(1).Tahni(a, {a.X, c.Y + mimo});
        EXPECT_EQ(Utvary[4].Y1, vedena ? c.Y : c.Y + mimo);
        EXPECT_EQ(Utvary[4].Y2, Utvary[4].Y1);
        s.Zpet();
    }
    // A parallel to another side is no wrong tool either; the check finds it.
    s.Nastroj(3).Vyber("BC").Napis(1).Tahni({a.X, a.Y}, {a.X + 30, a.Y});
    EXPECT_EQ(StulLicho::Chyby(), "");
    s.Nastroj(2).Vyber("AB").Tahni(a, {a.X, a.Y - 60});
    EXPECT_EQ(s.PoKontrole(), "19/3 301/2 16/1");
}

TEST(LichoZadani, RovnobeznostStojiBezHodnoty) {
    StulLicho s(11);
    s.Radek(RADEK).Zacni(4);
    const auto zadani = s.dialog.UkazPanel().lblZadani;
    ASSERT_EQ(zadani.size(), 10U);
    EXPECT_EQ(zadani[6].Text + zadani[7].Text, "AB||CD, ");
    EXPECT_EQ(zadani[8].Text, "d");
    OznacCtyruhelnik(s, "a");
    DokonalyCtyruhelnik(s, 1).Trojuhelnik();
    s.Nastroj(3).Vyber("AB");
    EXPECT_EQ(s.dialog.UkazPanel().lblText3, "přímka t, t||AB, |t,AB| = ");
}

}  // namespace
}  // namespace rysovna::testy
