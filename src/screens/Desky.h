#pragma once

#include <memory>

#include "screens/Sezeni.h"

namespace rysovna {

/// Makes the board of a task. Not loaded yet: the caller hands it to the screens.
[[nodiscard]] std::shared_ptr<Form> VyrobDesku(Sezeni& s, int cisloUlohy);

}  // namespace rysovna
