#include "screens/HelpForm.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/Zdroje.h"

namespace rysovna {

void HelpForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
}

Cinnost<> HelpForm::Click(Ovladac*) {
    ZvukStisku(s_);
    VratSeK(s_, Vlastnik, *this);
    return {};
}

Odezva HelpForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa != "Escape" && klavesa != "Return" && klavesa != "Space") return std::nullopt;
    return Click(nullptr);
}

void UkazNapovedu(Sezeni& s, std::string_view obrazek, Form& vlastnik) {
    Obrazovky& okna = s.Okna();
    const auto napoveda = okna.Nacti<HelpForm>(s);
    napoveda->Picture = NactiObrazek(s, obrazek);
    okna.Show(*napoveda);
    napoveda->Vlastnik = vlastnik.weak_from_this();
    s.AktivniForm = napoveda;
    okna.Hide(vlastnik);
}

}  // namespace rysovna
