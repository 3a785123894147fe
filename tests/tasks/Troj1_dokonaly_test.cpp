// The perfect pupil plays the triangles by SSS, SUS and USU: ten points of ten each time.

#include <gtest/gtest.h>

#include "podpora/Stul.h"
#include "podpora/Zak.h"
#include "rules/DialogTrojuhelniku.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/Desky.h"
#include "store/Soubory.h"

namespace rysovna::testy {
namespace {

const DialogTrojuhelniku& Dialogem(Relace& hra) {
    return dynamic_cast<const DialogTrojuhelniku&>(
        dynamic_cast<const DeskaForm&>(*hra.Vpredu()).Dialogem());
}

class DokonaleTrojuhelniky : public testing::TestWithParam<int> {};

TEST_P(DokonaleTrojuhelniky, KazdyRadekSouboruDaDesetBodu) {
    const int uloha = GetParam();
    Relace hra;
    hra.Start();
    hra.SpustUlohu(uloha, "Žák", 5);
    Pokryti pokryti;
    for (std::uint32_t seminko = 1; !pokryti.Cele(hra.Pamet()); ++seminko) {
        ASSERT_LT(seminko, 100000U) << "some line of the file never comes";
        const auto& dialog = Dialogem(hra);
        const int radek = dialog.CisloPrikladu();
        RukaNaDesce ruka(hra);
        DokonalyTrojuhelnik(ruka, seminko, seminko % 3 == 0).Sestroj();
        ruka.Zkontroluj();
        ASSERT_TRUE(dialog.Hotova()) << "seed " << seminko << ", kind " << dialog.Hrany().Druh;
        ASSERT_EQ(hra.Pamet().SoucetZapornychBodu, 0)
            << "seed " << seminko << ", kind " << dialog.Hrany().Druh << ": "
            << hra.Pamet().ChybneKroky[1].Text;
        pokryti.Odehran(radek);
        hra.Stiskni("picPokracuj");
        if (hra.JmenoVpredu() == "TabulkaForm") {
            hra.Stiskni("picKonec");
            hra.Stiskni("picPokracuj");
        }
        hra.Cekej(200);
        hra.Cekej(1400);  // the panel comes out again
    }
    EXPECT_EQ(hra.Pamet().ZaporneBody, 0);
    const std::string zaznam = "\x8E\xE1k|50|0|1\r\n";
    const std::string tabulka = hra.CtiSoubor("0" + std::to_string(uloha) + ".res");
    for (std::size_t od = 0; od < tabulka.size(); od += zaznam.size()) {
        ASSERT_EQ(tabulka.substr(od, zaznam.size()), zaznam);
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, DokonaleTrojuhelniky, testing::Values(1, 2, 3));

}  // namespace
}  // namespace rysovna::testy
