#include "screens/ChybovyForm.h"

#include <algorithm>

#include "base/Cisla.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Paleta.h"
#include "rules/Zaznamy.h"
#include "screens/Meritko.h"
#include "screens/SlovaObrazovek.h"
#include "screens/Zdroje.h"

namespace rysovna {

namespace {

constexpr Obdelnik MISTO{216, 89, 356, 250};  // px of the board
constexpr int RAM = 3;                        // px around the text

constexpr float NEJMENSI_PISMO = 7;  // points

}  // namespace

std::string TextChybnychKroku(const Misc& misc) {
    std::string text = std::string(CHYBNE_KROKY) + "\n\n";
    const int radku = std::min(misc.PocetChybnychKroku, ChybovyForm::RADKU);
    for (int i = 1; i <= radku; ++i) text += TextCisla(i) + ". " + misc.ChybneKroky[i].Text + "\n";
    return text;
}

ChybovyForm::ChybovyForm(Sezeni& s) : FormHry(s) {
    Left = MISTO.Left;
    Top = MISTO.Top;
    Width = MISTO.Width;
    Height = MISTO.Height;
    Pridej(Text1, "Text1", {RAM, RAM, Width - 2 * RAM, Height - 2 * RAM});
    Text1.MultiLine = true;
    Text1.BackColor = paleta::CHYBY;
}

void ChybovyForm::Load() {
    PrizpusobForm(s_, *this);
    Picture = NactiObrazek(s_, "Bitmap\\Games\\new_Hint.bmp");
    Text1.Text = TextChybnychKroku(s_);
    // Ten long sentences want a smaller face: the list cannot be scrolled.
    while (!Text1.VejdeSe() && Text1.Font.Velikost > NEJMENSI_PISMO) Text1.Font.Velikost -= 1;
}

Cinnost<> ChybovyForm::MouseDown(Ovladac*, const Mys&) {
    s_.Okna().Unload(*this);
    return {};
}

Odezva ChybovyForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa != "Escape" && klavesa != "Return" && klavesa != "Space") return std::nullopt;
    s_.Okna().Unload(*this);
    return Cinnost<>();
}

}  // namespace rysovna
