#pragma once

#include "platform/Form.h"

namespace rysovna {

/// Where a form lies on the design area.
[[nodiscard]] Obdelnik MistoFormu(const Form& f);
/// Puts an object in a place of its parent.
void Poloz(Ovladac& o, const Obdelnik& kam);
/// Top left corner of an object on its form; of the form itself (null) {0, 0}.
[[nodiscard]] Bod Roh(const Ovladac* o);
/// Where an object lies on its form.
[[nodiscard]] Obdelnik MistoNaFormu(const Ovladac& o);
/// Where an object of a form lies on the design area.
[[nodiscard]] Obdelnik MistoNaNavrhu(const Form& f, const Ovladac& o);
/// Seen and enabled, with all that it stands in. The form itself (null) is.
[[nodiscard]] bool Dosazitelny(const Ovladac* o);

}  // namespace rysovna
