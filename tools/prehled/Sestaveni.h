#pragma once

#include "prehled/Obnova.h"
#include "prehled/Prehled.h"
#include "prehled/TabulkyCsv.h"
#include "prehled/Volby.h"
#include "prehled/Zaci.h"
#include "prehled/Znamkovani.h"

namespace rysovna::prehled {

/// Puts the overview together: the tables get all series, the page those that were asked for, with
/// their figures.
[[nodiscard]] Prehled Sestav(Rejstrik& rejstrik, const StavRejstriku& stav, const Sber& sber,
                             const RozdeleniZaku& zaci, const Znamkovani& znamkovani,
                             const Volby& volby, TabulkyCsv& tabulky);

}  // namespace rysovna::prehled
