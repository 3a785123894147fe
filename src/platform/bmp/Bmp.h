#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace rysovna {

// Bitmap files: plain ones of 24 bits a pixel, as any painting program writes them, and ours,
// packed.

/// The pixels of a bitmap file, rows from the top, 0xFFRRGGBB each.
struct ObrazBmp {
    int Sirka = 0, Vyska = 0;
    std::vector<std::uint32_t> Body;
};

/// What can be told of a bitmap file without reading its pixels.
struct HlavaBmp {
    int Sirka = 0, Vyska = 0;
    std::optional<std::uint32_t> Otisk;  ///< print of the pixels; a plain file carries none
};

/// A number by which the same pixels are known again.
[[nodiscard]] std::uint32_t OtiskBodu(const ObrazBmp& obraz);

/// The files' bytes: packed (a palette where there are at most 256 colours, rows deflated, with
/// the print), and plain.
[[nodiscard]] std::string ZabalenyBmp(const ObrazBmp& obraz);
[[nodiscard]] std::string ProstyBmp(const ObrazBmp& obraz);

/// Reads either kind of file, its bytes, or its head alone. Anything else is a run-time fault that
/// names the file.
[[nodiscard]] ObrazBmp NactiObrazBmp(const std::filesystem::path& soubor);
[[nodiscard]] ObrazBmp CtiBmp(std::string data, const std::string& kde);
[[nodiscard]] HlavaBmp NactiHlavuBmp(const std::filesystem::path& soubor);

}  // namespace rysovna
