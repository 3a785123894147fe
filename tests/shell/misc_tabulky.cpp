#include <gtest/gtest.h>

#include "engine/Tabulky.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessHost.h"
#include "shell/Misc.h"

namespace rysovna::testy {
namespace {

/// Every record and every session variable holds something.
void NaplnVse() {
    for (int i = 0; i <= 100; ++i) {
        Priklady[i] = {.Druh = "1", .Text2 = "t", .Dalsi3 = "d"};
        Priklady[i].Kroky[8] = {"j", "jb", "u", "ub", -1};
        ChybneKroky[i] = {"7", "x", 0, 1};
        Utvary[i].Druh = BOD;
        Utvary[i].Popis4 = "p";
        Utvary[i].Znacky = -1;
        Trojice_tab[i].X3 = 5;
        Trojice_tab[i].Jmeno3 = "Sa";
    }
    for (int i = 0; i <= 20; ++i) ZadanePrvky[i] = {3, "u", "p", "1", "2", "3", "4"};
    PocetPrikladu = PocetUtvaru = PocetTrojic = PocetChybnychKroku = 60;
}

TEST(SmazTabulky, JenPolovinaTabulekABezPocitadel) {
    NaplnVse();
    const Utvar plnyUtvar = Utvary[51];
    SmazTabulky();
    Utvar prazdny;
    prazdny.Popis4 = " 0";
    for (int i = 1; i <= 100; ++i) {
        const bool smazany = i <= 50;
        EXPECT_EQ(Priklady[i] == Priklad{}, smazany) << i;
        EXPECT_EQ(ChybneKroky[i] == ChybnyKrok{}, smazany) << i;
        EXPECT_EQ(Trojice_tab[i] == Trojice{}, smazany) << i;
        EXPECT_EQ(Utvary[i], smazany ? prazdny : plnyUtvar) << i;
    }
    for (int i = 1; i <= 20; ++i) EXPECT_EQ(ZadanePrvky[i], ZadanyPrvek{}) << i;
    EXPECT_EQ(Priklady[0].Druh, "1");
    for (const int pocet : {PocetPrikladu, PocetUtvaru, PocetTrojic, PocetChybnychKroku}) {
        EXPECT_EQ(pocet, 60);
    }
    VychoziRelace();
    EXPECT_EQ(Utvary[100], Utvar{});
    EXPECT_EQ(Priklady[51], Priklad{});
    EXPECT_EQ(PocetUtvaru + PocetPrikladu, 0);
}

class Zkusebni final : public Form {
public:
    Zkusebni() {
        popisek.Font.Velikost = 24;
        platno.Font.Velikost = 6;
        Pridej(popisek, "popisek", {20, 128, 101, 16});
        Pridej(platno, "platno", {1, 2, 3, 4});
        Pridej(cara, "cara", {7, 7, 7, 7});
    }
    [[nodiscard]] std::string_view Jmeno() const override { return "Zkusebni"; }
    Label popisek;
    PictureBox platno;
    LineShape cara;
};

TEST(PrizpusobForm, GeometrieZustaneAPismoJeDeset) {
    HeadlessHost host;
    const HostNaDobu naDobu(host);
    Zkusebni form;
    PrizpusobForm(form);
    EXPECT_EQ(form.popisek.Left, 20);
    EXPECT_EQ(form.popisek.Top, 128);
    EXPECT_EQ(form.popisek.Width, 101);
    EXPECT_EQ(form.platno.Height, 4);
    EXPECT_EQ(form.popisek.Font.Velikost, 10);
    EXPECT_EQ(form.platno.Font.Velikost, 10);
    EXPECT_EQ(form.cara.Font, Pismo{});
}

}  // namespace
}  // namespace rysovna::testy
