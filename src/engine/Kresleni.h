#pragma once

#include <string_view>

#include "base/Bod.h"
#include "base/Plane.h"
#include "engine/Okraj.h"
#include "engine/Tabulky.h"

namespace rysovna {

// Each routine draws one object on a plane, in the pen that it finds there, writes it into row
// index of Utvary and its snap points into Trojice_tab. The names of the points (Jmeno1, Jmeno2)
// stand in the row before the call. A redraw calls the same routines with the stored values.
//
// NovaTrojice: ANO opens a new snap row (PocetTrojic grows by one first), anything else writes
// over the last one. Of a ray and a line ANO also means that it is drawn for the first time: its
// second point is then moved along to the margin of the plane before it is stored.
// Coordinates are whole pixels of the plane. Labels find their places among what is already
// drawn, so the order of objects matters to the picture.

/// What an object is drawn by. What its kind has no use for the routine leaves alone.
struct Nakres {
    std::string_view Druh;  ///< kind of object
    Bod P1, P2{};           ///< px of the plane
    std::string_view Popis1{}, Popis2{};
    float Delka = 0;              ///< cm, stored as given
    std::string_view NaPrimce{};  ///< of a point: name of the line on which it lies
    int Znacky = NE;              ///< of a segment: ANO with a mark at each end
    int Cara = ANO;               ///< of a segment: NE prints the two labels alone
};

/// A point: a cross at P1 that leans with the line NaPrimce (upright when that line has no snap
/// row), and the label Popis1. Sets the pen's width to 1.
void KresliBod(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A segment: with Cara the line itself, and with Znacky too a mark at each end; the two labels are
/// printed in any case.
void KresliUsecku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A ray from P1 through P2 to the plane's edge, a tick across it at P2, and the label Popis2
/// there.
void KresliPoloprimku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A line (also a parallel) across the whole plane, labelled Jmeno1 at its second point.
void KresliPrimku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A parallel that was pushed into its place: a line by the very points of its record, in a new
/// snap row. Label and direction go by these points from the first drawing on.
void KresliPosunutou(Tabulky& t, Plane& plane, int index, const PosunutaPrimka& primka);

/// A perpendicular: as a line, without a length.
void KresliKolmici(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A circle around P1 whose radius is how far P2 is from P1 along X, labelled Jmeno1 at a place on
/// the circle that is inside the plane.
void KresliKruznici(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice);

/// A letter beside a point that no object labels, in a free spot looked for as at the ends of a
/// level segment.
void PopisBod(Plane& plane, Bod bod, std::string_view pismeno);

}  // namespace rysovna
