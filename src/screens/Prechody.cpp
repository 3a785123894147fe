#include "screens/Prechody.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Misc.h"
#include "screens/SelectForm.h"
#include "screens/Spolecne.h"

namespace rysovna {

void VratSeK(const std::weak_ptr<Form>& vlastnik, Form& zavirany) {
    Obrazovky& okna = Stroj().Okna();
    std::shared_ptr<Form> kam = vlastnik.lock();
    if (!kam || kam->Zavreny()) kam = Menu().shared_from_this();
    okna.Show(*kam);
    AktivniForm = kam;
    okna.Hide(zavirany);
    okna.Unload(zavirany);
}

}  // namespace rysovna
