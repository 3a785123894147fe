#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

#include "platform/Obrazovky.h"
#include "podpora/Relace.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"

namespace rysovna::testy {
namespace {

TEST(Start, TitulTrvaDesetSekundNeboDoStisku) {
    // The title is loaded at 100 ms, its timer runs from 200 ms and fires a second later.
    struct Pripad {
        std::optional<std::uint32_t> stisk;
        std::uint32_t nejdrive, nejpozdeji;
    };
    for (const auto& [stisk, nejdrive, nejpozdeji] : std::vector<Pripad>{
             {std::nullopt, 10100, 10140},
             {150, 1200, 1230},   // before the timer runs
             {900, 1200, 1230},   // before it fires
             {4000, 4000, 4030},  // during its wait
         }) {
        SCOPED_TRACE(stisk ? std::to_string(*stisk) : "bez stisku");
        Relace relace;
        const std::uint32_t start = relace.Host().TickCount();
        if (stisk) relace.Host().Naplanuj(start + *stisk, [&] { relace.StiskniMisto(10, 10); });
        relace.StartDoTitulu();
        EXPECT_EQ(relace.JmenoVpredu(), "IntroForm");
        EXPECT_FALSE(Menu().Viditelny());
        EXPECT_EQ(AktivniForm.lock().get(), relace.Vpredu());
        while (relace.JmenoVpredu() == "IntroForm" && relace.Host().TickCount() < start + 20000) {
            relace.Cekej(1);
        }
        EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
        EXPECT_EQ(AktivniForm.lock().get(), &Menu());
        EXPECT_EQ(relace.Najdi("IntroForm"), nullptr);
        EXPECT_GE(relace.Host().TickCount() - start, nejdrive);
        EXPECT_LE(relace.Host().TickCount() - start, nejpozdeji);
        EXPECT_EQ(relace.NoveZvuky().size(), stisk ? 1U : 0U);
        // The timer is gone with the title: the menu stays in front.
        relace.Cekej(3000);
        EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
    }
}

TEST(Start, KlavesaPreskociTitul) {
    Relace relace;
    relace.StartDoTitulu();
    relace.Host().NaplanujZa(2000, [&] { relace.Klavesa("Escape"); });
    relace.Cekej(2100);
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
}

TEST(Start, ChybejiciSouborKonciPredPrepnutimObrazovky) {
    Relace relace;
    std::filesystem::remove(relace.DataDir() / "07.res");
    relace.StartDoTitulu();
    EXPECT_TRUE(relace.Host().Okna().JeKonec());
    ASSERT_EQ(relace.Host().Zpravy.size(), 1U);
    EXPECT_EQ(relace.Host().Zpravy[0].Text,
              "Nelze nalézt soubory se zdroji dat. Nainstalujte aplikaci znovu.");
    EXPECT_TRUE(relace.Host().Rezimy.empty());
    EXPECT_EQ(relace.Vpredu(), nullptr);
}

TEST(Start, ZavreniOknaSePtaNaKazdeObrazovce) {
    const auto cesty = std::vector<std::vector<std::pair<std::string, int>>>{
        {},                      // menu
        {{"Image1", 0}},         // help over the menu
        {{"LI", 1}, {"RI", 1}},  // setup
        {{"LI", 1}, {"RI", 1}, {"Image1", 0}},
    };
    for (const auto& cesta : cesty) {
        for (const Odpoved odpoved : {Odpoved::Ne, Odpoved::Ano}) {
            Relace relace;
            relace.Start();
            for (const auto& [jmeno, index] : cesta) relace.Stiskni(jmeno, index);
            SCOPED_TRACE(relace.JmenoVpredu());
            relace.Host().PridejOdpoved(odpoved);
            const std::string pred = relace.JmenoVpredu();
            relace.Host().Okna().ZadostOZavreni();
            EXPECT_EQ(relace.Host().Zpravy.size(), 1U);
            EXPECT_EQ(relace.JmenoVpredu(), pred);
            EXPECT_EQ(relace.Host().Okna().JeKonec(), odpoved == Odpoved::Ano);
            EXPECT_EQ(relace.Host().Rezimy.size(), odpoved == Odpoved::Ano ? 2U : 1U);
        }
    }
}

TEST(Start, ZavreniOknaUkonciCekaniTitulu) {
    // While the start-up waits (150), before the timer fires (700), during its wait (3000).
    for (const std::uint32_t kdy : {150U, 700U, 3000U}) {
        SCOPED_TRACE(kdy);
        Relace relace;
        const std::uint32_t start = relace.Host().TickCount();
        relace.Host().PridejOdpoved(Odpoved::Ano);
        relace.Host().Naplanuj(start + kdy, [&] { relace.Host().Okna().ZadostOZavreni(); });
        relace.StartDoTitulu();
        while (!relace.Host().Okna().JeKonec() && relace.Host().TickCount() < start + 20000) {
            relace.Cekej(1);
        }
        EXPECT_TRUE(relace.Host().Okna().JeKonec());
        EXPECT_LE(relace.Host().TickCount(), start + kdy + 120);
        EXPECT_EQ(relace.Host().Zpravy.size(), 1U);
        EXPECT_FALSE(Menu().Viditelny());
    }
}

TEST(Start, CernePozadiVraciAktivniObrazovkuDopredu) {
    Relace relace;
    relace.Start();
    relace.Stiskni("LI", 1);
    relace.Stiskni("RI", 2);
    for (int i = 0; i < 3; ++i) {
        relace.Host().Okna().Navrat();
        EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    }
    const auto pozadi = relace.Host().Okna().Najdi("PozadiForm");
    ASSERT_NE(pozadi, nullptr);
    EXPECT_TRUE(pozadi->Viditelny());
    // Presses beside the window while the background still waits.
    for (const std::uint32_t za : {10U, 20U, 50U}) {
        relace.Host().NaplanujZa(za, [&] { relace.Host().Okna().Show(*pozadi); });
    }
    const std::uint32_t od = relace.Host().TickCount();
    relace.Host().Okna().Show(*pozadi);
    EXPECT_EQ(relace.Host().TickCount() - od, 100U);
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
}

}  // namespace
}  // namespace rysovna::testy
