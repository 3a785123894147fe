#pragma once

#include <functional>
#include <memory>

#include "platform/Form.h"

namespace rysovna {

/// Makes the board of a task, not loaded yet. It is asked for tasks only.
using VyrobceDesek = std::function<std::shared_ptr<Form>(int cisloUlohy)>;

/// Hands the screens their maker of boards: the program its own, a test another. An empty one makes
/// nothing.
void NastavVyrobceDesek(VyrobceDesek vyrobce);

/// A board from the maker that was handed over; null for a number that is no task.
[[nodiscard]] std::shared_ptr<Form> VyrobDeskuUlohy(int cisloUlohy);

}  // namespace rysovna
