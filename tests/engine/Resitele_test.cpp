#include "engine/Resitele.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "base/Cisla.h"
#include "engine/PametovaPlocha.h"
#include "engine/Tabulky.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"

namespace rysovna {

namespace {

using testy::SIRKA_PLOCHY;
using testy::VYSKA_PLOCHY;

class Resitele : public testing::Test {
protected:
    PametovaPlocha plocha{SIRKA_PLOCHY, VYSKA_PLOCHY};
    std::mt19937 stroj{1};
    Bod out1{1, 1}, out2{2, 2};  ///< outputs must be written in any case

    Bod NahodnyBod() {
        return {static_cast<int>(stroj() % SIRKA_PLOCHY), static_cast<int>(stroj() % VYSKA_PLOCHY)};
    }
};

double Vzdalenost(Bod a, Bod b) {
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

TEST_F(Resitele, ArccosAZnamenko) {
    EXPECT_EQ(Arccos(1), 0);
    EXPECT_EQ(Arccos(-1), 0);
    EXPECT_EQ(Arccos(2), BEZ);
    for (double x = -0.99; x < 1; x += 0.09) EXPECT_NEAR(Arccos(x), std::acos(x), 1e-12);
    EXPECT_TRUE(StejneZnamenko(1, 2));
    EXPECT_TRUE(StejneZnamenko(-1, -2));
    EXPECT_FALSE(StejneZnamenko(0, 0));
    EXPECT_FALSE(StejneZnamenko(0, 1));
    EXPECT_FALSE(StejneZnamenko(-1, 1));
}

TEST_F(Resitele, SmerJeProtiRucickamANepretoci) {
    const Bod stred{100, 100};
    EXPECT_EQ(Smer(stred, {110, 100}, 9), 0.0F);
    EXPECT_EQ(Smer(stred, {90, 100}, 9), static_cast<float>(PI));
    EXPECT_EQ(Smer(stred, stred, 1.25F), 1.25F);
    for (int stupen = 1; stupen < 360; ++stupen) {
        const double uhel = stupen * PI / 180;
        const Bod k{100 + Zaokrouhli(1000 * std::cos(uhel)),
                    100 - Zaokrouhli(1000 * std::sin(uhel))};
        const float smer = Smer(stred, k, 0);
        EXPECT_NEAR(smer, uhel, 1e-3) << stupen;
        EXPECT_LT(smer, static_cast<float>(DVE_PI));
    }
}

TEST_F(Resitele, DelkaSeUrizneNaJednoMisto) {
    const std::pair<double, double> pripady[] = {{80, 10},    {100, 12.5}, {101, 12.6},  {0, 0},
                                                 {7.99, 0.9}, {96, 12},    {95.99, 11.9}};
    for (const auto& [px, cm] : pripady) EXPECT_DOUBLE_EQ(DelkaVCm(px), cm) << px;
}

TEST_F(Resitele, PolarniBodRosteNahoru) {
    PolarniBod({100, 100}, 50, static_cast<float>(PI / 2), out1, out2);
    EXPECT_EQ(out1, (Bod{100, 50}));
    EXPECT_EQ(out2, BEZ_BODU);
    PolarniBod({100, 100}, 2.5F, 0, out1, out2);
    EXPECT_EQ(out1, (Bod{102, 100}));
}

TEST_F(Resitele, PrunikKruznic) {
    const struct {
        const char* co;
        Bod C1;
        float r1;
        Bod C2;
        float r2;
        Bod prvni, druhy;
    } pripady[] = {
        {"the one to the right of C1 to C2 first",
         {100, 200},
         50,
         {160, 200},
         50,
         {130, 240},
         {130, 160}},
        {"and from the other side", {160, 200}, 50, {100, 200}, 50, {130, 160}, {130, 240}},
        {"first candidate at X 20 gives way", {60, 100}, 50, {60, 160}, 50, {100, 130}, {20, 130}},
        {"at X 21 it stays", {61, 100}, 50, {61, 160}, 50, {21, 130}, {101, 130}},
        {"Y at the lower margin", {100, 275}, 50, {160, 275}, 50, {130, 235}, {130, 315}},
        {"gives way to a worse one", {-40, 160}, 50, {-40, 100}, 50, {-80, 130}, {0, 130}},
        {"touching", {100, 100}, 30, {150, 100}, 20, {130, 100}, {130, 100}},
        {"too far", {100, 100}, 20, {150, 100}, 20, BEZ_BODU, BEZ_BODU},
        {"one in the other", {100, 100}, 90, {110, 100}, 20, BEZ_BODU, BEZ_BODU},
        {"same centre", {100, 100}, 20, {100, 100}, 20, BEZ_BODU, BEZ_BODU},
    };
    for (const auto& p : pripady) {
        PrunikKruznic(plocha, p.C1, p.r1, p.C2, p.r2, out1, out2);
        EXPECT_EQ(out1, p.prvni) << p.co;
        EXPECT_EQ(out2, p.druhy) << p.co;
    }
}

TEST_F(Resitele, PrunikPrimek) {
    const struct {
        const char* co;
        Bod P1, P2, P3, P4, ocekavany;
    } pripady[] = {
        {"half a pixel on and 0.2", {0, 100}, {200, 100}, {50, 0}, {50, 200}, {51, 100}},
        {"half a pixel back and 0.2", {200, 100}, {0, 100}, {50, 0}, {50, 200}, {50, 100}},
        {"parallel", {0, 0}, {10, 10}, {5, 0}, {15, 10}, BEZ_BODU},
        {"a point for a line", {5, 5}, {5, 5}, {5, 0}, {15, 10}, BEZ_BODU},
        {"X 799", {0, 0}, {200, 0}, {799, -9}, {799, 9}, {800, 0}},
        {"X 801", {0, 0}, {200, 0}, {801, -9}, {801, 9}, BEZ_BODU},
        {"Y -801", {0, 0}, {0, 9}, {-9, -801}, {9, -801}, BEZ_BODU},
        {"X of both first points", {50, 10}, {50, 100}, {50, 200}, {100, 200}, BEZ_BODU},
        {"X of one first point", {50, 10}, {50, 100}, {100, 200}, {50, 200}, {50, 201}},
    };
    for (const auto& p : pripady) {
        out2 = {2, 2};
        PrunikPrimek(p.P1, p.P2, p.P3, p.P4, out1, out2);
        EXPECT_EQ(out1, p.ocekavany) << p.co;
        EXPECT_EQ(out2, BEZ_BODU) << p.co;
    }
}

TEST_F(Resitele, PrunikPrimekJeNejvysPixelVedle) {
    int nalezeno = 0;
    for (int kolo = 0; kolo < 3000; ++kolo) {
        const Bod X = NahodnyBod(), P1 = NahodnyBod(), P3 = NahodnyBod();
        // Both lines go through X; the second points lie on its other side.
        PrunikPrimek(P1, {2 * X.X - P1.X, 2 * X.Y - P1.Y}, P3, {2 * X.X - P3.X, 2 * X.Y - P3.Y},
                     out1, out2);
        if (out1 == BEZ_BODU) continue;
        ++nalezeno;
        ASSERT_LE(std::abs(out1.X - X.X), 1);
        ASSERT_LE(std::abs(out1.Y - X.Y), 1);
    }
    EXPECT_GT(nalezeno, 2900);
}

TEST_F(Resitele, PrunikPrimkyAKruzniceRadiASvislaZustaneUStredu) {
    const Bod C{100, 100};
    const auto oba = [&](Bod P1, Bod P2) {
        PrunikPrimkyKruznice(C, 50, P1, P2, {0, 0}, {1, 1}, out1, out2);
    };
    oba({0, 100}, {20, 100});
    EXPECT_EQ(out1, (Bod{150, 100}));
    EXPECT_EQ(out2, (Bod{50, 100}));
    oba({20, 100}, {0, 100});
    EXPECT_EQ(out1, (Bod{50, 100}));
    EXPECT_EQ(out2, (Bod{150, 100}));
    oba({0, 151}, {20, 151});
    EXPECT_EQ(out1, BEZ_BODU);
    EXPECT_EQ(out2, BEZ_BODU);
    oba({100, 100}, {100, 20});
    EXPECT_NEAR(out1.X, 100, 1);
    EXPECT_NEAR(out2.X, 100, 1);
    EXPECT_EQ(out1.Y, 50);
    EXPECT_EQ(out2.Y, 150);
    // Each coordinate goes down, also left of and above the centre: 45 degrees, 35.36.
    oba({90, 90}, {110, 110});
    EXPECT_EQ(out1, (Bod{135, 135}));
    EXPECT_EQ(out2, (Bod{64, 64}));
}

TEST_F(Resitele, TecnaMaReseniJenNaPrimce) {
    PrunikPrimkyKruznice({100, 100}, 50, {0, 150}, {20, 150}, {}, {}, out1, out2);
    EXPECT_EQ(out1, (Bod{100, 150}));
    EXPECT_EQ(out2, (Bod{100, 150}));
    PrunikPrimkyKruzniceVPlose(plocha, {100, 100}, 50, {0, 150}, {20, 150}, {}, {}, out1, out2);
    EXPECT_EQ(out1, BEZ_BODU);
    EXPECT_EQ(out2, BEZ_BODU);
}

TEST_F(Resitele, VPloseDavaPrednostPravemuUvnitr) {
    const struct {
        int stred;
        Bod prvni, druhy;
    } pripady[] = {{10, {60, 100}, {-40, 100}},
                   {333, {383, 100}, {283, 100}},
                   {334, {284, 100}, {384, 100}},
                   {-50, {-100, 100}, {0, 100}}};
    for (const auto& p : pripady) {
        for (const Bod P2 : {Bod{20, 100}, Bod{-20, 100}}) {
            PrunikPrimkyKruzniceVPlose(plocha, {p.stred, 100}, 50, {0, 100}, P2, {}, {}, out1,
                                       out2);
            EXPECT_EQ(out1, p.prvni) << p.stred;
            EXPECT_EQ(out2, p.druhy) << p.stred;
        }
    }
}

TEST_F(Resitele, BodyPrunikuLeziNaObouUtvarech) {
    for (int kolo = 0; kolo < 3000; ++kolo) {
        const Bod C = NahodnyBod(), P1 = NahodnyBod(), P2 = NahodnyBod();
        const auto r = static_cast<float>(20 + stroj() % 150);
        // Away from the upright, where the slope's addend outweighs the line itself.
        if (std::abs(P1.X - P2.X) < 20) continue;
        PrunikPrimkyKruznice(C, r, P1, P2, {}, {}, out1, out2);
        for (const Bod bod : {out1, out2}) {
            if (bod == BEZ_BODU) continue;
            ASSERT_NEAR(Vzdalenost(bod, C), static_cast<double>(r), 1.5);
            const double odchylka = (static_cast<double>(bod.X) - P1.X) * (P2.Y - P1.Y) -
                                    (static_cast<double>(bod.Y) - P1.Y) * (P2.X - P1.X);
            ASSERT_LE(std::abs(odchylka) / Vzdalenost(P1, P2), 1.6);
        }
    }
}

TEST_F(Resitele, FiltrPaprsku) {
    const Bod P{100, 100}, Q{120, 80};  // to the right and up
    const Bod vpredu{150, 50}, dal{160, 40}, vzadu{50, 150}, vodorovne{150, 100};
    const struct {
        const char* co;
        Bod Q, S1, S2, prvni, druhy;
    } pripady[] = {
        {"both ahead", Q, vpredu, dal, vpredu, dal},
        {"second behind", Q, vpredu, vzadu, vpredu, BEZ_BODU},
        {"first behind", Q, vzadu, vpredu, vpredu, BEZ_BODU},
        {"both behind", Q, vzadu, vzadu, BEZ_BODU, BEZ_BODU},
        {"level, ray is not", Q, vodorovne, vpredu, vpredu, BEZ_BODU},
        {"level like the ray", {110, 100}, vodorovne, vpredu, vodorovne, BEZ_BODU},
        {"first behind, no second", Q, vzadu, BEZ_BODU, BEZ_BODU, BEZ_BODU},
        {"none: the second is left alone", Q, BEZ_BODU, vzadu, BEZ_BODU, vzadu},
        {"half a sentinel counts as off the ray", Q, {150, BEZ}, vpredu, {150, BEZ}, vpredu},
    };
    for (const auto& p : pripady) {
        out1 = p.S1;
        out2 = p.S2;
        FiltrPaprsku(P, p.Q, out1, out2);
        EXPECT_EQ(out1, p.prvni) << p.co;
        EXPECT_EQ(out2, p.druhy) << p.co;
    }
}

}  // namespace
}  // namespace rysovna
