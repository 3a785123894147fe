#pragma once

#include "base/Plane.h"
#include "engine/Tabulky.h"

namespace rysovna {

/// Clears HidenPic, draws every object of Utvary into it, and copies it to Pic: on the screen and
/// into its lasting bitmap. Changes no counter; writes over the last snap row. An object of
/// unknown kind is skipped.
void PrekresliVse(Tabulky& t, Plane& HidenPic, Plane& Pic);

/// Moves the whole construction, drawn objects and snap points, by dx, dy pixels and redraws it.
/// Nothing checks whether it leaves the plane.
void PosunVse(Tabulky& t, Plane& HidenPic, Plane& Pic, int dx, int dy);

}  // namespace rysovna
