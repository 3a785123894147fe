#pragma once

#include <string>
#include <vector>

#include "base/Plane.h"
#include "engine/PametovaPlocha.h"

namespace rysovna::testy {

/// A plane that draws in memory and remembers what it was told to draw.
class ZaznamPlane final : public Plane {
public:
    struct Carka {
        float x1, y1, x2, y2;
        int pero;
        friend bool operator==(const Carka&, const Carka&) = default;
    };
    struct Kruh {
        float x, y, r;
    };
    struct Napis {
        float x, y;
        std::string text;
    };

    ZaznamPlane(int w, int h) : plocha(w, h) {}

    [[nodiscard]] int Width() const override { return plocha.Width(); }
    [[nodiscard]] int Height() const override { return plocha.Height(); }
    void Line(float x1, float y1, float x2, float y2) override {
        carky.push_back({x1, y1, x2, y2, DrawWidth});
        plocha.Line(x1, y1, x2, y2);
    }
    void Circle(float x, float y, float r) override {
        kruhy.push_back({x, y, r});
        plocha.Circle(x, y, r);
    }
    void Print(std::string_view text) override {
        napisy.push_back({CurrentX, CurrentY, std::string(text)});
        plocha.CurrentX = CurrentX;
        plocha.CurrentY = CurrentY;
        plocha.Print(text);
    }
    [[nodiscard]] int TextWidth(std::string_view text) const override {
        return plocha.TextWidth(text);
    }
    [[nodiscard]] int TextHeight() const override { return plocha.TextHeight(); }
    void Cls() override { plocha.Cls(); }
    [[nodiscard]] Barva Point(int x, int y) const override { return plocha.Point(x, y); }
    void Sloupec(int x, int y, std::span<std::uint8_t> cile) const override {
        plocha.Sloupec(x, y, cile);
    }
    bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) override {
        kopie.push_back(AutoRedraw);
        return plocha.BitBlt(x, y, w, h, zdroj, zx, zy, rop);
    }
    void InvertRect(int x, int y, int w, int h) override { plocha.InvertRect(x, y, w, h); }
    [[nodiscard]] std::unique_ptr<Plane> CreateCompatibleBitmap(int w, int h) const override {
        return plocha.CreateCompatibleBitmap(w, h);
    }
    [[nodiscard]] std::unique_ptr<Plane> CreateMonoBitmap(int w, int h) const override {
        return plocha.CreateMonoBitmap(w, h);
    }

    PametovaPlocha plocha;
    std::vector<Carka> carky;
    std::vector<Kruh> kruhy;
    std::vector<Napis> napisy;
    std::vector<bool> kopie;  ///< AutoRedraw at each copy
};

}  // namespace rysovna::testy
