#include "screens/PozadiForm.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Misc.h"
#include "screens/Spolecne.h"
#include "screens/Start.h"

namespace rysovna {

void UkazPozadi() {
    Obrazovky& okna = Stroj().Okna();
    okna.Show(*okna.Nacti<PozadiForm>());
}

void PozadiForm::Activate() {
    const std::shared_ptr<Form> aktivni = AktivniForm.lock();
    if (!aktivni || aktivni->Zavreny()) return;
    Stroj().Okna().Show(*aktivni);
    // One wait at a time: a pupil who keeps pressing beside the window must not pile waits up.
    if (ceka_) return;
    ceka_ = true;
    Cekej(100);
    ceka_ = false;
}

}  // namespace rysovna
