#include <array>
#include <cstdio>
#include <gtest/gtest.h>

#include "base/Cisla.h"
#include "shell/Kodovani.h"
#include "shell/soubory_pomoc.h"

// The data tool, run as the build and a teacher run it.

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

struct Vystup {
    int Kod = -1;
    std::string Text;  ///< both outputs
};

/// The tool stands in the same build as this test.
fs::path Nastroj() {
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "tools/kodovani" /
           "kodovani";
}

Vystup Spust(const std::string& argumenty) {
    std::FILE* roura = popen((Nastroj().string() + " " + argumenty + " 2>&1").c_str(), "r");
    if (roura == nullptr) throw std::runtime_error("popen");
    Vystup vystup;
    std::array<char, 4096> kus;
    for (std::size_t n = 0; (n = std::fread(kus.data(), 1, kus.size(), roura)) > 0;) {
        vystup.Text.append(kus.data(), n);
    }
    const int stav = pclose(roura);
    vystup.Kod = WIFEXITED(stav) ? WEXITSTATUS(stav) : -1;
    return vystup;
}

class Nastroje : public ::testing::Test {
protected:
    /// What the check says of a file with this content, its folder cut out.
    std::string Kontrola(std::string_view jmeno, std::string_view obsah) {
        const auto soubor = slozka.Pis(jmeno, obsah);
        const Vystup v = Spust("zkontroluj " + soubor.string());
        EXPECT_EQ(v.Kod, v.Text.empty() ? 0 : 1) << v.Text;
        std::string text = v.Text;
        const std::string cesta = (slozka / "").string();
        for (std::size_t i = 0; (i = text.find(cesta, i)) != std::string::npos;) {
            text.erase(i, cesta.size());
        }
        return text;
    }
    Slozka slozka;
};

TEST_F(Nastroje, TamAZpet) {
    const std::pair<std::string, std::string> zdroje[]{
        {"02", "; poznámka\n2#sus#alfa#b#c#°#cm#cm#usecka#poloprimka#kruznice\n"},
        {"Errors", "7 Délka není správná.\n\n45  Střed.\n300 Žádná.\n"},
        {"Znamky",
         "\xEF\xBB\xBF"
         "90|100|1\n0|90|2"}};
    const std::string ulozene[]{"", "", "90|100|1\r\n0|90|2\r\n"};
    const std::string zpet[]{"2#sus#alfa#b#c#°#cm#cm#usecka#poloprimka#kruznice\n",
                             "7 Délka není správná.\n45 Střed.\n300 Žádná.\n",
                             "90|100|1\n0|90|2\n"};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto zdroj = slozka.Pis(zdroje[i].first + ".txt", zdroje[i].second).string();
        const std::string dat = (slozka / (zdroje[i].first + ".dat")).string();
        EXPECT_EQ(Spust("zakoduj " + zdroj + " " + dat).Text, "");
        const std::string obsah = slozka.Cti(zdroje[i].first + ".dat");
        if (!ulozene[i].empty()) {
            EXPECT_EQ(obsah, ulozene[i]);
        }
        EXPECT_TRUE(obsah.ends_with("\r\n"));
        EXPECT_EQ(Spust("dekoduj " + dat + " " + zdroj).Kod, 0);
        EXPECT_EQ(slozka.Cti(zdroje[i].first + ".txt"), zpet[i]);
    }
    const std::vector<std::string> vety = CtiRadky(slozka / "Errors.dat");
    ASSERT_EQ(vety.size(), 3U);
    EXPECT_EQ(Z1250(DekodujRadek(vety[0]), {}), "007 Délka není správná.|");
}

TEST_F(Nastroje, ZadaniPrikazu) {
    EXPECT_EQ(Spust("").Kod, 2);
    EXPECT_EQ(Spust("zakoduj x.txt").Kod, 2);
    EXPECT_EQ(Spust("--help").Kod, 0);
    EXPECT_NE(Spust("--help").Text.find("Použití"), std::string::npos);
    const auto zdroj = slozka.Pis("01.txt", "; x\n1#α\n").string();
    const auto cil = slozka.Pis("01.dat", "starý");
    const Vystup v = Spust("zakoduj " + zdroj + " " + cil.string());
    EXPECT_EQ(v.Kod, 1);
    EXPECT_EQ(v.Text, "Znak č. 3 nejde uložit (" + zdroj + ":2)\n");
    EXPECT_EQ(slozka.Cti("01.dat"), "starý");
    EXPECT_EQ(Spust("dekoduj " + (slozka / "02.dat").string() + " " + cil.string()).Kod, 1);
    EXPECT_EQ(Spust("zkontroluj " + (slozka / "02.dat").string()).Kod, 1);
    EXPECT_EQ(Spust("zkontroluj " + slozka.Pis("cosi.dat", "").string()).Kod, 1);
}

TEST_F(Nastroje, ChybyUloh) {
    const std::string sss = "1##a#b#c#cm#cm#cm#usecka#kruznice#kruznice\n";
    EXPECT_EQ(Kontrola("01.txt", "; poznámka\n" + sss), "");
    struct Pripad {
        std::string soubor, radek, hlaska;
    };
    const Pripad pripady[]{
        {"01", "2##a#b#c#cm#cm#cm#usecka#kruznice#kruznice", "pole 1 (Druh): je „2“, má být 1\n"},
        {"02", "3##a#beta#b#cm#°#cm#usecka#kruznice#poloprimka",
         "pole 5 (Nazev3): je „b“, má být „c“\n"},
        {"02", "3##a#beta#c#cm#cm#cm#usecka#kruznice#poloprimka",
         "pole 7 (Jednotka2): je „cm“, má být „°“\n"},
        {"02", "3##a#beta#c#cm#°#cm#usecka#kruznice#kruznice",
         "pole 11 (Kroky[3].Utvar): je „kruznice“, má být „poloprimka“\n"},
        {"02", "3##a#beta#c#cm#°#cm#usecka#usecka#kruznice",
         "pole 10 (Kroky[2].Utvar): je „usecka“, má být „poloprimka“ nebo „kruznice“\n"},
        {"03", "7##alfa#gama#c#°#°#cm#primka#poloprimka#poloprimka",
         "pole 4 (Nazev2): je „gama“, má být „beta“\n"
         "X: pole 9 (Kroky[1].Utvar): je „primka“, má být „usecka“\n"},
        {"01", "1##a#b#c#cm#cm#cm#usecka#kruznice#kruznice#",
         "pole 12: je navíc; řádek má mít nejvýš 11 polí\n"},
        {"01", "1##a#b#c#cm#cm#cm#usecka#kruznice",
         "pole 11 (Kroky[3].Utvar): je „“, má být „kruznice“\n"},
        {"01", "1## a#b#c#cm#cm#cm#usecka#kruznice#kruznice",
         "pole 3 (Nazev1): mezera na začátku nebo na konci\n"
         "X: pole 3 (Nazev1): je „ a“, má být „a“\n"},
        {"01", "1#€\u03b1#a#b#c#cm#cm#cm#usecka#kruznice#kruznice",
         "znak č. 4 nejde uložit (není v kódové stránce 1250)\n"},
        {"05", "07##b#c#vc#cm#cm#cm#usecka##kruznice##kruznice",
         "pole 5 (Nazev3): je „vc“, má být jedno z: ta, tb, tc\n"},
        {"09", "33#ABC", "pole 1 (Druh): je „33“, má být 01 až 32\n"},
        {"12", "04#A##a####b#kolmice#B",
         "pole 11 (Kroky[2].Utvar): chybí, ačkoli druhé pole kroku je vyplněné\n"},
    };
    for (const Pripad& p : pripady) {
        const std::string soubor = p.soubor + ".txt";
        std::string ocekavano = soubor + ":2: " + p.hlaska;
        if (const std::size_t i = ocekavano.find("X: "); i != std::string::npos) {
            ocekavano.replace(i, 1, soubor + ":2");
        }
        EXPECT_EQ(Kontrola(soubor, ";\n" + p.radek + "\n"), ocekavano) << p.radek;
    }
    std::string sto;
    for (int i = 0; i < 101; ++i) sto += sss;
    EXPECT_EQ(Kontrola("01.txt", sto), "01.txt:101: příkladů je více než 100\n");
    EXPECT_EQ(Kontrola("01.txt", "; nic\n"), "01.txt: žádný příklad\n");

    // Stored files: cut short, with a byte of no meaning.
    const std::string ulozeny = ZakodujRadek(sss.substr(0, sss.size() - 1)) + "\r\n";
    EXPECT_EQ(Kontrola("01.dat", ulozeny), "");
    EXPECT_EQ(Kontrola("01.dat", ulozeny + ulozeny.substr(0, ulozeny.size() - 5)),
              "01.dat:2: délka uloženého řádku není násobkem čtyř (useknutý řádek?)\n"
              "01.dat:2: za posledním řádkem chybí konec řádku (useknutý soubor?)\n"
              "01.dat:2: pole 11 (Kroky[3].Utvar): je „kruznic“, má být „kruznice“\n");
    EXPECT_EQ(Kontrola("01.dat", "xxx1xxx\x98\r\n" + ulozeny),
              "01.dat:1: znak č. 2 není v kódové stránce 1250\n");
}

TEST_F(Nastroje, ChybyVetZnamekATabulek) {
    std::string vety;
    for (const auto& [od, po] :
         {std::pair{1, 3}, {7, 16}, {18, 23}, {27, 34}, {38, 43}, {45, 45}, {300, 301}}) {
        for (int n = od; n <= po; ++n) vety += std::to_string(n) + " Věta.\n";
    }
    EXPECT_EQ(Kontrola("Errors.txt", vety), "");
    EXPECT_EQ(
        Kontrola("Errors.txt", vety.substr(vety.find('\n') + 1) + "2 Znovu.\n4 Cizí.\nx\n9\n"),
        "Errors.txt:36: číslo: krok 2 už je na řádku 1; body by se strhly dvakrát\n"
        "Errors.txt:37: číslo: krok 4 žádná úloha nezná\n"
        "Errors.txt:38: číslo: je „x“, má být 1 až 999\n"
        "Errors.txt:39: věta: chybí\n"
        "Errors.txt:39: číslo: krok 9 už je na řádku 5; body by se strhly dvakrát\n"
        "Errors.txt: chybí věta ke kroku 1\n");

    const std::string dobre = "90|100|1\n75|90|2\n50|75|3\n25|50|4\n0|25|5\n";
    EXPECT_EQ(Kontrola("Znamky.txt", dobre), "");
    EXPECT_EQ(Kontrola("Znamky.txt", dobre + "0|1|6\n"), "Znamky.txt:6: řádků je více než pět\n");
    EXPECT_EQ(Kontrola("Znamky.txt", "90|99|1\n75|89|3\n50|75|2\n25|50|256\n1|25|5\n"),
              "Znamky.txt:3: pole 3 (známka): známky nejdou od nejlepší k nejhorší\n"
              "Znamky.txt:4: pole 3 (známka): je „256“, má být celé číslo 0 až 255\n"
              "Znamky.txt: mezi 0 a 1 % není žádná známka\n"
              "Znamky.txt: mezi 25 a 50 % není žádná známka\n"
              "Znamky.txt: mezi 89 a 90 % není žádná známka\n"
              "Znamky.txt: nad 99 % není žádná známka\n");
    EXPECT_EQ(Kontrola("Znamky.dat", "100|90|1\r\n0|100\r\n"),
              "Znamky.dat:1: dolní mez je větší než horní\n"
              "Znamky.dat:2: řádek má mít tři pole oddělená znakem |\n"
              "Znamky.dat: řádků má být pět; za chybějící by nula procent dostala známku 0\n"
              "Znamky.dat: mezi 0 a 100 % není žádná známka\n"
              "Znamky.dat: nad 90 % není žádná známka\n");

    EXPECT_EQ(Kontrola("01.res", ""), "");
    EXPECT_EQ(Kontrola("01.res", "Eva|50|0|1\r\nA|B|1|2|3\r\nJan|x|0|\r\n"),
              "01.res:2: řádek má mít čtyři pole oddělená znakem |\n"
              "01.res:3: pole 2 (Spravne): je „x“, má být celé číslo\n");
}

}  // namespace
}  // namespace rysovna::testy
