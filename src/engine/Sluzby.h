#pragma once

#include "base/Bod.h"
#include "base/Plane.h"
#include "engine/Tabulky.h"

namespace rysovna {

/// Moves a label's top left corner to the first free spot. The label is a box from one pixel left
/// of and above the corner to sirka px right of and VYSKA_POPISU px below it, both ends included.
/// Candidates lie up to dosah px off on both axes; they are tried by columns from the left, each
/// from the top down, and the first box that is white throughout is taken. Anything but exact
/// white is occupied, and so is all that lies outside the plane. With no free spot the point stays.
void VolneMisto(Plane& plane, Bod& bod, int sirka, int dosah);
constexpr int VYSKA_POPISU = 10;

/// Clears HidenPic, draws every object of Utvary into it, and copies it to Pic: on the screen and
/// into its lasting bitmap. Changes no counter; writes over the last snap row. An object of
/// unknown kind is skipped.
void PrekresliVse(Tabulky& t, Plane& HidenPic, Plane& Pic);

/// Moves the whole construction, drawn objects and snap points, by dx, dy pixels and redraws it.
/// Nothing checks whether it leaves the plane.
void PosunVse(Tabulky& t, Plane& HidenPic, Plane& Pic, int dx, int dy);

/// Copies w by h pixels of zdroj over the pixels of pozadi, those of the key colour left out, and
/// the result to cil, all at 0, 0. False where a copy or a bitmap failed; cil is then as it was.
bool ProhledneKopirovani(Plane& zdroj, int w, int h, Barva klic, const Plane& pozadi, Plane& cil);

/// Fills the one-bit maska: white where zdroj has the key colour, black elsewhere. False on
/// failure.
bool VytvorMasku(Plane& zdroj, int w, int h, Plane& maska, Barva klic);

}  // namespace rysovna
