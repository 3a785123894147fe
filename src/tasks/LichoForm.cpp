#include "tasks/LichoForm.h"

namespace rysovna {

namespace {

constexpr PravidlaCtyruhelniku PRAVIDLA{"Sestroj lichoběžník ABCD:", VETY_CELYCH};
constexpr PravidlaVrcholu VRCHOL{.Rovnobezky = true};

}  // namespace

LichoDialog::LichoDialog(Platna platna) : DialogCtyruhelnikuVrchol(platna, PRAVIDLA, VRCHOL) {}

std::unique_ptr<Dialog> LichoForm::VyrobDialog(Platna platna) {
    return std::make_unique<LichoDialog>(platna);
}

}  // namespace rysovna
