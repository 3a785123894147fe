#include "rules/Chyby.h"

#include <cstdint>

#include "base/Chyba.h"
#include "base/Cisla.h"

namespace rysovna {

void PridejChybu(Misc& misc, int cislo, std::string_view text, int body) {
    if (!misc.Vety) Selhani("Pravidla nemají věty chybných kroků");
    for (const std::string& veta : misc.Vety(cislo)) {
        misc.SoucetZapornychBodu += body;
        ++misc.PocetChybnychKroku;
        ChybnyKrok& krok = misc.ChybneKroky[misc.PocetChybnychKroku];
        krok.Cislo = TextBezMezery(cislo);
        krok.Text = veta;
        krok.Text += text;
        krok.Vyhrazeno = 0;
        krok.Body = static_cast<std::int16_t>(body);
    }
}

}  // namespace rysovna
