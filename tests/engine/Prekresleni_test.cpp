#include "engine/Prekresleni.h"

#include <gtest/gtest.h>

#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "engine/Tabulky.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

class PrekresleniTest : public testing::Test {
protected:
    Tabulky t;
    ZaznamPlane hiden{SIRKA_PLOCHY, VYSKA_PLOCHY};
    ZaznamPlane pic{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

TEST_F(PrekresleniTest, PrazdneKonstrukceSmazePic) {
    pic.Line(0, 0, 300, 300);
    PrekresliVse(t, hiden, pic);
    EXPECT_TRUE(pic.StejnyObraz(PametovaPlocha(SIRKA_PLOCHY, VYSKA_PLOCHY)));
    EXPECT_EQ(pic.kopie, (std::vector<bool>{true, false, true}));
}

TEST_F(PrekresleniTest, DaStejnyObrazATabulky) {
    // A finished triangle fills no point from a moved one, so that even its first picture comes
    // back; the random constructions settle with the first redraw.
    NakresliTrojuhelnik(t, pic);
    PametovaPlocha prvni = pic;
    PrekresliVse(t, hiden, pic);
    EXPECT_TRUE(pic.StejnyObraz(prvni));
    for (unsigned seminko = 1; seminko <= 20; ++seminko) {
        t = {};
        pic.Cls();
        NakresliNahodne(t, pic, 98, seminko);
        PrekresliVse(t, hiden, pic);
        prvni = pic;
        const auto utvary = t.Utvary;
        const auto trojice = t.Trojice_tab;
        PrekresliVse(t, hiden, pic);
        EXPECT_TRUE(pic.StejnyObraz(prvni)) << seminko;
        EXPECT_EQ(t.Utvary, utvary);
        EXPECT_EQ(t.Trojice_tab, trojice);
        EXPECT_EQ(t.PocetTrojic, 98);
    }
}

TEST_F(PrekresleniTest, PiseJenDoPosledniTrojice) {
    NakresliTrojuhelnik(t, pic);
    const auto predtim = t.Trojice_tab;
    t.Utvary[2].Druh = "elipsa";  // unknown, skipped
    hiden.kruhy.clear();
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(hiden.kruhy.size(), 1U);
    EXPECT_EQ(t.Trojice_tab, predtim);
    // A circle last: its centre stands over the end points of the segment before it.
    Kresli(t, pic, t.NovyUtvar("k", ""), {KRUZNICE, {50, 60}, {70, 60}});
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(t.Trojice_tab[7], (Trojice{50, 60, 187, 170, 214, 210, "k", "C", "Sa"}));
    // A redrawn parallel loses its length, a line does not.
    Kresli(t, pic, t.NovyUtvar("A", "B"), {ROVNOBEZKA, {50, 60}, {80, 60}, "", "", 5});
    Kresli(t, pic, t.NovyUtvar("A", "B"), {PRIMKA, {50, 90}, {80, 90}, "", "", 6});
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(t.Utvary[8].Delka, 0.0F);
    EXPECT_EQ(t.Utvary[9].Delka, 6.0F);
}

TEST_F(PrekresleniTest, PosunPosuneVseAZpetVratiObraz) {
    NakresliTrojuhelnik(t, pic);
    PrekresliVse(t, hiden, pic);
    const PametovaPlocha predtim = pic;
    const auto utvary = t.Utvary;
    PosunVse(t, hiden, pic, 20, -20);
    EXPECT_EQ((Bod{t.Utvary[1].X1, t.Utvary[1].Y1}), (Bod{140, 230}));
    EXPECT_EQ((Bod{t.Utvary[1].X4, t.Utvary[1].Y4}), (Bod{20, -20}));  // unused slots move too
    EXPECT_EQ((Bod{t.Trojice_tab[2].X3, t.Trojice_tab[2].Y3}), (Bod{20, -20}));
    EXPECT_EQ(pic.Point(150, 230), CERNA);
    PosunVse(t, hiden, pic, -20, 20);
    EXPECT_EQ(t.Utvary, utvary);
    EXPECT_TRUE(pic.StejnyObraz(predtim));
}

}  // namespace
}  // namespace rysovna
