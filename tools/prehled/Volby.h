#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna::prehled {

using Den = std::chrono::year_month_day;

/// "1.9.2026", "1. 9. 2026" or "2026-09-01"; nothing where the text is no day that ever was.
[[nodiscard]] std::optional<Den> DenZTextu(std::string_view text);
/// "1. 9. 2026".
[[nodiscard]] std::string TextDne(Den den);

/// What the program is asked for.
struct Volby {
    std::vector<std::filesystem::path> Slozky{};
    std::filesystem::path Vystup{};
    std::filesystem::path Zaci{}, Rejstrik{};  ///< empty: none, the account's own
    std::optional<Den> Od{}, Do{};             ///< both belong to what is asked for
    std::string Trida{};                       ///< empty: all
    std::optional<std::string> Smazat{};       ///< a pupil's name
    bool Napoveda = false;
};

/// The words are no command: what is wrong with them, one sentence in Czech.
struct SpatneVolby : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[nodiscard]] Volby CtiVolby(std::span<const std::string> argumenty);

/// How the command is written, and what it does.
extern const std::string_view NAPOVEDA;

}  // namespace rysovna::prehled
