#pragma once

#include <cstdint>

#include "zak/Ruka.h"

namespace rysovna::hrac {

/// Constructs the example in play without a fault, on whichever board; no check. Ways and places go
/// by the seed.
void Sestroj(Ruka& ruka, std::uint32_t seminko);

}  // namespace rysovna::hrac
