#pragma once

#include <algorithm>
#include <cstddef>

namespace rysovna {

/// Sets w by h pixels from od on; krok: pixels from one row to the next. The first row is set and
/// the others are copied from it, which is the quickest way that a machine has for large areas.
template <class P>
void VyplnRadky(P* od, std::ptrdiff_t krok, int w, int h, P barva) {
    if (w <= 0 || h <= 0) return;
    if (w == 1) {
        for (int y = 0; y < h; ++y, od += krok) *od = barva;
        return;
    }
    std::fill_n(od, w, barva);
    P* radka = od;
    for (int y = 1; y < h; ++y) radka = std::copy_n(od, w, radka + krok) - w;
}

}  // namespace rysovna
