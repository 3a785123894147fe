#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace rysovna {

/// What is packed once and read often may take its time.
enum class Sbaleni { Nejmensi, Rychle };

/// All bytes deflated, and the reverse: none when they are damaged or not just so many.
[[nodiscard]] std::string Sbal(const std::string& data, Sbaleni jak = Sbaleni::Nejmensi);
[[nodiscard]] std::optional<std::string> Rozbal(std::string_view sbalene, std::size_t delka);

}  // namespace rysovna
