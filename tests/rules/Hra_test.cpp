// The rules alone: an example of every board and of both tangent families, played and judged with
// no screen, no font and no file there.

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "podpora/RukaPravidel.h"
#include "rules/CtyrUDialog.h"
#include "rules/Kontrola.h"
#include "rules/LichoDialog.h"
#include "rules/Misc.h"
#include "rules/RovnoDialog.h"
#include "rules/TecnyDialog.h"
#include "rules/Troj1Dialog.h"
#include "rules/Troj2Dialog.h"
#include "rules/Ulohy.h"
#include "store/MapaPoli.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

template <class D>
std::unique_ptr<Dialog> Vyrob(Misc& misc, Platna platna) {
    return std::make_unique<D>(misc, platna);
}

/// A task, how its dialogue is made, and a line of its data.
struct Priprava {
    int Uloha;
    std::unique_ptr<Dialog> (*VyrobDialog)(Misc&, Platna);
    std::string_view Radek;
};
constexpr Priprava DESKY[] = {
    {1, Vyrob<Troj1Dialog>, "1#sss, od strany c#a#b#c#cm#cm#cm#usecka#kruznice#kruznice"},
    {4, Vyrob<Troj2Dialog>, "02#nejprve úhel#a#va#gama#cm#cm#°#usecka##poloprimka##rovnobezka#"},
    {9, Vyrob<CtyrUDialog>, "02#ABC#b#a#beta#cm#cm#°#sus#d#cm#kruznice#KA#gama#°#poloprimka#CXCB"},
    {10, Vyrob<RovnoDialog>, "04#ABC#b#e#a#cm#cm#cm#sss#bod#AC#obrazbodu#B########"},
    {11, Vyrob<LichoDialog>,
     "02#ABC#b#a#beta#cm#cm#°#sus#BC||DA##rovnobezka#va#gama#°#poloprimka#CXCB"},
    {12, Vyrob<TecnyDialog>, "04#A##a####B#prusecik#C#stred#k#kruznice##########"},
    {18, Vyrob<TecnyDialog>,
     "01#k##a####A1#prusecik#A2#prusecik#t1#rovnobezka#t2#rovnobezka########"},
};

class Stolek final : public RukaPravidel {
public:
    /// At the beginning of an example.
    Stolek(Misc& misc, const Priprava& p) : dialog_(p.VyrobDialog(misc, Platna_())) {
        dialog_->NovyPriklad();
        dialog_->NoveZadani();
    }

protected:
    [[nodiscard]] Dialog& Hra() override { return *dialog_; }
    [[nodiscard]] const Dialog& Hra() const override { return *dialog_; }

private:
    std::unique_ptr<Dialog> dialog_;
};

/// The session before an example of the task: its one line read, sentences that only tell their
/// number.
Misc Otevri(const Priprava& p) {
    Misc misc;
    misc.Vety = [](int cislo) { return std::vector<std::string>{"Věta " + std::to_string(cislo)}; };
    misc.CisloUlohy = static_cast<std::uint8_t>(p.Uloha);
    misc.PocetPrikladu = 1;
    std::string_view zbytek = p.Radek;
    for (const Slot& slot : MapaDesky(DeskaUlohy(p.Uloha)).Pole) {
        const std::size_t konec = zbytek.find('#');
        slot.V(misc.Priklady[1]) = zbytek.substr(0, konec);
        if (konec == std::string_view::npos) break;
        zbytek.remove_prefix(konec + 1);
    }
    return misc;
}

class Pravidla : public testing::TestWithParam<Priprava> {};

TEST_P(Pravidla, OdehrajiPrikladSama) {
    for (std::uint32_t seminko = 1; seminko <= 5; ++seminko) {
        SCOPED_TRACE(seminko);
        Misc misc = Otevri(GetParam());
        misc.Generator.Zasej(seminko);
        Stolek stul(misc, GetParam());
        const auto& dialog = stul.Hrany();
        hrac::Sestroj(stul, seminko);
        EXPECT_TRUE(dialog.Hotova());
        stul.Zkontroluj();
        EXPECT_EQ(misc.SoucetZapornychBodu, 0) << misc.ChybneKroky[1].Text;
        EXPECT_EQ(Vyuctuj(misc, dialog.Hotova()), Verdikt::Bezchybne);
        EXPECT_EQ(misc.KladneBody, 10);
    }
}

TEST_P(Pravidla, NedokoncenyPrikladStojiDesetBodu) {
    Misc misc = Otevri(GetParam());
    misc.Generator.Zasej(1);
    Stolek stul(misc, GetParam());
    stul.Zkontroluj();
    EXPECT_EQ(Vyuctuj(misc, stul.Hrany().Hotova()), Verdikt::SChybami);
    EXPECT_EQ(misc.ZaporneBody, 10);
    EXPECT_EQ(misc.ChybneKroky[misc.PocetChybnychKroku].Cislo, "300");
    EXPECT_EQ(misc.ChybneKroky[misc.PocetChybnychKroku].Text.substr(0, 9), "Věta 300");
}

std::string JmenoUlohy(const testing::TestParamInfo<Priprava>& p) {
    return "uloha" + std::to_string(p.param.Uloha);
}
INSTANTIATE_TEST_SUITE_P(Desky, Pravidla, testing::ValuesIn(DESKY), JmenoUlohy);

}  // namespace
}  // namespace rysovna::testy
