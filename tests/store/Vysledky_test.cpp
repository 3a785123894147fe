#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <random>

#include "base/Cisla.h"
#include "podpora/HlidanyDisk.h"
#include "podpora/PravaUctu.h"
#include "podpora/SouboryPomoc.h"
#include "podpora/UkladaniHned.h"
#include "podpora/VzorkyVysledku.h"
#include "store/Fronta.h"
#include "store/RadkySouboru.h"
#include "store/TabulkaVysledku.h"
#include "store/VymenaSouboru.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;
using Zaznamy = std::vector<ZaznamTabulky>;

/// The order as it is defined: neighbours swap as long as the later one is better.
void VlozBublinkove(Zaznamy& zaznamy, const ZaznamTabulky& novy) {
    const auto klic = [](const ZaznamTabulky& z) {
        const auto c = [](const std::string& text) { return Podlaha(Cislo(text)); };
        return std::tuple(c(z.Znamka), -c(z.Spravne), c(z.Spatne));
    };
    zaznamy.push_back(novy);
    for (std::size_t kolo = 1; kolo < zaznamy.size(); ++kolo) {
        for (std::size_t i = 1; i < zaznamy.size(); ++i) {
            if (klic(zaznamy[i]) < klic(zaznamy[i - 1])) std::swap(zaznamy[i], zaznamy[i - 1]);
        }
    }
}

TEST(Tabulka, PoradiJakoBublinkoveTrideni) {
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

TEST(Tabulka, RozdelASloz) {
    const Zaznamy cele{{"\x8Eofie", "50", "0", "1"}, {"A|B", "7", "3", "3"}, {"?", "0", "10", ""}};
    const std::string obsah = "\x8Eofie|50|0|1\r\nA|B|7|3|3\r\n?|0|10|\r\n";
    EXPECT_EQ(SlozTabulku(cele), obsah);
    EXPECT_EQ(RozdelTabulku(obsah), (Zaznamy{cele[0], {"A", "B", "7", "3"}, cele[2]}));
    EXPECT_EQ(RozdelTabulku("Jan|1"), (Zaznamy{{"Jan", "1", "", ""}})) << "a file cut short";
}

/// Every state that writing in place can be broken off in, byte by byte: the table is the old one
/// until the journal is whole, and the new one from then on.
TEST(Tabulka, ZurnalPretrzenyKdekoli) {
    const std::string stara = "Eva|50|0|1\r\nJan|7|3|3\r\n";
    const std::string delsi = "Eva|50|0|1\r\n" + std::string(60, 'x') + "|40|10|2\r\nJan|7|3|3\r\n";
    for (const auto& [puvodni, nova] : {std::pair(stara, delsi), std::pair(std::string(), stara),
                                        std::pair(delsi, stara), std::pair(delsi, delsi)}) {
        const std::string zurnal = Zurnal(puvodni.size(), nova);
        for (std::size_t n = 0; n < zurnal.size(); ++n)
            ASSERT_EQ(PlatneBajty(puvodni + zurnal.substr(0, n)), puvodni) << n;
        std::string soubor = puvodni + zurnal;
        for (std::size_t n = 0; n <= nova.size(); ++n) {
            soubor.replace(0, n, nova, 0, n);
            ASSERT_EQ(PlatneBajty(soubor), nova) << n;
        }
        // One byte of the new table came to the disk wrong.
        std::string vadny = puvodni + zurnal;
        vadny[vadny.find(nova, puvodni.size() + 1) + 1] ^= 1;
        EXPECT_EQ(PlatneBajty(vadny), puvodni);
        EXPECT_EQ(PlatneBajty(puvodni + std::string(50, '\0')), puvodni);
    }
}

TEST(Fronta, ZaznamTamAZpet) {
    CekajiciVysledek v{.Koren = "/tmp/x\ny%41",
                       .Co = VysledekZaka("Žaneta=\r\n%", 12),
                       .DelkaDeniku = 12345678901,
                       .StejnychRadku = 3,
                       .Ohlaseno = true};
    const auto znovu = [&v](const std::string& text) {
        const auto u = CtiCekajiciho(text);
        return u && u->Koren == v.Koren && u->Co == v.Co ? TextCekajiciho(*u) : "";
    };
    const std::string text = TextCekajiciho(v);
    EXPECT_EQ(znovu(text), text);
    for (std::size_t n = 0; n < text.size(); ++n) EXPECT_EQ(znovu(text.substr(0, n)), "") << n;
    // A later state beats the earlier one, half of a line counts for nothing.
    v.StejnychRadku.reset();
    v.VDeniku = true;
    EXPECT_EQ(znovu(text + "\nstejnych-radku=\nv-deniku=1\nv-tabulce=1"), TextCekajiciho(v));
    EXPECT_EQ(znovu("RYSOVNA1 VYSLEDEK 2" + text.substr(text.find('\n'))), "");
}

// ---- Storing ---------------------------------------------------------------------------------

using Co = HlidanyDisk::Co;

class Ulozeni : public Soubory {
protected:
    Ulozeni() {
        Pis("Vysledky.dat", "");
        fs::permissions(Cesta(".."), fs::perms(0755));
    }
    std::string Uloz(const std::string& jmeno, int uloha = 1) {
        return UlozVysledek(VysledekZaka(jmeno, uloha)).Text;
    }
    /// The storing of a new start of the program.
    std::string Start() {
        relace.Pamet().ZapomenVysledky();
        return host.Proved(relace.Pamet().Vysledky().ZkusCekajici());
    }
    /// What it says when no file can grow over 4096 bytes.
    template <class Akce>
    std::string NaPlnem(Akce&& akce) {
        const PlnyDisk plny(4096);
        return akce();
    }
    /// Another program of the account, on a disk of its own.
    UkladaniHned Program(Disk& disk) {
        const auto spi = [this](std::uint32_t ms) {
            if (host.PriSpanku) host.PriSpanku(ms);
            host.PosunHodiny(ms);
        };
        return {disk, {[this] { return host.TickCount(); }, spi}, Cesta(""), host.SlozkaStavu()};
    }
    int Ceka() { return PocetCekajicich(host.Disk(), host.SlozkaStavu()); }
    /// "A B | C A | 1": pupils in the log and in the table (a row that is none of theirs as it is),
    /// how many results wait.
    std::string Stav() {
        std::string text, tabulka;
        for (const std::string& radek : NaRadky(Cti("Vysledky.dat"))) {
            if (radek.starts_with("Jm\xE9no: ")) text += radek.substr(7, radek.find(' ', 7) - 6);
        }
        for (const std::string& radek : NaRadky(Cti("01.res"))) {
            const std::string jmeno = radek.substr(0, radek.find('|'));
            tabulka += (radek + "\r\n" == RadekTabulky(jmeno) ? jmeno : radek) + " ";
        }
        return text + "| " + tabulka + "| " + std::to_string(Ceka());
    }
};

/// Who reads while the table is changed in place may get the beginning of one and the end of the
/// other; nobody is shown it.
TEST_F(Ulozeni, SmesSeNikomuNeukaze) {
    const std::string nova = "Nov|50|0|1\r\nEva|7|3|3\r\n";
    Pis("01.res", "Eva|7|3|3\r\n|7|3|3\r\n");
    HlidanyDisk disk;
    disk.Pred = [&, n = 0](Co, const fs::path&) mutable {
        if (++n == 2) Pis("01.res", nova);
    };
    EXPECT_EQ(NactiTabulku(disk, Cesta("01.res")), RozdelTabulku(nova));
}

TEST_F(Ulozeni, CtyriRadkyDenikuBajtPoBajtu) {
    Pis("Vysledky.dat", "co tu bylo");
    EXPECT_EQ(Uloz("Žaneta Křížová"), "");
    // What is longer stays whole; a character that the code page lacks counts and prints as one.
    const std::string jmeno(34, 'x'), hra(25, 'h'), typ(31, 't'), cara = std::string(75, '=');
    EXPECT_EQ(UlozVysledek(
                  {1, jmeno + "Ω", hra, typ, "5", "1234567", "7654321", "", {2024, 12, 31, 23, 59}})
                  .Text,
              "");
    EXPECT_EQ(
        Cti("Vysledky.dat"),
        "co tu bylo\r\n" +
            Do1250("Jméno: Žaneta Křížová                        Datum: 3.9.2024  "
                   "   Čas: 08:05\r\n"
                   "Hra: Trojúhelník 1        Typ úlohy: podle věty SSS"
                   "                \r\n"
                   "Počet příkladů:  5        Klad. body: 50     Záp. body: 0"
                   "        Známka:  1\r\n" +
                   cara + "\r\n" + "Jméno: " + jmeno + "?   Datum: 31.12.2024   Čas: 23:59\r\n" +
                   "Hra: " + hra + " Typ úlohy: " + typ + "\r\n" +
                   "Počet příkladů:  5        Klad. body: 1234567 Záp. body: "
                   "7654321   Známka:  \r\n" +
                   cara + "\r\n"));
    EXPECT_EQ(Cti("01.res"), jmeno + "?|1234567|7654321|\r\n" + RadekTabulky("Žaneta Křížová"));
    EXPECT_EQ(Ceka(), 0);
}

TEST_F(Ulozeni, DenikZacinaNaNovemRadku) {
    for (const auto& [konec, pred] : std::initializer_list<std::array<std::string, 2>>{
             {"", ""}, {"x\r\n", ""}, {"x\n", ""}, {"x\r", "\n"}, {"x", "\r\n"}}) {
        Pis("Vysledky.dat", konec);
        EXPECT_EQ(Uloz("A"), "");
        EXPECT_EQ(Cti("Vysledky.dat"), konec + pred + RadkyDeniku(VysledekZaka("A")));
    }
}

/// A program of before, or an editor, that writes while the disk fills up.
TEST_F(Ulozeni, PlnyDiskNechaDenikCelyAVysledekPocka) {
    if (!MaPravaPosix()) GTEST_SKIP();
    const std::string zacatek = std::string(4000, 'd') + "\r\n";
    Pis("Vysledky.dat", zacatek);
    EXPECT_EQ(NaPlnem([&] { return Uloz("A"); }),
              "Výsledek se nepodařilo zapsat: " + Cesta("Vysledky.dat").string() +
                  " (na disku není místo).\n\nJe uložen stranou a zapíše se s příštím "
                  "výsledkem nebo při příštím spuštění programu.");
    EXPECT_EQ(Cti("Vysledky.dat"), zacatek);
    EXPECT_NE(NaPlnem([&] { return Uloz("B"); }), "");  // each result is told once
    EXPECT_EQ(NaPlnem([&] { return Start(); }), "");
    EXPECT_EQ(Stav(), "| | 2");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Stav(), "A B | A B | 0");
}

/// A fault that leaves the table as it was: the same row of somebody else, later, is not ours, even
/// where the table could not be looked at again. Nor are the same lines of the log.
TEST_F(Ulozeni, CiziStejnyRadekPoChybeNeniTen) {
    for (const bool iPotom : {false, true}) {
        Pis("Vysledky.dat", "");
        Pis("01.res", "");
        HlidanyDisk disk;
        UkladaniHned ukladani = Program(disk);
        disk.Pred = [rozbita = false, iPotom](Co co, const fs::path& soubor) mutable {
            if (rozbita && co == Co::Otevrit && soubor.extension() == ".res")
                throw ChybaDisku(Pricina::Jina, soubor);
            if (co != Co::Novy || soubor.extension() != ".nove") return;
            rozbita = iPotom;
            throw ChybaDisku(Pricina::Plno, soubor);
        };
        EXPECT_NE(ukladani.Uloz(VysledekZaka("A")).Text.find("01.res"), std::string::npos);
        EXPECT_EQ(Stav(), "A | | 1");
        Pis("01.res", RadekTabulky("A"));
        disk.Pred = [](Co, const fs::path&) {};
        EXPECT_EQ(ukladani.ZkusCekajici(), "");
        EXPECT_EQ(Stav(), "A | A A | 0");
    }
    if (!MaPravaPosix()) return;
    const std::string zacatek = std::string(3998, 'd') + "\r\n";
    Pis("Vysledky.dat", zacatek);
    EXPECT_NE(NaPlnem([&] { return Uloz("A"); }), "");
    ASSERT_EQ(Cti("Vysledky.dat"), zacatek);
    Pis("Vysledky.dat", zacatek + RadkyDeniku(VysledekZaka("A")));
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Stav(), "A A | A A A | 0");
}

/// A home that fills up between the entry and its first note; and a folder that cannot be waited
/// for once its new table is there.
TEST_F(Ulozeni, VadyKtereNicNezdrzi) {
    for (const auto vada : {Co::Pripsat, Co::Slozka}) {
        Pis("Vysledky.dat", "");
        Pis("01.res", "");
        HlidanyDisk disk;
        disk.Pred = [&](Co co, const fs::path& kde) {
            const bool poznamka = kde.extension() == ".vysledek";
            const bool vysledky = fs::exists(kde / "Vysledky.dat");
            if (co == vada && (poznamka || vysledky)) throw ChybaDisku(Pricina::Plno, kde);
        };
        const auto ulozeni = Program(disk).Uloz(VysledekZaka("A"));
        EXPECT_EQ(ulozeni.Text, "");
        EXPECT_EQ(ulozeni.Misto, 1);
        EXPECT_EQ(Stav(), "A | A | 0");
    }
}

/// A disk that has kept what was written at the third question only, or refuses at that. A result
/// is told as stored, and taken out of the queue, only then: whoever is killed before has it there,
/// and the queue claims nothing that may be lost. What was refused stands in both files once.
TEST_F(Ulozeni, DoUchovaniZustavaVeFronte) {
    HlidanyDisk disk;
    UkladaniHned ukladani = Program(disk);
    int otazek = 0;
    bool odmita = true;
    disk.PriOtazce = [&] {
        const auto fronta =
            Fronta(disk, host.SlozkaStavu()).Cekajici(fs::canonical(Cesta("")).string());
        EXPECT_EQ(fronta.size(), 1U);
        EXPECT_TRUE(fronta.empty() || (fronta[0].VDeniku == (otazek > 2) && !fronta[0].VTabulce));
        if (++otazek % 3 != 0) return false;
        if (odmita) throw ChybaDisku(Pricina::Plno, "uloziste");
        return true;
    };
    EXPECT_NE(ukladani.Uloz(VysledekZaka("A")).Text.find("uložen stranou"), std::string::npos);
    EXPECT_EQ(Ceka(), 1);
    odmita = false;
    otazek = 0;
    EXPECT_EQ(ukladani.ZkusCekajici(), "");
    EXPECT_EQ(Stav(), "A | A | 0");
    otazek = 0;
    const auto ulozeni = ukladani.Uloz(VysledekZaka("B"));
    EXPECT_EQ(ulozeni.Text, "");
    EXPECT_EQ(ulozeni.Misto, 2);
    EXPECT_EQ(otazek, 6);
    EXPECT_EQ(Stav(), "A B | A B | 0");
}

/// Whoever waits for the log keeps the queue's lock; the account's other programs put their results
/// in all the same, and nobody waits longer than for one lock.
TEST_F(Ulozeni, TriProgramyUctuZaCizimZamkem) {
    auto cizi = CiziZamek();
    int program = 0;
    const std::function<void()> dalsi = [&] {
        UkladaniHned ukladani = Program(host.Disk());
        const std::string jmeno(1, static_cast<char>('A' + program++));
        const std::string zprava = ukladani.Uloz(VysledekZaka(jmeno)).Text;
        EXPECT_NE(zprava.find("Je uložen stranou"), std::string::npos) << zprava;
        EXPECT_EQ(ukladani.Sam().Cekaji().size(), 1U) << jmeno;
    };
    host.PriSpanku = [&](std::uint32_t) {
        if (program < 3) dalsi();
    };
    const std::uint32_t od = host.TickCount();
    dalsi();
    EXPECT_EQ(program, 3);
    EXPECT_LE(host.TickCount() - od, Ukladani::NEJDELE_NA_ZAMEK + 100);
    host.PriSpanku = nullptr;
    EXPECT_EQ(Ceka(), 3);
    cizi.reset();
    EXPECT_EQ(Start(), "");  // each was told once
    EXPECT_EQ(Stav(), "A B C | A B C | 0");
}

TEST_F(Ulozeni, VysledekZnaSvujKoren) {
    Schovej("Vysledky.dat");
    EXPECT_NE(Uloz("A"), "");
    fs::create_directory(Cesta("jiny"));
    for (const char* s : {"jiny/Vysledky.dat", "jiny/01.res"}) Pis(s, "");
    relace.Pamet().CestaVysledku = Cesta("jiny/").string();
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Uloz("B"), "");
    EXPECT_EQ(Cti("jiny/01.res"), RadekTabulky("B"));
    relace.Pamet().CestaVysledku = Cesta("").string();
    Vrat("Vysledky.dat");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Stav(), "A | A | 0");
}

TEST_F(Ulozeni, BezFrontySeZapiseAJinakSeDrziVPameti) {
    Pis("../stav", "soubor místo složky");
    EXPECT_EQ(Uloz("A"), "");
    EXPECT_EQ(Stav(), "A | A | 0");
    Schovej("01.res", true);
    const std::string zprava = Uloz("B");
    for (const char* co : {"01.res (disk hlásí chybu)", "výsledek se ztratí"})
        EXPECT_NE(zprava.find(co), std::string::npos) << zprava;
    Vrat("01.res");
    EXPECT_EQ(Stav(), "A B | A | 0");
    EXPECT_EQ(Uloz("C"), "");
    EXPECT_EQ(Stav(), "A B C | A B C | 0");
}

TEST_F(Ulozeni, CizimuZamkuSeCekaTriSekundy) {
    auto cizi = CiziZamek();
    const std::uint32_t od = host.TickCount();
    EXPECT_NE(Uloz("A").find("Vysledky.dat (zapisuje do něj jiný program)"), std::string::npos);
    EXPECT_LE(host.TickCount() - od, Ukladani::NEJDELE_NA_ZAMEK);
    EXPECT_GE(host.TickCount() - od, Ukladani::NEJDELE_NA_ZAMEK - 50);
    host.PriSpanku = [&, n = 0](std::uint32_t) mutable {
        if (++n == 10) cizi.reset();
    };
    EXPECT_EQ(Uloz("B"), "");
    EXPECT_EQ(Stav(), "A B | A B | 0");
}

/// What a program that was killed left of its lines is made whole; behind what others wrote
/// meanwhile the lines stand anew.
TEST_F(Ulozeni, ZabitySeDokonci) {
    const std::string zacatek = "co tu bylo", text = RadkyDeniku(VysledekZaka("A"));
    const std::string cele = "\r\n" + text, cizi = "\r\n" + RadkyDeniku(VysledekZaka("Z"));
    fs::create_directories(Cesta("../stav/fronta"));
    for (std::size_t n = 0; n <= cele.size(); ++n) {
        for (const std::string& za : {std::string(), cizi}) {
            const std::string bylo = zacatek + cele.substr(0, n) + za;
            Pis("Vysledky.dat", bylo);
            Pis("01.res", RadekTabulky("A"));
            const CekajiciVysledek v{.Koren = fs::canonical(Cesta("")).string(),
                                     .Co = VysledekZaka("A"),
                                     .DelkaDeniku = zacatek.size(),
                                     .StejnychRadku = n % 2};
            Pis("../stav/fronta/0000000001.vysledek", TextCekajiciho(v));
            ASSERT_EQ(Start(), "");
            const bool stoji = bylo.starts_with(zacatek + cele);
            ASSERT_EQ(Cti("Vysledky.dat"), za.empty() ? zacatek + cele
                                           : stoji    ? bylo
                                                      : bylo + text)
                << n;
            // Where one such row was there before, another one is still to come.
            ASSERT_TRUE(Stav().ends_with(n % 2 == 0 ? "| A | 0" : "| A A | 0")) << Stav();
        }
    }
}

TEST_F(Ulozeni, TabulkaSiDrziPravaAOdkaz) {
    if (!MaPravaPosix()) GTEST_SKIP();
    Pis("skutecna.res", "");
    fs::permissions(Cesta("skutecna.res"), fs::perms(0664));
    fs::remove(Cesta("01.res"));
    fs::create_symlink(Cesta("skutecna.res"), Cesta("01.res"));
    Pis("skutecna.res.0123456789abcdef.nove", "zbytek po zabitém");
    const auto souboru = Pocet();
    EXPECT_EQ(Uloz("A"), "");
    EXPECT_TRUE(fs::is_symlink(Cesta("01.res")));
    EXPECT_EQ(Cti("skutecna.res"), RadekTabulky("A"));
    EXPECT_EQ(fs::status(Cesta("skutecna.res")).permissions(), fs::perms(0664));
    EXPECT_EQ(Pocet(), souboru - 1);
    // A table that went missing comes back with the rights of its folder.
    fs::permissions(Cesta(""), fs::perms(0775));
    fs::remove(Cesta("02.res"));
    EXPECT_EQ(Uloz("B", 2), "");
    EXPECT_EQ(fs::status(Cesta("02.res")).permissions(), fs::perms(0664));
    EXPECT_EQ(Cti("02.res"), RadekTabulky("B"));
}

using UlozeniDeathTest = Ulozeni;

TEST_F(UlozeniDeathTest, SlozkaASouboryJenKeCteni) {
    if (!MaPravaPosix()) GTEST_SKIP();
    fs::create_directory(Cesta("../stav"));
    fs::permissions(Cesta("../stav"), fs::perms(0777));
    Pis("01.res", RadekTabulky("Eva"));
    const auto nastav = [&](int soubory, int slozka) {
        for (const char* s : {"01.res", "Vysledky.dat"})
            fs::permissions(Cesta(s), fs::perms(soubory));
        fs::permissions(Cesta(""), fs::perms(slozka));
    };
    const auto hraj = [&] {
        // Somebody whom the permissions of files bind.
        BudNekdoJiny();
        std::cerr << Uloz("A");
        std::exit(0);
    };
    nastav(0444, 0555);
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "Vysledky.dat .chyb.+ opr.+vn");
    EXPECT_EQ(Stav(), "| Eva | 1");
    // The folder alone is closed: nothing can be made beside, the files themselves can be written.
    // What waits goes first.
    nastav(0666, 0555);
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "^$");
    EXPECT_EQ(Stav(), "A A | Eva A A | 0");
    nastav(0666, 0755);
}

}  // namespace
}  // namespace rysovna::testy
