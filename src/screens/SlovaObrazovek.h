#pragma once

#include <string>
#include <string_view>

#include "base/DatumACas.h"

namespace rysovna {

// What several screens, and the paper, say alike.

/// "14. 9. 2026 8.20"; predCasem parts the two.
[[nodiscard]] std::string DatumACasCesky(const DatumACas& d, std::string_view predCasem = " ");

/// What the list of wrong steps begins with, on the screen and on paper.
constexpr std::string_view CHYBNE_KROKY = "Během konstrukce byly provedeny tyto chybné kroky:";

/// Adds a paragraph to a message, where there is anything to add.
void PridejOdstavec(std::string& zprava, const std::string& odstavec);

}  // namespace rysovna
