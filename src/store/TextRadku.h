#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace rysovna {

// What the readable files that the program keeps for itself are made of.

/// On one line, whatever it holds: a control character or a "%" is "%" and two digits.
[[nodiscard]] std::string NaRadek(std::string_view text);
/// Back. What is no such sign stays as it is.
[[nodiscard]] std::string ZRadku(std::string_view radek);

/// A whole number that fills the text; nothing if it is none.
template <class T>
[[nodiscard]] std::optional<T> CeleCislo(std::string_view text, int zaklad = 10) {
    T cislo{};
    const char* const konec = text.data() + text.size();
    const auto [kam, chyba] = std::from_chars(text.data(), konec, cislo, zaklad);
    if (chyba != std::errc() || kam != konec) return std::nullopt;
    return cislo;
}

}  // namespace rysovna
