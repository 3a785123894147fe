#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/Obrazovky.h"
#include "podpora/Relace.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"
#include "shell/TabulkaForm.h"

namespace rysovna::testy {
namespace {

class Tabulky : public ::testing::Test {
protected:
    Tabulky() { relace.Start(); }

    /// Loads and shows the table of task 7 over the menu, as a board does over itself.
    TabulkaForm& Ukaz(std::string_view soubor) {
        relace.PisSoubor("07.res", soubor);
        CisloUlohy = 7;
        const auto form = relace.Host().Okna().Nacti<TabulkaForm>();
        relace.Host().Okna().Show(*form);
        form->Vlastnik = Menu().weak_from_this();
        AktivniForm = form;
        relace.Host().Okna().Hide(Menu());
        return *form;
    }
    static std::string Radek(const TabulkaForm& t, int i) {
        const auto k = static_cast<std::size_t>(i) - 1;
        return t.LPoradi[k].Caption + t.LJmeno[k].Caption + "|" + t.LSpravne[k].Caption + "|" +
               t.LSpatne[k].Caption + "|" + t.LZnamka[k].Caption;
    }

    Relace relace;
};

TEST_F(Tabulky, PrazdnyASPrvnimZaznamem) {
    TabulkaForm& t = Ukaz("");
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(Radek(t, i), std::to_string(i) + ".|||");
        EXPECT_EQ(t.LJmeno[static_cast<std::size_t>(i) - 1].Top, (i - 1) * 30 + 165);
    }
    t.VlozNovyZaznam("Žaneta", "30", "0", "1");
    EXPECT_EQ(Radek(t, 1), "1.Žaneta|30|0|1");
    EXPECT_EQ(Radek(t, 2), "2.|||");
    EXPECT_EQ(relace.CtiSoubor("07.res"),
              "\x8E"
              "aneta|30|0|1\r\n");
}

TEST_F(Tabulky, JedenactyJeVSouboruAleNeVidet) {
    std::string soubor;
    for (int i = 0; i < 10; ++i) soubor += "Z" + std::to_string(i) + "|20|0|1\r\n";
    TabulkaForm& t = Ukaz(soubor);
    t.VlozNovyZaznam("Posledni", "1", "9", "5");
    EXPECT_EQ(Radek(t, 10), "10.Z9|20|0|1");
    EXPECT_EQ(relace.CtiSoubor("07.res"), soubor + "Posledni|1|9|5\r\n");
    // The best one pushes everybody down, an equal one comes after those before it, and one
    // without a grade beats all.
    t.VlozNovyZaznam("Lepsi", "21", "0", "1");
    t.VlozNovyZaznam("Stejny", "21", "0", "1");
    t.VlozNovyZaznam("Bez", "0", "0", "");
    EXPECT_EQ(Radek(t, 1), "1.Bez|0|0|");
    EXPECT_EQ(Radek(t, 2), "2.Lepsi|21|0|1");
    EXPECT_EQ(Radek(t, 3), "3.Stejny|21|0|1");
    EXPECT_EQ(Radek(t, 10), "10.Z6|20|0|1");
    EXPECT_EQ(t.Zaznamy().size(), 14U);
}

TEST_F(Tabulky, ZpetNapovedaAEscape) {
    TabulkaForm& t = Ukaz("");
    const Obrazek normalni = t.picKonec.Picture;
    relace.NoveZvuky();
    relace.Najed("picKonec");
    relace.Najed("picKonec");
    EXPECT_FALSE(t.picKonec.Picture == normalni);
    relace.NajedNaMisto(320, 470);
    EXPECT_EQ(t.picKonec.Picture, normalni);
    EXPECT_EQ(relace.NoveZvuky(), std::vector<std::string>{"enter.wav"});

    relace.Stiskni("INadpis");
    EXPECT_EQ(relace.JmenoVpredu(), "HelpForm");
    relace.StiskniMisto(1, 1);
    EXPECT_EQ(relace.JmenoVpredu(), "TabulkaForm");
    relace.Stiskni("picKonec");
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
    EXPECT_EQ(AktivniForm.lock().get(), &Menu());
    EXPECT_EQ(relace.Najdi("TabulkaForm"), nullptr);

    // An owner that is gone gives way to the menu.
    TabulkaForm& druha = Ukaz("");
    druha.Vlastnik.reset();
    relace.Klavesa("Escape");
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
}

}  // namespace
}  // namespace rysovna::testy
