#include "store/Soubory.h"

#include <array>
#include <gtest/gtest.h>

#include "podpora/SouboryPomoc.h"
#include "rules/Chyby.h"
#include "rules/Znamka.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/MapaPoli.h"

namespace rysovna::testy {
namespace {

std::string Zakodovane(const std::vector<std::string>& radky) {
    std::string obsah;
    for (const std::string& radek : radky) obsah += ZakodujRadek(Do1250(radek)) + "\r\n";
    return obsah;
}

TEST_F(Soubory, RadkyUlohy) {
    const auto nacti = [&](std::string_view obsah) {
        NactiPriklady(misc, Disk_(), Pis("01.dat", obsah).string(), MapaDesky(Deska::Troj1Form));
    };
    misc.Priklady[100].Druh = "starý";
    misc.Priklady[2].Text2 = "cizí slot";
    misc.Priklady[2].Kroky[3].Hotovo = misc.Priklady[2].Kroky[4].Hotovo = ANO;
    nacti(Zakodovane({"1#é#a#b", "7##alfa#beta#c#°#°#cm#usecka#poloprimka#kruznice#navíc##"}) +
          "abc\r\n\r\n" + ZakodujRadek("5#u") + "xxx");
    EXPECT_EQ(misc.PocetPrikladu, 5);
    EXPECT_EQ(misc.Priklady[1], (Priklad{.Druh = "1", .Text1 = "é", .Nazev1 = "a", .Nazev2 = "b"}));
    EXPECT_EQ(misc.Priklady[2].Jednotka2 + misc.Priklady[2].Kroky[3].Utvar, "°kruznice");
    EXPECT_EQ(misc.Priklady[3], Priklad{});  // a line too short to hold a character
    EXPECT_EQ(misc.Priklady[4], Priklad{});  // an empty one
    EXPECT_EQ(misc.Priklady[5].Text1, "u");  // the last, without its end and with filler behind
    EXPECT_EQ(misc.Priklady[100].Druh + misc.Priklady[2].Text2, "cizí slot");
    EXPECT_EQ(misc.Priklady[2].Kroky[3].Hotovo, NE);
    EXPECT_EQ(misc.Priklady[2].Kroky[4].Hotovo, ANO);
    nacti(Zakodovane(std::vector<std::string>(100, "1#x")));
    EXPECT_EQ(misc.PocetPrikladu, 100);
    nacti(std::string(3, '\x98') + "1\r\n");  // filler is never looked at
    EXPECT_EQ(misc.Priklady[1].Druh + misc.Priklady[2].Druh, "1");
}

TEST_F(Soubory, VadneSouboryJmenujiMisto) {
    const auto cti = [&](const std::string& jmeno) {
        const std::string soubor = Cesta(jmeno).string();
        if (jmeno == "Errors.dat") return PridejChybu(misc, 2);
        if (jmeno == "Znamky.dat") return NactiZnamky(misc, Disk_(), soubor);
        NactiPriklady(misc, Disk_(), soubor, MapaDesky(Deska::Troj1Form));
    };
    const std::string sto = Zakodovane(std::vector<std::string>(100, "1#x"));
    const std::string pet = "1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n";
    const std::string stranka = "Znak mimo kódovou stránku 1250 (",
                      kratky = "Příliš krátký řádek (";
    const std::string prazdny = "V souboru úlohy není žádný příklad (01.dat)";
    const std::string sto2 = Zakodovane(std::vector<std::string>(101, "002 A.|"));
    const std::string rozsah = "Číslo mimo rozsah 0 až 255 (";
    const std::array<std::string, 3> pripady[]{
        {"01.dat", sto + "\r\n", "Soubor úlohy má více než 100 řádků (01.dat:101)"},
        {"01.dat", "", prazdny},
        {"01.dat", "\r\nxxx\r\n" + Zakodovane({" ## #", ""}), prazdny},
        {"01.dat", "xxx1xxx#\r\nxxx1xxx\x98\r\n", stranka + "01.dat:2)"},
        {"Errors.dat", "\r\nxxx0xxx0xxx2xxx xxx\x81xxx|", stranka + "Errors.dat:2)"},
        {"Errors.dat", Zakodovane({"001 A|", "002 "}), kratky + "Errors.dat:2)"},
        {"Errors.dat", sto2, "Krok má v souboru více než 100 vět (Errors.dat:101)"},
        {"Znamky.dat", pet + "\r\n", "Tabulka známek má více než 5 řádků (Znamky.dat:6)"},
        {"Znamky.dat", "0|1|1\r\n2|1|1\x81", stranka + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n256|1|1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|255.5|1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|1|-1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|1|99999999999999999999", rozsah + "Znamky.dat:2)"},
    };
    for (const auto& [soubor, obsah, hlaska] : pripady) {
        Pis(soubor, obsah);
        misc.PocetChybnychKroku = 0;
        EXPECT_EQ(Chyba([&] { cti(soubor); }), hlaska);
    }
    for (const std::string soubor : {"01.dat", "Errors.dat", "Znamky.dat"}) {
        Pis(soubor, std::string(4 << 20, 'x') + "x");
        EXPECT_EQ(Chyba([&] { cti(soubor); }), "Soubor je větší než 4 MB (" + soubor + ")");
        std::filesystem::remove(Cesta(soubor));
        EXPECT_EQ(Chyba([&] { cti(soubor); }), "Soubor nelze přečíst (" + soubor + ")");
    }
}

TEST_F(Soubory, ChybnyKrokUctujeKolikratVSouboruStoji) {
    Pis("Errors.dat", Zakodovane({"001 Strana.|", "  7-Délka.|", "45xZ|", "300 |", "007 Ještě #.|",
                                  "abc Nic.|"}));
    const ChybaKroku chyby[]{1, 2, 7, 45, 300};
    for (const ChybaKroku chyba : chyby) PridejChybu(misc, chyba);
    const ChybnyKrok ocekavane[]{{"1", "Strana.  -3 body", 0, 3},
                                 {"7", "Délka.  -1 bod", 0, 1},
                                 {"7", "Ještě #.  -1 bod", 0, 1},
                                 {"45", "  -1 bod", 0, 1},
                                 {"300", "    - 4 bod", 0, 10}};
    ASSERT_EQ(misc.PocetChybnychKroku, 5);
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(misc.ChybneKroky[i], ocekavane[i - 1]) << i;
    EXPECT_EQ(misc.SoucetZapornychBodu, 16);
    misc.PocetChybnychKroku = 100;
    EXPECT_NE(Chyba([&] { PridejChybu(misc, 1); }), "");
}

TEST_F(Soubory, Znamky) {
    const auto nacti = [&](std::string_view obsah) {
        NactiZnamky(misc, Disk_(), Pis("Znamky.dat", obsah).string());
    };
    nacti("90|100|1\r\n75|90|2|navíc\r\nabc||\r\n2.5|3.5|255.4");
    EXPECT_EQ(misc.ZnamkyTab[2], (RadekZnamek{75, 90, 2}));
    EXPECT_EQ(misc.ZnamkyTab[3], (RadekZnamek{0, 0, 0}));
    EXPECT_EQ(misc.ZnamkyTab[4], (RadekZnamek{2, 4, 255}));
    nacti("90|100|1\r\n67|90|2\r\n50|66|3\r\n20|20|4\r\n95|96|9");
    const std::tuple<int, int, std::string> pripady[]{
        {10, 10, "1"}, {9, 10, "2"},  // of two rows that hold it the last wins
        {47, 49, "9"}, {2, 3, ""},    // 66.66... lies between two rows
        {1, 5, "4"},   {21, 100, ""}, {33, 50, "3"}, {250, 250, "1"},
    };
    for (const auto& [body, celkem, znamka] : pripady)
        EXPECT_EQ(UrciZnamku(misc, body, celkem), znamka);
    EXPECT_NE(Chyba([&] { (void)UrciZnamku(misc, 0, 0); }), "");
    EXPECT_NE(Chyba([&] { (void)UrciZnamku(misc, 0, 256); }), "");
    nacti("1|2|3\r\n");
    EXPECT_EQ(misc.ZnamkyTab[2], RadekZnamek{});
}

}  // namespace
}  // namespace rysovna::testy
