#include "shell/Hover.h"

#include "base/Cisla.h"
#include "platform/Host.h"
#include "shell/Misc.h"

namespace rysovna {

Obrazek NactiObrazek(std::string_view podCestou) {
    return LoadPicture(CestaCD + std::string(podCestou));
}

void ZvukStisku() {
    Stroj().SndPlaySound(CestaCD + "Sound\\click.wav");
}

void ZvukNajeti() {
    Stroj().SndPlaySound(CestaCD + "Sound\\enter.wav");
}

DvojiceObrazku NactiDvojici(const std::string& zaklad) {
    return {.Normalni = NactiObrazek(zaklad + "_0.bmp"),
            .Rozsviceny = NactiObrazek(zaklad + "_1.bmp")};
}

bool Hover::Vstup(std::uint8_t cislo) {
    if (cislo_ == cislo) return false;
    ZvukNajeti();
    cislo_ = cislo;
    return true;
}

bool Hover::Opust() {
    if (cislo_ == NIC) return false;
    cislo_ = NIC;
    return true;
}

bool Zvoleny(const Ovladac& o) {
    return Cislo(o.Tag) != 0;
}

}  // namespace rysovna
