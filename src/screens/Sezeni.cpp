#include "screens/Sezeni.h"

#include <utility>

#include "platform/Cesta.h"
#include "rules/Ulohy.h"

namespace rysovna {

Sezeni::Sezeni(Host& kde, VyrobceDesek vyrobce) : Stroj(kde), vyrobce_(std::move(vyrobce)) {}

std::shared_ptr<Form> Sezeni::VyrobDesku(int cisloUlohy) {
    if (NajdiUlohu(cisloUlohy) == nullptr || !vyrobce_) return nullptr;
    return vyrobce_(*this, cisloUlohy);
}

Ukladani& Sezeni::Vysledky() {
    if (!vysledky_) {
        vysledky_ = std::make_unique<Ukladani>(
            Disk(), [this] { return Stroj.TickCount(); }, NativniCesta(CestaVysledku),
            Stroj.SlozkaStavu());
    }
    return *vysledky_;
}

UkladaniPokusu& Sezeni::Pokusy() {
    if (!pokusy_) {
        pokusy_ = std::make_unique<UkladaniPokusu>(
            Disk(), [this] { return Stroj.TickCount(); }, NativniCesta(CestaVysledku),
            Stroj.SlozkaStavu());
    }
    return *pokusy_;
}

}  // namespace rysovna
