#include "platform/Form.h"

#include <algorithm>

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

void Form::Pridej(Ovladac& o, std::string_view jmeno, Obdelnik misto, Ovladac* rodic) {
    o.Name = jmeno;
    o.Rodic = rodic;
    o.Left = misto.Left;
    o.Top = misto.Top;
    o.Width = misto.Width;
    o.Height = misto.Height;
    ovladace_.push_back(&o);
}

}  // namespace rysovna
