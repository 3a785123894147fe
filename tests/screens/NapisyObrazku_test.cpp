// What pictures write out again of what the program and its data know: names of tasks, words on
// step buttons, the scale of grades, what a wrong step costs.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Stroj.h"
#include "rules/KatalogChyb.h"
#include "rules/Ulohy.h"
#include "screens/TlacitkoNastroje.h"
#include "store/RadkySouboru.h"

namespace rysovna::testy {
namespace {

/// By names of columns.
using Radek = std::map<std::string, std::string>;

std::vector<std::string> Pole(const std::string& radek) {
    std::vector<std::string> pole;
    for (std::size_t od = 0, po = 0; po < radek.size(); od = po + 1) {
        po = std::min(radek.find('|', od), radek.size());
        pole.push_back(BezKrajnichMezer(radek.substr(od, po - od)));
    }
    return pole;
}

/// The rows of a group, which end at an empty line.
std::vector<Radek> Tabulka(const std::string& skupina) {
    const std::string ZACATEK = "radky = ";
    std::vector<Radek> tabulka;
    std::vector<std::string> sloupce;
    bool uvnitr = false;
    for (const std::string& radek : NaRadky(CelySoubor(ZDROJE "/assets/obrazky.txt").value())) {
        if (radek.starts_with('[')) uvnitr = radek == "[" + skupina + "]";
        if (!uvnitr || radek.empty()) continue;
        if (radek.starts_with(ZACATEK)) {
            sloupce = Pole(radek.substr(ZACATEK.size()));
        } else if (!sloupce.empty()) {
            const std::vector<std::string> pole = Pole(radek);
            for (Radek& r = tabulka.emplace_back(); const std::string& s : sloupce)
                r[s] = pole.at(r.size());
        }
    }
    return tabulka;
}

TEST(NapisyObrazku, UlohyARodinySeJmenujiJakoVPravidlech) {
    const std::vector<Radek> rodiny = Tabulka("menu: skupiny úloh");
    ASSERT_EQ(rodiny.size(), RODINY.size());
    for (std::size_t i = 0; i < RODINY.size(); ++i) {
        EXPECT_EQ(rodiny[i].at("FILE"), DveCislice(static_cast<int>(i) + 1));
        EXPECT_EQ(rodiny[i].at("NAZEV"), RODINY[i]);
        const Uloha* nakreslena = NajdiUlohu(std::stoi(rodiny[i].at("NN")));
        EXPECT_TRUE(nakreslena != nullptr && nakreslena->Rodina == i) << RODINY[i];
    }
    for (const char* skupina : {"menu: úlohy", "nastavení", "nadpisy úloh", "nápověda úloh"}) {
        SCOPED_TRACE(skupina);
        const std::vector<Radek> ulohy = Tabulka(skupina);
        ASSERT_EQ(ulohy.size(), std::size(ULOHY));
        for (std::size_t i = 0; i < ulohy.size(); ++i) {
            EXPECT_EQ(ulohy[i].at("NN"), DveCislice(ULOHY[i].Cislo));
            // Pictures have dashes, tables and log hyphens.
            EXPECT_EQ(std::regex_replace(ulohy[i].at("TYP"), std::regex("–"), "-"),
                      ULOHY[i].TypUlohy);
            // The tasks of the menu stand beside their family.
            const auto rodina = ulohy[i].find("RODINA");
            if (rodina == ulohy[i].end()) {
                EXPECT_STREQ(skupina, "menu: úlohy");
            } else {
                EXPECT_EQ(rodina->second, RODINY[ULOHY[i].Rodina]);
            }
        }
    }
}

TEST(NapisyObrazku, NaTlacitkuKrokuStojiJmenoNastroje) {
    const std::vector<Radek> nastroje = Tabulka("deska: nástroje");
    ASSERT_EQ(nastroje.size(), std::size(TLACITKA_NASTROJU));
    for (std::size_t i = 0; i < nastroje.size(); ++i) {
        EXPECT_EQ(nastroje[i].at("NN"), DveCislice(TLACITKA_NASTROJU[i].Tvar));
        // Between asterisks it is set in bold.
        EXPECT_EQ(std::regex_replace(nastroje[i].at("TEXT"), std::regex("\\*"), ""),
                  TLACITKA_NASTROJU[i].Jmeno);
    }
}

TEST(NapisyObrazku, NapovedaRikaDodanouStupniciZnamek) {
    std::string stupnice;  // from the best grade on, of all but the worst
    std::string nejhorsi;
    for (const std::string& radek : NaRadky(CelySoubor(ZDROJE "/data/Znamky.txt").value())) {
        if (radek.empty() || radek.starts_with(';')) continue;
        const std::vector<std::string> pole = Pole(radek);  // lower, upper limit, grade
        if (nejhorsi.empty()) {
            nejhorsi = pole.at(2);
        } else {
            stupnice.insert(
                0, pole.at(2) + " od " + pole.at(0) + " %" + (stupnice.empty() ? "" : ", "));
        }
    }
    for (const char* soubor : {"znamky.txt", "tab.txt"}) {
        const std::string text =
            CelySoubor(std::string(ZDROJE "/assets/napoveda/") + soubor).value();
        const std::regex vzor(stupnice + "( bodů)?, jinak " + nejhorsi + "\\.");
        EXPECT_TRUE(std::regex_search(text, vzor)) << soubor << ": " << stupnice;
    }
}

TEST(NapisyObrazku, NapovedaRikaKolikStojiChyba) {
    int nejmene = BODU_ZA_PRIKLAD, nejvic = 0;
    for (const DruhChyby& d : katalog::RADKY) {
        if (d.Kde.Jak == Zneni::Zbytek || d.Kde.Jak == Zneni::ZbytekBod) continue;
        nejmene = std::min(nejmene, d.Body);
        nejvic = std::max(nejvic, d.Body);
    }
    const std::string text = CelySoubor(ZDROJE "/assets/napoveda/setup.txt").value();
    const std::string ceny = std::to_string(nejmene) + " až " + std::to_string(nejvic) + " body";
    EXPECT_NE(text.find("Za chybu ztrácíš " + ceny), std::string::npos) << ceny;
}

}  // namespace
}  // namespace rysovna::testy
