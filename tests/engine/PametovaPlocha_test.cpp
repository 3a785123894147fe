#include "engine/PametovaPlocha.h"

#include <array>
#include <gtest/gtest.h>

namespace rysovna {
namespace {

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
    zdroj.BitBlt(1, 0, 3, 1, zdroj, 0, 0, Rop::SrcCopy);  // onto itself, overlapping
    EXPECT_EQ(radek(zdroj), (std::array{0x030201, 0x030201, 0x060402, 0x090603}));
    kam.InvertRect(1, -3, 2, 9);
    EXPECT_EQ(radek(kam), (std::array{0x0F0F0F, 0xF0F0F0, 0xF3F7FB, 0x0F0F0F}));
    EXPECT_EQ(kam.Point(4, 0), BEZ_BARVY);
    EXPECT_EQ(kam.Point(0, -1), BEZ_BARVY);
}

}  // namespace
}  // namespace rysovna
