#include <functional>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

#include "engine/Tabulky.h"
#include "shell/Kodovani.h"
#include "shell/MapaPoli.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"
#include "shell/soubory_pomoc.h"

namespace rysovna::testy {
namespace {

std::string Zakodovane(const std::vector<std::string>& radky) {
    std::string obsah;
    for (const std::string& radek : radky) obsah += ZakodujRadek(Do1250(radek)) + "\r\n";
    return obsah;
}

class Soubory : public ::testing::Test {
protected:
    Soubory() {
        VychoziRelace();
        CestaHD = (slozka / "").string();
    }

    void Nacti(std::string_view obsah, Deska deska = Deska::Troj1Form) {
        NactiPriklady(slozka.Pis("01.dat", obsah).string(), deska);
    }
    /// What the fault says, with the folder cut out of it.
    std::string Chyba(const std::function<void()>& akce) {
        std::string hlaska = Hlaska(akce);
        const std::string cesta = (slozka / "").string();
        if (const std::size_t i = hlaska.find(cesta); i != std::string::npos) {
            hlaska.erase(i, cesta.size());
        }
        return hlaska;
    }

    Slozka slozka;
};

/// A slot by the name that the table of boards below uses.
std::string Obsah(const Priklad& p, const std::string& jmeno) {
    if (jmeno == "Druh") return p.Druh;
    if (jmeno == "Text1") return p.Text1;
    if (jmeno == "Text2") return p.Text2;
    const int n = jmeno[jmeno.find_first_of("123456789")] - '0';
    const std::string trojice[]{p.Nazev1,    p.Nazev2, p.Nazev3, p.Jednotka1, p.Jednotka2,
                                p.Jednotka3, p.Dalsi1, p.Dalsi2, p.Dalsi3};
    const std::size_t i = static_cast<std::size_t>(n) - 1;
    if (jmeno.starts_with("Nazev")) return trojice[i];
    if (jmeno.starts_with("Jednotka")) return trojice[3 + i];
    if (jmeno.starts_with("Dalsi")) return trojice[6 + i];
    const Krok& krok = p.Kroky[n];
    const std::string pole = jmeno.substr(jmeno.find('.') + 1);
    if (pole == "J") return krok.Jmeno;
    if (pole == "JB") return krok.JmenoB;
    return pole == "U" ? krok.Utvar : krok.UtvarB;
}

TEST_F(Soubory, PoleSestiDesek) {
    struct Pripad {
        std::vector<int> ulohy;
        std::string pole;
    };
    const Pripad pripady[]{
        {{1, 2, 3}, "Druh Text1 Nazev1 Nazev2 Nazev3 Jednotka1 Jednotka2 Jednotka3 K1.U K2.U K3.U"},
        {{4, 5, 6, 7, 8},
         "Druh Text1 Nazev1 Nazev2 Nazev3 Jednotka1 Jednotka2 Jednotka3 K1.U K1.UB K2.U K2.UB K3.U "
         "K3.UB"},
        {{9, 11},
         "Druh Text2 Nazev1 Nazev2 Nazev3 Jednotka1 Jednotka2 Jednotka3 Text1 K1.J K1.JB K1.U "
         "K1.UB "
         "K2.J K2.JB K2.U K2.UB"},
        {{10},
         "Druh Text2 Nazev1 Nazev2 Nazev3 Jednotka1 Jednotka2 Jednotka3 Text1 K1.U K1.J K2.U K2.J "
         "K3.U K3.J K4.U K4.J K5.U K5.J K6.U K6.J"},
        {{12, 13, 14, 15, 16, 17, 18, 19, 20},
         "Druh Nazev1 Dalsi1 Nazev2 Dalsi2 Nazev3 Dalsi3 K1.J K1.U K2.J K2.U K3.J K3.U K4.J K4.U "
         "K5.J K5.U K6.J K6.U K7.J K7.U K8.J K8.U"},
    };
    std::string radek = "pole1";
    for (int i = 2; i <= 25; ++i) radek += "#pole" + std::to_string(i);
    for (const Pripad& p : pripady) {
        for (const int uloha : p.ulohy) {
            VychoziRelace();
            Nacti(Zakodovane({radek}), DeskaUlohy(uloha));
            ASSERT_EQ(PocetPrikladu, 1);
            Priklad zbytek = Priklady[1];
            std::istringstream pole(p.pole);
            std::string jmeno;
            for (int i = 1; pole >> jmeno; ++i) {
                EXPECT_EQ(Obsah(Priklady[1], jmeno), "pole" + std::to_string(i)) << uloha << jmeno;
            }
            for (const Slot& slot : PoleDesky(DeskaUlohy(uloha))) slot.V(zbytek).clear();
            EXPECT_EQ(zbytek, Priklad{}) << "pole navíc v úloze " << uloha;
        }
    }
}

TEST_F(Soubory, RadkyUlohy) {
    Priklady[100].Druh = "starý";
    Priklady[2].Text2 = "cizí slot";
    Priklady[2].Kroky[2].Hotovo = ANO;
    Priklady[2].Kroky[4].Hotovo = ANO;
    Nacti(Zakodovane({"1#é#a#b", "7##alfa#beta#c#°#°#cm#usecka#poloprimka#poloprimka#navíc##"}) +
          "abc\r\n\r\n" + ZakodujRadek("5#u") + "xxx");
    EXPECT_EQ(PocetPrikladu, 5);
    EXPECT_EQ(Priklady[1].Text1, "é");
    EXPECT_EQ(Priklady[1].Nazev2, "b");
    EXPECT_EQ(Priklady[1].Nazev3 + Priklady[1].Kroky[3].Utvar, "");
    EXPECT_EQ(Priklady[2].Jednotka2, "°");
    EXPECT_EQ(Priklady[2].Kroky[3].Utvar, "poloprimka");
    EXPECT_EQ(Priklady[3], Priklad{});  // a line too short to hold a character
    EXPECT_EQ(Priklady[4], Priklad{});  // an empty one
    EXPECT_EQ(Priklady[5].Text1, "u");  // the last, without its end and with filler behind
    EXPECT_EQ(Priklady[100].Druh, "");
    EXPECT_EQ(Priklady[2].Text2, "cizí slot");
    EXPECT_EQ(Priklady[2].Kroky[2].Hotovo, NE);
    EXPECT_EQ(Priklady[2].Kroky[4].Hotovo, ANO);

    Nacti("");
    EXPECT_EQ(PocetPrikladu, 0);
    EXPECT_EQ(Priklady[1].Druh, "");
}

TEST_F(Soubory, SpatneRadkyUlohyJmenujiMisto) {
    const std::vector<std::string> sto(100, "1#x");
    Nacti(Zakodovane(sto));
    EXPECT_EQ(PocetPrikladu, 100);
    EXPECT_EQ(Chyba([&] { Nacti(Zakodovane(sto) + "\r\n"); }),
              "Soubor úlohy má více než 100 řádků (01.dat:101)");
    EXPECT_EQ(Chyba([&] { Nacti("xxx1xxx#\r\nxxx1xxx\x98\r\n"); }),
              "Znak mimo kódovou stránku 1250 (01.dat:2)");
    Nacti(
        "\x98\x98\x98"
        "1\r\n");  // filler is never looked at
    EXPECT_EQ(Priklady[1].Druh, "1");
    EXPECT_EQ(Chyba([&] { NactiPriklady((slozka / "neni.dat").string(), Deska::Troj1Form); }),
              "Soubor nelze přečíst (neni.dat)");
}

TEST_F(Soubory, ChybnyKrokUctujeKolikratVSouboruStoji) {
    slozka.Pis("Errors.dat",
               Zakodovane({"001 Strana.|", "  7-Délka.|", "45xZ|", "300 |", "007 Ještě.|",
                           "abc Nic.|", "009 Dlouhá věta#s mřížkou.|"}));
    PridejChybu(1, "  -3 body", 3);
    PridejChybu(2, "  -1 bod", 1);  // not in the file
    PridejChybu(7, "  -1 bod", 1);
    PridejChybu(45, "", 2);
    PridejChybu(300, "    - 6 bod", 10);
    PridejChybu(9, "", 1);
    const ChybnyKrok ocekavane[]{
        {"1", "Strana.  -3 body", 0, 3}, {"7", "Délka.  -1 bod", 0, 1},
        {"7", "Ještě.  -1 bod", 0, 1},   {"45", "", 0, 2},
        {"300", "    - 6 bod", 0, 10},   {"9", "Dlouhá věta#s mřížkou.", 0, 1},
    };
    ASSERT_EQ(PocetChybnychKroku, 6);
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(ChybneKroky[i], ocekavane[i - 1]) << i;
    EXPECT_EQ(SoucetZapornychBodu, 18);
}

TEST_F(Soubory, SpatneVetyJmenujiMisto) {
    slozka.Pis("Errors.dat",
               Zakodovane({"001 A|", "002 ", "003"}) + "xxx0xxx0xxx4xxx xxx\x81xxx|\r\n");
    EXPECT_EQ(Chyba([] { PridejChybu(2, "", 1); }), "Příliš krátký řádek (Errors.dat:2)");
    EXPECT_EQ(Chyba([] { PridejChybu(3, "", 1); }), "Příliš krátký řádek (Errors.dat:3)");
    EXPECT_EQ(Chyba([] { PridejChybu(4, "", 1); }),
              "Znak mimo kódovou stránku 1250 (Errors.dat:4)");
    PocetChybnychKroku = 0;
    for (int i = 1; i <= 100; ++i) PridejChybu(1, "", 1);
    EXPECT_NE(Chyba([] { PridejChybu(1, "", 1); }), "");
    std::filesystem::remove(slozka / "Errors.dat");
    EXPECT_EQ(Chyba([] { PridejChybu(1, "", 1); }), "Soubor nelze přečíst (Errors.dat)");
}

TEST_F(Soubory, Znamky) {
    const auto nacti = [&](std::string_view obsah) {
        NactiZnamky(slozka.Pis("Znamky.dat", obsah).string());
    };
    nacti("90|100|1\r\n75|90|2|navíc\r\nabc||\r\n2.5|3.5|255.4");
    EXPECT_EQ(ZnamkyTab[1], (RadekZnamek{90, 100, 1}));
    EXPECT_EQ(ZnamkyTab[2], (RadekZnamek{75, 90, 2}));
    EXPECT_EQ(ZnamkyTab[3], (RadekZnamek{0, 0, 0}));
    EXPECT_EQ(ZnamkyTab[4], (RadekZnamek{2, 4, 255}));
    nacti("1|2|3\r\n");
    EXPECT_EQ(ZnamkyTab[2], RadekZnamek{});

    const std::string pet = "1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n";
    nacti(pet);
    EXPECT_EQ(Chyba([&] { nacti(pet + "\r\n"); }),
              "Tabulka známek má více než 5 řádků (Znamky.dat:6)");
    for (const char* spatne : {"256|1|1", "0|255.5|1", "0|1|-1", "0|1|99999999999999999999"}) {
        EXPECT_EQ(Chyba([&] { nacti("0|1|1\r\n" + std::string(spatne) + "\r\n"); }),
                  "Číslo mimo rozsah 0 až 255 (Znamky.dat:2)")
            << spatne;
    }
    EXPECT_EQ(Chyba([&] { NactiZnamky((slozka / "neni.dat").string()); }),
              "Soubor nelze přečíst (neni.dat)");
}

TEST_F(Soubory, ZnamkaPodleProcent) {
    ZnamkyTab[1] = {90, 100, 1};
    ZnamkyTab[2] = {67, 90, 2};
    ZnamkyTab[3] = {50, 66, 3};
    ZnamkyTab[4] = {20, 20, 4};
    ZnamkyTab[5] = {95, 96, 9};
    struct Pripad {
        int kladne, celkem;
        std::string znamka;
    };
    const Pripad pripady[]{
        {10, 10, "1"}, {9, 10, "2"},  // of two rows that hold it the last wins
        {47, 49, "9"}, {2, 3, ""},    // 66.66... lies between two rows
        {1, 5, "4"},   {21, 100, ""}, {0, 10, ""}, {33, 50, "3"}, {250, 250, "1"},
    };
    for (const Pripad& p : pripady) EXPECT_EQ(UrciZnamku(p.kladne, p.celkem), p.znamka) << p.kladne;
    EXPECT_NE(Hlaska([] { (void)UrciZnamku(0, 0); }), "");
    EXPECT_NE(Hlaska([] { (void)UrciZnamku(0, 256); }), "");
}

}  // namespace
}  // namespace rysovna::testy
