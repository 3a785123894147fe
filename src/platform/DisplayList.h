#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/Bitmapa.h"
#include "platform/ObrazekData.h"

namespace rysovna {

struct DisplayList;

/// A display list as it was at one moment: its first Pocet items. Lists only grow, and whoever
/// wants to add to one of which others hold more takes a copy, so a moment once held never changes.
struct Okamzik {
    std::shared_ptr<DisplayList> Kde;
    std::size_t Pocet = 0;
};

/// A stroke of this pen, design pixels, on a display of the scale s: whole pixels of the display,
/// at least one, so that upright and level strokes have hard edges. A rubber band is as wide as the
/// line that it becomes.
[[nodiscard]] inline double SirkaPera(int pero, double s) {
    return std::max(1.0, std::round(std::max(pero, 1) * s));
}

// The operations of a display list, design pixels.
struct PolozkaUsecky {
    float X1, Y1, X2, Y2;
    int Pero;
    Pixel Barva;
};
struct PolozkaKruznice {
    float X, Y, R;  ///< R below 0: nothing is seen
    int Pero;       ///< 0: a filled disc
    Pixel Barva;

    /// A circle of no radius is its centre alone.
    [[nodiscard]] bool JeKotouc() const { return Pero == 0 || R == 0; }
    /// To the edge of a disc, which covers the pixels of its edge, or to the middle of the stroke.
    [[nodiscard]] double Polomer() const { return static_cast<double>(R) + (JeKotouc() ? 0.5 : 0); }
};
struct PolozkaTextu {
    float X, Y;
    Pismo Font;
    std::string Text;
    Pixel Barva;
    bool Svatozar = false;  ///< above the lines, on a ground of its own
};
struct PolozkaVyplne {
    Obdelnik Kam;
    Pixel Barva;
};
struct PolozkaObrazku {
    Obrazek Co;
    int X, Y;
};
/// A copy of another surface as it was then.
struct PolozkaKopie {
    Obdelnik Kam;
    Okamzik Zdroj;
    int ZX, ZY;
    Prenos Jak;
    Pixel Klic;
};
/// A copy of pixels, where what they were drawn with is not known any more.
struct PolozkaPixelu {
    Obdelnik Kam;
    std::shared_ptr<const Bitmapa> Co;
    Prenos Jak;
    Pixel Klic;
};
struct PolozkaObraceni {
    Obdelnik Kde;
};
/// Two other surfaces as they were then, the upper one moved to the right.
struct PolozkaVrstev {
    Okamzik Dolni, Horni;
    int Vpravo;
};
using Polozka =
    std::variant<PolozkaUsecky, PolozkaKruznice, PolozkaTextu, PolozkaVyplne, PolozkaObrazku,
                 PolozkaKopie, PolozkaPixelu, PolozkaObraceni, PolozkaVrstev>;

/// What was drawn on a surface since it was last empty, and the display bitmap that was made of it.
struct DisplayList {
    int Sirka = 0, Vyska = 0;
    Pixel Pozadi = DoPixelu(BILA);
    Obrazek Podklad;
    std::vector<Polozka> Polozky;
    /// How deep copies of copies go below this list.
    int Hloubka = 0;

    // The display bitmap: the first Vykresleno items at scale Meritko.
    Bitmapa Dvojce;
    double Meritko = 0;
    std::size_t Vykresleno = 0;
};

/// The rectangle that an item can change, design pixels, and whether it paints all of it over.
struct Dosah {
    Obdelnik Kde;
    bool Kryje = false;
};
[[nodiscard]] Dosah DosahPolozky(const Polozka& p, const DisplayList& s);

/// The picture at scale s, width and height rounded. Paints only what was added since the last time
/// at this scale. The bitmap stays with the list; a moment that lies behind what is painted already
/// goes to docasna.
[[nodiscard]] const Bitmapa& Vykresli(const Okamzik& okamzik, double s, Bitmapa& docasna);

}  // namespace rysovna
