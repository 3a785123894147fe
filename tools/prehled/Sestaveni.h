#pragma once

#include <map>
#include <string>

#include "prehled/Obnova.h"
#include "prehled/Prehled.h"
#include "prehled/TabulkaZaku.h"
#include "prehled/TabulkyCsv.h"
#include "prehled/Volby.h"
#include "prehled/Zaci.h"
#include "prehled/Znamkovani.h"

namespace rysovna::prehled {

/// How many series bear each name as it was typed; iVadne: and files that are no attempts.
[[nodiscard]] std::map<std::string, int> PoctyJmen(const StavRejstriku& stav, bool iVadne);

/// The class as it is spelt in the table; one that is not there is a fault that says which are.
/// None for none.
[[nodiscard]] std::string NajdiTridu(const TabulkaZaku& tabulka, const std::string& trida);

/// Puts the overview together: the tables get all series, the page those that were asked for, with
/// their figures.
[[nodiscard]] Prehled Sestav(Rejstrik& rejstrik, const StavRejstriku& stav, const Sber& sber,
                             const RozdeleniZaku& zaci, const Znamkovani& znamkovani,
                             const Volby& volby, TabulkyCsv& tabulky);

}  // namespace rysovna::prehled
