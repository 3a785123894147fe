#include "screens/Prechody.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/SelectForm.h"

namespace rysovna {

void VratSeK(Sezeni& s, const std::weak_ptr<Form>& vlastnik, Form& zavirany) {
    Obrazovky& okna = s.Okna();
    std::shared_ptr<Form> kam = vlastnik.lock();
    if (!kam || kam->Zavreny()) kam = Menu(s).shared_from_this();
    okna.Show(*kam);
    s.AktivniForm = kam;
    okna.Hide(zavirany);
    okna.Unload(zavirany);
}

}  // namespace rysovna
