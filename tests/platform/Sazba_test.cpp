#include "platform/Sazba.h"

#include "PlatformTest.h"
#include "base/Text.h"
#include "platform/Ovladace.h"
#include "platform/Pisma.h"

namespace rysovna::testy {
namespace {

/// The text with its lower indices written as "_a".
std::string Citelne(std::string_view sazba) {
    std::u32string znaky;
    for (const char32_t z : DoZnaku(sazba)) {
        if (z >= DOLNI_INDEX && z < DOLNI_INDEX + 0x80) znaky += U'_';
        znaky += z >= DOLNI_INDEX && z < DOLNI_INDEX + 0x80 ? z - DOLNI_INDEX : z;
    }
    return ZeZnaku(znaky);
}

TEST(Sazba, CteSeJakoVUcebnici) {
    constexpr struct {
        std::string_view Text, Vysazeno;
    } PRIPADY[] = {
        {"va", "v_a"},
        {"p||AB, |p,AB| = vc, tb", "p||AB, |p,AB| = v_c, t_b"},
        {"kružnice k(Sa, r = ), úsečka SA", "kružnice k(S_a, r = ), úsečka SA"},
        {"polopřímka AX, |<BAX| = ", "polopřímka AX, |∢BAX| = "},
        {"polopřímka BY, |<kBY| = ", "polopřímka BY, |∢kBY| = "},
        {"kružnice l1(S1, r = |AS1|)", "kružnice l_1(S_1, r = |AS_1|)"},
        {"přímka t2, t2||a", "přímka t_2, t_2||a"},
        {"=  45 °, ", "=  45\u2009°, "},
        {"35°", "35\u2009°"},
        {"= -3 cm", "= \u22123 cm"},
        // words, numbers, units, hyphens and dashes stay
        {"2. útvar: vata, táta, tabulka, výtah", "2. útvar: vata, táta, tabulka, výtah"},
        {"k úsečce AB (12 cm)", "k úsečce AB (12 cm)"},
        {"strana-strana-těžnice, a < b, °", "strana-strana-těžnice, a < b, °"},
        {"čta, tač, vaz", "čta, tač, vaz"},
        {"", ""},
    };
    for (const auto& [text, vysazeno] : PRIPADY) EXPECT_EQ(Citelne(Vysad(text)), vysazeno);
}

using SazbaNaStroji = NaStroji;

TEST_F(SazbaNaStroji, PopisekMeriCoSeTiskneATextNecha) {
    Label l;
    l.Font = {Pismo::Rez::MsSansSerif, 10};
    l.Caption = "A1";
    l.PodleTextu();
    const int bez = l.Width;
    l.Sazba = true;
    l.PodleTextu();
    EXPECT_LT(l.Width, bez) << "an index is smaller";
    EXPECT_GT(l.Width, SirkaTextu(l.Font, "A"));
    EXPECT_EQ(l.Caption, "A1");
    // Where each character begins goes with the width.
    EXPECT_DOUBLE_EQ(Zacatky(l.Font, l.Tisteny()).back(), PresnaSirka(l.Font, l.Tisteny()));
    l.Font.Nazev = Pismo::Rez::Symbol;
    EXPECT_EQ(l.Tisteny(), "A1") << "letters of Symbol are signs";
}

}  // namespace
}  // namespace rysovna::testy
