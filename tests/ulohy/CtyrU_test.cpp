// The general quadrilateral, at the dialogue.

#include "podpora/MeryBodu.h"
#include "rules/CtyrUDialog.h"
#include "ulohy/Ctyruhelniky.h"

namespace rysovna::testy {
namespace {

using StulCtyrU = Stul<CtyrUDialog>;

TEST(CtyrUDokonaly, KazdyRadekDaDesetBoduAZadanyCtyruhelnik) {
    EXPECT_GT((OdehrajSoubor<DokonalyCtyruhelnik>(9, ZmerObe<CtyrUDialog>)), 0);
}

const std::string SSS = "17#ABC#a#b#e#cm#cm#cm#sss#c#cm#kruznice#KC#d#cm#kruznice#KA";
const std::string SUS = "02#ABC#a#b#beta#cm#cm#°#sus#c#cm#kruznice#KC#alfa#°#poloprimka#AXAB";

// The fourth vertex by circles about the first and the last vertex of the triangle, by rays at
// them.
const Konce KRUZNICE_DAT = {
    "c#cm#kruznice#KC#d#cm#kruznice#KA", "d#cm#kruznice#KD#a#cm#kruznice#KB",
    "a#cm#kruznice#KA#b#cm#kruznice#KC", "b#cm#kruznice#KB#c#cm#kruznice#KD"};
const Konce PAPRSKY_DAT = {"alfa#°#poloprimka#AXAB#gama#°#poloprimka#CXCB",
                           "beta#°#poloprimka#BXBC#delta#°#poloprimka#DXDC",
                           "gama#°#poloprimka#CXCD#alfa#°#poloprimka#AXAD",
                           "delta#°#poloprimka#DXDA#beta#°#poloprimka#BXBA"};

TEST(CtyrUChyby, KazdyTrojuhelnikAKazdyUtvar) {
    StulCtyrU s(9);
    OverZacatky(s, CELE, "17", "01", KRUZNICE_DAT);
    for (std::size_t i = 0; i < CELE.size(); ++i) {
        OverUtvary(s, RadekDat("17", CELE[i], false, KRUZNICE_DAT[i]), false);
        OverUtvary(s, RadekDat("20", CELE[i], false, PAPRSKY_DAT[i]), false);
    }
    // A kind is expected once; of the right kind in the wrong place the check counts the element.
    ZacniRadek(s, SUS);
    DokonalyCtyruhelnik zak(s, 1);
    zak.Trojuhelnik();
    zak.Narysuj(1);
    s.Proved({{4, "kružnice l, střed v bodě D"}, {5}, {1, "BY, svírající úhel s úsečkou BC"}, {0}});
    EXPECT_EQ(s.Chyby(), "21/3 49/3 301/1 16/1 300/10");
}

TEST(CtyrUTrojuhelnik, NesestrojenyNechaPrikladNedokoncenyAVseStisknutelne) {
    StulCtyrU s(9);
    for (const std::string& radek : {SSS, SUS}) {
        OverNesestrojeny<DokonalyCtyruhelnik>(
            s, radek, {{1, "AX, svírající úhel s úsečkou AB"}, {4, "kružnice l, střed v bodě A"}});
    }
    // What meets off the plane is drawn there.
    ZacniRadek(s, SSS);
    s.Nastroj(1).Vyber("ABC").Nastroj(2).Vyber("podle věty SSS");
    s.Napis("70", 1).Napis("50", 2).Napis("40", 3).Nastroj(6);
    EXPECT_FALSE(s.dialog.Stav().Nesestrojen);
    EXPECT_EQ(s.Pamet().PocetUtvaru, 3);
}

TEST(CtyrUTrojuhelnik, ZpetPredNarysovanimVraciVolbu) {
    StulCtyrU s(9);
    ZacniRadek(s, SSS);
    const auto zive = [&s] {
        std::string ktere;
        for (const MistoNastroje& n : s.dialog.UkazPanel().Nastroje) ktere += n.Zivy() ? '1' : '0';
        return ktere;
    };
    EXPECT_EQ(zive(), "100000");
    s.Nastroj(1).Vyber("BCD");
    EXPECT_EQ(zive(), "110010");
    s.Nastroj(2).Vyber("podle věty SUS").Napis("7", 1);
    EXPECT_EQ(zive(), "110011");
    s.Nastroj(2);  // its list is open
    for (const char* jak : {"with a list open", "with the triangle alone"}) {
        s.Zpet();
        StavCtyruhelniku ceka;
        ceka.Znacky = s.dialog.Stav().Znacky;
        ceka.KrokChybny = true;  // until the next choice
        ceka.Vyber = s.dialog.Stav().Vyber;
        EXPECT_FALSE(ceka.Vyber.Otevreny);
        EXPECT_EQ(s.dialog.Stav(), ceka) << jak;
        EXPECT_EQ(zive(), "100000") << jak;
        EXPECT_EQ(s.Pamet().ZadanePrvky[1].Prvek, "BCD") << jak;
        s.Nastroj(1).Vyber("BCD");
    }
    // What was charged stays; the right choice is then judged afresh.
    EXPECT_EQ(s.Chyby(), "133/3 101/3 133/3 133/3");
    s.Zpet();
    DokonalyCtyruhelnik(s, 1).Trojuhelnik();
    EXPECT_FALSE(s.dialog.Stav().KrokChybny);
    EXPECT_EQ(s.Chyby(), "133/3 101/3 133/3 133/3");
    EXPECT_EQ(s.dialog.Stav().Faze, 2);
}

TEST(CtyrUUzavreni, PaprskySeMusiProtnoutPredZacatkem) {
    StulCtyrU s(9);
    s.Radek(RadekDat("20", CELE[0], false, PAPRSKY_DAT[0]));
    for (std::uint32_t seminko = 1; seminko <= 40; ++seminko) {
        s.Zacni(seminko);
        DokonalyCtyruhelnik zak(s, 1);
        zak.Oznac();
        zak.Trojuhelnik();
        // Outward they run apart if together they turn more than the sides that they leave.
        const double beta = UhelPri(VrcholNaPlose(s.Pamet(), "B"), VrcholNaPlose(s.Pamet(), "A"),
                                    VrcholNaPlose(s.Pamet(), "C"));
        const auto& h = s.dialog.Hodnoty();
        PaprsekVen(s, "ABC", "AX", h[3]);
        PaprsekVen(s, "CBA", "CY", h[4]);
        const bool protnou = h[3] + h[4] < beta;
        EXPECT_EQ(s.PoKontrole(), protnou ? "" : "300/10") << seminko;
        EXPECT_TRUE(protnou || s.Pamet().ChybneKroky[1].Text.ends_with("    - 10 bodů"));
    }
}

}  // namespace
}  // namespace rysovna::testy
