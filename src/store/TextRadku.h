#pragma once

#include <string>
#include <string_view>

namespace rysovna {

// What the readable files that the program keeps for itself are made of.

/// On one line, whatever it holds: a control character or a "%" is "%" and two digits.
[[nodiscard]] std::string NaRadek(std::string_view text);
/// Back. What is no such sign stays as it is.
[[nodiscard]] std::string ZRadku(std::string_view radek);

}  // namespace rysovna
