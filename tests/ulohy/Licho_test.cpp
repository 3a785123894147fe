// The trapezoid, at the dialogue: what differs from the general quadrilateral.

#include "rules/LichoDialog.h"
#include "ulohy/Ctyruhelniky.h"

namespace rysovna::testy {
namespace {

TEST(LichoDokonaly, KazdyRadekDaDesetBoduALichobeznik) {
    EXPECT_GT((OdehrajSoubor<DokonalyCtyruhelnik>(11, ZmerObe<LichoDialog>)), 0);
}

const std::string RADEK = "01#ABC#a#b#beta#cm#cm#°#sus#AB||CD##rovnobezka#vc#d#cm#kruznice#KA";
const std::string PAPRSEK =
    "20#ABC#a#b#e#cm#cm#cm#sss#AB||CD##rovnobezka#vc#alfa#°#poloprimka#AXAB";

TEST(LichoChyby, JakoNaCtyruhelnikuJenRovnobezkaNestojiNic) {
    Stul<LichoDialog> s(11);
    const std::string konec = "AB||CD##rovnobezka#vc#d#cm#kruznice#KA";
    OverZacatky(s, CELE, "17", "01", {konec, konec, konec, konec});
    for (const std::string& radek : {RADEK, PAPRSEK}) {
        OverUtvary(s, radek, true);
        OverNesestrojeny<DokonalyCtyruhelnik>(
            s, radek, {{4, "kružnice k, střed v bodě A"}, {1, "AY, svírající úhel s úsečkou AB"}});
    }
    // A ray to the other side meets the parallel behind its start.
    s.Radek(PAPRSEK).Zacni(3);
    DokonalyCtyruhelnik zak(s, 1);
    zak.Oznac();
    zak.Trojuhelnik();
    zak.Narysuj(1);
    PaprsekVen(s, "ABC", "AY", s.dialog.Hodnoty()[4]);
    EXPECT_FALSE(s.dialog.Hotova());
    EXPECT_EQ(s.PoKontrole(), "300/10");
    EXPECT_TRUE(s.Pamet().ChybneKroky[1].Text.ends_with("    - 10 bodů"));
}

TEST(LichoRovnobezka, NestojiNicAVedeVrcholemJenZBlizka) {
    Stul<LichoDialog> s(11);
    ZacniRadek(s, RADEK);
    std::string zadani;
    for (const ZadanaVelicina& z : s.dialog.UkazPanel().Zadani) zadani += z.Nazev + z.Hodnota;
    EXPECT_NE(zadani.find("°, AB||CD, d= "), std::string::npos) << zadani;
    DokonalyCtyruhelnik(s, 1).Trojuhelnik();
    s.Nastroj(3).Vyber("AB");
    EXPECT_EQ(s.dialog.UkazPanel().Rysovane.Nazev, "přímka t, t||AB, |t,AB| = ");
    s.Tahni({30, 30}, {46, 30}).Zpet();
    const Bod a = VrcholNaPlose(s.Pamet(), "A");
    const Bod c = VrcholNaPlose(s.Pamet(), "C");
    // Not by an end of its own base.
    const std::pair<int, int> kamAKde[] = {
        {c.Y + 7, c.Y}, {c.Y - 7, c.Y}, {c.Y + 8, c.Y + 8}, {a.Y - 3, a.Y - 3}};
    for (const auto& [kam, kde] : kamAKde) {
        s.Nastroj(3).Vyber("AB").Napis(1).Tahni(a, {a.X, kam});
        EXPECT_EQ(s.Pamet().Utvary[4].Y1, kde);
        EXPECT_EQ(s.Pamet().Utvary[4].Y2, kde);
        s.Zpet();
    }
    // A parallel to another side is no wrong tool either; the check finds it.
    s.Nastroj(3).Vyber("BC").Napis(1).Tahni({a.X, a.Y}, {a.X + 30, a.Y});
    s.Nastroj(2).Vyber("AB").Tahni(a, {a.X, a.Y - 60});
    EXPECT_EQ(s.PoKontrole(), "19/3 301/2 16/1");
}

}  // namespace
}  // namespace rysovna::testy
