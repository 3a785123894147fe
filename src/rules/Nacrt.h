#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

// The sketches of all boards: rows of elements and letters. All measures are pixels of the sketch.

/// A band that is said by itself: x from X1 to X2 and y within Tolerance of K * x + Q.
struct PasNacrtu {
    double X1, X2, K, Q, Tolerance;
};

/// Where a press belongs to an element, all limits included.
struct ZonaNacrtu {
    enum class Tvar {
        Pas,       ///< K * x + Q from X1 to X2, so far above and below it
        Usecka,    ///< from X1, Y1 on the left to X2, Y2, so far above and below it
        Kruznice,  ///< about X1, Y1, so far to both sides, but not beyond its left and right end
        Ctverec    ///< about X1, Y1, so far to all sides
    };
    Tvar Druh = Tvar::Pas;
    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    double K = 0, Q = 0;
    double Polomer = 0;
    double Dosah = 0;  ///< so far

    [[nodiscard]] bool Obsahuje(double x, double y) const;
    /// The place so far along it, 0 to 1.
    [[nodiscard]] Bod Misto(double podel) const;
};

/// What is printed on a sketch. In which face, the screen knows.
enum class NapisNacrtu {
    Velicina,  ///< name of a length: "a", "va"
    Uhel,      ///< name of an angle: "alfa"
    Vrchol,
    Jmeno  ///< name of an object or a point, where none of them is a quantity
};

/// One element of a sketch: what can be marked, where it is hit, how it is drawn.
struct PrvekNacrtu {
    enum class Tvar { Usecka, Oblouk, Kruznice, Bod };
    std::string_view Jmeno;  ///< its name, which stands beside it
    ZonaNacrtu Zona;
    Tvar Druh;
    /// Of a segment its ends; of an arc its centre, then the points towards which its two sides go;
    /// of a circle its centre; a point itself.
    float X1, Y1, X2, Y2, X3, Y3;
    float Polomer;  ///< of an arc and of a circle
    NapisNacrtu Napis;
    float PX, PY;            ///< where the name is printed
    bool SKotoucem = false;  ///< marked, it has a small disc: at its end
    float UhelKotouce = 0;   ///< of a circle: where on it, degrees
};

/// A place of the sketch, px of it.
struct MistoNacrtu {
    float X, Y;
};

/// A segment, which bears the name of its quantity, printed at popis.
[[nodiscard]] constexpr PrvekNacrtu CaraNacrtu(std::string_view velicina, PasNacrtu pas,
                                               MistoNacrtu od, MistoNacrtu k, MistoNacrtu popis) {
    return {.Jmeno = velicina,
            .Zona = {.X1 = pas.X1, .X2 = pas.X2, .K = pas.K, .Q = pas.Q, .Dosah = pas.Tolerance},
            .Druh = PrvekNacrtu::Tvar::Usecka,
            .X1 = od.X,
            .Y1 = od.Y,
            .X2 = k.X,
            .Y2 = k.Y,
            .X3 = 0,
            .Y3 = 0,
            .Polomer = 0,
            .Napis = NapisNacrtu::Velicina,
            .PX = popis.X,
            .PY = popis.Y};
}

/// The arc of an angle at its vertex, between the directions to two points.
[[nodiscard]] constexpr PrvekNacrtu UhelNacrtu(std::string_view velicina, PasNacrtu pas,
                                               MistoNacrtu vrchol, MistoNacrtu k1, MistoNacrtu k2,
                                               float polomer, MistoNacrtu popis) {
    PrvekNacrtu e = CaraNacrtu(velicina, pas, vrchol, k1, popis);
    e.Druh = PrvekNacrtu::Tvar::Oblouk;
    e.X3 = k2.X;
    e.Y3 = k2.Y;
    e.Polomer = polomer;
    e.Napis = NapisNacrtu::Uhel;
    return e;
}

/// A straight object by its ends, the left one first; hit in the band of so many px above and below
/// it, all along it.
[[nodiscard]] constexpr PrvekNacrtu PrimkaNacrtu(std::string_view jmeno, float x1, float y1,
                                                 float x2, float y2, float px, float py,
                                                 double dosah = 4) {
    PrvekNacrtu e = CaraNacrtu(jmeno, {}, {x1, y1}, {x2, y2}, {px, py});
    e.Zona = {.Druh = ZonaNacrtu::Tvar::Usecka,
              .X1 = static_cast<double>(x1),
              .Y1 = static_cast<double>(y1),
              .X2 = static_cast<double>(x2),
              .Y2 = static_cast<double>(y2),
              .Dosah = dosah};
    e.Napis = NapisNacrtu::Jmeno;
    e.SKotoucem = true;
    return e;
}

/// A circle, hit in a ring; its disc at this angle, degrees.
[[nodiscard]] constexpr PrvekNacrtu KruzniceNacrtu(std::string_view jmeno, float x, float y,
                                                   float polomer, float uhelKotouce, float px,
                                                   float py) {
    constexpr double PRSTENEC = 4;  // px to both sides
    PrvekNacrtu e = PrimkaNacrtu(jmeno, x, y, 0, 0, px, py, PRSTENEC);
    e.Druh = PrvekNacrtu::Tvar::Kruznice;
    e.Zona.Druh = ZonaNacrtu::Tvar::Kruznice;
    e.Polomer = polomer;
    e.Zona.Polomer = static_cast<double>(polomer);
    e.UhelKotouce = uhelKotouce;
    return e;
}

/// A point, hit in a box of 10 by 10 px.
[[nodiscard]] constexpr PrvekNacrtu BodNacrtu(std::string_view jmeno, float x, float y, float px,
                                              float py) {
    constexpr double POL_BOXU = 5;  // px
    PrvekNacrtu e = PrimkaNacrtu(jmeno, x, y, 0, 0, px, py, POL_BOXU);
    e.Druh = PrvekNacrtu::Tvar::Bod;
    e.Zona.Druh = ZonaNacrtu::Tvar::Ctverec;
    return e;
}

/// A name on the sketch that is no element: of a vertex, of an angle without a mark, of an end.
struct PismenoNacrtu {
    std::string_view Text;
    float X, Y;
    NapisNacrtu Napis = NapisNacrtu::Vrchol;
};

/// The sketch of a figure. Where zones overlap, the first element wins.
struct Nacrt {
    std::span<const PrvekNacrtu> Prvky;
    std::span<const PismenoNacrtu> Pismena;
};

/// The first element whose zone contains the press; -1 if none does.
[[nodiscard]] int PrvekPod(const Nacrt& nacrt, double x, double y);

/// A place for a press in each element: its middle, or the nearest to it that no other one lies
/// over.
[[nodiscard]] std::vector<Bod> MistaPrvku(const Nacrt& nacrt);

/// Sets the plane's font for what is printed next, and gives it as that font spells it.
using PismoNacrtu = std::function<std::string(Plane&, NapisNacrtu, std::string_view)>;

/// Draws the sketch: bit i of znacky says that element i is marked (red and wider, so that colour
/// is not the only sign), the others are black.
void KresliPrvkyNacrtu(Plane& plocha, const Nacrt& nacrt, std::uint32_t znacky,
                       const PismoNacrtu& pismo);

}  // namespace rysovna
