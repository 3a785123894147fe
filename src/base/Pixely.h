#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

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

/// Four pixels in one register of the machine.
using Ctverice [[gnu::vector_size(16)]] = std::int32_t;

/// Which of four pixels for each I have another colour: a bit for each pixel, the first one lowest.
/// Weights and no shifts, and no loop: as few instructions as a machine allows.
template <class P, std::size_t... I>
std::uint32_t JineZ(const P* body, P barva, std::index_sequence<I...>) {
    static_assert(sizeof(P) == sizeof(std::int32_t) && sizeof...(I) <= 8);
    const auto vaha = [](std::size_t i) {
        return static_cast<std::int32_t>(std::uint32_t{1} << i);
    };
    const auto b = static_cast<std::int32_t>(barva);
    const Ctverice hledane{b, b, b, b};
    const auto ctverice = [&](std::size_t i) {
        Ctverice c;
        std::memcpy(&c, body + 4 * i, sizeof c);
        return (c != hledane) &
               Ctverice{vaha(4 * i), vaha(4 * i + 1), vaha(4 * i + 2), vaha(4 * i + 3)};
    };
    const Ctverice bity = (ctverice(I) | ...);
    const Ctverice dve = bity | __builtin_shufflevector(bity, bity, 2, 3, 0, 1);
    return static_cast<std::uint32_t>((dve | __builtin_shufflevector(dve, dve, 1, 0, 3, 2))[0]);
}

/// The same of up to 64 pixels, a block at a time; the last one may overlap the one before.
template <class P>
[[gnu::always_inline]] inline std::uint64_t Jine(const P* body, int pocet, P barva) {
    std::uint64_t bity = 0;
    int i = 0;
    const auto dalsich = [&]<int N>(std::integral_constant<int, N>) {
        bity |= std::uint64_t{JineZ(body + i, barva, std::make_index_sequence<N / 4>())} << i;
        i += N;
    };
    while (pocet - i >= 32) dalsich(std::integral_constant<int, 32>{});
    if (pocet - i >= 16) dalsich(std::integral_constant<int, 16>{});
    if (pocet - i >= 8) dalsich(std::integral_constant<int, 8>{});
    if (i == pocet) return bity;
    if (pocet >= 8 && pocet - i > 2) {
        i = pocet - 8;
        dalsich(std::integral_constant<int, 8>{});
    } else {
        for (; i < pocet; ++i) bity |= std::uint64_t{body[i] != barva} << i;
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
    if (x >= 0 && sirka - x >= pocet && y >= 0 && y < vyska)
        return Jine(body + static_cast<std::ptrdiff_t>(y) * sirka + x, pocet, barva);
    const int od = std::clamp(-x, 0, pocet);
    const int po = std::clamp(sirka - x, od, pocet);
    if (y < 0 || y >= vyska || od == po) return DolniBity(pocet);
    const std::uint64_t uvnitr =
        Jine(body + static_cast<std::ptrdiff_t>(y) * sirka + x + od, po - od, barva) << od;
    return uvnitr | (DolniBity(pocet) & ~(DolniBity(po) & ~DolniBity(od)));
}

}  // namespace rysovna
