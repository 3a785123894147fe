#include "screens/Rolovani.h"

#include "screens/Konec.h"
#include "screens/SelectForm.h"
#include "screens/Spolecne.h"

namespace rysovna {

void Roluj(Sezeni& s, const Form& form, PictureBox& kam, const std::function<bool()>& dal) {
    constexpr std::uint32_t BUNKA_MS = 20;
    const PictureClip& pas = Menu(s).PicClip;
    for (int i = 0; i < pas.Cols; ++i) {
        kam.Picture = pas.GraphicCell(i);
        Cekej(s, BUNKA_MS);
        if (Skoncil(s, form) || (dal && !dal())) return;
    }
}

}  // namespace rysovna
