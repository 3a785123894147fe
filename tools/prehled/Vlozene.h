#pragma once

#include <string_view>

namespace rysovna::prehled {

// Files that the build has put into the program: all that a page needs, whole.

/// The page: a template, its style, its program.
extern const std::string_view STRANKA, STYL, SKRIPT;
/// The library that draws the chart, and the terms under which it is given away.
extern const std::string_view GRAF, LICENCE_GRAFU;

}  // namespace rysovna::prehled
