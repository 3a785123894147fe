#include "screens/Desky.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "rules/Ulohy.h"
#include "rules/VyrobDialog.h"
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
template <Deska KTERA, class F>
constexpr DeskaProgramu Radek(std::string_view jmeno, std::span<const Nastroj> nastroje) {
    return {KTERA, DeskaS<F>(jmeno, MapaDesky(KTERA), nastroje, [](Misc& misc, Platna platna) {
                return VyrobDialog(KTERA, misc, platna);
            })};
}

constexpr DeskaProgramu DESKY[] = {
    Radek<Deska::Troj1Form, DeskaForm>("Troj1Form", NASTROJE_TROJUHELNIKU),
    Radek<Deska::Troj2Form, DeskaForm>("Troj2Form", NASTROJE_TROJUHELNIKU),
    Radek<Deska::CtyrUForm, DeskaCtyruhelniku>("CtyrUForm", NASTROJE_CTYRUHELNIKU),
    Radek<Deska::RovnoForm, DeskaCtyruhelniku>("RovnoForm", NASTROJE_ROVNOBEZNIKU),
    Radek<Deska::LichoForm, DeskaCtyruhelniku>("LichoForm", NASTROJE_CTYRUHELNIKU),
    Radek<Deska::TecnyForm, TecnyForm>("TecnyForm", NASTROJE_TECEN),
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
