#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/DatumACas.h"
#include "base/Plane.h"

namespace rysovna {

class Surface;

/// A document of A4 pages, made in memory: lines and letters, no pixels, with the fonts in it, so
/// that its text can be read back. Places are inches / 96 from the top left corner of the page, so
/// that a font is as large on paper as its points say.
class Pdf {
public:
    static constexpr double NA_CM = 96 / 2.54;
    static constexpr double SIRKA = 21.0 * NA_CM, VYSKA = 29.7 * NA_CM;

    struct Udaje {
        std::string Nazev, Autor;
        DatumACas Kdy{};
    };

    /// Begins with the first page.
    explicit Pdf(const Udaje& udaje);
    ~Pdf();
    Pdf(const Pdf&) = delete;
    Pdf& operator=(const Pdf&) = delete;

    /// A row of text, its top left corner at x, y.
    void Text(double x, double y, const Pismo& pismo, std::string_view text, Barva barva = CERNA);
    void Cara(double x1, double y1, double x2, double y2, double sirka, Barva barva = CERNA);
    void Ramecek(double x, double y, double w, double h, double sirka, Barva barva = CERNA);
    /// What was drawn on a surface, a design pixel being so large; what runs off it is cut.
    void Plocha(double x, double y, double meritko, const Surface& plocha);
    /// What comes next stands on another page.
    void NovaStranka();
    /// The whole document; nothing more can be drawn.
    [[nodiscard]] std::string Dokonci();

private:
    struct Vnitrek;
    std::unique_ptr<Vnitrek> vnitrek_;
};

}  // namespace rysovna
