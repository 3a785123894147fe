#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/Form.h"

// The keys. What can be pressed are stops, told by Ovladac::Zastavka; one of them has the ring, and
// the keys go to it:
//
//   Tab, Shift+Tab   round the live stops in the order of their numbers (of an array by index)
//   arrows           to the nearest stop that way, among those that stand in the same box
//   blank, Return    press it, by the same calls as the mouse and as part of no double click
//   F1               presses the form's help
//
// A text box keeps what it can type and what moves its caret; a form takes what it wants before the
// ring (Klavesa) and for the object that has it (KlavesaNa). The ring is shown from the first key
// that goes to it until the mouse is pressed or moved; where it was not shown before and no text
// box had the keyboard, that key shows it and does nothing more: nothing unseen is pressed. Hidden,
// it goes to what the mouse presses.

namespace rysovna {

/// The object takes the ring now.
[[nodiscard]] bool JeZivaZastavka(const Ovladac& o);
/// The live stops of a form in the order of their round.
[[nodiscard]] std::vector<Ovladac*> Zastavky(const Form& form);
/// The stop that has the ring of the form, shown or not; null if nothing on it is live.
[[nodiscard]] Ovladac* MistoPrstenu(Form& form);
/// The step of an arrow, one pixel; none for another key.
[[nodiscard]] std::optional<Bod> SmerSipky(std::string_view klavesa);
/// With Ctrl a key is the desktop's or the browser's, but for these: what edits a text, arrows, and
/// the command that forms have.
[[nodiscard]] bool PlatiSCtrl(std::string_view klavesa);
/// A letter or a digit: a key of one character.
[[nodiscard]] inline bool JeZnak(std::string_view klavesa) {
    return klavesa.size() == 1;
}

}  // namespace rysovna
