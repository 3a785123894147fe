#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// How the object in hand is called that stands upright on another, "přímka b, b ⊥ AB", or runs
/// beside it, "přímka p, p||AB".
[[nodiscard]] std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad);
[[nodiscard]] std::string NazevRovnobezky(std::string_view jmeno, std::string_view zaklad);

}  // namespace rysovna
