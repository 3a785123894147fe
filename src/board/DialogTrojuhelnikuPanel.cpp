// What the dialogue of the triangle boards shows, computed from its state alone.

#include "board/DialogTrojuhelniku.h"
#include "shell/Misc.h"

namespace rysovna {

namespace {

/// Prompt and faces of the buttons by phase. Face 0: the button is hidden.
struct TvarFaze {
    std::string_view lblText1, lblText2;
    std::array<int, 5> Tvary;
};

constexpr std::string_view VYZVA_STRANA =
    "Nejprve narýsuješ stranu trojúhelníka. Zvol, kterou úsečkou začneš.";
constexpr std::string_view VYZVA_VRCHOL =
    "Třetí vrchol trojúhelníka leží v průniku následujících geometrických útvarů:";

constexpr TvarFaze FAZE[] = {
    {VYZVA_STRANA, "", {1, 0, 0, 0, 12}},
    {VYZVA_VRCHOL, "1. útvar:", {3, 4, 5, 6, 12}},
    {VYZVA_VRCHOL, "2. útvar:", {3, 4, 5, 6, 12}},
    {VYZVA_VRCHOL, "2. útvar:", {3, 4, 5, 6, 12}},
};

constexpr std::size_t ZPET = 4;

}  // namespace

Panel DialogTrojuhelniku::UkazPanel() const {
    const TvarFaze& f = FAZE[stav_.Faze - 1];
    Panel p;
    p.Label1 = pravidla_.Uvod;
    p.lblText1 = f.lblText1;
    p.lblText2 = f.lblText2;
    p.lblText3 = stav_.lblText3;
    p.lblText4 = stav_.lblText4;
    p.txtVstup = stav_.txtVstup;
    p.txtVstup.Ziva = !stav_.Skontrolovano;
    p.Combo = stav_.Combo;
    p.lblZadani = zadani_;
    p.PicZiva = !stav_.HotovaKonstrukce && !stav_.Skontrolovano;

    // In the first phase the tool waits for a mark on the sketch, until it was pressed once.
    const bool muzeZacit = KonstrukceZahajena != NE || stav_.Znacky != 0;
    for (std::size_t i = 0; i < f.Tvary.size(); ++i) {
        const bool poZacatku = stav_.Faze > 1;
        const bool zive = !stav_.CekaNaKresleni && (poZacatku || (i == 0 && muzeZacit));
        p.cmd[i] = {f.Tvary[i], zive, zive};
        if (stav_.Skontrolovano) {
            p.cmd[i].Zive = false;
            if (i == ZPET) p.cmd[i].Barevne = false;
        }
    }
    return p;
}

}  // namespace rysovna
