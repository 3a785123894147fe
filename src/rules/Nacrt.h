#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// Where a press on the sketch belongs to an element: x from X1 to X2 and y within Tolerance of
/// K * x + Q, all limits included. Pixels of the sketch.
struct PasNacrtu {
    double X1, X2, K, Q, Tolerance;
    [[nodiscard]] constexpr bool Obsahuje(double x, double y) const {
        const double odchylka = y - (K * x + Q);
        return x >= X1 && x <= X2 && odchylka >= -Tolerance && odchylka <= Tolerance;
    }
};

/// One element of a sketch: what can be marked, where it is hit, how it is drawn.
struct PrvekNacrtu {
    enum class Tvar { Usecka, Oblouk };
    std::string_view Velicina;  ///< "a", "alfa", "va", ...
    PasNacrtu Pas;
    Tvar Druh;
    /// Of a segment its ends; of an arc its centre, then the points towards which its two sides go.
    float X1, Y1, X2, Y2, X3, Y3;
    float Polomer;             ///< of an arc
    std::string_view Pismeno;  ///< printed beside it
    bool Symbol;               ///< in the Symbol face; otherwise italic
    float PX, PY;              ///< where
};

/// A segment, which bears the name of its quantity.
[[nodiscard]] constexpr PrvekNacrtu CaraNacrtu(std::string_view velicina, PasNacrtu pas, float X1,
                                               float Y1, float X2, float Y2, float PX, float PY) {
    return {velicina, pas, PrvekNacrtu::Tvar::Usecka, X1, Y1, X2, Y2, 0, 0, 0, velicina, false,
            PX,       PY};
}

constexpr auto OBLOUK = PrvekNacrtu::Tvar::Oblouk;

/// A letter of the sketch that is no element: the name of a vertex, or of an angle without a mark.
struct PismenoNacrtu {
    std::string_view Text;
    float X, Y;
    bool Symbol = false;  ///< in the Symbol face; otherwise bold
};

/// The sketch of a figure.
struct Nacrt {
    std::span<const PrvekNacrtu> Prvky;
    std::span<const PismenoNacrtu> Pismena;
};

/// The first element whose zone contains the press; -1 if none does.
[[nodiscard]] int PrvekPod(std::span<const PrvekNacrtu> prvky, double x, double y);

/// A place for a press in each of so many elements: the middle of an element, or the nearest to it
/// that no other one lies over. kde(i, podel): the place of an element so far along it, 0 to 1;
/// prvek(place): the element that a press there hits.
[[nodiscard]] std::vector<Bod> MistaPrvku(std::size_t pocet,
                                          const std::function<Bod(std::size_t, double)>& kde,
                                          const std::function<int(Bod)>& prvek);

/// Lines of a sketch, px. What is marked is red and wider, so that colour is not the only sign.
constexpr int SIRKA_CARY_NACRTU = 2, SIRKA_OZNACENE = 3;

/// Prints text in the plane's font, its top left corner at x, y, on a white ground: over lines it
/// stays legible. The pen's width goes to 1.
void TiskniNaBilem(Plane& plocha, float x, float y, std::string_view text);

/// Draws the sketch: bit i of znacky says that element i is marked (red), the others are black.
void KresliPrvkyNacrtu(Plane& plocha, const Nacrt& nacrt, std::uint32_t znacky);

}  // namespace rysovna
