#pragma once

#include <array>
#include <ft2build.h>
#include FT_FREETYPE_H

namespace rysovna {

/// How FreeType is asked for a glyph: one of the logical bitmap (hinted to the pixel grid, without
/// greys), a small antialiased one (fitted to the rows of pixels), a large one (in no way hinted).
constexpr std::array<FT_Int32, 3> NACTENI_GLYFU = {FT_LOAD_TARGET_MONO | FT_LOAD_NO_BITMAP,
                                                   FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP,
                                                   FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP};

}  // namespace rysovna
