#pragma once

#include <cstdint>
#include <vector>

#include "rules/Dialog.h"
#include "rules/Pokus.h"

namespace rysovna {

// What recording and replaying do with a dialogue in play: calls are carried out, and what followed
// is told as attempts keep it.

/// Carries a call out. False where it was a press on the sketch that hit nothing.
bool Proved(Dialog& dialog, const Volani& volani);

/// The charges of the last call: those beyond the so many that there were before it.
[[nodiscard]] std::vector<ChybnyKrok> NoveChyby(const Misc& misc, int dosud);
/// What an example came to that the check took.
[[nodiscard]] HranyPriklad::Vysledek KonecPrikladu(const Dialog& dialog);

/// A number that differs, but for one chance in 4 thousand million, where the tables of an example
/// differ: objects, snap records, what was entered, marks, whether it is closed. The same in every
/// home of the program.
[[nodiscard]] std::uint32_t OtiskTabulek(const Misc& misc, const Dialog& dialog);

}  // namespace rysovna
