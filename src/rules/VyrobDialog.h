#pragma once

#include <functional>
#include <memory>

#include "rules/Dialog.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"

namespace rysovna {

/// The dialogue of one of the program's boards.
[[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Deska deska, Misc& misc, Platna platna);

/// Makes the dialogue of a task.
using VyrobceDialogu =
    std::function<std::unique_ptr<Dialog>(int cisloUlohy, Misc& misc, Platna platna)>;

}  // namespace rysovna
