#pragma once

#include <filesystem>
#include <string>

#include "platform/Tvary.h"
#include "platform/bmp/Bmp.h"

namespace rysovna::obrazky {

/// A fault when a pixel is a mixture with the key colour, which would show as a fringe.
void OverKlic(const ObrazBmp& rastr, const std::string& kde);

/// A fault when the shapes, drawn in the bitmap's size, are not what the bitmap shows.
void OverTvary(const Tvary& tvary, const ObrazBmp& velky, const std::string& kde);

/// Holds the staged assets against a list of "path width height" (a picture, px at 1:1) and "path"
/// (any other file) lines. Each bitmap, as it is or packed, must be of just that size and have its
/// shapes, each other file must not be empty, and no picture may stand there that the list does not
/// know. Prints every departure to the error output; returns how many there are.
int Zkontroluj(const std::filesystem::path& seznam, const std::filesystem::path& assety);

}  // namespace rysovna::obrazky
