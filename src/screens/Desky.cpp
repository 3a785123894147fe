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

using enum Nastroj;
constexpr Nastroj NASTROJE_TROJUHELNIKU[] = {Usecka,     Poloprimka, Kolmice,
                                             Rovnobezka, Kruznice,   Zpet};
constexpr Nastroj NASTROJE_CTYRUHELNIKU[] = {Poloprimka,  Kolmice, Rovnobezka, Kruznice,
                                             Trojuhelnik, Zpet,    Veta,       Sestroj};
constexpr Nastroj NASTROJE_ROVNOBEZNIKU[] = {Trojuhelnik, StredSoumernosti, Zpet,
                                             Veta,        Sestroj,          Obraz};
constexpr Nastroj NASTROJE_TECEN[] = {Usecka,   Primka, Poloprimka, Kolmice,  Rovnobezka,
                                      Kruznice, Stred,  Osa,        Prusecik, Zpet};

struct DeskaProgramu {
    Deska Ktera;
    RadekDesky Radek;
};

/// The row of a board, its form named as it is in the list of tasks.
template <class D, class F>
constexpr DeskaProgramu Radek(Deska ktera, std::string_view jmeno,
                              std::span<const Nastroj> nastroje) {
    return {ktera, DeskaS<D, F>(jmeno, MapaDesky(ktera), nastroje)};
}

constexpr DeskaProgramu DESKY[] = {
    Radek<Troj1Dialog, DeskaForm>(Deska::Troj1Form, "Troj1Form", NASTROJE_TROJUHELNIKU),
    Radek<Troj2Dialog, DeskaForm>(Deska::Troj2Form, "Troj2Form", NASTROJE_TROJUHELNIKU),
    Radek<CtyrUDialog, DeskaCtyruhelniku>(Deska::CtyrUForm, "CtyrUForm", NASTROJE_CTYRUHELNIKU),
    Radek<RovnoDialog, DeskaCtyruhelniku>(Deska::RovnoForm, "RovnoForm", NASTROJE_ROVNOBEZNIKU),
    Radek<LichoDialog, DeskaCtyruhelniku>(Deska::LichoForm, "LichoForm", NASTROJE_CTYRUHELNIKU),
    Radek<TecnyDialog, TecnyForm>(Deska::TecnyForm, "TecnyForm", NASTROJE_TECEN),
};
static_assert(std::ranges::all_of(ULOHY,
                                  [](const Uloha& u) {
                                      return std::ranges::find(DESKY, u.deska,
                                                               &DeskaProgramu::Ktera) !=
                                             std::end(DESKY);
                                  }),
              "a task's board has no row");

}  // namespace

std::shared_ptr<Form> VyrobDesku(Sezeni& s, int cisloUlohy) {
    const auto* d = std::ranges::find(DESKY, DeskaUlohy(cisloUlohy), &DeskaProgramu::Ktera);
    return d->Radek.VyrobForm(s, d->Radek);
}

}  // namespace rysovna
