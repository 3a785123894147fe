#pragma once

#include <array>
#include <string_view>

#include "rules/KatalogChyb.h"
#include "rules/Radky.h"

namespace rysovna {

/// A value that the pupil types for the starting triangle.
struct VstupVety {
    std::string_view Velicina;  ///< the quantity whose value it is
    std::string_view Popis;     ///< its name in the prompt
    ChybaKroku Chyba;           ///< wrong step when it differs
    bool Pulka = false;         ///< half of the quantity is typed
};

/// The theorems by which a starting triangle is made, as the data name them.
constexpr std::string_view SSS = "sss", SUS = "sus";

/// A starting triangle by a theorem. Vrcholy are its three vertices in the order of construction:
/// the first value is the side from the first to the second. By SSS the second value is the side
/// from the second to the third and the third value that from the third to the first; by SUS the
/// third value is the angle at the second.
struct VetaTrojuhelniku {
    std::string_view Veta, Trojuhelnik, Vrcholy;
    std::array<VstupVety, 3> Vstupy;
};

/// The four whole triangles by both theorems; boards with further ones join their own.
constexpr std::array<VetaTrojuhelniku, 8> VETY_CELYCH = {{
    {SSS, "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"e", "e", 127}}}},
    {SSS, "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"f", "f", 128}}}},
    {SSS, "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"e", "e", 127}}}},
    {SSS, "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"f", "f", 128}}}},
    {SUS, "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"beta", "beta", 118}}}},
    {SUS, "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"gama", "gama", 119}}}},
    {SUS, "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"delta", "delta", 120}}}},
    {SUS, "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"alfa", "alfa", 117}}}},
}};

/// The whole triangles and those with the centre S. In these the halves of the diagonals are typed;
/// the angle of the diagonals has no number of its own.
constexpr auto VETY_ROVNOBEZNIKU = Spoj(
    VETY_CELYCH,
    std::array<VetaTrojuhelniku, 8>{{
        {SSS, "ABS", "ABS", {{{"a", "a", 113}, {"f", "BS", 128, true}, {"e", "AS", 127, true}}}},
        {SSS, "BCS", "BCS", {{{"b", "b", 114}, {"e", "CS", 127, true}, {"f", "BS", 128, true}}}},
        {SSS, "CDS", "CDS", {{{"c", "c", 115}, {"f", "DS", 128, true}, {"e", "CS", 127, true}}}},
        {SSS, "DAS", "DAS", {{{"d", "d", 116}, {"e", "AS", 127, true}, {"f", "DS", 128, true}}}},
        {SUS,
         "ABS",
         "ASB",
         {{{"e", "AS", 127, true}, {"f", "BS", 128, true}, {"epsi", "epsi", {}}}}},
        {SUS,
         "BCS",
         "BSC",
         {{{"f", "BS", 128, true}, {"e", "CS", 127, true}, {"omeg", "omeg", {}}}}},
        {SUS,
         "CDS",
         "CSD",
         {{{"e", "CS", 127, true}, {"f", "DS", 128, true}, {"epsi", "epsi", {}}}}},
        {SUS,
         "DAS",
         "DSA",
         {{{"f", "DS", 128, true}, {"e", "AS", 127, true}, {"omeg", "omeg", {}}}}},
    }});

}  // namespace rysovna
