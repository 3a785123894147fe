// The perfect pupil plays the triangles by SSS, SUS and USU: ten points of ten each time.

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

#include "board/DeskaForm.h"
#include "board/DialogTrojuhelniku.h"
#include "podpora/Zak.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"
#include "shell/Ulohy.h"
#include "tasks/Desky.h"

namespace rysovna::testy {
namespace {

/// Seeds for each line of a data file: 20 in CI, more by the environment.
int Seminek() {
    const char* text = std::getenv("RYSOVNA_SEMINEK");
    return text == nullptr ? 20 : std::atoi(text);
}

const DialogTrojuhelniku& Dialogem(Relace& hra) {
    return dynamic_cast<const DialogTrojuhelniku&>(
        dynamic_cast<const DeskaForm&>(*hra.Vpredu()).Dialogem());
}

class DokonaleTrojuhelniky : public testing::TestWithParam<int> {};

TEST_P(DokonaleTrojuhelniky, KazdyRadekSouboruDaDesetBodu) {
    const int uloha = GetParam();
    NastavVyrobceDesek(VyrobDesku);
    Relace hra;
    hra.Start();
    hra.SpustUlohu(uloha, "Žák", 5);
    std::map<int, int> odehrano;  // line of the file -> how many times
    const auto hotovo = [&] {
        if (static_cast<int>(odehrano.size()) < PocetPrikladu) return false;
        return std::ranges::all_of(odehrano, [](const auto& o) { return o.second >= Seminek(); });
    };
    for (std::uint32_t seminko = 1; !hotovo(); ++seminko) {
        ASSERT_LT(seminko, 100000U) << "some line of the file never comes";
        const auto& dialog = Dialogem(hra);
        const int radek = dialog.CisloPrikladu();
        DokonalyZak(hra, seminko, seminko % 3 == 0).OdehrajPriklad();
        ASSERT_TRUE(dialog.Hotova()) << "seed " << seminko << ", kind " << dialog.Hrany().Druh;
        ASSERT_EQ(SoucetZapornychBodu, 0) << "seed " << seminko << ", kind " << dialog.Hrany().Druh
                                          << ": " << ChybneKroky[1].Text;
        ++odehrano[radek];
        hra.Host().SeminkoHry = seminko + 1;
        hra.Stiskni("picPokracuj");
        if (hra.JmenoVpredu() == "TabulkaForm") {
            hra.Stiskni("picKonec");
            hra.Stiskni("picPokracuj");
        }
        hra.Cekej(200);
        hra.Cekej(1400);  // the panel comes out again
    }
    EXPECT_EQ(ZaporneBody, 0);
}

INSTANTIATE_TEST_SUITE_P(Ulohy, DokonaleTrojuhelniky, testing::Values(1, 2, 3));

TEST(SerieTrojuhelniku, PetBezchybnychDaNejlepsiZnamkuZaznamALog) {
    for (const int uloha : {1, 2, 3}) {
        NastavVyrobceDesek(VyrobDesku);
        Relace hra;
        hra.Start();
        hra.Host().Cas = {2026, 3, 9, 8, 5};
        hra.SpustUlohu(uloha, "Žofie Řeřichová", 5);
        DokonalyZak(hra, static_cast<std::uint32_t>(uloha)).OdehrajSerii(5);
        EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
        const std::string jmeno =
            "\x8Eofie \xD8"
            "e\xF8ichov\xE1";  // Windows-1250
        EXPECT_EQ(hra.CtiSoubor("0" + std::to_string(uloha) + ".res"), jmeno + "|50|0|1\r\n");
        const std::string typ[] = {"podle v\xECty SSS", "podle v\xECty SUS", "podle v\xECty USU"};
        EXPECT_EQ(hra.CtiSoubor("Vysledky.dat"),
                  "Jm\xE9no: " + jmeno + std::string(35 - 15, ' ') +
                      "   Datum: 9.3.2026     \xC8"
                      "as: 08:05\r\n"
                      "Hra: Troj\xFAheln\xEDk 1        Typ \xFAlohy: " +
                      typ[uloha - 1] + std::string(30 - 14, ' ') +
                      "\r\n"
                      "Po\xE8"
                      "et p\xF8\xEDklad\xF9:  5        Klad. body: 50     Z\xE1p. body: 0   "
                      "     Zn\xE1mka:  1\r\n" +
                      std::string(75, '=') + "\r\n");
        hra.Stiskni("picKonec");
        EXPECT_EQ(hra.JmenoVpredu(), "SetupForm");
    }
}

}  // namespace
}  // namespace rysovna::testy
