#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// The step button that takes a step back, on every board, and its face.
constexpr int NASTROJ_ZPET = 5, TVAR_ZPET = 12;

/// A step button as it is shown. The face and whether it can be pressed are two things: after the
/// check the buttons keep their live faces and cannot be pressed.
struct Tlacitko {
    int Tvar = 0;          ///< number of its picture, whatNN; 0: the button is hidden
    bool Barevne = false;  ///< the live face "_1"; otherwise the grey one "_0"
    bool Zive = false;     ///< can be pressed
    friend bool operator==(const Tlacitko&, const Tlacitko&) = default;
};

/// A line of the pick list.
struct RadekSeznamu {
    std::string Text;
    bool Videt = true;
    bool Ziva = true;
    std::string Tag;  ///< names of the object that the line speaks of
    friend bool operator==(const RadekSeznamu&, const RadekSeznamu&) = default;
};

/// The pick list of the step dialogue.
struct Seznam {
    static constexpr int VYSKA_RADKU = 20, OKRAJ = 4;  ///< px; the edge is that of both sides
    /// Widths, px: for names, for a few words, for a phrase, for a long one.
    static constexpr int UZKY = 105, STREDNI = 140, SIROKY = 200, NEJSIRSI = 250;
    bool Otevreny = false;
    int Sirka = UZKY, Vyska = 3 * VYSKA_RADKU + OKRAJ;  ///< px
    int SirkaRadku = UZKY - OKRAJ;                      ///< px
    std::vector<RadekSeznamu> Radky;

    /// An open list, so many px wide and as high as its lines want.
    [[nodiscard]] static Seznam SRadky(int sirka, std::vector<RadekSeznamu> radky) {
        const int vyska = static_cast<int>(radky.size()) * VYSKA_RADKU + OKRAJ;
        return {true, sirka, vyska, sirka - OKRAJ, std::move(radky)};
    }
    friend bool operator==(const Seznam&, const Seznam&) = default;
};

/// A text of the panel with its face; hidden when it is not there.
struct TextPanelu {
    std::string Text;
    bool Videt = false;
    bool Symbol = false;        ///< set in the Symbol face
    int Odsazeni = 0;           ///< px to the right of lblText3
    bool NaRadkuVyzvy = false;  ///< stands on the prompt's own row, not on the value's

    static constexpr int ODSAZENI_KOLMO = 66;  ///< px, behind "přímka b, b" of the prompt
    /// The sign of a perpendicular; behind longer names so many px more.
    [[nodiscard]] static TextPanelu Kolmo(int navic = 0) {
        return {"^", true, true, ODSAZENI_KOLMO + navic, true};
    }
    friend bool operator==(const TextPanelu&, const TextPanelu&) = default;
};

/// A box for a typed value.
struct Vstup {
    std::string Text;
    bool Videt = false;
    bool Ziva = true;
    friend bool operator==(const Vstup&, const Vstup&) = default;
};

/// A row with a value to type: what stands before the box and its unit behind. Boards that ask for
/// several values at once have such rows in place of the one box.
struct RadekVstupu {
    std::string Nazev;
    Vstup Box;
    std::string Jednotka;
    friend bool operator==(const RadekVstupu&, const RadekVstupu&) = default;
};

/// One label of the assignment. Labels stand in up to three rows, each placed behind the one
/// before.
struct PolozkaZadani {
    std::string Text;
    Pismo Font{Pismo::Rez::MsSansSerif, 10};
    int Mezera = 2;          ///< px behind the label before
    bool NovyRadek = false;  ///< begins a row
    bool Sazba = true;       ///< painted as a textbook prints it
    friend bool operator==(const PolozkaZadani&, const PolozkaZadani&) = default;
};

/// An element of the sketch as it is seen: the name that stands beside it ("a", "alfa", "va";
/// empty: there is none), and whether it is marked.
struct PrvekVNacrtu {
    std::string Jmeno;
    bool Oznaceny = false;
    friend bool operator==(const PrvekVNacrtu&, const PrvekVNacrtu&) = default;
};

/// What the plane waits for, as the pressed tool, the prompt and the chosen line tell it. A point
/// is named only where one of these names it.
struct Gesto {
    enum class Tvar {
        Zadny,
        Utvar,  ///< of a tool that neither prompt nor line names
        Usecka,
        Primka,
        Poloprimka,
        Kolmice,
        Rovnobezka,
        Kruznice,
        Bod  ///< a whole click; all others are drags
    };
    Tvar Druh = Tvar::Zadny;
    std::string Od, Kam;  ///< names of the points; empty: none is named
    bool Presne = false;  ///< a click that beside its place is an error
    friend bool operator==(const Gesto&, const Gesto&) = default;
};

/// What the step dialogue shows. Computed from the construction and the dialogue, never patched,
/// so that going back is an earlier phase shown again.
struct Panel {
    std::array<Tlacitko, 6> cmd;  ///< cmd(1) to cmd(6); index 0 is cmd(1)
    std::string Label1;           ///< lead-in of the assignment
    std::string lblText1, lblText2;
    std::string lblText3;
    TextPanelu lblText4;
    Vstup txtVstup;
    std::vector<RadekVstupu> Vstupy;  ///< rows of values, where the board has them
    Seznam Combo;
    std::vector<PolozkaZadani> lblZadani;
    bool PicZiva = true;  ///< the plane takes the mouse
    Gesto Kresleni;
    bool Nezavrena = false;    ///< all objects are drawn, and they do not close the figure
    bool Nesestrojen = false;  ///< the plane says that there is no triangle of the typed values
    friend bool operator==(const Panel&, const Panel&) = default;
};

/// What the plane shows while the pupil drags: the rubber band and the read-out.
struct Gumicka {
    enum class Tvar { Nic, Cara, Kruh };
    Tvar Druh = Tvar::Nic;
    int X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< of a line; of a circle its rectangle
    std::string Text;                    ///< the read-out; empty: none
    int Odsazeni = 12;                   ///< px of the read-out to the right of the pointer
    friend bool operator==(const Gumicka&, const Gumicka&) = default;
};

}  // namespace rysovna
