#pragma once

#include <filesystem>

namespace rysovna::obrazky {

/// Holds the staged assets against a list of "path width height" (a picture, px at 1:1) and "path"
/// (any other file) lines. Each bitmap, as it is or packed, must be of just that size and have its
/// shapes, each other file must not be empty, and no picture may stand there that the list does not
/// know. Prints every departure to the error output; returns how many there are.
int Zkontroluj(const std::filesystem::path& seznam, const std::filesystem::path& assety);

}  // namespace rysovna::obrazky
