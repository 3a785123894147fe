#pragma once

#include <array>
#include <string>

#include "base/Chyba.h"

namespace rysovna {

/// Index of a table's row together with the place that asked for it, so that an overrun names the
/// caller. Made from a plain whole number.
struct Radek {
    // Implicit on purpose: a row is written as a number.
    Radek(int cislo, MistoKodu misto = MistoKodu::Tady()) : i(cislo), kde(misto) {}
    int i;
    MistoKodu kde;
};

/// A table of fixed size. Rows 0 to N, in use from 1. Any other index is a run-time fault, in
/// release builds too: a session must never go on with a row that is not there.
template <class T, int N>
class Tabulka {
public:
    static constexpr int POSLEDNI = N;

    T& operator[](Radek r) { return radky_[Over(r)]; }
    const T& operator[](Radek r) const { return radky_[Over(r)]; }

    /// Every row to its default value.
    void Smaz() { radky_.fill(T{}); }

    friend bool operator==(const Tabulka&, const Tabulka&) = default;

private:
    static std::size_t Over(const Radek& r) {
        if (r.i < 0 || r.i > N) {
            Selhani("Index tabulky mimo meze: " + std::to_string(r.i) + " (0 až " +
                        std::to_string(N) + ")",
                    r.kde);
        }
        return static_cast<std::size_t>(r.i);
    }

    std::array<T, N + 1> radky_{};
};

}  // namespace rysovna
