// What the panel prints while whole examples are played: nothing clipped, nothing over another.
#include <gtest/gtest.h>

#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "platform/Pisma.h"

namespace rysovna::hrac {
namespace {

constexpr int NEJVIC_ZA_JMENEM = 6;  // px, of the sign of a perpendicular, as untypeset
constexpr int KONEC_KARTY = 217;     // px, the right edge of the card with the panel's texts

/// Looks at the board at each list and each prompt.
class Korektor : public RukaNaDesce {
public:
    using RukaNaDesce::RukaNaDesce;
    int Vyzev = 0;

protected:
    void StiskRadku(int i, std::string_view text) override {
        Prohledni();
        RukaNaDesce::StiskRadku(i, text);
        Prohledni();
    }

private:
    void Prohledni() {
        const Form& deska = *Hra().Vpredu();
        const Label* vyzva = nullptr;
        const Label* znak = nullptr;
        for (const Ovladac* o : deska.Ovladace()) {
            if (!o->Visible || o->Druh != Ovladac::Typ::Label) continue;
            if (o->Rodic != nullptr && !o->Rodic->Visible) continue;
            const auto& l = static_cast<const Label&>(*o);
            if (l.Name == "lblText3") vyzva = &l;
            if (l.Name == "lblText4") znak = &l;
            if (!l.Sazba) continue;
            const auto radky = RozdelNaRadky(l.Font, l.Tisteny(), l.WordWrap ? l.Width : 0);
            EXPECT_LE(static_cast<int>(radky.size()) * VyskaRadku(l.Font), l.Height + 2)
                << l.Name << ": " << l.Caption;
            const int meze = l.Name == "lblZadani" ? KONEC_KARTY - l.Left : l.Width;
            for (const std::string& r : radky)
                EXPECT_LE(SirkaTextu(l.Font, r), meze) << l.Name << ": " << l.Caption;
        }
        if (vyzva != nullptr && znak != nullptr && znak->Top == vyzva->Top)
            LeziVMezere(*vyzva, *znak);
    }

    /// The sign of a perpendicular has its place where the prompt has a gap.
    void LeziVMezere(const Label& vyzva, const Label& znak) {
        ++Vyzev;
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
};

TEST(SazbaPanelu, NicNeniOriznuteAniPresSebe) {
    int vyzev = 0;
    for (int uloha = 1; uloha <= 20; ++uloha) {
        SCOPED_TRACE(uloha);
        Relace hra(static_cast<std::uint32_t>(uloha));
        hra.Start();
        hra.SpustUlohu(uloha, "Žák", 5);
        for (std::uint32_t seminko = 1; seminko <= 4; ++seminko) {
            Korektor ruka(hra);
            Sestroj(ruka, seminko);
            vyzev += ruka.Vyzev;
            hra.Stiskni("PicTop", 2);
            hra.Cekej(600);
        }
    }
    EXPECT_GT(vyzev, 10) << "perpendiculars were met";
}

}  // namespace
}  // namespace rysovna::hrac
