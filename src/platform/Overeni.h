#pragma once

#include <filesystem>
#include <string>

namespace rysovna {

// What is wrong with a file of the assets, in Czech; empty if nothing is. Each reads the file as
// the game does.

/// A picture of this size at 1:1, design pixels, and its shapes.
[[nodiscard]] std::string VadaObrazku(const std::filesystem::path& soubor, int sirka, int vyska);
[[nodiscard]] std::string VadaPisma(const std::filesystem::path& soubor);
[[nodiscard]] std::string VadaZvuku(const std::filesystem::path& soubor);

}  // namespace rysovna
