#pragma once

#include "rules/DialogCtyruhelnikuVrchol.h"

namespace rysovna {

/// The dialogue of the general quadrilateral: a starting triangle by a theorem, then the fourth
/// vertex by circles and rays. 32 kinds of example in eight groups.
class CtyrUDialog final : public DialogCtyruhelnikuVrchol {
public:
    CtyrUDialog(Misc& misc, Platna platna);
};

}  // namespace rysovna
