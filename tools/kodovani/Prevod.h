#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna::kodovani {

/// What a file of the data root holds.
enum class Obsah { Uloha, Chyby, Znamky, Tabulka, Neznamy };

/// A file by its name: "07.txt" is the readable form of task 7, "07.dat" the stored one.
struct Soubor {
    Obsah obsah = Obsah::Neznamy;
    int Uloha = 0;         ///< task number, 0 if it is none
    bool Citelny = false;  ///< UTF-8 with comments, as people write it
};
[[nodiscard]] Soubor Rozpoznej(const std::filesystem::path& cesta);

/// A line of a file, with its number in it (from 1).
struct Radek {
    int Cislo = 0;
    std::string Text;
};

/// The lines of a readable file, in UTF-8, without comments (";" at the beginning) and empty lines.
[[nodiscard]] std::vector<Radek> CtiCitelny(const std::filesystem::path& cesta);

/// The wrong step of a readable line; none unless it begins with a number from 1 to 999.
[[nodiscard]] std::optional<int> CisloVety(std::string_view citelna);

/// A wrong step's line in its readable form, "7 sentence", and in its stored form before the line
/// coding, "007 sentence|". The first three characters are the number, one is ignored, the last is
/// dropped.
[[nodiscard]] std::string CitelnaVeta(std::string_view ulozena);
[[nodiscard]] std::string UlozenaVeta(std::string_view citelna);

/// The stored form of a readable file, Windows-1250. What cannot be stored (a character that the
/// code page lacks, a sentence without a number) is a fault that names the line.
[[nodiscard]] std::string Zakoduj(const std::filesystem::path& zdroj);
/// The readable form of a stored file, UTF-8.
[[nodiscard]] std::string Dekoduj(const std::filesystem::path& zdroj);

}  // namespace rysovna::kodovani
