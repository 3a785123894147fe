#pragma once

#include <span>
#include <string_view>

#include "shell/Ulohy.h"

// What a task file must hold, as tables. A task with kinds of its own adds rows here.

namespace rysovna::kodovani {

using Slova = std::span<const std::string_view>;

/// Kinds of example that a task's file may hold: numbers of so many digits from Od to Po.
struct PravidloDruhu {
    int UlohaOd, UlohaPo;
    std::size_t Cislic;
    int Od, Po;
};
constexpr PravidloDruhu DRUHY[]{
    {1, 1, 1, 1, 1},    {2, 2, 1, 2, 4},   {3, 3, 1, 5, 7},   {4, 4, 2, 1, 6},   {5, 5, 2, 7, 12},
    {6, 6, 2, 13, 18},  {7, 7, 2, 19, 24}, {8, 8, 2, 25, 27}, {9, 9, 2, 1, 32},  {10, 10, 2, 1, 60},
    {11, 11, 2, 1, 32}, {12, 12, 2, 4, 4}, {13, 13, 2, 5, 5}, {14, 14, 2, 7, 7}, {15, 15, 2, 8, 8},
    {16, 16, 2, 6, 6},  {17, 17, 2, 9, 9}, {18, 18, 2, 1, 1}, {19, 19, 2, 2, 2}, {20, 20, 2, 3, 3},
};

/// A triangle by three quantities, whole: what is given is settled by the kind.
struct PravidloTrojuhelniku {
    std::string_view Druh;
    std::string_view Nazvy[3];
    std::string_view Utvary[2];  ///< the two objects, in either order
};
constexpr PravidloTrojuhelniku TROJUHELNIKY[]{
    {"1", {"a", "b", "c"}, {"kruznice", "kruznice"}},
    {"2", {"alfa", "b", "c"}, {"poloprimka", "kruznice"}},
    {"3", {"a", "beta", "c"}, {"poloprimka", "kruznice"}},
    {"4", {"a", "b", "gama"}, {"poloprimka", "kruznice"}},
    {"5", {"a", "beta", "gama"}, {"poloprimka", "poloprimka"}},
    {"6", {"alfa", "b", "gama"}, {"poloprimka", "poloprimka"}},
    {"7", {"alfa", "beta", "c"}, {"poloprimka", "poloprimka"}},
};

constexpr std::string_view CM = "cm";
constexpr std::string_view STUPNE = "°";
constexpr std::string_view UHLY[]{"alfa", "beta", "gama", "delta", "delt", "epsi", "omeg"};

constexpr std::string_view STRANY[]{"a", "b", "c"};
constexpr std::string_view UHLY3[]{"alfa", "beta", "gama"};
constexpr std::string_view VYSKY[]{"va", "vb", "vc"};
constexpr std::string_view TEZNICE[]{"ta", "tb", "tc"};
constexpr std::string_view CTYRI[]{"a",    "b",    "c",     "d",  "e",  "f",  "alfa",
                                   "beta", "gama", "delta", "va", "vb", "vc", "vd"};
// The fourth and fifth quantity of a trapezoid; one of them is the parallelism.
constexpr std::string_view LICHOBEZNIKU[]{"a",    "b",     "c",      "d",      "alfa",   "beta",
                                          "gama", "delta", "AB||CD", "BC||DA", "CD||AB", "DA||BC"};
constexpr std::string_view ROVNOBEZNOSTI[]{"AB||CD", "BC||DA", "CD||AB", "DA||BC"};
constexpr std::string_view ROVNOBEZNIKU[]{"a",    "b",    "c",    "d",    "e",    "f",
                                          "alfa", "beta", "gama", "delt", "epsi", "omeg"};
constexpr std::string_view TROJUHELNIK4[]{"ABC", "BCD", "CDA", "DAB"};
constexpr std::string_view TROJUHELNIK_SE_STREDEM[]{"ABC", "BCD", "CDA", "DAB",
                                                    "ABS", "BCS", "CDS", "DAS"};
constexpr std::string_view VETY[]{"sss", "sus"};
constexpr std::string_view USECKA[]{"usecka"};
constexpr std::string_view UTVARY_TROJ2[]{"poloprimka", "kruznice", "rovnobezka"};
constexpr std::string_view UTVARY_TROJ2_NEBO_NIC[]{"poloprimka", "kruznice", "rovnobezka", ""};
constexpr std::string_view UTVARY_CTYRU[]{"poloprimka", "kruznice"};
constexpr std::string_view PRVKY_CTYRU[]{"KA",   "KB",   "KC",   "KD",   "AXAD", "AXAB",
                                         "BXBC", "BXBA", "CXCD", "CXCB", "DXDA", "DXDC"};
constexpr std::string_view PRVKY_LICHO[]{"KA",   "KB",   "KC",   "KD",   "AXAD", "AXAB",
                                         "BXBC", "BXBA", "CXCD", "CXCB", "DXDA", "DXDC",
                                         "va",   "vb",   "vc",   "vd"};

/// A field of a line may hold one of these words only.
struct PravidloPole {
    int UlohaOd, UlohaPo;
    int Pole;
    Slova Povolene;
};
constexpr PravidloPole POLE[]{
    // side, height, angle; side, side, median; and so on
    {4, 4, 3, STRANY},
    {4, 4, 4, VYSKY},
    {4, 4, 5, UHLY3},
    {5, 5, 3, STRANY},
    {5, 5, 4, STRANY},
    {5, 5, 5, TEZNICE},
    {6, 6, 3, STRANY},
    {6, 6, 4, TEZNICE},
    {6, 6, 5, UHLY3},
    {7, 7, 3, STRANY},
    {7, 7, 4, STRANY},
    {7, 7, 5, VYSKY},
    {8, 8, 3, STRANY},
    {8, 8, 4, VYSKY},
    {8, 8, 5, TEZNICE},
    {4, 8, 9, USECKA},
    {4, 8, 11, UTVARY_TROJ2},
    {4, 8, 12, UTVARY_TROJ2_NEBO_NIC},
    {4, 8, 13, UTVARY_TROJ2},
    {4, 8, 14, UTVARY_TROJ2_NEBO_NIC},
    // general quadrilateral and trapezoid
    {9, 9, 2, TROJUHELNIK4},
    {11, 11, 2, TROJUHELNIK4},
    {9, 11, 9, VETY},
    {9, 9, 3, CTYRI},
    {9, 9, 4, CTYRI},
    {9, 9, 5, CTYRI},
    {9, 9, 10, CTYRI},
    {9, 9, 14, CTYRI},
    {11, 11, 3, CTYRI},
    {11, 11, 4, CTYRI},
    {11, 11, 5, CTYRI},
    {11, 11, 10, LICHOBEZNIKU},
    {11, 11, 14, LICHOBEZNIKU},
    {9, 9, 12, UTVARY_CTYRU},
    {9, 9, 16, UTVARY_CTYRU},
    {9, 9, 13, PRVKY_CTYRU},
    {9, 9, 17, PRVKY_CTYRU},
    {11, 11, 12, UTVARY_TROJ2},
    {11, 11, 16, UTVARY_TROJ2},
    {11, 11, 13, PRVKY_LICHO},
    {11, 11, 17, PRVKY_LICHO},
    // parallelogram
    {10, 10, 2, TROJUHELNIK_SE_STREDEM},
    {10, 10, 3, ROVNOBEZNIKU},
    {10, 10, 4, ROVNOBEZNIKU},
    {10, 10, 5, ROVNOBEZNIKU},
};

/// The solution entries of a tangent exercise, from field 8 on: name and kind. All entries past
/// them are empty.
constexpr int PRVNI_POLE_RESENI = 8;
struct PravidloReseni {
    std::string_view Druh;
    std::string_view Pole[16];
};
constexpr PravidloReseni RESENI[]{
    {"01", {"A1", "prusecik", "A2", "prusecik", "t1", "rovnobezka", "t2", "rovnobezka"}},
    {"02", {"A1", "prusecik", "A2", "prusecik", "t1", "kolmice", "t2", "kolmice"}},
    {"03", {"B", "stred", "T1", "prusecik", "T2", "prusecik", "t1", "primka", "t2", "primka"}},
    {"04", {"B", "prusecik", "C", "stred", "k", "kruznice"}},
    {"05", {"C", "stred", "D", "prusecik", "k", "kruznice"}},
    {"06", {"C", "stred", "D", "prusecik", "k", "kruznice"}},
    {"07", {"B", "prusecik", "C", "stred", "k", "kruznice"}},
    {"08", {"B", "prusecik", "k", "kruznice"}},
    {"09",
     {"B1", "prusecik", "B2", "prusecik", "S1", "stred", "S2", "stred", "l1", "kruznice", "l2",
      "kruznice"}},
};

/// Two fields that belong together: a quantity and its unit, or a name and a kind that are either
/// both there or both empty.
enum class Vazba { NazevAJednotka, ObeNeboZadne };
struct PravidloDvojice {
    int UlohaOd, UlohaPo;
    int Pole, Druhe;
    Vazba vazba;
};
constexpr PravidloDvojice DVOJICE[]{
    {1, 11, 3, 6, Vazba::NazevAJednotka},    {1, 11, 4, 7, Vazba::NazevAJednotka},
    {1, 11, 5, 8, Vazba::NazevAJednotka},    {9, 9, 10, 11, Vazba::NazevAJednotka},
    {9, 9, 14, 15, Vazba::NazevAJednotka},   {11, 11, 10, 11, Vazba::NazevAJednotka},
    {11, 11, 14, 15, Vazba::NazevAJednotka}, {10, 10, 10, 11, Vazba::ObeNeboZadne},
    {10, 10, 12, 13, Vazba::ObeNeboZadne},   {10, 10, 14, 15, Vazba::ObeNeboZadne},
    {10, 10, 16, 17, Vazba::ObeNeboZadne},   {10, 10, 18, 19, Vazba::ObeNeboZadne},
    {10, 10, 20, 21, Vazba::ObeNeboZadne},
};

/// Numbers of wrong steps that the boards charge, each with a sentence in Errors.
struct RozsahKroku {
    int Od, Po;
};
constexpr RozsahKroku CHYBNE_KROKY[]{
    {1, 3},     {7, 16},    {18, 43},   {45, 46},   {49, 49},   {52, 60},   {101, 101}, {112, 120},
    {124, 124}, {126, 128}, {130, 135}, {137, 137}, {202, 212}, {214, 217}, {219, 219}, {300, 301},
};

}  // namespace rysovna::kodovani
