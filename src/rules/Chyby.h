#pragma once

#include <string_view>

#include "rules/Misc.h"

namespace rysovna {

/// Charges a wrong step: the points to SoucetZapornychBodu and a row of ChybneKroky, the sentence
/// with text (the points in words) behind it. A number that has no sentence charges nothing; one
/// that has two charges twice.
void PridejChybu(Misc& misc, int cislo, std::string_view text, int body);

}  // namespace rysovna
