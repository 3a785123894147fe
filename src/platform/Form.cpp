#include "platform/Form.h"

#include <algorithm>

#include "platform/Klavesnice.h"
#include "platform/Misto.h"

namespace rysovna {

Ovladac* Form::Najdi(std::string_view jmeno, int index) const {
    for (Ovladac* o : ovladace_) {
        if (o->Name == jmeno && o->Index == index) return o;
    }
    return nullptr;
}

void Form::DoPopredi(Ovladac& o) {
    const auto kde = std::find(ovladace_.begin(), ovladace_.end(), &o);
    if (kde != ovladace_.end()) std::rotate(kde, kde + 1, ovladace_.end());
}

Kurzor Form::KurzorNad(const Ovladac* o, float /*x*/, float /*y*/) const {
    if (o == nullptr || !JeZivaZastavka(*o)) return Kurzor::Sipka;
    return o->Druh == Ovladac::Typ::TextBox ? Kurzor::Text : Kurzor::Ruka;
}

void Form::Pridej(Ovladac& o, std::string_view jmeno, Obdelnik misto, Ovladac* rodic) {
    o.Name = jmeno;
    o.Rodic = rodic;
    Poloz(o, misto);
    ovladace_.push_back(&o);
}

}  // namespace rysovna
