#include "screens/Zdroje.h"

#include "platform/Host.h"

namespace rysovna {

Obrazek NactiObrazek(Sezeni& s, std::string_view podCestou) {
    return LoadPicture(s.CestaCD + std::string(podCestou));
}

void ZvukStisku(Sezeni& s) {
    s.Stroj.SndPlaySound(s.CestaCD + "Sound\\click.wav");
}

void ZvukNajeti(Sezeni& s) {
    s.Stroj.SndPlaySound(s.CestaCD + "Sound\\enter.wav");
}

DvojiceObrazku NactiDvojici(Sezeni& s, const std::string& zaklad) {
    return {.Normalni = NactiObrazek(s, zaklad + "_0.bmp"),
            .Rozsviceny = NactiObrazek(s, zaklad + "_1.bmp")};
}

}  // namespace rysovna
