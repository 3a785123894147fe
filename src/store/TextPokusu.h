#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "rules/Pokus.h"

namespace rysovna {

// The file of an attempt: readable lines of UTF-8, each a word and what it says. It is written in
// three pieces, one behind the other, so that it can grow while the series is played.

/// Who plays what, and when.
[[nodiscard]] std::string ZacatekPokusu(const Pokus& pokus);
/// An example of a task.
[[nodiscard]] std::string TextPrikladu(const HranyPriklad& priklad, int cisloUlohy);
/// The end: whether the series was finished.
[[nodiscard]] std::string KonecPokusu(bool dokonceny);
/// All of it.
[[nodiscard]] std::string TextPokusu(const Pokus& pokus);

/// An attempt, or why the text is none: one sentence in Czech.
struct PrectenyPokus {
    std::optional<Pokus> Co{};
    std::string Vada{};
    bool JinaVerze = false;  ///< another version of the program wrote it
};

/// Reads the file of an attempt; takes whatever was written there by whomever. Places further than
/// NEJDAL_V_POKUSU from the corner of the plane are none of a pupil's.
[[nodiscard]] PrectenyPokus CtiPokus(std::string_view text);
constexpr int NEJDAL_V_POKUSU = 10'000;  // px
/// So much of a file is read, bytes; a usual one has 20 thousand.
constexpr std::size_t NEJVETSI_POKUS = 1U << 20;

/// Whether the text has its end.
[[nodiscard]] bool MaKonec(std::string_view text);
/// The pupil's name out of a text that may be no whole attempt; nothing where none stands.
[[nodiscard]] std::optional<std::string> JmenoZTextu(std::string_view text);

}  // namespace rysovna
