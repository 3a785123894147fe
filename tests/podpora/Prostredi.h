#pragma once

#include <cstdlib>

namespace rysovna::testy {

/// A whole number from the environment; jinak where it is not set. CI plays little, a long run is
/// asked for by RYSOVNA_SEMINEK (seeds of each example for the perfect pupil), RYSOVNA_FIGUR
/// (figures of each tangent exercise), RYSOVNA_UDALOSTI, RYSOVNA_SEMINKO and RYSOVNA_RODINA
/// (events, seed and family of tasks of the careless pupil).
inline int Prostredi(const char* jmeno, int jinak) {
    const char* text = std::getenv(jmeno);
    return text == nullptr ? jinak : std::atoi(text);
}

}  // namespace rysovna::testy
