#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "base/Bod.h"
#include "hrac/Beh.h"
#include "platform/Obrazovky.h"
#include "screens/Desky.h"
#include "zak/Los.h"

namespace rysovna::hrac {

/// A run that is played as a pupil plays, by names of controls, through the same events. What a
/// person could not do (press what is hidden, on a screen that is not in front) throws NejdeUdelat.
class Relace : public Beh {
public:
    /// What the player plays with: by keys, whatever it presses or drags is reached by the ring,
    /// and what has no place in that round cannot be done.
    /// By a finger, nothing is met exactly, and a drag is ended by the pad.
    enum class Cim { Mysi, Klavesami, Prstem };

    /// seminko: of the generator of examples, and of how a finger errs. vyrobce: what makes the
    /// boards.
    explicit Relace(std::uint32_t seminko = 1, Cim cim = Cim::Mysi,
                    VyrobceDesek vyrobce = VyrobDesku);

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

    Cim cim_;
    Los los_;         ///< how a finger errs
    int stisku_ = 0;  ///< presses by keys so far: they take turns at the ways there are
    std::ostream* zaznam_ = nullptr;
    std::uint32_t zapsano_ = 0;  ///< the time of the last event that was written down
    std::function<void(std::string_view)> po_;
};

}  // namespace rysovna::hrac
