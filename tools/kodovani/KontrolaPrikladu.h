#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rysovna::kodovani {

/// A mistake in an example. Pole is the field by its number, 0 where it is the whole line.
struct NalezPole {
    int Pole = 0;
    std::string Duvod;
};

/// Looks through a line of a task's file, decoded: whether the board of the task can play it. One
/// reason a field at most, in the order of the fields.
[[nodiscard]] std::vector<NalezPole> ZkontrolujPriklad(int uloha, std::string_view radek);

}  // namespace rysovna::kodovani
