#include "PlatformTest.h"
#include "base/Chyba.h"
#include "platform/ObrazekData.h"

namespace rysovna::testy {

namespace {

/// A bitmap file of 3 by 2 pixels: red, green, blue above, key, white, black below.
std::string Bmp(int bity = 24, bool odshora = false) {
    std::string d(54, '\0');
    const auto cislo = [&](std::size_t kde, int x) {
        for (std::size_t i = 0; i < 4; ++i) d[kde + i] = static_cast<char>((x >> (8 * i)) & 0xFF);
    };
    d[0] = 'B';
    d[1] = 'M';
    cislo(10, 54);
    cislo(14, 40);
    cislo(18, 3);
    cislo(22, odshora ? -2 : 2);
    d[26] = 1;
    d[28] = static_cast<char>(bity);
    const std::string nahore("\0\0\xFF\0\xFF\0\xFF\0\0\0\0\0", 12);
    const std::string dole("\xFF\0\xFF\xFF\xFF\xFF\0\0\0\0\0\0", 12);
    return d + (odshora ? nahore + dole : dole + nahore);
}

TEST_F(NaStroji, BitmapaSePrecteBodPoBodu) {
    for (const bool odshora : {false, true}) {
        const DocasnySoubor soubor("obr.bmp", Bmp(24, odshora));
        const Bitmapa b = NactiBmp(soubor.Cesta());
        ASSERT_EQ(b.Sirka, 3);
        ASSERT_EQ(b.Vyska, 2);
        const std::vector<Pixel> ceka = {DoPixelu(CERVENA),        DoPixelu(Rgb(0, 255, 0)),
                                         DoPixelu(Rgb(0, 0, 255)), KLIC,
                                         DoPixelu(BILA),           DoPixelu(CERNA)};
        EXPECT_EQ(b.Body, ceka);
    }
}

TEST_F(NaStroji, VadnaBitmapaJeChybaSeJmenemSouboru) {
    std::string obri = Bmp();
    obri[20] = '\x7F';
    std::string posunuta = Bmp();
    posunuta[10] = '\0';
    const std::pair<const char*, std::string> PRIPADY[] = {
        {"empty", ""},
        {"cut in the header", Bmp().substr(0, 40)},
        {"cut in the last row", Bmp().substr(0, 77)},
        {"another format", "GIF89a" + Bmp().substr(6)},
        {"32 bits", Bmp(32)},
        {"a size out of reason", obri},
        {"pixels inside the header", posunuta},
    };
    for (const auto& [proc, obsah] : PRIPADY) {
        const DocasnySoubor soubor("vadny.bmp", obsah);
        try {
            (void)LoadPicture(soubor.Cesta().string());
            FAIL() << proc;
        } catch (const BehovaChyba& chyba) {
            EXPECT_EQ(chyba.Kde(), soubor.Cesta().string()) << proc;
        }
    }
    EXPECT_THROW((void)LoadPicture("/neni/tady.bmp"), BehovaChyba);
}

TEST_F(NaStroji, ObrazekSeDrziJedenAZapomeneSeSPoslednim) {
    const DocasnySoubor soubor("Obr.bmp", Bmp());
    std::string jinak = soubor.Cesta().string();
    jinak.replace(jinak.rfind('/'), 1, "\\");
    jinak.replace(jinak.rfind("Obr"), 3, "oBR");
    Obrazek a = LoadPicture(soubor.Cesta().string());
    Obrazek b = LoadPicture(jinak);
    EXPECT_EQ(a, b) << "backslashes and another case give the same file";
    const std::weak_ptr<DataObrazku> drzi = a.Data();
    a = b = Obrazek();
    EXPECT_TRUE(drzi.expired());
}

TEST_F(NaStroji, BunkaPasu) {
    const DocasnySoubor soubor("pas.bmp", Bmp());
    const Obrazek pas = LoadPicture(soubor.Cesta().string());
    const Obrazek druha = pas.Bunka(1, 3);
    EXPECT_EQ(druha.Width(), 1);
    EXPECT_EQ(druha.Height(), 2);
    Surface p(1, 2);
    p.PaintPicture(druha, 0, 0);
    EXPECT_EQ(p.Point(0, 0), Rgb(0, 255, 0));
    EXPECT_EQ(p.Point(0, 1), BILA);
    EXPECT_THROW((void)pas.Bunka(3, 3), BehovaChyba);
    EXPECT_TRUE(Obrazek().Bunka(5, 3).Prazdny());
}

TEST_F(NaStroji, PrednactenyObrazekJeTyz) {
    const std::string soubor = (Staging() / "assets" / "Bitmap" / "Intro" / "title.bmp").string();
    std::vector<Pixel> ceka;
    {
        const Obrazek obrazek = LoadPicture(soubor);
        ceka = obrazek.Data()->VeVelikosti(1.5).Body;
        ASSERT_EQ(ceka.size(), std::size_t{960} * 720);
        EXPECT_NE(ceka, Preskaluj(obrazek.Data()->Logicka.KeCteni(), 960, 720, false).Body)
            << "made of the large twin";
    }
    NastavOcekavaneMeritko(1.5);
    PrednactiObrazek("/neni/tady.bmp");
    PrednactiObrazek(soubor);
    NastavOcekavaneMeritko(1);
    Obrazek obrazek = LoadPicture(soubor);
    EXPECT_EQ(obrazek.Data()->VeVelikosti(1.5).Body, ceka);
    const std::weak_ptr<DataObrazku> drzi = obrazek.Data();
    obrazek = Obrazek();
    EXPECT_TRUE(drzi.expired()) << "nobody holds it any longer";
}

TEST_F(NaStroji, PreskalovaniDrziBarvyAKlic) {
    Bitmapa plna(30, 20, DoPixelu(Rgb(12, 200, 77)));
    for (const auto& [w, h] : {std::pair{10, 7}, {23, 15}, {30, 20}, {71, 45}}) {
        const Bitmapa b = Preskaluj(plna.KeCteni(), w, h, false);
        EXPECT_EQ(b.Body, Bitmapa(w, h, DoPixelu(Rgb(12, 200, 77))).Body) << w;
    }
    plna.Pohled().Vypln({0, 0, 15, 20}, KLIC);
    const Bitmapa b = Preskaluj(plna.KeCteni(), 67, 45, true);
    for (const Pixel p : b.Body) ASSERT_TRUE(p == KLIC || p == DoPixelu(Rgb(12, 200, 77)));
    EXPECT_EQ(b.Radka(20)[10], KLIC);
    // Without the key the edge is smooth, and halving averages exactly.
    Bitmapa pruhy(4, 1, DoPixelu(CERNA));
    pruhy.Pohled().Vypln({1, 0, 1, 1}, DoPixelu(BILA));
    const Bitmapa pulka = Preskaluj(pruhy.KeCteni(), 2, 1, false);
    EXPECT_EQ(pulka.Body[0] & 0xFF, 128U);
    EXPECT_EQ(pulka.Body[1], DoPixelu(CERNA));
}

}  // namespace

}  // namespace rysovna::testy
