#include "screens/Desky.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "rules/CtyrUDialog.h"
#include "rules/LichoDialog.h"
#include "rules/RovnoDialog.h"
#include "rules/TecnyDialog.h"
#include "rules/Troj1Dialog.h"
#include "rules/Troj2Dialog.h"
#include "rules/Ulohy.h"
#include "screens/DeskaCtyruhelniku.h"
#include "screens/TecnyForm.h"

namespace rysovna {

namespace {

constexpr int TVARY_TROJUHELNIKU[] = {1, 3, 4, 5, 6, 12},
              TVARY_CTYRUHELNIKU[] = {3, 4, 5, 6, 10, 12, 13, 14},
              TVARY_ROVNOBEZNIKU[] = {10, 11, 12, 13, 14, 15},
              TVARY_TECEN[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 12};

struct DeskaProgramu {
    Deska Ktera;
    RadekDesky Radek;
};

/// The row of a board, its form named as it is in the list of tasks.
template <class D, class F>
constexpr DeskaProgramu Radek(Deska ktera, std::string_view jmeno, std::span<const int> tvary) {
    return {ktera, DeskaS<D, F>(jmeno, MapaDesky(ktera), tvary)};
}

constexpr DeskaProgramu DESKY[] = {
    Radek<Troj1Dialog, DeskaForm>(Deska::Troj1Form, "Troj1Form", TVARY_TROJUHELNIKU),
    Radek<Troj2Dialog, DeskaForm>(Deska::Troj2Form, "Troj2Form", TVARY_TROJUHELNIKU),
    Radek<CtyrUDialog, DeskaCtyruhelniku>(Deska::CtyrUForm, "CtyrUForm", TVARY_CTYRUHELNIKU),
    Radek<RovnoDialog, DeskaCtyruhelniku>(Deska::RovnoForm, "RovnoForm", TVARY_ROVNOBEZNIKU),
    Radek<LichoDialog, DeskaCtyruhelniku>(Deska::LichoForm, "LichoForm", TVARY_CTYRUHELNIKU),
    Radek<TecnyDialog, TecnyForm>(Deska::TecnyForm, "TecnyForm", TVARY_TECEN),
};

}  // namespace

std::shared_ptr<Form> VyrobDesku(Sezeni& s, int cisloUlohy) {
    const auto* d = std::ranges::find(DESKY, DeskaUlohy(cisloUlohy), &DeskaProgramu::Ktera);
    return d->Radek.VyrobForm(s, d->Radek);
}

}  // namespace rysovna
