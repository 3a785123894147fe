#pragma once

#include <vector>

#include "rules/TecnyZadani.h"
#include "rules/Zadani.h"
#include "rules/Zaznamy.h"

namespace rysovna {

/// An example as it was chosen and drawn by lot: all that the same one can be set by again, with no
/// task file and no chance at hand.
struct ZadanyPriklad {
    Priklad Zaznam{};
    HodnotyPrikladu Hodnoty{};        ///< in the order of its names; on the tangent board zeros
    std::vector<DanyUtvar> Figura{};  ///< the given objects, on the tangent board alone
    friend bool operator==(const ZadanyPriklad&, const ZadanyPriklad&) = default;
};

}  // namespace rysovna
