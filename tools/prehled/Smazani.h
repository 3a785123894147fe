#pragma once

#include <iosfwd>

#include "prehled/Obnova.h"
#include "prehled/Sber.h"
#include "prehled/Volby.h"
#include "prehled/Zaci.h"

namespace rysovna::prehled {

/// Takes a pupil's attempts away for good, files and rows of the index, once the question that says
/// how many of whom and where is answered by "ano". Copies in several folders go all. What the
/// index knows of that name elsewhere it forgets, and tells where; what cannot be read is told and
/// stays. False where nothing was removed, or not everything; why not was told.
[[nodiscard]] bool SmazZaka(const Volby& volby, const Sber& sber, const StavRejstriku& stav,
                            const RozdeleniZaku& zaci, Rejstrik& rejstrik, std::istream& odpoved,
                            std::ostream& kam);

}  // namespace rysovna::prehled
