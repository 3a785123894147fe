// A board and the screens around it played by keys: what goes where. Whole examples are played by
// the perfect pupil, everything else at once by the careless one.

#include <gtest/gtest.h>

#include "engine/Tabulky.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "platform/Obrazovky.h"
#include "podpora/Rysovac.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/Desky.h"
#include "zak/Ctyruhelnik.h"

namespace rysovna::testy {
namespace {

constexpr int SSS = 1;

class KlavesyDesky : public testing::Test {
protected:
    KlavesyDesky() {}

    static std::string Prsten(Relace& hra) {
        const auto p = hra.Host().Okna().PrstenVpredu();
        if (!p) return "";
        return p->Co->Name + (p->Co->Index != 0 ? std::to_string(p->Co->Index) : "");
    }
    /// The cross, px of the plane.
    static Bod Kriz(Relace& hra) {
        const Bod hrot = hra.Host().Okna().PrstenVpredu().value().Hrot;
        const Bod roh = hra.Roh(hra.Prvek("Pic"));
        return {hrot.X - roh.X, hrot.Y - roh.Y};
    }
    static void Klavesy(Relace& hra, std::initializer_list<const char*> klavesy) {
        for (const char* k : klavesy) hra.Klavesa(k);
    }
};

TEST_F(KlavesyDesky, TabulatorJdeJakoCteniAJenPoZivych) {
    Rysovac r(SSS, 1);
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
    EXPECT_EQ(r.Hra.Prvek("Combo").Visible, false);
}

TEST_F(KlavesyDesky, EnterVedePolickyKTlacitkuNeboNaPlochu) {
    Relace hra(1, Relace::Cim::Klavesami);
    hra.Start();
    hra.SpustUlohu(9);
    hrac::RukaNaDesce ruka(hra);
    hrac::DokonalyCtyruhelnik(ruka, 1).Oznac();
    ruka.Nastroj(1).Vyber("CDA");
    ruka.Nastroj(2).Vyber("podle věty SSS");
    ASSERT_NE(hra.Host().Okna().Psane(), nullptr);
    std::string kudy;
    for (const char* text : {"12", "13", "14"}) {
        hra.Napis(text);
        hra.Klavesa("Return");
        kudy += Prsten(hra) + " ";
    }
    EXPECT_EQ(kudy, "txtVstup2 txtVstup3 cmd6 ");
    EXPECT_EQ(hra.Prvek<TextBox>("txtVstup2").Text, "13");

    Rysovac r(SSS, 1);
    r.Zacni();
    Klavesy(r.Hra, {"1", "1"});
    r.Hra.Cekej(100);
    // In the box digits and letters are its own.
    r.Hra.Napis("12");
    Klavesy(r.Hra, {"1", "a", "Space"});
    EXPECT_EQ(r.Hra.Prvek<TextBox>("txtVstup").Text, "12");
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    r.Hra.Klavesa("Return");
    EXPECT_EQ(Prsten(r.Hra), "Pic");
    EXPECT_FALSE(r.Hra.Host().Okna().DrziKlavesa());
}

/// From what is filled in to what is missing, and on to the board; no press too many does harm.
TEST_F(KlavesyDesky, EnterNaJmenuANaPoctuVedeDal) {
    Relace hra;
    hra.Start();
    hra.Stiskni("LI", 1);
    hra.Stiskni("RI", 1);
    std::string kudy;
    const auto enter = [&](const char* odkud, int index) {
        hra.NaZastavku(odkud, index);
        hra.Klavesa("Return");
        hra.Cekej(500);
        kudy += Prsten(hra) + " ";
    };
    enter("TJmeno", 0);
    enter("ICislo", 5);
    hra.Napis("Ema");
    EXPECT_EQ(kudy, "TJmeno TJmeno ") << "the name is missing";
    hra.Prepis("TJmeno", "");
    hra.Stiskni("picKonec");
    hra.Cekej(200);
    hra.Stiskni("RI", 1);
    hra.Napis("Eva");
    enter("TJmeno", 0);
    enter("ICislo", 2);
    EXPECT_EQ(kudy, "TJmeno TJmeno ICislo1 picPokracuj ");
    EXPECT_EQ(hra.JmenoVpredu(), "SetupForm");
    enter("ICislo", 2);
    EXPECT_EQ(hra.JmenoVpredu(), "Troj1Form");
    EXPECT_EQ(hra.Pamet().JmenoHrace + " " + std::to_string(hra.Pamet().PocetPrikladuSerie),
              "Eva 2");
}

/// A second press brings the panel back, and opens no list.
TEST_F(KlavesyDesky, PrstenZustaneNaUchuPanelu) {
    Rysovac r(SSS, 1);
    r.Kdo.Oznac("a").Oznac("b").Oznac("c");
    r.Hra.NaZastavku("Image1");
    for (const char* ucho : {"MalaSipka", "Image1", "MalaSipka"}) {
        r.Hra.Klavesa("Space");
        r.Hra.Cekej(100);
        EXPECT_EQ(Prsten(r.Hra), ucho);
    }
    EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
}

TEST_F(KlavesyDesky, EscapeVedeZpetNaDesceJenZavreSeznam) {
    Rysovac r(SSS, 1);
    Relace& hra = r.Hra;
    const auto po = [&](const char* klavesa) {
        hra.Klavesa(klavesa);
        hra.Cekej(1500);
        return hra.JmenoVpredu();
    };
    r.Zacni();
    for (const char* pres : {"F1", "3"}) {
        if (*pres == '3') {
            hra.NaZastavku("PicTop", 3);
            pres = "Space";
        }
        EXPECT_NE(po(pres), "Troj1Form");
        EXPECT_EQ(po("Escape"), "Troj1Form");
    }
    hra.Klavesa("1");
    EXPECT_TRUE(hra.Prvek("Combo").Visible);
    EXPECT_EQ(po("Escape"), "Troj1Form");
    EXPECT_FALSE(hra.Prvek("Combo").Visible);
    EXPECT_EQ(Prsten(hra), "cmd1");
    EXPECT_EQ(po("Escape"), "Troj1Form");
    hra.NaZastavku("PicTop", 4);
    EXPECT_EQ(po("Space"), "SetupForm");
    EXPECT_EQ(po("Escape"), "SetupForm") << "there is a name";
    hra.Prepis("TJmeno", "");
    EXPECT_EQ(po("Escape"), "SelectForm");
    EXPECT_EQ(po("F1"), "HelpForm");
    EXPECT_EQ(po("Escape"), "SelectForm");
    hra.Host().Zpravy.clear();
    EXPECT_EQ(po("Escape"), "SelectForm");
    EXPECT_EQ(hra.Host().Zpravy.size(), 1U) << "asked, and not left";
}

TEST_F(KlavesyDesky, TahKlavesamiPustiJenMezernik) {
    Rysovac r(SSS, 1);
    Relace& hra = r.Hra;
    r.Zacni();
    Klavesy(hra, {"1", "1"});
    hra.Cekej(100);
    hra.Napis("12");
    hra.Klavesa("Return");
    const auto bitmapa = [&] {
        auto& pic = hra.Prvek<PictureBox>("Pic");
        const Surface& plocha = pic.Plocha();
        std::vector<Barva> body;
        for (int i = 0; i < pic.Width * pic.Height; ++i)
            body.push_back(plocha.Point(i % pic.Width, i / pic.Width));
        return body;
    };
    const auto pred = bitmapa();
    for (int i = 0; i < 9; ++i) hra.Klavesa("Left", 1);
    const Bod odkud = Kriz(hra);
    EXPECT_EQ(odkud.X, 192 - 90);
    hra.Klavesa("Space");
    for (int i = 0; i < 9; ++i) hra.Klavesa("Right", 1);
    for (int i = 0; i < 6; ++i) hra.Klavesa("Right");
    Klavesy(hra, {"Tab", "Escape", "Return", "F1", "1", "BackSpace", "Home"});
    EXPECT_TRUE(hra.Prvek("Line1").Visible);
    EXPECT_EQ(Prsten(hra), "Pic");
    EXPECT_EQ(hra.JmenoVpredu(), "Troj1Form");
    EXPECT_EQ(r.Hra.Pamet().PocetUtvaru, 0);
    EXPECT_EQ(bitmapa(), pred) << "neither ring nor cross is drawn on it";
    hra.Klavesa("Space");
    hra.Cekej(50);
    ASSERT_EQ(r.Hra.Pamet().PocetUtvaru, 1);
    EXPECT_EQ(Prsten(hra), "cmd1");
    EXPECT_EQ((Bod{r.Hra.Pamet().Utvary[1].X1, r.Hra.Pamet().Utvary[1].Y1}), odkud);
    EXPECT_EQ((Bod{r.Hra.Pamet().Utvary[1].X2, r.Hra.Pamet().Utvary[1].Y2}),
              (Bod{odkud.X + 96, odkud.Y}));
    EXPECT_NE(bitmapa(), pred);

    // Letters go from point to point, onto their very pixel; also in the middle of a drag.
    const std::string jmena = r.Hra.Pamet().Utvary[1].Jmeno1 + r.Hra.Pamet().Utvary[1].Jmeno2;
    EXPECT_EQ(jmena, "AB");
    Klavesy(hra, {"4", "1"});
    hra.Cekej(100);
    hra.Klavesa("Return");
    ASSERT_EQ(Prsten(hra), "Pic");
    Klavesy(hra, {"Down", "b", "x"});
    EXPECT_EQ(Kriz(hra), (Bod{odkud.X + 96, odkud.Y}));
    hra.Klavesa("Space");
    EXPECT_TRUE(hra.Prvek("Circle1").Visible) << "seen at once, with no move";
    hra.Klavesa("a");
    EXPECT_EQ(Kriz(hra), odkud);
    // Neither the mouse nor a finger ends it; where it ends off the plane, the next one begins on
    // it.
    hra.StiskniMisto(300, 40);
    EXPECT_TRUE(hra.Host().Okna().DrziKlavesa());
    for (int i = 0; i < 40; ++i) hra.Klavesa("Left", 1);
    EXPECT_LT(Kriz(hra).X, 0);
    hra.Klavesa("Space");
    hra.Cekej(200);
    ASSERT_EQ(r.Hra.Pamet().PocetUtvaru, 2);
    Klavesy(hra, {"4", "1"});
    hra.Cekej(100);
    hra.Klavesa("Return");
    EXPECT_EQ(Kriz(hra).X, 0);
}

/// The figure is done: under the ring is no step back, no mark, that one press more would spoil.
TEST_F(KlavesyDesky, HotovouFiguruNicNezkazi) {
    Relace hra(7, Relace::Cim::Klavesami);
    hra.Start();
    hra.SpustUlohu(18);
    hrac::RukaNaDesce ruka(hra);
    hrac::Sestroj(ruka, 7);
    ASSERT_FALSE(hra.Prvek("Pic").Enabled);
    ASSERT_TRUE(hra.Prvek("cmd", 5).Enabled);
    EXPECT_EQ(Prsten(hra), "INadpis");
}

TEST_F(KlavesyDesky, SeznamChybStojiDokudSeDrziMezernik) {
    Rysovac r(SSS, 1);
    Relace& hra = r.Hra;
    r.Zacni().Rysuj("AB+").Zkontroluj();
    hra.NaZastavku("ImgHodnoceni");
    for (int i = 0; i < 2; ++i) {
        hra.Klavesa("Space");
        hra.Cekej(500);
        EXPECT_EQ(hra.JmenoVpredu(), "ChybovyForm");
        Klavesy(hra, {"Tab", "Left", "a"});
        EXPECT_EQ(hra.JmenoVpredu(), "ChybovyForm");
        hra.Host().Okna().KlavesaNahoru("Space");
        EXPECT_EQ(hra.JmenoVpredu(), "Troj1Form");
    }
}

}  // namespace
}  // namespace rysovna::testy
