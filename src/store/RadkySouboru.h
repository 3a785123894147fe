#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"

namespace rysovna {

// Files read whole, and their lines. Paths are real ones.

/// How a line ends in every file that the program writes.
constexpr std::string_view KONEC_RADKU = "\r\n";

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
