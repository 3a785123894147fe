#pragma once

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// Moves a label's top left corner to the first free spot. The label is a box from one pixel left
/// of and above the corner to sirka px right of and VYSKA_POPISU px below it, both ends included.
/// Candidates lie up to dosah px off on both axes; they are tried by columns from the left, each
/// from the top down, and the first box that is white throughout is taken. Anything but exact
/// white is occupied, and so is all that lies outside the plane. With no free spot the point stays.
void VolneMisto(Plane& plane, Bod& bod, int sirka, int dosah);
constexpr int VYSKA_POPISU = 10;

}  // namespace rysovna
