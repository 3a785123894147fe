#pragma once

#include <string>
#include <string_view>

#include "rules/KatalogChyb.h"
#include "rules/Misc.h"

namespace rysovna {

/// What stands behind a number of points: one, two to four, any other.
inline constexpr std::string_view SLOVA_BODU[] = {" bod", " body", " bodů"};
/// "1 bod", "3 body", "10 bodů".
[[nodiscard]] std::string TextBodu(int body);

/// Charges a wrong step: its points to SoucetZapornychBodu and a row of ChybneKroky, the sentence
/// with the points in words behind it. slovy: the board's own words between them, of a step that is
/// worded with such. A number that has no sentence charges nothing; one that has two charges twice.
void PridejChybu(Misc& misc, ChybaKroku chyba, std::string_view slovy = {});

}  // namespace rysovna
