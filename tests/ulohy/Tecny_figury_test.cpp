// The figures of the tangent exercises: solvable, readable, found soon; and the careless pupil.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string_view>

#include "TecnyHra.h"
#include "engine/Miry.h"
#include "podpora/Bloud.h"
#include "podpora/MeryBodu.h"
#include "rules/TecnyKroky.h"
#include "rules/TecnyNacrt.h"
#include "rules/TecnyZadani.h"

namespace rysovna::testy {
namespace {

/// Degrees of a line from the nearer axis.
double OdOsy(Bod a, Bod b) {
    const double u = std::atan2(std::abs(a.Y - b.Y), std::abs(a.X - b.X)) * 180 / PI;
    return std::min(u, 90 - u);
}

class Figury : public testing::TestWithParam<const char*> {};

TEST_P(Figury, JsouResitelneACitelne) {
    const std::string kod = GetParam();
    TecnyHra hra(kod);
    PametovaPlocha plocha(SIRKA_PLOCHY, VYSKA_PLOCHY);
    const int kolik = Prostredi("RYSOVNA_FIGUR", 3000);
    double pokusu = 0;
    for (int i = 0; i < kolik; ++i) {
        SCOPED_TRACE(i);
        const Figura f = VylosujFiguru(kod, SIRKA_PLOCHY, VYSKA_PLOCHY, hra.Pamet().Generator);
        pokusu += f.Pokusu;
        static_cast<Tabulky&>(hra.Pamet()) = {};
        NakresliFiguru(hra.Pamet(), plocha, f);
        plocha.Cls();
        for (const DanyUtvar& d : f.Utvary) {
            const bool lezi = d.Druh == PRIMKA || d.Druh == USECKA;
            ASSERT_GE(lezi ? OdOsy(d.P1, d.P2) : 90, 5);
        }
        // Given and marked points, midpoints of "09" left out.
        std::vector<Bod> body;
        for (const char* jmeno : {"S", "A", "B"}) {
            if (hra.Misto(jmeno) != BEZ_BODU) body.push_back(hra.Misto(jmeno));
        }
        const std::size_t danych = body.size();
        for (const Bod b : hra.zak.Kandidati()) body.push_back(b);
        if (kod == "04" || kod == "07") body.push_back(StredUseckyBodu(body[0], body[danych]));
        if (kod == "03" || kod == "05" || kod == "06")
            body.push_back(StredUseckyBodu(body[0], body[1]));
        for (std::size_t a = 0; a < body.size(); ++a) {
            ASSERT_GE(std::min(body[a].X, body[a].Y), 20);
            ASSERT_LE(body[a].X, 364);
            ASSERT_LE(body[a].Y, 315);
            for (std::size_t b = 0; b < a; ++b) ASSERT_GE(Delka(body[a], body[b]), 16);
        }
        const DanyUtvar &prvni = f.Utvary[0], &druhy = f.Utvary[1];
        if (kod == "07") {
            ASSERT_GE(OdOsy(prvni.P1, prvni.P2), 15);
            ASSERT_GE(Delka(prvni.P1, druhy.P1), 100);
            ASSERT_LE(Delka(prvni.P1, druhy.P1), 200);
        }
        ASSERT_GE(kod == "09" ? druhy.P2.X - prvni.P2.X : 16, 16);
    }
    EXPECT_LT(pokusu / kolik, 200);
}

// Otherwise the mark would never be asked for, and nobody would miss it.
TEST(Nacrty, MajiVseCoJeDano) {
    for (const Cviceni& c : VsechnaCviceni()) {
        const Nacrt nacrt = NacrtTecny(c.Kod);
        for (const std::string_view jmeno : c.Dane) {
            EXPECT_TRUE(jmeno.empty() ||
                        std::ranges::count(nacrt.Prvky, jmeno, &PrvekNacrtu::Jmeno) == 1)
                << c.Kod << " " << jmeno;
        }
    }
}

/// Gets on with an example as it was left: back as far as it goes, then the right steps, as far as
/// there are their rows. True if that ends it.
bool Dodelej(TecnyHra& hra) {
    TecnyDialog& d = hra.dialog;
    const auto dotahni = [&] {
        if (d.Stav().CekaNaKresleni) hra.Tahni({200, 200}, {210, 150});
    };
    d.ZavriSeznam();
    if (d.Stav().Znacky == 0) hra.zak.Oznac();
    if (!hra.P().Nastroje[4].Zivy()) dotahni();
    for (int kolo = 0; kolo < 3 && !d.Hotova(); ++kolo) {
        while (hra.P().Nastroje[4].Zivy()) hra.Zpet();
        for (int pred = 0; pred != hra.Faze();) {
            pred = hra.Faze();
            try {
                hra.zak.SpravnyKrok();
            } catch (const hrac::NejdeUdelat&) {
                // The row of a point that was never made: any other one.
                d.VyberRadku(1);
                dotahni();
            }
        }
    }
    return d.Hotova();
}

/// The careless pupil, many figures of each exercise. Nothing faults, a step is always done or
/// undone, the example can still be finished, and the charges add up.
TEST_P(Figury, NedbalyZak) {
    TecnyHra hra(GetParam());
    TecnyDialog& d = hra.dialog;
    std::mt19937 los(7);
    const int kolik = Prostredi("RYSOVNA_FIGUR", 1000);
    for (int i = 0; i < kolik; ++i) {
        SCOPED_TRACE(i);
        hra.Znovu(static_cast<std::uint32_t>(i + 1));
        const int kroku = static_cast<int>(d.Hrane()->Kroky.size());
        // Every other figure some steps in, which carelessness alone hardly gets to.
        if (i % 2 == 1) hra.zak.SpravneDo(hra.zak.Cislo(kroku) + 1);
        // A real example holds at most 100 wrong steps.
        for (int n = 0; n < 40 && hra.Pamet().PocetChybnychKroku <= 60; ++n) {
            Bloud(d, los, d.Stav().Pary.Misto[0]);
            ASSERT_GE(hra.Faze(), 1);
            ASSERT_LE(hra.Faze(), kroku + 1);
            ASSERT_EQ(hra.Pamet().PocetUtvaru, hra.Pamet().PocetTrojic);
            for (int u = 1; u <= hra.Pamet().PocetUtvaru; ++u) {
                ASSERT_GT(hra.Pamet().Utvary[u].X1, -5000);
                ASSERT_FALSE(hra.Pamet().Utvary[u].Druh.empty());
            }
            const Panel p = hra.P();
            ASSERT_TRUE(p.Vyber.Otevreny || d.Stav().CekaNaKresleni || d.Stav().Znacky == 0 ||
                        std::ranges::any_of(p.Nastroje, &MistoNastroje::Zivy))
                << "there always is a way on";
        }
        ASSERT_TRUE(Dodelej(hra)) << "step " << hra.Faze();
        d.Zkontroluj();
        int soucet = 0;
        for (int k = 1; k <= hra.Pamet().PocetChybnychKroku; ++k)
            soucet += hra.Pamet().ChybneKroky[k].Body;
        ASSERT_EQ(hra.Pamet().SoucetZapornychBodu, soucet);
    }
}

INSTANTIATE_TEST_SUITE_P(Cviceni, Figury, CVICENI);

}  // namespace
}  // namespace rysovna::testy
