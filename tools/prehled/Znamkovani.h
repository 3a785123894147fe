#pragma once

#include <filesystem>

#include "prehled/Prehled.h"
#include "rules/Misc.h"

namespace rysovna::prehled {

/// The scale of grades: the game's own, where it can be found, else the delivered one.
class Znamkovani {
public:
    /// The delivered one.
    Znamkovani();
    /// As the game finds it: program is the folder of the executable. A scale that is there and
    /// cannot be read is a fault.
    explicit Znamkovani(const std::filesystem::path& program);

    /// The grade of a series; 0 for one that was not finished, or that the scale does not cover.
    [[nodiscard]] int Znamka(const Serie& serie) const;

private:
    Misc misc_;
};

}  // namespace rysovna::prehled
