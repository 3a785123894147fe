#pragma once

#include "screens/DeskaForm.h"

namespace rysovna {

/// The board of circles and tangents (tasks 12 to 20).
class TecnyForm final : public DeskaForm {
public:
    TecnyForm(Sezeni& s, const RadekDesky& deska);

protected:
    void UkazDalsi(const Panel& panel) override;
};

}  // namespace rysovna
