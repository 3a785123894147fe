// Every wrong step of the tangent board, alone and when the step is known to be wrong already.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>

#include "TecnyHra.h"
#include "base/Cisla.h"
#include "engine/Miry.h"
#include "podpora/MeryBodu.h"

namespace rysovna::testy {
namespace {

using enum Nastroj;
using enum MistoNastroje::Stav;

/// Tools that cost three points at the press, by step. Drawn afterwards, they cost no more and take
/// up the step; every other tool costs nothing. Back undoes either.
TEST(TecnyChyby, ChybnaTlacitka) {
    constexpr std::pair<const char*, const char*> CENY[] = {
        {"01", "1k 4k 5k"}, {"02", "1k 4k 5k"}, {"03", "1k"},
        {"04", "1k 3k"},    {"05", "1k 2k"},    {"06", "1k 2k 3k 5s"},
        {"07", "1k 3k"},    {"08", "1k 3s"},    {"09", "1+ 1k 4k 5k"}};
    for (const auto& [kod, ceka] : CENY) {
        TecnyHra hra(kod, 5);
        std::string uctovano;
        for (int krok = 1; !hra.dialog.Hotova(); ++krok) {
            for (const MistoNastroje& n : hra.P().Nastroje) {
                if (n.Co == Prusecik || n.Co == Zpet || !n.Zivy()) continue;
                SCOPED_TRACE(std::string(kod) + ", step " + std::to_string(krok) + ", tool " +
                             std::to_string(static_cast<int>(n.Co)));
                const int utvaru = hra.Pamet().PocetUtvaru;
                const Otisk pred(hra);
                hra.zak.Nastroj(n.Co);
                const bool chyba = !hra.Chyby().empty();
                const char znak = n.Co == Kruznice ? 'k' : n.Co == Stred ? 's' : '+';
                if (chyba) uctovano += " " + std::to_string(krok) + znak;
                EXPECT_EQ(hra.Chyby(), chyba ? "21/3" : "");
                EXPECT_EQ(hra.dialog.Stav().KrokChybny, chyba);
                if (!chyba) hra.dialog.ZavriSeznam();
                if (!chyba && !hra.dialog.Stav().CekaNaKresleni) continue;
                hra.Tahni({30, 40}, {60, 90});
                EXPECT_EQ(hra.Pamet().PocetChybnychKroku, chyba || n.Co == Stred ? 1 : 0);
                EXPECT_EQ(hra.Pamet().PocetUtvaru, utvaru + 1);
                EXPECT_FALSE(hra.dialog.Hotova());
                EXPECT_EQ(hra.Faze(), krok + 1);
                hra.Zpet();
                EXPECT_TRUE(Otisk(hra) == pred);
                hra.OdpustChyby();
            }
            hra.zak.SpravnyKrok();
        }
        EXPECT_EQ(uctovano, std::string(" ") + ceka) << kod;
    }
}

/// What each step of an exercise costs when its right tool and row end past the mark.
TEST(TecnyChyby, KrokyVedle) {
    constexpr std::pair<const char*, const char*> CENY[] = {{"01", "202 217 217 215 215"},
                                                            {"02", "215 217 217 211 211"},
                                                            {"03", "205 206 217 217 208 208"},
                                                            {"04", "211 214 205 216"},
                                                            {"05", "205 211 214 210"},
                                                            {"06", "205 211 211 219 210"},
                                                            {"07", "211 214 205 216"},
                                                            {"08", "211 219 212"},
                                                            {"09", "208 217 217 205 205 212 212"}};
    for (const auto& [kod, ceka] : CENY) {
        std::string uctovano;
        const auto kroku = TecnyHra(kod).dialog.Hrane()->Kroky.size();
        for (int krok = 1; krok <= static_cast<int>(kroku); ++krok) {
            TecnyHra hra(kod, 11, krok);
            while (hra.Chyby().empty()) {
                if (hra.Faze() > krok) hra.Zpet();
                const KrokZaka& k = hra.zak.Krok();
                hra.zak.Nastroj(k.Cim);
                if (hra.P().Vyber.Otevreny) hra.Vyber(k.Radek);
                hra.Tahni(hra.zak.Nahodne(), hra.zak.Nahodne());
            }
            EXPECT_EQ(hra.Faze(), krok + 1);
            EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, hra.Pamet().PocetChybnychKroku);
            // The line may miss what it has to meet as well.
            const std::regex body("/1"), mine(" (203|204|207|209)/1");
            const std::string vse = std::regex_replace(hra.Chyby(), mine, "");
            uctovano += " " + std::regex_replace(vse, body, "");
        }
        EXPECT_EQ(uctovano, std::string(" ") + ceka) << kod;
    }
}

/// A wrong row of a list: three points, and nothing for what is then drawn anyhow.
TEST(TecnyChyby, ChybneRadky) {
    struct Pripad {
        const char* Kod;
        int Krok;
        Nastroj Cim;
        const char *Radek, *Nazev, *Chyby;
    };
    const Pripad pripady[] = {
        {"01", 4, Rovnobezka, "s přímkou b", "přímka t1, t1||b", "134/3"},
        {"01", 5, Rovnobezka, "s přímkou b", "přímka t2, t2||b", "134/3"},
        {"02", 5, Kolmice, "k přímce t1", "přímka t2, t2 ⊥ t1", "135/3"},
        {"03", 2, Kruznice, "kružnice l, střed v bodě S", "kružnice l(S, r = |SB|)", "124/3"},
        {"03", 2, Kruznice, "kružnice l, střed v bodě A", "kružnice l(A, r = |SB|)", "124/3"},
        {"04", 4, Kruznice, "kružnice k, střed v bodě A", "kružnice k(A, r = |AC|)", "124/3"},
        {"04", 4, Kruznice, "kružnice k, střed v bodě B", "kružnice k(B, r = |BC|)", "124/3"},
        {"05", 2, Kolmice, "k přímce a", "přímka b, b ⊥ a", "135/3"},
        {"05", 4, Kruznice, "kružnice k, střed v bodě C", "kružnice k(C, r = |CA|)", "124/3"},
        {"06", 2, Kolmice, "k přímce a", "přímka b, b ⊥ a", "135/3"},
        {"06", 3, Kolmice, "k úsečce AB", "přímka c, c ⊥ AB", "135/3"},
        {"06", 5, Kruznice, "kružnice k, střed v bodě A", "kružnice k(A, r = |AB|)", "124/3"},
        {"06", 5, Kruznice, "kružnice k, střed v bodě B", "kružnice k(B, r = |BA|)", "124/3"},
        {"07", 4, Kruznice, "kružnice k, střed v bodě A", "kružnice k(A, r = |AC|)", "124/3"},
        {"08", 1, Kolmice, "k přímce b", "přímka c, c ⊥ b", "135/3"},
        {"08", 3, Kruznice, "kružnice k, střed v bodě A", "kružnice k(A, r = |AB|)", "124/3"},
        {"09", 6, Kruznice, "kružnice l1, střed v bodě B1", "kružnice l1(B1, r = |AB1|)", "124/3"},
        {"09", 7, Kruznice, "kružnice l2, střed v bodě B2", "kružnice l2(B2, r = |AB2|)", "124/3"},
    };
    for (const Pripad& p : pripady) {
        TecnyHra hra(p.Kod, 5, p.Krok);
        hra.zak.Nastroj(p.Cim).Vyber(p.Radek);
        EXPECT_EQ(hra.P().Rysovane.Nazev, p.Nazev);
        hra.Tahni({5, 300}, {3, 100});
        EXPECT_EQ(hra.Chyby(), p.Chyby) << p.Kod << p.Krok;
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
        Nastroj Cim;
        const char *Radek, *Chyby;
    };
    const Pripad pripady[] = {{"01", 1, Kolmice, "k přímce a", "202/1 203/1"},
                              {"02", 1, Rovnobezka, "s přímkou a", "215/1 204/1"},
                              {"03", 2, Kruznice, "kružnice l, střed v bodě B", "206/1 207/1"},
                              {"08", 1, Kolmice, "k přímce a", "211/1 209/1"},
                              {"09", 1, Primka, "přímka AS", "208/1 203/1"}};
    for (const Pripad& p : pripady) {
        TecnyHra hra(p.Kod, 4, p.Krok);
        // Random places in random figures until it misses.
        for (std::uint32_t i = 1; hra.Chyby() != p.Chyby; ++i) {
            ASSERT_LT(i, 60'000U) << p.Kod;
            if (hra.Faze() > p.Krok) hra.Zpet();
            if (i % 20 == 0) hra.Znovu(i);
            hra.zak.SpravneDo(p.Krok);
            hra.OdpustChyby();
            hra.Narysuj(p.Cim, p.Radek, hra.zak.Nahodne(), hra.zak.Nahodne());
        }
        const int utvaru = hra.Pamet().PocetUtvaru;
        EXPECT_TRUE(hra.P().Nastroje[4].Zivy());
        hra.zak.Nastroj(Prusecik);
        for (const Bod b : {Bod{100, 100}, {-9999, -9999}, {0, 0}}) hra.Klikni(b);
        EXPECT_EQ(hra.Pamet().PocetUtvaru, utvaru);
        EXPECT_EQ(hra.Chyby(), p.Chyby);
        hra.Zpet();
        EXPECT_EQ(hra.Faze(), p.Krok);
        hra.zak.SpravneVse();
        EXPECT_TRUE(hra.dialog.Hotova());
    }
}

TEST(TecnyChyby, ObaPrusecikyUzHotove) {
    TecnyHra hra("09", 2, 2);
    hra.Pamet().Priklady[1].Kroky[1].Hotovo = hra.Pamet().Priklady[1].Kroky[2].Hotovo = ANO;
    hra.zak.Nastroj(Prusecik).Klikni(hra.zak.Kandidati()[0]);
    EXPECT_EQ(hra.Chyby(), "219/3");
    EXPECT_EQ(hra.Faze(), 2);
}

/// The tolerances to the pixel: of a crossing, of a midpoint, of a radius.
TEST(TecnyChyby, Tolerance) {
    constexpr struct {
        int Krok, O;
        const char* Chyby;
    } PRIPADY[] = {{2, 8, ""},      {2, 9, "214/1"}, {2, -8, ""}, {3, 5, ""},
                   {3, 6, "205/1"}, {3, -5, ""},     {4, 4, ""},  {4, -6, "216/1"}};
    for (const auto& [krok, o, chyby] : PRIPADY) {
        TecnyHra hra("04", 9, krok);
        const StavTecny& stav = hra.dialog.Stav();
        if (krok == 4) {
            const Bod C = hra.Misto("C");
            const int r = Zaokrouhli(Delka(C, hra.Misto("A")));
            hra.Narysuj(Kruznice, "kružnice k, střed v bodě C", {9, 9}, {C.X + r + o, 9});
        } else {
            hra.zak.Nastroj(krok == 2 ? Prusecik : Stred);
            const Bod misto = krok == 2 ? stav.Pary.Misto[0] : stav.StredUsecky;
            hra.Klikni({misto.X + o, misto.Y - o});
            EXPECT_EQ(hra.Misto(krok == 2 ? "B" : "C"), misto) << "put where it belongs";
        }
        EXPECT_EQ(hra.Chyby(), chyby) << krok << ", " << o << " px off";
        if (krok != 2) continue;
        EXPECT_EQ(hra.Posledni().NaPrimce, hra.Chyby().empty() ? "b" : "");
        EXPECT_EQ(hra.Pamet().Priklady[1].Kroky[1].Hotovo, ANO);
    }
}

/// The rule of 15 pixels: less far off moves the line at no cost, 15 off costs a point and stays.
TEST(TecnyChyby, PatnactPixelu) {
    int presunuto = 0, draho = 0;
    TecnyHra hra("02");
    for (std::uint32_t s = 1; s <= 100; ++s) {
        hra.Znovu(s);
        hra.zak.SpravneDo(4);
        const Bod A1 = hra.Misto("A1");
        for (int x = 0; x < SIRKA_PLOCHY; ++x) {
            // A perpendicular from a free place of b, as far off A1 as its Y there says.
            const Utvar& b = hra.Pamet().Utvary[NajdiCaru(hra.Pamet(), "b")];
            const Bod start = BodNaZakladne(b, static_cast<float>(x), 0);
            const Dvojice k = Kolme(b, start, start);
            if (k.P1.X == k.P2.X ||
                std::max(std::abs(start.X - A1.X), std::abs(start.Y - A1.Y)) < 9)
                continue;
            const double d = std::fabs(A1.Y - start.Y -
                                       static_cast<double>(A1.X - start.X) * (k.P2.Y - k.P1.Y) /
                                           (k.P2.X - k.P1.X));
            if (d < 14 || d >= 16) continue;
            hra.Narysuj(Kolmice, "k přímce b", start, start);
            (d < 15 ? presunuto : draho) += 1;
            EXPECT_EQ(hra.Chyby(), d < 15 ? "" : "211/1") << s << " " << d;
            EXPECT_EQ(std::abs(hra.Posledni().Y1 - start.Y), d < 15 ? std::lround(d) : 0);
            hra.Zpet();
            hra.OdpustChyby();
        }
    }
    EXPECT_GT(presunuto, 0);
    EXPECT_GT(draho, 0);
}

/// Two lines through the same crossing: the second misses its own.
TEST(TecnyChyby, DruhaTecnaMusiDruhymBodem) {
    TecnyHra hra("01", 6, 4);
    for (int i = 0; i < 2; ++i) hra.Narysuj(Rovnobezka, "s přímkou a", hra.Misto("A2"), {200, 10});
    EXPECT_EQ(hra.Chyby(), "215/1");
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// The same line twice is no second tangent: it costs nothing and finishes nothing. Nor does the
/// last step alone, with a wrong object in place of a result.
TEST(TecnyChyby, BezObouVysledkuNeniHotovo) {
    TecnyHra hra("03", 6, 5);
    for (int i = 0; i < 2; ++i) hra.Narysuj(Primka, "přímka AT1", "A", "T1");
    EXPECT_EQ(hra.Chyby(), "");
    EXPECT_EQ(hra.Posledni().Jmeno1, "p6");
    EXPECT_FALSE(hra.dialog.Hotova());
    hra.Zpet();
    hra.Narysuj(Primka, "přímka AT2", "A", "T2");
    EXPECT_TRUE(hra.dialog.Hotova());

    hra.Zpet().Zpet();
    hra.Narysuj(Primka, "přímka AS", "A", "S");
    EXPECT_EQ(hra.Posledni().Jmeno1, "p5");
    hra.Narysuj(Primka, "přímka AT1", "A", "T1");
    EXPECT_EQ(hra.Posledni().Jmeno1, "t1");
    EXPECT_FALSE(hra.dialog.Hotova());
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(hra.P().Nastroje[i].Zivy(), i == 4);
    hra.Zpet().Zpet();
    hra.zak.SpravneVse();
    EXPECT_TRUE(hra.dialog.Hotova());
}

/// Back is dead at the later steps of "09" that back has led to, but not where an object of another
/// kind stands in place of a result: nothing but back leads to that one.
TEST(TecnyChyby, MrtveZpetNikohoNezavre) {
    TecnyHra hra("09", 6, 6);
    hra.zak.Nastroj(Poloprimka).Tahni({20, 300}, {60, 200});
    hra.Narysuj(Kruznice, "kružnice l2, střed v bodě S2", "S2", "A");
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
    hra.Narysuj(Primka, "přímka AS", "A", "A");
    EXPECT_EQ(hra.Chyby(), "208/1");
    for (const Bod& b : hra.dialog.Stav().Pary.Misto) EXPECT_NEAR(b.X, hra.Misto("A").X, 1);
}

TEST(TecnyChyby, Kontrola) {
    constexpr struct {
        int Krok;      ///< played without a fault up to here
        int Ztraceno;  ///< before the check
        bool Znacky;
        const char *Chyby, *Konec;  ///< of the last row
    } PRIPADY[] = {
        {5, 0, true, "", ""},
        {5, 0, false, "16/1", "  -1 bod"},
        {5, 9, false, "16/1", "  -1 bod"},
        {5, 10, false, "", ""},
        {4, 0, false, "300/10", "    - 10 bodů"},
        {4, 6, true, "300/10", "    - 4 body"},
        {4, 9, false, "300/10", "    - 1 bod"},
        {4, 5, true, "300/10", "    - 5 bodů"},
        {4, 12, true, "300/10", "dokončena."},
    };
    for (const auto& p : PRIPADY) {
        TecnyHra hra("04", 3, p.Krok);
        hra.Pamet().SoucetZapornychBodu = p.Ztraceno;
        if (!p.Znacky) hra.dialog.StiskNacrtu(20, 150);
        hra.dialog.StiskNacrtu(100, 100);  // an extra mark is free
        if (p.Krok == 4) hra.zak.Nastroj(Kruznice).Vyber("kružnice k, střed v bodě C");  // armed
        const auto pred = hra.P().Nastroje;
        EXPECT_EQ(hra.PoKontrole(), p.Chyby) << p.Krok << " " << p.Ztraceno;
        EXPECT_TRUE(hra.Pamet().ChybneKroky[1].Text.ends_with(p.Konec))
            << hra.Pamet().ChybneKroky[1].Text;
        // What was on offer stays so and cannot be pressed; back turns grey.
        for (std::size_t i = 0; i < pred.size(); ++i) {
            const bool nabizel = pred[i].Zivy() && pred[i].Co != Zpet;
            EXPECT_EQ(hra.P().Nastroje[i], (MistoNastroje{pred[i].Co, nabizel ? Zamceny : Sedy}));
        }
    }
}

}  // namespace
}  // namespace rysovna::testy
