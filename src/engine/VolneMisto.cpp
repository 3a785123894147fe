#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "engine/Sluzby.h"

namespace rysovna {

namespace {

using Slovo = std::uint64_t;

/// Rows of a label's box: one above the corner, the corner's own, and VYSKA_POPISU below.
constexpr int RADKU = VYSKA_POPISU + 2;
/// A word of 64 rows holds this many candidates that lie in it with their whole box.
constexpr int KANDIDATU = 64 - RADKU + 1;
/// Set in a word that was read; no candidate has this bit.
constexpr Slovo PRECTENO = Slovo{1} << 63;

/// Whether the column holds nothing but white over one box's height.
bool BilySloupec(const Plane& plane, int x, int y) {
    std::array<std::uint8_t, RADKU> body;
    plane.Sloupec(x, y, body);
    Slovo zacatek;
    std::uint32_t konec;
    static_assert(sizeof zacatek + sizeof konec == RADKU);
    std::memcpy(&zacatek, body.data(), sizeof zacatek);
    std::memcpy(&konec, body.data() + sizeof zacatek, sizeof konec);
    return (zacatek | konec) == 0;
}

/// Eight bytes as a number, the first one lowest.
Slovo OsmBajtu(const std::uint8_t* bajty) {
    Slovo osm = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&osm, bajty, sizeof osm);
    } else {
        for (int k = 0; k < 8; ++k) osm |= Slovo{bajty[k]} << (8 * k);
    }
    return osm;
}

/// Candidates that one column of pixels rules out: bit j is set when any of the box's rows of
/// candidate j is not white. pocet: candidates, at most KANDIDATU.
Slovo Zabrano(const Plane& plane, int x, int y, int pocet) {
    std::array<std::uint8_t, 64> body{};
    const int radku = pocet + RADKU - 1;
    plane.Sloupec(x, y, std::span(body).first(static_cast<std::size_t>(radku)));
    Slovo bity = 0;
    for (int i = 0; i < radku; i += 8) {
        // Eight bytes of 0 or 1 into eight bits: each byte is multiplied to its own place in the
        // topmost byte.
        const Slovo osm = OsmBajtu(&body[static_cast<std::size_t>(i)]);
        bity |= ((osm * 0x0102040810204080U) >> 56) << i;
    }
    // Each candidate gathers the twelve rows from its own on.
    static_assert(RADKU == 12);
    bity |= bity >> 1;
    bity |= bity >> 2;
    bity |= bity >> 4;
    bity |= bity >> 4;
    return bity;
}

/// The columns of pixels under all candidates, each read at most once and only when asked for.
class Sloupce {
public:
    Sloupce(const Plane& plane, Bod roh, int sloupcu, int kandidatu)
        : plane_(plane),
          roh_(roh),
          kandidatu_(kandidatu),
          slov_((kandidatu + KANDIDATU - 1) / KANDIDATU) {
        const auto treba = static_cast<std::size_t>(sloupcu) * static_cast<std::size_t>(slov_);
        if (treba > male_.size()) {
            velke_.resize(treba);
            slova_ = velke_;
        } else {
            slova_ = std::span(male_).first(treba);
            std::ranges::fill(slova_, 0);
        }
    }

    [[nodiscard]] int Slov() const { return slov_; }

    /// How many candidates stand in the word.
    [[nodiscard]] int Pocet(int slovo) const {
        return std::min(KANDIDATU, kandidatu_ - slovo * KANDIDATU);
    }

    Slovo operator()(int sloupec, int slovo) {
        Slovo& s = slova_[static_cast<std::size_t>(sloupec) * static_cast<std::size_t>(slov_) +
                          static_cast<std::size_t>(slovo)];
        if (s == 0) {
            s = PRECTENO |
                Zabrano(plane_, roh_.X + sloupec, roh_.Y + slovo * KANDIDATU, Pocet(slovo));
        }
        return s;
    }

private:
    const Plane& plane_;
    Bod roh_;
    int kandidatu_, slov_;
    std::array<Slovo, 64> male_;  ///< room for every label that the drawing routines ask for
    std::vector<Slovo> velke_;
    std::span<Slovo> slova_;
};

}  // namespace

void VolneMisto(Plane& plane, Bod& bod, int sirka, int dosah) {
    if (dosah < 0) return;
    const int sloupcu = std::max(sirka + 2, 0);
    const int kandidatu = 2 * dosah + 1;
    const Bod roh{bod.X - dosah - 1, bod.Y - dosah - 1};

    // Most labels fit at the first candidate, so its box is looked at by itself before the columns
    // are read as deep as all candidates reach.
    int bilych = 0;
    while (bilych < sloupcu && BilySloupec(plane, roh.X + bilych, roh.Y)) ++bilych;
    if (bilych == sloupcu) {
        bod = {bod.X - dosah, bod.Y - dosah};
        return;
    }

    Sloupce sloupce(plane, roh, sloupcu + kandidatu - 1, kandidatu);
    for (int i = 0; i < kandidatu; ++i) {
        for (int slovo = 0; slovo < sloupce.Slov(); ++slovo) {
            const Slovo vsichni = (Slovo{1} << sloupce.Pocet(slovo)) - 1;
            Slovo zabrano = 0;
            for (int s = i; s < i + sloupcu && (zabrano & vsichni) != vsichni; ++s) {
                zabrano |= sloupce(s, slovo);
            }
            const Slovo volno = vsichni & ~zabrano;
            if (volno != 0) {
                const int j = slovo * KANDIDATU + std::countr_zero(volno);
                bod = {bod.X - dosah + i, bod.Y - dosah + j};
                return;
            }
        }
    }
}

}  // namespace rysovna
