#include <gtest/gtest.h>
#include <random>

#include "engine/Kopirovani.h"
#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "engine/Prekresleni.h"
#include "engine/Tabulky.h"
#include "engine/VolneMisto.h"
#include "podpora/Konstrukce.h"
#include "podpora/ProsteHledani.h"
#include "podpora/Tisk.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

class Sluzby : public testing::Test {
protected:
    Tabulky t;
    ZaznamPlane hiden{SIRKA_PLOCHY, VYSKA_PLOCHY};
    ZaznamPlane pic{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

TEST_F(Sluzby, VolneMistoNajdeTotezCoProsteHledani) {
    std::mt19937 stroj(4);
    const auto n = [&](int meze) { return static_cast<int>(stroj() & 0xFFFF) % meze; };
    int zadne = 0, jine = 0;
    for (int kolo = 0; kolo < 6000; ++kolo) {
        // Now and then sizes beyond those of the labels, up to several words of candidates.
        const bool velke = kolo % 10 == 0;
        PametovaPlocha plocha(20 + n(60), 20 + n(velke ? 200 : 60));
        // Anything from a clean plane to a crowded one: specks, strokes, white blocks in black.
        const int zpusob = kolo % 3;
        if (zpusob == 2) {
            std::swap(plocha.BackColor, plocha.ForeColor);
            plocha.DrawWidth = 10 + n(15);
        }
        plocha.Cls();
        for (int i = n(zpusob == 0 ? 60 : 12); i > 0; --i) {
            if (zpusob == 0) {
                plocha.PSet(n(80), n(80), n(2) == 0 ? CERNA : 0xFFFFFE);
            } else {
                const auto c = [&] { return static_cast<float>(n(80)); };
                plocha.Line(c(), c(), c(), c());
            }
        }
        const Bod puvodni{n(100) - 10, n(100) - 10};
        const int sirka = n(20) - 3, dosah = n(velke ? 60 : 13) - 1;
        Bod rychle = puvodni, proste = puvodni;
        VolneMisto(plocha, rychle, sirka, dosah);
        ProsteHledani(plocha, proste, sirka, dosah);
        ASSERT_EQ(rychle, proste) << "round " << kolo << " width " << sirka << " reach " << dosah;
        ++(proste == puvodni ? zadne : jine);
    }
    // The planes are neither all empty nor all full.
    EXPECT_GT(zadne, 500);
    EXPECT_GT(jine, 1000);
}

TEST_F(Sluzby, PrekresleniPrazdneKonstrukceSmazePic) {
    pic.Line(0, 0, 300, 300);
    PrekresliVse(t, hiden, pic);
    EXPECT_TRUE(pic.StejnyObraz(PametovaPlocha(SIRKA_PLOCHY, VYSKA_PLOCHY)));
    EXPECT_EQ(pic.kopie, (std::vector<bool>{true, false, true}));
}

TEST_F(Sluzby, PrekresleniDaStejnyObrazATabulky) {
    // A finished triangle fills no point from a moved one, so that even its first picture comes
    // back; the random constructions settle with the first redraw.
    NakresliTrojuhelnik(t, pic);
    PametovaPlocha prvni = pic;
    PrekresliVse(t, hiden, pic);
    EXPECT_TRUE(pic.StejnyObraz(prvni));
    for (unsigned seminko = 1; seminko <= 20; ++seminko) {
        t = {};
        pic.Cls();
        NakresliNahodne(t, pic, 98, seminko);
        PrekresliVse(t, hiden, pic);
        prvni = pic;
        const auto utvary = t.Utvary;
        const auto trojice = t.Trojice_tab;
        PrekresliVse(t, hiden, pic);
        EXPECT_TRUE(pic.StejnyObraz(prvni)) << seminko;
        EXPECT_EQ(t.Utvary, utvary);
        EXPECT_EQ(t.Trojice_tab, trojice);
        EXPECT_EQ(t.PocetTrojic, 98);
    }
}

TEST_F(Sluzby, PrekresleniPiseJenDoPosledniTrojice) {
    NakresliTrojuhelnik(t, pic);
    const auto predtim = t.Trojice_tab;
    t.Utvary[2].Druh = "elipsa";  // unknown, skipped
    hiden.kruhy.clear();
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(hiden.kruhy.size(), 1U);
    EXPECT_EQ(t.Trojice_tab, predtim);
    // A circle last: its centre stands over the end points of the segment before it.
    Kresli(t, pic, t.NovyUtvar("k", ""), {KRUZNICE, {50, 60}, {70, 60}});
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(t.Trojice_tab[7], (Trojice{50, 60, 187, 170, 214, 210, "k", "C", "Sa"}));
    // A redrawn parallel loses its length, a line does not.
    Kresli(t, pic, t.NovyUtvar("A", "B"), {ROVNOBEZKA, {50, 60}, {80, 60}, "", "", 5});
    Kresli(t, pic, t.NovyUtvar("A", "B"), {PRIMKA, {50, 90}, {80, 90}, "", "", 6});
    PrekresliVse(t, hiden, pic);
    EXPECT_EQ(t.Utvary[8].Delka, 0.0F);
    EXPECT_EQ(t.Utvary[9].Delka, 6.0F);
}

TEST_F(Sluzby, PosunPosuneVseAZpetVratiObraz) {
    NakresliTrojuhelnik(t, pic);
    PrekresliVse(t, hiden, pic);
    const PametovaPlocha predtim = pic;
    const auto utvary = t.Utvary;
    PosunVse(t, hiden, pic, 20, -20);
    EXPECT_EQ((Bod{t.Utvary[1].X1, t.Utvary[1].Y1}), (Bod{140, 230}));
    EXPECT_EQ((Bod{t.Utvary[1].X4, t.Utvary[1].Y4}), (Bod{20, -20}));  // unused slots move too
    EXPECT_EQ((Bod{t.Trojice_tab[2].X3, t.Trojice_tab[2].Y3}), (Bod{20, -20}));
    EXPECT_EQ(pic.Point(150, 230), CERNA);
    PosunVse(t, hiden, pic, -20, 20);
    EXPECT_EQ(t.Utvary, utvary);
    EXPECT_TRUE(pic.StejnyObraz(predtim));
}

TEST_F(Sluzby, KopieSeUsetriJenKdyzSeMezitimNekreslilo) {
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

TEST_F(Sluzby, PruhlednaKopieVynechaKlicovouBarvu) {
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
