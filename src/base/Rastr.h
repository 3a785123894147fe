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
// Each routine calls put(rectangle) for the runs of pixels that the figure is made of, inside meze
// only, and clipping never changes a pixel. A line takes time by the size of meze, however long it
// runs on outside; a circle by its radius. A pen wider than 1 covers a square of that many pixels
// around each pixel of the thin figure, one more to the left and above where the width is even; put
// may then get a pixel more than once. With width 1 every run is one pixel thick, every pixel comes
// once, and no figure is two pixels thick anywhere.

namespace rysovna {

/// Puts what a square pen covers on its way over the pixels from x1, y1 to x2, y2, both included,
/// of one row or one column.
template <class Put>
void RastrPero(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, int pero,
               const Obdelnik& meze, Put&& put) {
    const std::int64_t pred = pero / 2;
    const std::int64_t za = pero - pred;
    x1 = std::max<std::int64_t>(x1 - pred, meze.Left);
    y1 = std::max<std::int64_t>(y1 - pred, meze.Top);
    x2 = std::min<std::int64_t>(x2 + za, std::int64_t{meze.Left} + meze.Width);
    y2 = std::min<std::int64_t>(y2 + za, std::int64_t{meze.Top} + meze.Height);
    if (x1 >= x2 || y1 >= y2) return;
    put(Obdelnik{static_cast<int>(x1), static_cast<int>(y1), static_cast<int>(x2 - x1),
                 static_cast<int>(y2 - y1)});
}

/// The runs of a line along its longer axis, in closed form, so that a clipped line can begin in
/// the middle and still have the very pixels of the whole one. At step i the line deviates across
/// by vychylka * i / delka, halves rounded up.
class BehyUsecky {
public:
    /// delka, vychylka: extent of the line along its longer axis (above 0) and across it (either
    /// sign, not longer). od: the step to begin at.
    BehyUsecky(std::int64_t delka, std::int64_t vychylka, std::int64_t od)
        : smer_(vychylka < 0 ? -1 : 1), dil_(2 * std::abs(vychylka)) {
        const Sirsi citatel = Sirsi{2} * od * vychylka + delka;
        Sirsi podil = citatel / (Sirsi{2} * delka);
        if (citatel < podil * 2 * delka) --podil;
        odchylka_ = static_cast<std::int64_t>(podil);
        if (dil_ == 0) return;
        // The run of deviation k ends before the step at which the next one is reached.
        const Sirsi dalsi = Sirsi{delka} * (2 * smer_ * podil + 1) - (vychylka > 0 ? 1 : 0);
        konec_ = static_cast<std::int64_t>(dalsi / dil_);
        zbytek_ = static_cast<std::int64_t>(dalsi % dil_);
        delkaBehu_ = 2 * delka / dil_;
        zbytekBehu_ = 2 * delka % dil_;
    }

    /// The deviation of the present run, and its last step; none ends it before nejdale.
    [[nodiscard]] std::int64_t Odchylka() const { return odchylka_; }
    [[nodiscard]] std::int64_t Konec(std::int64_t nejdale) const {
        return dil_ == 0 ? nejdale : std::min(konec_, nejdale);
    }
    void Dalsi() {
        odchylka_ += smer_;
        konec_ += delkaBehu_;
        zbytek_ += zbytekBehu_;
        if (zbytek_ < dil_) return;
        zbytek_ -= dil_;
        ++konec_;
    }

private:
    __extension__ using Sirsi = __int128;
    std::int64_t smer_, dil_;
    std::int64_t odchylka_ = 0, konec_ = 0, zbytek_ = 0;
    std::int64_t delkaBehu_ = 0, zbytekBehu_ = 0;
};

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
    BehyUsecky behy(std::max<std::int64_t>(bx - ax, 1), by - ay, prvni - ax);
    for (std::int64_t a = prvni; a <= posledni; behy.Dalsi()) {
        const std::int64_t b = ay + behy.Odchylka();
        const std::int64_t za = ax + behy.Konec(posledni - ax);
        if (strma) {
            RastrPero(b, a, b, za, pero, meze, put);
        } else {
            RastrPero(a, b, za, b, pero, meze, put);
        }
        a = za + 1;
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
    const auto kus = [&](std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
        RastrPero(sx + x1, sy + y1, sx + x2, sy + y2, pero, meze, put);
    };
    // The pixels that have so much in one axis and from od to k in the other, all eight times.
    const auto beh = [&](std::int64_t od, std::int64_t k, std::int64_t daleko) {
        for (const std::int64_t d : {-daleko, daleko}) {
            if (od == 0) {
                kus(-k, d, k, d);
                kus(d, -k, d, k);
                continue;
            }
            kus(-k, d, -od, d);
            kus(od, d, k, d);
            kus(d, -k, d, -od);
            kus(d, od, d, k);
        }
    };
    // One eighth, from the top to the diagonal: for each dx the dy nearest to the true circle,
    // that is the largest one with dy * (dy - 1) < r * r - dx * dx. A pixel on the diagonal is
    // left out where its neighbours on both sides already touch corner to corner.
    std::int64_t dy = r;
    std::int64_t od = 0;
    for (std::int64_t dx = 0; dx <= dy; ++dx) {
        const std::int64_t predchozi = dy;
        while (dy > 0 && dy * (dy - 1) >= r * r - dx * dx) --dy;
        if (dy != predchozi || dx >= dy) {
            if (od < dx) beh(od, dx - 1, predchozi);
            od = dx;
        }
        if (dx != dy || (dx > 0 && predchozi == dy)) continue;
        for (const std::int64_t x : {-dx, dx}) {
            kus(x, -dx, x, -dx);
            if (dx > 0) kus(x, dx, x, dx);
            if (dx == 0) break;
        }
    }
}

}  // namespace rysovna
