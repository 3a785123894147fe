#pragma once

#include <cstdint>
#include <string_view>

#include "hrac/Ruka.h"

namespace rysovna::hrac {

/// Constructs the example in play without a fault, on whichever board; no check. Ways and places go
/// by the seed.
void Sestroj(Ruka& ruka, std::uint32_t seminko);

/// From the menu: a series of a task without a fault, up to its score table. Throws if an example
/// lost a point.
void OdehrajSerii(Relace& hra, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko);

}  // namespace rysovna::hrac
