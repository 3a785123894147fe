#pragma once

#include <memory>
#include <string_view>

#include "board/DeskaCtyruhelniku.h"
#include "board/DialogCtyruhelnikuVrchol.h"

namespace rysovna {

/// The dialogue of the trapezoid: as the general quadrilateral, but a parallel to a side is one of
/// the two objects of the fourth vertex.
class LichoDialog final : public DialogCtyruhelnikuVrchol {
public:
    explicit LichoDialog(Platna platna);

protected:
    [[nodiscard]] Nacrt NacrtPrikladu() const override;
};

/// The board of the trapezoid (task 11).
class LichoForm final : public DeskaCtyruhelniku {
public:
    [[nodiscard]] std::string_view Jmeno() const override { return "LichoForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
};

}  // namespace rysovna
