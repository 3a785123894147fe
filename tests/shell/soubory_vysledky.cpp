#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <unistd.h>

#include "base/Cisla.h"
#include "platform/headless/HeadlessHost.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"
#include "shell/soubory_pomoc.h"

namespace rysovna::testy {
namespace {

using Zaznamy = std::vector<ZaznamTabulky>;

TEST(Vysledky, TabulkaTamAZpet) {
    const Slozka slozka;
    const std::string soubor = slozka.Pis("01.res", "").string();
    EXPECT_EQ(CtiTabulku(soubor), Zaznamy{});
    PisTabulku(soubor, {{"Žofie", "50", "0", "1"}, {"A|B", "7", "3", "3"}, {"Ω", "0", "10", ""}});
    EXPECT_EQ(slozka.Cti("01.res"), "\x8Eofie|50|0|1\r\nA|B|7|3|3\r\n?|0|10|\r\n");
    EXPECT_EQ(CtiTabulku(soubor),
              (Zaznamy{{"Žofie", "50", "0", "1"}, {"A", "B", "7", "3"}, {"?", "0", "10", ""}}));
    PisTabulku(soubor, {});
    EXPECT_EQ(slozka.Cti("01.res"), "");

    slozka.Pis("01.res", "Jan|1\r\nEva|\x83|0|1\r\n");
    EXPECT_EQ(Hlaska([&] { (void)CtiTabulku(soubor); }),
              "Znak mimo kódovou stránku 1250 (" + soubor + ":2)");
    slozka.Pis("01.res", "Jan|1");  // a file cut short keeps what it has
    EXPECT_EQ(CtiTabulku(soubor), (Zaznamy{{"Jan", "1", "", ""}}));
}

TEST(Vysledky, LepsiJe) {
    const ZaznamTabulky a{"a", "40", "10", "2"};
    const ZaznamTabulky lepsi[]{{"", "0", "50", "1"},
                                {"", "41", "50", "2"},
                                {"", "40", "9", "2"},
                                {"", "40", "10", ""},
                                {"", "0", "0", "1.9"}};
    for (const ZaznamTabulky& z : lepsi) {
        EXPECT_TRUE(JeLepsi(z, a)) << z.Spravne;
        EXPECT_FALSE(JeLepsi(a, z)) << z.Spravne;
    }
    const ZaznamTabulky stejny{"b", " 40.7", "10x", "2.5"};
    EXPECT_FALSE(JeLepsi(a, stejny) || JeLepsi(stejny, a));
}

/// The order as it is defined: neighbours swap as long as the later one is better.
void VlozBublinkove(Zaznamy& zaznamy, const ZaznamTabulky& novy) {
    const auto lepsi = [](const ZaznamTabulky& a, const ZaznamTabulky& b) {
        const int za = Podlaha(Cislo(a.Znamka)), zb = Podlaha(Cislo(b.Znamka));
        if (za != zb) return za < zb;
        const int sa = Podlaha(Cislo(a.Spravne)), sb = Podlaha(Cislo(b.Spravne));
        if (sa != sb) return sa > sb;
        return Podlaha(Cislo(a.Spatne)) < Podlaha(Cislo(b.Spatne));
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
        const auto d = [&](unsigned n) { return std::to_string(nahoda() % n); };
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

TEST(Vysledky, VlozeniDoDlouheTabulkyNetrva) {
    Zaznamy zaznamy;
    for (int i = 0; i < 100000; ++i) {
        zaznamy.push_back({"x", std::to_string(250 - i / 400), "0", "1"});
    }
    const auto zacatek = std::chrono::steady_clock::now();
    VlozZaznam(zaznamy, {"nový", "125", "0", "1"});
    // The plain sort would take minutes.
    EXPECT_LT(std::chrono::steady_clock::now() - zacatek, std::chrono::seconds(2));
    EXPECT_EQ(zaznamy[50400].Jmeno, "nový");
}

/// The rest of the process runs as somebody whom the permissions of files bind.
void BezPrav() {
    if (geteuid() == 0 && setuid(65534) != 0) std::abort();
}

TEST(VysledkyDeathTest, DataJenKeCteni) {
    namespace fs = std::filesystem;
    const Slozka slozka;
    CestaHD = (slozka / "").string();
    PocetPrikladuSerie = 1;
    const std::string tabulka = slozka.Pis("01.res", "Eva|10|0|1\r\n").string();
    slozka.Pis("Vysledky.dat", "co tu bylo");
    const auto nastav = [&](fs::perms soubory) {
        for (const char* soubor : {"01.res", "Vysledky.dat"}) {
            fs::permissions(slozka / soubor, soubory);
        }
        fs::permissions(slozka / "", fs::perms(0555));
    };
    const auto hraj = [&] {
        HeadlessHost host;
        const HostNaDobu naDobu(host);
        BezPrav();
        std::cerr << Hlaska([&] {
            PisTabulku(tabulka, {{"Jan", "9", "1", "1"}});
        }) << Hlaska([] { ZapisVysledek("Jan", "h", "t", "9", "1", "1"); });
        std::exit(0);
    };
    nastav(fs::perms(0444));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0),
                "Do souboru nelze zapsat .*01.res.Do souboru nelze zapsat .*Vysledky.dat");
    EXPECT_EQ(slozka.Cti("01.res"), "Eva|10|0|1\r\n");
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), "co tu bylo");

    // The folder alone is closed: nothing can be made beside, the files themselves can be written.
    nastav(fs::perms(0666));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "^$");
    EXPECT_EQ(slozka.Cti("01.res"), "Jan|9|1|1\r\n");
    EXPECT_GT(slozka.Cti("Vysledky.dat").size(), 100U);
    fs::permissions(slozka / "", fs::perms(0755));
}

class Denik : public ::testing::Test {
protected:
    Denik() {
        VychoziRelace();
        CestaHD = (slozka / "").string();
        slozka.Pis("Vysledky.dat", "");
        PocetPrikladuSerie = 5;
        host.Cas = {.Rok = 2024, .Mesic = 9, .Den = 3, .Hodina = 8, .Minuta = 5};
    }
    HeadlessHost host;
    HostNaDobu naDobu{host};
    Slozka slozka;
};

TEST_F(Denik, CtyriRadkyBajtPoBajtu) {
    const std::string stary = "co tu bylo";
    slozka.Pis("Vysledky.dat", stary);
    ZapisVysledek("Žaneta Křížová", "Trojúhelník 1", "podle věty SSS", "50", "0", "1");
    std::string ocekavano =
        "Jm\xE9no: \x8E"
        "aneta K\xF8\xED\x9Eov\xE1                        Datum: 3.9.2024  "
        "   \xC8"
        "as: 08:05\r\n"
        "Hra: Troj\xFAheln\xEDk 1        Typ \xFAlohy: podle v\xECty SSS                \r\n"
        "Po\xE8"
        "et p\xF8\xEDklad\xF9:  5        Klad. body: 50     Z\xE1p. body: 0     "
        "   Zn\xE1mka:  1\r\n" +
        std::string(75, '=') + "\r\n";
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), stary + ocekavano);

    // What is longer stays whole; a character that the code page lacks counts and prints as one.
    slozka.Pis("Vysledky.dat", "");
    host.Cas = {.Rok = 2024, .Mesic = 12, .Den = 31, .Hodina = 23, .Minuta = 59};
    ZapisVysledek(std::string(40, 'x') + "Ω", std::string(25, 'h'), std::string(31, 't'), "1234567",
                  "7654321", "");
    ocekavano = "Jm\xE9no: " + std::string(40, 'x') +
                "?   Datum: 31.12.2024   \xC8"
                "as: 23:59\r\n"
                "Hra: " +
                std::string(25, 'h') + " Typ \xFAlohy: " + std::string(31, 't') +
                "\r\n"
                "Po\xE8"
                "et p\xF8\xEDklad\xF9:  5        Klad. body: 1234567 Z\xE1p. body: "
                "7654321   Zn\xE1mka:  \r\n" +
                std::string(75, '=') + "\r\n";
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), ocekavano);
}

TEST_F(Denik, SirkaJmenaSePocitaNaZnaky) {
    for (const int delka : {1, 34, 35, 36}) {
        slozka.Pis("Vysledky.dat", "");
        std::string jmeno;
        for (int i = 0; i < delka; ++i) jmeno += "ě";
        ZapisVysledek(jmeno, "h", "t", "1", "2", "3");
        const std::string denik = slozka.Cti("Vysledky.dat");
        EXPECT_EQ(denik.find("   Datum: "), 7U + static_cast<std::size_t>(std::max(delka, 35)));
    }
}

TEST_F(Denik, PlnyDiskNechaDenikCely) {
    slozka.Pis("Vysledky.dat", std::string(4000, 'd'));
    std::string hlaska;
    {
        const PlnyDisk disk(4096);
        hlaska = Hlaska([] { ZapisVysledek("a", "b", "c", "1", "2", "3"); });
    }
    EXPECT_EQ(hlaska, "Do souboru nelze zapsat (" + (slozka / "Vysledky.dat").string() + ")");
    EXPECT_EQ(slozka.Cti("Vysledky.dat"), std::string(4000, 'd'));
}

}  // namespace
}  // namespace rysovna::testy
