#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// Characters that are printed as a lower index, smaller and below the line, are written as this
/// and the character's own code (below 128). Of the codes for private use: no text of the game has
/// them.
constexpr char32_t DOLNI_INDEX = 0xE000;

/// The text as a textbook prints it: "va" as v with the index a, "A1" as A with the index 1, the
/// sign of an angle before its name, a minus of its own, a narrow blank before the sign of degrees.
/// For texts of the assignment and of steps alone: "ta" may be a word elsewhere.
[[nodiscard]] std::string Vysad(std::string_view text);

}  // namespace rysovna
