// The attempt: what is called on the dialogue is written down, and kept example by example.

#include <utility>

#include "platform/Host.h"
#include "rules/NahravanyDialog.h"
#include "screens/DeskaForm.h"
#include "screens/Verze.h"
#include "store/UkladaniPokusu.h"

namespace rysovna {

void DeskaForm::ZacniPokus() {
    if (!s_.PokusyUkladat) return;
    auto nahravany = std::make_unique<NahravanyDialog>(s_, Platna{Pic.Plocha(), HidenPic.Plocha()},
                                                       std::move(dialog_),
                                                       [this] { return s_.Stroj.TickCount(); });
    nahravany_ = nahravany.get();
    dialog_ = std::move(nahravany);
    ulozenychPrikladu_ = 0;
    pokusTrva_ = true;
    s_.Pokusy().Zacni({.Program = std::string(VERZE_PROGRAMU),
                       .Jmeno = s_.JmenoHrace,
                       .CisloUlohy = s_.CisloUlohy,
                       .Zacatek = s_.Stroj.Nyni(),
                       .PrikladuSerie = s_.PocetPrikladuSerie});
}

const Dialog& DeskaForm::Dialogem() const {
    if (promitany_ != nullptr) return *promitany_;
    return nahravany_ != nullptr ? nahravany_->Hrany() : *dialog_;
}

/// Keeps the examples that are over; iRozehrany: also the one in play, which is given up.
void DeskaForm::UlozPriklady(bool iRozehrany) {
    if (!pokusTrva_) return;
    const std::vector<HranyPriklad>& priklady = nahravany_->Priklady();
    const std::size_t konec = priklady.size() - (nahravany_->Nahrava() && !iRozehrany ? 1U : 0U);
    for (; ulozenychPrikladu_ < konec; ++ulozenychPrikladu_)
        s_.Pokusy().Pridej(priklady[ulozenychPrikladu_]);
}

/// What is to be told. To be awaited while nothing is let through to the screens.
Cinnost<std::string> DeskaForm::DokonciPokus(bool dokonceny) {
    UlozPriklady(true);
    return std::exchange(pokusTrva_, false) ? s_.Pokusy().Dokonci(dokonceny)
                                            : Cinnost<std::string>();
}

/// The board goes, and nobody waits.
void DeskaForm::OpustPokus() {
    UlozPriklady(true);
    if (std::exchange(pokusTrva_, false)) s_.Pokusy().Opust();
}

}  // namespace rysovna
