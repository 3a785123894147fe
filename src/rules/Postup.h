#pragma once

#include <string>
#include <vector>

#include "rules/Dialog.h"

namespace rysovna {

/// A step of a construction as Czech schools write it down: "k; k(A; 13 cm)".
struct KrokPostupu {
    std::string Co{};                  ///< what it makes, as it is written: "AB", "↦AX", "k"
    std::string Vztah{};               ///< what holds for it: "|AB| = 15 cm"; may be empty
    std::vector<std::string> Jmena{};  ///< plain names that are known from here on: "AX", "X"
    std::vector<int> Utvary{};         ///< rows of the construction that it tells of; none of a
                                       ///< point that is only found
};

/// The steps of what stands in the dialogue's construction, in the order in which it was made: what
/// the pupil chose and drew, right or wrong. Each object belongs to just one step; a name that a
/// step relates to stands in one before it.
[[nodiscard]] std::vector<KrokPostupu> SestavPostup(const Dialog& dialog);

/// "2. k; k(A; 13 cm)".
[[nodiscard]] std::string TextKroku(int poradi, const KrokPostupu& krok);

}  // namespace rysovna
