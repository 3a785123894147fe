#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/Bod.h"

namespace rysovna {

class Obrazovky;

/// Pixels to paint into: 32 bits each, 0xRRGGBB in the lower 24.
struct Platno {
    std::uint32_t* Body = nullptr;
    int Sirka = 0, Vyska = 0;
    int Krok = 0;  ///< pixels from one row to the next
};

/// Where the design area lies in the window: scale and top left corner, px.
struct Umisteni {
    double S = 1;
    int X = 0, Y = 0;
    /// The largest area of 4:3 that fits, in the middle.
    [[nodiscard]] static Umisteni Vejdi(int sirka, int vyska);
    /// A window pixel as design pixels; beside the area it gives values outside 640 by 480.
    [[nodiscard]] double NavrhX(double x) const { return (x - X) / S; }
    [[nodiscard]] double NavrhY(double y) const { return (y - Y) / S; }
    friend bool operator==(const Umisteni&, const Umisteni&) = default;
};

/// Paints the screens. Objects tell nobody of their changes: the painter keeps what each
/// looked like and paints again where that differs from last time.
class Malir {
public:
    Malir();
    ~Malir();
    Malir(const Malir&) = delete;
    Malir& operator=(const Malir&) = delete;

    /// Paints what changed since the last call and gives the rectangles that did, window pixels;
    /// none when nothing changed. The first call, and one with another size or after Znovu(),
    /// paints everything. ted: tick count, for the caret.
    std::vector<Obdelnik> Namaluj(const Platno& cil, const Obrazovky& okna, std::uint32_t ted);
    /// The target's pixels were lost.
    void Znovu();

private:
    struct Vnitrek;
    std::unique_ptr<Vnitrek> vnitrek_;
};

}  // namespace rysovna
