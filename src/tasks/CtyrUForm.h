#pragma once

#include <memory>
#include <string_view>

#include "board/DeskaCtyruhelniku.h"
#include "board/DialogCtyruhelnikuVrchol.h"

namespace rysovna {

/// The dialogue of the general quadrilateral: a starting triangle by a theorem, then the fourth
/// vertex by circles and rays. 32 kinds of example in eight groups.
class CtyrUDialog final : public DialogCtyruhelnikuVrchol {
public:
    explicit CtyrUDialog(Platna platna);
};

/// The board of the general quadrilateral (task 9).
class CtyrUForm final : public DeskaCtyruhelniku {
public:
    [[nodiscard]] std::string_view Jmeno() const override { return "CtyrUForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
};

}  // namespace rysovna
