#include "podpora/PravaUctu.h"

#include <cstdlib>

namespace rysovna::testy {

bool MaPravaPosix() {
    return false;
}

PlnyDisk::PlnyDisk(std::uint64_t /*bajtu*/) {
    std::abort();
}

PlnyDisk::~PlnyDisk() = default;

void BudNekdoJiny() {
    std::abort();
}

}  // namespace rysovna::testy
