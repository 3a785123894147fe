#include "screens/Zdroje.h"

#include "platform/Host.h"
#include "rules/Misc.h"

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

}  // namespace rysovna
