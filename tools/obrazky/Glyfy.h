#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <vector>

#include "Nahravka.h"

namespace rysovna::obrazky {

/// Glyphs of one font on one base line, px at 1:1.
struct Radka {
    unsigned Rez = 0;
    double Velikost = 0;
    double Y = 0;
    struct Glyf {
        std::uint32_t Cislo = 0;
        double X = 0;
    };
    std::vector<Glyf> Glyfy;
};

/// Knows letters again by their outlines, which is all that a recorded drawing has of its text: so
/// their places are the very ones, with kerning, and whatever the type was set by.
class Glyfy {
public:
    /// soubory: the font files in the order of the numbers of fonts.
    explicit Glyfy(const std::vector<std::filesystem::path>& soubory);
    ~Glyfy();
    Glyfy(const Glyfy&) = delete;
    Glyfy& operator=(const Glyfy&) = delete;

    /// The rows of glyphs that a filled path is; none when it is no text, or not all of it. psane:
    /// the characters that the drawing writes; no other letter is known again, however like.
    [[nodiscard]] std::vector<Radka> Precti(const std::vector<Obrys>& cesta,
                                            const std::set<char32_t>& psane) const;

private:
    struct Vnitrek;
    std::unique_ptr<Vnitrek> vnitrek_;
};

}  // namespace rysovna::obrazky
