#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Fields of a readable line: what they are parted by, whole numbers, and how a message quotes one.

namespace rysovna::kodovani {

inline std::string Uvozovky(std::string_view text) {
    return "„" + std::string(text) + "“";
}

/// A whole number that is nothing but digits.
inline std::optional<int> CeleCislo(std::string_view text) {
    int cislo = 0;
    const char* const konec = text.data() + text.size();
    const auto [kam, chyba] = std::from_chars(text.data(), konec, cislo);
    if (text.empty() || chyba != std::errc() || kam != konec || text.front() == '-') return {};
    return cislo;
}

inline std::vector<std::string> Rozdel(std::string_view text, char oddelovac) {
    std::vector<std::string> pole(1);
    for (const char znak : text) {
        if (znak == oddelovac) {
            pole.emplace_back();
        } else {
            pole.back() += znak;
        }
    }
    return pole;
}

}  // namespace rysovna::kodovani
