#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Plane.h"
#include "engine/PametovaPlocha.h"

namespace rysovna::prehled {

/// A plane that writes what is drawn on it as vectors. Beside them it keeps pixels, which are those
/// of the screen's logical bitmap with letters and all, so that labels find the same places.
///
/// Of a copy the vectors follow where it replaces the whole plane by another one of this kind; any
/// other copy and an inversion change pixels alone.
class SvgPlocha final : public Plane {
public:
    SvgPlocha(int w, int h);

    /// The contents of an <svg> whose viewBox is "-.5 -.5 w h", so that whole numbers are middles
    /// of pixels: <path>, <circle> and <text> without classes. They inherit: stroke and its width 1
    /// of lines, fill and a type size of 8 points of texts. What differs is said at the element.
    /// Numbers have one decimal at most.
    [[nodiscard]] std::string Obsah() const;

    [[nodiscard]] int Width() const override { return body_.Width(); }
    [[nodiscard]] int Height() const override { return body_.Height(); }
    void Line(float x1, float y1, float x2, float y2) override;
    void Circle(float x, float y, float r) override;
    /// Letters that ZnakyPlochy does not know take a block each.
    void Print(std::string_view text) override;
    [[nodiscard]] int TextWidth(std::string_view text) const override;
    [[nodiscard]] int TextHeight() const override;
    void Cls() override;
    [[nodiscard]] Barva Point(int x, int y) const override { return body_.Point(x, y); }
    [[nodiscard]] std::uint64_t Radek(int x, int y, int pocet) const override {
        return body_.Radek(x, y, pocet);
    }
    bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) override;
    void InvertRect(int x, int y, int w, int h) override { body_.InvertRect(x, y, w, h); }
    [[nodiscard]] std::unique_ptr<Plane> CreateCompatibleBitmap(int w, int h) const override {
        return body_.CreateCompatibleBitmap(w, h);
    }
    [[nodiscard]] std::unique_ptr<Plane> CreateMonoBitmap(int w, int h) const override {
        return body_.CreateMonoBitmap(w, h);
    }

private:
    struct Kresba {
        enum class Druh { Usecka, Kruznice, Text };
        Druh Co;
        float X1, Y1, X2,
            Y2;  ///< of a circle X2: its radius; of a text X1, Y1: its top left corner
        int Pero;
        Barva Jaka;
        Pismo Cim;
        std::string Napis;
    };

    PametovaPlocha body_;
    std::vector<Kresba> kresby_;  ///< in the order in which they were drawn
};

}  // namespace rysovna::prehled
