#pragma once

#include <array>
#include <string>

#include "platform/Obrazovky.h"
#include "rules/Rada.h"

namespace rysovna {

/// The guide in Czech: two rows; a single sentence stands in the first one. cim: whom it speaks to.
using RadkyRady = std::array<std::string, 2>;
[[nodiscard]] RadkyRady RadaCesky(const Rada& r, CimSeHraje cim);

}  // namespace rysovna
