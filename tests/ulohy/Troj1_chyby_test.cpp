// Wrong steps of the triangle by SSS, SUS and USU: what each of them costs, what going back gives,
// how an example is settled. Played by the scripted pupil on the board's own controls.

#include <gtest/gtest.h>
#include <sstream>

#include "podpora/Rysovac.h"
#include "rules/DialogTrojuhelniku.h"
#include "rules/Misc.h"

namespace rysovna::testy {
namespace {

const DialogTrojuhelniku& Dialogem(Rysovac& r) {
    return dynamic_cast<const DialogTrojuhelniku&>(r.Deska().Dialogem());
}

/// The task of a kind of example.
int Uloha(int druh) {
    return druh == 1 ? 1 : druh <= 4 ? 2 : 3;
}

/// What was charged from one wrong step on, "7/1 19/3": numbers and points; a text that does not
/// tell the points shows.
std::string Uctovano(Rysovac& r, int od = 1) {
    std::string vse;
    for (int i = od; i <= r.Pamet().PocetChybnychKroku; ++i) {
        const ChybnyKrok& k = r.Pamet().ChybneKroky[i];
        vse += (i == od ? "" : " ") + k.Cislo + "/" + std::to_string(k.Body);
        const char* const SLOVY[] = {"", "  -1 bod", "  -2 body", "  -3 body"};
        if (k.Body <= 3 && !k.Text.ends_with(SLOVY[k.Body])) vse += "'" + k.Text + "'";
    }
    return vse;
}

/// Constructions of a kind of example (the words of Rysovac::Rysuj), each with what it is charged:
/// "BC+ = 7/1; AB+~ = 9/1 15/1".
struct Pripady {
    int Druh;
    const char* Vse;
};
constexpr Pripady PRIPADY[] = {
    // The first side: the choice (then the values cost nothing more), typed value, drawn value.
    {2, "BC+~ = 1/3"},
    {3, "AC+~ = 2/3"},
    {4, "AB+~ = 3/3"},
    {1, "BC+ = 7/1; AC+ = 8/1; AB+ = 9/1; BC~ = 13/1; AC~ = 14/1; AB~ = 15/1; AB+~ = 9/1 15/1"},
    // What is behind a decimal comma does not count.
    {1, "AB, = ; AB_ = 9/1"},
    // Circles: the radius stands for a side by the first side and the centre.
    {1, "AB kA+ = 8/1; AC kA+ = 9/1; AB kB+ = 7/1; BC kB+ = 9/1; AC kC+ = 7/1; BC kC+ = 8/1"},
    {1, "AC kC~ = 27/1; AB kA~ = 28/1; BC kB+~ = 9/1 29/1"},
    {1, "AB kA^ = 22/1; AB kA kB^ = 45/1; AB kA kB@ = 45/1"},
    {3, "AB kA+~^ = 32/3"},
    {2, "AB kB+~^ = 33/3; AC kC+~^ = 34/3; AB pA kB+~^ = 33/3"},
    {7, "AB kA+~^ = 21/3"},
    // No circle belongs here, even where it would fit.
    {5, "BC pB kC = 21/3"},
    // One that no expected step takes costs nothing by itself; a vertex with a circle about it is
    // still the vertex.
    {2, "AB kA kA = ; AB kA pA = "},
    // Rays: the place costs nothing where the value did.
    {2, "AB pA+ = 10/1"},
    {3, "AB pB+ = 11/1"},
    {4, "AC pC+ = 12/1"},
    {6, "AC pA~ = 30/1; AC pA pC+~ = 12/1 30/1"},
    {7, "AB pA@ = 23/1 31/1; AB pB+@ = 11/1 31/1; AB pA pB^ = 31/1"},
    {1, "AB pA+~^ = 18/3; AB pA@ = 18/3"},
    {2, "AB pA pA+~^ = 18/3; AB pB+~^ = 40/3; AC pC+~^ = 42/3"},
    {3, "AB pA+~^ = 38/3; AB kB pA+~^ = 39/3"},
    {2, "AB kA pB+~^ = 41/3; AC kA pC+~^ = 43/3"},
    // Tools that belong to no triangle: at each press, wherever the drag ends.
    {1, "AB pA+~^ kolmice = 18/3 19/3; AB kolmice^ zpet rovnobezka^ zpet kolmice = 19/3 20/3 19/3"},
    {7, "AB kA rovnobezka = 21/3 20/3"},
};

TEST(Trojuhelniky, KazdyChybnyKrokStojiPresneToCoMa) {
    for (const Pripady& p : PRIPADY) {
        std::istringstream vse(p.Vse);
        for (std::string pripad; std::getline(vse, pripad, ';');) {
            const std::size_t rovna = pripad.find(" = ");
            ASSERT_NE(rovna, std::string::npos) << pripad;
            Rysovac r(Uloha(p.Druh), p.Druh);
            r.Zacni().Rysuj(pripad.substr(0, rovna));
            EXPECT_EQ(Uctovano(r), pripad.substr(rovna + 3)) << "kind " << p.Druh << ": " << pripad;
        }
    }
}

TEST(Trojuhelniky, PraveTlacitkoAniStiskBezKrokuNicNestoji) {
    Rysovac r;
    r.Zacni().Rysuj("AB").Kdo.Nastroj(2).Vyber("k úsečce AB");
    r.Hra.Host().Okna().MysDolu(400, 300, PRAVE, 0);
    r.Hra.Host().Okna().MysNahoru(450, 250, PRAVE, 0);
    EXPECT_EQ(r.Pamet().PocetUtvaru, 1);
    EXPECT_EQ(r.Pamet().SoucetZapornychBodu, 0);
    for (int i = 0; i < 2; ++i) r.Kdo.Tahni({140, 190}, {140, 100});  // the second is not armed
    EXPECT_EQ(r.Pamet().PocetUtvaru, 2);
    EXPECT_EQ(Uctovano(r), "19/3");
}

// ---- Going back ------------------------------------------------------------------------------

/// Objects and snap records of the construction, "3 4".
std::string Pocty(Rysovac& r) {
    const Misc& m = r.Pamet();
    return std::to_string(m.PocetUtvaru) + " " + std::to_string(m.PocetTrojic);
}

TEST(Trojuhelniky, DokudSeCekaNaKresleniNenizadneTlacitkoZive) {
    Rysovac r;
    r.Zacni().Rysuj("AB").Kdo.Nastroj(4).Vyber("kružnice k, střed v bodě B");
    for (int i = 1; i <= 5; ++i) EXPECT_FALSE(r.Hra.Prvek("cmd", i).Enabled) << i;
    EXPECT_TRUE(r.Hra.Prvek("txtVstup").Visible);
    EXPECT_EQ(r.Hra.Prvek<Label>("lblText3").Caption, "kružnice k(B, r = ");
}

TEST(Trojuhelniky, NeuzavrenaTrojiceSeVraciTake) {
    Rysovac r;
    r.Zacni().Rysuj("AB rovnobezka rovnobezka");  // two parallels never meet
    EXPECT_FALSE(Dialogem(r).Hotova());
    r.Kdo.Stiskni("cmd", 1).Stiskni("cmd", 4);  // a full construction takes nothing more
    EXPECT_EQ(Pocty(r), "3 3");
    EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
    r.Rysuj("zpet");
    EXPECT_EQ(Pocty(r), "2 2");
    EXPECT_EQ(Uctovano(r), "20/3 20/3");
}

// ---- Settling the example --------------------------------------------------------------------

struct PripadKontroly {
    const char *NavicZnacka, *Kroky, *Kontrola;  ///< what the check charged, in this order
    const char* Konec;                           ///< of the last sentence
    int Soucet, Kladne;
};
constexpr PripadKontroly KONTROLY[] = {
    {"", "vse", "", "", 0, 10},
    {"", "AB+ kA kB", "", "  -1 bod", 1, 9},
    {"", "AB+ kolmice zpet kolmice zpet kolmice zpet kA kB", "", "  -3 body", 10, 0},
    {"", "AB kolmice zpet kolmice zpet kolmice zpet kolmice zpet kA kB", "", "  -3 body", 12, 0},
    // Wrong marks cost nothing on a clean example.
    {"gama", "vse", "", "", 0, 10},
    {"gama", "AB+ kA kB", "16/1", "  -1 bod", 2, 8},
    {"", "AB+~", "301/2 300/10", "    - 6 bod", 14, 0},
    {"gama", "AB", "301/2 16/1 300/10", "    - 7 bod", 13, 0},
    {"", "", "301/3 300/10", "    - 7 bod", 13, 0},
    {"", "AB+~ kolmice zpet kolmice zpet", "301/2 300/10", "dokončena.", 20, 0},
    {"", "AB kA rovnobezka", "301/1", "  -1 bod", 4, 6},
    {"", "AB kolmice pA", "301/2", "  -2 body", 8, 2},
};

TEST(Trojuhelniky, SoucetVerdiktABodyPodlePripadu) {
    for (const PripadKontroly& p : KONTROLY) {
        SCOPED_TRACE(p.Kroky);
        Rysovac r;
        r.Zacni(p.NavicZnacka).Rysuj(p.Kroky);
        const Misc& m = r.Pamet();
        const int predtim = m.PocetChybnychKroku;
        r.Zkontroluj();
        EXPECT_EQ(Uctovano(r, predtim + 1), p.Kontrola);
        const std::string& text = m.ChybneKroky[m.PocetChybnychKroku].Text;
        EXPECT_TRUE(text.ends_with(p.Konec)) << text;
        EXPECT_EQ(m.SoucetZapornychBodu, p.Soucet);
        EXPECT_EQ(m.KladneBody, p.Kladne);
        EXPECT_EQ(m.ZaporneBody, 10 - p.Kladne);
        EXPECT_TRUE(r.Hra.Prvek("ImgHodnoceni").Visible);
        EXPECT_EQ(r.Hra.Prvek("ImgHodnoceni").Enabled, p.Soucet > 0);
        for (int i = 1; i <= 5; ++i) EXPECT_FALSE(r.Hra.Prvek("cmd", i).Enabled);
        for (int i = 1; i <= 3; ++i) EXPECT_FALSE(r.Hra.Prvek("PicTop", i).Enabled);
        EXPECT_FALSE(r.Hra.Prvek("Pic").Enabled);
        EXPECT_TRUE(r.Hra.Prvek("picPokracuj").Enabled);
    }
}

TEST(Trojuhelniky, SeznamChybUkazeDesetANejdelDokudSeDrzi) {
    Rysovac r;
    r.Zacni().Rysuj("AB");
    for (int i = 0; i < 11; ++i) r.Rysuj("kolmice zpet");
    r.Rysuj("kA kB").Zkontroluj();
    ASSERT_EQ(r.Pamet().PocetChybnychKroku, 11);
    r.Hra.Zmackni("ImgHodnoceni", 0, {5, 5});
    ASSERT_EQ(r.Hra.JmenoVpredu(), "ChybovyForm");
    std::string ceka = "Během konstrukce byly provedeny tyto chybné kroky:\n\n";
    for (int i = 1; i <= 10; ++i)
        ceka += " " + std::to_string(i) + ". Kolmice do této konstrukce nepatří.  -3 body\n";
    EXPECT_EQ(r.Hra.Prvek<TextBox>("Text1").Text, ceka);
    r.Hra.Cekej(500);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "ChybovyForm");
    r.Hra.Host().Okna().MysNahoru(180, 410, LEVE, 0);
    EXPECT_EQ(r.Hra.Najdi("ChybovyForm"), nullptr);

    // A release that got lost: the next press, beside the list or on it, closes it.
    for (const Bod kde : {Bod{20, 470}, Bod{400, 200}}) {
        r.Hra.Zmackni("ImgHodnoceni", 0, {5, 5});
        ASSERT_EQ(r.Hra.JmenoVpredu(), "ChybovyForm");
        r.Hra.StiskniMisto(kde.X, kde.Y);
        r.Hra.Cekej(200);
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
        EXPECT_FALSE(r.Hra.Prvek("IHintS").Visible);
    }
}

// ---- The vertex and the arrows ---------------------------------------------------------------

TEST(Trojuhelniky, PosunutyVrcholZustavaVrcholemAZpetHoPusti) {
    for (int druh = 1; druh <= 7; ++druh) {
        SCOPED_TRACE(druh);
        Rysovac r(Uloha(druh), druh);
        r.Zacni().Rysuj("vse");
        const Misc& m = r.Pamet();
        const StavTrojuhelniku& stav = Dialogem(r).Stav();
        ASSERT_NE(stav.Vrchol, BEZ_BODU);
        const Bod posunuty{stav.Vrchol.X + 60, stav.Vrchol.Y - 20};
        for (const int sipka : {1, 1, 1, 4}) r.Kdo.Stiskni("picSipka", sipka);
        EXPECT_EQ(stav.Vrchol, posunuty);
        ASSERT_EQ(m.PocetTrojic, 4);
        EXPECT_EQ((Bod{m.Trojice_tab[4].X1, m.Trojice_tab[4].Y1}), posunuty);
        EXPECT_EQ(m.Trojice_tab[4].Jmeno1, stav.PismenoVrcholu);
        EXPECT_EQ(m.Utvary[1].X1, r.Prvni.X + 60);
        r.Rysuj("zpet");
        EXPECT_EQ(m.PocetTrojic, 2);
        EXPECT_EQ(stav.Vrchol, BEZ_BODU);
        r.Kdo.Stiskni("picSipka", 2);
        EXPECT_EQ((Bod{m.Trojice_tab[1].X1, m.Trojice_tab[1].Y1}),
                  (Bod{r.Prvni.X + 40, r.Prvni.Y - 20}));
    }
}

TEST(Trojuhelniky, SedmyStiskJesteOsmyUzNe) {
    Rysovac r;
    r.Zacni();
    const Misc& m = r.Pamet();
    for (int i = 1; i <= 4; ++i) {
        const int& posun = i <= 2 ? m.PosunX : m.PosunY;
        while (posun != 0) r.Kdo.Stiskni("picSipka", i);
        for (int k = 1; k <= 8; ++k) {
            r.Kdo.Stiskni("picSipka", i);
            EXPECT_EQ(posun, (i % 2 == 1 ? 20 : -20) * std::min(k, 7));
        }
    }
    r.Kdo.Stiskni("PicTop", 2);
    EXPECT_EQ(m.PosunX, 0);
    EXPECT_EQ(m.PosunY, 0);
}

}  // namespace
}  // namespace rysovna::testy
