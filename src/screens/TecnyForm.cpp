#include "screens/TecnyForm.h"

#include "rules/TecnyDialog.h"

namespace rysovna {

namespace {

// Numbers of the faces that the step buttons have here.
constexpr int TVARY[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 12};

// The assignment is a whole sentence: three rows above the given objects; the prompt below them.
constexpr Obdelnik MISTO_ZADANI{16, 103, 198, 48};
constexpr int RADEK_DANYCH = 153, VYZVA_NAHORE = 178;  // px

}  // namespace

TecnyForm::TecnyForm(Sezeni& s) : DeskaForm(s) {
    Label1.Left = MISTO_ZADANI.Left;
    Label1.Top = MISTO_ZADANI.Top;
    Label1.Width = MISTO_ZADANI.Width;
    Label1.Height = MISTO_ZADANI.Height;
    lblText1.Top = VYZVA_NAHORE;
}

std::unique_ptr<Dialog> TecnyForm::VyrobDialog(Platna platna) {
    return std::make_unique<TecnyDialog>(s_, platna);
}

std::span<const int> TecnyForm::Tvary() const {
    return TVARY;
}

void TecnyForm::UkazDalsi(const Panel& /*panel*/) {
    lblZadani[0].Top = RADEK_DANYCH;
}

}  // namespace rysovna
