#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"
#include "platform/Obrazek.h"
#include "platform/Surface.h"

namespace rysovna {

/// The buttons of the mouse; Shift and Ctrl where it is told what is held on the keyboard.
constexpr int LEVE = 1, PRAVE = 2, STREDNI = 4, SHIFT = 1, CTRL = 2;

/// The state of the mouse at an event. X, Y: pixels of the control (of the form) that gets it.
struct Mys {
    int Button = LEVE;  ///< of a move, the sum of those held
    int Shift = 0;
    float X = 0, Y = 0;
    bool Prst = false;     ///< by a finger, which hides what lies under it
    bool Zvednut = false;  ///< the finger is lifted and the drag goes on
};

/// Looks of the mouse pointer: an arrow; a hand over what can be pressed; a cross where a press
/// draws; a bar where text is typed.
enum class Kurzor { Sipka, Ruka, Kriz, Text };
constexpr std::size_t KURZORU = static_cast<std::size_t>(Kurzor::Text) + 1;

/// What a key that presses an object does: a whole click; a press that lasts as long as the key is
/// held; the beginning of a drag, which the next press of the blank ends.
enum class StiskKlavesou { Klik, Drzeni, Tah };

// What an object looks like, its place apart, is a record of its own: the painter keeps the one
// that it painted and compares. A field that is not in it changes no picture.

struct VzhledObrazku {
    Obrazek Picture;
    friend bool operator==(const VzhledObrazku&, const VzhledObrazku&) = default;
};

struct VzhledPictureBoxu {
    Obrazek Picture;
    Barva BackColor = BILA;
    /// Paints no ground of its own where it has neither surface nor picture.
    bool Pruhledny = false;
    bool Ramecek = false;  ///< a thin frame, as lists and panels have
    friend bool operator==(const VzhledPictureBoxu&, const VzhledPictureBoxu&) = default;
};

struct VzhledLabelu {
    std::string Caption;
    Barva ForeColor = CERNA;
    Barva BackColor = BEZ_BARVY;  ///< BEZ_BARVY: see-through
    bool WordWrap = true;         ///< breaks lines at blanks to the width
    /// 0 left, 1 right, 2 centred
    int Alignment = 0;
    bool Sazba = false;  ///< painted as a textbook prints it; the caption stays as it is
    friend bool operator==(const VzhledLabelu&, const VzhledLabelu&) = default;
};

struct VzhledTextBoxu {
    std::string Text;
    Barva BackColor = BILA;
    bool MultiLine = false;  ///< shown in rows, with no editing
    int SelStart = 0;        ///< the caret's end of the selection
    int SelAnchor = 0;       ///< the other end
    int Posun = 0;           ///< how far the text is scrolled, px
    friend bool operator==(const VzhledTextBoxu&, const VzhledTextBoxu&) = default;
};

struct VzhledTvaru {
    int X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< of a line
    int BorderWidth = 1;
    Barva BorderColor = CERNA;
    friend bool operator==(const VzhledTvaru&, const VzhledTvaru&) = default;
};

/// A screen object: a plain record that a painter paints and a dispatcher of events reads. Nothing
/// is told of a change: the painter compares. Places are pixels of the parent.
struct Ovladac {
    enum class Typ { PictureBox, Image, Label, TextBox, Line, Circle, Timer, PictureClip };

    explicit Ovladac(Typ typ) : Druh(typ) {}
    virtual ~Ovladac() = default;

    const Typ Druh;
    std::string Name;          ///< as the design names it; members of an array share it
    int Index = 0;             ///< index in its array, from 1 (from 0 in lblZadani); 0 alone
    Ovladac* Rodic = nullptr;  ///< the picture box that it stands in; the form if null
    int Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = true;
    bool Enabled = true;       ///< what is disabled leaves its presses to its parent
    bool ProMys = true;        ///< false: the pointer goes through it to what lies beneath
    bool BereDvojklik = true;  ///< false: the second press of a double click does nothing to it
    int Zastavka = 0;  ///< place in the round of the keys from 1; 0: it is no stop of theirs
    StiskKlavesou Klavesou = StiskKlavesou::Klik;
    bool DalPrstem = false;     ///< a tap of a finger a little beside it counts as on it
    bool Ramovat = false;       ///< it answers the pointer by a frame, having no picture for that
    bool JemneSipkami = false;  ///< arrows carry a pointer that is held on it a pixel further
    std::string Tag;
    Pismo Font;

    [[nodiscard]] bool MaPismo() const {
        return Druh == Typ::Label || Druh == Typ::TextBox || Druh == Typ::PictureBox;
    }

protected:
    Ovladac(const Ovladac&) = default;
    Ovladac& operator=(const Ovladac&) = delete;
};

/// A picture box: a picture, a surface to draw on, a container of other objects. Pixels of the key
/// colour PURPUROVA, in its picture or on its surface, are see-through on the screen.
struct PictureBox : Ovladac, VzhledPictureBoxu {
    PictureBox() : Ovladac(Typ::PictureBox) {}

    /// The surface, made at the first call with the box's size (made anew when the size changed)
    /// over the picture as its ground. A box that never draws has none.
    Surface& Plocha();
    /// The surface as it is shown: none before the first drawing, and none after Picture was
    /// changed until something is drawn again (the new picture is shown then).
    [[nodiscard]] const Surface* PlochaNeboNic() const {
        return podklad_ == Picture ? plocha_.get() : nullptr;
    }
    [[nodiscard]] bool MaPlochu() const { return PlochaNeboNic() != nullptr; }

private:
    std::unique_ptr<Surface> plocha_;
    Obrazek podklad_;
};

/// A picture without a surface, shown at its own size, cut to the object's. The key colour is
/// see-through.
struct Image : Ovladac, VzhledObrazku {
    Image() : Ovladac(Typ::Image) {}
};

struct Label : Ovladac, VzhledLabelu {
    Label() : Ovladac(Typ::Label) {}
    /// The caption as it is painted.
    [[nodiscard]] std::string Tisteny() const;
    /// Sets Width to the width of what is painted (a label with a single row).
    void PodleTextu();
};

/// A line of text to edit: caret, selection, clipboard. Positions count characters.
struct TextBox : Ovladac, VzhledTextBoxu {
    TextBox() : Ovladac(Typ::TextBox) { Zastavka = 1; }
    int MaxLength = 0;              ///< characters; 0 is no limit
    std::u32string Zakazane;        ///< what cannot be typed or pasted, besides control characters
    bool BezUvodnichMezer = false;  ///< blanks at the beginning are left out

    /// The rows in which a box of several lines shows its text.
    [[nodiscard]] std::vector<std::string> Radky() const;
    /// Whether its height takes them all.
    [[nodiscard]] bool VejdeSe() const;
};

/// Rubber bands: shapes that the painter lays over a plane without drawing into it.
struct LineShape : Ovladac, VzhledTvaru {
    LineShape() : Ovladac(Typ::Line) { Visible = false; }
};

/// A circle inscribed in its rectangle.
struct CircleShape : Ovladac, VzhledTvaru {
    CircleShape() : Ovladac(Typ::Circle) { Visible = false; }
};

/// Fires its form's TimerTick every Interval milliseconds while Enabled.
struct Timer : Ovladac {
    Timer() : Ovladac(Typ::Timer) { Enabled = false; }
    std::uint32_t Interval = 1000;
    std::uint32_t Pristi = 0;  ///< tick count of the next firing
    bool Bezi = false;         ///< Pristi holds
};

/// A strip of pictures in one row.
struct PictureClip : Ovladac {
    PictureClip() : Ovladac(Typ::PictureClip) { Visible = false; }
    Obrazek Picture;
    int Cols = 1;
    [[nodiscard]] Obrazek GraphicCell(int i) const { return Picture.Bunka(i, Cols); }
};

}  // namespace rysovna
