// A series of five of every task, from the menu to the score table and the log, without a fault.

#include "hrac/Serie.h"

#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

#include "base/Cisla.h"
#include "base/Text.h"
#include "rules/Kontrola.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "store/Kodovani.h"

namespace rysovna::hrac {
namespace {

class SerieOdPeti : public testing::TestWithParam<int> {};

TEST_P(SerieOdPeti, DaPadesatBoduRadekTabulkyACtyriRadkyLogu) {
    const Uloha& uloha = *NajdiUlohu(GetParam());
    Relace hra(static_cast<std::uint32_t>(uloha.Cislo));
    hra.Host().Cas = {2026, 11, 3, 9, 5};
    hra.Start();
    OdehrajSerii(hra, uloha.Cislo, "Žák", 5, 1);
    EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
    EXPECT_EQ(hra.Pamet().KladneBody, 50);
    EXPECT_EQ(hra.Pamet().ZaporneBody, 0);
    EXPECT_EQ(hra.CtiSoubor(DveCislice(uloha.Cislo) + ".res"), "\x8E\xE1k|50|0|1\r\n");

    std::string typ(uloha.TypUlohy);
    while (DoZnaku(typ).size() < 30) typ += ' ';  // characters, not bytes
    EXPECT_EQ(
        Z1250(hra.CtiSoubor("Vysledky.dat"), "Vysledky.dat"),
        "Jméno: Žák                                   Datum: 3.11.2026    Čas: 09:05\r\n"
        "Hra: " +
            hra.Pamet().NazevHry + std::string(21 - DoZnaku(hra.Pamet().NazevHry).size(), ' ') +
            "Typ úlohy: " + typ +
            "\r\n"
            "Počet příkladů:  5        Klad. body: 50     Záp. body: 0        Známka:  1\r\n"
            "===========================================================================\r\n");
}

INSTANTIATE_TEST_SUITE_P(Ulohy, SerieOdPeti, testing::Range(1, 21));

class SerieBezMysi : public testing::TestWithParam<std::tuple<Relace::Cim, int>> {};

/// The mouse is not touched, from the title to the score table.
TEST_P(SerieBezMysi, DaDesetBodu) {
    const auto [cim, uloha] = GetParam();
    Relace hra(static_cast<std::uint32_t>(uloha), cim);
    std::ostringstream udalosti;
    hra.Zaznamenavej(udalosti);
    hra.Start();
    OdehrajSerii(hra, uloha, "Žák", 1, 1);
    EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
    EXPECT_EQ(hra.CtiSoubor(DveCislice(uloha) + ".res"), "\x8E\xE1k|10|0|1\r\n");
    const char* stopa = cim == Relace::Cim::Prstem ? "prst nahoru" : "klavesa Space";
    EXPECT_NE(udalosti.str().find(stopa), std::string::npos);
    for (const char* mysi : {"mys ", "\ndolu", "\nnahoru"}) {
        EXPECT_EQ(udalosti.str().find(mysi), std::string::npos) << mysi;
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, SerieBezMysi,
                         testing::Combine(testing::Values(Relace::Cim::Klavesami,
                                                          Relace::Cim::Prstem),
                                          testing::Range(1, 21)));

// Of the shipped grades the better one holds where two meet.
TEST(DodaneZnamky, NaSpolecneMeziPlatiLepsi) {
    Relace hra;
    hra.StartDoTitulu();
    const std::pair<int, std::string_view> pripady[] = {
        {0, "5"},  {4, "5"},  {5, "4"},  {9, "4"},  {10, "3"},
        {14, "3"}, {15, "2"}, {17, "2"}, {18, "1"}, {20, "1"},
    };
    for (const auto& [body, znamka] : pripady)
        EXPECT_EQ(UrciZnamku(hra.Pamet(), body, 20), znamka) << body;
}

}  // namespace
}  // namespace rysovna::hrac
