#pragma once

#include <string_view>

#include "rules/Nacrt.h"

namespace rysovna {

/// The sketch of a tangent exercise, points first; empty for an unknown code.
[[nodiscard]] Nacrt NacrtTecny(std::string_view kod);

}  // namespace rysovna
