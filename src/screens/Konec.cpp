#include "screens/Konec.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/Start.h"

namespace rysovna {

bool ZeptejSeNaKonec(Sezeni& s) {
    Host& stroj = s.Stroj;
    if (stroj.Okna().JeModalni()) return false;
    const Odpoved odpoved = stroj.MsgBox("Opravdu chcete ukončit tento program?",
                                         "Ukončení aplikace", Styl::OtazkaAnoNe);
    if (odpoved != Odpoved::Ano) return false;
    ObnovObrazovku(s);
    stroj.Okna().Konec();
    return true;
}

bool Skoncil(const Sezeni& s, const Form& form) {
    return form.Zavreny() || s.Okna().JeKonec();
}

}  // namespace rysovna
