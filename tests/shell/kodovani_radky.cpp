#include <gtest/gtest.h>
#include <vector>

#include "base/Text.h"
#include "shell/Kodovani.h"
#include "shell/soubory_pomoc.h"

namespace rysovna::testy {
namespace {

TEST(Kodovani, TextJeVKazdemCtvrtemZnaku) {
    EXPECT_EQ(DekodujRadek("xxxAyyyBzzz"), "AB");
    EXPECT_EQ(DekodujRadek("###A"), "A");
    EXPECT_EQ(DekodujRadek("   #"), "#");
    for (const char* kratky : {"", "a", "ab", "abc"}) EXPECT_EQ(DekodujRadek(kratky), "");

    std::string text;
    for (int i = 1; i < 256; ++i) {
        if (i != '\r' && i != '\n') text += static_cast<char>(i);
    }
    const std::string ulozeny = ZakodujRadek(text);
    EXPECT_EQ(ulozeny.size(), 4 * text.size());
    EXPECT_EQ(DekodujRadek(ulozeny), text);
    EXPECT_EQ(ulozeny, ZakodujRadek(text));
    for (std::size_t i = 0; i < ulozeny.size(); ++i) {
        const bool vypln = ulozeny[i] > ' ' && ulozeny[i] <= '~';
        EXPECT_TRUE(vypln || i % 4 == 3) << i;
    }
}

TEST(Kodovani, Windows1250TamAZpet) {
    EXPECT_EQ(Do1250("Žluťoučký kůň §°"), "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \xA7\xB0");
    EXPECT_EQ(Do1250("αA⊥𝄞\xFF"), "?A???");
    const std::string nedefinovane = "\x81\x83\x88\x90\x98";
    for (int i = 0; i < 256; ++i) {
        const std::string bajt(1, static_cast<char>(i));
        const bool chybi = nedefinovane.find(bajt) != std::string::npos;
        EXPECT_EQ(NedefinovanyBajt(bajt).has_value(), chybi) << i;
        if (chybi) {
            EXPECT_EQ(Hlaska([&] { (void)Z1250(bajt, "07.dat:3"); }),
                      "Znak mimo kódovou stránku 1250 (07.dat:3)");
        } else {
            EXPECT_EQ(Do1250(Z1250(bajt, {})), bajt) << i;
            EXPECT_EQ(PocetZnaku(Z1250(bajt, {})), 1) << i;
        }
    }
    EXPECT_EQ(NedefinovanyBajt("ab\x98"), 2U);
    EXPECT_EQ(ZnakMimoStranku("žáβ"), 2U);
    EXPECT_EQ(ZnakMimoStranku("žák"), std::nullopt);
}

TEST(Kodovani, Radky) {
    using Radky = std::vector<std::string>;
    struct Pripad {
        std::string_view obsah;
        Radky radky;
    };
    const Pripad pripady[]{
        {"", {}},
        {"\r\n", {""}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r\nb", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\r\n\r\n", {"a", ""}},
        {"a\rb\r\n", {"a\rb"}},
        {"a\r", {"a\r"}},
    };
    const Slozka slozka;
    for (const Pripad& p : pripady) {
        EXPECT_EQ(CtiRadky(slozka.Pis("x.dat", p.obsah)), p.radky) << p.obsah;
    }
    EXPECT_EQ(CtiRadky(slozka.Pis("velky.dat", std::string(200000, 'x') + "\r\ny")).size(), 2U);
    const auto neni = slozka / "neni.dat";
    EXPECT_EQ(Hlaska([&] { (void)CtiRadky(neni); }),
              "Soubor nelze přečíst (" + neni.string() + ")");
    EXPECT_NE(Hlaska([&] { (void)CtiRadky(neni.parent_path()); }), "");
}

/// The rewrite beside the file, and the one in place: a folder stands where the file beside it
/// would be made.
class Prepis : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        if (GetParam()) std::filesystem::create_directory(slozka / "01.res.nove");
    }
    Slozka slozka;
};

TEST_P(Prepis, NovyObsahJeCely) {
    for (const std::string obsah : {"starý", "nový a mnohem delší", "", "x", "y"}) {
        const auto soubor = slozka / "01.res";
        if (!std::filesystem::exists(soubor)) slozka.Pis("01.res", "");
        std::filesystem::permissions(soubor, std::filesystem::perms(0664));
        PrepisSoubor(soubor, obsah);
        EXPECT_EQ(slozka.Cti("01.res"), obsah);
        EXPECT_EQ(std::filesystem::status(soubor).permissions(), std::filesystem::perms(0664));
        EXPECT_EQ(slozka.Pocet(), GetParam() ? 2 : 1);
    }
}

TEST_P(Prepis, PlnyDiskNechaStaryObsah) {
    const std::string stary(3000, 's');
    const auto soubor = slozka.Pis("01.res", stary);
    std::string hlaska;
    {
        const PlnyDisk disk(4096);
        hlaska = Hlaska([&] { PrepisSoubor(soubor, std::string(6000, 'n')); });
    }
    EXPECT_EQ(hlaska, "Do souboru nelze zapsat (" + soubor.string() + ")");
    EXPECT_EQ(slozka.Cti("01.res"), stary);
    EXPECT_EQ(slozka.Pocet(), GetParam() ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(VedleINaMiste, Prepis, ::testing::Bool());

TEST(Kodovani, PrepisOdkazuPiseDoSouboruZaNim) {
    const Slozka slozka;
    slozka.Pis("skutecny.res", "starý");
    std::filesystem::create_symlink(slozka / "skutecny.res", slozka / "01.res");
    PrepisSoubor(slozka / "01.res", "nový");
    EXPECT_TRUE(std::filesystem::is_symlink(slozka / "01.res"));
    EXPECT_EQ(slozka.Cti("skutecny.res"), "nový");
}

TEST(Kodovani, ChybaZapisuJmenujeSoubor) {
    const Slozka slozka;
    std::filesystem::create_symlink("/dev/full", slozka / "plny.dat");
    for (const auto& soubor : {slozka / "plny.dat", slozka / "neni" / "x.dat"}) {
        const std::string hlaska = "Do souboru nelze zapsat (" + soubor.string() + ")";
        EXPECT_EQ(Hlaska([&] { PripisSoubor(soubor, "x"); }), hlaska);
    }
    const auto bezSlozky = slozka / "neni" / "01.res";
    EXPECT_EQ(Hlaska([&] { PrepisSoubor(bezSlozky, "x"); }),
              "Do souboru nelze zapsat (" + bezSlozky.string() + ")");
}

TEST(Kodovani, PripisNaPlnemDiskuNenechaPulku) {
    const Slozka slozka;
    const auto soubor = slozka.Pis("Vysledky.dat", std::string(4000, 's'));
    std::string hlaska;
    {
        const PlnyDisk disk(4096);
        hlaska = Hlaska([&] { PripisSoubor(soubor, std::string(300, 'n')); });
    }
    EXPECT_NE(hlaska, "");
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), std::string(4000, 's'));
    PripisSoubor(soubor, "konec");
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), std::string(4000, 's') + "konec");
}

}  // namespace
}  // namespace rysovna::testy
