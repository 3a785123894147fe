#pragma once

#include <string>

#include "platform/Ovladace.h"
#include "rules/Panel.h"

namespace rysovna::testy {

/// Whether a control is seen and takes presses.
[[nodiscard]] bool Zije(const Ovladac& o);
/// All that a panel says, in words; what its plane would draw left out.
[[nodiscard]] std::string Slovy(const Panel& p);

}  // namespace rysovna::testy
