#include "screens/Meritko.h"

#include "base/Cisla.h"

namespace rysovna {

namespace {

constexpr double NAVRHOVYCH_TWIPU = 15;  // twips a pixel at which the screens were laid out
constexpr float VELIKOST_PISMA = 10;     // points

/// Whether the object has a place that is scaled: a line and a timer have none.
bool MaRozmery(const Ovladac& o) {
    return o.Druh != Ovladac::Typ::Line && o.Druh != Ovladac::Typ::Timer;
}

}  // namespace

double Meritko(const Sezeni& s) {
    return s.Stroj.TwipsPerPixel() / NAVRHOVYCH_TWIPU;
}

void PrizpusobForm(const Sezeni& s, Form& form) {
    const double meritko = Meritko(s);
    for (Ovladac* o : form.Ovladace()) {
        if (MaRozmery(*o)) {
            for (int* rozmer : {&o->Left, &o->Top, &o->Width, &o->Height}) {
                *rozmer = Zaokrouhli(*rozmer * meritko);
            }
        }
        if (o->MaPismo()) o->Font.Velikost = static_cast<float>(meritko) * VELIKOST_PISMA;
    }
}

}  // namespace rysovna
