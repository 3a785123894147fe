#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "base/Bod.h"
#include "base/Plane.h"
#include "rules/KatalogChyb.h"
#include "rules/Zadani.h"

namespace rysovna {

/// A value that the pupil types for the starting triangle.
struct VstupVety {
    std::string_view Velicina;  ///< the quantity whose value it is
    std::string_view Popis;     ///< its name in the prompt
    ChybaKroku Chyba;           ///< wrong step when it differs
    bool Pulka = false;         ///< half of the quantity is typed
};

/// A starting triangle by a theorem. Vrcholy are its three vertices in the order of construction:
/// the first value is the side from the first to the second. By "sss" the second value is the side
/// from the second to the third and the third value that from the third to the first; by "sus" the
/// third value is the angle at the second.
struct VetaTrojuhelniku {
    std::string_view Veta, Trojuhelnik, Vrcholy;
    std::array<VstupVety, 3> Vstupy;
};

/// The four whole triangles by both theorems; boards with further ones join their own.
constexpr std::array<VetaTrojuhelniku, 8> VETY_CELYCH = {{
    {"sss", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"e", "e", 127}}}},
    {"sss", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"f", "f", 128}}}},
    {"sss", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"e", "e", 127}}}},
    {"sss", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"f", "f", 128}}}},
    {"sus", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"beta", "beta", 118}}}},
    {"sus", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"gama", "gama", 119}}}},
    {"sus", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"delta", "delta", 120}}}},
    {"sus", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"alfa", "alfa", 117}}}},
}};

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

/// Whether a pupil can tell the points of a figure apart and see its angles: all points (vertices
/// of both solutions, the centre) lie at least 30 px apart, and neighbouring sides of each
/// quadrilateral, its vertices in order, meet at 12 degrees or more.
[[nodiscard]] bool JeCitelna(std::span<const Bod> body,
                             std::span<const std::array<Bod, 4>> ctyruhelniky);

}  // namespace rysovna
