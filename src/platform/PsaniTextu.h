#pragma once

#include <string_view>

#include "platform/Ovladace.h"

namespace rysovna {

class Host;

/// The editing of a text box: all that keys, typed text and the mouse do to it. Positions count
/// characters. Each routine that can change the text says whether it did.
class PsaniTextu {
public:
    PsaniTextu(Host& host, TextBox& t);

    /// Typed or pasted text in place of the selection; control characters are left out, what the
    /// box forbids, and what is over MaxLength. A letter and a mark behind it that have one letter
    /// in the code page of the files become that one.
    bool Napis(std::string_view utf8);
    /// A key by its name, as Obrazovky::Klavesa. vzal: whether the key means something here.
    bool Klavesa(std::string_view jmeno, int shift, bool& vzal);
    /// Whether a key edits a text or moves its caret.
    [[nodiscard]] static bool Bere(std::string_view jmeno, int shift);
    /// A press sets the caret (with Shift it selects up to there), a drag selects. x: pixels of
    /// the box.
    void Stisk(double x, bool vybirat);
    /// Selects the word at the caret, or the blanks.
    void VyberSlovo();

private:
    [[nodiscard]] int Delka() const;
    [[nodiscard]] int Slovo(int od, int smer) const;
    bool Nahrad(const std::u32string& novy);
    bool Smaz(int kam);
    void Posad(int kam, bool vybirat);
    void Ukaz();

    Host& host_;
    TextBox& t_;
};

/// Blank pixels between the edge of a text box and its text.
constexpr int OKRAJ_TEXTU = 3;

}  // namespace rysovna
