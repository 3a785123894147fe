#include "engine/Kresleni.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "base/Chyba.h"
#include "engine/Miry.h"
#include "podpora/Konstrukce.h"
#include "podpora/Tisk.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

/// On a black plane no label finds a free spot, so each is printed where its sector puts it.
class Kresleni : public testing::Test {
protected:
    Kresleni() {
        plocha.BackColor = CERNA;
        plocha.Cls();
        Znovu();
    }
    void Znovu() {
        t = {};
        plocha.carky.clear();
        plocha.napisy.clear();
    }
    Bod PosledniNapis() const {
        const auto& napis = plocha.napisy.back();
        return {static_cast<int>(napis.x), static_cast<int>(napis.y)};
    }
    /// The lines drawn last, in order.
    void CekaCarky(const std::vector<std::array<double, 4>>& cekane, const char* co) const {
        ASSERT_LE(cekane.size(), plocha.carky.size()) << co;
        auto c = plocha.carky.end() - static_cast<std::ptrdiff_t>(cekane.size());
        for (const auto& [x1, y1, x2, y2] : cekane) {
            const double rozdil = std::abs(c->x1 - x1) + std::abs(c->y1 - y1) +
                                  std::abs(c->x2 - x2) + std::abs(c->y2 - y2);
            EXPECT_LT(rozdil, 1e-4) << co << ", to " << x2 << ", " << y2;
            ++c;
        }
    }
    void Kresli(int i, const Nakres& k, int nova = ANO) { testy::Kresli(t, plocha, i, k, nova); }
    /// A segment AB from (150, 150), with marks.
    void Usecka(int dx, int dy) {
        Kresli(t.NovyUtvar("A", "B"),
               {USECKA, {150, 150}, {150 + dx, 150 + dy}, "A", "B", 5, "", ANO});
    }

    Tabulky t;
    ZaznamPlane plocha{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

TEST_F(Kresleni, SektorUrcujePopisAKriz) {
    // Across: half of the tick, from the point; forward: the stub beyond the second end.
    const struct {
        const char* sektor;
        int dx, dy;
        Bod popis;
        double pricneX, pricneY, vpredX, vpredY;
    } pripady[] = {
        {"E0", 80, 0, {-3, 10}, 0, 5, 5, 0},
        {"1", 80, -40, {0, 10}, 2, 4, 4, -2},
        {"1, its limit", 80, -80, {0, 10}, 4, 4, 4, -4},
        {"2", 40, -80, {10, 0}, 4, 2, 2, -4},
        {"E90", 0, -80, {10, -3}, 5, 0, 0, -5},
        {"3", -40, -80, {-13, 0}, 4, -2, -2, -4},
        {"3, its limit", -80, -80, {-13, 0}, 4, -4, -4, -4},
        {"4", -80, -40, {-12, 5}, -2, 4, -4, -2},
        {"E180", -80, 0, {-3, 10}, 0, 5, -5, 0},
        {"5", -80, 40, {0, 10}, 2, 4, -4, 2},
        {"5, its limit", -80, 80, {0, 10}, 4, 4, -4, 4},
        {"6", -40, 80, {10, 0}, 4, 2, -2, 4},
        {"E270", 0, 80, {10, -3}, 5, 0, 0, 5},
        {"7", 40, 80, {-15, 0}, 4, -2, 2, 4},
        {"7, its limit", 80, 80, {-15, 0}, 4, -4, 4, 4},
        {"8", 80, 40, {-5, 5}, -2, 4, 4, 2},
    };
    for (const auto& p : pripady) {
        Znovu();
        Usecka(p.dx, p.dy);
        const double x = 150 + p.dx, y = 150 + p.dy;
        EXPECT_EQ(PosledniNapis(), (Bod{150 + p.dx + p.popis.X, 150 + p.dy + p.popis.Y}))
            << p.sektor;
        const double px = p.pricneX, py = p.pricneY, vx = p.vpredX, vy = p.vpredY;
        CekaCarky({{150, 150, x, y},
                   {150 - vx, 150 - vy, 150, 150},
                   {x, y, x + vx, y + vy},
                   {150 - px, 150 - py, 150 + px, 150 + py},
                   {x - px, y - py, x + px, y + py}},
                  p.sektor);
        // A point on that segment wears the whole cross and the same sector's label offset; so
        // does, with the tick alone, a ray in the same direction.
        Kresli(t.NovyUtvar("X", ""), {BOD, {60, 70}, {}, "X", "", 0, "AB"});
        EXPECT_EQ(PosledniNapis(), (Bod{60 + p.popis.X, 70 + p.popis.Y})) << p.sektor;
        CekaCarky({{60 - px, 70 - py, 60 + px, 70 + py}, {60 - vx, 70 - vy, 60 + vx, 70 + vy}},
                  p.sektor);
        Kresli(t.NovyUtvar("A", "X"), {POLOPRIMKA, {150, 150}, {150 + p.dx, 150 + p.dy}, "", "X"},
               NE);
        CekaCarky({{x - px, y - py, x + px, y + py}}, p.sektor);
    }
    // The limit between two sectors is the lower one's, whatever the length.
    for (int n = 1; n <= 200; ++n) {
        Znovu();
        Usecka(n, -n);
        EXPECT_EQ(PosledniNapis(), (Bod{150 + n, 160 - n}));
    }
}

TEST_F(Kresleni, DruhyBodSePosuneNaOkraj) {
    const std::tuple<const char*, Bod, Bod, Bod> pripady[] = {
        {"right", {100, 100}, {200, 100}, {369, 100}},
        {"left", {200, 100}, {100, 100}, {15, 100}},
        {"up", {100, 100}, {100, 50}, {100, 10}},
        {"down", {100, 100}, {100, 150}, {100, 315}},
        {"steep up", {100, 100}, {101, 50}, {102, 10}},
        {"the product is rounded", {269, 101}, {469, 102}, {369, 101}},
        {"at the upper edge the sum is", {101, 100}, {102, -80}, {102, 10}},
        {"no drag above the box", {50, 5}, {50, 5}, {50, 5}},
        {"level above the box", {100, 5}, {200, 5}, {369, 10}},
        {"start on its edge", {369, 100}, {380, 100}, {380, 100}},
        {"start above, going up aslant", {100, 5}, {200, 3}, {200, 3}},
        {"start below, going down", {100, 330}, {100, 334}, {100, 334}},
    };
    for (const auto& [co, od, k, ocekavany] : pripady) {
        Znovu();
        Kresli(1, {POLOPRIMKA, od, k, "", "X"});
        Kresli(2, {KOLMICE, od, k});
        for (const int i : {1, 2})
            EXPECT_EQ((Bod{t.Utvary[i].X2, t.Utvary[i].Y2}), ocekavany) << co;
        EXPECT_EQ((Bod{t.Trojice_tab[1].X2, t.Trojice_tab[1].Y2}), ocekavany) << co;
        // A redraw leaves the stored point where it is.
        Kresli(2, {PRIMKA, od, k}, NE);
        EXPECT_EQ((Bod{t.Utvary[2].X2, t.Utvary[2].Y2}), k) << co;
    }
}

TEST_F(Kresleni, CaryVedouKOkrajumPlochyATouzZUlozenychHodnot) {
    Kresli(1, {PRIMKA, {100, 100}, {102, 101}, "", "", 7.5F}, NE);
    CekaCarky({{0, 50, 384, 242}}, "line");
    Kresli(2, {KOLMICE, {30, 100}, {30, 90}}, NE);
    CekaCarky({{30, 0, 30, 335}}, "upright");
    const std::tuple<Bod, double, double> paprsky[] = {
        {{100, 90}, 100, 0}, {{100, 190}, 100, 335}, {{98, 101}, 0, 150}};
    for (const auto& [k, x, y] : paprsky) {
        Kresli(3, {POLOPRIMKA, {100, 100}, k, "", "X"}, NE);
        plocha.carky.pop_back();  // the tick
        CekaCarky({{100, 100, x, y}}, "ray");
    }
    // A redraw from the stored values leads the very same line.
    Kresli(4, {POLOPRIMKA, {100, 101}, {171, 130}, "", "X"});
    const Utvar u = t.Utvary[4];
    Kresli(4, {POLOPRIMKA, {u.X1, u.Y1}, {u.X2, u.Y2}, "", "X"}, NE);
    EXPECT_EQ(plocha.carky.end()[-2], plocha.carky.end()[-4]);
}

TEST_F(Kresleni, UseckaZapisujeZaznamATrojici) {
    Usecka(25, 10);
    // The middle at 162.5 goes to the even pixel.
    EXPECT_EQ(t.Trojice_tab[1], (Trojice{150, 150, 175, 160, 162, 155, "A", "B", "Sc"}));
    // Without its line a segment still gets its two labels, and no mark.
    const auto car = plocha.carky.size();
    Kresli(t.NovyUtvar("B", "A"), {USECKA, {150, 150}, {175, 160}, "B", "A", 5, "", ANO, NE}, NE);
    EXPECT_EQ(plocha.carky.size(), car);
    EXPECT_EQ(plocha.napisy.size(), 4U);
    EXPECT_EQ(t.PocetTrojic, 1);
    EXPECT_EQ(t.Trojice_tab[1].Jmeno1 + t.Utvary[2].Jmeno3, "B");
}

TEST_F(Kresleni, KrizBoduHledaPosledniPrimkuTohoJmena) {
    Usecka(80, 0);
    Kresli(t.NovyUtvar("B", "A"), {USECKA, {10, 10}, {10, 90}, "", "", 5});
    plocha.DrawWidth = 2;
    Kresli(t.NovyUtvar("X", ""), {BOD, {60, 70}, {}, "X", "", 0, "AB"});
    // A to B of the second segment goes straight up.
    EXPECT_EQ(PosledniNapis(), (Bod{70, 67}));
    EXPECT_EQ(plocha.DrawWidth, 1);
    EXPECT_EQ(t.Trojice_tab[3], (Trojice{60, 70, 0, 0, 0, 0, "X", "", ""}));
}

TEST_F(Kresleni, PopisKruzniceHledaMistoUvnitrPlochy) {
    const std::tuple<Bod, int, Bod> pripady[] = {
        {{192, 167}, 242, {205, 106}},     // 165 degrees
        {{192, 167}, 142, {205, 106}},     // radius to the left
        {{192, 20}, 242, {242, 7}},        // only 90 degrees is inside
        {{380, 20}, 430, {330, 7}},        // only 270, the last of all
        {{192, -100}, 242, {142, -113}}};  // none: the last try stands
    for (const auto& [stred, x2, popis] : pripady) {
        Kresli(t.NovyUtvar("k", ""), {KRUZNICE, stred, {x2, stred.Y}});
        EXPECT_EQ(PosledniNapis(), popis);
        EXPECT_EQ(plocha.kruhy.back().r, 50.0F);
    }
    EXPECT_THROW(Kresli(101, {KRUZNICE, {10, 10}, {20, 10}}), BehovaChyba);
    t.PocetTrojic = 100;
    EXPECT_THROW(Kresli(1, {KRUZNICE, {10, 10}, {20, 10}}), BehovaChyba);
}

}  // namespace
}  // namespace rysovna
