#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "base/Text.h"
#include "podpora/Relace.h"
#include "shell/MapaPoli.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

// The data that come with the game, as the program reads them.

namespace rysovna::testy {
namespace {

TEST(DodanaData, KazdySouborUlohyJdeNacist) {
    const Relace relace;
    ASSERT_TRUE(NactiKonfiguraci());
    for (int uloha = 1; uloha <= 20; ++uloha) {
        const std::string cislo = std::string(uloha < 10 ? "0" : "") + std::to_string(uloha);
        NactiPriklady(CestaHD + cislo + ".dat", DeskaUlohy(uloha));
        EXPECT_GE(PocetPrikladu, 1) << uloha;
        std::map<std::string, int> druhy;
        for (int i = 1; i <= PocetPrikladu; ++i) ++druhy[Priklady[i].Druh];
        if (uloha > 3) continue;
        const std::array<std::set<std::string>, 3> ocekavane{
            {{"1"}, {"2", "3", "4"}, {"5", "6", "7"}}};
        std::set<std::string> nalezene;
        for (const auto& [druh, pocet] : druhy) {
            nalezene.insert(druh);
            EXPECT_GE(pocet, 2) << "několik řádků druhu " << druh;
        }
        EXPECT_EQ(nalezene, ocekavane[static_cast<std::size_t>(uloha) - 1]);
    }
}

TEST(DodanaData, KazdyPodilBoduMaZnamku) {
    const Relace relace;
    ASSERT_TRUE(NactiKonfiguraci());
    for (int celkem = 1; celkem <= 250; ++celkem) {
        int horsi = 5;
        for (int kladne = 0; kladne <= celkem; ++kladne) {
            const std::string znamka = UrciZnamku(kladne, celkem);
            ASSERT_EQ(znamka.size(), 1U) << kladne << " z " << celkem;
            ASSERT_LE(znamka[0] - '0', horsi) << kladne << " z " << celkem;
            horsi = znamka[0] - '0';
        }
        EXPECT_EQ(UrciZnamku(celkem, celkem), "1");
        EXPECT_EQ(UrciZnamku(0, celkem), "5");
    }
}

TEST(DodanaData, VetaPraveKeKazdemuChybnemuKroku) {
    const Relace relace;
    ASSERT_TRUE(NactiKonfiguraci());
    std::set<std::string> vety;
    for (int cislo = 0; cislo <= 999; ++cislo) {
        const bool zname = (cislo >= 1 && cislo <= 3) || (cislo >= 7 && cislo <= 16) ||
                           (cislo >= 18 && cislo <= 23) || (cislo >= 27 && cislo <= 34) ||
                           (cislo >= 38 && cislo <= 43) || cislo == 45 || cislo == 300 ||
                           cislo == 301;
        PocetChybnychKroku = 0;
        PridejChybu(cislo, "", 1);
        ASSERT_EQ(PocetChybnychKroku, zname ? 1 : 0) << cislo;
        if (!zname) continue;
        const std::string& veta = ChybneKroky[1].Text;
        EXPECT_TRUE(veta.ends_with('.')) << veta;
        EXPECT_GE(PocetZnaku(veta), 15) << veta;
        EXPECT_TRUE(vety.insert(veta).second) << "dvakrát táž věta: " << veta;
    }
}

}  // namespace
}  // namespace rysovna::testy
