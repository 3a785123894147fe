// Series of every task, from the menu to the score table and the log, without a fault; and what the
// panel prints meanwhile: nothing clipped, nothing over another.

#include "hrac/Serie.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

#include "base/Cisla.h"
#include "platform/Pisma.h"
#include "platform/Zalom.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "store/Vysledek.h"

namespace rysovna::hrac {
namespace {

constexpr int NEJVIC_ZA_JMENEM = 6;  // px, of the sign of a perpendicular, as untypeset
constexpr int KONEC_KARTY = 217;     // px, the right edge of the card with the panel's texts

/// The sign of a perpendicular has its place where the prompt has a gap.
void LeziVMezere(const Label& vyzva, const Label& znak) {
    const std::string text = vyzva.Tisteny();
    const auto od = text.find("   ");
    ASSERT_NE(od, std::string::npos) << text;
    const auto po = text.find_first_not_of(' ', od);
    const double konecJmena = vyzva.Left + PresnaSirka(vyzva.Font, text.substr(0, od));
    EXPECT_GE(znak.Left, konecJmena - 1) << text;
    EXPECT_LE(znak.Left, konecJmena + NEJVIC_ZA_JMENEM) << text;
    EXPECT_LE(znak.Left + PresnaSirka(znak.Font, znak.Caption),
              vyzva.Left + PresnaSirka(vyzva.Font, text.substr(0, po)))
        << text;
}

/// Whether a board prints a prompt with that sign, which is looked at as all else that it prints.
bool Prohledni(const DeskaForm& deska) {
    for (const Ovladac* o : deska.Ovladace()) {
        if (!o->Visible || o->Druh != Ovladac::Typ::Label) continue;
        if (o->Rodic != nullptr && !o->Rodic->Visible) continue;
        const auto& l = static_cast<const Label&>(*o);
        if (!l.Sazba) continue;
        const auto radky = RozdelNaRadky(l.Font, l.Tisteny(), l.WordWrap ? l.Width : 0);
        EXPECT_LE(static_cast<int>(radky.size()) * VyskaRadku(l.Font), l.Height + 2)
            << l.Name << ": " << l.Caption;
        const int meze = l.Name == "lblZadani" ? KONEC_KARTY - l.Left : l.Width;
        for (const std::string& r : radky)
            EXPECT_LE(SirkaTextu(l.Font, r), meze) << l.Name << ": " << l.Caption;
    }
    const auto& vyzva = dynamic_cast<const Label&>(*deska.Najdi("lblText3"));
    const auto& znak = dynamic_cast<const Label&>(*deska.Najdi("lblText4"));
    const bool je = vyzva.Visible && znak.Visible && znak.Top == vyzva.Top;
    if (je) LeziVMezere(vyzva, znak);
    return je;
}

class Serie : public testing::TestWithParam<std::tuple<Relace::Cim, int>> {};

/// Where it is not played by the mouse, that is not touched from the title to the score table.
TEST_P(Serie, JeBezChybyZapsanaACitelna) {
    const auto [cim, cislo] = GetParam();
    const Uloha& uloha = *NajdiUlohu(cislo);
    const std::string prikladu = cim == Relace::Cim::Mysi ? "5" : "1", body = prikladu + "0";
    Relace hra(static_cast<std::uint32_t>(cislo), cim);
    hra.Host().Cas = {2026, 11, 3, 9, 5};
    std::ostringstream udalosti;
    int znaku = 0;
    hra.Zaznamenavej(udalosti);
    hra.Sleduj([&](std::string_view) {
        const auto* deska = dynamic_cast<const DeskaForm*>(hra.Vpredu());
        if (deska != nullptr && Prohledni(*deska)) ++znaku;
    });
    hra.Start();
    OdehrajSerii(hra, cislo, "Žák", std::stoi(prikladu), 1);
    EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
    EXPECT_EQ(hra.Pamet().KladneBody, std::stoi(body));
    EXPECT_EQ(hra.Pamet().ZaporneBody, 0);
    EXPECT_EQ(hra.CtiSoubor(DveCislice(cislo) + ".res"), "\x8E\xE1k|" + body + "|0|1\r\n");
    EXPECT_EQ(hra.CtiSoubor("Vysledky.dat"), RadkyDeniku({.Jmeno = "Žák",
                                                          .Hra = hra.Pamet().NazevHry,
                                                          .Typ = std::string(uloha.TypUlohy),
                                                          .Prikladu = prikladu,
                                                          .Kladne = body,
                                                          .Zaporne = "0",
                                                          .Znamka = "1",
                                                          .Konec = hra.Host().Cas}));
    constexpr const char* STOPY[] = {"mys ", "klavesa Space", "prst nahoru"};
    EXPECT_NE(udalosti.str().find(STOPY[static_cast<int>(cim)]), std::string::npos);
    for (const char* mysi : {"mys ", "\ndolu", "\nnahoru"}) {
        EXPECT_EQ(udalosti.str().find(mysi) != std::string::npos, cim == Relace::Cim::Mysi) << mysi;
    }
    constexpr int S_KOLMICEMI[] = {12, 14, 15, 16, 18, 19};
    EXPECT_TRUE(znaku > 10 || std::ranges::count(S_KOLMICEMI, cislo) == 0) << znaku;
}

INSTANTIATE_TEST_SUITE_P(Ulohy, Serie,
                         testing::Combine(testing::Values(Relace::Cim::Mysi, Relace::Cim::Klavesami,
                                                          Relace::Cim::Prstem),
                                          testing::Range(1, 21)));

}  // namespace
}  // namespace rysovna::hrac
