#include "rules/CtyrUDialog.h"

namespace rysovna {

namespace {

// The sketch: a quadrilateral A(40, 150), B(250, 150), C(215, 40), D(75, 25) with its diagonals.
// An angle's zone is the place of its letter.
constexpr PrvekNacrtu NACRT[] = {
    CaraNacrtu("a", {40, 250, 0, 150, 3}, {40, 150}, {250, 150}, {145, 151}),
    CaraNacrtu("b", {215, 250, 22 / 7.0, -635.7, 13}, {250, 150}, {215, 40}, {238, 84}),
    CaraNacrtu("c", {75, 215, 3 / 28.0, 17, 5}, {215, 40}, {75, 25}, {145, 14}),
    CaraNacrtu("d", {40, 75, -25 / 7.0, 292.9, 14}, {75, 25}, {40, 150}, {43, 76}),
    UhelNacrtu("alfa", {68, 80, 0, 140, 6}, {40, 150}, {250, 150}, {75, 25}, 46, {70, 132}),
    UhelNacrtu("beta", {205, 219, 0, 138, 7}, {250, 150}, {40, 150}, {215, 40}, 50, {208, 130}),
    UhelNacrtu("gama", {196, 210, 0, 72, 7}, {215, 40}, {250, 150}, {75, 25}, 44, {199, 64}),
    UhelNacrtu("delta", {80, 94, 0, 59, 7}, {75, 25}, {40, 150}, {215, 40}, 46, {83, 51}),
    CaraNacrtu("e", {65, 200, -22 / 35.0, 175.1, 5}, {40, 150}, {215, 40}, {111, 82}),
    CaraNacrtu("f", {100, 225, 5 / 7.0, -28.6, 5}, {250, 150}, {75, 25}, {196, 91})};
constexpr PismenoNacrtu PISMENA[] = {
    {"A", 26, 146}, {"B", 254, 146}, {"C", 219, 26}, {"D", 61, 10}};

constexpr PravidlaCtyruhelniku PRAVIDLA{"Sestroj čtyřúhelník ABCD:", VETY_CELYCH, {NACRT, PISMENA}};
constexpr PravidlaVrcholu VRCHOL{.Rovnobezky = false};

}  // namespace

CtyrUDialog::CtyrUDialog(Misc& misc, Platna platna)
    : DialogCtyruhelnikuVrchol(misc, platna, PRAVIDLA, VRCHOL) {}

}  // namespace rysovna
