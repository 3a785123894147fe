#include "rules/Chyby.h"

#include <cstdint>
#include <utility>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "rules/Misc.h"

namespace rysovna {

namespace {

ZdrojVet g_vety;

}  // namespace

void NastavVety(ZdrojVet vety) {
    g_vety = std::move(vety);
}

void PridejChybu(int cislo, std::string_view text, int body) {
    if (!g_vety) Selhani("Pravidla nemají věty chybných kroků");
    for (const std::string& veta : g_vety(cislo)) {
        SoucetZapornychBodu += body;
        ++PocetChybnychKroku;
        ChybnyKrok& krok = ChybneKroky[PocetChybnychKroku];
        krok.Cislo = TextBezMezery(cislo);
        krok.Text = veta;
        krok.Text += text;
        krok.Vyhrazeno = 0;
        krok.Body = static_cast<std::int16_t>(body);
    }
}

}  // namespace rysovna
