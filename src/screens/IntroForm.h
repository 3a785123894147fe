#pragma once

#include <cstdint>

#include "screens/FormHry.h"

namespace rysovna {

/// The title. It stays ten seconds from its load, or a moment after a press, though at least a
/// second; then the menu comes up.
class IntroForm final : public FormHry {
public:
    explicit IntroForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "IntroForm"; }

    /// The title's clock; the start-up enables it. Fires once: its handler does the rest of the
    /// wait.
    Timer Timer1;

    void Load() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    Cinnost<> TimerTick(Timer& t) override;

private:
    void Preskoc();
    Cinnost<> DoMenu();

    std::uint32_t termin_ = 0;  ///< tick count at which the title ends, ms
    bool preskoceno_ = false;
};

}  // namespace rysovna
