#pragma once

#include <iterator>
#include <set>

#include "rules/Dialog.h"
#include "rules/Postup.h"

namespace rysovna::testy {

/// Whether what stands there, right or wrong, can be written down, each object once.
inline bool ZapiseSe(const Dialog& dialog) {
    std::set<int> radky;
    int utvaru = 0;
    for (const KrokPostupu& k : SestavPostup(dialog)) {
        radky.insert(k.Utvary.begin(), k.Utvary.end());
        utvaru += static_cast<int>(k.Utvary.size());
        if (k.Co.empty()) return false;
    }
    const int vsech = dialog.Pamet().PocetUtvaru;
    return utvaru == vsech && std::ssize(radky) == vsech &&
           (radky.empty() || (*radky.begin() == 1 && *radky.rbegin() == vsech));
}

}  // namespace rysovna::testy
