#include <gtest/gtest.h>
#include <limits>

#include "base/Cisla.h"
#include "platform/Obrazovky.h"
#include "platform/headless/HeadlessHost.h"
#include "shell/Ini.h"
#include "shell/Misc.h"
#include "shell/soubory_pomoc.h"

namespace rysovna::testy {
namespace {

TEST(Ini, Hodnota) {
    struct Pripad {
        std::string_view obsah, hodnota;
    };
    const Pripad pripady[]{
        {"[RYSOVNA1]\r\nCD=C:\\Hra\r\n", "C:\\Hra"},
        {"\xEF\xBB\xBF[rysovna1]\n  cd =  /a b/c  \n", "/a b/c"},
        {"; [RYSOVNA1]\nCD=x\n[Jina]\nCD=y\n[ Rysovna1 ]\n;CD=z\nHD=1\nCD=a=b\nCD=druhá", "a=b"},
        {"[RYSOVNA1]\nCD=\"D:\\Moje hry\"", "D:\\Moje hry"},
        {"[RYSOVNA1]\nCD=\n", "nic"},
        {"[RYSOVNA1]\nCDX=1\n", "nic"},
        {"[RYSOVNA1]\n[Jina]\nCD=1\n", "nic"},
        {"CD=1", "nic"},
        {"", "nic"},
        {"[RYSOVNA1]\nCD=/žák", "/žák"},
        {"[RYSOVNA1]\nCD=/\x9E\xE1k", "/žák"},
    };
    for (const Pripad& p : pripady) {
        EXPECT_EQ(HodnotaIni(p.obsah, "RYSOVNA1", "CD", "nic"), p.hodnota) << p.obsah;
    }
}

/// A whole data root with nothing in its files, and a configuration to write.
class Konfigurace : public ::testing::Test {
protected:
    Konfigurace() {
        VychoziRelace();
        std::filesystem::create_directory(slozka / "data");
        for (int i = 1; i <= 20; ++i) {
            slozka.Pis("data/" + DveCislice(i) + ".dat", "");
            slozka.Pis("data/" + DveCislice(i) + ".res", "");
        }
        for (const char* soubor : {"data/Vysledky.dat", "data/Errors.dat"}) slozka.Pis(soubor, "");
        slozka.Pis("data/Znamky.dat", "90|100|1\r\n");
        host.SlozkaSystemu = Koren();
        Ini("CD=assets", "HD=data");
    }

    [[nodiscard]] std::string Koren() const {
        std::string koren = (slozka / "").string();
        koren.pop_back();
        return koren;
    }
    void Ini(const std::string& cd, const std::string& hd) {
        slozka.Pis("Rysovna.ini", "[RYSOVNA1]\r\n" + cd + "\r\n" + hd + "\r\n");
    }

    Slozka slozka;
    HeadlessHost host;
    HostNaDobu naDobu{host};
};

const HeadlessHost::Zprava CHYBI_INI{
    "Nelze nalézt soubor RYSOVNA.INI. Nainstalujte aplikaci znovu.", "Chyba", Styl::Stop,
    Odpoved::Ok};
const HeadlessHost::Zprava CHYBI_DATA{
    "Nelze nalézt soubory se zdroji dat. Nainstalujte aplikaci znovu.", "Chyba", Styl::Stop,
    Odpoved::Ok};
using Zpravy = std::vector<HeadlessHost::Zprava>;

TEST_F(Konfigurace, Cesty) {
    const std::string koren = Koren();
    struct Pripad {
        std::string cd, hd, cestaCD, cestaHD;
    };
    const Pripad pripady[]{
        {"CD=assets", "HD=data", koren + "\\assets\\", koren + "\\data\\"},
        {"CD=assets\\", "HD=data/", koren + "\\assets\\", koren + "\\data\\"},
        {"CD=X:\\Hra", "HD=DATA", "X:\\Hra\\", koren + "\\DATA\\"},
        {"CD=\\Hra\\", "HD=" + koren + "/data", "\\Hra\\", koren + "/data\\"},
        {"CD=/hra", "HD=" + koren + "\\data\\", "/hra\\", koren + "\\data\\"},
    };
    for (const Pripad& p : pripady) {
        for (const std::string konec : {"", "/", "\\"}) {
            host.SlozkaSystemu = koren + konec;
            host.SlozkaSystemu += std::string(3, '\0');
            Ini(p.cd, p.hd);
            EXPECT_TRUE(NactiKonfiguraci()) << p.hd;
            EXPECT_EQ(AdresarSystemu, koren + "\\");
            EXPECT_EQ(DiskSystemu, koren.substr(0, 3));
            EXPECT_EQ(CestaCD, p.cestaCD);
            EXPECT_EQ(CestaHD, p.cestaHD);
        }
    }
    EXPECT_EQ(host.Zpravy, Zpravy{});
    EXPECT_EQ(ZnamkyTab[1], (RadekZnamek{90, 100, 1}));
}

TEST_F(Konfigurace, ChybiKlic) {
    const std::pair<std::string, std::string> inie[]{
        {"CD=assets", ""}, {"", "HD=data"}, {"CD=Chyba", "HD=data"}, {"CD=assets", "HD=Chyba\\"}};
    for (const auto& [cd, hd] : inie) {
        host.Zpravy.clear();
        Ini(cd, hd);
        EXPECT_FALSE(NactiKonfiguraci());
        EXPECT_EQ(host.Zpravy, Zpravy{CHYBI_INI}) << cd << hd;
    }
    host.Zpravy.clear();
    std::filesystem::remove(slozka / "Rysovna.ini");
    EXPECT_FALSE(NactiKonfiguraci());
    EXPECT_EQ(host.Zpravy, Zpravy{CHYBI_INI});
    EXPECT_TRUE(host.Rezimy.empty());
}

TEST_F(Konfigurace, ChybiKterykoliSoubor) {
    std::vector<std::string> soubory{"Vysledky.dat", "Znamky.dat", "Errors.dat"};
    for (int i = 1; i <= 20; ++i) {
        soubory.push_back(DveCislice(i) + ".dat");
        soubory.push_back(DveCislice(i) + ".res");
    }
    for (const std::string& soubor : soubory) {
        host.Zpravy.clear();
        std::filesystem::rename(slozka / ("data/" + soubor), slozka / "stranou");
        EXPECT_FALSE(NactiKonfiguraci()) << soubor;
        EXPECT_EQ(host.Zpravy, Zpravy{CHYBI_DATA}) << soubor;
        EXPECT_FALSE(std::filesystem::exists(slozka / ("data/" + soubor)));
        std::filesystem::rename(slozka / "stranou", slozka / ("data/" + soubor));
    }
    std::filesystem::rename(slozka / "data/07.res", slozka / "data/07.RES");  // any case will do
    EXPECT_TRUE(NactiKonfiguraci());
}

TEST_F(Konfigurace, GeneratorSejeStroj) {
    host.SeminkoHry = 77;
    ASSERT_TRUE(NactiKonfiguraci());
    Nahoda stejny;
    stejny.Zasej(77);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Generator.Rnd(), stejny.Rnd());
}

TEST_F(Konfigurace, Obrazovka) {
    host.Rezim = {1600, 1200, 32};
    PrepniObrazovku();
    EXPECT_EQ(host.Rezimy, (std::vector<RezimObrazovky>{{640, 480, 16}}));
    EXPECT_EQ(PuvodniSirka, 1600);
    EXPECT_EQ(PuvodniVyska, 1200);
    EXPECT_EQ(PuvodniBarvy, 32);
    ASSERT_TRUE(host.Okna().Vpredu());
    EXPECT_EQ(host.Okna().Vpredu()->Jmeno(), "PozadiForm");
    ObnovObrazovku();
    EXPECT_EQ(host.Rezimy.back(), (RezimObrazovky{1600, 1200, 32}));
    EXPECT_EQ(host.Zpravy, Zpravy{});
    host.Okna().UnloadVse();

    host.VysledekRezimu = 1;
    PrepniObrazovku();
    EXPECT_TRUE(host.Okna().Najdi("PozadiForm"));
    ObnovObrazovku();
    EXPECT_EQ(host.Zpravy,
              (Zpravy{{"Grafická karta nepodporuje okamžité přepnutí rozlišení obrazovky. Aplikace "
                       "proto nepoběží přes celou obrazovku.",
                       "Upozornění", Styl::Ok, Odpoved::Ok},
                      {"Nastala chyba při obnovení původního nastavení obrazovky. Změňte nastavení "
                       "manuálně.",
                       "Systémová chyba", Styl::Ok, Odpoved::Ok}}));
    host.Okna().UnloadVse();
}

TEST_F(Konfigurace, CekaniPoustiUdalosti) {
    host.Spi(std::numeric_limits<std::uint32_t>::max() - 50);  // the tick count wraps meanwhile
    int udalosti = 0;
    for (const std::uint32_t za : {10U, 60U, 99U}) host.NaplanujZa(za, [&] { ++udalosti; });
    const std::uint32_t zacatek = host.TickCount();
    Cekej(100);
    EXPECT_EQ(host.TickCount() - zacatek, 100U);
    EXPECT_EQ(udalosti, 3);

    host.NaplanujZa(30, [&] { host.Okna().Konec(); });
    const std::uint32_t znovu = host.TickCount();
    Cekej(10000);
    EXPECT_LT(host.TickCount() - znovu, 100U);
}

}  // namespace
}  // namespace rysovna::testy
