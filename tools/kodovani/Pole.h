#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Cisla.h"

// Fields of a readable line: what they are parted by, whole numbers, and how a message quotes one.

namespace rysovna::kodovani {

inline std::string Uvozovky(std::string_view text) {
    return "„" + std::string(text) + "“";
}

/// A whole number that is nothing but digits.
inline std::optional<int> CisloZCislic(std::string_view text) {
    return text.starts_with('-') ? std::nullopt : CeleCislo<int>(text);
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
