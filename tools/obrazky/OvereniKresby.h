#pragma once

#include <string>

#include "platform/Tvary.h"
#include "platform/bmp/Bmp.h"

namespace rysovna::obrazky {

/// A fault when a pixel is a mixture with the key colour, which would show as a fringe.
void OverKlic(const ObrazBmp& rastr, const std::string& kde);

/// A fault when the shapes, drawn in the bitmap's size, are not what the bitmap shows.
void OverTvary(const Tvary& tvary, const ObrazBmp& velky, const std::string& kde);

}  // namespace rysovna::obrazky
