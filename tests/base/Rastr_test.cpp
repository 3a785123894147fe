#include "base/Rastr.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace rysovna {
namespace {

using Pixely = std::map<std::pair<int, int>, int>;  ///< how many times each was put

constexpr Obdelnik VSUDE{-2000, -2000, 4000, 4000};

auto Pridavac(Pixely& pixely) {
    return [&pixely](const Obdelnik& o) {
        for (int i = 0; i < o.Width * o.Height; ++i)
            ++pixely[{o.Left + i % o.Width, o.Top + i / o.Width}];
    };
}

Pixely Usecka(double x1, double y1, double x2, double y2, const Obdelnik& meze = VSUDE,
              int pero = 1) {
    Pixely pixely;
    RastrUsecka(x1, y1, x2, y2, pero, meze, Pridavac(pixely));
    return pixely;
}

Pixely Kruznice(double x, double y, double r, const Obdelnik& meze = VSUDE, int pero = 1) {
    Pixely pixely;
    RastrKruznice(x, y, r, pero, meze, Pridavac(pixely));
    return pixely;
}

TEST(Rastr, UseckaJeTenkaPresnaAStejnaOdObouKoncu) {
    std::mt19937 stroj(1);
    for (int kolo = 0; kolo < 2000; ++kolo) {
        const auto c = [&] { return static_cast<int>(stroj() % 80) - 40; };
        const int x1 = c(), y1 = c(), x2 = c(), y2 = c();
        const Pixely pixely = Usecka(x1, y1, x2, y2);
        ASSERT_EQ(pixely, Usecka(x2, y2, x1, y1));
        ASSERT_TRUE(pixely.contains({x1, y1}) && pixely.contains({x2, y2}));
        const int delka = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
        ASSERT_EQ(pixely.size(), static_cast<std::size_t>(delka) + 1);
        for (const auto& [pixel, kolikrat] : pixely) {
            ASSERT_EQ(kolikrat, 1);
            // Deviation across the line, in steps of the longer axis, is at most half a pixel.
            const int plocha = (pixel.first - x1) * (y2 - y1) - (pixel.second - y1) * (x2 - x1);
            ASSERT_LE(2 * std::abs(plocha), delka);
        }
    }
}

TEST(Rastr, ZaokrouhleneKonceAPera) {
    EXPECT_EQ(Usecka(2.5, 0, 4.49, 0.51, VSUDE, 0),
              (Pixely{{{2, 0}, 1}, {{3, 1}, 1}, {{4, 1}, 1}}));
    EXPECT_EQ(Usecka(5, 5, 5, 5, VSUDE, 2),
              (Pixely{{{4, 4}, 1}, {{5, 4}, 1}, {{4, 5}, 1}, {{5, 5}, 1}}));
    EXPECT_EQ(Usecka(0, 0, 9, 0, VSUDE, 3).size(), 12U * 3U);
}

TEST(Rastr, OrezNezmeniPixely) {
    std::mt19937 stroj(2);
    const Obdelnik meze{-7, 3, 50, 40};
    const auto orez = [&meze](Pixely pixely) {
        std::erase_if(pixely,
                      [&](const auto& p) { return !meze.Obsahuje(p.first.first, p.first.second); });
        return pixely;
    };
    for (int kolo = 0; kolo < 400; ++kolo) {
        const auto c = [&] { return static_cast<int>(stroj() % 3000) - 1500; };
        const int pero = 1 + kolo % 3, x = c(), y = c(), x2 = c(), y2 = c(), r = std::abs(c()) / 5;
        ASSERT_EQ(Usecka(x, y, x2, y2, meze, pero), orez(Usecka(x, y, x2, y2, VSUDE, pero)));
        ASSERT_EQ(Kruznice(x / 10, y / 10, r, meze, pero),
                  orez(Kruznice(x / 10, y / 10, r, VSUDE, pero)));
    }
}

TEST(Rastr, DlouhaUseckaNeuteceAniNepretece) {
    const Obdelnik plocha{0, 0, 384, 335};
    EXPECT_EQ(Usecka(-2e9, -2e9, 2e9, 2e9, plocha), Usecka(0, 0, 334, 334));
    // 1 in 1000 from (0, 0) through (100, 100000), extended a thousand times either way.
    EXPECT_TRUE(Usecka(-1e5, -1e8, 1e5, 1e8, plocha).contains({0, 334}));
    EXPECT_TRUE(Usecka(-2e9, 400, 2e9, 400, plocha).empty());
}

TEST(Rastr, KruzniceJeSoumernaSouvislaATenka) {
    for (int r = 0; r <= 400; ++r) {
        const Pixely pixely = Kruznice(0, 0, r);
        ASSERT_TRUE(pixely.contains({r, 0}));
        for (const auto& [pixel, kolikrat] : pixely) {
            const auto [x, y] = pixel;
            ASSERT_EQ(kolikrat, 1) << r;
            ASSERT_TRUE(pixely.contains({-x, y}) && pixely.contains({y, x})) << r;
            ASSERT_LE(std::abs(std::hypot(x, y) - r), 0.5) << r;
            int sousedu = -1;
            for (int i = 0; i < 9; ++i) sousedu += pixely.contains({x + i % 3 - 1, y + i / 3 - 1});
            // A closed curve one pixel thick: each pixel touches the one before and the one after.
            ASSERT_EQ(sousedu, r == 0 ? 0 : 2) << "r " << r << " at " << x << ", " << y;
        }
    }
    EXPECT_TRUE(Kruznice(0, 0, -1).empty());
}

}  // namespace
}  // namespace rysovna
