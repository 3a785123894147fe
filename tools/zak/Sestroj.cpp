#include "zak/Sestroj.h"

#include "rules/DialogCtyruhelnikuVrchol.h"
#include "rules/DialogTrojuhelniku.h"
#include "zak/Ctyruhelnik.h"
#include "zak/Tecny.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::hrac {

void Sestroj(Ruka& ruka, std::uint32_t seminko) {
    const Dialog& d = ruka.Hrany();
    if (dynamic_cast<const DialogTrojuhelniku*>(&d) != nullptr) {
        DokonalyTrojuhelnik(ruka, seminko).Sestroj();
    } else if (dynamic_cast<const DialogCtyruhelnikuVrchol*>(&d) != nullptr) {
        DokonalyCtyruhelnik(ruka, seminko).Sestroj();
    } else if (dynamic_cast<const DialogCtyruhelniku*>(&d) != nullptr) {
        DokonalyRovnobeznik(ruka, seminko).Sestroj();
    } else {
        DokonaleTecny(ruka, seminko).Sestroj();
    }
}

}  // namespace rysovna::hrac
