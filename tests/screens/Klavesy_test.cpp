// A board and the screens around it played by keys: what goes where. Whole examples are played by
// the perfect pupil, everything else at once by the careless one.

#include <gtest/gtest.h>

#include "engine/Tabulky.h"
#include "hrac/RukaNaDesce.h"
#include "podpora/Rysovac.h"
#include "podpora/Udalosti.h"
#include "rules/Misc.h"
#include "zak/Ctyruhelnik.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

/// The cross, px of the plane.
Bod Kriz(Relace& hra) {
    const Bod hrot = hra.Host().Okna().PrstenVpredu().value().Hrot;
    const Bod roh = hra.Roh(hra.Prvek("Pic"));
    return {hrot.X - roh.X, hrot.Y - roh.Y};
}

TEST(KlavesyDesky, TabulatorJdeJakoCteniAJenPoZivych) {
    Rysovac r;
    const auto dokola = [&] {
        std::string poradi;
        r.Hra.NaZastavku("INadpis");
        do {
            poradi += Prsten(r.Hra) + " ";
            r.Hra.Klavesa("Tab");
        } while (Prsten(r.Hra) != "INadpis");
        return poradi;
    };
    const std::string hore = "INadpis PicTop1 PicTop2 PicTop3 PicTop4 ";
    const std::string sipky = "picSipka1 picSipka2 picSipka3 picSipka4 ";
    EXPECT_EQ(dokola(), hore + sipky + "SamplePic Image1 ");
    r.Kdo.Oznac("a").Oznac("b").Oznac("c");
    EXPECT_EQ(dokola(), hore + "cmd1 " + sipky + "SamplePic Image1 ");
    r.Hra.Klavesa("1");
    EXPECT_EQ(Prsten(r.Hra), "ComboLabel1") << "a list takes the ring";
    r.Kdo.Vyber("AB");
    EXPECT_EQ(dokola(), hore + "txtVstup Pic " + sipky + "SamplePic Image1 ");
    EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
}

TEST(KlavesyDesky, EnterATabulatorVedouPolickyAOznaciCoVNichJe) {
    Relace hra(1, Relace::Cim::Klavesami);
    hra.Start();
    hra.SpustUlohu(9);
    RukaNaDesce ruka(hra);
    DokonalyCtyruhelnik(ruka, 1).Oznac();
    ruka.Nastroj(1).Vyber("CDA");
    EXPECT_EQ(hra.Prvek<Label>("lblText2").Caption, "trojúhelník CDA");
    ruka.Nastroj(2).Vyber("podle věty SSS");
    for (const auto& [pole, text] :
         {std::pair{"txtVstup2", "'12"}, {"txtVstup3", "'13"}, {"cmd6", "'14"}}) {
        Proved(hra, text);
        Proved(hra, "Return");
        EXPECT_EQ(Prsten(hra), pole);
    }
    Proved(hra, "^Tab*3 '6 Tab '7 Tab 'ztraceno");
    std::string psano;
    for (const char* pole : {"txtVstup", "txtVstup2", "txtVstup3"})
        psano += hra.Prvek<TextBox>(pole).Text + " ";
    EXPECT_EQ(psano, "12 6 7 ");

    Rysovac r;
    r.Zacni();
    // In the box digits and letters are its own.
    Proved(r.Hra, "1 1 100ms '12 1 a Space");
    EXPECT_EQ(r.Hra.Prvek<TextBox>("txtVstup").Text, "12");
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    Proved(r.Hra, "Return");
    EXPECT_EQ(Prsten(r.Hra), "Pic");
    EXPECT_FALSE(r.Hra.Host().Okna().DrziKlavesa());
}

/// Events one after another, each with the screen and the control under the ring that it leads to.
using Kroky = std::initializer_list<std::pair<const char*, const char*>>;
void Projdi(Relace& hra, Kroky kroky) {
    for (const auto& [udalosti, kam] : kroky) {
        Proved(hra, udalosti);
        hra.Cekej(1500);
        EXPECT_EQ(hra.JmenoVpredu() + " " + Prsten(hra), kam) << udalosti;
    }
}

/// From what is filled in to what is missing, and on to the board; no press too many does harm.
TEST(KlavesyDesky, EnterNaJmenuANaPoctuVedeDal) {
    Relace hra;
    hra.Start();
    hra.Stiskni("LI", 1);
    hra.Stiskni("RI", 1);
    Projdi(hra, {{"@TJmeno Return", "SetupForm TJmeno"}, {"@ICislo5 Return", "SetupForm TJmeno"}});
    hra.Napis("Ema");
    hra.Prepis("TJmeno", "");
    Proved(hra, "!picKonec 200ms !RI1 'Eva");
    Projdi(hra,
           {{"@TJmeno Return", "SetupForm ICislo1"}, {"@ICislo2 Return", "SetupForm picPokracuj"}});
    Proved(hra, "@ICislo2 Return 500ms");
    EXPECT_EQ(hra.JmenoVpredu(), "Troj1Form");
    EXPECT_EQ(hra.Pamet().JmenoHrace + " " + std::to_string(hra.Pamet().PocetPrikladuSerie),
              "Eva 2");
}

/// A second press brings the panel back, and opens no list.
TEST(KlavesyDesky, PrstenZustaneNaUchuPanelu) {
    Rysovac r;
    r.Kdo.Oznac("a").Oznac("b").Oznac("c");
    Projdi(r.Hra, {{"@Image1 Space", "Troj1Form MalaSipka"},
                   {"Space", "Troj1Form Image1"},
                   {"Space", "Troj1Form MalaSipka"}});
    EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
}

TEST(KlavesyDesky, EscapeVedeZpetNaDesceJenZavreSeznam) {
    Rysovac r;
    Relace& hra = r.Hra;
    const auto po = [&](const char* udalosti) {
        Proved(hra, udalosti);
        hra.Cekej(1500);
        return hra.JmenoVpredu();
    };
    r.Zacni();
    for (const char* pryc : {"F1", "@PicTop3 Space"}) {
        EXPECT_NE(po(pryc), "Troj1Form");
        EXPECT_EQ(po("Escape"), "Troj1Form");
    }
    hra.Klavesa("1");
    EXPECT_TRUE(hra.Prvek("Combo").Visible);
    EXPECT_EQ(po("Escape"), "Troj1Form");
    EXPECT_FALSE(hra.Prvek("Combo").Visible);
    EXPECT_EQ(Prsten(hra), "cmd1");
    EXPECT_EQ(po("Escape"), "Troj1Form");
    EXPECT_EQ(po("@PicTop4 Space"), "SetupForm");
    EXPECT_EQ(po("Escape"), "SetupForm") << "there is a name";
    hra.Prepis("TJmeno", "");
    EXPECT_EQ(po("Escape"), "SelectForm");
    EXPECT_EQ(po("F1"), "HelpForm");
    EXPECT_EQ(po("Escape"), "SelectForm");
    hra.Host().Zpravy.clear();
    EXPECT_EQ(po("Escape"), "SelectForm");
    EXPECT_EQ(hra.Host().Zpravy.size(), 1U) << "asked, and not left";
}

TEST(KlavesyDesky, TahKlavesamiPustiJenMezernik) {
    Rysovac r;
    Relace& hra = r.Hra;
    const Misc& m = r.Pamet();
    r.Zacni();
    Proved(hra, "1 1 100ms '12 Return");
    const auto bitmapa = [&] {
        const auto& pic = hra.Prvek<PictureBox>("Pic");
        std::vector<Barva> body;
        for (int i = 0; i < pic.Width * pic.Height; ++i)
            body.push_back(pic.PlochaNeboNic()->Point(i % pic.Width, i / pic.Width));
        return body;
    };
    const auto pred = bitmapa();
    Proved(hra, "^Left*9");
    const Bod odkud = Kriz(hra), kam{odkud.X + 96, odkud.Y};
    EXPECT_EQ(odkud.X, 192 - 90);
    Proved(hra, "Space ^Right*9 Right*6 Tab Escape Return F1 1 BackSpace Home");
    EXPECT_TRUE(hra.Prvek("Line1").Visible);
    EXPECT_EQ(Prsten(hra), "Pic");
    EXPECT_EQ(hra.JmenoVpredu(), "Troj1Form");
    EXPECT_EQ(m.PocetUtvaru, 0);
    EXPECT_EQ(bitmapa(), pred) << "neither ring nor cross is drawn on it";
    Proved(hra, "Space 50ms");
    ASSERT_EQ(m.PocetUtvaru, 1);
    EXPECT_EQ(Prsten(hra), "cmd1");
    EXPECT_EQ((Bod{m.Utvary[1].X1, m.Utvary[1].Y1}), odkud);
    EXPECT_EQ((Bod{m.Utvary[1].X2, m.Utvary[1].Y2}), kam);
    EXPECT_NE(bitmapa(), pred);

    // Letters go from point to point, onto their very pixel; also in the middle of a drag.
    EXPECT_EQ(m.Utvary[1].Jmeno1 + m.Utvary[1].Jmeno2, "AB");
    Proved(hra, "4 1 100ms Return");
    ASSERT_EQ(Prsten(hra), "Pic");
    Proved(hra, "Down b x");
    EXPECT_EQ(Kriz(hra), kam);
    Proved(hra, "Space");
    EXPECT_TRUE(hra.Prvek("Circle1").Visible) << "seen at once, with no move";
    Proved(hra, "a");
    EXPECT_EQ(Kriz(hra), odkud);
    // Neither the mouse nor a finger ends it; where it ends off the plane, the next one begins on
    // it.
    hra.StiskniMisto(300, 40);
    EXPECT_TRUE(hra.Host().Okna().DrziKlavesa());
    Proved(hra, "^Left*40");
    EXPECT_LT(Kriz(hra).X, 0);
    Proved(hra, "Space 200ms 4 1 100ms Return");
    ASSERT_EQ(m.PocetUtvaru, 2);
    EXPECT_EQ(Kriz(hra).X, 0);
}

/// The figure is done: under the ring is no step back, no mark, that one press more would spoil.
TEST(KlavesyDesky, HotovouFiguruNicNezkazi) {
    Relace hra(7, Relace::Cim::Klavesami);
    hra.Start();
    hra.SpustUlohu(18);
    RukaNaDesce ruka(hra);
    hrac::Sestroj(ruka, 7);
    ASSERT_FALSE(hra.Prvek("Pic").Enabled);
    ASSERT_TRUE(hra.Prvek("cmd", 5).Enabled);
    EXPECT_EQ(Prsten(hra), "INadpis");
}

TEST(KlavesyDesky, SeznamChybStojiDokudSeDrziMezernik) {
    Rysovac r;
    r.Zacni().Rysuj("AB+").Zkontroluj();
    Proved(r.Hra, "@ImgHodnoceni");
    for (int i = 0; i < 2; ++i) {
        for (const char* pri : {"Space 500ms", "Tab Left a"}) {
            Proved(r.Hra, pri);
            EXPECT_EQ(r.Hra.JmenoVpredu(), "ChybovyForm");
        }
        r.Hra.Host().Okna().KlavesaNahoru("Space");
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    }
}

}  // namespace
}  // namespace rysovna::testy
