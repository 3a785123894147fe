#include "platform/Ovladace.h"

#include <algorithm>

#include "platform/Pisma.h"
#include "platform/PsaniTextu.h"
#include "platform/Sazba.h"
#include "platform/Zalom.h"

namespace rysovna {

Surface& PictureBox::Plocha() {
    if (plocha_ == nullptr || plocha_->Width() != Width || plocha_->Height() != Height) {
        plocha_ = std::make_unique<Surface>(Width, Height);
        plocha_->Font = Font;
        plocha_->BackColor = BackColor;
        podklad_ = Picture;
        plocha_->NastavPodklad(podklad_);
    } else if (!(podklad_ == Picture)) {
        podklad_ = Picture;
        plocha_->NastavPodklad(podklad_);
    }
    return *plocha_;
}

void Label::PodleTextu() {
    Width = SirkaTextu(Font, Tisteny());
}

std::string Label::Tisteny() const {
    // The letters of Symbol stand for signs already.
    return Sazba && Font.Nazev != Pismo::Rez::Symbol ? Vysad(Caption) : Caption;
}

std::vector<std::string> TextBox::Radky() const {
    return RozdelNaRadky(Font, Text, std::max(Width - 2 * OKRAJ_TEXTU, 1));
}

bool TextBox::VejdeSe() const {
    std::vector<std::string> radky = Radky();
    while (!radky.empty() && radky.back().empty()) radky.pop_back();
    return static_cast<int>(radky.size()) * VyskaRadku(Font) + 2 * OKRAJ_TEXTU <= Height;
}

}  // namespace rysovna
