#pragma once

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna::testy {

/// The label search as plainly as it can be said: candidates one by one, each box pixel by pixel,
/// given up at the first pixel that is not white. What the engine's search is measured against.
inline void ProsteHledani(const Plane& plane, Bod& bod, int sirka, int dosah) {
    for (int i = -dosah; i <= dosah; ++i) {
        for (int j = -dosah; j <= dosah; ++j) {
            bool volne = true;
            for (int x = bod.X + i - 1; volne && x <= bod.X + i + sirka; ++x) {
                for (int y = bod.Y + j - 1; volne && y <= bod.Y + j + 10; ++y) {
                    volne = plane.Point(x, y) == BILA;
                }
            }
            if (volne) {
                bod = {bod.X + i, bod.Y + j};
                return;
            }
        }
    }
}

}  // namespace rysovna::testy
