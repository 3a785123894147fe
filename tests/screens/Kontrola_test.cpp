#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

#include "platform/Cesta.h"
#include "platform/Host.h"
#include "podpora/SouboryPomoc.h"
#include "podpora/UkladaniHned.h"
#include "podpora/VzorkyVysledku.h"
#include "screens/KontrolaPocitace.h"
#include "store/Fronta.h"
#include "store/Nastaveni.h"
#include "store/TextPokusu.h"
#include "store/Ukladani.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

class KontrolaHodiny : public Soubory {
protected:
    KontrolovanyStroj Stroj_() {
        return {.SlozkaNastaveni = host.SlozkaSystemu,
                .SlozkaStavu = host.SlozkaStavu(),
                .SlozkaDat = host.SlozkaDat(),
                .disk = host.Disk(),
                .Obrazovka = [this] { return host.OverObrazovku(); },
                .Zvuk = [this] { return host.OverZvuk(); }};
    }
    /// What is not in order, the folder cut out.
    std::string Vady(const std::vector<Nalez>& nalezy) const {
        std::string text;
        for (const Nalez& n : nalezy) {
            if (n.Stav == Nalez::Jak::VPoradku) continue;
            text += (n.Stav == Nalez::Jak::Chyba ? "! " : "? ") + n.Co + ": " + n.Zjisteno + "\n";
        }
        for (const std::string& co :
             {Cesta("").string(), fs::canonical(Cesta("")).string() + "/"}) {
            for (auto i = text.find(co); i != std::string::npos; i = text.find(co))
                text.erase(i, co.size());
        }
        return text;
    }
    std::string VadyVysledku() {
        std::vector<Nalez> nalezy;
        ZkontrolujVysledky(Stroj_(),
                           CtiNastaveni(host.Disk(), host.SlozkaSystemu, host.SlozkaDat()), nalezy);
        return Vady(nalezy);
    }
};

TEST_F(KontrolaHodiny, VseVPoradkuAKazdaVadaSvymJmenem) {
    const std::vector<Nalez> dobre = ZkontrolujPocitac(Stroj_());
    EXPECT_EQ(Vady(dobre), "");
    EXPECT_EQ(dobre.size(), 12U);
    std::ostringstream vypis;
    EXPECT_EQ(VypisKontrolu(vypis, dobre), 0);
    EXPECT_EQ(std::ranges::count(vypis.str(), '\n'), 13);

    // Another folder of assets, the same files but for a few.
    const fs::path spravne = NativniCesta(
                       CtiNastaveni(host.Disk(), host.SlozkaSystemu, host.SlozkaDat()).CD),
                   nase = Cesta("../assets");
    for (const auto& soubor : fs::recursive_directory_iterator(spravne)) {
        const fs::path sem = nase / fs::relative(soubor, spravne);
        fs::create_directories(sem.parent_path());
        if (!soubor.is_directory()) fs::create_symlink(soubor, sem);
    }
    // Each file, what is put in its place (nothing if it is missing), what is found.
    constexpr struct {
        std::string_view Soubor;
        const char* Obsah;
        std::string_view Nalez;
    } VADY[] = {
        {"assets/Bitmap/Help/17.tvary", nullptr, "Help/17.bmp: chybí tvary"},
        {"assets/Bitmap/Help/18.bmp", "BM", "Help/18.bmp: Vadný obrázek: je useknutý"},
        {"assets/Bitmap/Help/19.tvary", "RTVR", "Help/19.bmp: Vadný obrázek: poškozené tvary"},
        {"assets/Bitmap/Tab/bckg.bmp", nullptr, "Tab/bckg.bmp: chybí"},
        {"assets/Sound/enter.wav", nullptr, "Sound/enter.wav: chybí"},
        {"assets/Sound/click.wav", "RIFF", "Sound/click.wav: není zvuk"},
        {"assets/Fonts/RysovnaZnaky.ttf", "", "RysovnaZnaky.ttf: není písmo s českými znaky"},
        {"data/03.dat", "\r\n", "! Data 03.dat: V souboru úlohy není žádný příklad"},
        {"data/05.dat", nullptr, "! Data 05.dat: Soubor nelze přečíst"},
        {"data/Znamky.dat", "", "! Data Znamky.dat: V souboru není žádná známka"},
        {"data/Errors.dat", "xxx0xxx0xxx2\r\n", "! Data Errors.dat: Příliš krátký řádek"},
    };
    for (const auto& v : VADY) {
        const std::string soubor = "../" + std::string(v.Soubor);
        fs::remove(Cesta(soubor));
        if (v.Obsah != nullptr) Pis(soubor, v.Obsah);
    }
    Ini();
    host.NeniObrazovka = "Okno nejde otevřít";
    host.NeniZvuk = "Není";
    const std::vector<Nalez> vadne = ZkontrolujPocitac(Stroj_());
    const std::string vady = Vady(vadne);
    for (const auto& v : VADY) EXPECT_NE(vady.find(v.Nalez), vady.npos) << v.Nalez << vady;
    EXPECT_NE(vady.find("! Obrazovka: Okno nejde otevřít (headless)"), vady.npos) << vady;
    EXPECT_NE(vady.find("? Zvukové zařízení: Není (headless)"), vady.npos) << vady;
    EXPECT_EQ(std::ranges::count(vady, '\n'), 13) << vady;
    EXPECT_EQ(VypisKontrolu(vypis, vadne), 1);
}

TEST_F(KontrolaHodiny, Vysledky) {
    EXPECT_EQ(VadyVysledku(), "");
    fs::remove(Cesta("05.res"));
    Schovej("06.res", true);
    EXPECT_EQ(VadyVysledku(),
              "! Soubor výsledků: 05.res (neexistuje)\n! Soubor výsledků: 06.res (neexistuje)\n");
    Vrat("06.res");
    Pis("05.res", "");
    {
        const auto cizi = CiziZamek();
        EXPECT_EQ(VadyVysledku(), "! Zámek výsledků: Vysledky.dat: drží jej jiný program\n");
        const std::uint32_t od = host.TickCount();
        EXPECT_NE(UlozVysledek({.CisloUlohy = 1}).Text, "");
        EXPECT_GT(host.TickCount(), od);
    }
    const std::string fronta = Fronta::Slozka(host.SlozkaStavu()).string();
    const std::string stranou = "? Výsledky uložené stranou: " + fronta;
    EXPECT_TRUE(VadyVysledku().starts_with(stranou + ": čeká jich 1, volno ")) << VadyVysledku();
    {
        const auto cizi = CiziZamek(Fronta::Zamek(host.SlozkaStavu()));
        EXPECT_EQ(VadyVysledku(), stranou + "/zamek: drží jej jiný program\n");
    }
    fs::remove_all(fronta);
    fs::create_directory(Cesta("Pokusy"));
    const std::string pokus = TextPokusu(SerieZaka());
    Pis("Pokusy/dobry.pokus", pokus);
    Pis("Pokusy/rozepsany.pokus.novy", pokus.substr(0, 9));
    EXPECT_EQ(VadyVysledku(), "");
    Pis("Pokusy/cizi.txt", "cizí");
    ASSERT_EQ(::mkfifo(Cesta("Pokusy/roura.pokus").c_str(), 0600), 0);  // nobody waits for it
    Pis("Pokusy/useknuty.pokus", pokus.substr(0, pokus.size() - 4));
    EXPECT_EQ(VadyVysledku(),
              "? Záznam pokusu: Pokusy/cizi.txt: Soubor není záznam pokusu.\n"
              "? Záznam pokusu: Pokusy/roura.pokus: disk hlásí chybu\n"
              "? Záznam pokusu: Pokusy/useknuty.pokus: Záznam pokusu není celý: končí řádkem 15.\n"
              "? Záznamy pokusů: Pokusy: souborů: 5, z toho vadných 3\n");
    EXPECT_EQ(Cti("Pokusy/useknuty.pokus") + " ne\n", pokus);
    fs::remove_all(Cesta("Pokusy"));
    // Nothing is made, not even what the game would make.
    Ini("VYSLEDKY=ucet");
    EXPECT_EQ(VadyVysledku(), "");
    EXPECT_FALSE(fs::exists(host.SlozkaDat()));
    EXPECT_FALSE(fs::exists(fronta));
    Ini("VYSLEDKY=neni");
    // Of the folder once, not of each file in it.
    const std::string neni = VadyVysledku();
    EXPECT_TRUE(neni.starts_with("! Složka výsledků: ")) << neni;
    EXPECT_NE(neni.find("/neni (neexistuje)\n"), neni.npos) << neni;
    EXPECT_EQ(neni.find("! Soubor výsledků"), neni.npos) << neni;
}

}  // namespace
}  // namespace rysovna::testy
