// What a press catches, what a drag reads and makes, where two objects meet.

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>

#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "engine/Resitele.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"
#include "rules/Prichytavani.h"
#include "rules/Tahy.h"
#include "rules/Uzavreni.h"
#include "zak/Los.h"

namespace rysovna::testy {
namespace {

Utvar Primy(std::string druh, Bod p1, Bod p2, std::string jmeno1 = "", std::string jmeno2 = "") {
    Utvar u;
    u.Druh = std::move(druh);
    std::tie(u.X1, u.Y1, u.X2, u.Y2) = std::tie(p1.X, p1.Y, p2.X, p2.Y);
    u.Smer = Smer(p1, p2, 0);
    u.Jmeno1 = std::move(jmeno1);
    u.Jmeno2 = std::move(jmeno2);
    return u;
}

Utvar Kruh(Bod stred, int r) {
    Utvar u = Primy(KRUZNICE, stred, {stred.X + r, stred.Y});
    u.Polomer = static_cast<float>(r);
    return u;
}

/// A snap record with its first point, and a second or third one where they have a name.
void PridejTrojici(Tabulky& t, Bod p1, const char* jmeno1, Bod p2 = {}, const char* jmeno2 = "",
                   Bod p3 = {}, const char* jmeno3 = "") {
    t.Trojice_tab[++t.PocetTrojic] = {p1.X, p1.Y, p2.X, p2.Y, p3.X, p3.Y, jmeno1, jmeno2, jmeno3};
}

TEST(Prichytavani, SedmPixeluChytiOsmUzNe) {
    Tabulky t;
    PridejTrojici(t, {100, 100}, "A");
    for (const auto& [x, y, chytil] :
         {std::tuple{107, 93, true}, {93, 107, true}, {108, 100, false}, {100, 92, false}}) {
        const Zachyt z = ZachytPosledni(t, static_cast<float>(x), static_cast<float>(y));
        EXPECT_EQ(z.Je, chytil) << x << "," << y;
        EXPECT_EQ(z.Misto, chytil ? (Bod{100, 100}) : (Bod{x, y}));
    }
    // Halves go to the even neighbour.
    EXPECT_EQ(ZachytPosledni(t, 20.5F, 21.5F).Misto, (Bod{20, 22}));
}

TEST(Prichytavani, PosledniTrojiceVyhravaUKruzniceBlizsi) {
    Tabulky t;
    PridejTrojici(t, {100, 100}, "A", {50, 50}, "B");
    PridejTrojici(t, {106, 106}, "C", {101, 101}, "D");
    EXPECT_EQ(ZachytPosledni(t, 101, 101).Misto, (Bod{106, 106}));  // its first point goes first
    EXPECT_EQ(ZachytNejblizsi(t, 101, 101).Misto, (Bod{100, 100}));
    EXPECT_EQ(ZachytNejblizsi(t, 105, 105).Misto, (Bod{106, 106}));
    // Nearer on one axis alone is not nearer.
    EXPECT_EQ(ZachytNejblizsi(t, 105, 101).Misto, (Bod{100, 100}));
    // Midpoints and points that a record lacks are no targets.
    t = {};
    PridejTrojici(t, {10, 10}, "k", {}, "", {200, 200}, "Sc");
    EXPECT_FALSE(ZachytPosledni(t, 1, 1).Je);
    EXPECT_FALSE(ZachytPosledni(t, 200, 200).Je);
    EXPECT_TRUE(ZachytNejblizsi(t, 200, 200, true).Je);
}

TEST(Odecty, DelkaUhelAVzdalenost) {
    const std::pair<double, double> delky[] = {{100, 12.5}, {101, 12.6}, {7.99, 0.9}, {96, 12}};
    for (const auto& [px, cm] : delky) EXPECT_DOUBLE_EQ(DelkaVCm(px), cm) << px;
    EXPECT_EQ(OdectiDelku(35.9), "4 cm");  // cut to 4.4, not rounded to 4.5
    EXPECT_EQ(OdectiDelku(36), "5 cm");    // a half goes up
    for (const auto& [text, cislo] : {std::pair{"12 cm", 12}, {"135°", 135}, {"-3 cm", -3}})
        EXPECT_EQ(CisloZOdectu(text), cislo);
    const Bod A{100, 100}, B{200, 100};
    for (const auto& [kam, uhel] : {std::pair{Bod{150, 50}, "45°"},
                                    {{100, 180}, "90°"},
                                    {{50, 150}, "135°"},
                                    {{20, 100}, "180°"}})
        EXPECT_EQ(OdectiUhel(A, B, A, kam), uhel);
    // Level with the base counts as plus; below it is minus, and the sign is judged.
    for (const auto& [kam, cm] :
         {std::pair{Bod{160, 60}, "5 cm"}, {{20, 100}, "0 cm"}, {{160, 140}, "-5 cm"}})
        EXPECT_EQ(OdectiVzdalenost(Primy(USECKA, A, B), {150, 100}, kam), cm);
}

Bod Nekde(hrac::Los& los) {
    const int x = los.Cislo(SIRKA_PLOCHY);
    return {x, los.Cislo(VYSKA_PLOCHY)};
}

TEST(Tahy, KolmiceJePresneKolmaARovnobezkaPresneRovnobezna) {
    hrac::Los los(2026);
    for (int i = 0; i < 2000; ++i) {
        const Bod p1 = Nekde(los), stisk = Nekde(los), kam = Nekde(los);
        Bod p2 = Nekde(los);
        if (i % 5 == 0) p2.X = p1.X;
        if (i % 7 == 0) p2.Y = p1.Y;
        if (p1 == p2) continue;
        const Utvar z = Primy(USECKA, p1, p2);
        const int zx = p2.X - p1.X, zy = p2.Y - p1.Y;
        const Bod start =
            BodNaZakladne(z, static_cast<float>(stisk.X), static_cast<float>(stisk.Y));
        // On the base's line up to the rounding of Y, above or below the press.
        EXPECT_EQ(start.X, zx == 0 ? p1.X : stisk.X);
        EXPECT_LE(std::fabs(1.0 * zx * (start.Y - p1.Y) - 1.0 * zy * (start.X - p1.X)),
                  0.5 * std::abs(zx));
        const Dvojice k = Kolme(z, start, kam);
        const int dx = k.P2.X - k.P1.X, dy = k.P2.Y - k.P1.Y;
        EXPECT_EQ(k.P1, start);
        EXPECT_EQ(dx * zx + dy * zy, 0);
        // To the side where the drag went; products of wild starts pass 32 bits.
        EXPECT_GE(1.0 * dx * (kam.X - start.X) + 1.0 * dy * (kam.Y - start.Y), 0);
        const Dvojice r = Rovnobezne(z, start, kam);
        EXPECT_EQ((Bod{r.P2.X - r.P1.X, r.P2.Y - r.P1.Y}), (Bod{zx, zy}));
    }
}

// ---- Closing ---------------------------------------------------------------------------------

/// A ray as the engine stores it, from a point through another.
Utvar PaprsekPres(Bod od, Bod pres) {
    PametovaPlocha plocha(SIRKA_PLOCHY, VYSKA_PLOCHY);
    Tabulky t;
    KresliPoloprimku(t, plocha, t.NovyUtvar("A", "X"),
                     {.Druh = POLOPRIMKA, .P1 = od, .P2 = pres, .Popis2 = "X"}, ANO);
    return t.Utvary[1];
}

TEST(Uzavreni, SpravnaDvojiceUtvaruSeVzdyUzavreVeSpravnemVrcholu) {
    const PametovaPlocha plocha(SIRKA_PLOCHY, VYSKA_PLOCHY);
    constexpr double TOLERANCE = 3;  // px
    hrac::Los los(2026);
    for (const std::string jmena : {"AB", "AC", "BC"}) {
        for (int i = 0, hranych = 0; hranych < 400; ++i) {
            const Bod od = Nekde(los), kam = Nekde(los);
            Bod vrchol{30 + los.Cislo(324), 30 + los.Cislo(280)};
            // Every fourth ray stands nearly upright or level.
            if (i % 8 == 3) vrchol.X = od.X + los.Mezi(-1, 1);
            if (i % 8 == 7) vrchol.Y = od.Y + los.Mezi(-1, 1);
            const auto daleko = [vrchol](Bod b) {
                return std::hypot(vrchol.X - b.X, vrchol.Y - b.Y);
            };
            const double delka = std::hypot(kam.X - od.X, kam.Y - od.Y);
            // Above 0 to the left of the side as the eye sees it; the vertex is there from A over B
            // to C.
            const double vlevo = (1.0 * (kam.Y - od.Y) * (vrchol.X - od.X) -
                                  1.0 * (kam.X - od.X) * (vrchol.Y - od.Y)) /
                                 (delka + 1e-9);
            if (vrchol.Y > 310 || delka < 80 || daleko(od) < 40 || daleko(kam) < 40 ||
                (jmena == "AC" ? vlevo > -25 : vlevo < 25))
                continue;
            ++hranych;
            // The sine of the angle at the vertex.
            const double ostrost = delka * std::fabs(vlevo) / (daleko(od) * daleko(kam));
            const auto kruh = [&](Bod s) {
                return Kruh(s, static_cast<int>(std::lround(daleko(s))));
            };
            const Utvar strana = Primy(USECKA, od, kam, jmena.substr(0, 1), jmena.substr(1));
            const Utvar kOd = kruh(od), kDo = kruh(kam);
            const Utvar pOd = PaprsekPres(od, vrchol), pDo = PaprsekPres(kam, vrchol);
            const std::pair<const Utvar*, const Utvar*> dvojice[] = {
                {&kOd, &kDo}, {&pOd, &kOd}, {&kOd, &pOd}, {&pDo, &kDo}, {&pOd, &pDo}};
            for (const auto& [prvni, druhy] : dvojice) {
                const Pruseciky body = PrusecikyUtvaru(plocha, *prvni, *druhy);
                ASSERT_NE(body.P1, BEZ_BODU);
                const Bod v = VyberVrchol(strana, body);
                // Rounded radii and points of the ray move it the more, the flatter they meet.
                EXPECT_LE(daleko(v) * ostrost, TOLERANCE)
                    << jmena << " " << i << " " << prvni->Druh << " " << druhy->Druh << " "
                    << vrchol.X << "," << vrchol.Y;
            }
        }
    }
}

TEST(Uzavreni, PrimkySKruzniciANeshody) {
    const PametovaPlocha plocha(SIRKA_PLOCHY, VYSKA_PLOCHY);
    const Utvar k = Kruh({150, 150}, 50);
    const Utvar r = Primy(ROVNOBEZKA, {20, 130}, {300, 130});
    const Pruseciky body = PrusecikyUtvaru(plocha, r, k);
    EXPECT_EQ(body.P1, (Bod{195, 130}));
    EXPECT_EQ(body.P2, (Bod{104, 130}));
    EXPECT_EQ(PrusecikyUtvaru(plocha, k, r).P1, body.P1);
    // Nothing in common, parallels, one centre, a line whose points coincide.
    const std::pair<Utvar, Utvar> nic[] = {
        {Primy(KOLMICE, {20, 20}, {300, 20}), k},
        {r, Primy(ROVNOBEZKA, {0, 30}, {280, 30})},
        {k, Kruh({150, 150}, 70)},
        {k, Primy(KOLMICE, {150, 150}, {150, 150})},
        {k, Primy(POLOPRIMKA, {250, 150}, {350, 150})},
        {Primy(POLOPRIMKA, {100, 150}, {100, 10}), Primy(POLOPRIMKA, {100, 150}, {200, 10})}};
    for (const auto& [a, b] : nic) EXPECT_EQ(PrusecikyUtvaru(plocha, a, b).P1, BEZ_BODU);
    // Straight above the first points of both, whichever of them is the upright one.
    const Utvar svisla = Primy(POLOPRIMKA, {100, 250}, {100, 10});
    const Utvar vodorovna = Primy(ROVNOBEZKA, {100, 170}, {300, 170});
    for (const auto& [a, b] : {std::pair(svisla, vodorovna), std::pair(vodorovna, svisla)}) {
        const Bod p = PrusecikyUtvaru(plocha, a, b).P1;
        EXPECT_NEAR(p.X, 100, 1);
        EXPECT_NEAR(p.Y, 170, 1);
    }
    // Lines from one point meet there, which is a crossing though no vertex.
    const Bod spolecny = PrusecikPrimek(svisla, Primy(PRIMKA, {100, 250}, {300, 200}));
    EXPECT_NEAR(spolecny.X, 100, 1);
    EXPECT_NEAR(spolecny.Y, 250, 1);
}

}  // namespace
}  // namespace rysovna::testy
