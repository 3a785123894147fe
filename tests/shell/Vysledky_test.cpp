#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <memory>
#include <random>
#include <unistd.h>

#include "base/Cisla.h"
#include "platform/PosixDisk.h"
#include "podpora/UkladaniHned.h"
#include "screens/Spolecne.h"
#include "shell/SouboryPomoc.h"
#include "store/Fronta.h"
#include "store/Kodovani.h"
#include "store/TabulkaVysledku.h"
#include "store/Ukladani.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;
using Zaznamy = std::vector<ZaznamTabulky>;

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
    EXPECT_EQ(RozdelTabulku(obsah),
              (Zaznamy{{"\x8Eofie", "50", "0", "1"}, {"A", "B", "7", "3"}, {"?", "0", "10", ""}}));
    // A file cut short keeps what it has.
    EXPECT_EQ(RozdelTabulku("Jan|1"), (Zaznamy{{"Jan", "1", "", ""}}));
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
            ASSERT_EQ(PlatnaTabulka(puvodni + zurnal.substr(0, n)), puvodni) << n;
        std::string soubor = puvodni + zurnal;
        for (std::size_t n = 0; n <= nova.size(); ++n) {
            soubor.replace(0, n, nova, 0, n);
            ASSERT_EQ(PlatnaTabulka(soubor), nova) << n;
        }
        // One byte of the new table came to the disk wrong.
        std::string vadny = puvodni + zurnal;
        vadny[vadny.find(nova, puvodni.size() + 1) + 1] ^= 1;
        EXPECT_EQ(PlatnaTabulka(vadny), puvodni);
        EXPECT_EQ(PlatnaTabulka(puvodni + std::string(50, '\0')), puvodni);
    }
}

/// A disk whose one file is another one at each reading, the last of them from then on.
class MenivyDisk final : public Disk {
public:
    explicit MenivyDisk(std::vector<std::string> obsahy) : obsahy_(std::move(obsahy)) {}
    std::unique_ptr<Soubor> Otevri(const fs::path&, Jak) override {
        const std::size_t i = std::min(cteni_++, obsahy_.size() - 1);
        return std::make_unique<Obsah>(obsahy_[i]);
    }
    fs::path Skutecna(std::string_view cesta) override { return cesta; }
    fs::path Jednoznacna(const fs::path& co) override { return co; }
    bool JeSoubor(const fs::path&) override { return true; }
    bool JeSlozka(const fs::path&) override { return true; }
    std::unique_ptr<Soubor> NovySoubor(const fs::path& co) override { Neumi(co); }
    void Nahrad(const fs::path& co, const fs::path&) override { Neumi(co); }
    void Odstran(const fs::path& co) override { Neumi(co); }
    std::vector<std::string> Jmena(const fs::path&) override { return {}; }
    void ZalozSlozku(const fs::path& co) override { Neumi(co); }
    void SlozkaNaDisk(const fs::path&) override {}
    bool SmiZakladat(const fs::path&) override { return false; }
    std::uint64_t Volno(const fs::path&) override { return 0; }

private:
    [[noreturn]] static void Neumi(const fs::path& co) {
        throw ChybaDisku(Pricina::Nepovoleno, co);
    }
    class Obsah final : public Soubor {
    public:
        explicit Obsah(std::string co) : co_(std::move(co)) {}
        std::string Cti(std::uint64_t, std::size_t) override { return co_; }
        std::uint64_t Delka() override { return co_.size(); }
        void Pis(std::uint64_t, std::string_view) override { Neumi({}); }
        void Pripis(std::string_view) override { Neumi({}); }
        void Zkrat(std::uint64_t) override { Neumi({}); }
        void NaDisk() override {}
        bool Zamkni() override { return false; }
        void PrevezmiPrava(Soubor&) override { Neumi({}); }

    private:
        std::string co_;
    };
    std::vector<std::string> obsahy_;
    std::size_t cteni_ = 0;
};

/// Who reads while the table is changed in place may get the beginning of one and the end of the
/// other; nobody is shown it.
TEST(Tabulka, SmesSeNikomuNeukaze) {
    const std::string nova = "Nov|50|0|1\r\nEva|7|3|3\r\n", smes = "Eva|7|3|3\r\n|7|3|3\r\n";
    MenivyDisk disk({smes, nova});
    EXPECT_EQ(NactiTabulku(disk, "01.res"), RozdelTabulku(nova));
}

TEST(Fronta, ZaznamTamAZpet) {
    const CekajiciVysledek v{.Koren = "/tmp/x\ny%41",
                             .Co = {.CisloUlohy = 12,
                                    .Jmeno = "Žaneta=\r\n%",
                                    .Hra = "Kružnice",
                                    .Typ = "t",
                                    .Prikladu = "5",
                                    .Kladne = "41",
                                    .Zaporne = "9",
                                    .Konec = {2024, 12, 31, 23, 59}},
                             .DelkaDeniku = 12345678901,
                             .StejnychRadku = 3,
                             .Ohlaseno = true};
    const auto stejne = [](const CekajiciVysledek& a, const CekajiciVysledek& b) {
        return a.Koren == b.Koren && a.Co == b.Co && a.DelkaDeniku == b.DelkaDeniku &&
               a.VDeniku == b.VDeniku && a.StejnychRadku == b.StejnychRadku &&
               a.VTabulce == b.VTabulce && a.Ohlaseno == b.Ohlaseno;
    };
    const std::string text = TextCekajiciho(v);
    ASSERT_TRUE(CtiCekajiciho(text));
    EXPECT_TRUE(stejne(*CtiCekajiciho(text), v));
    for (std::size_t n = 0; n < text.size(); ++n)
        EXPECT_FALSE(CtiCekajiciho(text.substr(0, n))) << n;
    // A later state beats the earlier one, half of a line counts for nothing.
    CekajiciVysledek dal = v;
    dal.StejnychRadku.reset();
    dal.VDeniku = true;
    EXPECT_TRUE(stejne(*CtiCekajiciho(text + "\nstejnych-radku=\nv-deniku=1\nv-tabulce=1"), dal));
    EXPECT_FALSE(CtiCekajiciho("RYSOVNA1 VYSLEDEK 2" + text.substr(text.find('\n'))));
}

// ---- Storing ---------------------------------------------------------------------------------

class Ulozeni : public Soubory {
protected:
    Ulozeni() {
        Pis("Vysledky.dat", "");
        fs::permissions(Cesta(".."), fs::perms(0755));
    }
    static Vysledek Novy(const std::string& jmeno, int uloha = 1) {
        return {.CisloUlohy = uloha,
                .Jmeno = jmeno,
                .Hra = "Trojúhelník 1",
                .Typ = "podle věty SSS",
                .Prikladu = "5",
                .Kladne = "50",
                .Zaporne = "0",
                .Znamka = "1",
                .Konec = {2024, 9, 3, 8, 5}};
    }
    /// The storing of a new start of the program.
    std::string Start() {
        relace.Pamet().ZapomenVysledky();
        return host.Proved(relace.Pamet().Vysledky().ZkusCekajici());
    }
    /// Another program of the account, on a disk of its own.
    UkladaniHned Program(Disk& disk) {
        return {disk,
                {.Ted = [this] { return host.TickCount(); },
                 .Spi =
                     [this](std::uint32_t ms) {
                         if (host.PriSpanku) host.PriSpanku(ms);
                         host.PosunHodiny(ms);
                     }},
                Cesta(""),
                host.SlozkaStavu()};
    }
    fs::path Fronta_() { return Fronta::Slozka(host.SlozkaStavu()); }
    int Ceka() { return PocetCekajicich(host.Disk(), host.SlozkaStavu()); }
    /// Names in the log, in their order.
    std::string Denik() {
        std::string jmena;
        for (const std::string& radek : NaRadky(Cti("Vysledky.dat"))) {
            if (radek.starts_with("Jm\xE9no: ")) jmena += radek.substr(7, radek.find(' ', 7) - 6);
        }
        return jmena;
    }
};

TEST_F(Ulozeni, CtyriRadkyDenikuBajtPoBajtu) {
    Pis("Vysledky.dat", "co tu bylo");
    EXPECT_EQ(Uloz(relace, Novy("Žaneta Křížová")).Text, "");
    // What is longer stays whole; a character that the code page lacks counts and prints as one.
    const std::string jmeno(34, 'x'), hra(25, 'h'), typ(31, 't'), cara = std::string(75, '=');
    Vysledek dlouhy = Novy(jmeno + "Ω");
    dlouhy.Hra = hra;
    dlouhy.Typ = typ;
    dlouhy.Kladne = "1234567";
    dlouhy.Zaporne = "7654321";
    dlouhy.Znamka = "";
    dlouhy.Konec = {2024, 12, 31, 23, 59};
    EXPECT_EQ(Uloz(relace, dlouhy).Text, "");
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
    EXPECT_EQ(Cti("01.res"),
              jmeno + "?|1234567|7654321|\r\n" + Do1250("Žaneta Křížová|50|0|1\r\n"));
    EXPECT_EQ(Ceka(), 0);
}

TEST_F(Ulozeni, DenikZacinaNaNovemRadku) {
    for (const auto& [konec, pred] : std::initializer_list<std::array<std::string, 2>>{
             {"", ""}, {"x\r\n", ""}, {"x\n", ""}, {"x\r", "\n"}, {"x", "\r\n"}}) {
        Pis("Vysledky.dat", konec);
        EXPECT_EQ(Uloz(relace, Novy("A")).Text, "");
        EXPECT_EQ(Cti("Vysledky.dat"), konec + pred + RadkyDeniku(Novy("A")));
    }
}

/// A program of before, or an editor, that writes while the disk fills up.
TEST_F(Ulozeni, PlnyDiskNechaDenikCelyAVysledekPocka) {
    Pis("Vysledky.dat", std::string(4000, 'd') + "\r\n");
    std::string zprava;
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [&] { zprava = Uloz(relace, Novy("A")).Text; }), "");
    EXPECT_EQ(zprava, "Výsledek se nepodařilo zapsat: " + Cesta("Vysledky.dat").string() +
                          " (na disku není místo).\n\nJe uložen stranou a zapíše se s příštím "
                          "výsledkem nebo při příštím spuštění programu.");
    EXPECT_EQ(Cti("Vysledky.dat"), std::string(4000, 'd') + "\r\n");
    EXPECT_EQ(Cti("01.res"), "");
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [&] { zprava = Uloz(relace, Novy("B")).Text; }), "");
    EXPECT_NE(zprava, "");  // each result is told once
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [&] { zprava = Start(); }), "");
    EXPECT_EQ(zprava, "");
    EXPECT_EQ(Ceka(), 2);
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Denik(), "A B ");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\nB|50|0|1\r\n");
    EXPECT_EQ(Ceka(), 0);
}

/// A disk that refuses one kind of work as long as a test wants.
class VadnyDisk final : public PosixDisk {
public:
    enum class Co { Nic, NovaTabulkaAPakStara, Poznamky, SlozkaVysledku };
    Co Vada = Co::Nic;

    std::unique_ptr<Soubor> NovySoubor(const fs::path& co) override {
        if (Vada == Co::NovaTabulkaAPakStara && co.extension() == ".nove") {
            rozbita_ = true;
            throw ChybaDisku(Pricina::Plno, co);
        }
        return PosixDisk::NovySoubor(co);
    }
    std::unique_ptr<Soubor> Otevri(const fs::path& co, Jak jak) override {
        if (Vada == Co::NovaTabulkaAPakStara && rozbita_ && co.extension() == ".res")
            throw ChybaDisku(Pricina::Jina, co);
        if (Vada == Co::Poznamky && jak == Jak::Pripisek && co.extension() == ".vysledek")
            throw ChybaDisku(Pricina::Plno, co);
        return PosixDisk::Otevri(co, jak);
    }
    void SlozkaNaDisk(const fs::path& slozka) override {
        if (Vada == Co::SlozkaVysledku && JeSoubor(slozka / "Vysledky.dat"))
            throw ChybaDisku(Pricina::Jina, slozka);
        PosixDisk::SlozkaNaDisk(slozka);
    }

private:
    bool rozbita_ = false;
};

/// A fault that leaves the table as it was: the same row of somebody else, later, is not ours, even
/// where the table could not be looked at again.
TEST_F(Ulozeni, CiziStejnyRadekPoChybeNeniTen) {
    VadnyDisk disk;
    UkladaniHned ukladani = Program(disk);
    disk.Vada = VadnyDisk::Co::NovaTabulkaAPakStara;
    EXPECT_NE(ukladani.Uloz(Novy("A")).Text, "");
    Pis("01.res", "A|50|0|1\r\n");
    disk.Vada = VadnyDisk::Co::Nic;
    EXPECT_EQ(ukladani.ZkusCekajici(), "");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\nA|50|0|1\r\n");
    EXPECT_EQ(Denik(), "A ");
}

/// The same of the lines of the log that were taken back.
TEST_F(Ulozeni, CiziStejneRadkyDenikuNejsouTy) {
    const std::string zacatek = std::string(3998, 'd') + "\r\n";
    Pis("Vysledky.dat", zacatek);
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [&] { EXPECT_NE(Uloz(relace, Novy("A")).Text, ""); }), "");
    ASSERT_EQ(Cti("Vysledky.dat"), zacatek);
    Pis("Vysledky.dat", zacatek + RadkyDeniku(Novy("A")));
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Denik(), "A A ");
}

/// A home that fills up between the entry and its first note; and a folder that cannot be waited
/// for once its new table is there.
TEST_F(Ulozeni, VadyKtereNicNezdrzi) {
    for (const auto vada : {VadnyDisk::Co::Poznamky, VadnyDisk::Co::SlozkaVysledku}) {
        Pis("Vysledky.dat", "");
        Pis("01.res", "");
        VadnyDisk disk;
        disk.Vada = vada;
        const auto ulozeni = Program(disk).Uloz(Novy("A"));
        EXPECT_EQ(ulozeni.Text, "");
        EXPECT_EQ(ulozeni.Misto, 1);
        EXPECT_EQ(Denik(), "A ");
        EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\n");
        EXPECT_EQ(Ceka(), 0);
    }
}

/// Whoever waits for the log keeps the queue's lock; the account's other programs put their results
/// in all the same, and nobody waits longer than for one lock.
TEST_F(Ulozeni, TriProgramyUctuZaCizimZamkem) {
    auto cizi = host.Disk().Otevri(Cesta("Vysledky.dat"), Disk::Jak::Zapis);
    ASSERT_TRUE(cizi->Zamkni());
    int program = 0;
    const std::function<void()> dalsi = [&] {
        UkladaniHned ukladani = Program(host.Disk());
        const std::string jmeno(1, static_cast<char>('A' + program++));
        const std::string zprava = ukladani.Uloz(Novy(jmeno)).Text;
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
    EXPECT_EQ(Denik(), "A B C ");
    EXPECT_EQ(Ceka(), 0);
}

/// While a result waits for its table somebody of the same name is as good: both rows are there.
TEST_F(Ulozeni, CiziStejnyRadekNeniTen) {
    std::string stara;
    while (stara.size() < 4000) stara += "Eva|50|0|1\r\n";
    Pis("01.res", stara + std::string(90, ' ') + "\r\n");
    std::string zprava;
    EXPECT_EQ(ChybaNaPlnemDisku(4096, [&] { zprava = Uloz(relace, Novy("A")).Text; }), "");
    EXPECT_NE(zprava.find("01.res"), std::string::npos) << zprava;
    EXPECT_EQ(Denik(), "A ");
    Pis("01.res", stara + "A|50|0|1\r\n");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Cti("01.res"), stara + "A|50|0|1\r\nA|50|0|1\r\n");
    EXPECT_EQ(Denik(), "A ");
}

TEST_F(Ulozeni, VysledekZnaSvujKoren) {
    fs::rename(Cesta("Vysledky.dat"), Cesta("stranou"));
    EXPECT_NE(Uloz(relace, Novy("A")).Text, "");
    const fs::path jiny = Cesta("jiny");
    fs::create_directory(jiny);
    for (const char* s : {"Vysledky.dat", "01.res"}) Pis(std::string("jiny/") + s, "");
    relace.Pamet().CestaVysledku = (jiny / "").string();
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Uloz(relace, Novy("B")).Text, "");
    EXPECT_EQ(Cti("jiny/01.res"), "B|50|0|1\r\n");
    relace.Pamet().CestaVysledku = Cesta("").string();
    fs::rename(Cesta("stranou"), Cesta("Vysledky.dat"));
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\n");
    EXPECT_EQ(Ceka(), 0);
}

TEST_F(Ulozeni, BezFrontySeZapiseAJinakSeDrziVPameti) {
    Pis("../stav", "soubor místo složky");
    EXPECT_EQ(Uloz(relace, Novy("A")).Text, "");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\n");
    fs::rename(Cesta("01.res"), Cesta("stranou"));
    fs::create_directory(Cesta("01.res"));
    const std::string zprava = Uloz(relace, Novy("B")).Text;
    EXPECT_NE(zprava.find("01.res (disk hlásí chybu)"), std::string::npos) << zprava;
    EXPECT_NE(zprava.find("výsledek se ztratí"), std::string::npos) << zprava;
    EXPECT_EQ(Denik(), "A B ");
    fs::remove(Cesta("01.res"));
    fs::rename(Cesta("stranou"), Cesta("01.res"));
    EXPECT_EQ(Uloz(relace, Novy("C")).Text, "");
    EXPECT_EQ(Denik(), "A B C ");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\nB|50|0|1\r\nC|50|0|1\r\n");
}

/// The lock of another opening of the log, as another program has it.
TEST_F(Ulozeni, CizimuZamkuSeCekaTriSekundy) {
    auto cizi = host.Disk().Otevri(Cesta("Vysledky.dat"), Disk::Jak::Zapis);
    ASSERT_TRUE(cizi->Zamkni());
    const std::uint32_t od = host.TickCount();
    const std::string zprava = Uloz(relace, Novy("A")).Text;
    EXPECT_NE(zprava.find("Vysledky.dat (zapisuje do něj jiný program)"), std::string::npos);
    EXPECT_LE(host.TickCount() - od, Ukladani::NEJDELE_NA_ZAMEK);
    EXPECT_GE(host.TickCount() - od, Ukladani::NEJDELE_NA_ZAMEK - 50);
    host.PriSpanku = [&, n = 0](std::uint32_t) mutable {
        if (++n == 10) cizi.reset();
    };
    EXPECT_EQ(Uloz(relace, Novy("B")).Text, "");
    EXPECT_EQ(Denik(), "A B ");
    EXPECT_EQ(Ceka(), 0);
}

/// What a program that was killed left of its lines is made whole; behind what others wrote
/// meanwhile the lines stand anew.
TEST_F(Ulozeni, ZabitySeDokonci) {
    const std::string zacatek = "co tu bylo", text = RadkyDeniku(Novy("A"));
    const std::string cele = "\r\n" + text, cizi = "\r\n" + RadkyDeniku(Novy("Z"));
    for (std::size_t n = 0; n <= cele.size(); ++n) {
        for (const std::string& za : {std::string(), cizi}) {
            Pis("Vysledky.dat", zacatek + cele.substr(0, n) + za);
            Pis("01.res", "A|50|0|1\r\n");
            fs::create_directories(Fronta_());
            const CekajiciVysledek v{.Koren = fs::canonical(Cesta("")).string(),
                                     .Co = Novy("A"),
                                     .DelkaDeniku = zacatek.size(),
                                     .StejnychRadku = n % 2};
            Pis("../stav/fronta/0000000001.vysledek", TextCekajiciho(v));
            ASSERT_EQ(Start(), "");
            const std::string bylo = zacatek + cele.substr(0, n) + za;
            ASSERT_EQ(Cti("Vysledky.dat"), za.empty()                         ? zacatek + cele
                                           : bylo.starts_with(zacatek + cele) ? bylo
                                                                              : bylo + text)
                << n;
            // Where one such row was there before, another one is still to come.
            ASSERT_EQ(Cti("01.res"), n % 2 == 0 ? "A|50|0|1\r\n" : "A|50|0|1\r\nA|50|0|1\r\n");
            ASSERT_EQ(Ceka(), 0);
        }
    }
}

TEST_F(Ulozeni, TabulkaSiDrziPravaAOdkaz) {
    Pis("skutecna.res", "");
    fs::permissions(Cesta("skutecna.res"), fs::perms(0664));
    fs::remove(Cesta("01.res"));
    fs::create_symlink(Cesta("skutecna.res"), Cesta("01.res"));
    Pis("skutecna.res.0123456789abcdef.nove", "zbytek po zabitém");
    const auto souboru = Pocet();
    EXPECT_EQ(Uloz(relace, Novy("A")).Text, "");
    EXPECT_TRUE(fs::is_symlink(Cesta("01.res")));
    EXPECT_EQ(Cti("skutecna.res"), "A|50|0|1\r\n");
    EXPECT_EQ(fs::status(Cesta("skutecna.res")).permissions(), fs::perms(0664));
    EXPECT_EQ(Pocet(), souboru - 1);
    // A table that went missing comes back with the rights of its folder.
    fs::permissions(Cesta(""), fs::perms(0775));
    EXPECT_EQ(Uloz(relace, Novy("A", 2)).Text, "");
    fs::remove(Cesta("02.res"));
    EXPECT_EQ(Uloz(relace, Novy("B", 2)).Text, "");
    EXPECT_EQ(fs::status(Cesta("02.res")).permissions(), fs::perms(0664));
    EXPECT_EQ(Cti("02.res"), "B|50|0|1\r\n");
}

using UlozeniDeathTest = Ulozeni;

TEST_F(UlozeniDeathTest, SlozkaASouboryJenKeCteni) {
    Pis("01.res", "Eva|10|0|1\r\n");
    Pis("Vysledky.dat", "co tu bylo\r\n");
    fs::create_directory(Cesta("../stav"));
    fs::permissions(Cesta("../stav"), fs::perms(0777));
    const auto hraj = [&] {
        // Somebody whom the permissions of files bind.
        if (geteuid() == 0 && setuid(65534) != 0) std::abort();
        std::cerr << Uloz(relace, Novy("A")).Text;
        std::exit(0);
    };
    for (const char* s : {"01.res", "Vysledky.dat"}) fs::permissions(Cesta(s), fs::perms(0444));
    fs::permissions(Cesta(""), fs::perms(0555));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "Vysledky.dat .chyb.+ opr.+vn");
    EXPECT_EQ(Cti("01.res"), "Eva|10|0|1\r\n");
    EXPECT_EQ(Cti("Vysledky.dat"), "co tu bylo\r\n");
    EXPECT_EQ(Ceka(), 1);

    // The folder alone is closed: nothing can be made beside, the files
    // themselves can be written. What waits goes first.
    for (const char* s : {"01.res", "Vysledky.dat"}) fs::permissions(Cesta(s), fs::perms(0666));
    EXPECT_EXIT(hraj(), ::testing::ExitedWithCode(0), "^$");
    EXPECT_EQ(Cti("01.res"), "A|50|0|1\r\nA|50|0|1\r\nEva|10|0|1\r\n");
    EXPECT_EQ(Denik(), "A A ");
    EXPECT_EQ(Ceka(), 0);
    fs::permissions(Cesta(""), fs::perms(0755));
}

}  // namespace
}  // namespace rysovna::testy
