#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"

namespace rysovna {

// Line coding, code page, and files read whole. Paths are real ones.

/// How a line ends in every file that the program writes.
constexpr std::string_view KONEC_RADKU = "\r\n";

/// The text of a stored line: its characters 4, 8, 12, ... The rest is filler.
[[nodiscard]] std::string DekodujRadek(std::string_view ulozeny);
/// A stored line of the text. The filler is printable, and the same each time.
[[nodiscard]] std::string ZakodujRadek(std::string_view text);

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

/// "file:line", the place that a fault names.
[[nodiscard]] std::string Misto(const std::filesystem::path& soubor, int radek);

/// The lines of a text. CR LF or LF ends one, at the end of the text a CR alone too; a last line
/// without an end counts, an end makes no empty line behind it.
[[nodiscard]] std::vector<std::string> NaRadky(std::string_view obsah);

/// Splits a line at a separator into N fields; what stands behind the last is dropped, those that
/// the line does not reach are empty. Lines that were cut short are read as they are here, in the
/// task files too: the data tool is what reports them.
template <std::size_t N>
[[nodiscard]] std::array<std::string_view, N> Rozdel(std::string_view radek, char oddelovac) {
    std::array<std::string_view, N> pole{};
    for (std::string_view& p : pole) {
        const std::size_t konec = radek.find(oddelovac);
        p = radek.substr(0, konec);
        if (konec == std::string_view::npos) break;
        radek.remove_prefix(konec + 1);
    }
    return pole;
}

/// Reads a file whole. One that cannot be read is a fault, and so is one of more than nejvyse
/// bytes.
[[nodiscard]] std::string CtiVse(Disk& disk, const std::filesystem::path& soubor,
                                 std::size_t nejvyse = Soubor::VSE);
/// The same by lines.
[[nodiscard]] std::vector<std::string> CtiRadky(Disk& disk, const std::filesystem::path& soubor,
                                                std::size_t nejvyse = Soubor::VSE);

}  // namespace rysovna
