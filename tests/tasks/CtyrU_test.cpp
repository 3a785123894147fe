// The general quadrilateral, at the dialogue.

#include "tasks/CtyrUForm.h"
#include "tasks/CtyrU_zak.h"

namespace rysovna::testy {
namespace {

using StulCtyrU = Stul<CtyrUDialog>;

TEST(CtyrUDokonaly, KazdyRadekDaDesetBoduAZadanyCtyruhelnik) {
    OdehrajSoubor<CtyrUDialog>(9);
}

const char* const SSS = "17#ABC#a#b#e#cm#cm#cm#sss#c#cm#kruznice#KC#d#cm#kruznice#KA";
const char* const SUS_PAPRSEK =
    "02#ABC#a#b#beta#cm#cm#°#sus#c#cm#kruznice#KC#alfa#°#poloprimka#AXAB";

/// Predem: how many objects are drawn right before.
struct Pripad {
    const char* Popis;
    const char* Radek;
    int Predem;
    std::vector<Pohyb> Pohyby;
    std::string Chyby;
};

const std::vector<Pripad> PRIPADY = {
    {"typed radius costs nothing, drawn one and the centre do, in each phase",
     SSS,
     0,
     {{4, "kružnice k, střed v bodě C", 99}, {4, "kružnice l, střed v bodě A", 99}},
     "126/1 22/1 126/1 45/1"},
    {"circles about B and D are not expected; wrong once, their values are free",
     SSS,
     0,
     {{4, "kružnice k, střed v bodě B"}, {5}, {4, "kružnice k, střed v bodě D"}},
     "33/3 46/3"},
    {"of two expected circles of one centre the others by letters",
     "17#BCD#b#c#f#cm#cm#cm#sss#d#cm#kruznice#KD#a#cm#kruznice#KB",
     0,
     {{4, "kružnice k, střed v bodě A"}, {5}, {4, "kružnice k, střed v bodě C"}},
     "32/3 34/3"},
    {"a ray where circles are expected", SSS, 0, {{1, "AX, svírající úhel s úsečkou AB"}}, "18/3"},
    {"a second circle where a ray is left",
     SUS_PAPRSEK,
     1,
     {{4, "kružnice l, střed v bodě D"}},
     "21/3"},
    {"a ray from the wrong side, and the check counts it; 301 and the marks",
     SUS_PAPRSEK,
     0,
     {{1, "BX, svírající úhel s úsečkou BC"}, {0}},
     "49/3 301/2 16/1 300/10"},
    {"the right ray, wrong angle, wrong vertex",
     SUS_PAPRSEK,
     0,
     {{1, "AX, svírající úhel s úsečkou AB"}},
     "30/1 23/1"},
    {"perpendicular and parallel: once, at the choice, not at the press",
     SSS,
     0,
     {{2, "k úsečce AB", 1, {200, 210}, {200, 100}},
      {3, "s přímkou p", 1, {200, 210}, {220, 210}},
      {5},
      {3, "s úsečkou BC", 1, {200, 210}, {220, 210}}},
     "19/3 20/3 20/3"},
};

TEST(CtyrUChyby, KazdaStojiCoMa) {
    OverVolby<CtyrUDialog>(
        9,
        {{"wrong triangle: no value is compared, the theorem still is",
          SSS,
          "BCD",
          "SUS",
          {10, 10, 60},
          "133/3 101/3"},
         {"wrong theorem: what exists is compared", SSS, "ABC", "SUS", {99, -2, 60}, "101/3 113/1"},
         {"each typed value", SSS, "ABC", "SSS", {30, 31, 32}, "113/1 114/1 127/1"},
         {"typed angle", SUS_PAPRSEK, "ABC", "SUS", {-1, -2, 1}, "118/1"}});
    for (const Pripad& p : PRIPADY) {
        SCOPED_TRACE(p.Popis);
        StulCtyrU s(9);
        s.Radek(p.Radek).Zacni(3);
        OznacCtyruhelnik(s, "f");
        DokonalyCtyruhelnik zak(s, 1);
        zak.Trojuhelnik();
        if (p.Predem == 1) zak.Narysuj(1);
        EXPECT_EQ(s.Proved(p.Pohyby).Chyby(), p.Chyby);
    }
}

constexpr Bod JINDE{20, 20};

TEST(CtyrUChyby, VetySDodatkemAZbytekVeSpravnemPade) {
    StulCtyrU s(9);
    s.Radek(SUS_PAPRSEK).Zacni(3);
    OznacCtyruhelnik(s, "f");
    s.Nastroj(1).Vyber("ABC").Nastroj(2).Vyber("podle věty SSS");
    EXPECT_TRUE(ChybneKroky[1].Text.ends_with("podle věty sss.  -3 body")) << ChybneKroky[1].Text;
    s.Nastroj(2).Vyber("podle věty SUS");
    for (int i = 0; i < 3; ++i) s.Napis(s.dialog.Hodnoty()[static_cast<std::size_t>(i)], i + 1);
    s.Nastroj(6).Nastroj(1).Vyber("CX, svírající úhel s úsečkou CB");
    EXPECT_TRUE(
        ChybneKroky[2].Text.ends_with(" CX vůči úsečce CB - nesprávný postup konstrukce.  -3 body"))
        << ChybneKroky[2].Text;
    s.Zkontroluj();  // 3 + 3, two elements and the marks: one point is left
    EXPECT_TRUE(ChybneKroky[PocetChybnychKroku].Text.ends_with("    - 1 bod"))
        << ChybneKroky[PocetChybnychKroku].Text;
    for (const auto& [zbyva, konec] :
         {std::pair{9, "    - 9 bodů"}, std::pair{4, "    - 4 body"}}) {
        s.Zacni(3);
        ZadanePrvky[1].Prvek = "ABC";
        ZadanePrvky[2] = {2, "kruznice", "KC", {}, {}, {}, {}};
        ZadanePrvky[3] = {3, "poloprimka", "AXAB", {}, {}, {}, {}};
        SoucetZapornychBodu = 9 - zbyva;  // the wrong marks take one more
        if (zbyva == 9)
            SoucetZapornychBodu = 1, OznacCtyruhelnik(s, "a"), OznacCtyruhelnik(s, "b"),
            OznacCtyruhelnik(s, "beta"), OznacCtyruhelnik(s, "c"), OznacCtyruhelnik(s, "alfa");
        s.Zkontroluj();
        EXPECT_TRUE(ChybneKroky[PocetChybnychKroku].Text.ends_with(konec))
            << ChybneKroky[PocetChybnychKroku].Text;
    }
}

TEST(CtyrUTrojuhelnik, NesestrojenyNechaPrikladNedokoncenyAVseStisknutelne) {
    for (const auto& [a, b, c] :
         {std::array{"5", "5", "30"}, std::array{"", "5", "5"},
          std::array{"99999999999999", "5", "5"}, std::array{"10", "150", "150"}}) {
        StulCtyrU s(9);
        s.Radek(SSS).Zacni(3);
        OznacCtyruhelnik(s, "a");
        s.Nastroj(1).Vyber("ABC").Nastroj(2).Vyber("podle věty SSS");
        s.Napis(a, 1).Napis(b, 2).Napis(c, 3).Nastroj(6);
        EXPECT_EQ(s.dialog.Stav().Faze, 2) << a;
        EXPECT_TRUE(s.dialog.Stav().Nesestrojen) << a;
        EXPECT_EQ(PocetUtvaru, 0);
        s.Nastroj(1).Vyber("AX, svírající úhel s úsečkou AB").Tahni(JINDE, {36, 40});
        s.Nastroj(2)
            .Nastroj(3)
            .Nastroj(4)
            .Vyber("kružnice l, střed v bodě A")
            .Tahni(JINDE, {99, 40});
        s.dialog.Posun(20, 0);
        EXPECT_FALSE(s.dialog.Hotova());
        s.Zpet().Zpet().Zpet();
        EXPECT_EQ(s.dialog.Stav().Faze, 1);
        // The whole way again, right.
        DokonalyCtyruhelnik(s, 1).Sestroj();
        EXPECT_TRUE(s.dialog.Hotova());
    }
    // What meets off the plane is drawn there.
    StulCtyrU s(9);
    s.Radek(SSS).Zacni(3);
    OznacCtyruhelnik(s, "a");
    s.Nastroj(1).Vyber("ABC").Nastroj(2).Vyber("podle věty SSS");
    s.Napis("70", 1).Napis("50", 2).Napis("40", 3).Nastroj(6);
    EXPECT_FALSE(s.dialog.Stav().Nesestrojen);
    EXPECT_EQ(PocetUtvaru, 3);
}

TEST(CtyrUZpet, ZUzavrenehoZustanouStranyAPrvniUtvar) {
    StulCtyrU s(9);
    for (std::uint32_t seminko = 1; seminko <= 40; ++seminko) {
        s.Zacni(seminko);
        DokonalyCtyruhelnik(s, seminko).Sestroj();
        ASSERT_TRUE(s.dialog.Hotova());
        for (const int zbyde : {4, 3, 0}) {
            s.Zpet();
            EXPECT_EQ(PocetUtvaru, zbyde);
            EXPECT_EQ(PocetTrojic, zbyde);
            EXPECT_FALSE(s.dialog.Hotova());
        }
        EXPECT_FALSE(s.dialog.UkazPanel().cmd[4].Zive);
        DokonalyCtyruhelnik zak(s, seminko + 1);
        zak.Oznac();  // takes the marks off
        zak.Sestroj();
        s.dialog.Posun(20, -20);
        ASSERT_EQ(s.PoKontrole(), "") << seminko;
        ZmerObe(s);
    }
}

}  // namespace
}  // namespace rysovna::testy
