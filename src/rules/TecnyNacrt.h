#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// One element of a tangent sketch: what can be marked, where it is hit, how it is drawn. Pixels
/// of the sketch.
struct PrvekNacrtuTecny {
    /// A straight element is hit in the band of some px above and below it, a circle in the ring
    /// of 4 px to both sides, but not beyond its left and right end, a point in its box of 10 by
    /// 10 px.
    enum class Tvar { Cara, Kruh, Misto };
    int Znacka;  ///< number of its mark
    std::string_view Jmeno;
    Tvar Druh;
    float X1, Y1, X2, Y2;  ///< ends, left one first; centre, radius, and where on the circle its
                           ///< disc is, degrees; the point
    float PX, PY;          ///< where the name is printed
    double Pasmo = 4;      ///< of a straight element: how far above and below it it is hit

    [[nodiscard]] bool Obsahuje(double x, double y) const;
};

/// The sketch of an exercise; empty for an unknown code. Where zones overlap, the first one wins:
/// points go first.
[[nodiscard]] std::span<const PrvekNacrtuTecny> NacrtTecny(std::string_view kod);

/// The element of the exercise, from 0, that a press hits; -1: none.
[[nodiscard]] int PrvekNacrtuPod(std::string_view kod, double x, double y);
/// A place for a press in each element.
[[nodiscard]] std::vector<Bod> MistaNacrtuTecny(std::string_view kod);

/// Draws the sketch, marks by bits: a marked element in red, with a small disc at its zone's end.
void KresliNacrtTecny(Plane& plocha, std::string_view kod, std::uint32_t znacky);

}  // namespace rysovna
