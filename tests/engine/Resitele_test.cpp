#include "engine/Resitele.h"

#include <cmath>
#include <gtest/gtest.h>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"

namespace rysovna {
namespace {

using namespace testy;

class Resitele : public testing::Test {
protected:
    PametovaPlocha plocha{SIRKA_PLOCHY, VYSKA_PLOCHY};
    Bod out1{1, 1}, out2{2, 2};  ///< outputs must be written in any case

    void Ceka(Bod prvni, Bod druhy, const char* co) {
        EXPECT_EQ(std::exchange(out1, {1, 1}), prvni) << co;
        EXPECT_EQ(std::exchange(out2, {2, 2}), druhy) << co;
    }
};

TEST_F(Resitele, UhlyDelkyAPolarniBod) {
    const std::pair<double, double> meze[] = {{1, 0}, {-1, 0}, {2, BEZ}};
    for (const auto& [x, uhel] : meze) EXPECT_EQ(Arccos(x), uhel) << x;
    const Bod stred{100, 100};
    EXPECT_EQ(Smer(stred, {90, 100}, 9), static_cast<float>(PI));
    EXPECT_EQ(Smer(stred, stred, 1.25F), 1.25F);
    for (int stupen = 0; stupen < 360; ++stupen) {
        const double uhel = stupen * PI / 180;
        const Bod k{100 + Zaokrouhli(1000 * std::cos(uhel)),
                    100 - Zaokrouhli(1000 * std::sin(uhel))};
        EXPECT_NEAR(Smer(stred, k, 9), uhel, 1e-3) << stupen;
    }
    PolarniBod(stred, 50, static_cast<float>(PI / 2), out1, out2);
    Ceka({100, 50}, BEZ_BODU, "up");
    PolarniBod(stred, 2.5F, 0, out1, out2);
    Ceka({102, 100}, BEZ_BODU, "half to the even pixel");
}

TEST_F(Resitele, RovneUhlyNaPetMist) {
    EXPECT_FALSE(RovneUhly(0.000006, 0));
    EXPECT_FALSE(RovneUhly(0.000006, 0.000004));  // nearer than the last pair, but printed apart
    EXPECT_TRUE(RovneUhly(static_cast<double>(static_cast<float>(TRI_PI / 2)), TRI_PI / 2));
}

TEST_F(Resitele, PrunikKruznic) {
    const std::tuple<const char*, Bod, float, Bod, float, Bod, Bod> pripady[] = {
        {"right of C1 to C2", {100, 200}, 50, {160, 200}, 50, {130, 240}, {130, 160}},
        {"from the other side", {160, 200}, 50, {100, 200}, 50, {130, 160}, {130, 240}},
        {"X 20 gives way", {60, 100}, 50, {60, 160}, 50, {100, 130}, {20, 130}},
        {"X 21 stays", {61, 100}, 50, {61, 160}, 50, {21, 130}, {101, 130}},
        {"gives way to a worse one", {-40, 160}, 50, {-40, 100}, 50, {-80, 130}, {0, 130}},
        {"too far", {100, 100}, 20, {150, 100}, 20, BEZ_BODU, BEZ_BODU},
        {"same centre", {100, 100}, 20, {100, 100}, 20, BEZ_BODU, BEZ_BODU},
    };
    for (const auto& [co, C1, r1, C2, r2, prvni, druhy] : pripady) {
        PrunikKruznic(plocha, C1, r1, C2, r2, out1, out2);
        Ceka(prvni, druhy, co);
    }
}

TEST_F(Resitele, PrunikPrimek) {
    const std::tuple<const char*, Bod, Bod, Bod, Bod, Bod> pripady[] = {
        {"half a pixel on and 0.2", {0, 100}, {200, 100}, {50, 0}, {50, 200}, {51, 100}},
        {"half a pixel back and 0.2", {200, 100}, {0, 100}, {50, 0}, {50, 200}, {50, 100}},
        {"parallel", {0, 0}, {10, 10}, {5, 0}, {15, 10}, BEZ_BODU},
        {"X 799", {0, 0}, {200, 0}, {799, -9}, {799, 9}, {800, 0}},
        {"X 801", {0, 0}, {200, 0}, {801, -9}, {801, 9}, BEZ_BODU},
        {"X of both first points", {50, 10}, {50, 100}, {50, 200}, {100, 200}, BEZ_BODU},
        {"X of one first point", {50, 10}, {50, 100}, {100, 200}, {50, 200}, {50, 201}},
    };
    for (const auto& [co, P1, P2, P3, P4, ocekavany] : pripady) {
        PrunikPrimek(P1, P2, P3, P4, out1, out2);
        Ceka(ocekavany, BEZ_BODU, co);
    }
}

TEST_F(Resitele, PrunikPrimkyAKruznice) {
    // A circle of 50 px; in the plane, the right one inside goes first whichever way the line runs.
    constexpr bool KDEKOLI = false, V_PLOSE = true;
    const std::tuple<bool, const char*, int, Bod, Bod, Bod, Bod> pripady[] = {
        {KDEKOLI, "to the right", 100, {0, 100}, {20, 100}, {150, 100}, {50, 100}},
        {KDEKOLI, "to the left", 100, {20, 100}, {0, 100}, {50, 100}, {150, 100}},
        {KDEKOLI, "past", 100, {0, 151}, {20, 151}, BEZ_BODU, BEZ_BODU},
        {KDEKOLI, "touching", 100, {0, 150}, {20, 150}, {100, 150}, {100, 150}},
        {KDEKOLI, "upright", 100, {100, 100}, {100, 20}, {100, 50}, {99, 150}},
        // Each coordinate goes down, also left of and above the centre: 35.36 to 35, -35.36 to -36.
        {KDEKOLI, "aslant", 100, {90, 90}, {110, 110}, {135, 135}, {64, 64}},
        {V_PLOSE, "right one", 10, {20, 100}, {0, 100}, {60, 100}, {-40, 100}},
        {V_PLOSE, "at the edge", 333, {0, 100}, {20, 100}, {383, 100}, {283, 100}},
        {V_PLOSE, "beyond it", 334, {20, 100}, {0, 100}, {284, 100}, {384, 100}},
        {V_PLOSE, "both out", -50, {0, 100}, {20, 100}, {-100, 100}, {0, 100}},
        {V_PLOSE, "touching", 100, {0, 150}, {20, 150}, BEZ_BODU, BEZ_BODU},
    };
    for (const auto& [vPlose, co, x, P1, P2, prvni, druhy] : pripady) {
        PrunikPrimkyKruznice({x, 100}, 50, P1, P2, {}, {}, out1, out2);
        if (vPlose) PrunikPrimkyKruzniceVPlose(plocha, {x, 100}, 50, P1, P2, {}, {}, out1, out2);
        Ceka(prvni, druhy, co);
    }
}

TEST_F(Resitele, FiltrPaprsku) {
    const Bod P{100, 100}, Q{120, 80};  // to the right and up
    const Bod vpredu{150, 50}, dal{160, 40}, vzadu{50, 150}, vodorovne{150, 100};
    const std::tuple<const char*, Bod, Bod, Bod, Bod, Bod> pripady[] = {
        {"both ahead", Q, vpredu, dal, vpredu, dal},
        {"second behind", Q, vpredu, vzadu, vpredu, BEZ_BODU},
        {"first behind", Q, vzadu, vpredu, vpredu, BEZ_BODU},
        {"both behind", Q, vzadu, vzadu, BEZ_BODU, BEZ_BODU},
        {"level, ray is not", Q, vodorovne, vpredu, vpredu, BEZ_BODU},
        {"level like the ray", {110, 100}, vodorovne, vpredu, vodorovne, BEZ_BODU},
        {"none: the second is left alone", Q, BEZ_BODU, vzadu, BEZ_BODU, vzadu},
        {"half a sentinel counts as off the ray", Q, {150, BEZ}, vpredu, {150, BEZ}, vpredu},
    };
    for (const auto& [co, smer, S1, S2, prvni, druhy] : pripady) {
        out1 = S1;
        out2 = S2;
        FiltrPaprsku(P, smer, out1, out2);
        Ceka(prvni, druhy, co);
    }
}

}  // namespace
}  // namespace rysovna
