#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

// Rows of pixels, whatever a pixel of the bitmap is.

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

/// Which of so many pixels have another colour: a bit for each, the first one lowest. Weights of a
/// table and no shifts, so that the compiler takes several pixels at once.
template <int POCET, class P>
std::uint32_t JineZ(const P* body, P barva) {
    static constexpr auto VAHY = [] {
        std::array<std::uint32_t, 32> vahy{};
        for (unsigned i = 0; i < vahy.size(); ++i) vahy[i] = std::uint32_t{1} << i;
        return vahy;
    }();
    std::uint32_t bity = 0;
    for (std::size_t i = 0; i < POCET; ++i)
        bity |= (body[i] == barva ? 0 : ~std::uint32_t{0}) & VAHY[i];
    return bity;
}

/// The same of up to 64 pixels. The last of its parts may overlap the one before.
template <class P>
std::uint64_t Jine(const P* body, int pocet, P barva) {
    std::uint64_t bity = 0;
    const auto po = [&]<int N>(std::integral_constant<int, N>, int od) {
        bity |= std::uint64_t{JineZ<N>(body + od, barva)} << od;
    };
    int i = 0;
    for (; pocet - i >= 32; i += 32) po(std::integral_constant<int, 32>{}, i);
    if (pocet >= 16) {
        for (; i < pocet; i += 16) po(std::integral_constant<int, 16>{}, std::min(i, pocet - 16));
    } else if (pocet >= 8) {
        for (; i < pocet; i += 8) po(std::integral_constant<int, 8>{}, std::min(i, pocet - 8));
    } else {
        for (; i < pocet; ++i) po(std::integral_constant<int, 1>{}, i);
    }
    return bity;
}

/// The lowest so many bits.
constexpr std::uint64_t DolniBity(int pocet) {
    return pocet >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << pocet) - 1;
}

/// What Plane::Radek gives, of a bitmap of this size whose pixels stand row by row.
template <class P>
std::uint64_t ObsazenoVRadku(const P* body, int sirka, int vyska, int x, int y, int pocet,
                             P barva) {
    const int od = std::clamp(-x, 0, pocet);
    const int po = std::clamp(sirka - x, od, pocet);
    if (y < 0 || y >= vyska || od == po) return DolniBity(pocet);
    const std::uint64_t uvnitr =
        Jine(body + static_cast<std::ptrdiff_t>(y) * sirka + x + od, po - od, barva) << od;
    return uvnitr | (DolniBity(pocet) & ~(DolniBity(po) & ~DolniBity(od)));
}

}  // namespace rysovna
