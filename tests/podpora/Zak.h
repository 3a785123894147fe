#pragma once

#include <string_view>

#include "hrac/RukaNaDesce.h"
#include "zak/Ruka.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::testy {

using namespace hrac;

/// The hand of a scripted pupil at a triangle board.
class Zak : public RukaNaDesce {
public:
    using RukaNaDesce::RukaNaDesce;

    /// Presses the place of a quantity on the sketch.
    Zak& Oznac(std::string_view velicina) {
        Ruka::Oznac(MistoNaNacrtu(velicina).Stred());
        return *this;
    }
    /// Presses a control.
    Zak& Stiskni(std::string_view jmeno, int index = 0) {
        Hra().Stiskni(jmeno, index);
        return *this;
    }
};

}  // namespace rysovna::testy
