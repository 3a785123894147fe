#pragma once

#include <cstdint>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// A pixel as it is painted: 0xFFRRGGBB. On display bitmaps a pixel at the edge of the key colour
/// is 0xAARRGGBB: its own colour, unmixed, and how much of the pixel that covers.
using Pixel = std::uint32_t;

constexpr Pixel DoPixelu(Barva b) {
    const auto u = static_cast<std::uint32_t>(b);
    return 0xFF000000u | ((u & 0xFFu) << 16) | (u & 0xFF00u) | ((u >> 16) & 0xFFu);
}
constexpr Barva ZPixelu(Pixel p) {
    return static_cast<Barva>(((p & 0xFFu) << 16) | (p & 0xFF00u) | ((p >> 16) & 0xFFu));
}
constexpr Pixel KLIC = DoPixelu(PURPUROVA);

/// Mixes colour over ground; kryti 0 to 255.
constexpr Pixel Smichej(Pixel podklad, Pixel barva, unsigned kryti) {
    const auto kanal = [&](unsigned posun) {
        const unsigned a = (podklad >> posun) & 0xFFu;
        const unsigned b = (barva >> posun) & 0xFFu;
        return ((a * (255u - kryti) + b * kryti + 127u) / 255u) << posun;
    };
    return 0xFF000000u | kanal(16) | kanal(8) | kanal(0);
}

/// A pixel of a picture over what lies below: the key colour lets it through, an edge covers its
/// part. A resting picture and a sliding one go by the same rule, or the edge would jump between.
constexpr Pixel BezKlice(Pixel dolni, Pixel horni) {
    const unsigned kryti = horni >> 24;
    return horni == KLIC ? dolni : kryti == 255 ? horni : Smichej(dolni, horni, kryti);
}

/// A view of a rectangle of pixels that somebody else owns.
struct Vyhled {
    Pixel* Body = nullptr;
    int Sirka = 0, Vyska = 0;
    int Krok = 0;  ///< pixels from one row to the next

    [[nodiscard]] Pixel* Radka(int y) const { return Body + static_cast<std::ptrdiff_t>(y) * Krok; }
    [[nodiscard]] Obdelnik Meze() const { return {0, 0, Sirka, Vyska}; }
    void Vypln(const Obdelnik& kam, Pixel barva) const;
    void Obrat(const Obdelnik& kde) const;
};

/// The same for reading.
struct PohledKeCteni {
    const Pixel* Body = nullptr;
    int Sirka = 0, Vyska = 0;
    int Krok = 0;
    [[nodiscard]] const Pixel* Radka(int y) const {
        return Body + static_cast<std::ptrdiff_t>(y) * Krok;
    }
};

/// A rectangle of pixels.
struct Bitmapa {
    int Sirka = 0, Vyska = 0;
    std::vector<Pixel> Body;

    Bitmapa() = default;
    Bitmapa(int sirka, int vyska, Pixel barva);
    [[nodiscard]] bool Prazdna() const { return Body.empty(); }
    [[nodiscard]] const Pixel* Radka(int y) const {
        return Body.data() + static_cast<std::ptrdiff_t>(y) * Sirka;
    }
    [[nodiscard]] Vyhled Pohled() { return {Body.data(), Sirka, Vyska, Sirka}; }
    [[nodiscard]] PohledKeCteni KeCteni() const { return {Body.data(), Sirka, Vyska, Sirka}; }
};

/// A design rectangle as pixels of a bitmap enlarged S times; touching ones stay touching.
[[nodiscard]] Obdelnik Zvetsi(const Obdelnik& o, double s);
/// A design coordinate on a bitmap enlarged S times.
[[nodiscard]] int Zvetsi(int x, double s);

/// How pixels get from one bitmap to another.
enum class Prenos {
    Kopie,           ///< as they are
    BezKlice,        ///< those of the key colour are left out, those at its edge mixed in
    Soucin,          ///< and
    Soucet,          ///< or
    SoucinPodilu,    ///< what "and" is for masks with greys at their edges
    SoucetPodilu,    ///< what "or" is for such
    NaJednobitovou,  ///< the key to white, all else to black, the key's edge to grey
};

/// Brings the pixels of the source at zx, zy to the rectangle kam, one to one; where the source
/// ends sooner (by the rounding of an enlarged size) its last row and column are repeated. orez:
/// what of the target may be touched. klic: of NaJednobitovou.
void Prenes(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Bitmapa& zdroj,
            int zx, int zy, Prenos jak, Pixel klic = KLIC);

/// The picture in another size. Averages when it gets smaller, mixes neighbours when it gets
/// larger. A picture with the key colour keeps it pure: what is all key is the key, all other
/// pixels are mixed of the other colours alone and say how much of them is not key. The highest
/// byte of the source's pixels does not matter.
[[nodiscard]] Bitmapa Preskaluj(const PohledKeCteni& zdroj, int sirka, int vyska, bool sKlicem);

}  // namespace rysovna
