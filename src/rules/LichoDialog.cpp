#include "rules/LichoDialog.h"

namespace rysovna {

namespace {

// The sketch: a trapezoid A(40, 150), B(250, 150), C(200, 40), D(85, 40) with its diagonals. An
// angle's zone is the place of its letter.
constexpr PrvekNacrtu NACRT_AB_CD[] = {
    CaraNacrtu("a", {40, 250, 0, 150, 3}, {40, 150}, {250, 150}, {145, 151}),
    CaraNacrtu("b", {200, 250, 11 / 5.0, -400, 10}, {250, 150}, {200, 40}, {233, 88}),
    CaraNacrtu("c", {85, 200, 0, 40, 3}, {200, 40}, {85, 40}, {138, 23}),
    CaraNacrtu("d", {40, 85, -22 / 9.0, 247.8, 11}, {85, 40}, {40, 150}, {46, 80}),
    UhelNacrtu("alfa", {68, 80, 0, 140, 6}, {40, 150}, {250, 150}, {85, 40}, 46, {70, 132}),
    UhelNacrtu("beta", {205, 219, 0, 138, 7}, {250, 150}, {40, 150}, {200, 40}, 50, {208, 130}),
    UhelNacrtu("gama", {184, 197, 0, 74, 7}, {200, 40}, {250, 150}, {85, 40}, 46, {187, 66}),
    UhelNacrtu("delta", {89, 102, 0, 73, 7}, {85, 40}, {40, 150}, {200, 40}, 46, {92, 65}),
    CaraNacrtu("e", {82, 176, -11 / 16.0, 177.5, 5}, {40, 150}, {200, 40}, {96, 88}),
    CaraNacrtu("f", {107, 203, 2 / 3.0, -16.7, 5}, {250, 150}, {85, 40}, {186, 90})};
constexpr PismenoNacrtu PISMENA_AB_CD[] = {
    {"A", 26, 146}, {"B", 254, 146}, {"C", 204, 26}, {"D", 72, 26}};

// The same with the parallel sides BC and DA: A(40, 150), B(215, 150), C(251, 30), D(64, 70).
constexpr PrvekNacrtu NACRT_BC_DA[] = {
    CaraNacrtu("a", {40, 215, 0, 150, 3}, {40, 150}, {215, 150}, {125, 151}),
    CaraNacrtu("b", {215, 251, -10 / 3.0, 866.7, 14}, {215, 150}, {251, 30}, {241, 82}),
    CaraNacrtu("c", {64, 251, -40 / 187.0, 83.7, 4}, {251, 30}, {64, 70}, {150, 29}),
    CaraNacrtu("d", {40, 64, -10 / 3.0, 283.3, 14}, {64, 70}, {40, 150}, {34, 98}),
    UhelNacrtu("alfa", {68, 80, 0, 140, 6}, {40, 150}, {215, 150}, {64, 70}, 46, {70, 132}),
    UhelNacrtu("beta", {195, 208, 0, 118, 7}, {215, 150}, {40, 150}, {251, 30}, 44, {198, 110}),
    UhelNacrtu("gama", {219, 232, 0, 61, 7}, {251, 30}, {215, 150}, {64, 70}, 50, {222, 53}),
    UhelNacrtu("delta", {67, 81, 0, 94, 7}, {64, 70}, {40, 150}, {251, 30}, 36, {71, 86}),
    CaraNacrtu("e", {86, 215, -120 / 211.0, 172.7, 5}, {40, 150}, {251, 30}, {164, 59}),
    CaraNacrtu("f", {88, 190, 80 / 151.0, 36.1, 5}, {215, 150}, {64, 70}, {134, 113})};
constexpr PismenoNacrtu PISMENA_BC_DA[] = {
    {"A", 26, 146}, {"B", 219, 146}, {"C", 255, 18}, {"D", 50, 55}};

constexpr PravidlaCtyruhelniku PRAVIDLA{
    "Sestroj lichoběžník ABCD:", VETY_CELYCH, {NACRT_AB_CD, PISMENA_AB_CD}};
constexpr PravidlaVrcholu VRCHOL{.Rovnobezky = true};

}  // namespace

LichoDialog::LichoDialog(Misc& misc, Platna platna)
    : DialogCtyruhelnikuVrchol(misc, platna, PRAVIDLA, VRCHOL) {}

/// The figure is that of the assignment: with one pair of sides parallel or the other.
Nacrt LichoDialog::NacrtPrikladu() const {
    for (const int n : {1, 2}) {
        const Krok& k = Hrany().Kroky[n];
        const std::string_view strana = std::string_view(k.Jmeno).substr(0, 2);
        if (k.Utvar == ROVNOBEZKA && (strana == "BC" || strana == "DA")) {
            return {NACRT_BC_DA, PISMENA_BC_DA};
        }
    }
    return {NACRT_AB_CD, PISMENA_AB_CD};
}

}  // namespace rysovna
