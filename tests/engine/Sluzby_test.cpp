#include "engine/Sluzby.h"

#include <gtest/gtest.h>
#include <random>

#include "engine/PametovaPlocha.h"
#include "engine/Tabulky.h"
#include "podpora/Konstrukce.h"
#include "podpora/ProsteHledani.h"
#include "podpora/Tisk.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

class Sluzby : public testing::Test {
protected:
    void SetUp() override { SmazKonstrukci(); }
    ZaznamPlane hiden{SIRKA_PLOCHY, VYSKA_PLOCHY};
    ZaznamPlane pic{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

TEST_F(Sluzby, VolneMistoNaPrazdneAPlnePlose) {
    Bod bod{100, 100};
    VolneMisto(pic, bod, 12, 10);
    EXPECT_EQ(bod, (Bod{90, 90}));
    // Any colour but exact white is occupied; so is what lies outside.
    pic.plocha.BackColor = 0xFEFFFF;
    pic.Cls();
    bod = {100, 100};
    VolneMisto(pic, bod, 12, 10);
    EXPECT_EQ(bod, (Bod{100, 100}));
    pic.plocha.BackColor = BILA;
    pic.Cls();
    bod = {0, 0};
    VolneMisto(pic, bod, 12, 10);
    EXPECT_EQ(bod, (Bod{1, 1}));
    bod = {500, 100};
    VolneMisto(pic, bod, 12, 10);
    EXPECT_EQ(bod, (Bod{500, 100}));
}

/// Anything from a clean plane to a crowded one: specks, strokes, and white blocks in black.
void Zapln(PametovaPlocha& plocha, std::mt19937& stroj) {
    const auto n = [&stroj](int meze) {
        return static_cast<int>(stroj() % static_cast<unsigned>(meze));
    };
    const int w = plocha.Width(), h = plocha.Height();
    const int zpusob = n(3);
    if (zpusob == 2) {
        plocha.BackColor = CERNA;
        plocha.ForeColor = BILA;
        plocha.DrawWidth = 10 + n(15);
    }
    plocha.Cls();
    for (int i = n(zpusob == 0 ? 60 : 12); i > 0; --i) {
        if (zpusob == 0) {
            plocha.PSet(n(w), n(h), n(2) == 0 ? CERNA : 0xFFFFFE);
        } else {
            plocha.Line(static_cast<float>(n(w)), static_cast<float>(n(h)),
                        static_cast<float>(n(w)), static_cast<float>(n(h)));
        }
    }
}

TEST_F(Sluzby, VolneMistoNajdeTotezCoProsteHledani) {
    std::mt19937 stroj(4);
    int zadne = 0, prvni = 0, jine = 0;
    for (int kolo = 0; kolo < 6000; ++kolo) {
        // Now and then sizes beyond those of the labels, up to several words of candidates.
        const bool velke = kolo % 10 == 0;
        const auto n = [&stroj](int meze) {
            return static_cast<int>(stroj() % static_cast<unsigned>(meze));
        };
        PametovaPlocha plocha(20 + n(60), 20 + n(velke ? 200 : 60));
        Zapln(plocha, stroj);
        const Bod puvodni{n(100) - 10, n(100) - 10};
        const int sirka = n(20) - 3;
        const int dosah = n(velke ? 60 : 13) - 1;
        Bod rychle = puvodni, proste = puvodni;
        VolneMisto(plocha, rychle, sirka, dosah);
        ProsteHledani(plocha, proste, sirka, dosah);
        ASSERT_EQ(rychle, proste) << "round " << kolo << " width " << sirka << " reach " << dosah;
        const bool prvniMisto = proste == Bod{puvodni.X - dosah, puvodni.Y - dosah};
        ++(prvniMisto ? prvni : proste == puvodni ? zadne : jine);
    }
    // The planes are neither all empty nor all full.
    EXPECT_GT(zadne, 500);
    EXPECT_GT(prvni, 500);
    EXPECT_GT(jine, 500);
}

TEST_F(Sluzby, PrekresleniPrazdneKonstrukceSmazePic) {
    pic.Line(0, 0, 300, 300);
    hiden.Line(0, 0, 300, 200);
    PrekresliVse(hiden, pic);
    EXPECT_TRUE(pic.plocha.StejnyObraz(PametovaPlocha(SIRKA_PLOCHY, VYSKA_PLOCHY)));
    EXPECT_TRUE(hiden.plocha.StejnyObraz(pic.plocha));
    EXPECT_EQ(pic.kopie, (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(pic.AutoRedraw);
}

TEST_F(Sluzby, PrekresleniDaStejnyObrazATabulky) {
    // A finished triangle fills no point from a moved one, so that even its first picture comes
    // back; the random constructions settle with the first redraw.
    NakresliTrojuhelnik(pic);
    PametovaPlocha prvni = pic.plocha;
    PrekresliVse(hiden, pic);
    EXPECT_TRUE(pic.plocha.StejnyObraz(prvni));
    for (unsigned seminko = 1; seminko <= 20; ++seminko) {
        SmazKonstrukci();
        pic.Cls();
        NakresliNahodne(pic, 98, seminko);
        EXPECT_EQ(PocetTrojic, 98);
        PrekresliVse(hiden, pic);
        prvni = pic.plocha;
        const auto utvary = Utvary;
        const auto trojice = Trojice_tab;
        PrekresliVse(hiden, pic);
        EXPECT_TRUE(pic.plocha.StejnyObraz(prvni)) << seminko;
        EXPECT_EQ(Utvary, utvary);
        EXPECT_EQ(Trojice_tab, trojice);
        EXPECT_EQ(PocetUtvaru, 98);
        EXPECT_EQ(PocetTrojic, 98);
    }
}

TEST_F(Sluzby, PrekresleniPiseJenDoPosledniTrojice) {
    NakresliTrojuhelnik(pic);
    const auto predtim = Trojice_tab;
    Utvary[2].Druh = "elipsa";  // unknown, skipped
    hiden.kruhy.clear();
    PrekresliVse(hiden, pic);
    EXPECT_EQ(hiden.kruhy.size(), 1U);
    for (int i = 1; i < PocetTrojic; ++i) EXPECT_EQ(Trojice_tab[i], predtim[i]);
    EXPECT_EQ(Trojice_tab[PocetTrojic], predtim[PocetTrojic]);
    // A circle last: its centre stands over the end points of the segment before it.
    KresliKruznici(pic, KRUZNICE, NovyUtvar("k", ""), 50, 60, 70, ANO);
    PrekresliVse(hiden, pic);
    EXPECT_EQ(Trojice_tab[7], (Trojice{50, 60, 187, 170, 214, 210, "k", "C", "Sa"}));
}

TEST_F(Sluzby, RovnobezkaPrijdePriPrekresleniODelku) {
    KresliPrimku(pic, ROVNOBEZKA, NovyUtvar("A", "B"), 50, 60, 80, 60, 5, ANO);
    KresliPrimku(pic, PRIMKA, NovyUtvar("A", "B"), 50, 90, 80, 90, 6, ANO);
    PrekresliVse(hiden, pic);
    EXPECT_EQ(Utvary[1].Delka, 0.0F);
    EXPECT_EQ(Utvary[2].Delka, 6.0F);
}

TEST_F(Sluzby, PosunPosuneVseAZpetVratiObraz) {
    NakresliTrojuhelnik(pic);
    PrekresliVse(hiden, pic);
    const PametovaPlocha predtim = pic.plocha;
    const auto utvary = Utvary;
    PosunVse(hiden, pic, 20, -20);
    EXPECT_EQ((Bod{Utvary[1].X1, Utvary[1].Y1}), (Bod{140, 230}));
    EXPECT_EQ((Bod{Utvary[1].X4, Utvary[1].Y4}), (Bod{20, -20}));  // unused slots move too
    EXPECT_EQ((Bod{Utvary[2].X2, Utvary[2].Y2}), (Bod{244, -20}));
    EXPECT_EQ((Bod{Trojice_tab[2].X3, Trojice_tab[2].Y3}), (Bod{20, -20}));
    EXPECT_FALSE(pic.plocha.StejnyObraz(predtim));
    EXPECT_EQ(pic.plocha.Point(150, 230), CERNA);
    PosunVse(hiden, pic, -20, 20);
    EXPECT_EQ(Utvary, utvary);
    EXPECT_TRUE(pic.plocha.StejnyObraz(predtim));
}

TEST_F(Sluzby, PruhlednaKopieVynechaKlicovouBarvu) {
    constexpr int W = 30, H = 20;
    std::mt19937 stroj(5);
    PametovaPlocha zdroj(40, 40), pozadi(40, 40), cil(40, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            const Barva nahodna = static_cast<Barva>(stroj() & 0xFFFFFF);
            const Barva vyber[] = {PURPUROVA, CERNA, BILA, nahodna};
            zdroj.PSet(x, y, vyber[stroj() % 4]);
            pozadi.PSet(x, y, static_cast<Barva>(stroj() & 0xFFFFFF));
        }
    }
    zdroj.BkColor = CERVENA;
    ASSERT_TRUE(ProhledneKopirovani(zdroj, W, H, PURPUROVA, pozadi, cil));
    EXPECT_EQ(zdroj.BkColor, CERVENA);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            const Barva ocekavana = x >= W || y >= H                 ? BILA
                                    : zdroj.Point(x, y) == PURPUROVA ? pozadi.Point(x, y)
                                                                     : zdroj.Point(x, y);
            ASSERT_EQ(cil.Point(x, y), ocekavana) << x << ", " << y;
        }
    }
    const PametovaPlocha predtim = cil;
    EXPECT_FALSE(ProhledneKopirovani(zdroj, 0, H, PURPUROVA, pozadi, cil));
    EXPECT_TRUE(cil.StejnyObraz(predtim));
}

TEST_F(Sluzby, MaskaJeBilaVKlicoveBarve) {
    PametovaPlocha zdroj(3, 1), maska(3, 1, true);
    zdroj.PSet(0, 0, PURPUROVA);
    zdroj.PSet(1, 0, CERNA);
    ASSERT_TRUE(VytvorMasku(zdroj, 3, 1, maska, PURPUROVA));
    EXPECT_EQ(maska.Point(0, 0), BILA);
    EXPECT_EQ(maska.Point(1, 0), CERNA);
    EXPECT_EQ(maska.Point(2, 0), CERNA);
    EXPECT_FALSE(VytvorMasku(zdroj, 3, 0, maska, PURPUROVA));
}

}  // namespace
}  // namespace rysovna
