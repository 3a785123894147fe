#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Host.h"

namespace rysovna {

/// The message box: a form in the middle of the window, modal, drawn without any picture. Keys:
/// Return and the blank press the lit button, the arrows and Tab move the light and the ring
/// with it, Escape is the answer that changes nothing (OK or Ne).
class ZpravaForm final : public Form {
public:
    ZpravaForm(Host& host, const std::string& text, const std::string& titul, Styl styl);

    [[nodiscard]] std::string_view Jmeno() const override { return "ZpravaForm"; }
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    [[nodiscard]] std::string CoSeRika() const override;
    Cinnost<> QueryUnload() override;

    /// What was chosen; the answer of Escape until something is.
    [[nodiscard]] Odpoved Vysledek() const { return vysledek_; }
    /// The buttons, left to right; their names are "cmdOK", "cmdAno", "cmdNe".
    std::vector<std::unique_ptr<PictureBox>> Tlacitka;

private:
    void NakresliTlacitka();
    void NakresliIkonu(Styl styl);
    void Odpovez(Odpoved odpoved);

    Host& host_;
    PictureBox ram_;
    Label pruh_;
    Label titulek_;
    PictureBox ikona_;
    std::vector<std::unique_ptr<Label>> radky_;
    std::vector<Odpoved> odpovedi_;
    std::size_t vybrane_ = 0;
    Odpoved vysledek_;
};

}  // namespace rysovna
