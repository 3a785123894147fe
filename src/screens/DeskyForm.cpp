#include "screens/DeskyForm.h"

#include "rules/CtyrUDialog.h"
#include "rules/LichoDialog.h"
#include "rules/RovnoDialog.h"
#include "rules/Troj1Dialog.h"
#include "rules/Troj2Dialog.h"

namespace rysovna {

namespace {

// Numbers of the faces that the step buttons have.
constexpr int TVARY_TROJUHELNIKU[] = {1, 3, 4, 5, 6, 12};
constexpr int TVARY_ROVNOBEZNIKU[] = {10, 11, 12, 13, 14, 15};

}  // namespace

std::unique_ptr<Dialog> Troj1Form::VyrobDialog(Platna platna) {
    return std::make_unique<Troj1Dialog>(s_, platna);
}

std::span<const int> Troj1Form::Tvary() const {
    return TVARY_TROJUHELNIKU;
}

std::unique_ptr<Dialog> Troj2Form::VyrobDialog(Platna platna) {
    return std::make_unique<Troj2Dialog>(s_, platna);
}

std::span<const int> Troj2Form::Tvary() const {
    return TVARY_TROJUHELNIKU;
}

std::unique_ptr<Dialog> CtyrUForm::VyrobDialog(Platna platna) {
    return std::make_unique<CtyrUDialog>(s_, platna);
}

std::unique_ptr<Dialog> LichoForm::VyrobDialog(Platna platna) {
    return std::make_unique<LichoDialog>(s_, platna);
}

std::unique_ptr<Dialog> RovnoForm::VyrobDialog(Platna platna) {
    return std::make_unique<RovnoDialog>(s_, platna);
}

std::span<const int> RovnoForm::Tvary() const {
    return TVARY_ROVNOBEZNIKU;
}

}  // namespace rysovna
