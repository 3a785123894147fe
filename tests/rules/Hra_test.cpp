// The rules alone: an example of every board and of both tangent families, played and judged with
// no screen, no font and no file there.

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "podpora/RukaPravidel.h"
#include "rules/Kontrola.h"
#include "rules/Prehravka.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

/// At the beginning of an example.
class Stolek final : public RukaPravidel {
public:
    explicit Stolek(Misc& misc)
        : dialog_(VyrobDialog(DeskaUlohy(misc.CisloUlohy), misc, Platna_())) {
        dialog_->NovyPriklad();
        dialog_->NoveZadani();
    }

protected:
    [[nodiscard]] Dialog& Hra() override { return *dialog_; }
    [[nodiscard]] const Dialog& Hra() const override { return *dialog_; }

private:
    std::unique_ptr<Dialog> dialog_;
};

/// Five examples without a fault, and one that is not begun.
void Odehraj(int uloha, std::string_view radek) {
    for (std::uint32_t seminko = 0; seminko <= 5; ++seminko) {
        SCOPED_TRACE(std::to_string(uloha) + ", seed " + std::to_string(seminko));
        const bool hraje = seminko > 0;
        Misc misc = PametPrikladu(uloha, radek);
        misc.Vety = [](int cislo) { return std::vector{"Věta " + std::to_string(cislo)}; };
        misc.Generator.Zasej(seminko);
        Stolek stul(misc);
        if (hraje) hrac::Sestroj(stul, seminko);
        EXPECT_EQ(stul.Hrany().Hotova(), hraje);
        stul.Zkontroluj();
        EXPECT_EQ(Vyuctuj(misc, hraje), hraje ? Verdikt::Bezchybne : Verdikt::SChybami);
        EXPECT_EQ(misc.KladneBody, hraje ? 10 : 0) << misc.ChybneKroky[1].Text;
        EXPECT_EQ(misc.ZaporneBody, hraje ? 0 : 10);
        const std::string& konec = misc.ChybneKroky[misc.PocetChybnychKroku].Text;
        EXPECT_TRUE(konec.starts_with(hraje ? "" : "Věta 300")) << konec;
    }
}

TEST(Pravidla, OdehrajiPrikladSama) {
    Odehraj(1, "1#sss, od strany c#a#b#c#cm#cm#cm#usecka#kruznice#kruznice");
    Odehraj(4, "02#nejprve úhel#a#va#gama#cm#cm#°#usecka##poloprimka##rovnobezka#");
    Odehraj(9, "02#ABC#b#a#beta#cm#cm#°#sus#d#cm#kruznice#KA#gama#°#poloprimka#CXCB");
    Odehraj(10, "04#ABC#b#e#a#cm#cm#cm#sss#bod#AC#obrazbodu#B########");
    Odehraj(11, "02#ABC#b#a#beta#cm#cm#°#sus#BC||DA##rovnobezka#va#gama#°#poloprimka#CXCB");
    Odehraj(12, "04#A##a####B#prusecik#C#stred#k#kruznice##########");
    Odehraj(18, "01#k##a####A1#prusecik#A2#prusecik#t1#rovnobezka#t2#rovnobezka########");
}

}  // namespace
}  // namespace rysovna::testy
