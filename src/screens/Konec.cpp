#include "screens/Konec.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Misc.h"
#include "screens/Start.h"

namespace rysovna {

bool ZeptejSeNaKonec() {
    Host& stroj = Stroj();
    if (stroj.Okna().JeModalni()) return false;
    const Odpoved odpoved = stroj.MsgBox("Opravdu chcete ukončit tento program?",
                                         "Ukončení aplikace", Styl::OtazkaAnoNe);
    if (odpoved != Odpoved::Ano) return false;
    ObnovObrazovku();
    stroj.Okna().Konec();
    return true;
}

bool Skoncil(const Form& form) {
    return form.Zavreny() || Stroj().Okna().JeKonec();
}

}  // namespace rysovna
