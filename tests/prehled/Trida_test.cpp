// The overview of a class whose mistakes are known: each number of it, and of both tables.

#include "Trida.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <random>
#include <sstream>

#include "base/Chyba.h"
#include "prehled/Sestaveni.h"
#include "prehled/Smazani.h"
#include "prehled/TabulkaZaku.h"
#include "prehled/TabulkyCsv.h"
#include "store/RadkySouboru.h"
#include "store/TextPokusu.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;
using namespace prehled;

constexpr int ZAKU_TRIDY = 30;

/// The pupils' names as they are to be shown, and other spellings of them.
std::string Spravne(int zak) {
    return "Žofie Řeřichová " + std::to_string(zak);
}
std::string Napsane(int zak, int jak) {
    const std::string cislo = std::to_string(zak);
    if (jak == 1) return " ŽOFIE   ŘEŘICHOVÁ " + cislo;
    if (jak == 2) return "zofie rerichova " + cislo + " ";
    return Spravne(zak);
}

/// By the delivered scale.
int ZnamkaZa(const Serie& s) {
    const int procent = 100 * s.Bodu / s.Nejvic;
    return procent >= 90 ? 1 : procent >= 75 ? 2 : procent >= 50 ? 3 : procent >= 25 ? 4 : 5;
}

/// A line of a table.
std::string Radek(const std::vector<std::string>& pole) {
    std::string radek;
    for (const std::string& p : pole) radek += (radek.empty() ? "" : ";") + PoleCsv(p);
    return radek + "\r\n";
}
/// A table without the line of its headings.
std::string BezNadpisu(const std::string& tabulka) {
    EXPECT_TRUE(tabulka.starts_with("\xEF\xBB\xBF"));
    return tabulka.substr(tabulka.find("\r\n") + 2);
}

std::string SCarkou(std::uint32_t kolik, double cim) {
    std::ostringstream s;
    s.setf(std::ios::fixed);
    s.precision(1);
    s << kolik / cim;
    std::string text = s.str();
    text.replace(text.find('.'), 1, ",");
    return text;
}

/// A school's folders, and what is known of the attempts in them.
class Trida : public ::testing::Test {
protected:
    ~Trida() override { fs::remove_all(koren); }

    static fs::path Nova() {
        const fs::path nova =
            fs::temp_directory_path() / ("trida." + std::to_string(std::random_device()()));
        fs::create_directories(nova / "ucebna/Pokusy");
        fs::create_directories(nova / "doma/hloubeji/Pokusy");
        return nova;
    }
    void Zapis(const std::string& kam, const std::string& text) const {
        std::ofstream(koren / kam, std::ios::binary) << text;
    }
    /// A series of a pupil, in the classroom's folder or, every third one, in the other; every
    /// fifth in both.
    void Odehraj(int zak, int kolikata, const std::string& jmeno) {
        static constexpr unsigned CINY[] = {BEZ_CHYBY, SPATNA_DELKA, KOLMICE | VZDA,
                                            KOLMICE,   NEDOKONCI,    SPATNA_DELKA | KOLMICE};
        std::vector<unsigned> plan;
        for (int i = 0; i <= (zak + kolikata) % 3; ++i)
            plan.push_back(CINY[(zak * 5 + kolikata * 3 + i) % std::size(CINY)]);
        if (plan.back() == (KOLMICE | VZDA)) plan.push_back(BEZ_CHYBY);
        const auto poradi = static_cast<int>(znam.size());
        auto [pokus, vim] = hraje.Odehraj(jmeno, {2026, 9 + poradi / 28, poradi % 28 + 1, 8, zak},
                                          plan, static_cast<std::uint32_t>(poradi));
        vim.Soubor = std::to_string(1000 + poradi) + ".pokus";
        // One is left before its end: that has no grade.
        pokus.Dokonceny = vim.Dokoncena = poradi % 7 != 3;
        vim.Znamka = vim.Dokoncena ? ZnamkaZa(vim) : 0;
        const std::string text = TextPokusu(pokus);
        if (poradi % 3 != 0 || poradi % 5 == 0) Zapis("ucebna/Pokusy/" + vim.Soubor, text);
        if (poradi % 3 == 0) Zapis("doma/hloubeji/Pokusy/" + vim.Soubor, text);
        ci[vim.Soubor] = zak;
        znam[vim.Soubor] = std::move(vim);
    }
    void OdehrajVse() {
        for (int zak = 1; zak <= ZAKU_TRIDY; ++zak) {
            for (int i = 0; i < 2 + zak % 3; ++i) Odehraj(zak, i, Napsane(zak, i < 2 ? 0 : i - 1));
        }
    }

    struct Vysledek {
        Prehled Co{};
        std::size_t Novych = 0;
        std::string Serie{}, Chyby{};  ///< tables
    };
    [[nodiscard]] Sber Najdi(bool vsude = true) const {
        std::vector<fs::path> slozky{koren / "ucebna", koren / "ucebna/Pokusy"};
        if (vsude) slozky.push_back(koren / "doma");
        return NajdiPokusy(slozky);
    }
    Vysledek Prehledni(const Volby& volby = {}, const TabulkaZaku& tabulka = {},
                       bool vsude = true) {
        std::string oznam;
        const auto rejstrik = OtevriRejstrik(koren / "rejstrik", oznam);
        oznamy += oznam;
        const Sber sber = Najdi(vsude);
        std::ostringstream hlaseni, serie, chyby;
        const StavRejstriku stav = Obnov(*rejstrik, sber, hlaseni);
        TabulkyCsv tabulky(serie, chyby);
        Vysledek v{
            .Co = Sestav(*rejstrik, stav, sber, RozdeleniZaku(tabulka, stav.PoctyJmen(false)),
                         Znamkovani(), volby, tabulky),
            .Novych = stav.Novych};
        v.Serie = BezNadpisu(serie.str());
        v.Chyby = BezNadpisu(chyby.str());
        return v;
    }

    fs::path koren = Nova();
    ChybujiciZak hraje;
    std::map<std::string, Serie> znam;  ///< by names of files
    std::map<std::string, int> ci;      ///< whose they are
    std::string oznamy;
};

/// Whether a series is what is known of it; its figures are there.
void Porovnej(Serie s, const Serie& vim) {
    SCOPED_TRACE(s.Soubor);
    for (PrikladSerie& p : s.Priklady) {
        EXPECT_FALSE(std::exchange(p.Obrazec, "").empty());
    }
    for (ChybaSerie& c : s.Chyby) EXPECT_FALSE(std::exchange(c.Obrazec, "").empty());
    s.Zak = 0;
    EXPECT_EQ(s.Priklady, vim.Priklady);
    EXPECT_EQ(s.Chyby, vim.Chyby);
    EXPECT_TRUE(s == vim) << s.Bodu << "/" << s.Nejvic << " " << s.Znamka << " " << s.Trvani;
}

TEST_F(Trida, KazdeCisloSouhlasi) {
    OdehrajVse();
    const Vysledek v = Prehledni();
    ASSERT_EQ(v.Co.Zaci.size(), static_cast<std::size_t>(ZAKU_TRIDY));
    ASSERT_EQ(v.Co.Serie.size(), znam.size());
    EXPECT_TRUE(v.Co.Nevadne.empty()) << v.Co.Nevadne.front();
    std::string serie, chyby;
    for (std::size_t i = 0; i < znam.size(); ++i) {
        const Serie& s = v.Co.Serie[i];
        const Serie& vim = znam.at(s.Soubor);
        Porovnej(s, vim);
        EXPECT_EQ(v.Co.Zaci[static_cast<std::size_t>(s.Zak)],
                  (Zak{.Jmeno = Spravne(ci.at(s.Soubor))}));
        const auto d = [&vim](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
        const std::string datum = "2026-" + d(vim.Zacatek.Mesic) + "-" + d(vim.Zacatek.Den),
                          cas = "08:" + d(vim.Zacatek.Minuta);
        serie += Radek({Spravne(ci.at(s.Soubor)), "", vim.JmenoNapsane, "1",
                        "Trojúhelník 1: podle věty SSS", datum, cas, vim.Dokoncena ? "ano" : "ne",
                        std::to_string(vim.Bodu), std::to_string(vim.Nejvic),
                        SCarkou(static_cast<std::uint32_t>(100 * vim.Bodu), vim.Nejvic),
                        vim.Dokoncena ? std::to_string(vim.Znamka) : "",
                        SCarkou(vim.Trvani, 60'000), std::to_string(vim.Priklady.size()),
                        std::to_string(vim.Chyby.size()), vim.Soubor});
        for (const ChybaSerie& c : vim.Chyby) {
            chyby += Radek({Spravne(ci.at(s.Soubor)), "", "1", "Trojúhelník 1: podle věty SSS",
                            datum, cas, std::to_string(c.Priklad),
                            vim.Priklady[static_cast<std::size_t>(c.Priklad - 1)].Zadani,
                            SCarkou(c.Kdy, 1000), std::to_string(c.Cislo), c.Veta,
                            std::to_string(c.Bodu), vim.Soubor});
        }
    }
    EXPECT_EQ(v.Serie, serie);
    EXPECT_EQ(v.Chyby, chyby);
}

TEST_F(Trida, UkazeOCoSeZadaAPoznaZmenyVeSlozkach) {
    OdehrajVse();
    const TabulkaZaku tabulka(
        "\xEF\xBB\xBF# poznámka\r\nJméno;Žák;Třída\r\nzofie rerichova 1;;6.A\r\n"
        "\"Žofie Řeřichová 2\";\"Nováková; Žofie\";6.a\r\nŽofie Řeřichová 3;;7.B\r\n",
        "zaci.csv");
    EXPECT_EQ(tabulka.Tridy(), (std::vector<std::string>{"6.A", "7.B"}));
    const Volby volby{.Od = DenZTextu("2. 9. 2026"), .Do = DenZTextu("2026-09-03"), .Trida = "6.A"};
    Vysledek v = Prehledni(volby, tabulka);
    EXPECT_EQ(v.Novych, znam.size());
    EXPECT_EQ(v.Co.Zaci,
              (std::vector<Zak>{{"Nováková; Žofie", "6.A"}, {"zofie rerichova 1", "6.A"}}));
    // Of the first pupil's three series and the second's four, those of two days.
    std::vector<int> zaci;
    for (const Serie& s : v.Co.Serie) zaci.push_back(s.Zak);
    EXPECT_EQ(zaci, (std::vector<int>{1, 1}));
    EXPECT_EQ(NaRadky(v.Serie).size(), znam.size()) << "tables are whole";
    EXPECT_TRUE(NaRadky(v.Serie)[3].starts_with("\"Nováková; Žofie\";"));

    // What lies in a folder that is not asked for is not shown, and known all the same.
    v = Prehledni({}, {}, false);
    EXPECT_EQ(v.Co.Serie.size(), NaRadky(v.Serie).size());
    EXPECT_EQ(v.Co.Serie.size(), Najdi(false).Soubory.size());
    EXPECT_LT(v.Co.Serie.size(), znam.size());

    // Nothing is read twice; what vanished is out, what is cut or no attempt is told.
    fs::remove(koren / "ucebna/Pokusy/1001.pokus");
    fs::remove(koren / "doma/hloubeji/Pokusy/1000.pokus");  // it has a copy
    Zapis("doma/nove.pokus", "RYSOVNA1 POKUS 1\nprogram 1.0\njmeno Žofie Řeřichová 9\nuloha 1\n");
    Zapis("doma/neni.txt", "x");
    v = Prehledni();
    EXPECT_EQ(v.Novych, 0U);
    EXPECT_EQ(v.Co.Serie.size(), znam.size() - 1);
    ASSERT_EQ(v.Co.Nevadne.size(), 1U);
    EXPECT_NE(v.Co.Nevadne[0].find("nove.pokus: Záznam pokusu není celý"), std::string::npos);
    for (const Serie& s : v.Co.Serie) Porovnej(s, znam.at(s.Soubor));

    // A damaged index, and what is none, are made anew.
    EXPECT_EQ(oznamy, "");
    for (const bool nas : {true, false}) {
        std::fstream f(koren / "rejstrik", std::ios::in | std::ios::out | std::ios::binary);
        f.seekp(nas ? 4096 : 0);
        f << std::string(20000, nas ? '\x7f' : 'x');
        f.close();
        try {
            v = Prehledni();
        } catch (const VadnyRejstrik&) {
            OdlozRejstrik(koren / "rejstrik", oznamy);
            v = Prehledni();
        }
        EXPECT_EQ(v.Novych, znam.size() - 1);
        EXPECT_NE(oznamy, "");
        oznamy.clear();
    }
    EXPECT_TRUE(fs::exists(koren / "rejstrik.vadny"));
}

TEST_F(Trida, OdstraniZakaAJenJehoAzPoOdpovedi) {
    OdehrajVse();
    Zapis("doma/kus.pokus", "RYSOVNA1 POKUS 1\nprogram 1.0\njmeno žofie řeřichová 5\nuloha 1\n");
    Zapis("doma/prazdny.pokus", "");
    const auto smaz = [this](const char* odpoved, std::string& receno, int zak = 5,
                             bool vsude = true) {
        std::string oznam;
        const auto rejstrik = OtevriRejstrik(koren / "rejstrik", oznam);
        std::ostringstream hlaseni, kam;
        std::istringstream vstup(odpoved);
        const Sber sber = Najdi(vsude);
        const StavRejstriku stav = Obnov(*rejstrik, sber, hlaseni);
        const RozdeleniZaku zaci({}, stav.PoctyJmen(true));
        const bool hotovo = SmazZaka({.Smazat = "ZOFIE RERICHOVA " + std::to_string(zak)}, sber,
                                     stav, zaci, *rejstrik, vstup, kam);
        receno = kam.str();
        return hotovo;
    };
    const std::size_t pred = Najdi().Soubory.size();
    std::size_t kopii = 1;
    std::size_t pokusu = 1;
    for (const auto& [soubor, zak] : ci) {
        if (zak != 5) continue;
        ++pokusu;
        kopii += fs::exists(koren / "ucebna/Pokusy" / soubor) ? 1U : 0U;
        kopii += fs::exists(koren / "doma/hloubeji/Pokusy" / soubor) ? 1U : 0U;
    }
    std::string receno;
    EXPECT_FALSE(smaz("ne\n", receno));
    EXPECT_NE(
        receno.find("zůstanou:\n  " + (fs::canonical(koren) / "doma/prazdny.pokus\n").string()),
        std::string::npos)
        << receno;
    EXPECT_NE(receno.find("Žofie Řeřichová 5\n"), std::string::npos) << receno;
    EXPECT_NE(receno.find(" " + std::to_string(pokusu) + " pokusů ("), std::string::npos) << receno;
    EXPECT_NE(receno.find("(" + std::to_string(kopii) + " soubor"), std::string::npos) << receno;
    EXPECT_EQ(Najdi().Soubory.size(), pred);
    EXPECT_TRUE(smaz("Ano\n", receno));
    EXPECT_EQ(Najdi().Soubory.size(), pred - kopii);
    const Vysledek v = Prehledni();
    EXPECT_EQ(v.Novych, 0U);
    EXPECT_EQ(v.Co.Serie.size(), znam.size() - (pokusu - 1));
    for (const Serie& s : v.Co.Serie) EXPECT_NE(ci.at(s.Soubor), 5);
    EXPECT_FALSE(smaz("ano\n", receno)) << "nobody is left";

    // What the index knew of a folder that is not asked for it forgets; the file stays.
    EXPECT_TRUE(smaz("ano\n", receno, 7, false));
    EXPECT_NE(receno.find("doma/hloubeji/Pokusy: 1 soubor\n"), std::string::npos) << receno;
    EXPECT_EQ(Prehledni().Novych, 1U);
}

TEST_F(Trida, KopieJinehoJmenaJeTyzPokus) {
    const std::string hra = "20260901-0800-01-0123456789abcdef";
    for (const std::string& jmeno :
         {"ucebna/Pokusy/" + hra, "doma/" + hra + " (1)", "doma/" + hra + " – kopie",
          std::string("doma/Novák 1"), std::string("doma/Novák 2")})
        Zapis(jmeno + ".pokus", "");
    const Sber sber = Najdi();
    std::vector<std::size_t> kopii;
    for (std::size_t i = 0; i < sber.Soubory.size(); i += kopii.back())
        kopii.push_back(sber.Kopie(i).size());
    EXPECT_EQ(kopii, (std::vector<std::size_t>{3, 1, 1}));
    for (const Nalezeny& n : sber.Soubory) EXPECT_TRUE(fs::exists(sber.Cesta(n))) << n.NaDisku;
}

TEST(Csv, PoleSeVratiANeniVzorcem) {
    const std::pair<const char*, const char*> POLE[] = {{"Žofie", "Žofie"},
                                                        {"a;b \"c\"", "\"a;b \"\"c\"\"\""},
                                                        {"=1+1", "'=1+1"},
                                                        {"+42", "'+42"},
                                                        {"-x", "'-x"},
                                                        {"@x;", "\"'@x;\""},
                                                        {"dva\nřádky", "\"dva\nřádky\""},
                                                        {"", ""}};
    for (const auto& [co, jak] : POLE) EXPECT_EQ(PoleCsv(co), jak);
}

TEST(TabulkaUcitele, VadnyRadekReknKde) {
    const std::pair<const char*, const char*> VADNE[] = {
        {"a;b;c\n\nx\n", "(zaci.csv:3)"},
        {"a;b;c;d\n", "(zaci.csv:1)"},
        {";b;c\n", "chybí jméno"},
        {"a;\"b;c\n", "uvozovky"},
        {"Jan;Jan Novák;6.A\n# x\nJÁN;Jana Nováková;6.A\n", "(zaci.csv:3)"}};
    for (const auto& [obsah, ceka] : VADNE) {
        try {
            static_cast<void>(TabulkaZaku(obsah, "zaci.csv"));
            ADD_FAILURE() << obsah;
        } catch (const BehovaChyba& chyba) {
            EXPECT_NE(std::string(chyba.what()).find(ceka), std::string::npos) << chyba.what();
        }
    }
}

}  // namespace
}  // namespace rysovna::testy
