#pragma once

#include <memory>
#include <string_view>

#include "screens/DeskaForm.h"

namespace rysovna {

/// The board of circles and tangents (tasks 12 to 20).
class TecnyForm final : public DeskaForm {
public:
    explicit TecnyForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "TecnyForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
    void UkazDalsi(const Panel& panel) override;
};

}  // namespace rysovna
