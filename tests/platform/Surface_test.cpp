#include <algorithm>
#include <random>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/Pisma.h"
#include "platform/SurfaceVnitrek.h"
#include "platform/Zalom.h"

namespace rysovna::testy {
namespace {

using SurfaceTest = NaStroji;

/// The display bitmap at a scale.
Bitmapa Dvojce(const Surface& s, double meritko) {
    Bitmapa docasna;
    return Vykresli(s.Uvnitr().Obsah, meritko, docasna);
}

/// A picture in memory of d by d pixels: a disc of a colour on the key colour.
Obrazek Kolecko(int d, Barva barva) {
    Bitmapa b(d, d, KLIC);
    for (int i = 0; i < d * d; ++i) {
        const int x = 2 * (i % d) - d, y = 2 * (i / d) - d;
        if (x * x + y * y < d * d) b.Body[static_cast<std::size_t>(i)] = DoPixelu(barva);
    }
    return Obrazek(std::make_shared<DataObrazku>(std::move(b)));
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
        const Obrazek obrazek = Kolecko(12, Rgb(10, 200, 30));
        const Rop rops[] = {Rop::SrcCopy, Rop::SrcAnd, Rop::SrcPaint};
        const std::array<std::function<void(Surface&, Surface&, int, int)>, 8> kroky = {
            [&](auto& p, auto&, int x, int y) { p.Vypln(x, y, d(30), d(30), d(0x1000000)); },
            [&](auto& p, auto&, int x, int y) { p.InvertRect(x, y, d(30), d(30)); },
            [&](auto& p, auto&, int x, int y) { p.PaintPicture(obrazek, x, y); },
            [&](auto& p, auto& z, int, int) { p.BitBlt(0, 0, 40, 35, z, 0, 0, Rop::SrcCopy); },
            [&](auto& p, auto&, int x, int y) { x + y < 0 ? p.Cls() : void(); },
            [&](auto&, auto&, int x, int) { (x % 2 ? a : b).PolozVrstvy(x % 2 ? b : a, m, d(40)); },
            [&](auto&, auto& z, int x, int) { z.BkColor = x % 2 == 0 ? PURPUROVA : BILA; },
            [&](auto& p, auto& z, int x, int y) {
                p.BitBlt(x, y, d(30), d(30), z, d(40) - 8, d(30) - 8, rops[d(3)]);
            },
        };
        for (int krok = 0; krok < 300; ++krok) {
            Surface& p = *plochy[static_cast<std::size_t>(d(4))];
            Surface& z = *plochy[static_cast<std::size_t>(d(4))];
            kroky[static_cast<std::size_t>(std::min(d(9), 7))](p, z, d(50) - 8, d(40) - 8);
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
    zdroj.PaintPicture(Kolecko(40, Rgb(20, 40, 220)), 0, 0);
    zdroj.Vypln(40, 0, 20, 40, PURPUROVA);
    pozadi.Vypln(0, 0, W, H, Rgb(250, 240, 10));
    const auto maska = zdroj.CreateMonoBitmap(W, H);
    const auto kopiruj = [](Plane& kam, const Plane& odkud, Rop rop) {
        EXPECT_TRUE(kam.BitBlt(0, 0, W, H, odkud, 0, 0, rop));
    };
    zdroj.BkColor = PURPUROVA;
    kopiruj(*maska, zdroj, Rop::SrcCopy);
    kopiruj(cil, pozadi, Rop::SrcCopy);
    kopiruj(cil, *maska, Rop::SrcAnd);
    maska->InvertRect(0, 0, W, H);
    kopiruj(zdroj, *maska, Rop::SrcAnd);
    kopiruj(cil, zdroj, Rop::SrcPaint);
    // The same in one, at rest and pushed aside.
    Surface panel(W, H), spolu(W, H), vedle(W, H);
    panel.PaintPicture(Kolecko(40, Rgb(20, 40, 220)), 0, 0);
    panel.Vypln(40, 0, 20, 40, PURPUROVA);
    spolu.PolozVrstvy(pozadi, panel, 0);
    vedle.PolozVrstvy(pozadi, panel, 7);
    for (const double s : {1.0, 1.5, 2.25, 3.0}) {
        const Bitmapa dvojce = Dvojce(cil, s);
        // Each pixel is so much of the disc and the rest of what lies beneath: no third colour.
        double modrych = 0;
        int smichanych = 0;
        for (const Pixel p : dvojce.Body) {
            const auto kanal = [p](unsigned posun) { return static_cast<int>(p >> posun & 0xFF); };
            const double podil = (250 - kanal(16)) / 230.0;
            ASSERT_NEAR(kanal(8), 240 - 200 * podil, 2.5) << s;
            ASSERT_NEAR(kanal(0), 10 + 210 * podil, 2.5) << s;
            modrych += podil;
            smichanych += podil > 0.05 && podil < 0.95 ? 1 : 0;
        }
        EXPECT_NEAR(modrych / (s * s), 1256, 30) << "the disc keeps its size";
        EXPECT_EQ(smichanych > 100, s != 1) << "smooth where pixels are to be had, " << s;
        const Bitmapa jedno = Dvojce(spolu, s), posunute = Dvojce(vedle, s);
        const int o = Zvetsi(7, s);
        for (int i = 0; i < dvojce.Sirka * dvojce.Vyska; ++i) {
            const int x = i % dvojce.Sirka, y = i / dvojce.Sirka;
            for (const unsigned kanal : {0U, 8U, 16U}) {
                const auto u = [&](const Bitmapa& b) {
                    return static_cast<int>(b.Radka(y)[x] >> kanal & 0xFF);
                };
                ASSERT_NEAR(u(jedno), u(dvojce), 2) << s;
            }
            ASSERT_EQ(posunute.Radka(y)[x],
                      x < o ? DoPixelu(Rgb(250, 240, 10)) : jedno.Radka(y)[x - o]);
        }
    }
    EXPECT_EQ(Dvojce(cil, 1).Body, cil.Uvnitr().Logicka.Body);
}

TEST_F(SurfaceTest, PopiskyDvojceteJsouNadCarami) {
    // The label's letters look as on an empty plane whatever crosses them, white around; painted in
    // pieces or at once the picture is the same; the logical bitmap knows nothing of it.
    for (const double s : {1.25, 2.25, 3.0}) {
        Surface sama(60, 40), kryta(60, 40), kus(60, 40), hola(60, 40);
        const auto popis = [](Surface& p, bool svatozar) {
            p.Svatozar = svatozar;
            p.CurrentX = 20;
            p.CurrentY = 12;
            p.Print("A1");
        };
        const auto cary = [](Surface& p, float od) {
            for (float y = od; y < 40; y += 4) p.Line(0, y, 59, y);
        };
        popis(sama, true);
        for (Surface* p : {&kryta, &kus, &hola}) {
            cary(*p, 0);
            popis(*p, p != &hola);
            if (p == &kus) (void)Dvojce(*p, s);
            cary(*p, 2);
        }
        const Bitmapa a = Dvojce(sama, s), b = Dvojce(kryta, s);
        int pismen = 0;
        for (std::size_t i = 0; i < a.Body.size(); ++i) {
            if (a.Body[i] == DoPixelu(BILA)) continue;
            ASSERT_EQ(b.Body[i], a.Body[i]) << s;
            ++pismen;
            const auto vlevo = i - static_cast<std::size_t>(std::lround(s));
            ASSERT_EQ(b.Body[vlevo], a.Body[vlevo]) << "white beside the letter, " << s;
        }
        EXPECT_GT(pismen, 20);
        EXPECT_EQ(Dvojce(kus, s).Body, b.Body) << s;
        EXPECT_EQ(kryta.Uvnitr().Logicka.Body, hola.Uvnitr().Logicka.Body);
        EXPECT_EQ(Dvojce(kryta, 1).Body, Dvojce(hola, 1).Body) << "at 1:1 as it is drawn";
    }
}

TEST_F(SurfaceTest, CaraDvojceteLeziNaStreduLogickychBodu) {
    Surface p(60, 40);
    p.Line(10, 20, 50, 20);
    p.ForeColor = CERVENA;
    p.DrawWidth = 2;
    p.Line(30, 5, 30, 35);
    p.DrawWidth = 6;
    p.Line(50, 30, 50, 30);
    const Bitmapa d = Dvojce(p, 4);
    EXPECT_EQ(d.Radka(122)[202], DoPixelu(CERVENA)) << "a line of no length is a dot";
    for (const int y : {79, 84}) EXPECT_EQ(d.Radka(y)[60], DoPixelu(BILA)) << y;
    for (const int y : {80, 83}) EXPECT_EQ(d.Radka(y)[60], DoPixelu(CERNA)) << y;
    EXPECT_EQ(std::count(d.Radka(40), d.Radka(41), DoPixelu(CERVENA)), 8)
        << "hard edges, the pen's width times the scale";
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
    skryta.Line(0, 79, 99, 79);
    EXPECT_EQ(Dvojce(pic, 2).Radka(158)[100], DoPixelu(BILA));
    EXPECT_EQ(Dvojce(skryta, 2).Radka(158)[100], DoPixelu(CERNA));
    // Panels painted over one another again and again keep the list short too.
    for (int kolo = 0; kolo < 2000; ++kolo) pic.Vypln(kolo % 2, 0, 98, 80, kolo);
    EXPECT_LT(pic.Uvnitr().Obsah.Pocet, 100U);
}

TEST_F(SurfaceTest, BezAutoRedrawSeNekresliNicAClsVratiPodklad) {
    Surface p(20, 20);
    p.NastavPodklad(Kolecko(10, CERVENA));
    const std::uint64_t verze = p.Verze();
    p.AutoRedraw = false;
    p.Line(0, 0, 19, 19);
    p.Vypln(0, 0, 5, 5, CERVENA);
    EXPECT_TRUE(p.BitBlt(0, 0, 5, 5, p, 1, 1, Rop::SrcCopy));
    EXPECT_EQ(p.Verze(), verze);
    p.AutoRedraw = true;
    p.Vypln(0, 0, 20, 20, CERNA);
    p.Cls();
    EXPECT_EQ(p.Point(5, 5), CERVENA);
    EXPECT_EQ(p.Point(15, 15), BILA);
    EXPECT_EQ(Dvojce(p, 1).Body, p.Uvnitr().Logicka.Body);
    // Occupied is what is not exactly white, and what lies outside.
    p.Vypln(3, 14, 2, 2, Rgb(254, 255, 255));
    for (const int y : {-1, 3, 15, 20}) {
        const std::uint64_t obsazeno = p.Radek(-3, y, 26);
        for (int i = 0; i < 26; ++i)
            EXPECT_EQ(obsazeno >> i & 1, p.Point(i - 3, y) != BILA ? 1U : 0U) << y;
    }
}

TEST_F(SurfaceTest, LogickyTextMaJenDveBarvyADvojceStejneMisto) {
    Surface p(200, 40);
    p.Font.Velikost = 10;
    p.CurrentX = 5;
    p.CurrentY = 8;
    p.Print("Žluťoučký kůň ÁČ");
    const Bitmapa d = Dvojce(p, 4);
    Obdelnik logicky, dvojity;
    for (int i = 0; i < 200 * 40 * 16; ++i) {
        const int x = i % 800, y = i / 800;
        const Barva b = p.Point(x / 4, y / 4);
        ASSERT_TRUE(b == CERNA || b == BILA) << "no antialiasing";
        if (b == CERNA) logicky = Obal(logicky, {x / 4, y / 4, 1, 1});
        if (d.Radka(y)[x] != DoPixelu(BILA)) dvojity = Obal(dvojity, {x, y, 1, 1});
    }
    EXPECT_NEAR(dvojity.Left / 4.0, logicky.Left, 1.5);
    EXPECT_NEAR(dvojity.Top / 4.0, logicky.Top, 1.5);
    EXPECT_NEAR((dvojity.Left + dvojity.Width) / 4.0, logicky.Left + logicky.Width, 2);
    EXPECT_NEAR((dvojity.Top + dvojity.Height) / 4.0, logicky.Top + logicky.Height, 1.5);
    EXPECT_LE(logicky.Left + logicky.Width, 5 + SirkaTextu(p.Font, "Žluťoučký kůň ÁČ") + 1);
}

TEST_F(SurfaceTest, ZalamovaniTextuARecke) {
    Pismo p;
    using Radky = std::vector<std::string>;
    const int sirka = SirkaTextu(p, "jedna dvě");
    EXPECT_EQ(RozdelNaRadky(p, "jedna dvě tři", sirka), (Radky{"jedna dvě", "tři"}));
    EXPECT_EQ(RozdelNaRadky(p, "dvě z tří", SirkaTextu(p, "dvě z")), (Radky{"dvě", "z tří"}));
    EXPECT_EQ(RozdelNaRadky(p, "tři -1 bod", SirkaTextu(p, "tři -1 bo")), (Radky{"tři", "-1 bod"}));
    EXPECT_EQ(RozdelNaRadky(p, "12 34", SirkaTextu(p, "12 ")), (Radky{"12", "34"})) << "it must";
    EXPECT_EQ(RozdelNaRadky(p, "jedna\ndvě\r\n\ntři", 0), (Radky{"jedna", "dvě", "", "tři"}));
    for (const auto& r : RozdelNaRadky(p, "Nejnezdevětadevadesáteronásobitelnější", 50)) {
        EXPECT_LE(SirkaTextu(p, r), 51);
    }
    Surface rimske(20, 20), recke(20, 20);
    recke.Font.Nazev = Pismo::Rez::Symbol;
    for (Surface* s : {&rimske, &recke}) s->Print("a");
    EXPECT_NE(rimske.Uvnitr().Logicka.Body, recke.Uvnitr().Logicka.Body);
    EXPECT_NE(Surface(20, 20).Uvnitr().Logicka.Body, recke.Uvnitr().Logicka.Body);
}

TEST_F(SurfaceTest, BezPisemJeBehovaChyba) {
    NastavSlozkuPisem("/neni/tady");
    Surface p(10, 10);
    EXPECT_THROW(p.Print("x"), BehovaChyba);
}

}  // namespace
}  // namespace rysovna::testy
