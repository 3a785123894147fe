#include "engine/PametovaPlocha.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

namespace rysovna {
namespace {

TEST(PametovaPlocha, SloupecCteTotezCoPoint) {
    PametovaPlocha plocha(20, 30);
    std::mt19937 stroj(6);
    for (int i = 0; i < 200; ++i) {
        plocha.PSet(static_cast<int>(stroj() % 20), static_cast<int>(stroj() % 30), 0xFFFFFE);
    }
    std::array<std::uint8_t, 50> body{};
    for (int x = -2; x < 23; ++x) {
        for (int y = -60; y < 40; y += 7) {
            plocha.Sloupec(x, y, body);
            for (int i = 0; i < 50; ++i) {
                ASSERT_EQ(body[static_cast<std::size_t>(i)], plocha.Point(x, y + i) != BILA);
            }
        }
    }
    EXPECT_EQ(plocha.Point(20, 0), BEZ_BARVY);
    EXPECT_EQ(plocha.Point(0, -1), BEZ_BARVY);
}

TEST(PametovaPlocha, KopieSeMichaAOrezava) {
    PametovaPlocha cil(4, 1), zdroj(4, 1);
    const auto radek = [](const PametovaPlocha& p) {
        return std::array{p.Point(0, 0), p.Point(1, 0), p.Point(2, 0), p.Point(3, 0)};
    };
    for (int x = 0; x < 4; ++x) {
        cil.PSet(x, 0, 0x0F0F0F);
        zdroj.PSet(x, 0, 0x030201 * (x + 1));
    }
    PametovaPlocha kam = cil;
    EXPECT_TRUE(kam.BitBlt(-1, 0, 3, 5, zdroj, 0, 0, Rop::SrcCopy));
    EXPECT_EQ(radek(kam), (std::array{0x060402, 0x090603, 0x0F0F0F, 0x0F0F0F}));
    kam = cil;
    kam.BitBlt(2, 0, 9, 9, zdroj, 3, 0, Rop::SrcAnd);
    EXPECT_EQ(radek(kam), (std::array{0x0F0F0F, 0x0F0F0F, 0x0C0804, 0x0F0F0F}));
    kam.BitBlt(0, 0, 1, 1, zdroj, 3, 0, Rop::SrcPaint);
    EXPECT_EQ(kam.Point(0, 0), 0x0F0F0F);
    zdroj.BitBlt(1, 0, 3, 1, zdroj, 0, 0, Rop::SrcCopy);  // onto itself, overlapping
    EXPECT_EQ(radek(zdroj), (std::array{0x030201, 0x030201, 0x060402, 0x090603}));
    kam.InvertRect(1, -3, 2, 9);
    EXPECT_EQ(radek(kam), (std::array{0x0F0F0F, 0xF0F0F0, 0xF3F7FB, 0x0F0F0F}));
}

TEST(PametovaPlocha, JedenBit) {
    PametovaPlocha barevna(3, 1);
    const auto maska = barevna.CreateMonoBitmap(3, 1);
    EXPECT_EQ(maska->Point(0, 0), CERNA);
    barevna.PSet(1, 0, CERVENA);
    barevna.BkColor = CERVENA;
    maska->BitBlt(0, 0, 3, 1, barevna, 0, 0, Rop::SrcCopy);
    EXPECT_EQ(maska->Point(0, 0), CERNA);
    EXPECT_EQ(maska->Point(1, 0), BILA);
    maska->InvertRect(0, 0, 3, 1);
    EXPECT_EQ(maska->Point(1, 0), CERNA);
    barevna.BitBlt(0, 0, 3, 1, *maska, 0, 0, Rop::SrcCopy);
    EXPECT_EQ(barevna.Point(0, 0), BILA);
    EXPECT_EQ(barevna.Point(1, 0), CERNA);
    EXPECT_EQ(barevna.CreateMonoBitmap(0, 5), nullptr);
    EXPECT_EQ(barevna.CreateCompatibleBitmap(5, -1), nullptr);
}

TEST(PametovaPlocha, TextZabiraBlokNaZnak) {
    PametovaPlocha plocha(40, 20);
    plocha.CurrentX = 2.5F;
    plocha.CurrentY = 3;
    plocha.Print("Ř a");
    int cernych = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 40; ++x) cernych += plocha.Point(x, y) == CERNA;
    }
    EXPECT_EQ(cernych, 2 * PametovaPlocha::SIRKA_ZNAKU * PametovaPlocha::VYSKA_ZNAKU);
    EXPECT_EQ(plocha.Point(2, 3), CERNA);
    EXPECT_EQ(plocha.Point(8, 3), BILA);
    EXPECT_EQ(plocha.Point(19, 10), CERNA);
    EXPECT_EQ(plocha.Point(20, 10), BILA);
    plocha.Cls();
    EXPECT_EQ(plocha.CurrentX, 0);
    EXPECT_EQ(plocha.Point(2, 3), BILA);
}

}  // namespace
}  // namespace rysovna
