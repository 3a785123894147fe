#pragma once

#include <functional>
#include <memory>

#include "platform/Form.h"
#include "screens/Sezeni.h"

namespace rysovna {

/// A screen of the game: it belongs to a session.
class FormHry : public Form {
public:
    explicit FormHry(Sezeni& s) : s_(s) {}

protected:
    /// Rolls the continue button in: the 23 cells of the menu's strip, 20 ms each, in a picture box
    /// of the form. The caller sets what says that the button is up before. Stops touching the box
    /// when dal (asked after each cell) says no: a handler that ran during the waits may have taken
    /// the button back.
    Cinnost<> Roluj(std::shared_ptr<PictureBox> kam, std::function<bool()> dal);

    Sezeni& s_;
};

}  // namespace rysovna
