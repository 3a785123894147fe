#include "screens/IntroForm.h"

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/Konec.h"
#include "screens/SelectForm.h"
#include "screens/Spolecne.h"
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

void IntroForm::Prednacti(const Sezeni& s) {
    PrednactiObrazek(s.CestaCD + TITUL);
}

void IntroForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    Picture = NactiObrazek(s_, TITUL);
    preskoceno_ = false;
    termin_ = s_.Stroj.TickCount() + DOBA_TITULU;
    s_.AktivniForm = weak_from_this();
}

void IntroForm::MouseDown(Ovladac*, const Mys&) {
    Preskoc();
}

bool IntroForm::Klavesa(std::string_view, int) {
    Preskoc();
    return true;
}

void IntroForm::Preskoc() {
    ZvukStisku(s_);
    preskoceno_ = true;
}

void IntroForm::TimerTick(Timer& t) {
    t.Enabled = false;
    Host& stroj = s_.Stroj;
    std::int32_t zbyva = 0;
    do {
        if (preskoceno_) {
            termin_ = stroj.TickCount() - 1000;
        } else {
            zbyva = static_cast<std::int32_t>(termin_ - stroj.TickCount());
            stroj.DoEvents(zbyva > 0 ? static_cast<std::uint32_t>(zbyva) : 0);
            if (Skoncil(s_, *this)) return;
        }
        zbyva = static_cast<std::int32_t>(termin_ - stroj.TickCount());
    } while (zbyva > 0);
    Cekej(s_, 20);
    if (Skoncil(s_, *this)) return;
    SelectForm& menu = Menu(s_);
    stroj.Okna().Show(menu);
    s_.AktivniForm = menu.weak_from_this();
    stroj.Okna().Hide(*this);
    stroj.Okna().Unload(*this);
}

}  // namespace rysovna
