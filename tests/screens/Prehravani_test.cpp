// An attempt watched in the window: the keys and presses of whoever watches, what is shown, and
// that nothing is left behind.

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "platform/Bitmapa.h"
#include "platform/Malir.h"
#include "platform/Pisma.h"
#include "platform/Stroj.h"
#include "rules/VolaniDialogu.h"
#include "screens/DeskaForm.h"
#include "screens/PrehravaniForm.h"
#include "screens/Start.h"
#include "store/TextPokusu.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

using namespace hrac;

/// Thinks for long now and then, and draws every other object too large.
class NepresnaRuka final : public RukaNaDesce {
public:
    using RukaNaDesce::RukaNaDesce;

protected:
    void TahPoPlose(Bod odkud, Bod kam) override {
        ++tahu_;
        if (tahu_ % 2 == 0) kam.X += 25;
        if (tahu_ == 2) Hra().Cekej(185'000);
        RukaNaDesce::TahPoPlose(odkud, kam);
    }

private:
    int tahu_ = 0;
};

/// What a folder holds, by paths below it.
std::map<std::string, std::string> Obsah(const std::filesystem::path& slozka) {
    std::map<std::string, std::string> obsah;
    for (const auto& s : std::filesystem::recursive_directory_iterator(slozka))
        obsah[s.path().string()] = CelySoubor(s.path()).value_or("");
    return obsah;
}

/// The attempt of an unfinished series of a task: one example with wrong steps, another one begun.
std::string PokusSChybami(int uloha) {
    Relace hra(5);
    hra.Start();
    hra.SpustUlohu(uloha, "Žofie", 3);
    NepresnaRuka ruka(hra);
    Sestroj(ruka, 3);
    ruka.Zkontroluj();
    hra.Stiskni("picPokracuj");
    hra.Cekej(1600);
    hra.Stiskni("PicTop", 4);
    hra.Cekej(600);
    const auto soubor = std::filesystem::directory_iterator(hra.DataDir() / "Pokusy")->path();
    return hra.CtiSoubor("Pokusy/" + soubor.filename().string());
}

/// The program as it is started to show a file.
class Divak {
public:
    explicit Divak(const std::string& pokus) {
        hra_.PisSoubor("zak.pokus", pokus);
        predtim_ = Obsah(hra_.DataDir().parent_path());
        proc_ = ZacniPrehravani(hra_.Pamet(), hra_.DataDir() / "zak.pokus");
    }
    ~Divak() {
        EXPECT_EQ(Obsah(hra_.DataDir().parent_path()), predtim_) << "something was written";
    }
    Divak(const Divak&) = delete;
    Divak& operator=(const Divak&) = delete;

    [[nodiscard]] Relace& Hra() { return hra_; }
    [[nodiscard]] const std::string& Proc() const { return proc_; }
    [[nodiscard]] PrehravaniForm& Form_() {
        return static_cast<PrehravaniForm&>(*hra_.Najdi("PrehravaniForm"));
    }
    [[nodiscard]] const Prehravani& Co() { return Form_().Co(); }
    /// The step that is shown is the one that was written down.
    void Souhlasi() {
        const KrokPrehravani& k = Co().Ted();
        const Udalost* u = Co().UdalostKroku(k);
        EXPECT_EQ(OtiskTabulek(Co().Hrany().Pamet(), Co().Hrany()),
                  u == nullptr ? Co().PrikladKroku(k).Otisk : u->Otisk);
        EXPECT_EQ(&Form_().Deska().Dialogem(), &Co().Hrany());
        const bool karta = Form_().PicKarta.Visible;
        EXPECT_EQ(karta, k.Chyba);
        if (karta) {
            const std::string& text = Form_().txtKarta.Text;
            EXPECT_NE(text.find(u->Chyby[0].Text), std::string::npos) << text;
        }
    }

private:
    Relace hra_{1};
    std::map<std::string, std::string> predtim_;
    std::string proc_;
};

TEST(Prehravani, KlavesamiAMysiSeDostaneVsude) {
    for (const int uloha : {1, 9, 20}) {
        SCOPED_TRACE(uloha);
        Divak divak(PokusSChybami(uloha));
        ASSERT_EQ(divak.Proc(), "");
        Relace& hra = divak.Hra();
        // By itself to the end; long thinking takes seconds.
        ASSERT_GT(divak.Co().Kroky().size(), 20U);
        EXPECT_LT(divak.Co().Delka(), 120'000U);
        bool premyslel = false;
        for (int i = 0; i < 1300 && divak.Form_().Jede(); ++i) {
            hra.Cekej(100);
            divak.Souhlasi();
            premyslel |= divak.Form_().CoSeRika().starts_with("Přemýšlení 3 min");
        }
        EXPECT_TRUE(premyslel);
        EXPECT_TRUE(divak.Co().NaKonci());
        EXPECT_FALSE(divak.Form_().Jede());
        // The board is seen with the strip over it: its plane, which is drawn on.
        Bitmapa obraz(NAVRH_SIRKA, NAVRH_VYSKA, 0);
        Malir().Namaluj({obraz.Body.data(), obraz.Sirka, obraz.Vyska, obraz.Sirka},
                        hra.Host().Okna(), 0);
        const DeskaForm& deska = divak.Form_().Deska();
        int jinych = 0;
        for (int y = 0; y < deska.Pic.Height - 1; ++y) {
            for (int x = 0; x < deska.Pic.Width; ++x) {
                const Pixel videt = *(obraz.Pohled().Radka(deska.Pic.Top + y) + deska.Pic.Left + x);
                const Barva ma = deska.Pic.PlochaNeboNic()->Point(x, y);
                jinych += (videt & 0xFFFFFF) != (DoPixelu(ma) & 0xFFFFFF) ? 1 : 0;
            }
        }
        EXPECT_LT(jinych, 384 * 335 / 8) << "more than the sketch, arrows and the mouse";
        // By steps back and forward again.
        const std::size_t posledni = divak.Co().Kroky().size() - 1;
        for (std::size_t k = posledni; k > posledni - 5; --k) {
            EXPECT_EQ(divak.Co().Krok(), k);
            hra.Klavesa("Left");
            divak.Souhlasi();
        }
        hra.Klavesa("Right");
        EXPECT_EQ(divak.Co().Krok(), posledni - 4);
        hra.Klavesa("Home");
        EXPECT_EQ(divak.Co().Krok(), 0U);
        EXPECT_FALSE(divak.Form_().CiziMys());
        hra.Klavesa("End");
        EXPECT_EQ(divak.Co().Krok(), posledni);
        // On the bar to each mark of a wrong step.
        const PictureBox& pas = hra.Prvek<PictureBox>("PicPas");
        int chyb = 0;
        for (std::size_t k = 0; k <= posledni; ++k) {
            const KrokPrehravani& krok = divak.Co().Kroky()[k];
            if (!krok.Chyba) continue;
            ++chyb;
            const double x =
                5 + static_cast<double>(krok.Kdy) * (pas.Width - 11) / divak.Co().Delka();
            hra.Cekej(600);
            hra.Stiskni("PicPas", 0, static_cast<int>(x + 0.5), 6);
            EXPECT_EQ(divak.Co().Krok(), k);
            divak.Souhlasi();
        }
        EXPECT_GT(chyb, 0);
        // And by keys from one to the next.
        hra.Klavesa("Home");
        for (int i = 0; i < chyb; ++i) {
            hra.Klavesa("Right", SHIFT);
            EXPECT_TRUE(divak.Co().Ted().Chyba);
        }
        hra.Klavesa("Right", SHIFT);
        EXPECT_TRUE(divak.Co().NaKonci());
        hra.Klavesa("Left", SHIFT);
        EXPECT_TRUE(divak.Co().Ted().Chyba);
        // A press on the board goes on, another one stops; step by step it stops by itself.
        hra.Klavesa("Home");
        hra.Cekej(600);
        hra.StiskniMisto(300, 300);
        EXPECT_TRUE(divak.Form_().Jede());
        hra.Cekej(3000);
        hra.Klavesa("Space");
        EXPECT_FALSE(divak.Form_().Jede());
        const std::uint32_t cas = divak.Co().Cas();
        hra.Cekej(3000);
        EXPECT_EQ(divak.Co().Cas(), cas);
        for (int i = 0; i < 5; ++i) hra.Klavesa("Down");
        const std::size_t krok = divak.Co().Krok();
        hra.Klavesa("Space");
        hra.Cekej(9000);
        EXPECT_FALSE(divak.Form_().Jede());
        EXPECT_EQ(divak.Co().Krok(), krok + 1);
        // The way out is the end of the program.
        hra.Klavesa("Escape");
        EXPECT_TRUE(hra.Host().Okna().JeKonec());
        EXPECT_EQ(hra.Najdi("PrehravaniForm"), nullptr);
        EXPECT_TRUE(hra.Host().Zpravy.empty());
    }
}

/// Each task, one of its examples: told step by step in words that fit, to ten points.
TEST(Prehravani, PredvedeKazdouUlohu) {
    const auto predved = [](int uloha, std::uint32_t seminko) {
        Relace hra;
        const auto predtim = Obsah(hra.DataDir().parent_path());
        EXPECT_EQ(ZacniPredvedeni(hra.Pamet(), uloha, seminko), "");
        const auto drzeny = hra.Host().Okna().Najdi("PrehravaniForm");
        if (!drzeny) return ZadanyPriklad{};
        auto& form = static_cast<PrehravaniForm&>(*drzeny);
        const auto seVejde = [](const Label& l) {
            EXPECT_LE(SirkaTextu(l.Font, l.Caption), l.Width) << l.Caption;
            EXPECT_NE(l.Caption, "");
        };
        while (!form.Co().NaKonci()) {
            hra.Klavesa("Right");
            seVejde(form.lblKrok);
            seVejde(form.lblDal);
            EXPECT_FALSE(form.PicKarta.Visible);
        }
        EXPECT_FALSE(form.Co().KdeSeRozesla());
        EXPECT_EQ(form.lblKrok.Caption, "Kontrola: 10 bodů z 10");
        EXPECT_TRUE(form.Co().Hrany().Hotova());
        EXPECT_EQ(Obsah(hra.DataDir().parent_path()), predtim);
        return form.Co().Co().Priklady.at(0).Zadani;
    };
    for (int uloha = 1; uloha <= 20; ++uloha) {
        SCOPED_TRACE(uloha);
        EXPECT_NE(predved(uloha, 0), predved(uloha, 3));
    }
}

/// From the menu, as a page without arguments does: the game is afterwards what it was.
TEST(Prehravani, ZNabidkyAZpetDoHry) {
    const Pokus pokus = *CtiPokus(PokusSChybami(4)).Co;
    Relace hra(3);
    hra.Start();
    const auto predtim = Obsah(hra.DataDir().parent_path());
    bool skoncilo = false;
    ASSERT_EQ(Prehraj(hra.Pamet(), pokus, Tempo::Zaka, [&] { skoncilo = true; }), "");
    hra.Cekej(5000);
    hra.Klavesa("End");
    hra.Stiskni("picOvladac", 5);
    EXPECT_TRUE(skoncilo);
    EXPECT_FALSE(hra.Host().Okna().JeKonec());
    EXPECT_EQ(hra.JmenoVpredu(), "SelectForm");
    EXPECT_EQ(Obsah(hra.DataDir().parent_path()), predtim);
    OdehrajSerii(hra, 12, "Eva", 1, 3);
    EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
}

TEST(Prehravani, CoNejdePrehratRekneJednouVetou) {
    const std::string text = PokusSChybami(1);
    const auto proc = [](const std::string& pokus) {
        Divak divak(pokus);
        EXPECT_EQ(divak.Hra().Najdi("PrehravaniForm"), nullptr);
        return divak.Proc().substr(divak.Proc().find(": ") + 2);
    };
    EXPECT_EQ(proc("Dobrý den"), "Soubor není záznam pokusu.");
    EXPECT_EQ(proc(text.substr(0, text.size() / 2)).substr(0, 26), "Záznam pokusu není celý");
    std::string jiny = text;
    jiny[jiny.find("\nstav ") + 6] ^= 1;
    EXPECT_EQ(proc(jiny), "Záznam nejde přehrát (příklad 1: konstrukce je jiná).");
    Relace hra;
    const std::string neni = ZacniPrehravani(hra.Pamet(), hra.DataDir() / "neni.pokus");
    EXPECT_NE(neni.find("neni.pokus: nejde přečíst"), std::string::npos) << neni;
    // Where it comes apart later, it is shown up to there.
    jiny = text;
    jiny[jiny.rfind("\nstav ", jiny.find("\nkontrola ")) + 6] ^= 1;
    Divak divak(jiny);
    ASSERT_EQ(divak.Proc(), "");
    divak.Hra().Klavesa("End");
    EXPECT_NE(divak.Form_().CoSeRika().find("Dál záznam přehrát nejde (příklad 1, krok " +
                                            std::to_string(divak.Form_().Co().Kroky().size()) +
                                            ": konstrukce je jiná)."),
              std::string::npos)
        << divak.Form_().CoSeRika();
}

}  // namespace
}  // namespace rysovna::testy
