// The host of the window on a display without a window manager, fed by the library's own queue of
// events: what comes in one batch must not get lost.

#include "platform/sdl/SdlHost.h"

#include <SDL.h>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

#include "platform/Form.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "platform/sdl/Okno.h"

namespace rysovna::testy {
namespace {

using Hodiny = std::chrono::steady_clock;

constexpr int STRED_X = 320, STRED_Y = 240;
constexpr std::uint32_t DLOUHO = 3000;  // ms, that nothing here may take

long long Ms(Hodiny::time_point od) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Hodiny::now() - od).count();
}

SDL_Event Udalost(SDL_EventType druh) {
    SDL_Event e{};
    e.type = druh;
    return e;
}
SDL_Event Tlacitko(bool dolu, int x = STRED_X, int y = STRED_Y) {
    SDL_Event e = Udalost(dolu ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP);
    e.button.timestamp = SDL_GetTicks();
    e.button.button = SDL_BUTTON_LEFT;
    e.button.state = dolu ? SDL_PRESSED : SDL_RELEASED;
    e.button.x = x;
    e.button.y = y;
    return e;
}
SDL_Event Zamereni() {
    SDL_Event e = Udalost(SDL_WINDOWEVENT);
    e.window.event = SDL_WINDOWEVENT_FOCUS_GAINED;
    return e;
}
SDL_Event Pohyb() {
    SDL_Event e = Udalost(SDL_MOUSEMOTION);
    e.motion.x = STRED_X;
    e.motion.y = STRED_Y;
    return e;
}
SDL_Event Klavesa(SDL_Keycode kod, bool opakovana = false) {
    SDL_Event e = Udalost(SDL_KEYDOWN);
    e.key.repeat = opakovana ? 1 : 0;
    e.key.keysym.sym = kod;
    e.key.keysym.scancode = SDL_GetScancodeFromKey(kod);
    return e;
}
/// The key of a digit types a Czech letter, or nothing at all.
SDL_Event Cislice(SDL_Scancode misto) {
    SDL_Event e = Klavesa(SDLK_UNKNOWN);
    e.key.keysym.scancode = misto;
    return e;
}
SDL_Event Psano(const char* text) {
    SDL_Event e = Udalost(SDL_TEXTINPUT);
    SDL_strlcpy(e.text.text, text, sizeof e.text.text);
    return e;
}

/// All of them stand in the queue at once.
void Davka(std::vector<SDL_Event> udalosti) {
    SDL_PeepEvents(udalosti.data(), static_cast<int>(udalosti.size()), SDL_ADDEVENT, 0, 0);
}

/// Counts what reaches it.
class PocitadloForm final : public Form {
public:
    std::string_view Jmeno() const override { return "PocitadloForm"; }
    void Load() override {
        Maximised = true;
        Pridej(Pole, "Pole", {10, 10, 100, 20});
    }
    Cinnost<> MouseDown(Ovladac* /*o*/, const Mys& /*m*/) override {
        ++Stisku;
        return {};
    }
    Cinnost<> Click(Ovladac* /*o*/) override {
        ++Kliku;
        return {};
    }
    Odezva Klavesa(std::string_view klavesa, int /*shift*/) override {
        Klavesy += std::string(klavesa) + ' ';
        return Cinnost<>();
    }
    TextBox Pole;
    int Stisku = 0, Kliku = 0;
    std::string Klavesy;
};

/// A window of the size of the design with that form.
class NaOkne : public testing::Test, public SmiCekat {
protected:
    NaOkne() {
        NastavSlozkuPisem(std::string(std::getenv("RYSOVNA_STAGING")) + "/assets/Fonts");
        EXPECT_EQ(Host_.ChangeDisplaySettings({640, 480, 16}), 0);
        Form_ = Host_.Okna().Nacti<PocitadloForm>();
        Host_.Okna().Show(*Form_);
        Ustal();
    }
    ~NaOkne() override { Host_.Okna().UnloadVse(); }
    /// Paints, and takes what the window itself has to say.
    void Ustal() {
        for (int i = 0; i < 10; ++i) Host_.Obrat(20);
    }

    /// Presses, keys and a text at the beginning, another press at the end.
    Cinnost<> Zavrene() {
        const Obrazovky::Zavreni zavreni(Host_.Okna());
        Davka({Tlacitko(true), Tlacitko(false), Klavesa(SDLK_RETURN), Psano("x")});
        for (int i = 0; i < 5; ++i) co_await Cekani::SVstupem(40);
        Davka({Tlacitko(true)});
        co_await Cekani::SVstupem(0);
    }

    SdlHost Host_{1};
    std::shared_ptr<PocitadloForm> Form_;
};

/// What was in the queue before the wait, or comes from another thread in the middle of it, in one
/// batch, and then nothing more: no window manager, no focus, no caret that blinks.
TEST_F(NaOkne, CoCekaNaStiskNecekaAzNaDalsiUdalost) {
    int kliku = 0;
    for (const std::uint32_t kdy : {0U, 300U}) {
        for (std::vector<SDL_Event> davka : {std::vector<SDL_Event>{}, {Zamereni()}, {Pohyb()}}) {
            davka.insert(davka.end(), {Tlacitko(true), Tlacitko(false)});
            const auto posli = [](Uint32, void* data) -> Uint32 {
                for (SDL_Event& e : *static_cast<std::vector<SDL_Event>*>(data)) SDL_PushEvent(&e);
                return 0;
            };
            const SDL_TimerID casovac = kdy > 0 ? SDL_AddTimer(kdy, posli, &davka) : 0;
            if (kdy == 0) Davka(davka);
            const auto zacatek = Hodiny::now();
            for (++kliku; Form_->Kliku < kliku && Ms(zacatek) < DLOUHO;) Host_.Obrat(DLOUHO);
            EXPECT_EQ(Form_->Kliku, kliku);
            EXPECT_LT(Ms(zacatek), DLOUHO / 2) << "click " << kliku;
            SDL_RemoveTimer(casovac);
            SDL_Delay(600);  // no double click
        }
    }
}

/// What is pressed in a closed wait is lost, what is typed is not, and the wait keeps its time.
TEST_F(NaOkne, ZavreneCekaniBereVstupZaBehu) {
    Form_->SetFocus(Form_->Pole);
    Ustal();
    const auto zacatek = Hodiny::now();
    Host_.Proved(Zavrene());
    EXPECT_GE(Ms(zacatek), 150);   // it slept: clocks may round
    EXPECT_LT(Ms(zacatek), 5000);  // it came back at all: the machine may be busy
    EXPECT_EQ(std::to_string(Form_->Stisku) + Form_->Pole.Text, "0");
    Davka({Tlacitko(false), Tlacitko(true, 100, 100), Tlacitko(false, 100, 100)});
    Ustal();
    EXPECT_EQ(Form_->Klavesy, "");
    EXPECT_EQ(Form_->Pole.Text, "x");
    EXPECT_EQ(Form_->Stisku, 1);
    EXPECT_EQ(Form_->Kliku, 1);
}

/// Held keys repeat where they edit a text, else only arrows do; digits go by their place.
TEST_F(NaOkne, KlavesySeOpakujiJenSipkamAPsani) {
    const auto stiskni = [&] {
        for (const SDL_Keycode kod : {SDLK_SPACE, SDLK_RETURN, SDLK_TAB, SDLK_a, SDLK_UP, SDLK_F1})
            Davka({Klavesa(kod), Klavesa(kod, true)});
        Davka({Cislice(SDL_SCANCODE_2), Cislice(SDL_SCANCODE_KP_9), Cislice(SDL_SCANCODE_0)});
        Ustal();
        return std::exchange(Form_->Klavesy, {});
    };
    EXPECT_EQ(stiskni(), "Space Return Tab a Up Up F1 2 9 ");
    Form_->SetFocus(Form_->Pole);
    Form_->Pole.Text = "xyz";
    EXPECT_EQ(stiskni(), "Return Tab Up Up F1 ") << "what the box types is its own";
    Davka({Klavesa(SDLK_END), Klavesa(SDLK_BACKSPACE), Klavesa(SDLK_BACKSPACE, true)});
    Ustal();
    EXPECT_EQ(Form_->Pole.Text, "x");
}

TEST(Okno, OtevreSeJakNejvetsiSeVejde) {
    const RamOkna ram{5, 30, 7, 9};
    for (const Obdelnik& plocha :
         {Obdelnik{0, 0, 1366, 768}, {0, 27, 1920, 1053}, {1920, 0, 800, 1280}, {0, 0, 700, 530}}) {
        const Obdelnik o = MistoOkna(plocha, ram);
        EXPECT_EQ(o.Width * 3, o.Height * 4) << "whole design aspect";
        const int vlevo = o.Left - 5 - plocha.Left;
        const int nahore = o.Top - 30 - plocha.Top;
        const int vpravo = plocha.Width - (o.Left - plocha.Left) - o.Width - 7;
        const int dole = plocha.Height - (o.Top - plocha.Top) - o.Height - 9;
        EXPECT_GE(std::min({vlevo, nahore, vpravo, dole}), 0) << "all on the desktop";
        EXPECT_LT(std::min(vlevo + vpravo, nahore + dole), 4) << "no larger one would be";
    }
    EXPECT_EQ(MistoOkna({0, 0, 640, 480}, ram).Width, 640) << "never smaller than the design";
}

/// A press that was made while the program was busy may be older than the library says.
TEST_F(NaOkne, DvojklikPlatiIKdyzProgramMeziTimPracoval) {
    const auto dvakrat = [&](bool pracoval) {
        const auto nahore = Host_.Okna().Nacti<PocitadloForm>();
        Host_.Okna().Show(*nahore);
        Davka({Tlacitko(true), Tlacitko(false)});
        Host_.Obrat(0);
        Host_.Okna().Unload(*nahore);
        if (pracoval) {
            SDL_Delay(700);
        } else {
            const auto zacatek = Hodiny::now();
            while (Ms(zacatek) < 700) Host_.Obrat(20);
        }
        Form_->Stisku = 0;
        Davka({Tlacitko(true), Tlacitko(false)});
        Host_.Obrat(0);
        return Form_->Stisku;
    };
    EXPECT_EQ(dvakrat(true), 0);
    SDL_Delay(600);
    Ustal();
    EXPECT_EQ(dvakrat(false), 1);
}

}  // namespace
}  // namespace rysovna::testy
