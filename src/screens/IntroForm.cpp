#include "screens/IntroForm.h"

#include <algorithm>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/SelectForm.h"
#include "screens/Zdroje.h"

namespace rysovna {
namespace {

constexpr std::uint32_t DOBA_TITULU = 10000;  // ms
constexpr const char* TITUL = "Bitmap\\Intro\\title.bmp";

}  // namespace

IntroForm::IntroForm(Sezeni& s) : FormHry(s) {
    Pridej(Timer1, "Timer1", {});
    Timer1.Interval = 1000;
    Timer1.Enabled = false;
    StiskVzdy = true;
}

void IntroForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    Picture = NactiObrazek(s_, TITUL);
    preskoceno_ = false;
    termin_ = s_.Stroj.TickCount() + DOBA_TITULU;
    s_.AktivniForm = weak_from_this();
}

Cinnost<> IntroForm::MouseDown(Ovladac*, const Mys&) {
    Preskoc();
    return {};
}

Odezva IntroForm::Klavesa(std::string_view klavesa, int) {
    if (klavesa.starts_with("Ctrl+")) return std::nullopt;
    Preskoc();
    return Cinnost<>();
}

void IntroForm::Preskoc() {
    ZvukStisku(s_);
    preskoceno_ = true;
}

Cinnost<> IntroForm::TimerTick(Timer& t) {
    t.Enabled = false;
    return DoMenu();
}

Cinnost<> IntroForm::DoMenu() {
    const auto zbyva = static_cast<std::int32_t>(termin_ - s_.Stroj.TickCount());
    Cekani titul([this] { return preskoceno_; }, static_cast<std::uint32_t>(std::max(zbyva, 0)));
    co_await titul;
    co_await Cekani(20);
    SelectForm& menu = Menu(s_);
    s_.Okna().Show(menu);
    s_.AktivniForm = menu.weak_from_this();
    s_.Okna().Hide(*this);
    s_.Okna().Unload(*this);
}

}  // namespace rysovna
