// A seventh board, hung in as the program's own are: a segment of a given length. docs/howto.md
// walks through it.

#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "base/Cisla.h"
#include "hrac/Relace.h"
#include "hrac/RukaNaDesce.h"
#include "rules/Chyby.h"
#include "rules/DialogKroku.h"
#include "screens/DeskaForm.h"
#include "screens/Desky.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/MapaPoli.h"

namespace rysovna::testy {
namespace {

using namespace hrac;

// ---- 1. Its tables and its dialogue ----------------------------------------------------------

constexpr PrvekNacrtu NACRT[] = {
    CaraNacrtu("a", {60, 230, 0, 90, 6}, {60, 90}, {230, 90}, {140, 96})};
constexpr PismenoNacrtu PISMENA[] = {{"A", 44, 82}, {"B", 238, 82}};
constexpr Vzorec DELKA{10, 5};  // cm
constexpr int KONSTRUKCE = 1, HOTOVO = 2;

// ---- 2. What it charges ----------------------------------------------------------------------

constexpr DruhChyby ZAPSANA{901, 1, {}}, NARYSOVANA{902, 2, {}};

class UseckaDialog final : public DialogSeStavem<StavKroku> {
public:
    UseckaDialog(Misc& misc, Platna platna)
        : DialogSeStavem(misc, platna,
                         {.Uvod = "Narýsuj úsečku AB:",
                          .NacrtFigury = {NACRT, PISMENA},
                          .Jmena = {},
                          .CenyPocatku = {},
                          .Ocekavane = {1, 2},
                          .Nedokoncena = CHYBA_NEDOKONCENA}) {}

protected:
    [[nodiscard]] int PosledniFaze() const override { return HOTOVO; }
    [[nodiscard]] std::vector<Zadana> Zadane() const override {
        return {{Hrany().Nazev1, Hrany().Jednotka1}};
    }
    [[nodiscard]] bool VylosujHodnoty(const Priklad& /*p*/, HodnotyPrikladu& hodnoty) override {
        hodnoty[0] = misc_.Generator.D(DELKA.Rozpeti, DELKA.Zaklad);
        return true;
    }
    void Nabidni(Nastroj /*co*/) override {
        stav_.ZvolenyUtvar = USECKA;
        OtevriSeznam(Seznam::Obsah::Jmena, {{"AB", true, true, "AB"}});
    }
    void ZvolRadek(std::size_t /*i*/) override {
        ZacniUtvar("A", "B");
        Vyzvi("úsečka AB, |AB| = ", " cm");
        Zapis(USECKA, "a");
    }
    void PosudStisk(const Zachyt& /*zachyt*/) override {
        if (Cislo(stav_.Rysovane.Hodnota.Text) != Hodnoty()[0]) PridejChybu(misc_, ZAPSANA);
    }
    void PosudOdecet(double odecet) override {
        if (odecet != Hodnoty()[0]) PridejChybu(misc_, NARYSOVANA);
    }
    void Uzavri() override { stav_.HotovaKonstrukce = true; }
    [[nodiscard]] int ChybnychPrvku() const override { return 0; }
    void UkazFazi(Panel& panel) const override {
        panel.Vyzva = "Zvol úsečku a narýsuj ji.";
        const bool zacina = stav_.Faze == KONSTRUKCE && MuzeZacit();
        using enum Nastroj;
        UkazNastroje(panel, {Usecka, Zadny, Zadny, Zadny, Zpet, Zadny},
                     {zacina, false, false, false, stav_.Faze > KONSTRUKCE});
    }
};

// ---- 3. Its row, and the task that it plays --------------------------------------------------

constexpr Slot POLE[] = {mapa::Druh, mapa::Nazev1, mapa::Jednotka1};
constexpr Nastroj NASTROJE[] = {Nastroj::Usecka, Nastroj::Zpet};
constexpr RadekDesky DESKA = DeskaS<DeskaForm>(
    "UseckaForm", {POLE}, NASTROJE, [](Misc& misc, Platna platna) -> std::unique_ptr<Dialog> {
        return std::make_unique<UseckaDialog>(misc, platna);
    });
constexpr int ULOHA = 3;  // it takes the place of that task, and its pictures

std::shared_ptr<Form> VyrobSedm(Sezeni& s, int cisloUlohy) {
    return cisloUlohy == ULOHA ? DESKA.VyrobForm(s, DESKA) : VyrobDesku(s, cisloUlohy);
}

// ---- 4. Its examples and sentences -----------------------------------------------------------

void PridejData(const Relace& hra) {
    const auto radek = [](std::string_view text) { return ZakodujRadek(Do1250(text)) + "\r\n"; };
    hra.PisSoubor("03.dat", radek("1#a#cm"));
    hra.PisSoubor("Errors.dat", hra.CtiSoubor("Errors.dat") +
                                    radek("901 Zapsaná délka neodpovídá zadání.|") +
                                    radek("902 Narýsovaná délka neodpovídá zadání.|"));
}

// ---- 5. Its pupil ----------------------------------------------------------------------------

/// Constructs the example; o: by how many centimetres wrong the value is typed, and drawn.
void SestrojUsecku(Ruka& ruka, int oZapsane = 0, int oNarysovane = 0) {
    constexpr int PX_CM = 8;
    constexpr Bod A{60, 60};
    const int cm = ruka.Hodnota("a");
    ruka.Oznac({100, 90});
    ruka.ZasunPanel();
    ruka.Nastroj(1).Vyber("AB").Napis(cm + oZapsane);
    ruka.Tahni(A, {A.X, A.Y + PX_CM * (cm + oNarysovane)});
}

class SedmaDeska : public testing::TestWithParam<Relace::Cim> {};

TEST_P(SedmaDeska, OdehrajeSeJakoOstatni) {
    Relace hra(1, GetParam(), VyrobSedm);
    PridejData(hra);
    hra.Start();
    hra.SpustUlohu(ULOHA, "Žák", 2);
    ASSERT_EQ(hra.JmenoVpredu(), DESKA.Jmeno);
    RukaNaDesce ruka(hra);

    SestrojUsecku(ruka);
    EXPECT_TRUE(ruka.Hrany().Hotova());
    ruka.Zkontroluj();
    EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, 0);
    hra.Stiskni("picPokracuj");
    hra.Cekej(600);

    SestrojUsecku(ruka, 1, 5);
    ruka.Zkontroluj();
    ASSERT_EQ(hra.Pamet().PocetChybnychKroku, 2);
    EXPECT_EQ(hra.Pamet().ChybneKroky[1].Text, "Zapsaná délka neodpovídá zadání.  -1 bod");
    EXPECT_EQ(hra.Pamet().ChybneKroky[2].Text, "Narýsovaná délka neodpovídá zadání.  -2 body");
    hra.Stiskni("picPokracuj");
    hra.Cekej(600);
    EXPECT_EQ(hra.JmenoVpredu(), "TabulkaForm");
    EXPECT_EQ(hra.Pamet().KladneBody, 17);
}

INSTANTIATE_TEST_SUITE_P(Cim, SedmaDeska,
                         testing::Values(Relace::Cim::Mysi, Relace::Cim::Klavesami));

}  // namespace
}  // namespace rysovna::testy
