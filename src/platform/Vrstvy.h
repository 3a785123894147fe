#pragma once

#include "platform/Bitmapa.h"

namespace rysovna {

/// Lays two pictures of one size over each other into kam, what the target may be touched in being
/// orez: the lower one, and over it the upper one moved to the right by so many pixels, its key
/// colour see-through, what is at its edge mixed in. One pass, by rows. Whole pixels.
void SlozVrstvy(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Bitmapa& dolni,
                const Bitmapa& horni, int vpravo);

}  // namespace rysovna
