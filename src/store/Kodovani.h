#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// The text of a stored line: its characters 4, 8, 12, ... The rest is filler.
[[nodiscard]] std::string DekodujRadek(std::string_view ulozeny);
/// A stored line of the text. The filler is printable, and the same each time.
[[nodiscard]] std::string ZakodujRadek(std::string_view text);

}  // namespace rysovna
