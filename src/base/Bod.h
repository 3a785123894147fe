#pragma once

namespace rysovna {

/// The number that stands for "no such point" in both coordinates, and for "no such angle".
constexpr int BEZ = -9999;

/// A point of the drawing plane, whole pixels, Y downward.
struct Bod {
    int X = 0;
    int Y = 0;
    friend constexpr bool operator==(const Bod&, const Bod&) = default;
};

/// No such point: what a solver gives where there is no solution.
constexpr Bod BEZ_BODU{BEZ, BEZ};

/// Two points of a straight object.
struct Dvojice {
    Bod P1, P2;
    friend constexpr bool operator==(const Dvojice&, const Dvojice&) = default;
};

/// A rectangle, design pixels (or pixels of a bitmap, where told).
struct Obdelnik {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    [[nodiscard]] constexpr bool Obsahuje(double x, double y) const {
        return x >= Left && y >= Top && x < Left + Width && y < Top + Height;
    }
    friend constexpr bool operator==(const Obdelnik&, const Obdelnik&) = default;
};

}  // namespace rysovna
