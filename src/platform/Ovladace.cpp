#include "platform/Ovladace.h"

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
    Width = SirkaTextu(Font, Caption);
}

}  // namespace rysovna
