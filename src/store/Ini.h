#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// The value of a key in a section of a configuration file's text; vychozi where there is no such
/// key or it is empty. Sections and keys in any case, blanks around everything are dropped, so is
/// a pair of quotes around the value; lines that begin with ";" are comments; the first of equal
/// keys counts. Bytes may be UTF-8, with a mark at the beginning or without, or Windows-1250.
[[nodiscard]] std::string HodnotaIni(std::string_view obsah, std::string_view sekce,
                                     std::string_view klic, std::string_view vychozi);

/// Whether a key turns something off: its value is "ne", in small or capital letters.
[[nodiscard]] bool RikaNe(std::string_view obsah, std::string_view sekce, std::string_view klic);

}  // namespace rysovna
