#pragma once

#include "base/Plane.h"

namespace rysovna {

// Copies with parts that are seen through. No board needs them so far: tests alone call these.

/// Copies w by h pixels of zdroj over the pixels of pozadi, those of the key colour left out, and
/// the result to cil, all at 0, 0. False where a copy or a bitmap failed; cil is then as it was.
bool ProhledneKopirovani(Plane& zdroj, int w, int h, Barva klic, const Plane& pozadi, Plane& cil);

/// Fills the one-bit maska: white where zdroj has the key colour, black elsewhere. False on
/// failure.
bool VytvorMasku(Plane& zdroj, int w, int h, Plane& maska, Barva klic);

}  // namespace rysovna
