#pragma once

#include <memory>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// A plane in memory that needs no graphics library: lines and circles exactly as on the screen's
/// logical bitmap. In place of text it fills a block of SIRKA_ZNAKU by VYSKA_ZNAKU pixels for each
/// character, so that labels occupy pixels. While AutoRedraw is false nothing is drawn, as there.
class PametovaPlocha : public Plane {
public:
    static constexpr int SIRKA_ZNAKU = 6;
    static constexpr int VYSKA_ZNAKU = 8;

    /// White; a one-bit plane (jednobitova) is black, and holds black and white alone: what is
    /// drawn on it in any other colour becomes white.
    PametovaPlocha(int w, int h, bool jednobitova = false);

    [[nodiscard]] int Width() const override { return w_; }
    [[nodiscard]] int Height() const override { return h_; }
    void Line(float x1, float y1, float x2, float y2) override;
    void Circle(float x, float y, float r) override;
    void Print(std::string_view text) override;
    [[nodiscard]] int TextWidth(std::string_view text) const override;
    [[nodiscard]] int TextHeight() const override { return VYSKA_ZNAKU; }
    void Cls() override;
    [[nodiscard]] Barva Point(int x, int y) const override;
    [[nodiscard]] std::uint64_t Radek(int x, int y, int pocet) const override;
    bool BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) override;
    void InvertRect(int x, int y, int w, int h) override;
    [[nodiscard]] std::unique_ptr<Plane> CreateCompatibleBitmap(int w, int h) const override;
    [[nodiscard]] std::unique_ptr<Plane> CreateMonoBitmap(int w, int h) const override;

    /// Sets one pixel; outside the plane nothing.
    void PSet(int x, int y, Barva barva);
    /// Whether both show the same picture.
    [[nodiscard]] bool StejnyObraz(const PametovaPlocha& jina) const;

private:
    [[nodiscard]] std::size_t Misto(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(w_) +
               static_cast<std::size_t>(x);
    }
    [[nodiscard]] Obdelnik Meze() const { return {0, 0, w_, h_}; }
    [[nodiscard]] Barva Barvivo(Barva barva) const {
        return jednobitova_ && barva != CERNA ? BILA : barva;
    }
    /// Whether anything is to be drawn; the picture is another one then.
    [[nodiscard]] bool ZacniKreslit() {
        if (AutoRedraw) obraz_.reset();
        return AutoRedraw;
    }
    /// Sets the pixels of a rectangle within the plane.
    void Vypln(const Obdelnik& kam, Barva barva);

    int w_, h_;
    bool jednobitova_;
    std::vector<Barva> body_;  ///< by rows
    /// Planes that share one show the same picture, since nothing was drawn after the whole copy.
    struct Obraz {};
    mutable std::shared_ptr<const Obraz> obraz_;
};

}  // namespace rysovna
