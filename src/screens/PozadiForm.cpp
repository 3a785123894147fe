#include "screens/PozadiForm.h"

namespace rysovna {

void UkazPozadi(Sezeni& s) {
    Obrazovky& okna = s.Okna();
    okna.Show(*okna.Nacti<PozadiForm>(s));
}

void PozadiForm::Activate() {
    const std::shared_ptr<Form> aktivni = s_.AktivniForm.lock();
    if (!aktivni || aktivni->Zavreny()) return;
    s_.Okna().Show(*aktivni);
    // One wait at a time: a pupil who keeps pressing beside the window must not pile waits up.
    if (!s_.Okna().Ceka(*this)) s_.Okna().Spust(*this, Pockej());
}

Cinnost<> PozadiForm::Pockej() {
    co_await Cekani(100);
}

}  // namespace rysovna
