#include "base/Cisla.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "base/Chyba.h"
#include "base/Nahoda.h"
#include "base/Tabulka.h"
#include "base/Text.h"

namespace rysovna {
namespace {

TEST(Cisla, PulkyJdouKSudemuACoSeNevejdeJeChyba) {
    const std::pair<double, int> pripady[] = {
        {0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
        {-1.5, -2}, {-2.5, -2}, {2.51, 3}, {2147483647.0, 2147483647}};
    for (const auto& [x, cele] : pripady) EXPECT_EQ(Zaokrouhli(x), cele) << x;
    EXPECT_THROW(Zaokrouhli(2147483648.0), BehovaChyba);
    EXPECT_THROW(Zaokrouhli(std::nan("")), BehovaChyba);
    EXPECT_EQ(Podlaha(-0.1), -1);
    EXPECT_THROW(Podlaha(-2147483649.0), BehovaChyba);
    EXPECT_EQ(Bajt(255.49), 255);
    EXPECT_THROW(Bajt(255.5), BehovaChyba);
}

TEST(Cisla, TextNaCisloAZpet) {
    const std::pair<const char*, double> cteni[] = {
        {"", 0},    {"12,5", 12}, {"12.5", 12.5}, {"  7 cm", 7},  {"-3", -3},
        {"abc", 0}, {"+4", 4},    {".5", 0.5},    {"1.2.3", 1.2}, {"-", 0},
    };
    for (const auto& [text, cislo] : cteni) EXPECT_EQ(Cislo(text), cislo) << text;
    EXPECT_EQ(TextCisla(0) + TextCisla(-3) + TextBezMezery(0) + DveCislice(1), " 0-3001");
    const std::pair<double, const char*> cele[] = {
        {2.5, "3"}, {-2.5, "-3"}, {0.4, "0"}, {-0.4, "0"}, {12, "12"}};
    for (const auto& [x, text] : cele) EXPECT_EQ(FormatCele(x), text) << x;
    const std::pair<double, const char*> pet[] = {
        {0, ".00000"},      {0.000004, ".00000"}, {-0.000004, ".00000"}, {1.5, "1.50000"},
        {-0.25, "-.25000"}, {0.00001, ".00001"},  {10, "10.00000"}};
    for (const auto& [x, text] : pet) EXPECT_EQ(FormatPetMist(x), text) << x;
}

TEST(Text, PocitajiSeZnakyNeBajty) {
    EXPECT_EQ(Dopln("Žák", 5) + Dopln("Žákyně", 3), "Žák  Žákyně");
    EXPECT_EQ(ZeZnaku(DoZnaku("α β ⊥ 😀 Ř")), "α β ⊥ 😀 Ř");
    EXPECT_EQ(DoZnaku("a\xFF\xC5"), (std::u32string{U'a', 0xFFFD, 0xFFFD}));
    // Overlong forms, halves of pairs and what lies beyond the last character are no characters;
    // their neighbours at the limits are.
    for (const std::string_view spatne :
         {"\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80"}) {
        EXPECT_EQ(DoZnaku(spatne), std::u32string(spatne.size(), 0xFFFD));
    }
    EXPECT_EQ(DoZnaku("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF"),
              (std::u32string{0x800, 0xD7FF, 0xE000, 0x10FFFF}));
    EXPECT_EQ(BezUvodnichMezer("   a b ") + BezUvodnichMezer("   "), "a b ");
}

TEST(Tabulka, MimoMezeJeChybaUVolajiciho) {
    Tabulka<int, 3> tabulka;
    tabulka[0] = tabulka[3] = 2;
    EXPECT_THROW(tabulka[-1], BehovaChyba);
    try {
        tabulka[4] = 1;
        FAIL() << "row 4 of 3 was given";
    } catch (const BehovaChyba& chyba) {
        EXPECT_NE(chyba.Kde().find("Cisla_test.cpp:"), std::string::npos) << chyba.Kde();
    }
}

TEST(Nahoda, RozsahAOpakovatelnost) {
    Nahoda prvni, druha;
    for (Nahoda* n : {&prvni, &druha}) n->Zasej(7);
    std::set<int> dane;
    for (int i = 0; i < 2000; ++i) {
        const int cislo = prvni.D(6, 10);
        ASSERT_EQ(cislo, druha.D(6, 10));
        dane.insert(cislo);
    }
    EXPECT_EQ(dane, (std::set{10, 11, 12, 13, 14, 15}));
}

}  // namespace
}  // namespace rysovna
