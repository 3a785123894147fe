#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace rysovna {

/// Common rows and behind them a board's own, in one table.
template <class T, std::size_t N, std::size_t M>
[[nodiscard]] constexpr std::array<T, N + M> Spoj(const std::array<T, N>& spolecne,
                                                  const std::array<T, M>& vlastni) {
    std::array<T, N + M> vse{};
    std::ranges::copy(vlastni, std::ranges::copy(spolecne, vse.begin()).out);
    return vse;
}

}  // namespace rysovna
