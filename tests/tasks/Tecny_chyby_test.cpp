// Every wrong step of the tangent board, alone and when the step is known to be wrong already.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <map>

#include "TecnyHra.h"
#include "rules/Misc.h"

namespace rysovna::testy {
namespace {

using enum Nastroj;
using enum MistoNastroje::Stav;

using Cisla = std::vector<int>;

/// The catalogue says of the steps of all exercises what they cost, and of nothing else.
TEST(TecnyChyby, KatalogZnaKrokyCviceni) {
    const Bity tecny = NaDesce(Deska::TecnyForm);
    std::map<std::pair<int, int>, Bity> kroky;  // number and points: phases
    for (const Cviceni& c : VsechnaCviceni()) {
        int faze = 0;
        for (const KrokTecny& k : c.Kroky) {
            ++faze;
            const auto padne = [&](ChybaKroku chyba) {
                if (chyba) kroky[{chyba.Cislo(), chyba.Body()}] |= VeFazi(faze);
            };
            padne(k.ChybaVolby);
            padne(k.ChybaRysovani);
            padne(k.ChybaPruniku);
            if (k.Chybne[0] != Nastroj::Zadny) padne(CHYBA_NASTROJ);
            if (!c.Znacene[0].empty() && k.Spravny == Nastroj::Prusecik) padne(CHYBA_OBA_HOTOVE);
        }
    }
    for (const DruhChyby& d : katalog::RADKY) {
        const Bity vKatalogu = ((d.Kde.Desky & tecny) != 0 ? d.Kde.Faze : 0) |
                               ((d.Jinde.Desky & tecny) != 0 ? d.Jinde.Faze : 0);
        if (vKatalogu == PRI_KONTROLE) continue;
        EXPECT_EQ(vKatalogu, (kroky[{d.Cislo, d.Body}])) << d.Cislo;
    }
}

/// Tools that cost three points at the press, by exercise and step. Drawn afterwards, they cost no
/// more and take up the step.
TEST(TecnyChyby, ChybnaTlacitka) {
    struct Radek {
        const char* Kod;
        Nastroj Cim;
        std::vector<int> Kroky;
    };
    const Radek radky[] = {
        {"01", Kruznice, {1, 4, 5}}, {"02", Kruznice, {1, 4, 5}}, {"03", Kruznice, {1}},
        {"04", Kruznice, {1, 3}},    {"05", Kruznice, {1, 2}},    {"06", Kruznice, {1, 2, 3}},
        {"07", Kruznice, {1, 3}},    {"08", Kruznice, {1}},       {"09", Kruznice, {1, 4, 5}},
        {"06", Stred, {5}},          {"08", Stred, {3}},          {"09", Kolmice, {1}}};
    std::map<std::pair<std::string, int>, std::vector<Nastroj>> chybne;
    for (const Radek& r : radky) {
        for (const int krok : r.Kroky) chybne[{r.Kod, krok}].push_back(r.Cim);
    }
    int uctovanych = 0;
    for (const char* kod : {"01", "02", "03", "04", "05", "06", "07", "08", "09"}) {
        TecnyHra hra(kod, 5);
        for (int krok = 1; !hra.dialog.Hotova(); ++krok) {
            for (const MistoNastroje& n : hra.P().Nastroje) {
                if (n.Co == Prusecik || n.Co == Zpet || !n.Zivy()) continue;
                const auto& vse = chybne[{kod, krok}];
                const bool chyba = std::ranges::find(vse, n.Co) != vse.end();
                uctovanych += chyba ? 1 : 0;
                hra.Pamet().SoucetZapornychBodu = hra.Pamet().PocetChybnychKroku = 0;
                const int utvaru = hra.Pamet().PocetUtvaru;
                const Otisk pred(hra);
                hra.zak.Nastroj(n.Co);
                EXPECT_EQ(hra.Chyby(), chyba ? Cisla{21} : Cisla{})
                    << kod << krok << static_cast<int>(n.Co);
                EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, chyba ? 3 : 0);
                EXPECT_EQ(hra.dialog.Stav().KrokChybny, chyba);
                if (!chyba) {
                    hra.dialog.ZavriSeznam();
                    if (!hra.dialog.Stav().CekaNaKresleni) continue;
                }
                hra.Tahni({30, 40}, {60, 90});
                EXPECT_EQ(hra.Chyby().size(), chyba || n.Co == Stred ? 1U : 0U) << kod << krok;
                EXPECT_EQ(hra.Pamet().PocetUtvaru, utvaru + 1)
                    << kod << krok << static_cast<int>(n.Co);
                EXPECT_FALSE(hra.dialog.Hotova());
                EXPECT_EQ(hra.Faze(), krok + 1);
                hra.Zpet();
                EXPECT_EQ(Otisk(hra).Rozdil(pred), "") << kod << krok << static_cast<int>(n.Co);
            }
            hra.Pamet().SoucetZapornychBodu = hra.Pamet().PocetChybnychKroku = 0;
            hra.zak.SpravnyKrok();
        }
    }
    EXPECT_EQ(uctovanych, 23) << "a tool is missing";
}

/// A step done past its mark, and what it costs.
TEST(TecnyChyby, KrokyVedle) {
    struct Pripad {
        const char* Kod;
        int Krok;
        Cisla Chyby;
    };
    const Pripad pripady[] = {
        {"01", 1, {202}}, {"01", 2, {217}}, {"01", 3, {217}}, {"01", 4, {215}}, {"01", 5, {215}},
        {"02", 1, {215}}, {"02", 2, {217}}, {"02", 4, {211}}, {"02", 5, {211}}, {"03", 1, {205}},
        {"03", 2, {206}}, {"03", 3, {217}}, {"03", 4, {217}}, {"03", 5, {208}}, {"03", 6, {208}},
        {"04", 1, {211}}, {"04", 2, {214}}, {"04", 3, {205}}, {"04", 4, {216}}, {"05", 1, {205}},
        {"05", 2, {211}}, {"05", 3, {214}}, {"05", 4, {210}}, {"06", 1, {205}}, {"06", 2, {211}},
        {"06", 3, {211}}, {"06", 4, {219}}, {"06", 5, {210}}, {"07", 1, {211}}, {"07", 2, {214}},
        {"07", 3, {205}}, {"07", 4, {216}}, {"08", 1, {211}}, {"08", 2, {219}}, {"08", 3, {212}},
        {"09", 1, {208}}, {"09", 2, {217}}, {"09", 3, {217}}, {"09", 4, {205}}, {"09", 5, {205}},
        {"09", 6, {212}}, {"09", 7, {212}},
    };
    for (const Pripad& p : pripady) {
        TecnyHra hra(p.Kod, 11);
        hra.zak.SpravneDo(p.Krok);
        hra.KrokVedle();
        Cisla chyby = hra.Chyby();
        // The line may miss what it has to meet as well.
        const auto mine = [](int c) { return c == 203 || c == 204 || c == 209; };
        if (chyby.size() == 2 && p.Krok == 1 && mine(chyby[1])) chyby.pop_back();
        EXPECT_EQ(chyby, p.Chyby) << p.Kod << " step " << p.Krok;
        EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, hra.Pamet().PocetChybnychKroku);
        EXPECT_EQ(hra.Faze(), p.Krok + 1);
    }
}

/// A wrong row of a list: three points, and nothing for what is then drawn anyhow.
TEST(TecnyChyby, ChybneRadky) {
    struct Pripad {
        const char* Kod;
        int Krok;
        Nastroj Cim;
        const char* Radek;
        int Chyba;
        const char* Text3;
    };
    const Pripad pripady[] = {
        {"01", 4, Rovnobezka, "s přímkou b", 134, "přímka t1, t1||b"},
        {"01", 5, Rovnobezka, "s přímkou b", 134, "přímka t2, t2||b"},
        {"02", 5, Kolmice, "k přímce t1", 135, "přímka t2, t2 ⊥ t1"},
        {"03", 2, Kruznice, "kružnice l, střed v bodě S", 124, "kružnice l(S, r = |SB|)"},
        {"03", 2, Kruznice, "kružnice l, střed v bodě A", 124, "kružnice l(A, r = |SB|)"},
        {"04", 4, Kruznice, "kružnice k, střed v bodě A", 124, "kružnice k(A, r = |AC|)"},
        {"04", 4, Kruznice, "kružnice k, střed v bodě B", 124, "kružnice k(B, r = |BC|)"},
        {"05", 2, Kolmice, "k přímce a", 135, "přímka b, b ⊥ a"},
        {"05", 4, Kruznice, "kružnice k, střed v bodě C", 124, "kružnice k(C, r = |CA|)"},
        {"06", 2, Kolmice, "k přímce a", 135, "přímka b, b ⊥ a"},
        {"06", 3, Kolmice, "k úsečce AB", 135, "přímka c, c ⊥ AB"},
        {"06", 5, Kruznice, "kružnice k, střed v bodě A", 124, "kružnice k(A, r = |AB|)"},
        {"06", 5, Kruznice, "kružnice k, střed v bodě B", 124, "kružnice k(B, r = |BA|)"},
        {"07", 4, Kruznice, "kružnice k, střed v bodě A", 124, "kružnice k(A, r = |AC|)"},
        {"08", 1, Kolmice, "k přímce b", 135, "přímka c, c ⊥ b"},
        {"08", 3, Kruznice, "kružnice k, střed v bodě A", 124, "kružnice k(A, r = |AB|)"},
        {"09", 6, Kruznice, "kružnice l1, střed v bodě B1", 124, "kružnice l1(B1, r = |AB1|)"},
        {"09", 7, Kruznice, "kružnice l2, střed v bodě B2", 124, "kružnice l2(B2, r = |AB2|)"},
    };
    for (const Pripad& p : pripady) {
        TecnyHra hra(p.Kod, 5);
        hra.zak.SpravneDo(p.Krok);
        hra.zak.Nastroj(p.Cim).Vyber(p.Radek);
        EXPECT_EQ(hra.P().Rysovane.Nazev, p.Text3);
        hra.Tahni({5, 300}, {3, 100});
        EXPECT_EQ(hra.Chyby(), Cisla{p.Chyba}) << p.Kod << p.Krok;
        EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, 3);
        const bool posledni = p.Krok == static_cast<int>(hra.dialog.Hrane()->Kroky.size());
        EXPECT_EQ(hra.dialog.Hotova(), posledni) << p.Kod << p.Krok;
    }
}

/// Nothing to meet: the step is charged, the marking that follows does nothing, back is the way
/// out.
TEST(TecnyChyby, BezPrusecikuZbyvaJenZpet) {
    struct Pripad {
        const char* Kod;
        int Krok;
        std::function<void(TecnyHra&)> Krok_;
        Cisla Chyby;
    };
    const auto daleko = [](TecnyHra& hra, Nastroj cim, const char* radek, int chyba) {
        // Random places until the line misses the circle.
        for (int i = 0; i < 1000; ++i) {
            hra.Pamet().SoucetZapornychBodu = hra.Pamet().PocetChybnychKroku = 0;
            hra.zak.Nastroj(cim).Vyber(radek).Tahni(hra.zak.Nahodne(), hra.zak.Nahodne());
            const Cisla chyby = hra.Chyby();
            if (!chyby.empty() && chyby.back() == chyba) return;
            hra.Zpet();
        }
    };
    const Pripad pripady[] = {
        {"01", 1, [&](TecnyHra& h) { daleko(h, Kolmice, "k přímce a", 203); }, {202, 203}},
        {"02", 1, [&](TecnyHra& h) { daleko(h, Rovnobezka, "s přímkou a", 204); }, {215, 204}},
        {"03",
         2,
         [](TecnyHra& h) {
             const Bod B = NajdiBod(h.Pamet(), "B");
             h.zak.Nastroj(Kruznice).Vyber("kružnice l, střed v bodě B").Tahni(B, {B.X + 3, B.Y});
         },
         {206, 207}},
        {"09", 1, [&](TecnyHra& h) { daleko(h, Primka, "přímka AS", 203); }, {208, 203}},
    };
    for (const Pripad& p : pripady) {
        TecnyHra hra(p.Kod, 4);
        hra.zak.SpravneDo(p.Krok);
        p.Krok_(hra);
        EXPECT_EQ(hra.Chyby(), p.Chyby) << p.Kod;
        const int utvaru = hra.Pamet().PocetUtvaru;
        EXPECT_TRUE(hra.P().Nastroje[4].Zivy());
        hra.zak.Nastroj(Prusecik);
        for (const Bod b : {Bod{100, 100}, {-9999, -9999}, {0, 0}}) hra.Klikni(b);
        EXPECT_EQ(hra.Pamet().PocetUtvaru, utvaru);
        EXPECT_EQ(hra.Faze(), p.Krok + 1);
        EXPECT_EQ(hra.Chyby(), p.Chyby);
        EXPECT_TRUE(hra.P().Nastroje[4].Zivy());
        hra.Zpet();
        EXPECT_EQ(hra.Faze(), p.Krok);
        hra.zak.SpravneVse();
        EXPECT_TRUE(hra.dialog.Hotova());
    }
}

/// 209: the perpendicular meets the other line too far off. Some figure of "08" has such a place.
TEST(TecnyChyby, KolmiceKterouPrimkaNeprotne) {
    TecnyHra hra("08");
    for (std::uint32_t s = 1; s < 3000; ++s) {
        hra.Znovu(s);
        for (int i = 0; i < 20; ++i) {
            hra.Pamet().SoucetZapornychBodu = hra.Pamet().PocetChybnychKroku = 0;
            hra.zak.Nastroj(Kolmice)
                .Vyber("k přímce a")
                .Tahni(hra.zak.Nahodne(), hra.zak.Nahodne());
            const Cisla chyby = hra.Chyby();
            if (chyby == Cisla{211, 209}) return;
            hra.Zpet();
        }
    }
    FAIL() << "209 never came";
}

TEST(TecnyChyby, ObaPrusecikyUzHotove) {
    TecnyHra hra("09", 2);
    hra.zak.SpravneDo(2);
    hra.Pamet().Priklady[1].Kroky[1].Hotovo = hra.Pamet().Priklady[1].Kroky[2].Hotovo = ANO;
    hra.zak.Nastroj(Prusecik).Klikni(hra.zak.Kandidati()[0]);
    EXPECT_EQ(hra.Chyby(), Cisla{219});
    EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, 3);
    EXPECT_EQ(hra.Faze(), 2);
}

/// The tolerances to the pixel: of a crossing, of a midpoint, of a radius.
TEST(TecnyChyby, Tolerance) {
    for (const auto& [o, chyby] : {std::pair{8, Cisla{}}, {9, Cisla{214}}, {-8, Cisla{}}}) {
        TecnyHra hra("04", 9);
        hra.zak.SpravneDo(2);
        const Bod B = hra.dialog.Stav().Pary.Misto[0];
        hra.zak.Nastroj(Prusecik).Klikni({B.X + o, B.Y - o});
        EXPECT_EQ(hra.Chyby(), chyby);
        EXPECT_EQ(NajdiBod(hra.Pamet(), "B"), B);
        EXPECT_EQ(hra.Pamet().Utvary[hra.Pamet().PocetUtvaru].NaPrimce, chyby.empty() ? "b" : "");
        EXPECT_EQ(hra.Pamet().Priklady[1].Kroky[1].Hotovo, ANO);
    }
    for (const auto& [o, chyby] : {std::pair{5, Cisla{}}, {6, Cisla{205}}, {-5, Cisla{}}}) {
        TecnyHra hra("04", 9);
        hra.zak.SpravneDo(3);
        hra.zak.Nastroj(Stred);
        const Bod C = hra.dialog.Stav().StredUsecky;
        hra.Klikni({C.X + o, C.Y + o});
        EXPECT_EQ(hra.Chyby(), chyby);
        EXPECT_EQ(NajdiBod(hra.Pamet(), "C"), C);
    }
}

/// The rule of 15 pixels: 14 off moves the line at no cost, 15 off costs a point and stays.
TEST(TecnyChyby, PatnactPixelu) {
    int presunuto = 0;
    int draho = 0;
    TecnyHra hra("02");
    for (std::uint32_t s = 1; s <= 400; ++s) {
        for (const int o : {14, 15}) {
            hra.Znovu(s);
            hra.zak.SpravneDo(4);
            hra.zak.Nastroj(Kolmice).Vyber("k přímce b");
            const Utvar z = hra.Pamet().Utvary[hra.Pamet().VybranyUtvar];
            const Bod A1 = NajdiBod(hra.Pamet(), "A1");
            // A perpendicular from a free place of b whose Y at A1 is o off, if there is such a
            // whole-pixel place.
            for (int x = 0; x < 384; ++x) {
                const Bod start = BodNaZakladne(z, static_cast<float>(x), 0);
                const Dvojice k = Kolme(z, start, start);
                if (k.P1.X == k.P2.X ||
                    std::max(std::abs(start.X - A1.X), std::abs(start.Y - A1.Y)) < 9)
                    continue;
                const double y = start.Y + static_cast<double>(A1.X - start.X) * (k.P2.Y - k.P1.Y) /
                                               (k.P2.X - k.P1.X);
                const double d = std::fabs(A1.Y - y);
                if (o == 14 ? d < 13.5 || d >= 14.5 : d < 15 || d >= 16) continue;
                hra.Tahni(start, start);
                (o == 14 ? presunuto : draho) += 1;
                EXPECT_EQ(hra.Chyby(), o == 14 ? Cisla{} : Cisla{211}) << s << " " << d;
                EXPECT_EQ(std::abs(hra.Pamet().Utvary[hra.Pamet().PocetUtvaru].Y1 - start.Y),
                          o == 14 ? 14 : 0);
                break;
            }
        }
    }
    EXPECT_GT(presunuto, 0);
    EXPECT_GT(draho, 0);
}

/// Two lines through the same crossing: the second misses its own.
TEST(TecnyChyby, DruhaTecnaMusiDruhymBodem) {
    TecnyHra hra("01", 6);
    hra.zak.SpravneDo(4);
    for (int i = 0; i < 2; ++i) {
        hra.zak.Nastroj(Rovnobezka)
            .Vyber("s přímkou a")
            .Tahni(NajdiBod(hra.Pamet(), "A2"), {200, 10});
    }
    EXPECT_EQ(hra.Chyby(), Cisla{215});
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// The same line twice is no second tangent: it costs nothing and finishes nothing.
TEST(TecnyChyby, JednaTecnaDvakratNejsouDve) {
    TecnyHra hra("03", 6);
    hra.zak.SpravneDo(5);
    for (int i = 0; i < 2; ++i) {
        hra.zak.Nastroj(Primka)
            .Vyber("přímka AT1")
            .Tahni(NajdiBod(hra.Pamet(), "A"), NajdiBod(hra.Pamet(), "T1"));
    }
    EXPECT_EQ(hra.Chyby(), Cisla{});
    EXPECT_EQ(hra.Pamet().Utvary[hra.Pamet().PocetUtvaru].Jmeno1, "p6");
    EXPECT_FALSE(hra.dialog.Hotova());
    hra.Zpet();
    hra.zak.Nastroj(Primka)
        .Vyber("přímka AT2")
        .Tahni(NajdiBod(hra.Pamet(), "A"), NajdiBod(hra.Pamet(), "T2"));
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// A wrong object in place of a result: the last step alone does not finish.
TEST(TecnyChyby, BezObouVysledkuNeniHotovo) {
    TecnyHra hra("03", 6);
    hra.zak.SpravneDo(5);
    hra.zak.Nastroj(Primka)
        .Vyber("přímka AS")
        .Tahni(NajdiBod(hra.Pamet(), "A"), NajdiBod(hra.Pamet(), "S"));
    EXPECT_EQ(hra.Pamet().Utvary[hra.Pamet().PocetUtvaru].Jmeno1, "p5");
    hra.zak.Nastroj(Primka)
        .Vyber("přímka AT1")
        .Tahni(NajdiBod(hra.Pamet(), "A"), NajdiBod(hra.Pamet(), "T1"));
    EXPECT_EQ(hra.Pamet().Utvary[hra.Pamet().PocetUtvaru].Jmeno1, "t1");
    EXPECT_FALSE(hra.dialog.Hotova());
    for (std::size_t i = 0; i < 4; ++i) EXPECT_FALSE(hra.P().Nastroje[i].Zivy());
    EXPECT_TRUE(hra.P().Nastroje[4].Zivy());
    hra.Zpet().Zpet();
    hra.zak.SpravneVse();
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// Back is dead at the later steps of "09" that back has led to, but not where an object of another
/// kind stands in place of a result: nothing but back leads to that one.
TEST(TecnyChyby, MrtveZpetNikohoNezavre) {
    TecnyHra hra("09", 6);
    hra.zak.SpravneDo(6);
    hra.zak.Nastroj(Poloprimka).Tahni({20, 300}, {60, 200});
    hra.zak.Nastroj(Kruznice).Vyber("kružnice l2, střed v bodě S2");
    hra.Tahni(NajdiBod(hra.Pamet(), "S2"), NajdiBod(hra.Pamet(), "A"));
    EXPECT_FALSE(hra.dialog.Hotova());
    hra.Zpet();
    EXPECT_TRUE(hra.P().Nastroje[4].Zivy());
    hra.Zpet();
    EXPECT_EQ(hra.Faze(), 6);
    EXPECT_FALSE(hra.P().Nastroje[4].Zivy());
    hra.zak.SpravneVse();
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// A line that was clicked and not dragged is drawn upright, and its crossings lie on it.
TEST(TecnyChyby, KliknutaPrimkaSeProtinaTamKdeStoji) {
    TecnyHra hra("09", 6);
    hra.zak.Nastroj(Primka).Vyber("přímka AS").Klikni(NajdiBod(hra.Pamet(), "A"));
    EXPECT_EQ(hra.Chyby(), Cisla{208});
    for (const Bod& b : hra.dialog.Stav().Pary.Misto)
        EXPECT_NEAR(b.X, NajdiBod(hra.Pamet(), "A").X, 1);
}

TEST(TecnyChyby, Kontrola) {
    struct Pripad {
        int Krok;      ///< played without a fault up to here
        int Ztraceno;  ///< before the check
        bool Znacky;
        Cisla Chyby;
        std::string Konec;  ///< of the last row
    };
    const Pripad pripady[] = {
        {5, 0, true, {}, ""},
        {5, 0, false, {16}, "  -1 bod"},
        {5, 9, false, {16}, "  -1 bod"},
        {5, 10, false, {}, ""},
        {4, 0, false, {300}, "    - 10 bodů"},
        {4, 6, true, {300}, "    - 4 body"},
        {4, 9, false, {300}, "    - 1 bod"},
        {4, 5, true, {300}, "    - 5 bodů"},
        {4, 12, true, {300}, "dokončena."},
    };
    for (const Pripad& p : pripady) {
        TecnyHra hra("04", 3);
        hra.zak.SpravneDo(p.Krok);
        hra.Pamet().SoucetZapornychBodu = p.Ztraceno;
        if (!p.Znacky) hra.dialog.StiskNacrtu(20, 150);
        hra.dialog.StiskNacrtu(100, 100);  // an extra mark is free
        if (p.Krok == 4) hra.zak.Nastroj(Kruznice).Vyber("kružnice k, střed v bodě C");  // armed
        const auto pred = hra.P().Nastroje;
        hra.dialog.Zkontroluj();
        EXPECT_EQ(hra.Chyby(), p.Chyby) << p.Krok << " " << p.Ztraceno;
        if (!p.Chyby.empty()) {
            EXPECT_TRUE(hra.Pamet().ChybneKroky[1].Text.ends_with(p.Konec))
                << hra.Pamet().ChybneKroky[1].Text;
        }
        // What was on offer stays so and cannot be pressed; back turns grey.
        for (std::size_t i = 0; i < pred.size(); ++i) {
            const bool nabizel = pred[i].Zivy() && pred[i].Co != Zpet;
            EXPECT_EQ(hra.P().Nastroje[i], (MistoNastroje{pred[i].Co, nabizel ? Zamceny : Sedy}));
        }
    }
}

}  // namespace
}  // namespace rysovna::testy
