#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Smycka.h"

namespace rysovna {

/// The machine without a machine: a virtual clock that moves only while the loop is turned, events
/// from a script, message boxes answered by the script, sounds and screen modes recorded. Every run
/// of a script is the same. Input goes to Okna() directly, or through Naplanuj at a time; whoever
/// gives it goes on when what it began is done, waits and all: the loop is turned until then, which
/// may be inside of another turn.
class HeadlessHost final : public Host, public Smycka {
public:
    /// A message box that was shown, and what was answered.
    struct Zprava {
        std::string Text, Titul;
        Styl Druh = Styl::Ok;
        Odpoved Odpovezeno = Odpoved::Ok;
        friend bool operator==(const Zprava&, const Zprava&) = default;
    };
    /// A sound that was started, as the program spelt its path.
    struct Zvuk {
        std::uint32_t Cas = 0;
        std::string Cesta;
    };

    HeadlessHost();
    ~HeadlessHost() override;

    [[nodiscard]] std::uint32_t TickCount() override { return cas_; }
    /// Paints nothing: counts, and calls PriPrekresleni.
    void Prekresli() override;
    Cinnost<Odpoved> MsgBox(std::string text, std::string titul, Styl styl) override;
    void SndPlaySound(std::string_view cesta) override;
    [[nodiscard]] RezimObrazovky GetDeviceCaps() override { return Rezim; }
    /// Records the mode; when VysledekRezimu is 0 it becomes the present one.
    int ChangeDisplaySettings(const RezimObrazovky& rezim) override;
    [[nodiscard]] std::string WindowsDirectory() override { return SlozkaSystemu; }
    [[nodiscard]] std::filesystem::path SlozkaStavu() override { return SlozkaUctu("stav"); }
    [[nodiscard]] std::filesystem::path SlozkaDat() override { return SlozkaUctu("ucet"); }
    [[nodiscard]] std::filesystem::path SlozkaDokumentu() override {
        return SlozkaUctu("dokumenty");
    }
    void UkazDokument(const std::filesystem::path& soubor) override { Dokumenty.push_back(soubor); }
    [[nodiscard]] std::string OverObrazovku() override { return Overeni(NeniObrazovka); }
    [[nodiscard]] std::string OverZvuk() override { return Overeni(NeniZvuk); }
    [[nodiscard]] std::uint32_t Seminko() override { return SeminkoHry++; }
    void VychoziSeminko(std::uint32_t seminko) override { SeminkoHry = seminko; }
    [[nodiscard]] DatumACas Nyni() override { return Cas; }
    [[nodiscard]] std::string SchrankaText() override { return Schranka; }
    void DoSchranky(const std::string& text) override { Schranka = text; }

    // The script.

    /// Lets the program run for so many milliseconds, and on until all that began meanwhile is
    /// done.
    void Cekej(std::uint32_t ms);
    /// Moves the clock alone: nothing happens meanwhile, what falls due comes with the next turn.
    void PosunHodiny(std::uint32_t ms) { cas_ += ms; }
    /// Does something (mostly an input call of Okna()) when the clock has reached cas (tick count)
    /// and the program lets events through. Same time: in the order of planning.
    void Naplanuj(std::uint32_t cas, std::function<void()> co);
    /// The same, ms from now.
    void NaplanujZa(std::uint32_t ms, std::function<void()> co) {
        Naplanuj(cas_ + ms, std::move(co));
    }
    /// How many planned things are still to come.
    [[nodiscard]] std::size_t Naplanovano() const { return scenar_.size(); }
    /// The answer to the next message box that has none yet. With no answer waiting an Ok box gets
    /// Ok, a question gets Ne.
    void PridejOdpoved(Odpoved odpoved) { odpovedi_.push_back(odpoved); }
    /// Presses and releases the left button at a place of the design area.
    void Stiskni(double x, double y);
    /// Writes the window's present picture, 640 * meritko by 480 * meritko pixels, as a PNG.
    /// A file that cannot be written is a run-time fault.
    void Snimek(const std::string& soubor, double meritko = 1);

    std::vector<Zprava> Zpravy;                    ///< shown so far
    std::vector<Zvuk> Zvuky;                       ///< started so far
    std::vector<RezimObrazovky> Rezimy;            ///< asked for so far
    std::vector<std::filesystem::path> Dokumenty;  ///< that the system was to show
    int VysledekRezimu = 0;                        ///< what a switch of the mode answers
    RezimObrazovky Rezim{1024, 768, 32};           ///< present mode
    /// The folder of Rysovna.ini; those of the account are "stav", "ucet", "dokumenty" in it.
    std::string SlozkaSystemu;
    std::uint32_t SeminkoHry = 1;  ///< the next one; each call counts it up
    DatumACas Cas;
    std::string Schranka;
    /// Message boxes are run as the window runs them: a form that the script must answer by keys
    /// or presses. A box that no planned event ever answers is a fault.
    bool SkutecneZpravy = false;
    /// What the looks at screen and sound find fault with; empty: nothing.
    std::string NeniObrazovka, NeniZvuk;
    /// Called when the clock moves: to let other processes run in the meantime.
    std::function<void(std::uint32_t)> PriSpanku;
    std::uint64_t Prekresleni = 0;         ///< how many times Prekresli was called
    std::function<void()> PriPrekresleni;  ///< to look at the frames of an animation

private:
    bool Prijmi() override;
    void Ukaz() override {}
    void Vyckej(std::uint32_t nejvyseMs) override;
    [[nodiscard]] std::filesystem::path SlozkaUctu(const char* jmeno) const;
    [[nodiscard]] static std::string Overeni(const std::string& neni);

    std::uint32_t cas_ = 0;
    std::uint32_t modalne_ = 0;  ///< how long a modal form has stood with nothing planned, ms
    std::multimap<std::uint32_t, std::function<void()>> scenar_;
    std::deque<Odpoved> odpovedi_;
};

}  // namespace rysovna
