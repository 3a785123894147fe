#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Bod.h"
#include "base/Plane.h"
#include "rules/VetaTrojuhelniku.h"
#include "rules/Zadani.h"

namespace rysovna {

/// The vertices of the starting triangle from three values (cm, degrees) in the order of the
/// theorem, where the board draws them: the first side level from the left. Plane pixels. None if
/// the values do not meet or put a vertex beyond 800 px of the origin.
[[nodiscard]] std::optional<std::array<Bod, 3>> SpocitejTrojuhelnik(
    const Plane& plocha, std::string_view veta, const std::array<double, 3>& hodnoty);

/// Whether all these points can stand on the plane at once after some travel of the arrows, 20 px
/// from its edge: closer to it a line's second point no longer keeps its direction.
[[nodiscard]] bool VejdouSe(const Plane& plocha, std::span<const Bod> body);

/// What the theorem asks for, in the order of its rows, from an example's values: of a diagonal
/// that is typed by its half, the half. A quantity that is not given is 0.
[[nodiscard]] std::array<double, 3> HodnotyVety(const VetaTrojuhelniku& veta, const Priklad& p,
                                                const HodnotyPrikladu& hodnoty);

/// The vertex across the centre of a parallelogram; any other letter stays.
[[nodiscard]] char Protejsi(char vrchol);
/// Where a point's image in the centre is.
[[nodiscard]] Bod ObrazVeStredu(Bod vzor, Bod stred);

/// The letter of the quadrilateral that its starting triangle lacks; empty for no such triangle.
[[nodiscard]] std::string CtvrtePismeno(std::string_view trojuhelnik);

/// The height upon a side named by its letters ("vc" for AB); empty for what is no side.
[[nodiscard]] std::string_view VyskaNaStranu(std::string_view strana);

/// Whether a pupil can tell the points of a figure apart and see its angles: all points (vertices
/// of both solutions, the centre) lie at least 30 px apart, and neighbouring sides of each
/// quadrilateral, its vertices in order, meet at 12 degrees or more.
[[nodiscard]] bool JeCitelna(std::span<const Bod> body,
                             std::span<const std::array<Bod, 4>> ctyruhelniky);

}  // namespace rysovna
