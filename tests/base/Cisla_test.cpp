#include "base/Cisla.h"

#include <cmath>
#include <gtest/gtest.h>

#include "base/Chyba.h"
#include "base/Nahoda.h"
#include "base/Tabulka.h"
#include "base/Text.h"

namespace rysovna {
namespace {

TEST(Cisla, PulkyJdouKSudemu) {
    const std::pair<double, int> pripady[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
                                              {-1.5, -2}, {-2.5, -2}, {2.49, 2}, {2.51, 3}};
    for (const auto& [x, cele] : pripady) EXPECT_EQ(Zaokrouhli(x), cele) << x;
    EXPECT_EQ(Podlaha(-0.1), -1);
    EXPECT_EQ(Podlaha(-3.0), -3);
    EXPECT_EQ(Podlaha(3.9), 3);
    EXPECT_EQ(Zaokrouhli(2147483647.0), 2147483647);
}

TEST(Cisla, CoSeNevejdeJeChyba) {
    EXPECT_THROW(Zaokrouhli(2147483648.0), BehovaChyba);
    EXPECT_THROW(Zaokrouhli(std::nan("")), BehovaChyba);
    EXPECT_THROW(Podlaha(-2147483649.0), BehovaChyba);
    EXPECT_EQ(Bajt(255.5 - 0.01), 255);
    EXPECT_EQ(Bajt(-0.5), 0);
    EXPECT_THROW(Bajt(255.5), BehovaChyba);
    EXPECT_THROW(Bajt(-1), BehovaChyba);
}

TEST(Cisla, TextNaCisloJeShovivavy) {
    const std::pair<const char*, double> pripady[] = {
        {"", 0},    {"12,5", 12}, {"12.5", 12.5}, {"  7 cm", 7},  {"-3", -3},
        {"abc", 0}, {"+4", 4},    {".5", 0.5},    {"1.2.3", 1.2}, {"-", 0},
    };
    for (const auto& [text, cislo] : pripady) EXPECT_EQ(Cislo(text), cislo) << text;
}

TEST(Cisla, CisloNaText) {
    EXPECT_EQ(TextCisla(0), " 0");
    EXPECT_EQ(TextCisla(-3), "-3");
    EXPECT_EQ(TextBezMezery(0), "0");
    EXPECT_EQ(DveCislice(1), "01");
    EXPECT_EQ(DveCislice(20), "20");
    const std::pair<double, const char*> cele[] = {
        {2.5, "3"}, {-2.5, "-3"}, {0.4, "0"}, {-0.4, "0"}, {12, "12"}};
    for (const auto& [x, text] : cele) EXPECT_EQ(FormatCele(x), text) << x;
    const std::pair<double, const char*> pet[] = {
        {0, ".00000"},      {0.000004, ".00000"}, {-0.000004, ".00000"}, {1.5, "1.50000"},
        {-0.25, "-.25000"}, {0.00001, ".00001"},  {10, "10.00000"}};
    for (const auto& [x, text] : pet) EXPECT_EQ(FormatPetMist(x), text) << x;
}

TEST(Text, PocitajiSeZnakyNeBajty) {
    EXPECT_EQ(PocetZnaku("Žluťoučký"), 9);
    EXPECT_EQ(Dopln("Žák", 5), "Žák  ");
    EXPECT_EQ(Dopln("Žákyně", 3), "Žákyně");
    EXPECT_EQ(ZeZnaku(DoZnaku("α β ⊥ 😀 Ř")), "α β ⊥ 😀 Ř");
    EXPECT_EQ(DoZnaku("a\xFF\xC5"), (std::u32string{U'a', 0xFFFD, 0xFFFD}));
    EXPECT_EQ(BezUvodnichMezer("   a b "), "a b ");
    EXPECT_EQ(BezUvodnichMezer("   "), "");
}

TEST(Tabulka, MimoMezeJeChybaUVolajiciho) {
    Tabulka<int, 3> tabulka;
    tabulka[0] = 1;
    tabulka[3] = 2;
    EXPECT_EQ(tabulka[3], 2);
    EXPECT_THROW(tabulka[-1], BehovaChyba);
    try {
        tabulka[4] = 1;
        FAIL() << "row 4 of 3 was given";
    } catch (const BehovaChyba& chyba) {
        EXPECT_NE(chyba.Kde().find("Cisla_test.cpp:"), std::string::npos) << chyba.Kde();
    }
    tabulka.Smaz();
    EXPECT_EQ(tabulka[3], 0);
}

TEST(Nahoda, RozsahAOpakovatelnost) {
    Nahoda prvni, druha;
    prvni.Zasej(7);
    druha.Zasej(7);
    bool nejmensi = false, nejvetsi = false;
    for (int i = 0; i < 2000; ++i) {
        const int cislo = prvni.D(6, 10);
        EXPECT_EQ(cislo, druha.D(6, 10));
        ASSERT_GE(cislo, 10);
        ASSERT_LE(cislo, 15);
        nejmensi = nejmensi || cislo == 10;
        nejvetsi = nejvetsi || cislo == 15;
    }
    EXPECT_TRUE(nejmensi && nejvetsi);
}

}  // namespace
}  // namespace rysovna
