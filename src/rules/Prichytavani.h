#pragma once

#include <string_view>

#include "base/Bod.h"
#include "engine/Tabulky.h"

namespace rysovna {

/// Where a press caught a stored point.
struct Zachyt {
    bool Je = false;
    Bod Misto;  ///< the point; the press rounded to whole pixels if none was caught
};

/// Whether a press at (x, y) hits the point: a square of 15 by 15 pixels around it.
[[nodiscard]] bool Zasah(float x, float y, Bod bod);

/// The point of the last snap record that the press hits; of one record the first point goes
/// before the second. A point that a record does not have (its name is empty) is no target, nor is
/// a first point that was only looked for. With tretiBody the third points are targets too, after
/// the second. kromeRadku: a record whose points are no targets; 0: none.
[[nodiscard]] Zachyt ZachytPosledni(const Tabulky& t, float x, float y, bool tretiBody = false,
                                    int kromeRadku = 0);

/// As ZachytPosledni, but a later point replaces the one kept only if it is closer to the press in
/// both X and Y: circles, whose centre must not jump to a neighbour.
[[nodiscard]] Zachyt ZachytNejblizsi(const Tabulky& t, float x, float y, bool tretiBody = false);

/// Whether one of the snap records has a point of this name at this very place. A circle's record
/// bears the circle's own name at its centre, so that a vertex with a circle about it is still
/// the vertex.
[[nodiscard]] bool BodMaJmeno(const Tabulky& t, Bod bod, std::string_view jmeno);

/// Whether the start of an object is the point of the given name: some drawn object has it as the
/// name of its first (second) point, and that point lies exactly there.
[[nodiscard]] bool ZacinaVBode(const Tabulky& t, Bod start, std::string_view jmeno);

}  // namespace rysovna
