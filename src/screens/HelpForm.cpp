#include "screens/HelpForm.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Misc.h"
#include "screens/Spolecne.h"
#include "screens/Zdroje.h"

namespace rysovna {

void HelpForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
}

void HelpForm::Click(Ovladac*) {
    ZvukStisku();
    VratSeK(Vlastnik, *this);
}

bool HelpForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa != "Escape" && klavesa != "Return" && klavesa != "Space") return false;
    Click(nullptr);
    return true;
}

void UkazNapovedu(std::string_view obrazek, Form& vlastnik) {
    Obrazovky& okna = Stroj().Okna();
    const auto napoveda = okna.Nacti<HelpForm>();
    napoveda->Picture = NactiObrazek(obrazek);
    okna.Show(*napoveda);
    napoveda->Vlastnik = vlastnik.weak_from_this();
    AktivniForm = napoveda;
    okna.Hide(vlastnik);
}

}  // namespace rysovna
