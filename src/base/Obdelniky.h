#pragma once

#include <algorithm>

#include "base/Bod.h"

namespace rysovna {

[[nodiscard]] constexpr bool JePrazdny(const Obdelnik& o) {
    return o.Width <= 0 || o.Height <= 0;
}
/// The common part; a rectangle of no size where there is none.
[[nodiscard]] constexpr Obdelnik Prunik(const Obdelnik& a, const Obdelnik& b) {
    const int x1 = std::max(a.Left, b.Left);
    const int y1 = std::max(a.Top, b.Top);
    const int x2 = std::min(a.Left + a.Width, b.Left + b.Width);
    const int y2 = std::min(a.Top + a.Height, b.Top + b.Height);
    if (x2 <= x1 || y2 <= y1) return {x1, y1, 0, 0};
    return {x1, y1, x2 - x1, y2 - y1};
}
/// The smallest rectangle around both; one without size counts for nothing.
[[nodiscard]] constexpr Obdelnik Obal(const Obdelnik& a, const Obdelnik& b) {
    if (JePrazdny(a)) return b;
    if (JePrazdny(b)) return a;
    const int x1 = std::min(a.Left, b.Left);
    const int y1 = std::min(a.Top, b.Top);
    const int x2 = std::max(a.Left + a.Width, b.Left + b.Width);
    const int y2 = std::max(a.Top + a.Height, b.Top + b.Height);
    return {x1, y1, x2 - x1, y2 - y1};
}
/// Whether every pixel of b is in a.
[[nodiscard]] constexpr bool Pokryva(const Obdelnik& a, const Obdelnik& b) {
    return JePrazdny(b) || Prunik(a, b) == b;
}

}  // namespace rysovna
