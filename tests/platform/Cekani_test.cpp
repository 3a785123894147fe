// The order in which handlers that wait go on.

#include <algorithm>
#include <sstream>

#include "base/Chyba.h"
#include "platform/PlatformTest.h"

namespace rysovna::testy {
namespace {

/// A form whose button 1 to 4 runs handler A to D, and its timer handler T. What each does is told
/// in words: "50" waits so many ms, "z50" does so closed, "box" asks a question, "pryc" unloads the
/// form, "konec" ends the process, "chyba" is a fault. Written down: "A0" when A begins at 0 ms,
/// "A50" when it goes on at 50 ms, "A-" when what it holds goes, "form-" when the form goes.
class CekajiciForm final : public Form {
public:
    using Deje = std::map<char, std::string>;

    CekajiciForm(Host& host, Deje deje, std::string& zapis)
        : host_(host), deje_(std::move(deje)), zapis_(zapis) {}
    ~CekajiciForm() override { zapis_ += "form- "; }
    CekajiciForm(const CekajiciForm&) = delete;
    CekajiciForm& operator=(const CekajiciForm&) = delete;

    std::string_view Jmeno() const override { return "CekajiciForm"; }
    void Load() override {
        PridejPole(cmd, "cmd", {0, 0, 50, 20});
        for (PictureBox& c : cmd) c.Top = 100 * c.Index;
        Pridej(Hodiny, "Hodiny", {});
        Hodiny.Interval = 60;
        Hodiny.Enabled = deje_.contains('T');
        zacatek_ = host_.TickCount();
    }
    Cinnost<> MouseDown(Ovladac* o, const Mys& /*m*/) override {
        return o != nullptr ? Proved(static_cast<char>('A' + o->Index - 1)) : Cinnost<>();
    }
    Cinnost<> TimerTick(Timer& /*t*/) override { return Proved('T'); }

    std::array<PictureBox, 4> cmd;
    Timer Hodiny;

private:
    void Zapis(char kdo) { zapis_ += kdo + std::to_string(host_.TickCount() - zacatek_) + " "; }
    Cinnost<> Proved(char kdo) {
        struct Drzene {
            char Kdo;
            std::string& Zapis;
            ~Drzene() { Zapis += std::string{Kdo} + "- "; }
        };
        Zapis(kdo);
        const Drzene drzene{kdo, zapis_};
        std::istringstream kroky(deje_.at(kdo));
        for (std::string krok; kroky >> krok;) {
            if (krok == "pryc") {
                host_.Okna().Unload(*this);
            } else if (krok == "konec") {
                host_.Okna().Konec();
            } else if (krok == "chyba") {
                Selhani("chyba");
            } else {
                co_await Pockej(krok);
                Zapis(kdo);
            }
        }
    }
    Cinnost<> Pockej(std::string jak) {
        if (jak == "box") {
            co_await host_.MsgBox("Text", "Titul", Styl::OtazkaAnoNe);
        } else if (jak[0] == 'z') {
            const Obrazovky::Zavreni zavreni(host_.Okna());
            co_await Cekani::SVstupem(static_cast<std::uint32_t>(std::stoi(jak.substr(1))));
        } else {
            co_await Cekani(static_cast<std::uint32_t>(std::stoi(jak)));
        }
    }

    Host& host_;
    Deje deje_;
    std::string& zapis_;
    std::uint32_t zacatek_ = 0;
};

/// What each handler does, "A 50 20, T pryc"; what happens from outside, and when: a button, a key,
/// the end of the form or of the process, "0 A, 20 pryc"; what is written down.
struct PripadCekani {
    std::string_view Jmeno, Deje, Udalosti, Zapis;
    bool Chyba = false;
};

/// Each part of "A 50 20, B box" as its first word and the rest.
template <class F>
void Casti(std::string_view vse, F&& f) {
    std::istringstream proud{std::string(vse)};
    for (std::string cast; std::getline(proud >> std::ws, cast, ',');) {
        const std::size_t mezera = std::min(cast.find(' '), cast.size());
        f(cast.substr(0, mezera), cast.substr(std::min(mezera + 1, cast.size())));
    }
}

class CekaniTest : public NaStroji {
protected:
    void Udalost(CekajiciForm& form, std::string_view co) {
        if (co == "pryc") return Okna().Unload(form);
        if (co == "konec") return Okna().Konec();
        if (co.size() > 1) return Okna().Klavesa(co, 0);
        Host_.Stiskni(10, 100 * (co[0] - 'A' + 1) + 5);
    }
    std::string Odehraj(const PripadCekani& p) {
        std::string zapis;
        Host_.PosunHodiny(1000);
        CekajiciForm::Deje deje;
        Casti(p.Deje, [&](const std::string& kdo, const std::string& co) { deje[kdo[0]] = co; });
        auto form = Okna().Nacti<CekajiciForm>(Host_, deje, zapis);
        CekajiciForm* f = form.get();
        Okna().Show(*form);
        form.reset();
        Casti(p.Udalosti, [&](const std::string& kdy, const std::string& co) {
            Host_.NaplanujZa(static_cast<std::uint32_t>(std::stoi(kdy)),
                             [this, f, co] { Udalost(*f, co); });
        });
        const std::uint32_t konec = Host_.TickCount() + 600;
        bool chyba = false;
        try {
            while (Host_.TickCount() < konec && !Okna().JeKonec())
                Host_.Obrat(konec - Host_.TickCount());
        } catch (const BehovaChyba&) {
            chyba = true;
        }
        EXPECT_EQ(chyba, p.Chyba);
        EXPECT_FALSE(Okna().JeZavreno());
        zapis += "| ";
        Okna().UnloadVse();
        return zapis;
    }
};

TEST_F(CekaniTest, PokracujeJenTenKdoZacalPosledni) {
    Host_.SkutecneZpravy = true;
    const PripadCekani PRIPADY[] = {
        {"the one below waits for the one above", "A 50, B 100", "0 A, 10 B",
         "A0 B10 B110 B- A110 A- | form- "},
        {"also through its later waits, and three deep", "A 50 20, B 30 100, C 5 5",
         "0 A, 10 B, 60 C", "A0 B10 B40 C60 C65 C70 C- B140 B- A140 A160 A- | form- "},
        {"the same handler again", "A 50", "0 A, 30 A", "A0 A30 A80 A- A80 A- | form- "},
        {"a message box in a wait holds it up until it is answered", "A 50, B box 10",
         "0 A, 10 B, 20 C, 200 Escape", "A0 B10 B200 B210 B- A210 A- | form- "},
        {"a timer's handler is one as others, and entered anew when it is done", "A 30, T 100",
         "50 A, 165 pryc", "A50 T60 T160 T- A160 A- T160 T- form- | "},
        {"a timer goes by its interval", "T", "130 pryc", "T60 T- T120 T- form- | "},
        {"unloaded by its own timer, by its own button", "A 200, T pryc", "0 A",
         "A0 T60 T- A- form- | "},
        {"", "A 200, B pryc 10", "0 A, 10 B", "A0 B10 B- A- form- | "},
        {"unloaded in a wait it is ended when that would have ended", "A 50 50, B 100",
         "0 A, 10 B, 20 pryc", "A0 B10 B- A- form- | "},
        {"and does what comes before its next wait", "A 10 pryc 50 10", "0 A",
         "A0 A10 A- form- | "},
        {"unloaded behind its message box", "A box 10", "0 A, 10 pryc, 90 Escape",
         "A0 A- form- | "},
        {"a closed wait: no press, no timer, the key later", "A 40 z100 40, B 1, T",
         "0 A, 55 B, 139 B, 150 B, 175 pryc", "A0 A40 A140 T140 T- B150 B151 B- A- form- | "},
        {"the end of the process ends all waits, the last one first", "A 50 50, B box, C 200",
         "0 A, 10 B, 30 konec", "A0 B10 B- A- | form- "},
        {"also from a handler", "A 50 50, B 10 konec 100", "0 A, 10 B",
         "A0 B10 B20 B- A- | form- "},
        {"a fault before a wait", "A chyba 10", "0 A", "A0 A- | form- ", true},
        {"a fault after one, those below end with it", "A 50, B 20 chyba", "0 A, 10 B",
         "A0 B10 B30 B- A- | form- ", true},
        {"a fault after a message box and after a closed wait", "A box z10 chyba", "0 A, 5 Escape",
         "A0 A5 A15 A- | form- ", true},
    };
    for (const PripadCekani& p : PRIPADY) EXPECT_EQ(Odehraj(p), p.Zapis) << p.Jmeno;
}

}  // namespace
}  // namespace rysovna::testy
