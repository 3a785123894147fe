#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "prehled/Prehled.h"

namespace rysovna::prehled {

/// The figures of a pupil's series do not come near so many bytes.
constexpr std::size_t NEJVIC_OBRAZCU = 20'000'000;
/// How many bytes all of them take, not packed.
[[nodiscard]] std::size_t DelkaObrazcu(const Serie& serie);

/// All figures of a series in few bytes, and back into the same series. False: they are damaged.
[[nodiscard]] std::string ZabalObrazce(const Serie& serie);
[[nodiscard]] bool RozbalObrazce(std::string_view zabalene, Serie& serie);

}  // namespace rysovna::prehled
