#include "screens/Desky.h"

#include "rules/Ulohy.h"
#include "screens/DeskyForm.h"
#include "screens/TecnyForm.h"

namespace rysovna {

std::shared_ptr<Form> VyrobDesku(int cisloUlohy) {
    switch (DeskaUlohy(cisloUlohy)) {
        case Deska::Troj1Form:
            return std::make_shared<Troj1Form>();
        case Deska::Troj2Form:
            return std::make_shared<Troj2Form>();
        case Deska::CtyrUForm:
            return std::make_shared<CtyrUForm>();
        case Deska::LichoForm:
            return std::make_shared<LichoForm>();
        case Deska::RovnoForm:
            return std::make_shared<RovnoForm>();
        case Deska::TecnyForm:
            return std::make_shared<TecnyForm>();
    }
    return nullptr;
}

}  // namespace rysovna
