// The figures of the tangent exercises: solvable, readable, found soon; and the careless pupil.

#include <cmath>
#include <gtest/gtest.h>

#include "TecnyHra.h"
#include "engine/Kresleni.h"
#include "rules/Misc.h"
#include "rules/TecnyZadani.h"

namespace rysovna::testy {
namespace {

double Vzdal(Bod a, Bod b) {
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

/// Degrees of a line from the nearer axis.
double OdOsy(Bod a, Bod b) {
    const double u = std::atan2(std::abs(a.Y - b.Y), std::abs(a.X - b.X)) * 180 / PI;
    return std::min(u, 90 - u);
}

class Figury : public testing::TestWithParam<const char*> {};

TEST_P(Figury, JsouResitelneACitelne) {
    const std::string kod = GetParam();
    TecnyHra hra(kod);
    const int kolik = Prostredi("RYSOVNA_FIGUR", 3000);
    double pokusu = 0;
    for (int i = 0; i < kolik; ++i) {
        SCOPED_TRACE(i);
        const Figura f = VylosujFiguru(kod, 384, 335, hra.Pamet().Generator);
        pokusu += f.Pokusu;
        static_cast<Tabulky&>(hra.Pamet()) = {};
        for (const DanyUtvar& d : f.Utvary) {
            Utvar& u = hra.Pamet().Utvary[++hra.Pamet().PocetUtvaru];
            u.Druh = d.Druh;
            u.Jmeno1 = d.Jmeno1;
            u.Jmeno2 = d.Jmeno2;
            u.X1 = d.P1.X;
            u.Y1 = d.P1.Y;
            u.X2 = d.P2.X;
            u.Y2 = d.P2.Y;
            u.Polomer = static_cast<float>(std::abs(d.P2.X - d.P1.X));
            if (d.Druh == PRIMKA || d.Druh == USECKA) {
                ASSERT_GE(OdOsy(d.P1, d.P2), 5);
            }
        }
        // Given and marked points, midpoints of "09" left out.
        std::vector<Bod> body;
        for (const char* jmeno : {"S", "A", "B"}) {
            if (!(NajdiBod(hra.Pamet(), jmeno) == BEZ_BODU))
                body.push_back(NajdiBod(hra.Pamet(), jmeno));
        }
        const std::size_t danych = body.size();
        for (const Bod b : hra.zak.Kandidati()) body.push_back(b);
        const auto stred = [](Bod a, Bod b) { return StredUseckyBodu(a, b); };
        if (kod == "04" || kod == "07") body.push_back(stred(body[0], body[danych]));
        if (kod == "03" || kod == "05" || kod == "06") body.push_back(stred(body[0], body[1]));
        for (std::size_t a = 0; a < body.size(); ++a) {
            ASSERT_GE(std::min(body[a].X, body[a].Y), 20);
            ASSERT_LE(body[a].X, 364);
            ASSERT_LE(body[a].Y, 315);
            for (std::size_t b = 0; b < a; ++b) ASSERT_GE(Vzdal(body[a], body[b]), 16);
        }
        if (kod == "07") {
            const Bod posun{f.Utvary[1].P1.X - f.Utvary[0].P1.X,
                            f.Utvary[1].P1.Y - f.Utvary[0].P1.Y};
            ASSERT_GE(OdOsy(f.Utvary[0].P1, f.Utvary[0].P2), 15);
            ASSERT_GE(std::hypot(posun.X, posun.Y), 100);
            ASSERT_LE(std::hypot(posun.X, posun.Y), 200);
        }
        if (kod == "09") {
            ASSERT_GE(f.Utvary[1].P2.X - f.Utvary[0].P2.X, 16);
        }
    }
    EXPECT_LT(pokusu / kolik, 200);
    RecordProperty("pokusu", std::to_string(pokusu / kolik));
}

/// Gets on with an example as it was left: back as far as it goes, then the right steps, as far as
/// there are their rows. True if that ends it.
bool Dodelej(TecnyHra& hra) {
    TecnyDialog& d = hra.dialog;
    d.ZavriSeznam();
    if (d.Stav().Znacky == 0) hra.zak.Oznac();
    if (d.Stav().CekaNaKresleni && !hra.P().Nastroje[4].Zivy()) hra.Tahni({200, 200}, {210, 150});
    for (int kolo = 0; kolo < 3 && !d.Hotova(); ++kolo) {
        while (hra.P().Nastroje[4].Zivy()) hra.Zpet();
        for (int pred = 0; pred != hra.Faze();) {
            pred = hra.Faze();
            try {
                hra.zak.SpravnyKrok();
            } catch (const hrac::NejdeUdelat&) {
                // The row of a point that was never made: any other one.
                if (hra.P().Vyber.Otevreny) d.VyberRadku(1);
                if (d.Stav().CekaNaKresleni) hra.Tahni({200, 200}, {210, 150});
            }
        }
    }
    return d.Hotova();
}

/// The careless pupil: presses whatever there is, many figures of each exercise. Nothing faults, a
/// step is always done or undone, the example can still be finished, and the charges add up.
TEST_P(Figury, NedbalyZak) {
    TecnyHra hra(GetParam());
    TecnyDialog& d = hra.dialog;
    const int kolik = Prostredi("RYSOVNA_FIGUR", 1000);
    for (int i = 0; i < kolik; ++i) {
        hra.Znovu(static_cast<std::uint32_t>(i + 1));
        // Every other figure some steps in, which carelessness alone hardly gets to.
        if (i % 2 == 1)
            hra.zak.SpravneDo(hra.zak.Cislo(static_cast<int>(d.Hrane()->Kroky.size())) + 1);
        for (int udalost = 0; udalost < 40; ++udalost) {
            const auto f = [](int a) { return static_cast<float>(a); };
            const Bod b{hra.zak.Cislo(500) - 60, hra.zak.Cislo(450) - 60};
            switch (hra.zak.Cislo(8)) {
                case 0:
                    d.StiskNacrtu(f(b.X), f(b.Y));
                    break;
                case 1:
                    if (hra.zak.Cislo(4) == 0)
                        d.Posun(hra.zak.Cislo(3) * 20 - 20, hra.zak.Cislo(3) * 20 - 20);
                    break;
                case 2:
                    if (hra.zak.Cislo(6) == 0) d.StiskNastroje(5);
                    break;
                case 3:
                    d.VyberRadku(hra.zak.Cislo(4));
                    break;
                case 4:
                    if (hra.zak.Cislo(4) == 0) d.ZavriSeznam();
                    break;
                case 5:
                    d.StiskNastroje(hra.zak.Cislo(7));
                    if (hra.P().Vyber.Otevreny) d.VyberRadku(1 + hra.zak.Cislo(3));
                    break;
                default: {
                    Bod odkud = b;
                    if (hra.zak.Cislo(2) == 0 && hra.Pamet().PocetUtvaru > 0) {
                        const Utvar& u =
                            hra.Pamet().Utvary[1 + hra.zak.Cislo(hra.Pamet().PocetUtvaru)];
                        odkud = {u.X1, u.Y1};
                    }
                    if (hra.zak.Cislo(3) == 0 && !(d.Stav().Pary.Misto[0] == BEZ_BODU)) {
                        odkud = d.Stav().Pary.Misto[0];
                    }
                    d.StiskPlochy(f(odkud.X), f(odkud.Y));
                    static_cast<void>(d.Tah(f(b.X), f(b.Y)));
                    d.PusteniPlochy(f(b.X), f(b.Y));
                }
            }
            const int krok = hra.Faze();
            ASSERT_GE(krok, 1);
            ASSERT_LE(krok, static_cast<int>(d.Hrane()->Kroky.size()) + 1);
            ASSERT_EQ(hra.Pamet().PocetUtvaru, hra.Pamet().PocetTrojic);
            for (int u = 1; u <= hra.Pamet().PocetUtvaru; ++u) {
                ASSERT_GT(hra.Pamet().Utvary[u].X1, -5000);
                ASSERT_FALSE(hra.Pamet().Utvary[u].Druh.empty());
            }
            const Panel p = hra.P();
            // There always is a way on.
            bool zive = p.Vyber.Otevreny || d.Stav().CekaNaKresleni || d.Stav().Znacky == 0;
            for (const MistoNastroje& n : p.Nastroje) zive = zive || n.Zivy();
            ASSERT_TRUE(zive) << "figure " << i;
            if (hra.Pamet().PocetChybnychKroku > 60) break;  // a real example holds at most 100
        }
        ASSERT_TRUE(Dodelej(hra)) << "figure " << i << ", step " << hra.Faze();
        d.Zkontroluj();
        int soucet = 0;
        for (int k = 1; k <= hra.Pamet().PocetChybnychKroku; ++k)
            soucet += hra.Pamet().ChybneKroky[k].Body;
        ASSERT_EQ(hra.Pamet().SoucetZapornychBodu, soucet);
    }
}

INSTANTIATE_TEST_SUITE_P(Cviceni, Figury,
                         testing::Values("01", "02", "03", "04", "05", "06", "07", "08", "09"));

}  // namespace
}  // namespace rysovna::testy
