#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "shell/Hover.h"
#include "shell/TabulkaVysledku.h"

namespace rysovna {

/// The score table of the current task: the ten best results of its file and of what could not be
/// written into it yet. More results than ten stay in the list. A table that cannot be read says so
/// and shows the latter alone.
class TabulkaForm final : public Form {
public:
    static constexpr int RADKU = 10;

    TabulkaForm();
    [[nodiscard]] std::string_view Jmeno() const override { return "TabulkaForm"; }

    std::array<Label, RADKU> LPoradi, LJmeno, LSpravne, LSpatne, LZnamka;
    Image INadpis;  ///< heading of the task: help
    PictureBox picKonec;

    /// The screen to show on leaving; set by whoever shows the table.
    std::weak_ptr<Form> Vlastnik;

    /// The results, best first.
    [[nodiscard]] const std::vector<ZaznamTabulky>& Zaznamy() const { return zaznamy_; }

    void Load() override;
    void MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    void Click(Ovladac* o) override;
    bool Klavesa(std::string_view klavesa) override;

private:
    void NactiTabulku();
    void VyplnRadky();
    void Zpet();

    Hover hover_;  ///< 20 picKonec
    DvojiceObrazku konec_;
    std::vector<ZaznamTabulky> zaznamy_;
};

}  // namespace rysovna
