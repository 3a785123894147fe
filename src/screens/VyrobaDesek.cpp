#include "screens/VyrobaDesek.h"

#include <utility>

#include "rules/Ulohy.h"

namespace rysovna {
namespace {

VyrobceDesek vyrobceDesek;

}  // namespace

void NastavVyrobceDesek(VyrobceDesek vyrobce) {
    vyrobceDesek = std::move(vyrobce);
}

std::shared_ptr<Form> VyrobDeskuUlohy(int cisloUlohy) {
    if (NajdiUlohu(cisloUlohy) == nullptr || !vyrobceDesek) return nullptr;
    return vyrobceDesek(cisloUlohy);
}

}  // namespace rysovna
