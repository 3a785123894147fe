#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace rysovna {

/// A colour as a number: red in the lowest byte, then green, then blue.
using Barva = std::int32_t;
constexpr Barva CERNA = 0;
constexpr Barva CERVENA = 255;
constexpr Barva BILA = 0xFFFFFF;
/// The key colour of pictures with see-through parts.
constexpr Barva PURPUROVA = 0xFF00FF;
/// What Point gives outside the plane.
constexpr Barva BEZ_BARVY = -1;

constexpr Barva Rgb(int r, int g, int b) {
    return r | (g << 8) | (b << 16);
}

/// A typeface as the screens ask for it.
struct Pismo {
    enum class Rez { MsSansSerif, Symbol };
    Rez Nazev = Rez::MsSansSerif;  ///< Symbol: letters show as others, see ZnakSymbolu
    float Velikost = 8;            ///< points, at 96 pixels to the inch
    bool Kurziva = false;
    bool Tucne = false;
    friend bool operator==(const Pismo&, const Pismo&) = default;
};

/// What a letter of the typeface Symbol shows; any other one shows itself.
constexpr char32_t ZnakSymbolu(char32_t pismeno) {
    constexpr struct {
        char32_t Pismeno, Znak;
    } SYMBOLY[] = {{U'a', U'α'}, {U'b', U'β'}, {U'g', U'γ'}, {U'd', U'δ'},
                   {U'e', U'ε'}, {U'w', U'ω'}, {U'^', U'⊥'}};
    for (const auto& s : SYMBOLY) {
        if (s.Pismeno == pismeno) return s.Znak;
    }
    return pismeno;
}

/// How a copy mixes the source into the target.
enum class Rop : std::uint32_t {
    SrcCopy = 0xCC0020,
    SrcAnd = 0x8800C6,
    SrcPaint = 0xEE0086,
};

/// The abstract drawing surface: all that the engine asks of a picture box. Coordinates are
/// pixels of the plane, origin at the top left, Y downward. What runs off the plane is cut.
class Plane {
public:
    virtual ~Plane() = default;

    [[nodiscard]] virtual int Width() const = 0;
    [[nodiscard]] virtual int Height() const = 0;

    /// A line between two points, both included, in ForeColor and DrawWidth.
    virtual void Line(float x1, float y1, float x2, float y2) = 0;
    /// A full circle's outline, in ForeColor and DrawWidth.
    virtual void Circle(float x, float y, float r) = 0;
    /// Prints UTF-8 text in Font and ForeColor, its top left corner at CurrentX, CurrentY.
    virtual void Print(std::string_view text) = 0;
    /// Width of the text in Font, and height of one row of it, px.
    [[nodiscard]] virtual int TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual int TextHeight() const = 0;
    /// Clears everything to BackColor; CurrentX and CurrentY go to 0.
    virtual void Cls() = 0;

    /// The pixel's colour; BEZ_BARVY outside the plane.
    [[nodiscard]] virtual Barva Point(int x, int y) const = 0;
    /// Reads up to 64 pixels of a row at once, x, y the first: bit i is 0 where pixel i is exactly
    /// white, 1 where it is anything else or lies outside the plane.
    [[nodiscard]] virtual std::uint64_t Radek(int x, int y, int pocet) const = 0;

    /// Copies width by height pixels of the source at zx, zy to x, y of this plane. A one-bit
    /// source turns black into ForeColor black and white into white; a one-bit target takes white
    /// where the source pixel equals the source's BkColor, black elsewhere. False on failure.
    virtual bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy,
                        Rop rop) = 0;
    /// Turns every colour of the rectangle into its opposite.
    virtual void InvertRect(int x, int y, int w, int h) = 0;
    /// A new bitmap of this plane's kind (of one bit a pixel), white (black). Null on failure.
    [[nodiscard]] virtual std::unique_ptr<Plane> CreateCompatibleBitmap(int w, int h) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Plane> CreateMonoBitmap(int w, int h) const = 0;

    float CurrentX = 0, CurrentY = 0;
    int DrawWidth = 1;        ///< pen width, px
    Barva ForeColor = CERNA;  ///< of lines, circles and text
    Barva BackColor = BILA;   ///< what Cls leaves
    Barva BkColor = BILA;     ///< the colour that a copy into one bit takes for white
    bool AutoRedraw = true;   ///< drawing goes into the lasting bitmap
    Pismo Font;

protected:
    Plane() = default;
    Plane(const Plane&) = default;
    Plane& operator=(const Plane&) = default;
};

}  // namespace rysovna
