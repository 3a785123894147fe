// Attempts: whatever is played comes out alike when it is played again from its file, and what is
// no such file is told in one sentence.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "podpora/Bloud.h"
#include "podpora/Prostredi.h"
#include "podpora/RukaUlohy.h"
#include "podpora/ZapisPostupu.h"
#include "rules/Prehravani.h"
#include "screens/PopisKroku.h"
#include "store/TextPokusu.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

/// What an example left behind.
struct Stav {
    Tabulky Konstrukce;
    decltype(Zaznamy::ChybneKroky) Chyby;
    decltype(Zaznamy::ZadanePrvky) Zadane;
    int Soucet;
    PametovaPlocha Pic, HidenPic;

    Stav(const Misc& misc, const PametovaPlocha& pic, const PametovaPlocha& hiden)
        : Konstrukce(misc),
          Chyby(misc.ChybneKroky),
          Zadane(misc.ZadanePrvky),
          Soucet(misc.SoucetZapornychBodu),
          Pic(pic),
          HidenPic(hiden) {}
    [[nodiscard]] bool StejnyJako(const Stav& s) const {
        return Konstrukce == s.Konstrukce && Chyby == s.Chyby && Zadane == s.Zadane &&
               Soucet == s.Soucet && Pic.StejnyObraz(s.Pic) && HidenPic.StejnyObraz(s.HidenPic);
    }
};

struct Platna_ {
    PametovaPlocha Pic{SIRKA_PLOCHY, VYSKA_PLOCHY}, HidenPic{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

/// Plays series of a task at its recorded dialogue.
class Hrac final : public RukaSerie {
public:
    Hrac(int uloha, std::uint32_t seminko) : RukaSerie(uloha), uloha_(uloha), los_(seminko) {
        Pamet().Generator.Zasej(seminko);
    }

    /// A series as its file holds it; stavy: as each example ended.
    std::string Odehraj(int prikladu, bool dokonale, std::vector<Stav>& stavy) {
        ZacniSerii([this] { return ted_ += 1 + Cislo(2000); });
        for (int i = 0; i < prikladu; ++i) {
            dialog_->NovyPriklad();
            dialog_->NoveZadani();
            if (dokonale) {
                hrac::Sestroj(*this, Cislo(1000));
            } else {
                constexpr int KROKU = 60;  // a hundred wrong steps are a fault
                for (int n = 0; n < KROKU; ++n) Bloud(*dialog_, los_);
            }
            // Now and then another example is wanted before this one is checked.
            if (dokonale || los_() % 4 != 0) dialog_->Zkontroluj();
            EXPECT_TRUE(!dokonale || Pamet().SoucetZapornychBodu == 0) << uloha_;
            stavy.emplace_back(Pamet(), Pic(), Hiden());
        }
        return TextPokusu({.Program = "1.0",
                           .Jmeno = "Žofie 100 %\tŘeřichová",
                           .CisloUlohy = uloha_,
                           .Zacatek = {2026, 9, 1, 7, 55},
                           .PrikladuSerie = prikladu,
                           .Priklady = dialog_->Priklady(),
                           .Dokonceny = true});
    }

private:
    std::uint32_t Cislo(std::uint32_t rozpeti) {
        return static_cast<std::uint32_t>(los_()) % rozpeti;
    }

    int uloha_;
    std::mt19937 los_;
    std::uint32_t ted_ = 4'294'960'000U;  // the tick count runs over in the middle
};

/// Series of each task and kind of pupil; more by the environment.
int Serii() {
    return Prostredi("RYSOVNA_SERII", 5);
}

class Pokusy : public testing::TestWithParam<int> {};

TEST_P(Pokusy, PrehrajeSeJakSeHral) {
    std::set<std::string> uctovano;
    for (int n = 1; n <= 2 * Serii() && !HasFailure(); ++n) {
        const bool dokonale = n % 2 == 0;
        SCOPED_TRACE("series " + std::to_string(n));
        Hrac hrac(GetParam(), static_cast<std::uint32_t>(n));
        std::vector<Stav> stavy;
        const std::string text = hrac.Odehraj(3, dokonale, stavy);
        EXPECT_LT(text.size(), 20'000U);
        const PrectenyPokus precteny = CtiPokus(text);
        ASSERT_TRUE(precteny.Co) << precteny.Vada << "\n" << text;
        EXPECT_EQ(TextPokusu(*precteny.Co), text);
        Platna_ platna;
        Prehravka prehravka(*precteny.Co, {platna.Pic, platna.HidenPic});
        const auto& priklady = precteny.Co->Priklady;
        ASSERT_EQ(priklady.size(), stavy.size());
        while (prehravka.Dalsi()) {
            EXPECT_TRUE(ZapiseSe(prehravka.Hrany())) << text;
            const std::size_t i = prehravka.Priklad() - 1;
            if (prehravka.Udalost() < priklady[i].Udalosti.size()) continue;
            EXPECT_TRUE(
                stavy[i].StejnyJako({prehravka.Hrany().Pamet(), platna.Pic, platna.HidenPic}))
                << "example " << i + 1 << "\n"
                << text;
            for (const Udalost& u : priklady[i].Udalosti)
                for (const ChybnyKrok& c : u.Chyby) uctovano.insert(c.Cislo);
        }
        EXPECT_FALSE(prehravka.KdeSeRozesla())
            << prehravka.KdeSeRozesla()->Priklad << "/" << prehravka.KdeSeRozesla()->Udalost << ": "
            << prehravka.KdeSeRozesla()->Proc << "\n"
            << text;
        EXPECT_EQ(prehravka.Priklad(), priklady.size());
    }
    EXPECT_GE(uctovano.size(), 2U) << "the careless pupil was too good to say anything";
}

/// Watched, an attempt is at each step what it was on the way forward, from wherever one comes.
TEST_P(Pokusy, KamkoliSePrejdeJeToTotez) {
    for (const bool dokonale : {true, false}) {
        std::vector<Stav> konce;
        const Pokus pokus = *CtiPokus(Hrac(GetParam(), 11).Odehraj(2, dokonale, konce)).Co;
        Platna_ platna;
        Prehravani p(pokus, {platna.Pic, platna.HidenPic}, Tempo::Zaka);
        std::size_t udalosti = 0, chyb = 0, chybNaPasu = 0;
        for (const HranyPriklad& h : pokus.Priklady) {
            udalosti += h.Udalosti.size() + 1;
            for (const Udalost& u : h.Udalosti) chyb += u.Chyby.empty() ? 0 : 1;
        }
        for (const KrokPrehravani& k : p.Kroky()) chybNaPasu += k.Chyba ? 1 : 0;
        ASSERT_EQ(p.Kroky().size(), udalosti);
        EXPECT_EQ(chybNaPasu, chyb);
        const auto stav = [&] { return Stav(p.Hrany().Pamet(), platna.Pic, platna.HidenPic); };
        std::vector<Stav> stavy;
        std::vector<Panel> panely, predtim;
        for (std::size_t k = 0; k < udalosti; ++k) {
            p.NaKrok(k);
            stavy.push_back(stav());
            panely.push_back(p.Hrany().UkazPanel());
            predtim.push_back(p.Predtim());
            EXPECT_LE(k == 0 ? 0 : p.Kroky()[k - 1].Kdy, p.Kroky()[k].Kdy);
        }
        EXPECT_TRUE(stavy.back().StejnyJako(konce.back()));
        std::mt19937 los(5);
        for (int i = 0; i < 12 && !HasFailure(); ++i) {
            // Each way from the first step too.
            const std::size_t k = i < 3 ? 1 : 1 + los() % (udalosti - 1);
            std::size_t ceka = k;
            switch (i % 3) {
                case 0:
                    p.NaKrok(k);
                    break;
                case 1:
                    p.NaKrok(k);
                    p.Zpet();
                    ceka = k - 1;
                    break;
                default:
                    p.NaCas(p.Kroky()[k].Kdy + 1);
                    while (ceka + 1 < udalosti && p.Kroky()[ceka + 1].Kdy <= p.Kroky()[k].Kdy + 1)
                        ++ceka;
            }
            ASSERT_EQ(p.Krok(), ceka);
            EXPECT_TRUE(stav().StejnyJako(stavy[ceka])) << ceka;
            EXPECT_EQ(p.Hrany().UkazPanel(), panely[ceka]) << ceka;
            EXPECT_TRUE(ceka == 0 || p.Predtim() == predtim[ceka]) << ceka;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Uloh, Pokusy, testing::Range(1, 21),
                         [](const auto& i) { return DveCislice(i.param); });

std::string Nahrazeno(std::string text, std::string_view co, std::string_view cim) {
    const std::size_t kde = text.find(co);
    EXPECT_NE(kde, std::string::npos) << co;
    return text.replace(kde, co.size(), cim);
}

TEST(Pokus, ReknePresneCimSeLisi) {
    std::vector<Stav> stavy;
    const std::string text = Hrac(1, 3).Odehraj(2, false, stavy);
    // Where the first wrong step was charged.
    const auto priklady = CtiPokus(text).Co->Priklady;
    std::size_t p = 0, u = 0;
    while (priklady[p].Udalosti[u].Chyby.empty())
        if (++u == priklady[p].Udalosti.size()) ++p, u = 0;
    const ChybnyKrok chyba = priklady[p].Udalosti[u].Chyby[0];
    const std::string ucet = chyba.Cislo + " " + std::to_string(chyba.Body) + " ";
    const std::string radek = "\nchyba " + ucet + chyba.Text;
    const auto udalost = [&](std::string_view zmeneny) {
        const PrectenyPokus precteny = CtiPokus(zmeneny);
        EXPECT_TRUE(precteny.Co) << precteny.Vada;
        Platna_ platna;
        Prehravka prehravka(*precteny.Co, {platna.Pic, platna.HidenPic});
        const auto& rozchod = prehravka.DoKonce();
        return rozchod ? std::pair{rozchod->Priklad, rozchod->Udalost} : std::pair{0UL, 0UL};
    };
    const std::pair tady{p + 1, u + 1};
    EXPECT_EQ(udalost(text), (std::pair{0UL, 0UL}));
    EXPECT_EQ(udalost(Nahrazeno(text, radek, "\nchyba " + chyba.Cislo + " 9 " + chyba.Text)), tady);
    EXPECT_EQ(udalost(Nahrazeno(text, radek, radek + "!")), tady);
    EXPECT_EQ(udalost(Nahrazeno(text, radek, "")), tady);
    EXPECT_EQ(udalost(Nahrazeno(text, "\nveta " + chyba.Cislo, "\nveta 999")), tady);
    std::string jinyStav = text;
    char& cislice = jinyStav[text.find("\nstav ") + 6];
    cislice = cislice == '1' ? '2' : '1';
    EXPECT_EQ(udalost(jinyStav), (std::pair{1UL, 0UL}));
    const std::size_t vysledek = text.find("\nvysledek 0");
    ASSERT_NE(vysledek, std::string::npos);
    EXPECT_NE(udalost(Nahrazeno(text, "\nvysledek 0", "\nvysledek 5")), (std::pair{0UL, 0UL}));
}

TEST(Pokus, CoNeniPokusemRekneJednouVetou) {
    std::vector<Stav> stavy;
    const std::string text = Hrac(12, 1).Odehraj(1, true, stavy);
    const auto uvod = [](std::string_view t) {
        const std::string vada = CtiPokus(t).Vada;
        return vada.substr(0, vada.find(':'));
    };
    EXPECT_EQ(uvod(text), "");
    for (const std::string_view cizi : {"", "\n", "PNG\x89\n", "Rysovna", "RYSOVNA1 POKUS x\n"})
        EXPECT_EQ(uvod(cizi), "Soubor není záznam pokusu.") << cizi;
    EXPECT_EQ(uvod(Nahrazeno(text, "POKUS 1", "POKUS 7")),
              "Záznam pokusu má verzi 7, tento program čte verzi 1.");
    EXPECT_EQ(uvod("RYSOVNA1 POKUS 1\nkonec ano\n"), "Záznam pokusu je poškozený");
    const std::size_t hlavicka = text.find('\n') + 1;
    for (std::size_t n = hlavicka; n < text.size(); ++n)
        EXPECT_EQ(uvod(text.substr(0, n)), "Záznam pokusu není celý") << n;
    for (const auto& [co, cim] :
         std::map<std::string, std::string>{{"uloha 12", "uloha 21"},
                                            {"uloha 12", "uloha"},
                                            {"\nstisk ", "\nstisk x"},
                                            {"\nstisk ", "\nskok "},
                                            {"\npriklad ", "\nchyba 1 1 a\npriklad "},
                                            {"\nkonec ano", "\nkonec ano\nkonec ano"},
                                            {"\nkonec ano", "\nkonec snad"},
                                            {"2026-09-01", "2026-13-01"}})
        EXPECT_EQ(uvod(Nahrazeno(text, co, cim)), "Záznam pokusu je poškozený") << cim;
}

/// Whatever was done to a file, it is read and played without a fault of memory or arithmetic.
TEST(Pokus, ZmenenyNicNerozbije) {
    const int kolik = Prostredi("RYSOVNA_ZMENENYCH", 400);
    std::mt19937 los(7);
    const auto cislo = [&los](std::size_t n) { return los() % n; };
    constexpr std::string_view ZNAKY = "0123456789-. %\nabkprsuS9";
    int prectenych = 0;
    int rozeslych = 0;
    std::vector<std::string> texty;
    for (int uloha = 1; uloha <= 20; ++uloha) {
        std::vector<Stav> stavy;
        texty.push_back(Hrac(uloha, 5).Odehraj(1, uloha % 2 == 0, stavy));
    }
    for (int i = 0; i < kolik; ++i) {
        std::string text = texty[cislo(texty.size())];
        for (std::size_t zmen = 1 + cislo(4); zmen > 0; --zmen) {
            const std::size_t kde = cislo(text.size() - 1);
            const std::size_t radek = text.find('\n', kde) + 1;
            const std::size_t dalsi = std::min(text.find('\n', radek), text.size() - 1) + 1;
            switch (cislo(4)) {
                case 0:  // a digit of a number for another
                    if (const auto n = text.find_first_of("0123456789", kde); n < text.size())
                        text[n] = ZNAKY[cislo(10)];
                    break;
                case 1:
                    text[kde] = ZNAKY[cislo(ZNAKY.size())];
                    break;
                case 2:
                    text.erase(radek, dalsi - radek);
                    break;
                default:
                    text.insert(radek, text.substr(radek, dalsi - radek));
            }
        }
        const PrectenyPokus precteny = CtiPokus(text);
        EXPECT_EQ(precteny.Co.has_value(), precteny.Vada.empty());
        if (!precteny.Co) continue;
        ++prectenych;
        Platna_ platna;
        Prehravka prehravka(*precteny.Co, {platna.Pic, platna.HidenPic});
        rozeslych += prehravka.DoKonce() ? 1 : 0;
        // Watched, it goes up to there, and each step is told.
        Prehravani sledovany(*precteny.Co, {platna.Pic, platna.HidenPic}, Tempo::Vyklad);
        EXPECT_EQ(sledovany.KdeSeRozesla().has_value(), prehravka.KdeSeRozesla().has_value());
        for (std::size_t k = 0; k < sledovany.Kroky().size(); ++k) {
            sledovany.NaKrok(k);
            if (const Udalost* u = sledovany.UdalostKroku(sledovany.Ted())) {
                EXPECT_NE(PopisKroku(u->Co, sledovany.Predtim(), sledovany.Hrany()), "");
            }
        }
    }
    EXPECT_GT(prectenych, kolik / 8);
    EXPECT_GT(rozeslych, prectenych / 8);
}

/// From the menu, with the screens: each series leaves its attempt, one that was left too, and it
/// comes out alike on planes that print other letters. Keys of the configuration turn it off, and
/// give a class its examples. Whether attempts are kept, are not, or cannot be, which is told once:
/// table and log are the same.
TEST(Pokus, KazdaSerieNaObrazovceNechaSvuj) {
    std::string vysledky;
    std::size_t zprav = 0;
    const auto hraj = [&](const std::string& klice, bool nelze = false) {
        Relace hra(1);
        if (nelze) hra.PisSoubor("Pokusy", "");
        hra.PisSoubor("../Rysovna.ini", hra.CtiSoubor("../Rysovna.ini") + klice);
        hra.Start();
        OdehrajSerii(hra, 12, "Žofie", 2, 3);
        hra.Stiskni("picKonec");
        hra.Cekej(600);
        hra.Stiskni("picKonec");
        hra.Cekej(1200);
        hra.SpustUlohu(1, "Eva", 3);
        hrac::RukaNaDesce ruka(hra);
        Sestroj(ruka, 1);
        hra.Stiskni("PicTop", 4);
        hra.Cekej(600);
        std::vector<Pokus> pokusy;
        const auto slozka = hra.DataDir() / "Pokusy";
        vysledky = hra.CtiSoubor("Vysledky.dat") + hra.CtiSoubor("12.res");
        zprav = hra.Host().Zpravy.size();
        if (!std::filesystem::is_directory(slozka)) return pokusy;
        for (const auto& soubor : std::filesystem::directory_iterator(slozka)) {
            const PrectenyPokus p =
                CtiPokus(hra.CtiSoubor("Pokusy/" + soubor.path().filename().string()));
            EXPECT_TRUE(p.Co) << p.Vada;
            if (p.Co) pokusy.push_back(*p.Co);
        }
        std::ranges::sort(pokusy, {}, &Pokus::CisloUlohy);
        return pokusy;
    };
    EXPECT_TRUE(hraj("Pokusy=Ne\r\n").empty());
    const std::string bezPokusu = vysledky;
    EXPECT_TRUE(hraj("", true).empty());
    EXPECT_EQ(vysledky, bezPokusu);
    EXPECT_EQ(zprav, 1U);
    const std::vector<Pokus> pokusy = hraj("");
    EXPECT_EQ(vysledky, bezPokusu);
    EXPECT_EQ(zprav, 0U);
    ASSERT_EQ(pokusy.size(), 2U);
    for (const Pokus& p : pokusy) {
        Platna_ platna;
        Prehravka prehravka(p, {platna.Pic, platna.HidenPic});
        EXPECT_FALSE(prehravka.DoKonce()) << prehravka.KdeSeRozesla()->Proc;
        EXPECT_TRUE(prehravka.Hrany().Hotova());
    }
    EXPECT_EQ(pokusy[0].Jmeno + pokusy[1].Jmeno, "EvaŽofie");
    EXPECT_FALSE(pokusy[0].Dokonceny);
    EXPECT_TRUE(pokusy[1].Dokonceny);
    EXPECT_EQ(pokusy[1].Priklady.size(), 2U);
    EXPECT_GT(pokusy[1].Priklady[1].Kdy, pokusy[1].Priklady[0].Udalosti.back().Co.Kdy);
    const auto zadani = [&](const char* klic) { return hraj(klic).at(0).Priklady.at(0).Zadani; };
    EXPECT_EQ(zadani("Seminko=70\r\n"), zadani("Seminko=70\r\n"));
    EXPECT_NE(zadani("Seminko=70\r\n"), zadani("Seminko=71\r\n"));
}

}  // namespace
}  // namespace rysovna::testy
