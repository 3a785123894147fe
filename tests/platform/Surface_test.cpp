#include <random>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "platform/Pisma.h"
#include "platform/SurfaceVnitrek.h"

namespace rysovna::testy {

namespace {

using SurfaceTest = NaStroji;

/// The display bitmap at a scale.
Bitmapa Dvojce(const Surface& s, double meritko) {
    Bitmapa docasna;
    return Vykresli(s.Uvnitr().Obsah, meritko, docasna);
}

/// A picture in memory of w by h pixels: a disc of a colour on the key colour.
Obrazek Kolecko(int w, int h, Barva barva) {
    auto data = std::make_shared<DataObrazku>();
    data->Logicka = Bitmapa(w, h, KLIC);
    data->MaKlic = true;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            if ((2 * x - w) * (2 * x - w) + (2 * y - h) * (2 * y - h) < w * w)
                data->Logicka.Pohled().Radka(y)[x] = DoPixelu(barva);
        }
    }
    return Obrazek(data);
}

/// The steps of a masked copy: the source over the ground, the key colour left out.
void ZamaskovanaKopie(Surface& zdroj, int w, int h, Surface& pozadi, Surface& cil) {
    const auto maska = zdroj.CreateMonoBitmap(w, h);
    zdroj.BkColor = PURPUROVA;
    ASSERT_TRUE(maska->BitBlt(0, 0, w, h, zdroj, 0, 0, Rop::SrcCopy));
    const auto obraz = zdroj.CreateCompatibleBitmap(w, h);
    const auto podklad = zdroj.CreateCompatibleBitmap(w, h);
    obraz->BitBlt(0, 0, w, h, zdroj, 0, 0, Rop::SrcCopy);
    podklad->BitBlt(0, 0, w, h, pozadi, 0, 0, Rop::SrcCopy);
    podklad->BitBlt(0, 0, w, h, *maska, 0, 0, Rop::SrcAnd);
    maska->InvertRect(0, 0, w, h);
    obraz->BitBlt(0, 0, w, h, *maska, 0, 0, Rop::SrcAnd);
    podklad->BitBlt(0, 0, w, h, *obraz, 0, 0, Rop::SrcPaint);
    cil.BitBlt(0, 0, w, h, *podklad, 0, 0, Rop::SrcCopy);
}

TEST_F(SurfaceTest, SeznamDavaTotezCoLogickaBitmapa) {
    // Random drawing between four surfaces, one of one bit, one of another size. Without strokes
    // and text, which the display list smooths, the list replayed 1:1 must give the very pixels of
    // the logical bitmap, painted at once or bit by bit.
    for (unsigned seminko = 1; seminko <= 30; ++seminko) {
        std::mt19937 stroj(seminko);
        const auto d = [&](int n) { return static_cast<int>(stroj() % static_cast<unsigned>(n)); };
        Surface a(40, 30), b(40, 30), c(25, 35);
        const auto bity = a.CreateMonoBitmap(40, 30);
        auto& m = dynamic_cast<Surface&>(*bity);
        const std::array<Surface*, 4> plochy = {&a, &b, &c, &m};
        const Obrazek obrazek = Kolecko(12, 12, Rgb(10, 200, 30));
        const Rop rops[] = {Rop::SrcCopy, Rop::SrcAnd, Rop::SrcPaint};
        for (int krok = 0; krok < 300; ++krok) {
            Surface& p = *plochy[static_cast<std::size_t>(d(4))];
            Surface& z = *plochy[static_cast<std::size_t>(d(4))];
            const int x = d(50) - 8, y = d(40) - 8;
            switch (d(8)) {
                case 0:
                    p.Vypln(x, y, d(30), d(30), d(0x1000000));
                    break;
                case 1:
                    p.InvertRect(x, y, d(30), d(30));
                    break;
                case 2:
                    p.PaintPicture(obrazek, x, y);
                    break;
                case 3:
                    p.BitBlt(0, 0, 40, 35, z, 0, 0, Rop::SrcCopy);
                    break;
                case 4:
                    if (d(6) == 0) p.Cls();
                    break;
                case 5:
                    z.BkColor = d(2) == 0 ? PURPUROVA : BILA;
                    break;
                default:
                    p.BitBlt(x, y, d(30), d(30), z, d(40) - 8, d(30) - 8, rops[d(3)]);
            }
            if (d(10) == 0) (void)Dvojce(p, 1);
            if (d(40) == 0) (void)Dvojce(p, 2);
        }
        for (const Surface* p : plochy) {
            EXPECT_EQ(Dvojce(*p, 1).Body, p->Uvnitr().Logicka.Body) << "seed " << seminko;
        }
    }
}

TEST_F(SurfaceTest, ZamaskovanaKopieNemaLemyVZadneVelikosti) {
    constexpr int W = 60, H = 40;
    Surface zdroj(W, H), pozadi(W, H), cil(W, H);
    zdroj.PaintPicture(Kolecko(40, 40, Rgb(20, 40, 220)), 0, 0);
    zdroj.Vypln(40, 0, 20, 40, PURPUROVA);
    pozadi.Vypln(0, 0, W, H, Rgb(250, 240, 10));
    ZamaskovanaKopie(zdroj, W, H, pozadi, cil);
    for (const double s : {1.0, 1.5, 2.25, 3.0}) {
        const Bitmapa dvojce = Dvojce(cil, s);
        int modrych = 0;
        for (const Pixel p : dvojce.Body) {
            ASSERT_TRUE(p == DoPixelu(Rgb(20, 40, 220)) || p == DoPixelu(Rgb(250, 240, 10)))
                << std::hex << p << " at scale " << s;
            if (p == DoPixelu(Rgb(20, 40, 220))) ++modrych;
        }
        EXPECT_NEAR(modrych / (s * s), 1256, 30) << "the disc keeps its size";
    }
    EXPECT_EQ(Dvojce(cil, 1).Body, cil.Uvnitr().Logicka.Body);
}

TEST_F(SurfaceTest, JednobitovaBereKlicZaBilou) {
    Surface p(4, 1);
    p.Vypln(0, 0, 1, 1, PURPUROVA);
    p.Vypln(1, 0, 1, 1, CERNA);
    p.Vypln(2, 0, 1, 1, Rgb(255, 0, 254));
    p.BkColor = PURPUROVA;
    const auto bity = p.CreateMonoBitmap(4, 1);
    EXPECT_EQ(bity->Point(0, 0), CERNA);
    bity->BitBlt(0, 0, 4, 1, p, 0, 0, Rop::SrcCopy);
    const std::vector<Barva> mame = {bity->Point(0, 0), bity->Point(1, 0), bity->Point(2, 0),
                                     bity->Point(3, 0)};
    EXPECT_EQ(mame, (std::vector<Barva>{BILA, CERNA, CERNA, CERNA}));
    EXPECT_EQ(bity->Point(4, 0), BEZ_BARVY);
    EXPECT_EQ(p.CreateMonoBitmap(0, 5), nullptr);
    EXPECT_EQ(p.CreateCompatibleBitmap(5, 0), nullptr);
}

TEST_F(SurfaceTest, CaraDvojceteLeziNaStreduLogickychBodu) {
    Surface p(60, 40);
    p.Line(10, 20, 50, 20);
    p.ForeColor = CERVENA;
    p.DrawWidth = 2;
    p.Line(30, 5, 30, 35);
    EXPECT_EQ(p.Point(10, 20), CERNA);
    EXPECT_EQ(p.Point(50, 20), CERNA);
    EXPECT_EQ(p.Point(51, 20), BILA);
    EXPECT_EQ(p.Point(20, 21), BILA);
    const Bitmapa d = Dvojce(p, 4);
    for (int y = 78; y < 86; ++y) {
        const bool cara = y >= 80 && y < 84;
        EXPECT_EQ(d.Radka(y)[60], DoPixelu(cara ? CERNA : BILA)) << y;
    }
    int sirka = 0;
    for (int x = 0; x < d.Sirka; ++x) {
        if (d.Radka(40)[x] == DoPixelu(CERVENA)) ++sirka;
    }
    EXPECT_EQ(sirka, 8) << "hard edges, the pen's width times the scale";
}

TEST_F(SurfaceTest, KopieCelePlochyNahradiSeznam) {
    Surface skryta(100, 80), pic(100, 80);
    for (int kolo = 0; kolo < 500; ++kolo) {
        skryta.Cls();
        for (int i = 0; i < 20; ++i) skryta.Line(0, static_cast<float>(i), 99, 50);
        for (int i = 0; i < 3; ++i) pic.BitBlt(0, 0, 100, 80, skryta, 0, 0, Rop::SrcCopy);
        pic.Circle(50, 40, 20);
    }
    EXPECT_EQ(pic.Uvnitr().Obsah.Pocet, 21U);
    EXPECT_EQ(skryta.Uvnitr().Obsah.Pocet, 20U) << "what pic adds is not in the other's picture";
    EXPECT_EQ(pic.Point(50, 20), CERNA);
    skryta.Line(0, 79, 99, 79);
    EXPECT_EQ(Dvojce(pic, 2).Radka(158)[100], DoPixelu(BILA));
    EXPECT_EQ(Dvojce(skryta, 2).Radka(158)[100], DoPixelu(CERNA));
    // Panels painted over one another again and again keep the list short too.
    for (int kolo = 0; kolo < 2000; ++kolo) pic.Vypln(kolo % 2, 0, 98, 80, kolo);
    EXPECT_LT(pic.Uvnitr().Obsah.Pocet, 100U);
}

TEST_F(SurfaceTest, BezAutoRedrawSeNekresliNic) {
    Surface p(20, 20);
    const std::uint64_t verze = p.Verze();
    p.AutoRedraw = false;
    p.Line(0, 0, 19, 19);
    p.Vypln(0, 0, 5, 5, CERVENA);
    EXPECT_TRUE(p.BitBlt(0, 0, 5, 5, p, 1, 1, Rop::SrcCopy));
    EXPECT_EQ(p.Verze(), verze);
    EXPECT_EQ(p.Point(0, 0), BILA);
}

TEST_F(SurfaceTest, ClsVratiPodklad) {
    Surface p(20, 20);
    p.NastavPodklad(Kolecko(10, 10, CERVENA));
    p.Vypln(0, 0, 20, 20, CERNA);
    p.CurrentX = 7;
    p.Cls();
    EXPECT_EQ(p.Point(5, 5), CERVENA);
    EXPECT_EQ(p.Point(0, 0), PURPUROVA);
    EXPECT_EQ(p.Point(15, 15), BILA);
    EXPECT_EQ(p.CurrentX, 0);
    EXPECT_EQ(Dvojce(p, 1).Body, p.Uvnitr().Logicka.Body);
}

TEST_F(SurfaceTest, SloupecJeTotezCoPoint) {
    Surface p(10, 10);
    p.Vypln(3, 4, 2, 2, Rgb(254, 255, 255));
    for (const int x : {-1, 3, 9, 10}) {
        std::array<std::uint8_t, 16> cile{};
        p.Sloupec(x, -3, cile);
        for (int i = 0; i < 16; ++i)
            EXPECT_EQ(cile[static_cast<std::size_t>(i)], p.Point(x, i - 3) == BILA ? 0 : 1)
                << x << "," << i - 3;
    }
}

TEST_F(SurfaceTest, LogickyTextMaJenDveBarvyADvojceStejneMisto) {
    Surface p(200, 40);
    p.Font.Velikost = 10;
    p.CurrentX = 5;
    p.CurrentY = 8;
    p.Print("Žluťoučký kůň ÁČ");
    Obdelnik logicky, dvojity;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 200; ++x) {
            const Barva b = p.Point(x, y);
            ASSERT_TRUE(b == CERNA || b == BILA) << "no antialiasing";
            if (b == CERNA) logicky = Obal(logicky, {x, y, 1, 1});
        }
    }
    const Bitmapa d = Dvojce(p, 4);
    for (int y = 0; y < d.Vyska; ++y) {
        for (int x = 0; x < d.Sirka; ++x) {
            if (d.Radka(y)[x] != DoPixelu(BILA)) dvojity = Obal(dvojity, {x, y, 1, 1});
        }
    }
    EXPECT_NEAR(dvojity.Left / 4.0, logicky.Left, 1.5);
    EXPECT_NEAR(dvojity.Top / 4.0, logicky.Top, 1.5);
    EXPECT_NEAR((dvojity.Left + dvojity.Width) / 4.0, logicky.Left + logicky.Width, 2);
    EXPECT_NEAR((dvojity.Top + dvojity.Height) / 4.0, logicky.Top + logicky.Height, 1.5);
    EXPECT_GE(logicky.Top, 8) << "the row's top";
    EXPECT_LE(logicky.Left + logicky.Width, 5 + SirkaTextu(p.Font, "Žluťoučký kůň ÁČ") + 1);
}

TEST_F(SurfaceTest, MiryPisma) {
    const Pismo osm;
    Pismo tucne = osm;
    tucne.Tucne = true;
    EXPECT_EQ(SirkaTextu(osm, ""), 0);
    EXPECT_EQ(VyskaRadku(osm), 12);
    EXPECT_GT(SirkaTextu(tucne, "Ahoj"), SirkaTextu(osm, "Ahoj"));
    EXPECT_NEAR(PresnaSirka(osm, "Ahoj") + PresnaSirka(osm, "ky"), PresnaSirka(osm, "Ahojky"),
                1e-9);
    Pismo symbol = osm;
    symbol.Nazev = Pismo::Rez::Symbol;
    for (const char* pismeno : {"a", "b", "g", "d", "^"}) {
        Surface rimske(20, 20), recke(20, 20);
        recke.Font = symbol;
        rimske.Print(pismeno);
        recke.Print(pismeno);
        EXPECT_NE(rimske.Uvnitr().Logicka.Body, recke.Uvnitr().Logicka.Body) << pismeno;
        Surface prazdna(20, 20);
        EXPECT_NE(prazdna.Uvnitr().Logicka.Body, recke.Uvnitr().Logicka.Body) << pismeno;
    }
}

TEST_F(SurfaceTest, ZalamovaniTextu) {
    const Pismo p;
    const int sirka = SirkaTextu(p, "jedna dvě");
    const struct {
        std::string Text;
        int Sirka;
        std::vector<std::string> Ceka;
    } PRIPADY[] = {
        {"", sirka, {""}},
        {"jedna dvě", sirka, {"jedna dvě"}},
        {"jedna dvě tři", sirka, {"jedna dvě", "tři"}},
        {"jedna\ndvě\r\n\ntři", 0, {"jedna", "dvě", "", "tři"}},
        {"jedna dvě tři", 0, {"jedna dvě tři"}},
    };
    for (const auto& c : PRIPADY) EXPECT_EQ(RozdelNaRadky(p, c.Text, c.Sirka), c.Ceka) << c.Text;
    std::string slozene;
    for (const std::string& r : RozdelNaRadky(p, "Nejnezdevětadevadesáteronásobitelnější", 50)) {
        EXPECT_LE(SirkaTextu(p, r), 51);
        slozene += r;
    }
    EXPECT_EQ(slozene, "Nejnezdevětadevadesáteronásobitelnější");
}

TEST_F(SurfaceTest, BezPisemJeBehovaChybaSeJmenemSouboru) {
    NastavSlozkuPisem("/neni/tady");
    EXPECT_FALSE(MamePisma());
    Surface p(10, 10);
    try {
        p.Print("x");
        FAIL() << "printed without a font";
    } catch (const BehovaChyba& chyba) {
        EXPECT_NE(chyba.Kde().find("LiberationSans-Regular.ttf"), std::string::npos);
    }
    NastavSlozkuPisem(SlozkaPisem());
    EXPECT_TRUE(MamePisma());
}

}  // namespace

}  // namespace rysovna::testy
