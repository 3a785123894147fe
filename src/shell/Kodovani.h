#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna {

// Line coding, code page, and files read and written whole. Paths are real ones.

/// The text of a stored line: its characters 4, 8, 12, ... The rest is filler.
[[nodiscard]] std::string DekodujRadek(std::string_view ulozeny);
/// A stored line of the text. The filler is printable, and the same each time.
[[nodiscard]] std::string ZakodujRadek(std::string_view text);

/// Position, from 0, of the first byte that Windows-1250 does not define.
[[nodiscard]] std::optional<std::size_t> NedefinovanyBajt(std::string_view bajty);
/// Windows-1250 to UTF-8. misto: "file:line", for the fault at a byte that the page does not
/// define.
[[nodiscard]] std::string Z1250(std::string_view bajty, const std::string& misto);
/// UTF-8 to Windows-1250; a character that the page lacks is written as "?".
[[nodiscard]] std::string Do1250(std::string_view utf8);
/// Position, from 0 and in characters, of the first character that the page lacks.
[[nodiscard]] std::optional<std::size_t> ZnakMimoStranku(std::string_view utf8);

/// "file:line", the place that a fault names.
[[nodiscard]] std::string Misto(const std::filesystem::path& soubor, int radek);

/// Reads a file into lines. CR LF or LF ends one, at the end of the file a CR alone too; a last
/// line without an end counts, an end makes no empty line behind it. A file that cannot be read is
/// a fault.
[[nodiscard]] std::vector<std::string> CtiRadky(const std::filesystem::path& soubor);

/// Rewrites a file that exists or not: written beside and renamed over, so that it is the old one
/// or the new one and never half. Owner, group and rights stay. Where no file may be made beside
/// it, or none of that owner and group, it is written over in place, its growth first, so that a
/// full disk leaves the old content. Any failure is a fault.
void PrepisSoubor(const std::filesystem::path& soubor, std::string_view obsah);

/// Appends in one write. On a failure, which is a fault, what was half written is taken back.
void PripisSoubor(const std::filesystem::path& soubor, std::string_view obsah);

}  // namespace rysovna
