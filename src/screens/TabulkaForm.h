#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "screens/FormHry.h"
#include "screens/Hover.h"
#include "store/TabulkaVysledku.h"
#include "store/Vysledek.h"

namespace rysovna {

/// The score table of the current task: the ten best results of its file and of what could not be
/// written into it yet. More results than ten stay in the list. A table that cannot be read says so
/// and shows the latter alone.
class TabulkaForm final : public FormHry {
public:
    static constexpr int RADKU = 10;

    explicit TabulkaForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "TabulkaForm"; }

    Label LVlastni;  ///< lights the row of the result that was just taken in
    std::array<Label, RADKU> LPoradi, LJmeno, LSpravne, LSpatne, LZnamka;
    Image INadpis;  ///< heading of the task: help
    PictureBox picKonec;
    Label LVysledek;  ///< that result in words, where it is not among the ten
    Label LStupnice;  ///< the grades and from how many percent each is given, the best first

    /// The screen to show on leaving; set by whoever shows the table.
    std::weak_ptr<Form> Vlastnik;

    /// Shows which result is the pupil's own. misto: its place when the table was stored, from 1;
    /// 0: it could not be stored, and is the last of those that wait. Rows of other programs that
    /// came above it since moved it down: from its place on the first that reads like it is taken.
    void UkazVysledek(int misto, const Vysledek& vysledek);

    /// The results, best first.
    [[nodiscard]] const std::vector<ZaznamTabulky>& Zaznamy() const { return zaznamy_; }

    void Load() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    [[nodiscard]] Ovladac* PrvniZastavka() override { return &picKonec; }
    [[nodiscard]] Ovladac* Napoveda() override { return &INadpis; }

private:
    [[nodiscard]] int PocetZaznamu() const { return static_cast<int>(zaznamy_.size()); }
    void NactiTabulku();
    void VyplnRadky();
    void Zpet();

    Hover hover_{s_};  ///< 20 picKonec
    DvojiceObrazku konec_;
    std::vector<ZaznamTabulky> zaznamy_;
    std::vector<int>
        nezapsane_;  ///< places, from 1, at which rows that wait were taken in, in turn
};

}  // namespace rysovna
