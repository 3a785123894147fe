#include "screens/SlovaObrazovek.h"

#include "base/Cisla.h"

namespace rysovna {

std::string DatumACasCesky(const DatumACas& d, std::string_view predCasem) {
    return TextBezMezery(d.Den) + ". " + TextBezMezery(d.Mesic) + ". " + TextBezMezery(d.Rok) +
           std::string(predCasem) + TextBezMezery(d.Hodina) + "." + DveCislice(d.Minuta);
}

void PridejOdstavec(std::string& zprava, const std::string& odstavec) {
    if (!zprava.empty() && !odstavec.empty()) zprava += "\n\n";
    zprava += odstavec;
}

}  // namespace rysovna
