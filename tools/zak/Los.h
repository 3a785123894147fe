#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/Bod.h"
#include "base/Nahoda.h"

namespace rysovna::hrac {

/// A pupil's chances, by a seed. Drawn by the game's own generator and in told order, so that the
/// same seed plays the same on every machine.
class Los {
public:
    explicit Los(std::uint32_t seminko) { Zasej(seminko); }
    void Zasej(std::uint32_t seminko) { nahoda_.Zasej(seminko); }

    /// A whole number from 0 to pod - 1.
    [[nodiscard]] int Cislo(int pod) { return nahoda_.D(pod, 0); }
    /// A whole number from od to po.
    [[nodiscard]] int Mezi(int od, int po) { return nahoda_.D(po - od + 1, od); }
    [[nodiscard]] bool Ano() { return Cislo(2) == 0; }
    /// Somewhere on the way from one point to another, ends included.
    [[nodiscard]] Bod NaCeste(Bod od, Bod k) {
        const double t = Mezi(0, DILKU) / static_cast<double>(DILKU);
        return {static_cast<int>(od.X + t * (k.X - od.X) + 0.5),
                static_cast<int>(od.Y + t * (k.Y - od.Y) + 0.5)};
    }
    /// Up to o px off on either axis.
    [[nodiscard]] Bod Vedle(Bod b, int o) {
        const int dx = Mezi(-o, o);
        const int dy = Mezi(-o, o);
        return {b.X + dx, b.Y + dy};
    }
    template <class T>
    void Zamichej(std::vector<T>& co) {
        for (std::size_t i = co.size(); i > 1; --i) {
            std::swap(co[i - 1], co[static_cast<std::size_t>(Cislo(static_cast<int>(i)))]);
        }
    }

private:
    static constexpr int DILKU = 1000;
    Nahoda nahoda_;
};

}  // namespace rysovna::hrac
