#pragma once

#include "rules/DialogCtyruhelnikuVrchol.h"

namespace rysovna {

/// The dialogue of the trapezoid: as the general quadrilateral, but a parallel to a side is one of
/// the two objects of the fourth vertex.
class LichoDialog final : public DialogCtyruhelnikuVrchol {
public:
    LichoDialog(Misc& misc, Platna platna);

    [[nodiscard]] Nacrt NacrtPrikladu() const override;
};

}  // namespace rysovna
