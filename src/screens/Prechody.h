#pragma once

#include <memory>

namespace rysovna {

class Form;
struct Sezeni;

/// Shows the screen that a form on top goes back to, or the menu if that one was unloaded, and
/// makes it the active one. Then unloads the form on top.
void VratSeK(Sezeni& s, const std::weak_ptr<Form>& vlastnik, Form& zavirany);

}  // namespace rysovna
