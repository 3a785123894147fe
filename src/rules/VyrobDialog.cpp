#include "rules/VyrobDialog.h"

#include "base/Chyba.h"
#include "rules/CtyrUDialog.h"
#include "rules/LichoDialog.h"
#include "rules/RovnoDialog.h"
#include "rules/TecnyDialog.h"
#include "rules/Troj1Dialog.h"
#include "rules/Troj2Dialog.h"

namespace rysovna {

std::unique_ptr<Dialog> VyrobDialog(Deska deska, Misc& misc, Platna platna) {
    switch (deska) {
        case Deska::Troj1Form:
            return std::make_unique<Troj1Dialog>(misc, platna);
        case Deska::Troj2Form:
            return std::make_unique<Troj2Dialog>(misc, platna);
        case Deska::CtyrUForm:
            return std::make_unique<CtyrUDialog>(misc, platna);
        case Deska::RovnoForm:
            return std::make_unique<RovnoDialog>(misc, platna);
        case Deska::LichoForm:
            return std::make_unique<LichoDialog>(misc, platna);
        case Deska::TecnyForm:
            return std::make_unique<TecnyDialog>(misc, platna);
    }
    Selhani("Neznámá deska");
}

}  // namespace rysovna
