#pragma once

#include <string>
#include <vector>

#include "base/Bod.h"
#include "rules/Zadani.h"
#include "rules/Zaznamy.h"

namespace rysovna {

/// A given object of a tangent exercise, as it is drawn and as attempts keep it. Pixels of the
/// plane.
struct DanyUtvar {
    std::string Druh{};              ///< kind of object
    std::string Jmeno1{}, Jmeno2{};  ///< of a line or circle Jmeno1 is its name
    Bod P1{}, P2{};                  ///< a circle's P2 lies its radius to the right of its centre
    std::string NaPrimce{};          ///< of a point
    friend bool operator==(const DanyUtvar&, const DanyUtvar&) = default;
};

/// An example as it was chosen and drawn by lot: all that the same one can be set by again, with no
/// task file and no chance at hand.
struct ZadanyPriklad {
    Priklad Zaznam{};
    HodnotyPrikladu Hodnoty{};        ///< in the order of its names; on the tangent board zeros
    std::vector<DanyUtvar> Figura{};  ///< the given objects, on the tangent board alone
    friend bool operator==(const ZadanyPriklad&, const ZadanyPriklad&) = default;
};

}  // namespace rysovna
