#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "shell/Hover.h"
#include "shell/Soubory.h"

namespace rysovna {

/// The score table of the current task: the ten best results, and the place where a new one is
/// taken in. More results than ten stay in the list and in the file.
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

    /// Takes a result in at its place, rewrites the task's score file and shows the table anew.
    /// All texts; a grade that came out empty sorts first.
    void VlozNovyZaznam(const std::string& jmeno, const std::string& spravne,
                        const std::string& spatne, const std::string& znamka);
    /// Reads, writes the whole list. soubor: a path with backslashes.
    void NactiTabulku(const std::string& soubor);
    void UlozTabulku(const std::string& soubor) const;

    /// The results, best first.
    [[nodiscard]] const std::vector<ZaznamTabulky>& Zaznamy() const { return zaznamy_; }

    void Load() override;
    void MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    void Click(Ovladac* o) override;
    bool Klavesa(std::string_view klavesa) override;

private:
    void VyplnRadky();
    void Zpet();

    Hover hover_;  ///< 20 picKonec
    DvojiceObrazku konec_;
    std::vector<ZaznamTabulky> zaznamy_;
};

}  // namespace rysovna
