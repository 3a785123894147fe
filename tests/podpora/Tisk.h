#pragma once

#include <ostream>

#include "base/Bod.h"

namespace rysovna {

/// How a failed comparison shows a point. To be included by every test file of an executable that
/// compares points, or by none.
inline void PrintTo(const Bod& bod, std::ostream* proud) {
    *proud << "(" << bod.X << ", " << bod.Y << ")";
}

}  // namespace rysovna
