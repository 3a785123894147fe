#include "shell/Ulohy.h"

#include <utility>

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
