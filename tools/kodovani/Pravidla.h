#pragma once

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string_view>

#include "engine/Tabulky.h"
#include "rules/SlovaKroku.h"
#include "rules/TecnyKroky.h"
#include "rules/Ulohy.h"
#include "rules/VetaTrojuhelniku.h"

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
    {1, 1, 1, 1, 1},    {2, 2, 1, 2, 4},   {3, 3, 1, 5, 7},   {4, 4, 2, 1, 6},  {5, 5, 2, 7, 12},
    {6, 6, 2, 13, 18},  {7, 7, 2, 19, 24}, {8, 8, 2, 25, 27}, {9, 9, 2, 1, 32}, {10, 10, 2, 1, 60},
    {11, 11, 2, 1, 32}, {12, 20, 2, 1, 9},  // exercises can be mixed
};

// ---- All boards with quantities --------------------------------------------------------------

constexpr std::string_view CM = "cm";
constexpr std::string_view STUPNE = "°";
constexpr std::string_view ROVNOBEZNOSTI[]{"AB||CD", "BC||DA", "CD||AB", "DA||BC"};

/// Another spelling that a board reads.
struct PravidloPsani {
    int Uloha;
    std::string_view Psano, Mini;
};
constexpr PravidloPsani JINAK_PSANE[]{
    {10, "delt", "delta"}, {11, "CD||AB", "AB||CD"}, {11, "DA||BC", "BC||DA"}};

/// A quantity and the field of its unit.
struct PravidloJednotky {
    int UlohaOd, UlohaPo;
    int Nazev, Jednotka;
};
constexpr PravidloJednotky JEDNOTKY[]{
    {1, 11, 3, 6},  {1, 11, 4, 7},    {1, 11, 5, 8},    {9, 9, 10, 11},
    {9, 9, 14, 15}, {11, 11, 10, 11}, {11, 11, 14, 15},
};

constexpr std::string_view STRANY[]{"a", "b", "c"};
constexpr std::string_view UHLY3[]{"alfa", "beta", "gama"};
constexpr std::string_view VYSKY[]{"va", "vb", "vc"};
constexpr std::string_view TEZNICE[]{"ta", "tb", "tc"};
constexpr std::string_view JEN_USECKA[]{USECKA};
constexpr std::string_view USECKA_NEBO_NIC[]{USECKA, ""};

/// A field of a line may hold one of these words only.
struct PravidloPole {
    int UlohaOd, UlohaPo;
    int Pole;
    Slova Povolene;
};
constexpr PravidloPole POLE[]{
    {1, 8, 9, JEN_USECKA},
    {4, 8, 10, USECKA_NEBO_NIC},
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
};

// ---- Triangles -------------------------------------------------------------------------------

/// A triangle by three quantities, whole: what is given is settled by the kind.
struct PravidloTrojuhelniku {
    std::string_view Druh;
    std::string_view Nazvy[3];
    std::string_view Utvary[2];  ///< the two objects, in either order
};
constexpr PravidloTrojuhelniku TROJUHELNIKY[]{
    {"1", {"a", "b", "c"}, {KRUZNICE, KRUZNICE}},
    {"2", {"alfa", "b", "c"}, {POLOPRIMKA, KRUZNICE}},
    {"3", {"a", "beta", "c"}, {POLOPRIMKA, KRUZNICE}},
    {"4", {"a", "b", "gama"}, {POLOPRIMKA, KRUZNICE}},
    {"5", {"a", "beta", "gama"}, {POLOPRIMKA, POLOPRIMKA}},
    {"6", {"alfa", "b", "gama"}, {POLOPRIMKA, POLOPRIMKA}},
    {"7", {"alfa", "beta", "c"}, {POLOPRIMKA, POLOPRIMKA}},
};

/// A quantity of a triangle with heights and medians.
struct PravidloVeliciny {
    std::string_view Nazev;
    std::string_view Strana;  ///< the side it is, falls on, halves or, an angle, lies opposite to
    std::string_view Utvar;   ///< what is drawn for it once a first side stands
};
constexpr PravidloVeliciny VELICINY[]{
    {"a", "a", KRUZNICE},      {"b", "b", KRUZNICE},      {"c", "c", KRUZNICE},
    {"va", "a", ROVNOBEZKA},   {"vb", "b", ROVNOBEZKA},   {"vc", "c", ROVNOBEZKA},
    {"ta", "a", KRUZNICE},     {"tb", "b", KRUZNICE},     {"tc", "c", KRUZNICE},
    {"alfa", "a", POLOPRIMKA}, {"beta", "b", POLOPRIMKA}, {"gama", "c", POLOPRIMKA},
};

/// The quantity whose side is drawn first.
struct PravidloPrvniStrany {
    int Uloha, Pole;
};
constexpr PravidloPrvniStrany PRVNI_STRANY[]{{4, 4}, {5, 5}, {6, 4}, {7, 5}, {8, 4}};

/// A quantity belongs to the side of one of these fields, or to none of them.
struct PravidloStrany {
    int Uloha, Pole;
    int Strany[2];  ///< fields; 0: no further one
    bool Patri;
    std::string_view Duvod;
};
constexpr PravidloStrany PATRI_KE_STRANE[]{
    {4, 4, {3}, true, "výška má patřit ke straně v poli 3, která se rýsuje první"},
    {4, 5, {3}, false, "úhel nemá ležet proti straně v poli 3, která se rýsuje první"},
    {5, 3, {4}, false, "má být jiná strana než v poli 4"},
    {5, 5, {4}, true, "těžnice má patřit ke straně v poli 4, která se rýsuje první"},
    {6, 4, {3}, true, "těžnice má patřit ke straně v poli 3, která se rýsuje první"},
    {6, 5, {3}, false, "úhel nemá ležet proti straně v poli 3, která se rýsuje první"},
    {7, 4, {3}, false, "má být jiná strana než v poli 3"},
    {7, 5, {3, 4}, true, "výška má patřit k jedné z obou stran; ta se rýsuje první"},
    {8, 4, {3}, true, "výška má patřit ke straně v poli 3, která se rýsuje první"},
    {8, 5, {3}, true, "těžnice má patřit ke straně v poli 3, která se rýsuje první"},
};

// ---- Quadrilaterals --------------------------------------------------------------------------

constexpr std::string_view CELE[]{"ABC", "BCD", "CDA", "DAB"};
constexpr std::string_view SE_STREDEM[]{"ABS", "BCS", "CDS", "DAS"};
/// Of the triangles with the centre those by whose angle the sketch names epsi and omeg: who is
/// given one begins with its triangle.
constexpr std::string_view S_UHLEM[]{"ABC", "BCD", "CDA", "DAB", "ABS", "BCS"};

/// What a quantity at the fourth vertex may be. An angle's value is drawn from that of an angle of
/// the starting triangle, so the order of the given sides tells at which vertex it lies.
enum class Ctvrty { Zadna, Strana, UhelPrvni, UhelDruhe };
struct PravidloCtvrteho {
    Ctvrty co;
    std::string_view Utvar, Popis;
};
constexpr PravidloCtvrteho CTVRTE[]{
    {Ctvrty::Strana, KRUZNICE, "strana, která v trojúhelníku není"},
    {Ctvrty::UhelPrvni, POLOPRIMKA, "úhel u krajního bodu strany z pole 3"},
    {Ctvrty::UhelDruhe, POLOPRIMKA, "úhel u krajního bodu strany z pole 4"},
};

/// Kinds Od, Od + PoKolika, ... to Po of one task or of two: theorem, starting triangles, what
/// the fourth and the fifth quantity are.
struct PravidloSkupiny {
    int Ulohy[2];
    int Od, Po, PoKolika;
    std::string_view Veta;
    Slova Trojuhelniky;
    bool TretiPosledni;  ///< the theorem's third quantity is the third of the line, too
    Ctvrty Ctvrta, Pata;
};
constexpr PravidloSkupiny SKUPINY[]{
    {{9, 11}, 1, 13, 4, SUS, CELE, true, Ctvrty::Strana, Ctvrty::Strana},
    {{9, 11}, 2, 14, 4, SUS, CELE, true, Ctvrty::Strana, Ctvrty::UhelPrvni},
    {{9, 11}, 3, 15, 4, SUS, CELE, true, Ctvrty::Strana, Ctvrty::UhelPrvni},
    {{9, 11}, 4, 16, 4, SUS, CELE, true, Ctvrty::UhelPrvni, Ctvrty::UhelDruhe},
    {{9, 11}, 17, 29, 4, SSS, CELE, true, Ctvrty::Strana, Ctvrty::Strana},
    {{9, 11}, 18, 30, 4, SSS, CELE, true, Ctvrty::Strana, Ctvrty::UhelPrvni},
    {{9, 11}, 19, 31, 4, SSS, CELE, true, Ctvrty::Strana, Ctvrty::UhelPrvni},
    {{9, 11}, 20, 32, 4, SSS, CELE, true, Ctvrty::UhelPrvni, Ctvrty::UhelDruhe},
    {{10, 10}, 1, 24, 1, SSS, CELE, false, Ctvrty::Zadna, Ctvrty::Zadna},
    {{10, 10}, 25, 56, 1, SSS, SE_STREDEM, false, Ctvrty::Zadna, Ctvrty::Zadna},
    {{10, 10}, 57, 60, 1, SUS, S_UHLEM, true, Ctvrty::Zadna, Ctvrty::Zadna},
};

/// The quantities of a starting triangle. Of a whole triangle the first two are its sides in the
/// order of its letters.
struct PravidloVety {
    std::string_view Veta, Trojuhelnik;
    std::string_view Nazvy[3];
};
constexpr PravidloVety VETY[]{
    {SSS, "ABC", {"a", "b", "e"}},     {SSS, "BCD", {"b", "c", "f"}},
    {SSS, "CDA", {"c", "d", "e"}},     {SSS, "DAB", {"d", "a", "f"}},
    {SUS, "ABC", {"a", "b", "beta"}},  {SUS, "BCD", {"b", "c", "gama"}},
    {SUS, "CDA", {"c", "d", "delta"}}, {SUS, "DAB", {"d", "a", "alfa"}},
    {SSS, "ABS", {"a", "e", "f"}},     {SSS, "BCS", {"b", "e", "f"}},
    {SSS, "CDS", {"c", "e", "f"}},     {SSS, "DAS", {"d", "e", "f"}},
    {SUS, "ABS", {"e", "f", "epsi"}},  {SUS, "BCS", {"e", "f", "omeg"}},
};

/// An object that leads from a starting triangle to the fourth vertex: its quantity, kind, code.
struct PravidloPrvku {
    std::string_view Trojuhelnik, Velicina, Utvar, Prvek;
    /// Of the triangle: the centre, the start, the one that the parallel goes through.
    char Vrchol;
};
constexpr PravidloPrvku PRVKY[]{
    {"ABC", "c", KRUZNICE, "KC", 'C'},         {"ABC", "d", KRUZNICE, "KA", 'A'},
    {"ABC", "alfa", POLOPRIMKA, "AXAB", 'A'},  {"ABC", "gama", POLOPRIMKA, "CXCB", 'C'},
    {"ABC", "AB||CD", ROVNOBEZKA, "vc", 'C'},  {"ABC", "BC||DA", ROVNOBEZKA, "va", 'A'},
    {"BCD", "d", KRUZNICE, "KD", 'D'},         {"BCD", "a", KRUZNICE, "KB", 'B'},
    {"BCD", "beta", POLOPRIMKA, "BXBC", 'B'},  {"BCD", "delta", POLOPRIMKA, "DXDC", 'D'},
    {"BCD", "BC||DA", ROVNOBEZKA, "va", 'D'},  {"BCD", "AB||CD", ROVNOBEZKA, "vb", 'B'},
    {"CDA", "a", KRUZNICE, "KA", 'A'},         {"CDA", "b", KRUZNICE, "KC", 'C'},
    {"CDA", "gama", POLOPRIMKA, "CXCD", 'C'},  {"CDA", "alfa", POLOPRIMKA, "AXAD", 'A'},
    {"CDA", "AB||CD", ROVNOBEZKA, "vb", 'A'},  {"CDA", "BC||DA", ROVNOBEZKA, "vd", 'C'},
    {"DAB", "b", KRUZNICE, "KB", 'B'},         {"DAB", "c", KRUZNICE, "KD", 'D'},
    {"DAB", "delta", POLOPRIMKA, "DXDA", 'D'}, {"DAB", "beta", POLOPRIMKA, "BXBA", 'B'},
    {"DAB", "BC||DA", ROVNOBEZKA, "vd", 'B'},  {"DAB", "AB||CD", ROVNOBEZKA, "vc", 'D'},
};

/// How many of the two quantities at the fourth vertex are parallelisms. With one, the other object
/// stands at another vertex than the one that the parallel goes through.
struct PravidloRovnobeznosti {
    int Uloha, Pocet;
};
constexpr PravidloRovnobeznosti ROVNOBEZEK[]{{9, 0}, {11, 1}};
/// First fields of those two: name, unit, kind and element follow one another.
constexpr int POLE_CTVRTE = 10, POLE_PATE = 14;

/// The steps of a parallelogram: kind and name by turns, from this field on.
constexpr int POLE_KROKU = 10, KROKU = 6;
/// A step of the parallelogram: which names it takes, each once, and among how many first steps.
struct PravidloKroku {
    std::string_view Utvar;
    std::string_view Trojuhelnik;
    std::string_view Jmena[2];
    int Posledni;
};
constexpr PravidloKroku KROKY[]{
    {BOD, "ABC", {"AC"}, 2}, {OBRAZ_BODU, "ABC", {"B"}, KROKU},
    {BOD, "BCD", {"BD"}, 2}, {OBRAZ_BODU, "BCD", {"C"}, KROKU},
    {BOD, "CDA", {"AC"}, 2}, {OBRAZ_BODU, "CDA", {"D"}, KROKU},
    {BOD, "DAB", {"BD"}, 2}, {OBRAZ_BODU, "DAB", {"A"}, KROKU},
    {BOD, "ABS", {"S"}, 2},  {OBRAZ_BODU, "ABS", {"A", "B"}, KROKU},
    {BOD, "BCS", {"S"}, 2},  {OBRAZ_BODU, "BCS", {"B", "C"}, KROKU},
    {BOD, "CDS", {"S"}, 2},  {OBRAZ_BODU, "CDS", {"C", "D"}, KROKU},
    {BOD, "DAS", {"S"}, 2},  {OBRAZ_BODU, "DAS", {"D", "A"}, KROKU},
};
constexpr std::string_view DRUHY_KROKU[]{BOD, OBRAZ_BODU, ""};

// ---- Circles and tangents --------------------------------------------------------------------

// What is given and what comes out is in the board's own table of exercises.

/// The given objects stand in pairs of fields from the first one on, the solution entries (name
/// and kind) from the second. The rest is empty.
constexpr int POLE_DANYCH = 2, POLE_RESENI = 8;

/// The kind of a solution entry by the tool that makes it. Points are entries always, lines and
/// circles as far as they are results.
struct PravidloReseni {
    Nastroj Cim;
    std::string_view Utvar;
    bool Bod;
};
constexpr PravidloReseni RESENI[]{
    {Nastroj::Prusecik, PRUSECIK, true},      {Nastroj::Stred, STRED, true},
    {Nastroj::Primka, PRIMKA, false},         {Nastroj::Kolmice, KOLMICE, false},
    {Nastroj::Rovnobezka, ROVNOBEZKA, false}, {Nastroj::Kruznice, KRUZNICE, false},
};

// ---- No task without its rules ---------------------------------------------------------------

/// Whether each task of these boards has a row that is about it.
template <class Tabulka, class JeJeji>
constexpr bool MaKazda(std::initializer_list<Deska> desky, const Tabulka& tabulka, JeJeji jeJeji) {
    return std::ranges::all_of(ULOHY, [&](const Uloha& u) {
        return std::ranges::find(desky, u.deska) == desky.end() ||
               std::ranges::any_of(tabulka, [&](const auto& r) { return jeJeji(r, u.Cislo); });
    });
}
constexpr auto V_ROZMEZI = [](const auto& r, int uloha) {
    return r.UlohaOd <= uloha && uloha <= r.UlohaPo;
};
constexpr auto JEDNE = [](const auto& r, int uloha) { return r.Uloha == uloha; };

static_assert(MaKazda({Deska::Troj1Form, Deska::Troj2Form, Deska::CtyrUForm, Deska::RovnoForm,
                       Deska::LichoForm, Deska::TecnyForm},
                      DRUHY, V_ROZMEZI),
              "a task whose kinds the checker does not know");
static_assert(MaKazda({Deska::Troj1Form, Deska::Troj2Form, Deska::CtyrUForm, Deska::RovnoForm,
                       Deska::LichoForm},
                      JEDNOTKY, V_ROZMEZI),
              "a task of quantities whose units are not checked");
static_assert(MaKazda({Deska::Troj1Form, Deska::Troj2Form}, POLE, V_ROZMEZI),
              "a triangle's task whose words are not checked");
static_assert(MaKazda({Deska::Troj2Form}, PRVNI_STRANY, JEDNE) &&
                  MaKazda({Deska::Troj2Form}, PATRI_KE_STRANE, JEDNE),
              "a task of that board without the side to start with");
static_assert(MaKazda({Deska::CtyrUForm, Deska::RovnoForm, Deska::LichoForm}, SKUPINY,
                      [](const PravidloSkupiny& r, int uloha) {
                          return std::ranges::find(r.Ulohy, uloha) != std::end(r.Ulohy);
                      }),
              "a quadrilateral's task whose kinds are not checked");
static_assert(MaKazda({Deska::CtyrUForm, Deska::LichoForm}, ROVNOBEZEK, JEDNE),
              "a quadrilateral's task of which it is not said how many parallelisms it has");

}  // namespace rysovna::kodovani
