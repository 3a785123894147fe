#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "platform/Form.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "platform/headless/HeadlessHost.h"

namespace rysovna::testy {

/// The staged copy: told by the build or the environment, else looked for above the folder that
/// the test runs in.
inline std::filesystem::path Staging() {
    namespace fs = std::filesystem;
    if (const char* cesta = std::getenv("RYSOVNA_STAGING")) return cesta;
    fs::path p = fs::current_path();
    while (p != p.root_path() && !fs::exists(p / "staging" / "assets" / "Fonts"))
        p = p.parent_path();
    return p / "staging";
}

/// A host and the fonts, new for each case.
class NaStroji : public testing::Test, public SmiCekat {
protected:
    NaStroji() { NastavSlozkuPisem((Staging() / "assets" / "Fonts").string()); }
    ~NaStroji() override {
        Host_.Okna().UnloadVse();
        for (const std::string& s : Docasne_) std::filesystem::remove(s);
    }

    Obrazovky& Okna() { return Host_.Okna(); }
    /// Plays words: "+text" types, "S-Left" holds Shift, "C-a" Ctrl, "^Space" lets a key go, other
    /// words are keys; "d5,7:2" presses the second button (the first if none is told) at a place,
    /// "n" releases, "p" moves with it held, "s" presses and releases a second after what was
    /// before; "@50" moves the clock.
    void Hraj(const std::vector<std::string>& slova) {
        for (const std::string& s : slova) {
            const char co = s[0];
            const bool shift = s.starts_with("S-"), ctrl = s.starts_with("C-");
            double x = 0, y = 0;
            int tlacitko = co == 'p' ? 0 : 1;
            if (s.size() > 1 && std::sscanf(s.c_str() + 1, "%lf,%lf:%d", &x, &y, &tlacitko) > 1) {
                if (co == 's') Host_.PosunHodiny(1000);
                if (co == 'd' || co == 's') Okna().MysDolu(x, y, tlacitko, 0);
                if (co == 'p') Okna().MysPohyb(x, y, tlacitko, 0);
                if (co == 'n' || co == 's') Okna().MysNahoru(x, y, tlacitko, 0);
            } else if (co == '+') {
                Okna().Text(s.substr(1));
            } else if (co == '@') {
                Host_.PosunHodiny(static_cast<std::uint32_t>(std::stoi(s.substr(1))));
            } else if (co == '^') {
                Okna().KlavesaNahoru(s.substr(1));
            } else {
                Okna().Klavesa(s.substr(shift || ctrl ? 2 : 0), shift + 2 * ctrl);
            }
        }
    }
    /// A file of this content that goes with the test.
    std::string Soubor(const std::string& jmeno, const std::string& obsah) {
        Docasne_.push_back(testing::TempDir() + std::to_string(::getpid()) + jmeno);
        std::ofstream(Docasne_.back(), std::ios::binary) << obsah;
        return Docasne_.back();
    }

    // What handlers that wait give back.
    Cinnost<> Cekej(std::uint32_t ms) { co_await Cekani(ms); }
    Cinnost<> Zeptej(std::string text, Odpoved ceka) {
        Cinnost<Odpoved> otazka = Host_.MsgBox(text, "Konec", Styl::OtazkaAnoNe);
        const Odpoved dana = co_await otazka;
        EXPECT_EQ(dana, ceka);
    }
    Cinnost<> Zavrene(int kolikrat, std::uint32_t ms) {
        const Obrazovky::Zavreni zavreni(Okna());
        for (int i = 0; i < kolikrat; ++i) co_await Cekani::SVstupem(ms);
        co_await Cekani::SVstupem(0);
    }

    std::vector<std::string> Docasne_;
    HeadlessHost Host_;
};

/// A form of a few objects that writes down what reaches it: "Down Pic 5,6".
class ZapisForm : public Form {
public:
    explicit ZapisForm(Host& host) : host_(host) {}
    std::string_view Jmeno() const override { return "ZapisForm"; }
    void Load() override {
        Pridej(Pic, "Pic", {100, 50, 200, 150});
        Pridej(Uvnitr, "Uvnitr", {20, 30, 40, 40}, &Pic);
        Pridej(Guma, "Guma", {0, 0, 200, 150}, &Pic);
        Guma.Visible = true;
        Pridej(Pole, "Pole", {100, 300, 150, 20});
        Pridej(Hodiny, "Hodiny", {});
        PridejPole(cmd, "cmd", {400, 100, 50, 20});
        cmd[1].Top = 140;
    }
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override {
        Zapis("Down", o, &m);
        const auto co = PriStisku;  // a copy: what it does may put another one in its place
        return co ? co() : Cinnost<>();
    }
    void MouseMove(Ovladac* o, const Mys& m) override { Zapis("Move", o, &m); }
    Cinnost<> MouseUp(Ovladac* o, const Mys& m) override {
        Zapis("Up", o, &m);
        return {};
    }
    Cinnost<> Click(Ovladac* o) override {
        Zapis("Click", o);
        return {};
    }
    void Change(TextBox& t) override { Udalosti.push_back("Change " + t.Text); }
    void Activate() override {
        Udalosti.push_back("Activate");
        if (PriAktivaci) PriAktivaci();
    }
    Cinnost<> QueryUnload() override {
        Udalosti.push_back("QueryUnload");
        return {};
    }
    Cinnost<> TimerTick(Timer& /*t*/) override {
        Udalosti.push_back("Tick " + std::to_string(host_.TickCount()));
        return {};
    }
    Odezva Klavesa(std::string_view k, int /*shift*/) override {
        if (!BereKlavesy) return std::nullopt;
        Udalosti.push_back("Klavesa " + std::string(k));
        return Cinnost<>();
    }

    /// What was written down since the last call.
    std::vector<std::string> Vezmi() { return std::exchange(Udalosti, {}); }

    PictureBox Pic;
    Label Uvnitr;
    CircleShape Guma;
    TextBox Pole;
    bool BereKlavesy = true;  ///< false: keys go to the ring
    Timer Hodiny;
    std::array<PictureBox, 2> cmd;
    std::vector<std::string> Udalosti;
    std::function<Cinnost<>()> PriStisku;
    std::function<void()> PriAktivaci;

private:
    Host& host_;
    void Zapis(const char* co, const Ovladac* o, const Mys* m = nullptr) {
        const auto cislo = [](double x) { return std::to_string(static_cast<int>(x)); };
        std::string radek = std::string(co) + " " + (o == nullptr ? "form" : o->Name);
        if (o != nullptr && o->Index != 0) radek += "(" + cislo(o->Index) + ")";
        if (m != nullptr) radek += " " + cislo(m->X) + "," + cislo(m->Y);
        Udalosti.push_back(radek);
    }
};

using Seznam_t = std::vector<std::string>;

/// Such a form in front.
class NaFormu : public NaStroji {
protected:
    NaFormu() : Form_(Okna().Nacti<ZapisForm>(Host_)) {
        Okna().Show(*Form_);
        Form_->Vezmi();
    }
    /// What the form gets of words that are played.
    Seznam_t Po(const Seznam_t& slova) {
        Hraj(slova);
        return Form_->Vezmi();
    }
    std::shared_ptr<ZapisForm> Form_;
};

}  // namespace rysovna::testy
