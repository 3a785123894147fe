#pragma once

#include <memory>
#include <string_view>

#include "screens/FormHry.h"
#include "screens/Prechody.h"

namespace rysovna {

/// A picture over the whole screen: help to a task, to a screen, the credits. A click goes back to
/// its owner.
class HelpForm final : public FormHry {
public:
    using FormHry::FormHry;
    [[nodiscard]] std::string_view Jmeno() const override { return "HelpForm"; }

    /// The screen to go back to. Kept weakly: an owner that was unloaded meanwhile gives way to
    /// the menu.
    std::weak_ptr<Form> Vlastnik;

    void Load() override;
    Cinnost<> Click(Ovladac* o) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
};

/// Shows a help picture (below the asset root) on top of a screen and hides that screen; the click
/// on it brings the screen back.
void UkazNapovedu(Sezeni& s, std::string_view obrazek, Form& vlastnik);

}  // namespace rysovna
