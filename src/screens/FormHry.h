#pragma once

#include "platform/Form.h"
#include "screens/Sezeni.h"

namespace rysovna {

/// A screen of the game: it belongs to a session.
class FormHry : public Form {
public:
    explicit FormHry(Sezeni& s) : s_(s) {}

protected:
    Sezeni& s_;
};

}  // namespace rysovna
