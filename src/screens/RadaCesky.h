#pragma once

#include <array>
#include <string>

#include "rules/Rada.h"

namespace rysovna {

/// The guide in Czech: two rows; a single sentence stands in the first one.
using RadkyRady = std::array<std::string, 2>;
[[nodiscard]] RadkyRady RadaCesky(const Rada& r);

}  // namespace rysovna
