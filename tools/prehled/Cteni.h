#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "prehled/Prehled.h"

namespace rysovna::prehled {

/// A file of an attempt as a series, or why it is none: one sentence in Czech.
struct PrectenaSerie {
    std::optional<Serie> Co{};  ///< without pupil and grade
    std::string Vada{};
    std::string Rozchod{};  ///< where it came apart when it was played again; mostly empty
};

/// Reads an attempt and plays it again. May be called by several threads at once.
[[nodiscard]] PrectenaSerie PrectiSerii(const std::filesystem::path& soubor);

/// The name in a file that may be no whole attempt; nothing where none stands.
[[nodiscard]] std::optional<std::string> JmenoVSouboru(const std::filesystem::path& soubor);

/// A sentence of a wrong step without the points that the boards put behind it: "  -3 body".
[[nodiscard]] std::string BezBodu(std::string_view veta);

}  // namespace rysovna::prehled
