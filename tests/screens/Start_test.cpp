#include "screens/Start.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "platform/Cesta.h"
#include "platform/Obrazovky.h"
#include "podpora/SouboryPomoc.h"
#include "screens/SelectForm.h"
#include "store/Ini.h"
#include "store/JmenaSouboru.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

TEST(Ini, Hodnota) {
    const std::pair<std::string_view, std::string_view> pripady[]{
        {"\xEF\xBB\xBF[rysovna1]\r\n  cd =  /a b/c  \r\n", "/a b/c"},
        {"; [RYSOVNA1]\nCD=x\n[Jina]\nCD=y\n[ Rysovna1 ]\n;CD=z\nHD=1\nCD=a=b\nCD=druhá", "a=b"},
        {"[RYSOVNA1]\nCD=\"D:\\Moje hry\"", "D:\\Moje hry"},
        {"[RYSOVNA1]\nCD=\n", "nic"},
        {"CD=1\n[RYSOVNA1]\nCDX=1\n[Jina]\nCD=1\n", "nic"},
        {"[RYSOVNA1]\nCD=/žák", "/žák"},
        {"[RYSOVNA1]\nCD=/\x9E\xE1k", "/žák"},
    };
    for (const auto& [obsah, hodnota] : pripady) {
        EXPECT_EQ(HodnotaIni(obsah, "RYSOVNA1", "CD", "nic"), hodnota) << obsah;
    }
}

using Zpravy = std::vector<HeadlessHost::Zprava>;
const std::string CHYBI_INI = "Nelze nalézt soubor RYSOVNA.INI. Nainstalujte aplikaci znovu.",
                  CHYBI_DATA = "Nelze nalézt soubory se zdroji dat. Nainstalujte aplikaci znovu.";

class Start : public Soubory {
protected:
    std::string Nacti() { return NactiKonfiguraci(relace.Pamet()); }
    const std::uint32_t start = host.TickCount();
};

TEST_F(Start, Cesty) {
    const std::string koren = host.SlozkaSystemu;
    const std::array<std::string, 4> pripady[]{
        {"CD=assets", "HD=data", koren + "\\assets\\", koren + "\\data\\"},
        {"CD=X:\\Hra", "HD=DATA/", "X:\\Hra\\", koren + "\\DATA\\"},
        {"CD=\\Hra\\", "HD=" + koren + "/data", "\\Hra\\", koren + "/data\\"},
    };
    for (const auto& [cd, hd, cestaCD, cestaHD] : pripady) {
        for (const std::string konec : {"", "/", "\\"}) {
            host.SlozkaSystemu = koren + konec + std::string(3, '\0');
            Ini("", cd, hd);
            host.SeminkoHry = 77;
            EXPECT_EQ(Nacti(), "") << hd;
            EXPECT_EQ(misc.AdresarSystemu, koren + "\\");
            EXPECT_EQ(misc.DiskSystemu, koren.substr(0, 3));
            EXPECT_EQ(misc.CestaCD, cestaCD);
            EXPECT_EQ(misc.CestaHD, cestaHD);
        }
    }
    EXPECT_EQ(host.Zpravy, Zpravy{});
    Nahoda stejny;
    stejny.Zasej(77);
    EXPECT_EQ(misc.Generator.Rnd(), stejny.Rnd());
}

TEST_F(Start, ChybejiciSouborKonciPredPrepnutimObrazovky) {
    const std::pair<std::string, std::string> inie[]{
        {"CD=assets", ""}, {"", "HD=data"}, {"CD=Chyba", "HD=data"}, {"CD=assets", "HD=Chyba\\"}};
    for (const auto& [cd, hd] : inie) {
        Ini("", cd, hd);
        EXPECT_EQ(Nacti(), CHYBI_INI) << cd << hd;
    }
    Ini();
    const std::vector soubory(fs::directory_iterator(relace.DataDir()), {});
    EXPECT_EQ(soubory.size(), 43U);
    for (const auto& soubor : soubory) {
        Schovej(soubor.path().filename().string());
        EXPECT_EQ(Nacti(), CHYBI_DATA) << soubor;
        Vrat(soubor.path().filename().string());
    }
    fs::rename(Cesta("07.res"), Cesta("07.RES"));  // any case will do
    EXPECT_EQ(Nacti(), "");

    host.Zpravy.clear();
    fs::remove(Cesta("../Rysovna.ini"));
    relace.StartDoTitulu();
    EXPECT_EQ(host.Okna().StavKonce(), 1);
    EXPECT_EQ(host.Zpravy, (Zpravy{{CHYBI_INI, "Chyba", Styl::Stop, Odpoved::Ok}}));
    EXPECT_TRUE(host.Rezimy.empty());
}

/// Data where nobody writes, results where the pupil may.
TEST_F(Start, VysledkyMajiSvouSlozku) {
    const fs::path koren = host.SlozkaSystemu;
    for (const auto& jmeno : JmenaVysledku()) fs::remove(Cesta(jmeno));
    Ini("VYSLEDKY=vysledky");
    // The folder itself is not made.
    EXPECT_EQ(Nacti(), CHYBI_DATA);
    fs::create_directory(koren / "vysledky");
    Pis("../vysledky/07.RES", "Eva|10|0|1\r\n");
    const std::pair<std::string, fs::path> pripady[]{{"vysledky", koren / "vysledky"},
                                                     {"ucet", host.SlozkaDat()}};
    for (const auto& [klic, slozka] : pripady) {
        Ini(std::string("VYSLEDKY=") + klic);
        EXPECT_EQ(Nacti(), "") << klic;
        EXPECT_EQ(NativniCesta(misc.CestaVysledku), slozka / "");
        EXPECT_EQ(NativniCesta(misc.CestaHD), relace.DataDir() / "");
        EXPECT_EQ(std::distance(fs::directory_iterator(slozka), {}), 21) << klic;
        EXPECT_EQ(UlozVysledek({.CisloUlohy = 7, .Jmeno = "A", .Kladne = "1"}).Text, "");
    }
    EXPECT_EQ(Cti("../vysledky/07.RES"), "A|1||\r\nEva|10|0|1\r\n");
    EXPECT_EQ(Cti("../ucet/07.res"), "A|1||\r\n");
    EXPECT_FALSE(fs::exists(Cesta("07.res")));
    // A missing key, or the value of one: the data root holds both, and nothing is made.
    for (const char* klic : {"", "Chyba"}) {
        Ini(std::string("VYSLEDKY=") + klic);
        EXPECT_EQ(Nacti(), CHYBI_DATA);
        EXPECT_EQ(misc.CestaVysledku, misc.CestaHD);
    }
}

/// What could not be told when it happened is told at the next start, once.
TEST_F(Start, CekajiciVysledkySeZapisiPriStartu) {
    EXPECT_EQ(Nacti(), "");
    Schovej("01.res", true);
    EXPECT_NE(UlozVysledek({.CisloUlohy = 1, .Jmeno = "A"}).Text, "");
    Vrat("01.res");
    relace.StartDoTitulu();
    EXPECT_EQ(Cti("01.res"), "A|||\r\n");
    EXPECT_EQ(host.Zpravy, Zpravy{});
    // One of a program that was killed: nobody heard of it yet.
    const CekajiciVysledek v{.Koren = fs::canonical(relace.DataDir()).string(),
                             .Co = {.CisloUlohy = 1, .Jmeno = "B"}};
    Pis("../stav/fronta/0000000009.vysledek", TextCekajiciho(v));
    const auto cizi = CiziZamek();
    for (int i = 0; i < 2; ++i) {
        host.Okna().UnloadVse();
        relace.StartDoTitulu();
    }
    ASSERT_EQ(host.Zpravy.size(), 1U);
    EXPECT_EQ(host.Zpravy[0].Titul, "Upozornění");
    EXPECT_NE(host.Zpravy[0].Text.find("Vysledky.dat"), std::string::npos);
}

TEST_F(Start, Obrazovka) {
    host.Rezim = {1600, 1200, 32};
    host.Proved(PrepniObrazovku(relace.Pamet()));
    host.Proved(ObnovObrazovku(relace.Pamet()));
    EXPECT_EQ(host.Rezimy, (std::vector<RezimObrazovky>{{640, 480, 16}, {1600, 1200, 32}}));
    EXPECT_EQ(host.Zpravy, Zpravy{});
    host.VysledekRezimu = 1;
    host.Proved(PrepniObrazovku(relace.Pamet()));
    host.Proved(ObnovObrazovku(relace.Pamet()));
    EXPECT_EQ(host.Zpravy,
              (Zpravy{{"Grafická karta nepodporuje okamžité přepnutí rozlišení obrazovky. Aplikace "
                       "proto nepoběží přes celou obrazovku.",
                       "Upozornění", Styl::Ok, Odpoved::Ok},
                      {"Nastala chyba při obnovení původního nastavení obrazovky. Změňte nastavení "
                       "manuálně.",
                       "Systémová chyba", Styl::Ok, Odpoved::Ok}}));
}

TEST_F(Start, SmazTabulkyJenPolovinuABezPocitadel) {
    for (int i = 1; i <= 100; ++i) {
        misc.Trojice_tab[i].X3 = misc.Priklady[i].Kroky[8].Hotovo = misc.ChybneKroky[i].Body = ANO;
        misc.ZadanePrvky[std::min(i, 20)].Faze = 3;
    }
    misc.PocetPrikladu = misc.PocetUtvaru = misc.PocetTrojic = misc.PocetChybnychKroku = 60;
    misc.SmazTabulky();
    for (int i = 1; i <= 100; ++i) {
        const int zbylo = i <= 50 ? 0 : ANO;
        EXPECT_EQ(misc.Priklady[i].Kroky[8].Hotovo, zbylo) << i;
        EXPECT_EQ(misc.ChybneKroky[i].Body, zbylo) << i;
        EXPECT_EQ(misc.Trojice_tab[i].X3, zbylo) << i;
        EXPECT_EQ(misc.Utvary[i].Popis4, i <= 50 ? " 0" : "") << i;
        EXPECT_EQ(misc.ZadanePrvky[std::min(i, 20)], ZadanyPrvek{});
    }
    EXPECT_EQ(misc.PocetPrikladu + misc.PocetUtvaru + misc.PocetTrojic + misc.PocetChybnychKroku,
              240);
}

/// ms from the start to a press on the title; negative: to closing of the window.
class Titul : public Start, public ::testing::WithParamInterface<int> {};

TEST_P(Titul, TrvaDesetSekundNeboDoZasahu) {
    const bool zavreni = GetParam() < 0;
    const auto kdy = static_cast<std::uint32_t>(std::abs(GetParam()));
    host.PridejOdpoved(Odpoved::Ano);
    host.Naplanuj(start + kdy,
                  [&] { zavreni ? host.Okna().ZadostOZavreni() : relace.StiskniMisto(10, 10); });
    relace.StartDoTitulu();
    while (relace.JmenoVpredu() == "IntroForm" && !host.Okna().JeKonec()) relace.Cekej(1);
    // The timer of the title runs from 200 ms and fires a second later.
    const std::uint32_t trvani = host.TickCount() - start;
    EXPECT_LE(trvani, std::clamp(kdy, zavreni ? 0U : 1200U, 10100U) + (zavreni ? 120 : 40));
    EXPECT_EQ(host.Okna().JeKonec(), zavreni);
    if (zavreni) return;
    EXPECT_GE(trvani, std::clamp(kdy, 1200U, 10100U));
    EXPECT_EQ(misc.AktivniForm.lock().get(), &Menu(relace.Pamet()));
    EXPECT_EQ(relace.NoveZvuky().size(), kdy < 10000 ? 1U : 0U);
    relace.Cekej(3000);  // the timer is gone with the title: the menu stays in front
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
}

// Before the timer runs, before it fires, during its wait, not at all.
INSTANTIATE_TEST_SUITE_P(Kdy, Titul, ::testing::Values(150, 900, 4000, 30000, -150, -700, -3000));

TEST_F(Start, CernePozadiVraciAktivniObrazovkuDopredu) {
    relace.Start();
    relace.Stiskni("LI", 1);
    relace.Stiskni("RI", 2);
    const auto pozadi = host.Okna().Najdi("PozadiForm");
    // Presses beside the window while the background still waits.
    for (const std::uint32_t za : {10U, 20U, 50U}) {
        host.NaplanujZa(za, [&] { host.Okna().Show(*pozadi); });
    }
    const std::uint32_t od = host.TickCount();
    host.Okna().Show(*pozadi);
    host.Dobehni();
    EXPECT_EQ(host.TickCount() - od, 100U);
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
}

}  // namespace
}  // namespace rysovna::testy
