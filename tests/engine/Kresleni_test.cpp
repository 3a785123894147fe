#include "engine/Kresleni.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "base/Chyba.h"
#include "engine/Resitele.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

/// On a black plane no label finds a free spot, so each is printed where its sector puts it.
class Kresleni : public testing::Test {
protected:
    void SetUp() override {
        SmazKonstrukci();
        plocha.plocha.BackColor = CERNA;
        plocha.Cls();
    }

    ZaznamPlane plocha{SIRKA_PLOCHY, VYSKA_PLOCHY};

    Bod PosledniNapis() const {
        const auto& napis = plocha.napisy.back();
        return {static_cast<int>(napis.x), static_cast<int>(napis.y)};
    }
    bool JeCarka(float x1, float y1, float x2, float y2) const {
        for (const auto& c : plocha.carky) {
            const double rozdil = std::abs(c.x1 - x1) + std::abs(c.y1 - y1) + std::abs(c.x2 - x2) +
                                  std::abs(c.y2 - y2);
            if (rozdil < 1e-4) return true;
        }
        return false;
    }
    /// A segment AB from (150, 150), with marks.
    void Usecka(int dx, int dy) {
        KresliUsecku(plocha, USECKA, NovyUtvar("A", "B"), 150, 150, 150 + dx, 150 + dy, 5, "A", "B",
                     ANO, ANO, ANO);
    }
};

TEST_F(Kresleni, SektorUrcujePopisAKriz) {
    // Across: half of the tick, from the point; forward: the stub beyond the second end.
    const struct {
        const char* sektor;
        int dx, dy;
        Bod popis;
        float pricneX, pricneY, vpredX, vpredY;
    } pripady[] = {
        {"E0", 80, 0, {-3, 10}, 0, 5, 5, 0},
        {"1", 80, -40, {0, 10}, 2, 4, 4, -2},
        {"1, its limit", 80, -80, {0, 10}, 4, 4, 4, -4},
        {"2", 40, -80, {10, 0}, 4, 2, 2, -4},
        {"E90", 0, -80, {10, -3}, 5, 0, 0, -5},
        {"3", -40, -80, {-13, 0}, 4, -2, -2, -4},
        {"3, its limit", -80, -80, {-13, 0}, 4, -4, -4, -4},
        {"4", -80, -40, {-12, 5}, -2, 4, -4, -2},
        {"E180", -80, 0, {-3, 10}, 0, 5, -5, 0},
        {"5", -80, 40, {0, 10}, 2, 4, -4, 2},
        {"5, its limit", -80, 80, {0, 10}, 4, 4, -4, 4},
        {"6", -40, 80, {10, 0}, 4, 2, -2, 4},
        {"E270", 0, 80, {10, -3}, 5, 0, 0, 5},
        {"7", 40, 80, {-15, 0}, 4, -2, 2, 4},
        {"7, its limit", 80, 80, {-15, 0}, 4, -4, 4, 4},
        {"8", 80, 40, {-5, 5}, -2, 4, 4, 2},
    };
    for (const auto& p : pripady) {
        SetUp();
        plocha.carky.clear();
        Usecka(p.dx, p.dy);
        const auto x = static_cast<float>(150 + p.dx), y = static_cast<float>(150 + p.dy);
        EXPECT_EQ(PosledniNapis(), (Bod{150 + p.dx + p.popis.X, 150 + p.dy + p.popis.Y}))
            << p.sektor;
        EXPECT_EQ(plocha.carky.size(), 5U);
        EXPECT_TRUE(JeCarka(150, 150, x, y)) << p.sektor;
        EXPECT_TRUE(JeCarka(150 - p.vpredX, 150 - p.vpredY, 150, 150)) << p.sektor;
        EXPECT_TRUE(JeCarka(x, y, x + p.vpredX, y + p.vpredY)) << p.sektor;
        EXPECT_TRUE(JeCarka(150 - p.pricneX, 150 - p.pricneY, 150 + p.pricneX, 150 + p.pricneY))
            << p.sektor;
        EXPECT_TRUE(JeCarka(x - p.pricneX, y - p.pricneY, x + p.pricneX, y + p.pricneY))
            << p.sektor;

        // A point on that segment wears the whole cross and the same sector's label offset; so
        // does, with the tick alone, a ray in the same direction.
        plocha.carky.clear();
        KresliBod(plocha, BOD, "X", NovyUtvar("X", ""), 60, 70, "X", "AB", ANO);
        EXPECT_EQ(PosledniNapis(), (Bod{60 + p.popis.X, 70 + p.popis.Y})) << p.sektor;
        EXPECT_TRUE(JeCarka(60 - p.pricneX, 70 - p.pricneY, 60 + p.pricneX, 70 + p.pricneY));
        EXPECT_TRUE(JeCarka(60 - p.vpredX, 70 - p.vpredY, 60 + p.vpredX, 70 + p.vpredY));
        plocha.carky.clear();
        KresliPoloprimku(plocha, POLOPRIMKA, NovyUtvar("A", "X"), 150, 150, 150 + p.dx, 150 + p.dy,
                         "X", NE);
        EXPECT_EQ(plocha.carky.size(), 2U);
        EXPECT_TRUE(JeCarka(x - p.pricneX, y - p.pricneY, x + p.pricneX, y + p.pricneY))
            << p.sektor;
    }
}

TEST_F(Kresleni, UhlopricnySmerPatriVzdyKDolniMezi) {
    for (int n = 1; n <= 300; ++n) {
        plocha.napisy.clear();
        PocetUtvaru = PocetTrojic = 0;
        KresliPrimku(plocha, PRIMKA, NovyUtvar("p", ""), 150, 150, 150 + n, 150 - n, 0, NE);
        EXPECT_EQ(PosledniNapis(), (Bod{150 + n, 160 - n}));
        KresliPrimku(plocha, PRIMKA, NovyUtvar("p", ""), 150, 150, 150 + n, 150 + n, 0, NE);
        EXPECT_EQ(PosledniNapis(), (Bod{135 + n, 150 + n}));
    }
}

TEST_F(Kresleni, DruhyBodSePosuneNaOkraj) {
    const struct {
        const char* co;
        Bod od, k, ocekavany;
    } pripady[] = {
        {"right", {100, 100}, {200, 100}, {369, 100}},
        {"left", {200, 100}, {100, 100}, {15, 100}},
        {"up", {100, 100}, {100, 50}, {100, 10}},
        {"down", {100, 100}, {100, 150}, {100, 315}},
        {"steep up", {100, 100}, {101, 50}, {102, 10}},
        {"steep down", {100, 100}, {101, 150}, {104, 315}},
        {"the sum is rounded", {269, 101}, {469, 102}, {369, 102}},
        {"no drag", {50, 50}, {50, 50}, {50, 50}},
        {"no drag above the box", {50, 5}, {50, 5}, {50, 5}},
        {"level above the box", {100, 5}, {200, 5}, {369, 10}},
        {"level below the box", {100, 330}, {50, 330}, {15, 315}},
        {"start right of the box", {375, 100}, {380, 110}, {380, 110}},
        {"start on its edge", {369, 100}, {380, 100}, {380, 100}},
        {"start left of the box", {10, 100}, {5, 90}, {5, 90}},
        {"start above, going up", {100, 5}, {100, 3}, {100, 3}},
        {"start above, going up aslant", {100, 5}, {200, 3}, {200, 3}},
        {"start below, going down", {100, 330}, {100, 334}, {100, 334}},
    };
    for (const auto& p : pripady) {
        SmazKonstrukci();
        const int ray = NovyUtvar("A", "X");
        KresliPoloprimku(plocha, POLOPRIMKA, ray, p.od.X, p.od.Y, p.k.X, p.k.Y, "X", ANO);
        EXPECT_EQ((Bod{Utvary[ray].X2, Utvary[ray].Y2}), p.ocekavany) << p.co;
        EXPECT_EQ((Bod{Trojice_tab[1].X2, Trojice_tab[1].Y2}), p.ocekavany) << p.co;
        const int kolmice = NovyUtvar("A", "X");
        KresliKolmici(plocha, KOLMICE, kolmice, p.od.X, p.od.Y, p.k.X, p.k.Y, ANO);
        EXPECT_EQ((Bod{Utvary[kolmice].X2, Utvary[kolmice].Y2}), p.ocekavany) << p.co;
        // A redraw leaves the stored point where it is.
        KresliPrimku(plocha, PRIMKA, kolmice, p.od.X, p.od.Y, p.k.X, p.k.Y, 0, NE);
        EXPECT_EQ((Bod{Utvary[kolmice].X2, Utvary[kolmice].Y2}), p.k) << p.co;
    }
}

TEST_F(Kresleni, PaprsekZUlozenychHodnotVedeStejnouCarou) {
    std::mt19937 stroj(3);
    for (int kolo = 0; kolo < 500; ++kolo) {
        SmazKonstrukci();
        plocha.carky.clear();
        const auto c = [&] { return static_cast<int>(stroj() % 335); };
        const int i = NovyUtvar("A", "X");
        KresliPoloprimku(plocha, POLOPRIMKA, i, c(), c(), c(), c(), "X", ANO);
        const Utvar u = Utvary[i];
        KresliPoloprimku(plocha, POLOPRIMKA, i, u.X1, u.Y1, u.X2, u.Y2, u.Popis2, NE);
        ASSERT_EQ(plocha.carky.size(), 4U);
        ASSERT_EQ(plocha.carky[0], plocha.carky[2]);
        ASSERT_EQ((Bod{u.X2, u.Y2}), (Bod{Utvary[i].X2, Utvary[i].Y2}));
        ASSERT_EQ(PocetTrojic, 1);
    }
}

TEST_F(Kresleni, CaryVedouKOkrajumPlochy) {
    KresliPrimku(plocha, PRIMKA, NovyUtvar("p", ""), 100, 100, 102, 101, 7.5F, NE);
    EXPECT_TRUE(JeCarka(0, 50, 384, 242));
    EXPECT_EQ(Utvary[1].Delka, 7.5F);
    KresliKolmici(plocha, KOLMICE, NovyUtvar("k", ""), 30, 100, 30, 90, NE);
    EXPECT_TRUE(JeCarka(30, 0, 30, 335));
    KresliPoloprimku(plocha, POLOPRIMKA, NovyUtvar("A", "X"), 40, 100, 40, 90, "X", NE);
    EXPECT_TRUE(JeCarka(40, 100, 40, 0));
    KresliPoloprimku(plocha, POLOPRIMKA, NovyUtvar("A", "X"), 50, 100, 50, 190, "X", NE);
    EXPECT_TRUE(JeCarka(50, 100, 50, 335));
    KresliPoloprimku(plocha, POLOPRIMKA, NovyUtvar("A", "X"), 100, 100, 98, 101, "X", NE);
    EXPECT_TRUE(JeCarka(100, 100, 0, 150));
}

TEST_F(Kresleni, UseckaZapisujeZaznamATrojici) {
    Usecka(25, 10);
    const Utvar& u = Utvary[1];
    EXPECT_EQ(u.Druh, USECKA);
    EXPECT_EQ(u.Jmeno3, "Sc");
    EXPECT_EQ((Bod{u.X3, u.Y3}), (Bod{162, 155}));  // 162.5 goes to the even pixel
    EXPECT_EQ(u.Znacky, ANO);
    EXPECT_EQ(u.Delka, 5.0F);
    EXPECT_EQ(u.Popis4, " 0");
    EXPECT_EQ(Trojice_tab[1], (Trojice{150, 150, 175, 160, 162, 155, "A", "B", "Sc"}));
    // Without its line a segment still gets its two labels, and no mark.
    plocha.carky.clear();
    plocha.napisy.clear();
    KresliUsecku(plocha, USECKA, NovyUtvar("B", "A"), 150, 150, 175, 160, 5, "B", "A", ANO, NE, NE);
    EXPECT_TRUE(plocha.carky.empty());
    EXPECT_EQ(plocha.napisy.size(), 2U);
    EXPECT_EQ(Utvary[2].Jmeno3, "");
    EXPECT_EQ(PocetTrojic, 1);
    EXPECT_EQ(Trojice_tab[1].Jmeno1, "B");
}

TEST_F(Kresleni, KrizBoduHledaPosledniPrimkuTohoJmena) {
    Usecka(80, 0);
    KresliUsecku(plocha, USECKA, NovyUtvar("B", "A"), 10, 10, 10, 90, 5, "", "", NE, ANO, ANO);
    plocha.DrawWidth = 2;
    KresliBod(plocha, BOD, "X", NovyUtvar("X", ""), 60, 70, "X", "AB", ANO);
    // A to B of the second segment goes straight up.
    EXPECT_EQ(PosledniNapis(), (Bod{70, 67}));
    EXPECT_EQ(plocha.DrawWidth, 1);
    KresliBod(plocha, BOD, "Y", NovyUtvar("Y", ""), 60, 70, "Y", "CD", ANO);
    EXPECT_EQ(PosledniNapis(), (Bod{57, 80}));
    EXPECT_EQ(Trojice_tab[4], (Trojice{60, 70, 0, 0, 0, 0, "Y", "", ""}));
}

TEST_F(Kresleni, PopisKruzniceHledaMistoUvnitrPlochy) {
    const struct {
        Bod stred;
        int x2;
        Bod popis;
    } pripady[] = {{{192, 167}, 242, {205, 106}},     // 165 degrees
                   {{192, 167}, 142, {205, 106}},     // radius to the left
                   {{192, 20}, 242, {242, 7}},        // only 90 degrees is inside
                   {{380, 20}, 430, {330, 7}},        // only 270, the last of all
                   {{192, -100}, 242, {142, -113}}};  // none: the last try stands
    for (const auto& p : pripady) {
        const int i = NovyUtvar("k", "");
        KresliKruznici(plocha, KRUZNICE, i, p.stred.X, p.stred.Y, p.x2, ANO);
        EXPECT_EQ(PosledniNapis(), p.popis);
        EXPECT_EQ(Utvary[i].Polomer, 50.0F);
        EXPECT_EQ(plocha.kruhy.back().r, 50.0F);
    }
}

TEST_F(Kresleni, PlnaTabulkaJeChyba) {
    EXPECT_THROW(KresliKruznici(plocha, KRUZNICE, 101, 10, 10, 20, ANO), BehovaChyba);
    PocetTrojic = 100;
    EXPECT_THROW(KresliKruznici(plocha, KRUZNICE, 1, 10, 10, 20, ANO), BehovaChyba);
    EXPECT_EQ(PocetTrojic, 100);
}

TEST(Tabulky, RovneUhlyNaPetMist) {
    EXPECT_TRUE(RovneUhly(0, 0));
    EXPECT_TRUE(RovneUhly(0.000004, 0));
    EXPECT_FALSE(RovneUhly(0.000006, 0));
    EXPECT_FALSE(RovneUhly(0.000006, 0.000004));  // nearer than the last pair, but printed apart
    EXPECT_TRUE(RovneUhly(static_cast<double>(static_cast<float>(TRI_PI / 2)), TRI_PI / 2));
    EXPECT_TRUE(RovneUhly(static_cast<double>(static_cast<float>(PI)), PI));
}

}  // namespace
}  // namespace rysovna
