#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "base/Bod.h"
#include "base/Cisla.h"

// The rasteriser of the logical picture: lines and circles in whole pixels, without antialiasing.
// Every surface draws with it, so that the same pixels are occupied everywhere and a label finds
// the same place.
//
// Each routine calls put(x, y) for the pixels inside meze only, and clipping never changes a pixel.
// A line takes time by the size of meze, however long it runs on outside; a circle by its radius.
// A pen wider than 1 covers a square of that many pixels around each pixel of the thin figure, one
// more to the left and above where the width is even; put may then get a pixel more than once.
// With width 1 every pixel comes once, and no figure is two pixels thick anywhere.

namespace rysovna {

/// Steps along the longer axis of a line, in closed form, so that a clipped line can begin in the
/// middle and still have the very pixels of the whole one.
class KrokyUsecky {
public:
    /// delka, vychylka: extent of the line along its longer axis (above 0) and across it (either
    /// sign, not longer).
    KrokyUsecky(std::int64_t delka, std::int64_t vychylka) : delka_(delka), vychylka_(vychylka) {}

    /// Goes to step i: the deviation is vychylka * i / delka, halves rounded up.
    void Na(std::int64_t i) {
        __extension__ using Sirsi = __int128;
        const Sirsi citatel = Sirsi{2} * i * vychylka_ + delka_;
        const Sirsi jmenovatel = Sirsi{2} * delka_;
        Sirsi podil = citatel / jmenovatel;
        Sirsi zbytek = citatel % jmenovatel;
        if (zbytek < 0) {
            zbytek += jmenovatel;
            --podil;
        }
        odchylka_ = static_cast<std::int64_t>(podil);
        zbytek_ = static_cast<std::int64_t>(zbytek);
    }

    void Dalsi() {
        zbytek_ += 2 * vychylka_;
        if (zbytek_ >= 2 * delka_) {
            zbytek_ -= 2 * delka_;
            ++odchylka_;
        } else if (zbytek_ < 0) {
            zbytek_ += 2 * delka_;
            --odchylka_;
        }
    }

    [[nodiscard]] std::int64_t Odchylka() const { return odchylka_; }

private:
    std::int64_t delka_, vychylka_;
    std::int64_t odchylka_ = 0, zbytek_ = 0;
};

/// Puts the pixels of a square pen with its middle on x, y.
template <class Put>
void RastrPero(std::int64_t x, std::int64_t y, int pero, const Obdelnik& meze, Put&& put) {
    if (pero == 1) {
        if (x >= meze.Left && y >= meze.Top && x < std::int64_t{meze.Left} + meze.Width &&
            y < std::int64_t{meze.Top} + meze.Height) {
            put(static_cast<int>(x), static_cast<int>(y));
        }
        return;
    }
    const std::int64_t vlevo = x - pero / 2;
    const std::int64_t nahore = y - pero / 2;
    const auto x1 = std::max<std::int64_t>(vlevo, meze.Left);
    const auto x2 = std::min<std::int64_t>(vlevo + pero, std::int64_t{meze.Left} + meze.Width);
    const auto y1 = std::max<std::int64_t>(nahore, meze.Top);
    const auto y2 = std::min<std::int64_t>(nahore + pero, std::int64_t{meze.Top} + meze.Height);
    for (std::int64_t py = y1; py < y2; ++py) {
        for (std::int64_t px = x1; px < x2; ++px) put(static_cast<int>(px), static_cast<int>(py));
    }
}

/// A line, both ends included, end points rounded to whole pixels with ties to even. The pixels
/// are the same from either end. pero: pen width, px; below 1 counts as 1.
template <class Put>
void RastrUsecka(double x1, double y1, double x2, double y2, int pero, const Obdelnik& meze,
                 Put&& put) {
    pero = std::max(pero, 1);
    std::int64_t ax = Zaokrouhli(x1), ay = Zaokrouhli(y1);
    std::int64_t bx = Zaokrouhli(x2), by = Zaokrouhli(y2);
    const bool strma = std::abs(by - ay) > std::abs(bx - ax);
    if (strma) {
        std::swap(ax, ay);
        std::swap(bx, by);
    }
    if (ax > bx) {
        std::swap(ax, bx);
        std::swap(ay, by);
    }
    // From here on a is the axis along the line and goes up, b the one across.
    const std::int64_t okraj = pero;
    const std::int64_t zacatek = (strma ? meze.Top : meze.Left) - okraj;
    const std::int64_t konec = zacatek + (strma ? meze.Height : meze.Width) + 2 * okraj;
    const std::int64_t prvni = std::max(ax, zacatek);
    const std::int64_t posledni = std::min(bx, konec);
    if (prvni > posledni) return;
    KrokyUsecky kroky(std::max<std::int64_t>(bx - ax, 1), by - ay);
    kroky.Na(prvni - ax);
    for (std::int64_t a = prvni; a <= posledni; ++a, kroky.Dalsi()) {
        const std::int64_t b = ay + kroky.Odchylka();
        RastrPero(strma ? b : a, strma ? a : b, pero, meze, put);
    }
}

/// A full circle's outline, the same in all eight eighths. Centre and radius are rounded to whole
/// pixels with ties to even; radius 0 is one pixel, a negative one nothing. pero as of a line.
template <class Put>
void RastrKruznice(double stredX, double stredY, double polomer, int pero, const Obdelnik& meze,
                   Put&& put) {
    pero = std::max(pero, 1);
    const std::int64_t sx = Zaokrouhli(stredX), sy = Zaokrouhli(stredY);
    const std::int64_t r = Zaokrouhli(polomer);
    if (r < 0) return;
    const auto bod = [&](std::int64_t dx, std::int64_t dy) {
        RastrPero(sx + dx, sy + dy, pero, meze, put);
    };
    const auto ctyri = [&](std::int64_t dx, std::int64_t dy) {
        bod(dx, dy);
        if (dx != 0) bod(-dx, dy);
        if (dy != 0) bod(dx, -dy);
        if (dx != 0 && dy != 0) bod(-dx, -dy);
    };
    // One eighth, from the top to the diagonal: for each dx the dy nearest to the true circle,
    // that is the largest one with dy * (dy - 1) < r * r - dx * dx. A pixel on the diagonal is
    // left out where its neighbours on both sides already touch corner to corner.
    std::int64_t dy = r;
    std::int64_t predchozi = -1;
    for (std::int64_t dx = 0; dx <= dy; ++dx) {
        while (dy > 0 && dy * (dy - 1) >= r * r - dx * dx) --dy;
        if (dx > dy) break;
        if (dx == dy) {
            if (predchozi != dy) ctyri(dx, dy);
            break;
        }
        ctyri(dx, dy);
        ctyri(dy, dx);
        predchozi = dy;
    }
}

}  // namespace rysovna
