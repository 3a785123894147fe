#include "engine/VolneMisto.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "base/Pixely.h"

namespace rysovna {

namespace {

/// A bit for each candidate of a block, leftmost lowest.
using Slovo = std::uint64_t;

/// Rows of a label's box: one above the corner, the corner's own, and VYSKA_POPISU below.
constexpr int RADKU = VYSKA_POPISU + 2;
/// So many columns of candidates are looked at together, and of a box so many columns at a time:
/// what both reach is one reading of the plane.
constexpr int BLOK = 32;

/// Of each bit whether it or any of the n - 1 above it is set.
Slovo NejakyZ(Slovo bity, int n) {
    if (bity == 0) return 0;
    int spojeno = 1;
    for (; 2 * spojeno <= n; spojeno *= 2) bity |= bity >> spojeno;
    return bity | bity >> (n - spojeno);
}

/// The rows of pixels under a block of candidates, each read only when asked for, and once if it is
/// one of the first that there is room for.
class Radky {
public:
    /// roh: the top left pixel of the block's first box.
    Radky(const Plane& plane, Bod roh, int sloupcu, int kandidatu)
        : plane_(plane), roh_(roh), sloupcu_(sloupcu), kandidatu_(kandidatu) {}

    /// The candidates whose boxes are not white all along this row.
    Slovo operator()(int radka) {
        if (radka >= PAMATUJE) return Precti(radka);
        Slovo& s = slova_[static_cast<std::size_t>(radka)];
        if ((precteno_ >> radka & 1) == 0) {
            s = Precti(radka);
            precteno_ |= Slovo{1} << radka;
        }
        return s;
    }

private:
    [[nodiscard]] Slovo Precti(int radka) const {
        Slovo zabrano = 0;
        for (int od = 0; od < sloupcu_; od += BLOK) {
            const int n = std::min(sloupcu_ - od, BLOK);
            zabrano |= NejakyZ(plane_.Radek(roh_.X + od, roh_.Y + radka, kandidatu_ + n - 1), n);
        }
        return zabrano & DolniBity(kandidatu_);
    }

    /// More than the rows of any label that the drawing routines ask for.
    static constexpr int PAMATUJE = 64;

    const Plane& plane_;
    Bod roh_;
    int sloupcu_, kandidatu_;
    Slovo precteno_ = 0;  ///< a bit for each row
    std::array<Slovo, PAMATUJE> slova_;
};

/// The topmost of the candidates of a column that is free; kandidatu if none is. From the bottom of
/// each box up: below the row that spoils one the next can begin.
int PrvniVolny(Radky& radky, int sloupec, int kandidatu) {
    int j = 0;
    while (j < kandidatu) {
        int radka = j + RADKU - 1;
        while (radka >= j && (radky(radka) >> sloupec & 1) == 0) --radka;
        if (radka < j) return j;
        j = radka + 1;
    }
    return kandidatu;
}

}  // namespace

void VolneMisto(Plane& plane, Bod& bod, int sirka, int dosah) {
    if (dosah < 0) return;
    const int sloupcu = std::max(sirka + 2, 0);
    const int kandidatu = 2 * dosah + 1;
    const int radku = kandidatu + RADKU - 1;
    for (int prvni = 0; prvni < kandidatu; prvni += BLOK) {
        const int vBloku = std::min(kandidatu - prvni, BLOK);
        Radky radky(plane, {bod.X - dosah - 1 + prvni, bod.Y - dosah - 1}, sloupcu, vBloku);
        // Each box has one of these rows: where all are taken no box of the column is free.
        Slovo zabrano = DolniBity(vBloku);
        for (int r = RADKU - 1; r < radku; r += RADKU) zabrano &= radky(r);
        for (Slovo zbyva = DolniBity(vBloku) & ~zabrano; zbyva != 0; zbyva &= zbyva - 1) {
            const int i = std::countr_zero(zbyva);
            const int j = PrvniVolny(radky, i, kandidatu);
            if (j == kandidatu) continue;
            bod = {bod.X - dosah + prvni + i, bod.Y - dosah + j};
            return;
        }
    }
}

}  // namespace rysovna
