#include "screens/TecnyForm.h"

#include "platform/Misto.h"

namespace rysovna {

namespace {

// The assignment is a whole sentence: three rows above the given objects; the prompt below them.
constexpr Obdelnik MISTO_ZADANI{16, 103, 198, 48};
constexpr int RADEK_DANYCH = 153, VYZVA_NAHORE = 178;  // px

}  // namespace

TecnyForm::TecnyForm(Sezeni& s, const RadekDesky& deska) : DeskaForm(s, deska) {
    Poloz(Label1, MISTO_ZADANI);
    lblText1.Top = VYZVA_NAHORE;
}

void TecnyForm::UkazDalsi(const Panel& /*panel*/) {
    lblZadani[0].Top = RADEK_DANYCH;
}

}  // namespace rysovna
