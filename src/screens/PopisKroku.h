#pragma once

#include <string>

#include "rules/Dialog.h"
#include "rules/Pokus.h"

namespace rysovna {

/// What a call does, in a few words of Czech, to whoever watches: "Nástroj: kružnice", "Rýsuje se:
/// úsečka AB, |AB| = 15 cm". predtim: the dialogue's panel before it; dialog: whose sketch it is.
[[nodiscard]] std::string PopisKroku(const Volani& volani, const Panel& predtim,
                                     const Dialog& dialog);

}  // namespace rysovna
