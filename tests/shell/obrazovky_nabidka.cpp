#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "platform/Obrazovky.h"
#include "podpora/Relace.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"
#include "shell/Ulohy.h"

namespace rysovna::testy {
namespace {

using Zvuky = std::vector<std::string>;

/// The menu with a memory of the normal pictures, so that it can say what is lit.
class Nabidka : public ::testing::Test {
protected:
    Nabidka() {
        relace.Start();
        for (Image& li : Menu().LI) normalni[&li] = li.Picture;
        konec = Menu().picKonec.Picture;
        relace.NoveZvuky();
    }

    void ZvolRodinu(int i) {
        relace.Stiskni("LI", i);
        for (Image& ri : Menu().RI) normalni[&ri] = ri.Picture;
        relace.NoveZvuky();
    }

    /// "L1 R2 K": what is lit.
    std::string Sviti() {
        std::string text;
        const auto pridej = [&](const Image& o, char pismeno) {
            if (o.Visible && !(o.Picture == normalni[&o])) {
                text += std::string(text.empty() ? "" : " ") + pismeno + std::to_string(o.Index);
            }
        };
        for (const Image& li : Menu().LI) pridej(li, 'L');
        for (const Image& ri : Menu().RI) pridej(ri, 'R');
        if (!(Menu().picKonec.Picture == konec)) text += text.empty() ? "K" : " K";
        return text;
    }

    Relace relace;
    std::map<const Image*, Obrazek> normalni;
    Obrazek konec;
};

TEST_F(Nabidka, NajezdRozsveciNesoumerne) {
    ZvolRodinu(1);
    struct Krok {
        std::string kam;
        int index;
        std::string sviti;
        bool zvuk;
    };
    const std::vector<Krok> kroky{
        {"LI", 3, "L1 L3", true},         {"LI", 3, "L1 L3", false},
        {"LI", 2, "L1 L2", true},         {"RI", 1, "L1 R1", true},
        {"LI", 2, "L1 L2 R1", true},  // a task stays lit when the pointer leaves it
        {"", 0, "L1 R1", false},      // even for the ground
        {"", 0, "L1 R1", false},          {"RI", 2, "L1 R2", true},
        {"picKonec", 0, "L1 R2 K", true}, {"picKonec", 0, "L1 R2 K", false},
        {"Image1", 0, "L1 R2 K", true},  // the banner changes nothing
        {"RI", 3, "L1 R3", true},         {"picKonec", 0, "L1 R3 K", true},
        {"", 0, "L1 R3", false},          {"LI", 1, "L1 R3", true},
    };
    for (std::size_t k = 0; k < kroky.size(); ++k) {
        SCOPED_TRACE("krok " + std::to_string(k));
        if (kroky[k].kam.empty()) {
            relace.NajedNaMisto(320, 470);
        } else {
            relace.Najed(kroky[k].kam, kroky[k].index);
        }
        EXPECT_EQ(Sviti(), kroky[k].sviti);
        EXPECT_EQ(relace.NoveZvuky(), kroky[k].zvuk ? Zvuky{"enter.wav"} : Zvuky{});
    }
}

TEST_F(Nabidka, NezvolenaRodinaNeukazujeUlohy) {
    EXPECT_EQ(Sviti(), "");
    for (const Image& ri : Menu().RI) EXPECT_FALSE(ri.Visible);
    relace.NajedNaMisto(400, 160);
    relace.StiskniMisto(400, 160);
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
    EXPECT_EQ(relace.NoveZvuky(), Zvuky{});
}

TEST_F(Nabidka, KazdaUlohaJdeZvolitASloupceJsouSlozene) {
    int cislo = 0;
    for (std::size_t i = 0; i < RODINY.size(); ++i) {
        SCOPED_TRACE("rodina " + std::to_string(i + 1));
        ZvolRodinu(static_cast<int>(i) + 1);
        EXPECT_EQ(Sviti(), "L" + std::to_string(i + 1));
        const auto& ri = Menu().RI;
        int spodek = 141;
        for (const Image& uloha : ri) {
            EXPECT_EQ(uloha.Visible, uloha.Index <= RODINY[i].Pocet);
            if (!uloha.Visible) continue;
            EXPECT_EQ(uloha.Top, spodek - 1);
            EXPECT_EQ(uloha.Height, uloha.Picture.Height());
            spodek = uloha.Top + uloha.Height;
        }
        EXPECT_EQ(spodek, 140 + 298);
        for (int j = 1; j <= RODINY[i].Pocet; ++j) {
            relace.Stiskni("RI", j);
            EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
            EXPECT_EQ(AktivniForm.lock().get(), relace.Vpredu());
            EXPECT_FALSE(Menu().Viditelny());
            EXPECT_EQ(CisloUlohy, ++cislo);
            EXPECT_EQ(NazevHry, RODINY[i].NazevHry);
            EXPECT_EQ(TypUlohy, NajdiUlohu(cislo)->TypUlohy);
            relace.Stiskni("picKonec");
            EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
            EXPECT_EQ(relace.Najdi("SetupForm"), nullptr);
            EXPECT_EQ(Sviti(), "L" + std::to_string(i + 1) + " R" + std::to_string(j));
        }
    }
    EXPECT_EQ(cislo, 20);
    EXPECT_EQ(TypUlohy, "procházející bodem");
}

TEST_F(Nabidka, DruhyStiskRodinyNechaUlohyByt) {
    ZvolRodinu(2);
    relace.Najed("RI", 4);
    relace.Stiskni("LI", 2);
    EXPECT_EQ(Sviti(), "L2 R4");
    EXPECT_FALSE(Menu().RI[5].Visible);
    relace.Stiskni("LI", 4);
    relace.Stiskni("LI", 2);
    for (Image& ri : Menu().RI) EXPECT_EQ(ri.Tag, "0");
}

TEST_F(Nabidka, PodekovaniSeVraciDoNabidky) {
    ZvolRodinu(5);
    relace.Stiskni("Image1");
    EXPECT_EQ(relace.JmenoVpredu(), "HelpForm");
    EXPECT_FALSE(Menu().Viditelny());
    EXPECT_FALSE(relace.Vpredu()->Picture.Prazdny());
    relace.StiskniMisto(5, 5);
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
    EXPECT_EQ(relace.Najdi("HelpForm"), nullptr);
    EXPECT_EQ(AktivniForm.lock().get(), &Menu());
    EXPECT_EQ(Menu().LI[4].Tag, "1");
}

TEST_F(Nabidka, KonecSePta) {
    const HeadlessHost::Zprava otazka{"Opravdu chcete ukončit tento program?", "Ukončení aplikace",
                                      Styl::OtazkaAnoNe, Odpoved::Ne};
    relace.Stiskni("picKonec");
    ASSERT_EQ(relace.Host().Zpravy, std::vector{otazka});
    EXPECT_FALSE(relace.Host().Okna().JeKonec());
    EXPECT_EQ(relace.Host().Rezimy.size(), 1U);

    relace.Host().PridejOdpoved(Odpoved::Ano);
    relace.Stiskni("picKonec");
    EXPECT_TRUE(relace.Host().Okna().JeKonec());
    ASSERT_EQ(relace.Host().Rezimy.size(), 2U);
    EXPECT_EQ(relace.Host().Rezimy.back(), (RezimObrazovky{1024, 768, 32}));
}

}  // namespace
}  // namespace rysovna::testy
