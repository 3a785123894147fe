#include "rules/Chyby.h"

#include <cstdint>
#include <string>

#include "base/Chyba.h"
#include "base/Cisla.h"

namespace rysovna {

namespace {

std::string_view SlovoBodu(int n) {
    return SLOVA_BODU[n == 1 ? 0 : n >= 2 && n <= 4 ? 1 : 2];
}

/// What stands behind the sentence. zbyva: points of the example that are not lost yet.
std::string ZaVetou(ChybaKroku chyba, std::string_view slovy, int zbyva) {
    const std::string body = TextBodu(chyba.Body());
    switch (chyba.Jak()) {
        case Zneni::Obvykle:
            return "  -" + body;
        case Zneni::SPomlckou:
            return " - " + body;
        case Zneni::SeSlovy:
            return std::string(slovy) + "  -" + body;
        case Zneni::ZbytekBod:
        case Zneni::Zbytek: {
            if (zbyva <= 0) return {};
            const bool vzdyBod = chyba.Jak() == Zneni::ZbytekBod;
            return "    -" + TextCisla(zbyva) + std::string(SlovoBodu(vzdyBod ? 1 : zbyva));
        }
    }
    return {};
}

}  // namespace

std::string TextBodu(int body) {
    return TextBezMezery(body) + std::string(SlovoBodu(body));
}

void PridejChybu(Misc& misc, ChybaKroku chyba, std::string_view slovy) {
    if (!misc.Vety) Selhani("Pravidla nemají věty chybných kroků");
    const std::string body = ZaVetou(chyba, slovy, BODU_ZA_PRIKLAD - misc.SoucetZapornychBodu);
    for (const std::string& veta : misc.Vety(chyba.Cislo())) {
        misc.SoucetZapornychBodu += chyba.Body();
        ++misc.PocetChybnychKroku;
        ChybnyKrok& krok = misc.ChybneKroky[misc.PocetChybnychKroku];
        krok.Cislo = TextBezMezery(chyba.Cislo());
        krok.Text = veta + body;
        krok.Vyhrazeno = 0;
        krok.Body = static_cast<std::int16_t>(chyba.Body());
    }
}

}  // namespace rysovna
