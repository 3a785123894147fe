#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Plane.h"

namespace rysovna {

/// The text broken into rows: at line feeds and, if sirka is above 0, at the blanks where a row
/// would get wider (a word that is too long alone is broken within). No row ends with a number or
/// with one of the prepositions o, s, v, z, if it can be helped: "leží | v průniku", "zadání. |
/// -1 bod". ("k" and "u" are names as well.)
[[nodiscard]] std::vector<std::string> RozdelNaRadky(const Pismo& pismo, std::string_view text,
                                                     int sirka);

}  // namespace rysovna
