#include "shell/Soubory.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>
#include <unistd.h>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "shell/Kodovani.h"
#include "shell/MapaPoli.h"
#include "shell/Misc.h"
#include "shell/soubory_pomoc.h"

namespace rysovna::testy {
namespace {

std::string Zakodovane(const std::vector<std::string>& radky) {
    std::string obsah;
    for (const std::string& radek : radky) obsah += ZakodujRadek(Do1250(radek)) + "\r\n";
    return obsah;
}

/// Names of the slots that hold "1", "2", ... in this order; "2JB" is
/// Kroky[2].JmenoB.
std::string PoradiPoli(const Priklad& p) {
    std::map<int, std::string> poradi;
    const auto pridej = [&](const std::string& jmeno, const std::string& pole) {
        if (!pole.empty()) poradi[std::stoi(pole)] += jmeno + " ";
    };
    const std::pair<const char*, std::string Priklad::*> pole[]{
        {"D", &Priklad::Druh},       {"T1", &Priklad::Text1},     {"T2", &Priklad::Text2},
        {"N1", &Priklad::Nazev1},    {"N2", &Priklad::Nazev2},    {"N3", &Priklad::Nazev3},
        {"J1", &Priklad::Jednotka1}, {"J2", &Priklad::Jednotka2}, {"J3", &Priklad::Jednotka3},
        {"D1", &Priklad::Dalsi1},    {"D2", &Priklad::Dalsi2},    {"D3", &Priklad::Dalsi3}};
    for (const auto& [jmeno, kde] : pole) pridej(jmeno, p.*kde);
    for (int k = 1; k <= 8; ++k) {
        pridej(std::to_string(k) + "J", p.Kroky[k].Jmeno);
        pridej(std::to_string(k) + "JB", p.Kroky[k].JmenoB);
        pridej(std::to_string(k) + "U", p.Kroky[k].Utvar);
        pridej(std::to_string(k) + "UB", p.Kroky[k].UtvarB);
    }
    std::string text;
    for (const auto& [cislo, jmeno] : poradi) text += jmeno;
    return text;
}

TEST_F(Soubory, PoleSestiDesek) {
    const std::string pole[]{
        "D T1 N1 N2 N3 J1 J2 J3 1U 2U 3U ",
        "D T1 N1 N2 N3 J1 J2 J3 1U 1UB 2U 2UB 3U 3UB ",
        "D T2 N1 N2 N3 J1 J2 J3 T1 1J 1JB 1U 1UB 2J 2JB 2U 2UB ",
        "D T2 N1 N2 N3 J1 J2 J3 T1 1U 1J 2U 2J 3U 3J 4U 4J 5U 5J 6U 6J ",
        "D N1 D1 N2 D2 N3 D3 1J 1U 2J 2U 3J 3U 4J 4U 5J 5U 6J 6U 7J 7U 8J 8U ",
    };
    const int poradi[]{0, 0, 0, 1, 1, 1, 1, 1, 2, 3,
                       2, 4, 4, 4, 4, 4, 4, 4, 4, 4};  // tasks 1 to 20
    std::string radek = "1";
    for (int i = 2; i <= 25; ++i) radek += "#" + std::to_string(i);
    const std::string soubor = Pis("01.dat", Zakodovane({radek})).string();
    for (int uloha = 1; uloha <= 20; ++uloha) {
        Priklady.Smaz();
        NactiPriklady(soubor, DeskaUlohy(uloha));
        EXPECT_EQ(PoradiPoli(Priklady[1]), pole[poradi[uloha - 1]]) << uloha;
    }
}

TEST_F(Soubory, RadkyUlohy) {
    const auto nacti = [&](std::string_view obsah) {
        NactiPriklady(Pis("01.dat", obsah).string(), Deska::Troj1Form);
    };
    Priklady[100].Druh = "starý";
    Priklady[2].Text2 = "cizí slot";
    Priklady[2].Kroky[3].Hotovo = Priklady[2].Kroky[4].Hotovo = ANO;
    nacti(Zakodovane({"1#é#a#b", "7##alfa#beta#c#°#°#cm#usecka#poloprimka#kruznice#navíc##"}) +
          "abc\r\n\r\n" + ZakodujRadek("5#u") + "xxx");
    EXPECT_EQ(PocetPrikladu, 5);
    EXPECT_EQ(Priklady[1], (Priklad{.Druh = "1", .Text1 = "é", .Nazev1 = "a", .Nazev2 = "b"}));
    EXPECT_EQ(Priklady[2].Jednotka2 + Priklady[2].Kroky[3].Utvar, "°kruznice");
    EXPECT_EQ(Priklady[3], Priklad{});  // a line too short to hold a character
    EXPECT_EQ(Priklady[4], Priklad{});  // an empty one
    EXPECT_EQ(Priklady[5].Text1, "u");  // the last, without its end and with filler behind
    EXPECT_EQ(Priklady[100].Druh + Priklady[2].Text2, "cizí slot");
    EXPECT_EQ(Priklady[2].Kroky[3].Hotovo, NE);
    EXPECT_EQ(Priklady[2].Kroky[4].Hotovo, ANO);
    nacti(Zakodovane(std::vector<std::string>(100, "1#x")));
    EXPECT_EQ(PocetPrikladu, 100);
    nacti(std::string(3, '\x98') + "1\r\n");  // filler is never looked at
    EXPECT_EQ(Priklady[1].Druh + Priklady[2].Druh, "1");
}

TEST_F(Soubory, VadneSouboryJmenujiMisto) {
    const auto cti = [&](const std::string& jmeno) {
        const std::string soubor = Cesta(jmeno).string();
        if (jmeno == "Errors.dat") return PridejChybu(2, "", 1);
        if (jmeno == "Znamky.dat") return NactiZnamky(soubor);
        if (jmeno == "01.res") return (void)CtiTabulku(soubor);
        NactiPriklady(soubor, Deska::Troj1Form);
    };
    const std::string sto = Zakodovane(std::vector<std::string>(100, "1#x"));
    const std::string pet = "1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n1|2|3\r\n";
    const std::string stranka = "Znak mimo kódovou stránku 1250 (",
                      kratky = "Příliš krátký řádek (";
    const std::string rozsah = "Číslo mimo rozsah 0 až 255 (";
    const std::array<std::string, 3> pripady[]{
        {"01.dat", sto + "\r\n", "Soubor úlohy má více než 100 řádků (01.dat:101)"},
        {"01.dat", "xxx1xxx#\r\nxxx1xxx\x98\r\n", stranka + "01.dat:2)"},
        {"01.res", "Jan|1\r\nEva|\x83|0|1\r\n", stranka + "01.res:2)"},
        {"Errors.dat", "\r\nxxx0xxx0xxx2xxx xxx\x81xxx|", stranka + "Errors.dat:2)"},
        {"Errors.dat", Zakodovane({"001 A|", "002 "}), kratky + "Errors.dat:2)"},
        {"Znamky.dat", pet + "\r\n", "Tabulka známek má více než 5 řádků (Znamky.dat:6)"},
        {"Znamky.dat", "0|1|1\r\n2|1|1\x81", stranka + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n256|1|1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|255.5|1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|1|-1", rozsah + "Znamky.dat:2)"},
        {"Znamky.dat", "0|1|1\r\n0|1|99999999999999999999", rozsah + "Znamky.dat:2)"},
    };
    for (const auto& [soubor, obsah, hlaska] : pripady) {
        Pis(soubor, obsah);
        EXPECT_EQ(Chyba([&] { cti(soubor); }), hlaska);
    }
    for (const std::string soubor : {"01.dat", "01.res", "Errors.dat", "Znamky.dat"}) {
        std::filesystem::remove(Cesta(soubor));
        EXPECT_EQ(Chyba([&] { cti(soubor); }), "Soubor nelze přečíst (" + soubor + ")");
    }
}

TEST_F(Soubory, ChybnyKrokUctujeKolikratVSouboruStoji) {
    Pis("Errors.dat", Zakodovane({"001 Strana.|", "  7-Délka.|", "45xZ|", "300 |", "007 Ještě #.|",
                                  "abc Nic.|"}));
    for (const int cislo : {1, 2, 7, 45, 300}) PridejChybu(cislo, "  -3 body", cislo);
    const ChybnyKrok ocekavane[]{{"1", "Strana.  -3 body", 0, 1},
                                 {"7", "Délka.  -3 body", 0, 7},
                                 {"7", "Ještě #.  -3 body", 0, 7},
                                 {"45", "  -3 body", 0, 45},
                                 {"300", "  -3 body", 0, 300}};
    ASSERT_EQ(PocetChybnychKroku, 5);
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(ChybneKroky[i], ocekavane[i - 1]) << i;
    EXPECT_EQ(SoucetZapornychBodu, 360);
    PocetChybnychKroku = 100;
    EXPECT_NE(Chyba([] { PridejChybu(1, "", 1); }), "");
}

TEST_F(Soubory, Znamky) {
    const auto nacti = [&](std::string_view obsah) {
        NactiZnamky(Pis("Znamky.dat", obsah).string());
    };
    nacti("90|100|1\r\n75|90|2|navíc\r\nabc||\r\n2.5|3.5|255.4");
    EXPECT_EQ(ZnamkyTab[2], (RadekZnamek{75, 90, 2}));
    EXPECT_EQ(ZnamkyTab[3], (RadekZnamek{0, 0, 0}));
    EXPECT_EQ(ZnamkyTab[4], (RadekZnamek{2, 4, 255}));
    nacti("90|100|1\r\n67|90|2\r\n50|66|3\r\n20|20|4\r\n95|96|9");
    const std::tuple<int, int, std::string> pripady[]{
        {10, 10, "1"}, {9, 10, "2"},  // of two rows that hold it the last wins
        {47, 49, "9"}, {2, 3, ""},    // 66.66... lies between two rows
        {1, 5, "4"},   {21, 100, ""}, {33, 50, "3"}, {250, 250, "1"},
    };
    for (const auto& [body, celkem, znamka] : pripady) EXPECT_EQ(UrciZnamku(body, celkem), znamka);
    EXPECT_NE(Chyba([] { (void)UrciZnamku(0, 0); }), "");
    EXPECT_NE(Chyba([] { (void)UrciZnamku(0, 256); }), "");
    nacti("1|2|3\r\n");
    EXPECT_EQ(ZnamkyTab[2], RadekZnamek{});
}

using Zaznamy = std::vector<ZaznamTabulky>;

TEST_F(Soubory, TabulkaTamAZpet) {
    const std::string soubor = Cesta("01.res").string();
    PisTabulku(soubor, {{"Žofie", "50", "0", "1"}, {"A|B", "7", "3", "3"}, {"Ω", "0", "10", ""}});
    EXPECT_EQ(Cti("01.res"), "\x8Eofie|50|0|1\r\nA|B|7|3|3\r\n?|0|10|\r\n");
    EXPECT_EQ(CtiTabulku(soubor),
              (Zaznamy{{"Žofie", "50", "0", "1"}, {"A", "B", "7", "3"}, {"?", "0", "10", ""}}));
    Pis("01.res", "Jan|1");  // a file cut short keeps what it has
    EXPECT_EQ(CtiTabulku(soubor), (Zaznamy{{"Jan", "1", "", ""}}));
}

/// The order as it is defined: neighbours swap as long as the later one is better.
void VlozBublinkove(Zaznamy& zaznamy, const ZaznamTabulky& novy) {
    const auto lepsi = [](const ZaznamTabulky& a, const ZaznamTabulky& b) {
        const auto c = [](const std::string& text) { return Podlaha(Cislo(text)); };
        if (c(a.Znamka) != c(b.Znamka)) return c(a.Znamka) < c(b.Znamka);
        if (c(a.Spravne) != c(b.Spravne)) return c(a.Spravne) > c(b.Spravne);
        return c(a.Spatne) < c(b.Spatne);
    };
    zaznamy.push_back(novy);
    for (std::size_t kolo = 1; kolo < zaznamy.size(); ++kolo) {
        for (std::size_t i = 1; i < zaznamy.size(); ++i) {
            if (lepsi(zaznamy[i], zaznamy[i - 1])) std::swap(zaznamy[i], zaznamy[i - 1]);
        }
    }
}

TEST(Vysledky, PoradiJakoBublinkoveTrideni) {
    const auto seminko = std::random_device{}();
    SCOPED_TRACE("semínko " + std::to_string(seminko));
    std::mt19937 nahoda(seminko);
    int poradi = 0;
    const auto novy = [&] {
        const auto d = [&](unsigned n) {
            return std::to_string(nahoda() % n) + (nahoda() % 9 == 0 ? ".7x" : "");
        };
        return ZaznamTabulky{"hráč " + std::to_string(++poradi), d(4), d(3),
                             nahoda() % 9 == 0 ? "" : d(4)};
    };
    for (int pokus = 0; pokus < 60; ++pokus) {
        Zaznamy rychle;
        // Every other table begins as a file that somebody put out of order.
        if (pokus % 2 == 1) std::generate_n(std::back_inserter(rychle), nahoda() % 20, novy);
        Zaznamy pomalu = rychle;
        for (int i = 0; i < 25; ++i) {
            const ZaznamTabulky z = novy();
            VlozZaznam(rychle, z);
            VlozBublinkove(pomalu, z);
            ASSERT_EQ(rychle, pomalu) << "pokus " << pokus << ", vložení " << i;
        }
    }
}

using SouboryDeathTest = Soubory;

TEST_F(SouboryDeathTest, DataJenKeCteni) {
    namespace fs = std::filesystem;
    const std::string tabulka = Pis("01.res", "Eva|10|0|1\r\n").string();
    Pis("Vysledky.dat", "co tu bylo");
    const auto hraj = [&] {
        // Somebody whom the permissions of files bind.
        if (geteuid() == 0 && setuid(65534) != 0) std::abort();
        std::cerr << Chyba([&] { PisTabulku(tabulka, {{"Jan", "9", "1", "1"}}); });
        std::cerr << Chyba([] { ZapisVysledek("Jan", "h", "t", "9", "1", "1"); });
        std::exit(0);
    };
    fs::permissions(Cesta(".."), fs::perms(0755));
    for (const char* s : {"01.res", "Vysledky.dat"}) fs::permissions(Cesta(s), fs::perms(0444));
    fs::permissions(Cesta(""), fs::perms(0555));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0),
                "nelze zapsat .01.res.Do souboru nelze zapsat .Vysledky.dat");
    EXPECT_EQ(Cti("01.res"), "Eva|10|0|1\r\n");
    EXPECT_EQ(Cti("Vysledky.dat"), "co tu bylo");

    // The folder alone is closed: nothing can be made beside, the files
    // themselves can be written.
    for (const char* s : {"01.res", "Vysledky.dat"}) fs::permissions(Cesta(s), fs::perms(0666));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "^$");
    EXPECT_EQ(Cti("01.res"), "Jan|9|1|1\r\n");
    EXPECT_GT(Cti("Vysledky.dat").size(), 100U);
    fs::permissions(Cesta(""), fs::perms(0755));
}

TEST_F(Soubory, CtyriRadkyDenikuBajtPoBajtu) {
    PocetPrikladuSerie = 5;
    host.Cas = {.Rok = 2024, .Mesic = 9, .Den = 3, .Hodina = 8, .Minuta = 5};
    Pis("Vysledky.dat", "co tu bylo");
    ZapisVysledek("Žaneta Křížová", "Trojúhelník 1", "podle věty SSS", "50", "0", "1");
    // What is longer stays whole; a character that the code page lacks counts and prints as one.
    host.Cas = {.Rok = 2024, .Mesic = 12, .Den = 31, .Hodina = 23, .Minuta = 59};
    const std::string jmeno(34, 'x'), hra(25, 'h'), typ(31, 't'), cara = std::string(75, '=');
    ZapisVysledek(jmeno + "Ω", hra, typ, "1234567", "7654321", "");
    EXPECT_EQ(Cti("Vysledky.dat"),
              "co tu bylo" + Do1250("Jméno: Žaneta Křížová                        Datum: 3.9.2024  "
                                    "   Čas: 08:05\r\n"
                                    "Hra: Trojúhelník 1        Typ úlohy: podle věty SSS"
                                    "                \r\n"
                                    "Počet příkladů:  5        Klad. body: 50     Záp. body: 0"
                                    "        Známka:  1\r\n" +
                                    cara + "\r\n" + "Jméno: " + jmeno +
                                    "?   Datum: 31.12.2024   Čas: 23:59\r\n" + "Hra: " + hra +
                                    " Typ úlohy: " + typ + "\r\n" +
                                    "Počet příkladů:  5        Klad. body: 1234567 Záp. body: "
                                    "7654321   Známka:  \r\n" +
                                    cara + "\r\n"));
}

TEST_F(Soubory, PlnyDiskNechaDenikCely) {
    Pis("Vysledky.dat", std::string(4000, 'd'));
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [] { ZapisVysledek("a", "b", "c", "1", "2", "3"); }),
              "Do souboru nelze zapsat (Vysledky.dat)");
    EXPECT_EQ(Cti("Vysledky.dat"), std::string(4000, 'd'));
}

}  // namespace
}  // namespace rysovna::testy
