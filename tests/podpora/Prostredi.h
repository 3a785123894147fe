#pragma once

#include <cstdlib>

namespace rysovna::testy {

/// A whole number from the environment; jinak where it is not set. CI plays little, a long run is
/// asked for by such numbers: who calls this says what of. RYSOVNA_SEMINKO and RYSOVNA_RODINA pick
/// the seed and the family of tasks of the careless pupil.
inline int Prostredi(const char* jmeno, int jinak) {
    const char* text = std::getenv(jmeno);
    return text == nullptr ? jinak : std::atoi(text);
}

}  // namespace rysovna::testy
