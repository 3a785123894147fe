#include "screens/FormHry.h"

#include "screens/SelectForm.h"

namespace rysovna {

Cinnost<> FormHry::Roluj(std::shared_ptr<PictureBox> kam, std::function<bool()> dal) {
    constexpr std::uint32_t BUNKA_MS = 20;
    const PictureClip& pas = Menu(s_).PicClip;
    for (int i = 0; i < pas.Cols; ++i) {
        kam->Picture = pas.GraphicCell(i);
        co_await Cekani(BUNKA_MS);
        if (!dal()) co_return;
    }
}

}  // namespace rysovna
