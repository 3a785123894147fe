#include "base/Rastr.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

namespace rysovna {
namespace {

using Pixel = std::pair<int, int>;
using Pixely = std::map<Pixel, int>;  ///< how many times each was put

constexpr Obdelnik VSUDE{-2000, -2000, 4000, 4000};

Pixely Usecka(double x1, double y1, double x2, double y2, const Obdelnik& meze = VSUDE,
              int pero = 1) {
    Pixely pixely;
    RastrUsecka(x1, y1, x2, y2, pero, meze, [&](int x, int y) { ++pixely[{x, y}]; });
    return pixely;
}

Pixely Kruznice(double x, double y, double r, const Obdelnik& meze = VSUDE, int pero = 1) {
    Pixely pixely;
    RastrKruznice(x, y, r, pero, meze, [&](int px, int py) { ++pixely[{px, py}]; });
    return pixely;
}

Pixely Orez(const Pixely& pixely, const Obdelnik& meze) {
    Pixely orezane;
    for (const auto& [pixel, kolikrat] : pixely) {
        if (meze.Obsahuje(pixel.first, pixel.second)) orezane[pixel] = kolikrat;
    }
    return orezane;
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

TEST(Rastr, KonceSeZaokrouhliKSudemu) {
    EXPECT_EQ(Usecka(0.5, 1.5, 0.5, 1.5), (Pixely{{{0, 2}, 1}}));
    EXPECT_EQ(Usecka(2.5, 0, 4.49, 0), (Pixely{{{2, 0}, 1}, {{3, 0}, 1}, {{4, 0}, 1}}));
}

TEST(Rastr, OrezNezmeniPixely) {
    std::mt19937 stroj(2);
    const Obdelnik meze{-7, 3, 50, 40};
    for (int kolo = 0; kolo < 400; ++kolo) {
        const auto c = [&] { return static_cast<int>(stroj() % 3000) - 1500; };
        const int pero = 1 + kolo % 3;
        const int x1 = c(), y1 = c(), x2 = c(), y2 = c();
        ASSERT_EQ(Usecka(x1, y1, x2, y2, meze, pero),
                  Orez(Usecka(x1, y1, x2, y2, VSUDE, pero), meze));
        const int r = static_cast<int>(stroj() % 300);
        ASSERT_EQ(Kruznice(x1 / 10, y1 / 10, r, meze, pero),
                  Orez(Kruznice(x1 / 10, y1 / 10, r, VSUDE, pero), meze));
    }
}

TEST(Rastr, DlouhaUseckaNeuteceAniNepretece) {
    const Obdelnik plocha{0, 0, 384, 335};
    const Pixely uhlopricka = Usecka(-2e9, -2e9, 2e9, 2e9, plocha);
    EXPECT_EQ(uhlopricka.size(), 335U);
    for (const auto& [pixel, kolikrat] : uhlopricka) EXPECT_EQ(pixel.first, pixel.second);
    // 1 in 1000 from (0, 0) through (100, 100000), extended a thousand times either way.
    const Pixely strma = Usecka(-1e5, -1e8, 1e5, 1e8, plocha);
    EXPECT_EQ(strma.size(), 335U);
    EXPECT_TRUE(strma.contains({0, 334}));
    EXPECT_TRUE(Usecka(-2e9, 400, 2e9, 400, plocha).empty());
    EXPECT_TRUE(Usecka(-2e9, 10, -1, 10, plocha).empty());
}

TEST(Rastr, KruzniceJeSoumernaSouvislaATenka) {
    for (int r = 0; r <= 400; ++r) {
        const Pixely pixely = Kruznice(0, 0, r);
        for (const auto& [pixel, kolikrat] : pixely) {
            const auto [x, y] = pixel;
            ASSERT_EQ(kolikrat, 1) << r;
            ASSERT_TRUE(pixely.contains({-x, y}) && pixely.contains({x, -y}) &&
                        pixely.contains({y, x}))
                << r;
            ASSERT_LE(std::abs(std::hypot(x, y) - r), 0.5) << r;
            int sousedu = 0;
            for (int dx = -1; dx <= 1; ++dx) {
                for (int dy = -1; dy <= 1; ++dy) {
                    if (dx != 0 || dy != 0) sousedu += pixely.contains({x + dx, y + dy});
                }
            }
            // A closed curve one pixel thick: each pixel touches the one before and the one after.
            ASSERT_EQ(sousedu, r == 0 ? 0 : 2) << "r " << r << " at " << x << ", " << y;
        }
        ASSERT_TRUE(pixely.contains({r, 0}));
    }
    EXPECT_TRUE(Kruznice(0, 0, -1).empty());
    EXPECT_EQ(Kruznice(5, 6, 0), (Pixely{{{5, 6}, 1}}));
}

TEST(Rastr, SirokePeroJeCtverec) {
    const auto mista = [](const Pixely& pixely) {
        std::set<Pixel> mnozina;
        for (const auto& [pixel, kolikrat] : pixely) mnozina.insert(pixel);
        return mnozina;
    };
    EXPECT_EQ(mista(Usecka(5, 5, 5, 5, VSUDE, 2)),
              (std::set<Pixel>{{4, 4}, {5, 4}, {4, 5}, {5, 5}}));
    EXPECT_EQ(mista(Usecka(0, 0, 9, 0, VSUDE, 3)).size(), 12U * 3U);
    EXPECT_EQ(mista(Usecka(0, 0, 3, 0, VSUDE, 0)).size(), 4U);
}

}  // namespace
}  // namespace rysovna
