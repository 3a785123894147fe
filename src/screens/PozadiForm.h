#pragma once

#include "screens/FormHry.h"

namespace rysovna {

/// The black screen behind everything, from the switch of the screen mode to the end. Its sole job
/// is to put the active screen in front again when the pupil pressed beside a window or came back
/// from another application.
class PozadiForm final : public FormHry {
public:
    using FormHry::FormHry;
    [[nodiscard]] std::string_view Jmeno() const override { return "PozadiForm"; }
    void Activate() override;

private:
    Cinnost<> Pockej();
};

/// Loads and shows it.
void UkazPozadi(Sezeni& s);

}  // namespace rysovna
