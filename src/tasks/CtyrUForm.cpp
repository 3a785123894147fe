#include "tasks/CtyrUForm.h"

namespace rysovna {

namespace {

constexpr PravidlaCtyruhelniku PRAVIDLA{"Sestroj čtyřúhelník ABCD:", VETY_CELYCH};
constexpr PravidlaVrcholu VRCHOL{.Rovnobezky = false};

}  // namespace

CtyrUDialog::CtyrUDialog(Platna platna) : DialogCtyruhelnikuVrchol(platna, PRAVIDLA, VRCHOL) {}

std::unique_ptr<Dialog> CtyrUForm::VyrobDialog(Platna platna) {
    return std::make_unique<CtyrUDialog>(platna);
}

}  // namespace rysovna
