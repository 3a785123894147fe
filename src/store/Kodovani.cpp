#include "store/Kodovani.h"

#include <cstddef>
#include <cstdint>

namespace rysovna {
namespace {

constexpr std::size_t KROK_KODU = 4;  // every so many characters one is of the text

}  // namespace

std::string DekodujRadek(std::string_view ulozeny) {
    std::string text;
    text.reserve(ulozeny.size() / KROK_KODU);
    for (std::size_t i = KROK_KODU - 1; i < ulozeny.size(); i += KROK_KODU) text += ulozeny[i];
    return text;
}

std::string ZakodujRadek(std::string_view text) {
    constexpr char PRVNI = '!';
    constexpr unsigned POCET = '~' - '!' + 1;
    std::uint32_t stav = 1;
    std::string ulozeny;
    ulozeny.reserve(text.size() * KROK_KODU);
    for (const char znak : text) {
        for (std::size_t i = 1; i < KROK_KODU; ++i) {
            stav = stav * 1664525U + 1013904223U;
            ulozeny += static_cast<char>(PRVNI + static_cast<int>((stav >> 16) % POCET));
        }
        ulozeny += znak;
    }
    return ulozeny;
}

}  // namespace rysovna
