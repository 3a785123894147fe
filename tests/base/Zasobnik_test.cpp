#include "base/Zasobnik.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace rysovna {
namespace {

/// Works on a clock of their own, whose count wraps soon. How handlers wait for each other, and end
/// with their forms, is seen at the screens.
class ZasobnikTest : public testing::Test, public SmiCekat {
protected:
    struct Drzene {
        std::string& Zapis;
        ~Drzene() { Zapis += "-"; }
    };
    Cinnost<int> Selze(int kolikate) {
        const Drzene drzene{Zapis};
        co_await Cekani(10);
        if (kolikate > 1) throw std::runtime_error("chyba");
        co_return kolikate;
    }
    Cinnost<> Zkusi() {
        Zapis += std::to_string(co_await Selze(1));
        try {
            co_await Selze(2);
        } catch (const std::runtime_error&) {
            Zapis += "!";
        }
        co_await Selze(3);
    }
    Cinnost<> Dokud() {
        const Drzene drzene{Zapis};
        co_await Cekani([this] { return Uz; }, 1000);
        Zapis += "uz";
        co_await Cekani(0);
        co_await Cekani::SVstupem(0);
        Zapis += "prijem";
        co_await Cekani([] { return false; });
    }

    std::string Zapis;
    bool Uz = false;
    std::uint32_t Ted = 0xFFFFFFF8;
    Zasobnik Zasobnik_{[this] { return Ted; }, [] { return false; }};
};

TEST_F(ZasobnikTest, HodnotaChybaPodminkaDnoAKonec) {
    using enum Zasobnik::Krok;
    Zasobnik_.Spust(Dokud());
    Zasobnik_.Spust(Zkusi());
    for (int i = 0; i < 2; ++i) {
        Ted += 9;
        EXPECT_EQ(Zasobnik_.Pokracuj(), Nic);
        EXPECT_EQ(Zasobnik_.Zbyva(), 1U);
        ++Ted;
        EXPECT_EQ(Zasobnik_.Pokracuj(), Ceka);
    }
    Ted += 10;
    EXPECT_THROW(Zasobnik_.Pokracuj(), std::runtime_error);
    EXPECT_EQ(Zapis, "-1-!-") << "what a work holds goes before its value or fault is told";
    EXPECT_EQ(Zasobnik_.Hloubka(), 1U) << "the other one stays";
    Ted += 470;
    EXPECT_EQ(Zasobnik_.Zbyva(), 500U);
    Uz = true;
    EXPECT_EQ(Zasobnik_.Pokracuj(1), Nic) << "below the floor";
    EXPECT_EQ(Zasobnik_.Pokracuj(), Ceka);
    EXPECT_EQ(Zapis, "-1-!-uz");
    EXPECT_EQ(Zasobnik_.Pokracuj(), Ceka);
    EXPECT_EQ(Zasobnik_.Zbyva(), std::nullopt);
    Zasobnik_.Zrus();
    EXPECT_EQ(Zapis, "-1-!-uzprijem-");
}

}  // namespace
}  // namespace rysovna
