#include "base/Zasobnik.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace rysovna {
namespace {

struct Pan final : Majitel {
    bool Pryc = false;
    [[nodiscard]] bool Skoncil() const override { return Pryc; }
};

/// Works within works, with a clock of its own.
class ZasobnikTest : public testing::Test, public SmiCekat {
protected:
    struct Drzene {
        std::string& Zapis;
        ~Drzene() { Zapis += "-"; }
    };
    Cinnost<int> Secti(int a, int b) {
        const Drzene drzene{Zapis};
        co_await Cekani(10);
        if (b < 0) throw std::runtime_error("chyba");
        co_return a + b;
    }
    Cinnost<> Uvnitr(int b, std::shared_ptr<Pan> pan) {
        const Drzene drzene{Zapis};
        int soucet = 0;
        try {
            soucet = co_await Secti(1, b).Komu(pan);
            soucet += co_await Secti(soucet, 1);
        } catch (const std::runtime_error&) {
            Zapis += "!";
        }
        Zapis += std::to_string(soucet);
        if (b == -2) throw std::logic_error("chyba");
    }
    Cinnost<> Dokud() {
        co_await Cekani([this] { return Uz; }, 1000);
        Zapis += "uz";
        co_await Cekani(0);
        co_await Cekani::SVstupem(0);
        Zapis += "prijem";
    }
    /// The loop.
    void Cekej(std::uint32_t ms) {
        for (const std::uint32_t konec = Ted + ms; Ted != konec; ++Ted)
            while (Zasobnik_.Pokracuj() != Zasobnik::Krok::Nic) {
            }
    }

    std::string Zapis;
    bool Uz = false, Konec = false;
    std::uint32_t Ted = 0xFFFFFFF8;  // the tick count wraps soon
    Zasobnik Zasobnik_{[this] { return Ted; }, [this] { return Konec; }};
};

TEST_F(ZasobnikTest, PraceVPraciDavajiHodnotyChybyAKonciSMajitelem) {
    struct Pripad {
        int B;
        bool Pryc, Konec;
        std::string_view Zapis;
    };
    // Secti ends, then its second call, then Uvnitr.
    const Pripad PRIPADY[] = {
        {5, false, false, "--13-"}, {-1, false, false, "-!0-"}, {5, true, false, "--1-"},
        {-1, true, false, "--1-"},  {5, false, true, "--1-"},
    };
    for (const Pripad& p : PRIPADY) {
        SCOPED_TRACE(&p - PRIPADY);
        Zapis.clear();
        Konec = false;
        const auto pan = std::make_shared<Pan>();
        Zasobnik_.Spust(Uvnitr(p.B, pan));
        Cekej(5);
        EXPECT_EQ(Zapis, "");
        EXPECT_TRUE(Zasobnik_.Ceka(*pan));
        pan->Pryc = p.Pryc;
        Konec = p.Konec;
        Cekej(100);
        EXPECT_EQ(Zapis, p.Zapis);
        EXPECT_EQ(Zasobnik_.Hloubka(), 0U);
        EXPECT_EQ(pan.use_count(), 1);
    }
}

TEST_F(ZasobnikTest, CekaniMaPodminkuAKonec) {
    Zasobnik_.Spust(Dokud());
    Cekej(500);
    EXPECT_EQ(Zasobnik_.Zbyva(), 500U);
    Uz = true;
    EXPECT_EQ(Zasobnik_.Pokracuj(1), Zasobnik::Krok::Nic) << "below the floor";
    EXPECT_EQ(Zasobnik_.Pokracuj(), Zasobnik::Krok::Ceka);
    EXPECT_EQ(Zapis, "uz");
    EXPECT_EQ(Zasobnik_.Pokracuj(), Zasobnik::Krok::Dobehl);
    EXPECT_EQ(Zapis, "uzprijem");

    // A fault comes out of the loop; what waits besides stays, and is ended when it is told.
    Zapis.clear();
    Zasobnik_.Spust(Uvnitr(1, nullptr));
    Zasobnik_.Spust(Uvnitr(-2, nullptr));
    EXPECT_THROW(Cekej(50), std::logic_error);
    EXPECT_EQ(Zapis, "-!0-");
    EXPECT_EQ(Zasobnik_.Hloubka(), 1U);
    Zasobnik_.Zrus();
    EXPECT_EQ(Zapis, "-!0---");
}

}  // namespace
}  // namespace rysovna
