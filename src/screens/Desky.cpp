#include "screens/Desky.h"

#include "rules/Ulohy.h"
#include "screens/DeskyForm.h"
#include "screens/TecnyForm.h"

namespace rysovna {

std::shared_ptr<Form> VyrobDesku(Sezeni& s, int cisloUlohy) {
    switch (DeskaUlohy(cisloUlohy)) {
        case Deska::Troj1Form:
            return std::make_shared<Troj1Form>(s);
        case Deska::Troj2Form:
            return std::make_shared<Troj2Form>(s);
        case Deska::CtyrUForm:
            return std::make_shared<CtyrUForm>(s);
        case Deska::LichoForm:
            return std::make_shared<LichoForm>(s);
        case Deska::RovnoForm:
            return std::make_shared<RovnoForm>(s);
        case Deska::TecnyForm:
            return std::make_shared<TecnyForm>(s);
    }
    return nullptr;
}

}  // namespace rysovna
