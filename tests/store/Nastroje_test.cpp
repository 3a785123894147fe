#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

#include "CeleSoubory.h"
#include "podpora/PravaUctu.h"
#include "podpora/SouboryPomoc.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/RadkySouboru.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

/// The rewrite beside the file, and the one in place: a folder stands where the file beside it
/// would be made.
TEST_F(Soubory, PrepisJeCelyNovyNeboCelyStary) {
    Pis("skutecny.res", "");
    const fs::path soubor = Cesta("odkaz.res");
    fs::create_symlink(Cesta("skutecny.res"), soubor);
    fs::permissions(soubor, fs::perms(0664));
    for (const bool naMiste : {false, true}) {
        if (naMiste) fs::create_directory(Cesta("skutecny.res.nove"));
        const auto souboru = Pocet();
        for (const std::string obsah : {"starý", "nový a mnohem delší", "", "x", "y"}) {
            PrepisSoubor(soubor, obsah);
            EXPECT_EQ(Cti("skutecny.res"), obsah);
            EXPECT_TRUE(fs::is_symlink(soubor));
            EXPECT_EQ(fs::status(soubor).permissions(), fs::perms(0664));
        }
        const std::string stary(3000, 's');
        Pis("odkaz.res", stary);
        {
            const PlnyDisk plny(4096);
            EXPECT_EQ(Chyba([&] { PrepisSoubor(soubor, std::string(6000, 'n')); }),
                      "Do souboru nelze zapsat (odkaz.res)");
        }
        EXPECT_EQ(Cti("odkaz.res"), stary);
        EXPECT_EQ(Pocet(), souboru);
    }
    EXPECT_EQ(Chyba([&] { PrepisSoubor(Cesta("neni/01.dat"), "x"); }),
              "Do souboru nelze zapsat (neni/01.dat)");
}

// The data tool, run as the build and a teacher run it.

class Nastroje : public Soubory {
protected:
    /// Both outputs, the folder cut out of them, with a line "= exit status"
    /// behind. The tool stands in the same build as this test.
    std::string Spust(const std::string& argumenty, const std::string& napred = "") {
        const fs::path sestaveni = fs::read_symlink("/proc/self/exe").parent_path().parent_path();
        const fs::path nastroj = sestaveni / "staging/kodovani ";
        const int stav = std::system(("cd " + Cesta("").string() + " && " + napred +
                                      nastroj.string() + argumenty + " > vystup 2>&1")
                                         .c_str());
        return Cti("vystup") + "= " + std::to_string(WEXITSTATUS(stav));
    }
    /// What the check says of a file with this content.
    std::string Kontrola(const std::string& jmeno, std::string_view obsah) {
        Pis(jmeno, obsah);
        return Spust("zkontroluj " + jmeno);
    }
};

TEST_F(Nastroje, TamAZpet) {
    const std::array<std::string, 3> zdroje[]{
        {"02", "; poznámka\n2#sus#alfa#b#c#°#cm#cm\n", "2#sus#alfa#b#c#°#cm#cm\n"},
        {"Errors", "7 Délka.\n\n45  Střed.\n300 Žádná.\n", "7 Délka.\n45 Střed.\n300 Žádná.\n"},
        {"Znamky", "\uFEFF90|100|1\n0|90|2", "90|100|1\n0|90|2\n"}};
    for (const auto& [jmeno, text, zpet] : zdroje) {
        Pis(jmeno + ".txt", text);
        EXPECT_EQ(Spust("zakoduj " + jmeno + ".txt " + jmeno + ".dat"), "= 0");
        EXPECT_EQ(Spust("dekoduj " + jmeno + ".dat zpet.txt"), "= 0");
        EXPECT_EQ(Cti("zpet.txt"), zpet);
    }
    EXPECT_EQ(Cti("Znamky.dat"), "90|100|1\r\n0|90|2\r\n");
    EXPECT_EQ(Z1250(DekodujRadek(CtiRadky(Disk_(), Cesta("Errors.dat")).at(0)), {}), "007 Délka.|");
    EXPECT_TRUE(Spust("zakoduj x.txt").ends_with("= 2"));
    Pis("01.txt", "; x\n1#α\n");
    EXPECT_EQ(Spust("zakoduj 01.txt 02.dat"), "Znak č. 3 nejde uložit (01.txt:2)\n= 1");
    Pis("Errors.txt", "999 Ahoj.\n1000 Ahoj.\n");
    EXPECT_EQ(Spust("zakoduj Errors.txt 02.dat"),
              "Řádek nezačíná číslem kroku 1 až 999 (Errors.txt:2)\n= 1");
    EXPECT_NE(Cti("02.dat"), "");
    // To itself, also by another name, nothing would be left of the text.
    fs::create_symlink("Errors.txt", Cesta("jinak.dat"));
    for (const std::string cil : {"Errors.txt", "jinak.dat"}) {
        EXPECT_EQ(Spust("zakoduj Errors.txt " + cil),
                  "Zdroj a cíl jsou týž soubor (" + cil + ")\n= 1");
    }
    EXPECT_EQ(Cti("Errors.txt"), "999 Ahoj.\n1000 Ahoj.\n");
}

#if !defined(__SANITIZE_ADDRESS__)  // its own memory is past any limit
TEST_F(Nastroje, VelkySoubor) {
    Pis("01.txt", "");
    fs::resize_file(Cesta("01.txt"), std::uintmax_t{1} << 30);
    EXPECT_EQ(Spust("zkontroluj 01.txt", "ulimit -v 200000 && "),
              "Na tak velký soubor nestačí paměť\n= 1");
}
#endif

TEST_F(Nastroje, ChybyUloh) {
    const std::string sss = "1##a#b#c#cm#cm#cm#usecka#kruznice#kruznice\n";
    std::string sto;
    for (int i = 0; i < 101; ++i) sto += sss;
    EXPECT_EQ(Kontrola("01.txt", "; poznámka\n" + sto),
              "01.txt:102: příkladů je více než 100\n= 1");
    EXPECT_EQ(Kontrola("02.txt", "3#€α#a#beta#c#cm#°#cm#primka#kruznice#poloprimka#\n"),
              "02.txt:1: znak č. 4 nejde uložit (není v kódové stránce 1250)\n"
              "02.txt:1: pole 9 (Kroky[1].Utvar): je „primka“, má být „usecka“\n"
              "02.txt:1: pole 12: je navíc; řádek má mít nejvýš 11 polí\n= 1");
    // Stored files: cut short, with a byte of no meaning.
    const std::string ulozeny = ZakodujRadek(sss.substr(0, sss.size() - 1)) + "\r\n";
    EXPECT_EQ(Kontrola("01.dat", "xxx1xxx\x98\r\n" + ulozeny.substr(0, ulozeny.size() - 5)),
              "01.dat:1: znak č. 2 není v kódové stránce 1250\n"
              "01.dat:2: délka uloženého řádku není násobkem čtyř (useknutý řádek?)\n"
              "01.dat:2: za posledním řádkem chybí konec řádku (useknutý soubor?)\n"
              "01.dat:2: pole 11 (Kroky[3].Utvar): je „kruznic“, má být „kruznice“\n= 1");
}

// Right lines, each broken by putting one text for another.
TEST_F(Nastroje, PravidlaUloh) {
    const std::map<std::string, std::string> radky{
        {"04.txt", "01##a#va#beta#cm#cm#°#usecka##rovnobezka##poloprimka#"},
        {"07.txt", "24##b#c#vc#cm#cm#cm#usecka##kruznice##rovnobezka#"},
        {"09.txt", "06#BCD#b#c#gama#cm#cm#°#sus#d#cm#kruznice#KD#beta#°#poloprimka#BXBC"},
        {"10.txt", "60#CDA#d#c#delt#cm#cm#°#sus#bod#AC#obrazbodu#D########"},
        {"11.txt", "17#ABC#a#b#e#cm#cm#cm#sss#CD||AB##rovnobezka#vc#d#cm#kruznice#KA"},
        {"13.txt", "05#A#B#a####C#stred#D#prusecik#k#kruznice##########"}};
    const std::array<std::string, 4> chyby[]{
        {"04.txt", "va", "vb", "(Nazev2): je „vb“; výška má patřit ke straně v poli 3"},
        {"04.txt", "beta", "alfa", "(Nazev3): je „alfa“; úhel nemá ležet proti straně"},
        {"04.txt", "rovnobezka", "kruznice", "(Kroky[2].Utvar): je „kruznice“, má být „rovno"},
        {"04.txt", "ka##p", "ka#poloprimka#p", "(Kroky[2].UtvarB): je „poloprimka“, má být nic"},
        {"07.txt", "#c", "#b", "(Nazev2): je „b“; má být jiná strana než v poli 3"},
        {"07.txt", "vc", "va", "(Nazev3): je „va“; výška má patřit k jedné z obou stran"},
        {"09.txt", "06", "22", "(Text1): je „sus“, má být „sss“ (podle druhu)"},
        {"09.txt", "#b#", "#va#", "(Nazev1): je „va“, má být „b“"},
        {"09.txt", "°", "cm", "(Jednotka3): je „cm“, má být „°“"},
        {"09.txt", "s#d", "s#b", "je „b“, má být jedno z: „d“, „a“ (strana, která v troj"},
        {"09.txt", "KD", "KB", "(Kroky[1].UtvarB): je „KB“, má být „KD“"},
        {"09.txt", "beta", "delta", "má být „beta“ (úhel u krajního bodu strany z pole 3)"},
        {"10.txt", "CDA", "BCS", "(Nazev1): je „d“, má být jedno z: „e“, „f“"},
        {"10.txt", "CDA", "CDS", "(Text2): je „CDS“, má být jedno z:"},
        {"10.txt", "bod", "bodd", "je „bodd“, má být jedno z: „bod“, „obrazbodu“, nic"},
        {"10.txt", "#AC", "#XY", "(Kroky[1].Jmeno): je „XY“, má být „AC“"},
        {"10.txt", "obrazbodu#D", "#", "chybí krok „obrazbodu“ se jménem „D“"},
        {"11.txt", "CD||AB##rovnobezka#vc", "c#cm#kruznice#KC", "rovnoběžnost, právě jednou"},
        {"11.txt", "d#cm#kruznice#KA", "c#cm#kruznice#KC", "neurčí, oba vycházejí z C"},
        {"13.txt", "05", "10", "(Druh): je „10“, má být 01 až 09"},
        {"13.txt", "#B", "#", "(Dalsi1): je „“, má být „B“"},
        {"13.txt", "e###", "e#l##", "(Kroky[4].Jmeno): je „l“, má být prázdné"}};
    for (const auto& [soubor, radek] : radky) EXPECT_EQ(Kontrola(soubor, radek), "= 0") << radek;
    for (const auto& [soubor, co, cim, nalez] : chyby) {
        std::string radek = radky.at(soubor);
        radek.replace(radek.find(co), co.size(), cim);
        const std::string vypis = Kontrola(soubor, radek);
        EXPECT_TRUE(vypis.starts_with(soubor + ":1: ") && vypis.find(nalez) < vypis.size())
            << radek << "\n"
            << vypis;
    }
}

TEST_F(Nastroje, ChybyVetZnamekATabulek) {
    EXPECT_TRUE(Kontrola("Errors.txt", "2 Věta.\n2 Znovu.\n4 Cizí.\nx\n9\n49 Začátek\n")
                    .starts_with("Errors.txt:2: číslo: krok 2 už je na řádku 1; body by se strhly "
                                 "dvakrát\n"
                                 "Errors.txt:3: číslo: krok 4 žádná úloha nezná\n"
                                 "Errors.txt:4: číslo: je „x“, má být 1 až 999\n"
                                 "Errors.txt:5: věta: chybí\n"
                                 "Errors.txt:6: věta: musí končit mezerou: program k ní připojí "
                                 "další slova\n"
                                 "Errors.txt: chybí věta ke kroku 1\n"));
    EXPECT_EQ(Kontrola("Znamky.txt", "0|25|5\n50|75|2\n75|89|3\n25|50|256\n90|99|1\n0|1|0\n"),
              "Znamky.txt:3: pole 3 (známka): známky nejdou od nejhorší k nejlepší\n"
              "Znamky.txt:4: pole 3 (známka): je „256“, má být celé číslo 0 až 255\n"
              "Znamky.txt:6: řádků je více než pět\n"
              "Znamky.txt: mezi 25 a 50 % není žádná známka\n"
              "Znamky.txt: mezi 89 a 90 % není žádná známka\n"
              "Znamky.txt: nad 99 % není žádná známka\n= 1");
    EXPECT_EQ(Kontrola("01.res", "Eva|50|0|1\r\nA|B|1|2|3\r\nJan|x|0|\r\n"),
              "01.res:2: řádek má mít čtyři pole oddělená znakem |\n"
              "01.res:3: pole 2 (Spravne): je „x“, má být celé číslo\n= 1");
}

}  // namespace
}  // namespace rysovna::testy
