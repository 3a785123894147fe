#pragma once

#include <string_view>

#include "base/Bod.h"
#include "base/Plane.h"
#include "engine/Okraj.h"

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

/// A point: a cross that leans with the line naPrimce on which the point lies (upright when that
/// line has no snap row), and the label popis1. Sets the pen's width to 1.
void KresliBod(Plane& plane, std::string_view druh, std::string_view jmeno1, int index, int X1,
               int Y1, std::string_view popis1, std::string_view naPrimce, int NovaTrojice);

/// A segment: with kresliCaru = ANO the line itself, and with znacky = ANO too a mark at each end;
/// the two labels are printed in any case. delka: cm, stored as given.
void KresliUsecku(Plane& plane, std::string_view druh, int index, int X1, int Y1, int X2, int Y2,
                  float delka, std::string_view popis1, std::string_view popis2, int znacky,
                  int kresliCaru, int NovaTrojice);

/// A ray from the first point through the second to the plane's edge, a tick across it at the
/// second point, and the label popis2 there.
void KresliPoloprimku(Plane& plane, std::string_view druh, int index, int X1, int Y1, int X2,
                      int Y2, std::string_view popis2, int NovaTrojice);

/// A line (also a parallel) across the whole plane, labelled Jmeno1 at its second point.
/// delka: cm, stored as given.
void KresliPrimku(Plane& plane, std::string_view druh, int index, int X1, int Y1, int X2, int Y2,
                  float delka, int NovaTrojice);

/// A parallel that was pushed into its place: a line by the very points of its record, in a new
/// snap row. Label and direction go by these points from the first drawing on.
void KresliPosunutou(Plane& plane, int index, const PosunutaPrimka& primka);

/// A perpendicular: as a line, without a length.
void KresliKolmici(Plane& plane, std::string_view druh, int index, int X1, int Y1, int X2, int Y2,
                   int NovaTrojice);

/// A circle around (X1, Y1) whose radius is the distance of X2 from X1, labelled Jmeno1 at a place
/// on the circle that is inside the plane.
void KresliKruznici(Plane& plane, std::string_view druh, int index, int X1, int Y1, int X2,
                    int NovaTrojice);

/// A letter beside a point that no object labels, in a free spot looked for as at the ends of a
/// level segment.
void PopisBod(Plane& plane, Bod bod, std::string_view pismeno);

}  // namespace rysovna
