#pragma once

#include <string>
#include <string_view>

namespace rysovna::prehled {

/// What the spellings of one name have in common: case, diacritics, blanks at the ends and their
/// count between words do not matter. Names are the same where it is the same.
[[nodiscard]] std::string KlicJmena(std::string_view jmeno);

}  // namespace rysovna::prehled
