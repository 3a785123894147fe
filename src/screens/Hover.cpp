#include "screens/Hover.h"

#include "base/Cisla.h"

namespace rysovna {

bool Hover::Vstup(std::uint8_t cislo) {
    if (cislo_ == cislo) return false;
    ZvukNajeti(s_);
    cislo_ = cislo;
    return true;
}

bool Hover::Opust() {
    if (cislo_ == NIC) return false;
    cislo_ = NIC;
    return true;
}

bool Zvoleny(const Ovladac& o) {
    return Cislo(o.Tag) != 0;
}

}  // namespace rysovna
