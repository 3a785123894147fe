#include "rules/TecnyNacrt.h"

#include <algorithm>

namespace rysovna {

namespace {

constexpr double UZKE = 2;  // px, the band of three level elements

constexpr PrvekNacrtu NACRT_01[] = {
    KruzniceNacrtu("k", 91, 100, 50, 180, 84, 132),
    PrimkaNacrtu("a", 170, 12, 240, 160, 244, 146),
    PrimkaNacrtu("t1", 105, 12, 175, 160, 178, 146),
    PrimkaNacrtu("t2", 0, 24.7F, 64, 160, 46, 158),
};
constexpr PrvekNacrtu NACRT_02[] = {
    KruzniceNacrtu("k", 121, 100, 50, 180, 114, 132),
    PrimkaNacrtu("a", 170, 12, 240, 160, 244, 146),
    PrimkaNacrtu("t1", 0, 102, 213, 1.2F, 8, 78),
    PrimkaNacrtu("t2", 75, 177, 280, 80, 262, 90),
};
constexpr PrvekNacrtu NACRT_03[] = {
    KruzniceNacrtu("k", 80, 90, 50, 180, 74, 122),
    PrimkaNacrtu("SA", 80, 90, 220, 90, 142, 92, UZKE),
    PrimkaNacrtu("t1", 40, 21, 270, 110, 276, 104),
    PrimkaNacrtu("t2", 40, 159, 270, 70, 276, 62),
};
constexpr PrvekNacrtu NACRT_04[] = {
    BodNacrtu("A", 150, 50, 146, 30),
    KruzniceNacrtu("k", 150, 100, 50, 180, 146, 92),
    PrimkaNacrtu("a", 0, 150, 280, 150, 268, 152, UZKE),
};
constexpr PrvekNacrtu NACRT_05[] = {
    PrimkaNacrtu("AB", 136, 12, 195, 62, 172, 22),
    KruzniceNacrtu("k", 120, 90, 80, 180, 60, 120),
    PrimkaNacrtu("a", 0, 90, 280, 90, 268, 92, UZKE),
};
constexpr PrvekNacrtu NACRT_06[] = {
    PrimkaNacrtu("AB", 150, 150, 205, 95, 158, 106),
    KruzniceNacrtu("k", 150, 95, 55, 180, 110, 64),
    PrimkaNacrtu("a", 0, 150, 280, 150, 268, 152),
};
constexpr PrvekNacrtu NACRT_07[] = {
    BodNacrtu("A", 140, 30, 136, 10),
    PrimkaNacrtu("a", 0, 30, 280, 30, 268, 32),
    PrimkaNacrtu("b", 0, 150, 280, 150, 268, 152),
    KruzniceNacrtu("k", 140, 90, 60, 180, 136, 82),
};
constexpr PrvekNacrtu NACRT_08[] = {
    BodNacrtu("A", 100, 150, 96, 158),
    PrimkaNacrtu("a", 0, 150, 280, 150, 268, 152),
    PrimkaNacrtu("b", 0, 140, 260, 10, 267, 12),
    KruzniceNacrtu("k", 100, 90, 60, 180, 96, 112),
};
constexpr PrvekNacrtu NACRT_09[] = {
    BodNacrtu("A", 164, 90, 146, 82),
    KruzniceNacrtu("k1", 130, 90, 34, 90, 124, 104),
    KruzniceNacrtu("k2", 130, 90, 78, 90, 192, 138),
    KruzniceNacrtu("l1", 186, 90, 22, 90, 182, 82),
    KruzniceNacrtu("l2", 108, 90, 56, 90, 66, 82),
};

// Letters that are no elements: the names of the ends of a segment and of centres.
constexpr PismenoNacrtu Pismeno(std::string_view text, float x, float y) {
    return {text, x, y, NapisNacrtu::Jmeno};
}
constexpr PismenoNacrtu PISMENA_03[] = {Pismeno("S", 66, 82), Pismeno("A", 216, 66)};
constexpr PismenoNacrtu PISMENA_05[] = {Pismeno("A", 125, 15), Pismeno("B", 202, 48)};
constexpr PismenoNacrtu PISMENA_06[] = {Pismeno("A", 212, 88), Pismeno("B", 146, 154)};
constexpr PismenoNacrtu PISMENA_09[] = {Pismeno("S", 118, 82)};

struct RadekNacrtu {
    std::string_view Kod;
    Nacrt Nacrt_;
};
constexpr RadekNacrtu NACRTY[] = {
    {"01", {NACRT_01, {}}}, {"02", {NACRT_02, {}}},         {"03", {NACRT_03, PISMENA_03}},
    {"04", {NACRT_04, {}}}, {"05", {NACRT_05, PISMENA_05}}, {"06", {NACRT_06, PISMENA_06}},
    {"07", {NACRT_07, {}}}, {"08", {NACRT_08, {}}},         {"09", {NACRT_09, PISMENA_09}},
};

}  // namespace

Nacrt NacrtTecny(std::string_view kod) {
    const auto* r = std::ranges::find(NACRTY, kod, &RadekNacrtu::Kod);
    return r == std::end(NACRTY) ? Nacrt{} : r->Nacrt_;
}

}  // namespace rysovna
