#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Bod.h"
#include "platform/Form.h"
#include "platform/Obrazovky.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/Desky.h"
#include "screens/Sezeni.h"
#include "zak/Los.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// One run of the program on the headless host, with a data root of its own that goes with it:
/// plays as a pupil does, by names of controls, through the same events. What a person could not do
/// (press what is hidden, on a screen that is not in front) throws NejdeUdelat.
class Relace {
public:
    /// What the player plays with: by keys, whatever it presses or drags is reached by the ring,
    /// and what has no place in that round cannot be done.
    /// By a finger, nothing is met exactly, and a drag is ended by the pad.
    enum class Cim { Mysi, Klavesami, Prstem };

    /// The data root is a copy of the staged one, with no results in it. seminko: of the generator
    /// of examples. vyrobce: what makes the boards.
    explicit Relace(std::uint32_t seminko = 1, Cim cim = Cim::Mysi,
                    VyrobceDesek vyrobce = VyrobDesku);
    ~Relace();
    Relace(const Relace&) = delete;
    Relace& operator=(const Relace&) = delete;

    [[nodiscard]] HeadlessHost& Host() { return host_; }
    /// The session that is played.
    [[nodiscard]] Sezeni& Pamet() { return sezeni_; }

    [[nodiscard]] Cim Hraje() const { return cim_; }

    /// The start-up and a press on the title: up to the menu.
    void Start();
    /// The start-up alone: the title is up.
    void StartDoTitulu();
    /// The press on the title, and the wait for the menu.
    void PreskocTitul();
    /// The menu, a task of it, name and number of examples, and the press that starts the board.
    /// Call after Start().
    void SpustUlohu(int cisloUlohy, std::string_view jmeno = "Žák", int priklady = 1);

    /// The screen in front; null if none is visible.
    [[nodiscard]] Form* Vpredu();
    /// Its name; empty if there is none.
    [[nodiscard]] std::string JmenoVpredu();
    /// The loaded screen of this name; null if there is none.
    [[nodiscard]] Form* Najdi(std::string_view form);
    /// A control of the screen in front.
    [[nodiscard]] Ovladac& Prvek(std::string_view jmeno, int index = 0);
    /// The top left corner of such a control, design pixels.
    [[nodiscard]] Bod Roh(const Ovladac& prvek);
    /// A control as what it is: Prvek<Image>("LI", 1).Picture.
    template <class T>
    [[nodiscard]] T& Prvek(std::string_view jmeno, int index = 0) {
        auto* prvek = dynamic_cast<T*>(&Prvek(jmeno, index));
        if (prvek == nullptr) throw NejdeUdelat("jiný druh: " + std::string(jmeno));
        return *prvek;
    }

    /// The pointer comes to a control and the left button is pressed and released there. dx, dy:
    /// pixels of the control; negative: its middle.
    void Stiskni(std::string_view jmeno, int index = 0, int dx = -1, int dy = -1);
    /// The same at a place of the design area.
    void StiskniMisto(double x, double y);
    /// A press in a control, a move in a few steps, a release. Places are pixels of the control and
    /// may lie outside it.
    void Tahni(std::string_view jmeno, Bod odkud, Bod kam, int index = 0);
    /// A press alone.
    void Zmackni(std::string_view jmeno, int index, Bod misto);
    /// The pointer moves to a control's middle; to a place of the design area.
    void Najed(std::string_view jmeno, int index = 0);
    void NajedNaMisto(double x, double y);
    /// Types text into whatever has the keyboard.
    void Napis(std::string_view text);
    /// Makes a text box hold the text: presses it, marks all of it, types.
    void Prepis(std::string_view jmeno, std::string_view text);
    /// A key by its name ("Return", "Escape", "BackSpace"); shift: SHIFT, CTRL.
    void Klavesa(std::string_view klavesa, int shift = 0);
    /// Goes round the screen in front by Tab until the ring is on a control.
    void NaZastavku(std::string_view jmeno, int index = 0);
    /// Lets the program run: the virtual clock moves by so many milliseconds.
    void Cekej(std::uint32_t ms);

    /// From now on writes down what the player does, an event a line: "mys X Y" (design px),
    /// "dolu", "nahoru", "text Ž", "klavesa Return 0", and "cekej MS" before what came so much
    /// later. The real window can be driven by it. The stream must live as long as the session.
    void Zaznamenavej(std::ostream& kam) { zaznam_ = &kam; }
    /// From now on is called after each of these events, and each wait, was carried out.
    void Sleduj(std::function<void(std::string_view udalost)> po) { po_ = std::move(po); }
    /// A line of one's own among the events.
    void Poznamenej(const std::string& co) { Zapis(co); }

    /// The data root of this run.
    [[nodiscard]] const std::filesystem::path& DataDir() const { return data_; }
    /// A file of the data root, byte for byte.
    [[nodiscard]] std::string CtiSoubor(const std::string& soubor) const;
    void PisSoubor(const std::string& soubor, std::string_view obsah) const;
    /// The sounds since the last call, file names alone ("click.wav").
    std::vector<std::string> NoveZvuky();

private:
    void Pohyb(double x, double y, int tlacitka);
    void Stisk(double x, double y, bool dolu);
    void Zapis(const std::string& udalost);
    void Po(std::string_view udalost) const {
        if (po_) po_(udalost);
    }
    // RelaceKlavesami.cpp
    void StiskniKlavesami(std::string_view jmeno, int index, int dx, int dy);
    void TahniKlavesami(std::string_view jmeno, Bod odkud, Bod kam);
    void KrizNa(Bod kam);
    void SipkyNa(Bod kam);
    [[nodiscard]] Obrazovky::Prsten Ring();
    // RelacePrstem.cpp
    void Rozmysli();
    void Klepni(Bod kam);
    void TahniPrstem(Bod odkud, Bod kam);
    void DotahniPodlozkou(Bod kam);
    void Prst(std::string_view co, Bod kde);

    HeadlessHost host_;
    Sezeni sezeni_;
    Cim cim_;
    Los los_;         ///< how a finger errs
    int stisku_ = 0;  ///< presses by keys so far: they take turns at the ways there are
    std::filesystem::path koren_, data_;
    std::size_t slysenych_ = 0;
    std::ostream* zaznam_ = nullptr;
    std::uint32_t zapsano_ = 0;  ///< the time of the last event that was written down
    std::function<void(std::string_view)> po_;
};

}  // namespace rysovna::hrac
