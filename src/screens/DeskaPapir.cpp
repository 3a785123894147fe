// The example on paper: what stands on the board now as pages among the account's documents.

#include "screens/DeskaForm.h"
#include "screens/PapirUlozeni.h"

namespace rysovna {

RadkyRady DeskaForm::NaPapir(const HlavickaPapiru& hlavicka, const Pismo& pismo, int sirka) {
    const Papir papir = SepisPapir(hlavicka, Dialogem(), ImgHodnoceni.Visible);
    return UlozPapir(s_.Stroj, papir, Pic.Plocha(), SamplePic.Plocha(), pismo, sirka);
}

/// Where the pages are, or why they could not be stored, is told in the guide line's strip.
void DeskaForm::NaPapir() {
    if (cekaNaZadani_) return;  // there is nothing to put on paper yet
    const RadkyRady receno = NaPapir({.Jmeno = s_.JmenoHrace,
                                      .Kdy = s_.Stroj.Nyni(),
                                      .Poradi = s_.PocetPrikladuSerie - zbyvaPrikladu_ + 1,
                                      .Prikladu = s_.PocetPrikladuSerie},
                                     {.Velikost = PISMO_DVOU_RAD}, lblRada[0].Width);
    PicRada.Visible = true;
    UkazRadky(receno);
    for (Label& l : lblRada) l.Sazba = false;  // names of files are no names of the figure
}

}  // namespace rysovna
