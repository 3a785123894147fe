#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace rysovna::kodovani {

/// A mistake in a file: where, and why it is one. In Czech, as a teacher reads it.
struct Nalez {
    std::string Misto;  ///< "file:line", the file alone where it is the whole of it
    std::string Pole;   ///< "pole 3 (Nazev1)", empty where it is the whole line
    std::string Duvod;
};

/// Looks through a file of the data root, readable or stored. Nothing found: all is well.
[[nodiscard]] std::vector<Nalez> Zkontroluj(const std::filesystem::path& cesta);

}  // namespace rysovna::kodovani
