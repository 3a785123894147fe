#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// Text inside the program is UTF-8; widths and positions count characters. A byte that is no
/// valid UTF-8 counts as one character (U+FFFD).
std::u32string DoZnaku(std::string_view utf8);
std::string ZeZnaku(std::u32string_view znaky);

/// How many characters.
int PocetZnaku(std::string_view utf8);

/// Blanks added on the right up to the width in characters; what is longer stays whole.
std::string Dopln(std::string_view utf8, int sirka);

/// Without the blanks at its beginning.
std::string BezUvodnichMezer(std::string_view text);

/// Without the blanks at both its ends.
std::string BezKrajnichMezer(std::string_view text);

}  // namespace rysovna
