// The player's name on its way from the box to the score table.

#include <gtest/gtest.h>

#include "hrac/Relace.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/SetupForm.h"

namespace rysovna::testy {
namespace {

class PrazdnaDeska final : public Form {
public:
    std::string_view Jmeno() const override { return "PrazdnaDeska"; }
};

TEST(Jmeno, MaNejvyseSedesatZnakuAnicCoByRozbiloZaznam) {
    const std::string dlouhe(SetupForm::NEJDELSI_JMENO, 'x');
    // What is pasted, and the name that the game has of it; empty if it cannot start.
    const std::pair<std::string, std::string> PRIPADY[] = {
        {"  Jan  Novák  ", "Jan  Novák"},
        {"Ja|n\r\nNo\tvák", "JanNovák"},
        {"   " + dlouhe + "yz", dlouhe},
        {dlouhe.substr(1) + "  y", dlouhe.substr(1)},
        {" | ", ""},
    };
    for (const auto& [vlozene, jmeno] : PRIPADY) {
        SCOPED_TRACE(vlozene);
        hrac::Relace hra(1, hrac::Relace::Cim::Mysi,
                         [](Sezeni&, int) { return std::make_shared<PrazdnaDeska>(); });
        hra.Start();
        hra.Stiskni("LI", 1);
        hra.Stiskni("RI", 1);
        hra.Host().Schranka = vlozene;
        hra.Klavesa("v", 2);
        hra.Stiskni("ICislo", 1);
        hra.Cekej(1000);
        ASSERT_EQ(hra.Prvek("picPokracuj").Visible, !jmeno.empty());
        if (jmeno.empty()) continue;
        hra.Stiskni("picPokracuj");
        EXPECT_EQ(hra.Pamet().JmenoHrace, jmeno);
    }
}

}  // namespace
}  // namespace rysovna::testy
