// The host of the window on a display without a window manager, fed by the library's own queue of
// events: what comes in one batch must not get lost.

#include "platform/sdl/SdlHost.h"

#include <SDL.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

#include "platform/Form.h"
#include "platform/Obrazovky.h"
#include "platform/Surface.h"
#include "platform/sdl/Okno.h"
#include "rules/Misc.h"
#include "screens/SelectForm.h"
#include "screens/Start.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;
using Hodiny = std::chrono::steady_clock;

constexpr int STRED_X = 320, STRED_Y = 240;
constexpr std::uint32_t DLOUHO = 3000;  // ms, that nothing here may take

long long Ms(Hodiny::time_point od) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Hodiny::now() - od).count();
}

SDL_Event Tlacitko(bool dolu, int x = STRED_X, int y = STRED_Y) {
    SDL_Event e{};
    e.type = dolu ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
    e.button.timestamp = SDL_GetTicks();
    e.button.button = SDL_BUTTON_LEFT;
    e.button.state = dolu ? SDL_PRESSED : SDL_RELEASED;
    e.button.x = x;
    e.button.y = y;
    return e;
}
SDL_Event Zamereni() {
    SDL_Event e{};
    e.type = SDL_WINDOWEVENT;
    e.window.event = SDL_WINDOWEVENT_FOCUS_GAINED;
    return e;
}
SDL_Event Pohyb() {
    SDL_Event e{};
    e.type = SDL_MOUSEMOTION;
    e.motion.x = STRED_X;
    e.motion.y = STRED_Y;
    return e;
}
SDL_Event Klavesa(SDL_Keycode kod, bool opakovana = false) {
    SDL_Event e{};
    e.type = SDL_KEYDOWN;
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
    SDL_Event e{};
    e.type = SDL_TEXTINPUT;
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

class NaOkne : public testing::Test, public SmiCekat {
protected:
    NaOkne() {
        const std::string staging = std::getenv("RYSOVNA_STAGING");
        NastavSlozkuPisem(staging + "/assets/Fonts");
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
};

/// The move is taken alone, the press and the release come after it in one batch, and then nothing
/// more: no window manager, no focus, no caret that blinks.
TEST_F(NaOkne, CoCekaNaStiskNecekaAzNaDalsiUdalost) {
    ASSERT_EQ(Host_.ChangeDisplaySettings({640, 480, 16}), 0);
    const auto form = Host_.Okna().Nacti<PocitadloForm>();
    Host_.Okna().Show(*form);
    Ustal();
    const std::vector<SDL_Event> klik = {Tlacitko(true), Tlacitko(false)};
    std::vector<SDL_Event> seZamerenim = klik;
    seZamerenim.insert(seZamerenim.begin(), Zamereni());
    int kliku = 0;
    for (const auto& davka : {klik, seZamerenim, klik}) {
        Davka(davka);
        const auto zacatek = Hodiny::now();
        Host_.Obrat(DLOUHO);
        EXPECT_LT(Ms(zacatek), DLOUHO / 2) << "batch " << kliku;
        EXPECT_EQ(form->Kliku, ++kliku);
        SDL_Delay(600);  // no double click
    }
}

/// A click on the title: ms from its showing, a move just ahead of it, in one batch with the focus.
struct KlikNaTitul {
    std::uint32_t Kdy;
    bool Pohyb, Zamereni;
};

class Titul : public NaOkne, public testing::WithParamInterface<KlikNaTitul> {
protected:
    Titul() {
        const std::string staging = std::getenv("RYSOVNA_STAGING");
        fs::create_directories(Nastaveni_ / "rysovna");
        std::ofstream(Nastaveni_ / "rysovna" / "Rysovna.ini")
            << "[RYSOVNA1]\r\nCD=" << staging << "/assets\r\nHD=" << staging << "/data\r\n";
        for (const char* slozka : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME"})
            setenv(slozka, Nastaveni_.c_str(), 1);
    }
    ~Titul() override { fs::remove_all(Nastaveni_); }

    Sezeni Hra_{Host_, {}};
    fs::path Nastaveni_ = fs::temp_directory_path() / ("rysovna_" + std::to_string(getpid()));
};

TEST_P(Titul, SkonciPoKratkemKliku) {
    Zacni(Hra_);
    Host_.Dobehni();
    ASSERT_EQ(Host_.Okna().Vpredu()->Jmeno(), "IntroForm");
    const auto zacatek = Hodiny::now();
    // From another thread, while the program waits.
    std::vector<SDL_Event> klik = {Tlacitko(true), Tlacitko(false)};
    if (GetParam().Zamereni) klik.insert(klik.begin(), Zamereni());
    if (GetParam().Pohyb) klik.insert(klik.begin(), Pohyb());
    const SDL_TimerID casovac = SDL_AddTimer(
        std::max(GetParam().Kdy, 1U),
        [](Uint32, void* data) -> Uint32 {
            for (SDL_Event& e : *static_cast<std::vector<SDL_Event>*>(data)) SDL_PushEvent(&e);
            return 0;
        },
        &klik);
    while (Host_.Okna().Vpredu()->Jmeno() == "IntroForm") Host_.Obrat(100);
    SDL_RemoveTimer(casovac);
    EXPECT_LT(Ms(zacatek), std::max(GetParam().Kdy, 1000U) + 4000) << "ten seconds by itself";
    EXPECT_EQ(Host_.Okna().Vpredu()->Jmeno(), "SelectForm");
}

INSTANTIATE_TEST_SUITE_P(KlikyNaTitul, Titul,
                         testing::Values(KlikNaTitul{0, false, false}, KlikNaTitul{300, true, true},
                                         KlikNaTitul{1300, true, false},
                                         KlikNaTitul{1700, true, true},
                                         KlikNaTitul{1700, false, false}));

/// What is pressed in a closed wait is lost, what is typed is not, and the wait keeps its time.
TEST_F(NaOkne, ZavreneCekaniBereVstupZaBehu) {
    ASSERT_EQ(Host_.ChangeDisplaySettings({640, 480, 16}), 0);
    const auto form = Host_.Okna().Nacti<PocitadloForm>();
    Host_.Okna().Show(*form);
    form->SetFocus(form->Pole);
    Ustal();
    const auto zacatek = Hodiny::now();
    Host_.Proved(Zavrene());
    EXPECT_GE(Ms(zacatek), 150);   // it slept: clocks may round
    EXPECT_LT(Ms(zacatek), 5000);  // it came back at all: the machine may be busy
    EXPECT_EQ(std::to_string(form->Stisku) + form->Pole.Text, "0");
    Davka({Tlacitko(false), Tlacitko(true, 100, 100), Tlacitko(false, 100, 100)});
    Ustal();
    EXPECT_EQ(form->Klavesy, "");
    EXPECT_EQ(form->Pole.Text, "x");
    EXPECT_EQ(form->Stisku, 1);
    EXPECT_EQ(form->Kliku, 1);
}

/// Held keys repeat where they edit a text, else only arrows do; digits go by their place.
TEST_F(NaOkne, KlavesySeOpakujiJenSipkamAPsani) {
    ASSERT_EQ(Host_.ChangeDisplaySettings({640, 480, 16}), 0);
    const auto form = Host_.Okna().Nacti<PocitadloForm>();
    Host_.Okna().Show(*form);
    Ustal();
    const auto stiskni = [&] {
        for (const SDL_Keycode kod : {SDLK_SPACE, SDLK_RETURN, SDLK_TAB, SDLK_a, SDLK_UP, SDLK_F1})
            Davka({Klavesa(kod), Klavesa(kod, true)});
        Davka({Cislice(SDL_SCANCODE_2), Cislice(SDL_SCANCODE_KP_9), Cislice(SDL_SCANCODE_0)});
        Ustal();
        return std::exchange(form->Klavesy, {});
    };
    EXPECT_EQ(stiskni(), "Space Return Tab a Up Up F1 2 9 ");
    form->SetFocus(form->Pole);
    form->Pole.Text = "xyz";
    EXPECT_EQ(stiskni(), "Return Tab Up Up F1 ") << "what the box types is its own";
    Davka({Klavesa(SDLK_END), Klavesa(SDLK_BACKSPACE), Klavesa(SDLK_BACKSPACE, true)});
    Ustal();
    EXPECT_EQ(form->Pole.Text, "x");
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
    ASSERT_EQ(Host_.ChangeDisplaySettings({640, 480, 16}), 0);
    const auto form = Host_.Okna().Nacti<PocitadloForm>();
    Host_.Okna().Show(*form);
    Ustal();
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
        form->Stisku = 0;
        Davka({Tlacitko(true), Tlacitko(false)});
        Host_.Obrat(0);
        return form->Stisku;
    };
    EXPECT_EQ(dvakrat(true), 0);
    SDL_Delay(600);
    Ustal();
    EXPECT_EQ(dvakrat(false), 1);
}

}  // namespace
}  // namespace rysovna::testy
