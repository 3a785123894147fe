#pragma once

#include <vector>

#include "base/Plane.h"
#include "rules/Misc.h"

namespace rysovna {

/// The two planes of a board: what the pupil sees and its off-screen twin.
struct Platna {
    Plane& Pic;
    Plane& HidenPic;
};

/// Empties the construction for a new example: planes, counters, the rows of the construction and
/// of the wrong steps, every done flag of every record. What the pupil entered goes with the choice
/// of the new example.
void VyprazdniKonstrukci(Misc& misc, const Platna& platna);
/// Clears what the pupil entered in the first ten phases.
void ZapomenZadanePrvky(Misc& misc);

/// The construction as it stood at the beginning of a step: what a step back puts back.
class SnimekKonstrukce {
public:
    explicit SnimekKonstrukce(const Tabulky& t);
    /// Rows in use and counters; rows behind them are left alone.
    void Vrat(Tabulky& t) const;
    /// What the arrows have moved since then moves here too.
    void Posun(int dx, int dy);

private:
    std::vector<Utvar> utvary_;
    std::vector<Trojice> trojice_;
};

}  // namespace rysovna
