#include "engine/Kopirovani.h"

#include <gtest/gtest.h>
#include <random>

#include "engine/PametovaPlocha.h"

namespace rysovna {
namespace {

TEST(Kopirovani, KopieSeUsetriJenKdyzSeMezitimNekreslilo) {
    PametovaPlocha zdroj(40, 40), cil(40, 40);
    const auto zkopiruj = [&] { return cil.BitBlt(0, 0, 40, 40, zdroj, 0, 0, Rop::SrcCopy); };
    using Kresba = void (*)(PametovaPlocha&);
    for (const Kresba kresli :
         {Kresba([](PametovaPlocha& p) { p.Line(0, 3, 9, 9); }),
          Kresba([](PametovaPlocha& p) { p.Circle(20, 20, 7); }),
          Kresba([](PametovaPlocha& p) { p.Print("A"); }),
          Kresba([](PametovaPlocha& p) { p.InvertRect(5, 5, 9, 9); }),
          Kresba([](PametovaPlocha& p) { p.PSet(3, 30, CERVENA); }), Kresba([](PametovaPlocha& p) {
              p.BitBlt(4, 4, 9, 9, PametovaPlocha(9, 9, true), 0, 0, Rop::SrcCopy);
          }),
          Kresba([](PametovaPlocha& p) { p.Cls(); })}) {
        for (PametovaPlocha* kdo : {&zdroj, &cil}) {
            zdroj.Cls();
            zdroj.Line(0, 0, 39, 39);
            ASSERT_TRUE(zkopiruj());
            kresli(*kdo);
            EXPECT_FALSE(cil.StejnyObraz(zdroj));
            ASSERT_TRUE(zkopiruj());
            EXPECT_TRUE(cil.StejnyObraz(zdroj));
        }
    }
}

TEST(Kopirovani, PruhlednaKopieVynechaKlicovouBarvu) {
    constexpr int W = 30, H = 20;
    std::mt19937 stroj(5);
    PametovaPlocha zdroj(40, 40), pozadi(40, 40), cil(40, 40), maska(40, 40, true);
    for (int i = 0; i < 1600; ++i) {
        const auto nahodna = [&] { return static_cast<Barva>(stroj() & 0xFFFFFF); };
        const Barva vyber[] = {PURPUROVA, CERNA, BILA, nahodna()};
        zdroj.PSet(i % 40, i / 40, vyber[stroj() % 4]);
        pozadi.PSet(i % 40, i / 40, nahodna());
    }
    zdroj.BkColor = CERVENA;
    ASSERT_TRUE(ProhledneKopirovani(zdroj, W, H, PURPUROVA, pozadi, cil));
    ASSERT_TRUE(VytvorMasku(zdroj, 40, 40, maska, PURPUROVA));
    EXPECT_EQ(zdroj.BkColor, CERVENA);
    for (int i = 0; i < 1600; ++i) {
        const int x = i % 40, y = i / 40;
        const bool klic = zdroj.Point(x, y) == PURPUROVA;
        const Barva uvnitr = (klic ? pozadi : zdroj).Point(x, y);
        ASSERT_EQ(cil.Point(x, y), x < W && y < H ? uvnitr : BILA) << x << ", " << y;
        ASSERT_EQ(maska.Point(x, y), klic ? BILA : CERNA) << x << ", " << y;
    }
    EXPECT_FALSE(ProhledneKopirovani(zdroj, 0, H, PURPUROVA, pozadi, cil));
}

}  // namespace
}  // namespace rysovna
