// Pushed parallels, of tangents and of triangles by heights: whatever the push, what is stored is
// parallel to the base and where the pointer was, and a push that is right costs nothing.

#include <algorithm>
#include <cmath>

#include "TecnyHra.h"
#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/Resitele.h"
#include "podpora/MeryBodu.h"
#include "rules/Troj2Dialog.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::testy {
namespace {

/// Pushes of each step: few in CI, more by the environment.
std::uint32_t Posunu() {
    return static_cast<std::uint32_t>(Prostredi("RYSOVNA_POSUNU", 3000));
}

constexpr double NEJVIC_STUPNU = 0.5, NEJVIC_OD_BODU = 1.5, NEJVIC_PX = 1.6;

Bod P1(const Utvar& u) {
    return {u.X1, u.Y1};
}
Bod P2(const Utvar& u) {
    return {u.X2, u.Y2};
}
Bod SmerCary(const Utvar& u) {
    return {u.X2 - u.X1, u.Y2 - u.Y1};
}
/// How far a line of this direction through p passes a point, along Y; along X if it is upright.
double Mimo(Bod bod, Bod p, Bod smer) {
    if (smer.X == 0) return std::abs(bod.X - p.X);
    return std::fabs(p.Y + static_cast<double>(bod.X - p.X) * smer.Y / smer.X - bod.Y);
}
Bod Nekde(Los& los) {
    const int x = los.Cislo(SIRKA_PLOCHY);
    return {x, los.Cislo(VYSKA_PLOCHY)};
}

/// What every push has to keep: the last object is a line that is parallel to its base.
void OverPosun(const Tabulky& t, const Utvar& zakladna) {
    const Utvar& u = t.Utvary[t.PocetUtvaru];
    ASSERT_EQ(u.Druh, ROVNOBEZKA);
    const double uhel = UhelPri({}, SmerCary(u), SmerCary(zakladna));
    ASSERT_LE(std::min(uhel, 180 - uhel), NEJVIC_STUPNU) << u.X1 << "," << u.Y1 << " " << u.X2;
    ASSERT_EQ((Bod{t.Trojice_tab[t.PocetUtvaru].X1, t.Trojice_tab[t.PocetUtvaru].Y1}), P1(u));
    // Drawn again from its record it is the same, its label's direction too.
    ASSERT_EQ(u.Smer, Smer(P1(u), P2(u), 0));
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
    std::uint32_t volnych = 0, uVlastnihoBodu = 0;
    for (std::uint32_t i = 1; i <= Posunu(); ++i) {
        SCOPED_TRACE(std::string(kod) + ", seed " + std::to_string(i));
        if (i % 10 == 1 || !hra.Chyby().empty()) hra.Znovu(i);
        if (hra.Faze() > faze) hra.Zpet();
        hra.zak.SpravneDo(faze);
        const Utvar a = hra.Pamet().Utvary[NajdiCaru(hra.Pamet(), "a")];
        hra.zak.Nastroj(Nastroj::Rovnobezka).Vyber(radek);
        // Every third press aims at the base's own first point, which has no name of its own.
        Bod stisk = Nekde(los);
        if (los.Cislo(3) == 0) stisk = los.Vedle(P1(a), 9);
        const auto chycen =
            hra.dialog.ChytilBy(static_cast<float>(stisk.X), static_cast<float>(stisk.Y));
        const Bod pres =
            hra.Misto(body[static_cast<std::size_t>(los.Cislo(static_cast<int>(body.size())))]);
        // Let go where the line misses its point by less than the 15 px that are allowed.
        Bod pustit = Nekde(los);
        if (los.Cislo(4) != 0) {
            const double podel = los.Mezi(-100, 100) / 100.0;
            pustit = {pres.X + Zaokrouhli(podel * SmerCary(a).X),
                      pres.Y + Zaokrouhli(podel * SmerCary(a).Y) + los.Mezi(-13, 13)};
        }
        if (std::abs(stisk.X - a.X1) < 8 && std::abs(stisk.Y - a.Y1) < 8) {
            ++uVlastnihoBodu;
            bool jiny = false;  // another object's point may catch it there
            for (int t = 1; t <= hra.Pamet().PocetTrojic; ++t) {
                const Trojice& z = hra.Pamet().Trojice_tab[t];
                jiny = jiny || (z.Jmeno1 != "a" && chycen == Bod{z.X1, z.Y1});
            }
            ASSERT_EQ(chycen.has_value(), jiny);
        }
        hra.Tahni(stisk, pustit);
        ASSERT_NO_FATAL_FAILURE(OverPosun(hra.Pamet(), a));
        const Utvar& u = hra.Posledni();
        ASSERT_EQ(P1(u), chycen.value_or(P1(u)));
        // Of the 15 px one goes for the rounding of the start.
        if (chycen || Mimo(pres, pustit, SmerCary(a)) >= 14) continue;
        ++volnych;
        ASSERT_EQ(hra.Chyby(), "");
        ASSERT_TRUE(std::ranges::any_of(body, [&](const char* b) {
            return OdPrimky(hra.Misto(b), P1(u), P2(u)) <= NEJVIC_OD_BODU;
        }));
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
    std::uint32_t daleko = 0;
    for (std::uint32_t i = 1; i <= Posunu(); ++i) {
        SCOPED_TRACE(i);
        s.Zacni(i).Oznac(MistoNaNacrtu("c").Stred());
        const Bod od = Nekde(los);
        Bod k = Nekde(los);
        if (od == k) k.X += 80;
        // Now and then the side is scrolled off the plane before the parallel is pushed.
        s.Nastroj(1).Vyber("AB").Napis(10).Tahni(od, k);
        if (i % 4 == 0) s.Posun(los.Mezi(-7, 7) * 20, los.Mezi(-7, 7) * 20);
        const Utvar strana = s.Pamet().Utvary[1];
        const Bod stisk = Nekde(los), kam = Nekde(los);
        s.Nastroj(3).Vyber("s úsečkou AB").Napis(10).Tahni(stisk, kam);
        ASSERT_NO_FATAL_FAILURE(OverPosun(s.Pamet(), strana));
        // The height that is judged is the pointer's own distance from the side.
        const Utvar& u = s.Pamet().Utvary[2];
        const double px = OdPrimky(kam, P1(strana), P2(strana));
        for (const Bod b : {P1(u), P2(u)})
            ASSERT_NEAR(OdPrimky(b, P1(strana), P2(strana)), px, NEJVIC_PX);
        ASSERT_LE(OdPrimky(kam, P1(u), P2(u)), NEJVIC_PX) << px;
        if (s.Pamet().Trojice_tab[2].PrvniNechyta) ++daleko;
    }
    EXPECT_GT(daleko, Posunu() / 20);
}

}  // namespace
}  // namespace rysovna::testy
