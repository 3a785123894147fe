#pragma once

#include <string>
#include <vector>

#include "Glyfy.h"
#include "Nahravka.h"
#include "Predlohy.h"

namespace rysovna::obrazky {

/// The file of a picture's shapes: what was recorded of its drawing, its text as glyphs. otisk: the
/// print of its bitmap.
std::string SlozTvary(const Obrazek& obrazek, const std::vector<Ukon>& ukony, const Glyfy& glyfy,
                      std::uint32_t otisk);

}  // namespace rysovna::obrazky
