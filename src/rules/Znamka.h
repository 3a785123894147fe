#pragma once

#include <string>

#include "rules/Misc.h"

namespace rysovna {

/// The grade, as text, for points won of all points. Of rows that overlap the last wins; a
/// percentage that no row covers gives the empty text. Both are bytes; celkem 0 is a fault.
[[nodiscard]] std::string UrciZnamku(const Misc& misc, int kladne, int celkem);

}  // namespace rysovna
