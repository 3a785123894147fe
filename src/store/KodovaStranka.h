#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace rysovna {

// The code page of the game's own files, Windows-1250.

/// What a text of UTF-8 may begin with, by which programs tell it from one of the page.
constexpr std::string_view ZNACKA_UTF8 = "\xEF\xBB\xBF";

/// Position, from 0, of the first byte that Windows-1250 does not define.
[[nodiscard]] std::optional<std::size_t> NedefinovanyBajt(std::string_view bajty);
/// Windows-1250 to UTF-8. misto: "file:line", for the fault at a byte that the page does not
/// define.
[[nodiscard]] std::string Z1250(std::string_view bajty, const std::string& misto);
/// The same where nothing may fail: a byte that the page does not define is U+FFFD.
[[nodiscard]] std::string Z1250Vzdy(std::string_view bajty);
/// UTF-8 to Windows-1250; a character that the page lacks is written as "?".
[[nodiscard]] std::string Do1250(std::string_view utf8);
/// Position, from 0 and in characters, of the first character that the page lacks.
[[nodiscard]] std::optional<std::size_t> ZnakMimoStranku(std::string_view utf8);

}  // namespace rysovna
