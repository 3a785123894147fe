#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace rysovna::sit {

/// A picture of 0xRRGGBB pixels, row by row.
struct Obraz {
    int Sirka = 0, Vyska = 0;
    std::vector<std::uint32_t> Body;

    Obraz() = default;
    Obraz(int sirka, int vyska)
        : Sirka(sirka),
          Vyska(vyska),
          Body(static_cast<std::size_t>(sirka) * static_cast<std::size_t>(vyska)) {}
    [[nodiscard]] const std::uint32_t* Radka(int y) const {
        return Body.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(Sirka);
    }
};

/// Both throw where the file cannot be read or written.
void UlozPng(const Obraz& obraz, const std::string& soubor);
[[nodiscard]] Obraz NactiPng(const std::string& soubor);

/// Where two pictures differ: those pixels red, on the first one in pale grey. Says how many they
/// are; pixels that one of them alone has differ.
int Rozdil(const Obraz& a, const Obraz& b, Obraz& kam);

}  // namespace rysovna::sit
