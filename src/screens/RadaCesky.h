#pragma once

#include <array>
#include <string>

#include "platform/Obrazovky.h"
#include "rules/Rada.h"

namespace rysovna {

/// The guide in Czech: two rows; a single sentence stands in the first one. cim: whom it speaks to.
using RadkyRady = std::array<std::string, 2>;
[[nodiscard]] RadkyRady RadaCesky(const Rada& r, CimSeHraje cim);

/// "1 bod", "3 body", "10 bodů".
[[nodiscard]] std::string TextBodu(int bodu);

}  // namespace rysovna
