#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Bod.h"
#include "base/Tabulka.h"

namespace rysovna {

/// Flags between routines and in the records.
constexpr int ANO = -1;
constexpr int NE = 0;

// The kinds of object, the words of every comparison.
inline constexpr const char* BOD = "bod";
inline constexpr const char* USECKA = "usecka";
inline constexpr const char* POLOPRIMKA = "poloprimka";
inline constexpr const char* PRIMKA = "primka";
inline constexpr const char* KRUZNICE = "kruznice";
inline constexpr const char* KOLMICE = "kolmice";
inline constexpr const char* ROVNOBEZKA = "rovnobezka";

/// How an object came about, as the step that made it said: for the words of the steps alone, no
/// drawing and no judgement goes by it. What is given, and what a board adds by itself, has none.
struct Vznik {
    std::string Cim{};     ///< the step's own word: a kind of object, "stred", "prusecik", ...
    std::string Podle{};   ///< names that it goes by, parted by blanks: a base, a centre, the far
                           ///< end of an angle's other arm, two lines that cross
    std::string Odecet{};  ///< the value that was read off, or typed: "12 cm", "35°"
    friend bool operator==(const Vznik&, const Vznik&) = default;
};

/// One drawn object. Plane pixels, Y downward. Jmeno is the name of a point as the logic compares
/// it, Popis the text printed beside it.
struct Utvar {
    std::string Druh;    ///< kind of object, one of the words above
    int X1 = 0, Y1 = 0;  ///< the point, first end, start of a ray, first point of a line, centre
    std::string Jmeno1, Popis1;
    int X2 = 0, Y2 = 0;  ///< other end, point of a ray or line; a circle's X2 is centre +- radius
    std::string Jmeno2, Popis2;
    int X3 = 0, Y3 = 0;    ///< midpoint of a segment
    std::string Jmeno3;    ///< "Sc", "Sb" or "Sa" for the midpoint of AB, AC, BC
    std::string Popis3;    ///< reserved: cleared, never written otherwise
    int X4 = 0, Y4 = 0;    ///< reserved: moved by a shift with the others
    std::string Jmeno4;    ///< reserved
    std::string Popis4;    ///< reserved: " 0" in a cleared row
    float Delka = 0;       ///< cm to one decimal, of a segment or line, as the board gave it
    float Polomer = 0;     ///< px, of a circle
    float Smer = 0;        ///< radians from 0 up to but excluding 2*pi, from first to second point
    std::string NaPrimce;  ///< of a point: name of the line on which it lies; orients its cross
    std::int16_t Znacky = 0;  ///< of a segment: ANO with marks at its ends
    Vznik Jak;                ///< the step that made it
    friend bool operator==(const Utvar&, const Utvar&) = default;
};

/// One snap record: the points of one object that a press can catch. A point and a circle fill
/// the first point alone; the rest stays as it was cleared.
struct Trojice {
    int X1 = 0, Y1 = 0;  ///< first point; a circle's centre
    int X2 = 0, Y2 = 0;  ///< second point
    int X3 = 0, Y3 = 0;  ///< midpoint of a segment
    std::string Jmeno1, Jmeno2, Jmeno3;
    bool PrvniNechyta = false;  ///< the first point was only looked for: it is no target
    friend bool operator==(const Trojice&, const Trojice&) = default;
};

/// Moves all places of an object, of a snap record, by so many pixels, unused slots too. One that
/// runs over is a fault.
void Posun(Utvar& u, int dx, int dy);
void Posun(Trojice& t, int dx, int dy);

/// The construction: objects in the order in which they were made, and what the mouse can snap
/// to. Both are in use from row 1 to their counter. The two counters are independent: the drawing
/// routines move PocetTrojic when told, PocetUtvaru is moved by their caller alone.
struct Tabulky {
    Tabulka<Utvar, 100> Utvary;
    Tabulka<Trojice, 100> Trojice_tab;
    int PocetUtvaru = 0;
    int PocetTrojic = 0;

    /// Clears the next row of an object, with the names of its points, and the snap row that it
    /// will have. The object does not count yet.
    void PripravUtvar(std::string_view jmeno1, std::string_view jmeno2);
    /// As PripravUtvar, and counts it; its number.
    int NovyUtvar(std::string_view jmeno1, std::string_view jmeno2);
    /// Clears one row. Popis4 of a cleared object is the number 0 as text, " 0".
    void SmazRadekUtvaru(Radek i);
    void SmazRadekTrojic(Radek i);
    friend bool operator==(const Tabulky&, const Tabulky&) = default;
};

}  // namespace rysovna
