#pragma once

#include <string>
#include <vector>

#include "engine/PametovaPlocha.h"

namespace rysovna::testy {

/// A plane that draws in memory and remembers what it was told to draw.
class ZaznamPlane final : public PametovaPlocha {
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

    using PametovaPlocha::PametovaPlocha;

    void Line(float x1, float y1, float x2, float y2) override {
        carky.push_back({x1, y1, x2, y2, DrawWidth});
        PametovaPlocha::Line(x1, y1, x2, y2);
    }
    void Circle(float x, float y, float r) override {
        kruhy.push_back({x, y, r});
        PametovaPlocha::Circle(x, y, r);
    }
    void Print(std::string_view text) override {
        napisy.push_back({CurrentX, CurrentY, std::string(text)});
        PametovaPlocha::Print(text);
    }
    bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) override {
        kopie.push_back(AutoRedraw);
        return PametovaPlocha::BitBlt(x, y, w, h, zdroj, zx, zy, rop);
    }

    std::vector<Carka> carky;
    std::vector<Kruh> kruhy;
    std::vector<Napis> napisy;
    std::vector<bool> kopie;  ///< AutoRedraw at each copy
};

}  // namespace rysovna::testy
