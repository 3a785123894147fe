#pragma once

#include <iosfwd>

#include "prehled/Prehled.h"

namespace rysovna::prehled {

/// Writes the page.
void ZapisStranku(std::ostream& kam, const Prehled& prehled);

}  // namespace rysovna::prehled
