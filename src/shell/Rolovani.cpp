#include "shell/Rolovani.h"

#include "shell/Konec.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"

namespace rysovna {

void Roluj(const Form& form, PictureBox& kam, const std::function<bool()>& dal) {
    constexpr std::uint32_t BUNKA_MS = 20;
    const PictureClip& pas = Menu().PicClip;
    for (int i = 0; i < pas.Cols; ++i) {
        kam.Picture = pas.GraphicCell(i);
        Cekej(BUNKA_MS);
        if (Skoncil(form) || (dal && !dal())) return;
    }
}

}  // namespace rysovna
