#pragma once

#include <memory>

#include "base/Plane.h"
#include "platform/Obrazek.h"

namespace rysovna {

/// The drawing surface of a picture box. Drawing is done twice: at once into a logical bitmap, one
/// design pixel a pixel, without antialiasing, the only one that Point reads; and into a display
/// list, from which a painter makes the same picture at any size with antialiasing. Cls empties
/// the list; a copy that covers the whole target replaces it. While AutoRedraw is false nothing
/// is drawn: there is no picture apart from the lasting one.
class Surface final : public Plane {
public:
    Surface(int sirka, int vyska);
    ~Surface() override;

    [[nodiscard]] int Width() const override;
    [[nodiscard]] int Height() const override;
    void Line(float x1, float y1, float x2, float y2) override;
    void Circle(float x, float y, float r) override;
    void Print(std::string_view text) override;
    [[nodiscard]] int TextWidth(std::string_view text) const override;
    [[nodiscard]] int TextHeight() const override;
    void Cls() override;
    [[nodiscard]] Barva Point(int x, int y) const override;
    [[nodiscard]] std::uint64_t Radek(int x, int y, int pocet) const override;
    bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) override;
    void InvertRect(int x, int y, int w, int h) override;
    [[nodiscard]] std::unique_ptr<Plane> CreateCompatibleBitmap(int w, int h) const override;
    [[nodiscard]] std::unique_ptr<Plane> CreateMonoBitmap(int w, int h) const override;

    /// Enlarged, the printed text stays above the lines, on a ground of its own: labels are read
    /// wherever later lines go. At 1:1 all is as drawn.
    bool Svatozar = false;

    /// A filled disc, in ForeColor.
    void Kotouc(float x, float y, float r);
    /// A filled rectangle.
    void Vypln(int x, int y, int w, int h, Barva barva);
    /// Lays a picture on the surface, its top left corner at x, y.
    void PaintPicture(const Obrazek& obrazek, int x, int y);
    /// Makes the whole picture of two others of its size, which a moving one takes over and over:
    /// dolni, and over it horni moved to the right by so many pixels, the key colour see-through.
    void PolozVrstvy(const Surface& dolni, const Surface& horni, int vpravo);
    /// The ground that Cls goes back to: a picture over BackColor, or BackColor alone (empty).
    void NastavPodklad(const Obrazek& podklad);

    /// Grows with each change: a painter compares it to know what to paint again.
    [[nodiscard]] std::uint64_t Verze() const;

    struct Vnitrek;  ///< bitmap and display list, for the painter of this floor
    [[nodiscard]] const Vnitrek& Uvnitr() const { return *vnitrek_; }

private:
    std::unique_ptr<Vnitrek> vnitrek_;
};

}  // namespace rysovna
