#pragma once

#include <string>
#include <string_view>

#include "hrac/Relace.h"

namespace rysovna::testy {

using hrac::Relace;

/// Events with blanks between: a key by its name ("Tab", "^Left" with Shift), "*9" behind it so
/// many times; "'12" types; "@PicTop3" goes to a control by Tab, "!cmd1" presses it; "100ms" waits.
void Proved(Relace& hra, std::string_view udalosti);
/// The control under the ring, "cmd1"; empty if there is none.
[[nodiscard]] std::string Prsten(Relace& hra);

}  // namespace rysovna::testy
