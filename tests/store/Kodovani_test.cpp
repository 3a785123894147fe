#include "store/Kodovani.h"

#include <gtest/gtest.h>

#include "podpora/SouboryPomoc.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna::testy {
namespace {

TEST(Kodovani, TextJeVKazdemCtvrtemZnaku) {
    EXPECT_EQ(DekodujRadek("xxxAyyyBzzz"), "AB");
    std::string text;
    for (int i = 1; i < 256; ++i) text += static_cast<char>(i);
    const std::string ulozeny = ZakodujRadek(text);
    EXPECT_EQ(DekodujRadek(ulozeny), text);
    EXPECT_EQ(ulozeny, ZakodujRadek(text));
    for (std::size_t i = 0; i < ulozeny.size(); ++i) {
        EXPECT_TRUE((ulozeny[i] > ' ' && ulozeny[i] <= '~') || i % 4 == 3) << i;
    }
}

TEST(Kodovani, Windows1250TamAZpet) {
    EXPECT_EQ(Do1250("Žluťoučký kůň §°"), "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \xA7\xB0");
    EXPECT_EQ(Do1250("αA⊥𝄞\xFF"), "?A???");
    for (int i = 0; i < 256; ++i) {
        const std::string bajt(1, static_cast<char>(i));
        const bool chybi = std::string_view("\x81\x83\x88\x90\x98").find(bajt) < 5;
        EXPECT_EQ(NedefinovanyBajt(bajt).has_value(), chybi) << i;
        if (!chybi) {
            EXPECT_EQ(Do1250(Z1250(bajt, {})), bajt) << i;
        }
        EXPECT_EQ(Z1250Vzdy(bajt), chybi ? "\uFFFD" : Z1250(bajt, {})) << i;
    }
}

TEST_F(Soubory, Radky) {
    const std::pair<std::string_view, std::vector<std::string>> pripady[]{
        {"", {}},
        {"\r\n", {""}},
        {"a", {"a"}},
        {"a\nb\n", {"a", "b"}},
        {"a\r\n\r\nb", {"a", "", "b"}},
        {"a\rb\r\n", {"a\rb"}},
        {"a\r", {"a"}},
    };
    for (const auto& [obsah, radky] : pripady) {
        EXPECT_EQ(CtiRadky(Disk_(), Pis("x.dat", obsah)), radky) << obsah;
    }
    EXPECT_NE(Chyba([&] { (void)CtiRadky(Disk_(), Cesta("")); }), "");
}

}  // namespace
}  // namespace rysovna::testy
