// Pushed parallels, on every board that has them: whatever the push, what is stored is parallel to
// the base and where the pointer was, and a push that is right costs nothing.

#include <algorithm>
#include <cmath>

#include "TecnyHra.h"
#include "engine/Resitele.h"
#include "podpora/Stul.h"
#include "rules/CtyrUDialog.h"
#include "rules/LichoDialog.h"
#include "rules/Troj2Dialog.h"
#include "zak/Ctyruhelnik.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::testy {
namespace {

/// Pushes of each step: few in CI, more by the environment.
int Posunu() {
    return Prostredi("RYSOVNA_POSUNU", 3000);
}

constexpr double NEJVIC_STUPNU = 0.5, NEJVIC_OD_BODU = 1.5, NEJVIC_CM = 0.2;

struct Cara {
    Bod P1, P2;
};
Cara Z(const Utvar& u) {
    return {{u.X1, u.Y1}, {u.X2, u.Y2}};
}
/// How far a line of this direction through p passes a point, along Y; along X if it is upright.
double Mimo(Bod bod, Bod p, const Utvar& smer) {
    if (smer.X1 == smer.X2) return std::abs(bod.X - p.X);
    const double sklon = static_cast<double>(smer.Y2 - smer.Y1) / (smer.X2 - smer.X1);
    return std::fabs(p.Y + (bod.X - p.X) * sklon - bod.Y);
}
double Sklon(const Cara& a, const Cara& b) {
    const double u = std::atan2(a.P2.Y - a.P1.Y, a.P2.X - a.P1.X);
    const double v = std::atan2(b.P2.Y - b.P1.Y, b.P2.X - b.P1.X);
    return std::fabs(std::remainder(u - v, PI)) * STUPNU_PULOTACKY / PI;
}

/// What every push has to keep: a stored line that is parallel to its base.
void OverPosun(const Tabulky& t, const Utvar& zakladna, int n) {
    const Utvar& u = t.Utvary[n];
    ASSERT_EQ(u.Druh, ROVNOBEZKA);
    ASSERT_LE(Sklon(Z(u), Z(zakladna)), NEJVIC_STUPNU)
        << u.X1 << "," << u.Y1 << " " << u.X2 << "," << u.Y2;
    ASSERT_EQ((Bod{t.Trojice_tab[n].X1, t.Trojice_tab[n].Y1}), (Bod{u.X1, u.Y1}));
    // Drawn again from its record it is the same, its label's direction too.
    ASSERT_EQ(u.Smer, Smer({u.X1, u.Y1}, {u.X2, u.Y2}, 0));
}

Bod Nekde(Los& los) {
    const int x = los.Cislo(SIRKA_PLOCHY);
    return {x, los.Cislo(VYSKA_PLOCHY)};
}

// ---- Tangents --------------------------------------------------------------------------------

/// The step of an exercise whose right tool is a parallel: drawn through one of these points.
struct KrokRovnobezky {
    const char *Kod, *Radek;
    int Faze;
    std::vector<const char*> Body;
};

class Tecny : public testing::TestWithParam<KrokRovnobezky> {};

TEST_P(Tecny, PosunJeRovnobezkouAPravyNestojiNic) {
    const auto& [kod, radek, faze, body] = GetParam();
    TecnyHra hra(kod);
    Los los(7);
    int volnych = 0;
    int uVlastnihoBodu = 0;
    for (std::uint32_t i = 1; i <= static_cast<std::uint32_t>(Posunu()); ++i) {
        SCOPED_TRACE(std::string(kod) + ", seed " + std::to_string(i));
        if (i % 10 == 1) hra.Znovu(i);
        if (hra.Faze() > faze) hra.Zpet();
        hra.zak.SpravneDo(faze);
        const int chyb = hra.Pamet().PocetChybnychKroku;
        const Utvar a = hra.Pamet().Utvary[NajdiCaru(hra.Pamet(), "a")];
        const int n = hra.Pamet().PocetUtvaru + 1;
        hra.zak.Nastroj(Nastroj::Rovnobezka).Vyber(radek);
        // Every third press aims at the base's own first point, which has no name of its own.
        Bod stisk = Nekde(los);
        if (los.Cislo(3) == 0) stisk = los.Vedle({a.X1, a.Y1}, 9);
        hra.dialog.StiskPlochy(static_cast<float>(stisk.X), static_cast<float>(stisk.Y));
        const bool chycena = hra.dialog.Stav().Zachyceno;
        const Bod start = hra.dialog.Stav().Start;
        const Bod pres = NajdiBod(
            hra.Pamet(), body[static_cast<std::size_t>(los.Cislo(static_cast<int>(body.size())))]);
        // Let go where the line misses its point by less than the 15 px that are allowed.
        Bod pustit = Nekde(los);
        if (los.Cislo(4) != 0) {
            const double podel = los.Mezi(-100, 100) / 100.0;
            pustit = {pres.X + Zaokrouhli(podel * (a.X2 - a.X1)),
                      pres.Y + Zaokrouhli(podel * (a.Y2 - a.Y1)) + los.Mezi(-13, 13)};
        }
        // Of the 15 px one goes for the rounding of the start.
        const bool mireny = !chycena && Mimo(pres, pustit, a) < 14;
        hra.dialog.PusteniPlochy(static_cast<float>(pustit.X), static_cast<float>(pustit.Y));
        OverPosun(hra.Pamet(), a, n);
        if (testing::Test::HasFatalFailure()) return;
        const Cara cara = Z(hra.Pamet().Utvary[n]);
        if (std::abs(stisk.X - a.X1) < 8 && std::abs(stisk.Y - a.Y1) < 8) {
            ++uVlastnihoBodu;
            bool jiny = false;  // another object's point may catch it there
            for (int t = 1; t < n; ++t) {
                jiny = jiny ||
                       (hra.Pamet().Trojice_tab[t].Jmeno1 != "a" &&
                        start == Bod{hra.Pamet().Trojice_tab[t].X1, hra.Pamet().Trojice_tab[t].Y1});
            }
            ASSERT_EQ(chycena, jiny);
        }
        if (chycena) {
            ASSERT_EQ(cara.P1, start);
        } else if (mireny) {
            ++volnych;
            ASSERT_EQ(hra.Pamet().PocetChybnychKroku, chyb)
                << hra.Pamet().ChybneKroky[hra.Pamet().PocetChybnychKroku].Text;
            double odBodu = 1000;
            for (const char* b : body)
                odBodu = std::min(odBodu, OdPrimky(NajdiBod(hra.Pamet(), b), cara.P1, cara.P2));
            ASSERT_LE(odBodu, NEJVIC_OD_BODU);
        }
        if (hra.Pamet().PocetChybnychKroku > chyb) hra.Znovu(i);
    }
    EXPECT_GT(volnych, Posunu() / 4);
    EXPECT_GT(uVlastnihoBodu, Posunu() / 20);
}

INSTANTIATE_TEST_SUITE_P(Kroky, Tecny,
                         testing::Values(KrokRovnobezky{"01", "s přímkou a", 4, {"A1", "A2"}},
                                         KrokRovnobezky{"02", "s přímkou a", 1, {"S"}}));

// ---- Triangles by heights --------------------------------------------------------------------

TEST(Vysky, RovnobezkaJeTamKdeUkazatel) {
    Stul<Troj2Dialog> s(4);
    Los los(11);
    int daleko = 0;
    for (std::uint32_t i = 1; i <= static_cast<std::uint32_t>(Posunu()); ++i) {
        SCOPED_TRACE("seed " + std::to_string(i));
        s.Zacni(i).Oznac(MistoNaNacrtu("c").Stred());
        const Bod od = Nekde(los);
        Bod k = Nekde(los);
        if (od == k) k.X += 80;
        // Now and then the side is scrolled off the plane before the parallel is pushed.
        s.Nastroj(1).Vyber("AB").Napis(10).Tahni(od, k);
        if (i % 4 == 0) s.Posun(los.Mezi(-7, 7) * 20, los.Mezi(-7, 7) * 20);
        const Utvar strana = s.Pamet().Utvary[1];
        s.Nastroj(3).Vyber("s úsečkou AB").Napis(10);
        const Bod stisk = Nekde(los);
        s.dialog.StiskPlochy(static_cast<float>(stisk.X), static_cast<float>(stisk.Y));
        const Bod kam = Nekde(los);
        s.dialog.PusteniPlochy(static_cast<float>(kam.X), static_cast<float>(kam.Y));
        OverPosun(s.Pamet(), strana, 2);
        if (testing::Test::HasFatalFailure()) return;
        const Cara cara = Z(s.Pamet().Utvary[2]);
        // The height that is judged is the pointer's own distance from the side.
        const Bod A{strana.X1, strana.Y1};
        const Bod B{strana.X2, strana.Y2};
        const double cm = OdPrimky(kam, A, B) / 8;
        for (const Bod b : {cara.P1, cara.P2}) ASSERT_NEAR(OdPrimky(b, A, B) / 8, cm, NEJVIC_CM);
        ASSERT_LE(OdPrimky(kam, cara.P1, cara.P2) / 8, NEJVIC_CM) << cm;
        if (s.Pamet().Trojice_tab[2].PrvniNechyta) ++daleko;
    }
    EXPECT_GT(daleko, Posunu() / 20);
}

// ---- Quadrilaterals --------------------------------------------------------------------------

TEST(Zakladny, RovnobezkaVrcholemProchaziVrcholem) {
    Stul<LichoDialog> s(11);
    Los los(13);
    int vrcholem = 0;
    for (std::uint32_t i = 1; i <= static_cast<std::uint32_t>(Posunu()); ++i) {
        SCOPED_TRACE("seed " + std::to_string(i));
        s.Zacni(i);
        DokonalyCtyruhelnik zak(s, i);
        zak.Oznac();
        zak.Trojuhelnik();
        s.Posun(los.Mezi(-7, 7) * 20, los.Mezi(-7, 7) * 20);
        s.Nastroj(3);
        const auto radky = s.dialog.UkazPanel().Vyber.Radky;
        const std::string strana =
            radky[static_cast<std::size_t>(los.Cislo(static_cast<int>(radky.size())))].Text;
        s.Vyber(strana);
        const Utvar zakladna = s.Pamet().Utvary[s.Pamet().VybranyUtvar];
        Bod treti{};
        for (const char c : s.Zaznam().Text2) {
            if (strana.find(c) == std::string::npos) treti = VrcholNaPlose(s.Pamet(), {&c, 1});
        }
        const Bod stisk = Nekde(los);
        s.dialog.StiskPlochy(static_cast<float>(stisk.X), static_cast<float>(stisk.Y));
        const bool mireny = los.Ano();
        const Bod kam = mireny ? los.Vedle(treti, 4) : Nekde(los);
        s.dialog.PusteniPlochy(static_cast<float>(kam.X), static_cast<float>(kam.Y));
        OverPosun(s.Pamet(), zakladna, 4);
        if (testing::Test::HasFatalFailure()) return;
        const Cara cara = Z(s.Pamet().Utvary[4]);
        if (mireny) {
            ++vrcholem;
            ASSERT_EQ(cara.P1, treti);
        } else if (cara.P1 != treti) {
            ASSERT_LE(OdPrimky(kam, cara.P1, cara.P2) / 8, NEJVIC_CM);
        }
        ASSERT_EQ(s.Pamet().PocetChybnychKroku, 0);
    }
    EXPECT_GT(vrcholem, Posunu() / 4);
}

}  // namespace
}  // namespace rysovna::testy
