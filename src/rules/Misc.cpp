#include "rules/Misc.h"

namespace rysovna {

namespace {

constexpr int SMAZANYCH_RADKU = 50;

}  // namespace

void Misc::SmazTabulky() {
    for (int i = 1; i <= SMAZANYCH_RADKU; ++i) {
        Priklady[i] = {};
        ChybneKroky[i] = {};
        SmazRadekUtvaru(i);
        SmazRadekTrojic(i);
    }
    for (int i = 1; i <= decltype(ZadanePrvky)::POSLEDNI; ++i) ZadanePrvky[i] = {};
}

}  // namespace rysovna
