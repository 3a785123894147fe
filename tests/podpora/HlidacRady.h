#pragma once

#include <map>
#include <string>

#include "screens/DeskaForm.h"

namespace rysovna::testy {

/// Watches the guide line of a board at every event: what it names must be live and fit the state,
/// its words must be shown, and before the check it must follow from what can be seen alone.
class HlidacRady {
public:
    /// Empty if all holds; otherwise what does not.
    [[nodiscard]] std::string Zkontroluj(const DeskaForm& deska);

private:
    std::map<std::string, std::string> videno_;  ///< what is seen -> what was said
};

}  // namespace rysovna::testy
