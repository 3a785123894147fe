#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna {

/// What a step is made with. How its button looks is the screen's.
enum class Nastroj {
    Zadny,  ///< no tool has this place now
    Usecka,
    Primka,
    Poloprimka,
    Kolmice,
    Rovnobezka,
    Kruznice,
    Stred,  ///< midpoint of a segment
    Osa,
    Prusecik,
    Trojuhelnik,  ///< the one to start with
    Veta,         ///< by which it is built
    Sestroj,      ///< builds it from the typed values
    StredSoumernosti,
    Obraz,  ///< of a vertex in the point symmetry
    Zpet
};

/// The place of the tool that takes a step back, on every board, from 1.
constexpr int NASTROJ_ZPET = 5;

/// A place for a tool, and what stands there. What was on offer when the check took the example
/// stays so to the eye and cannot be pressed.
struct MistoNastroje {
    enum class Stav { Sedy, Zamceny, Zivy };
    Nastroj Co = Nastroj::Zadny;
    Stav Jak = Stav::Sedy;

    [[nodiscard]] bool Zivy() const { return Jak == Stav::Zivy; }
    friend bool operator==(const MistoNastroje&, const MistoNastroje&) = default;
};

/// The tools in the order of their places.
using MistaNastroju = std::array<MistoNastroje, 6>;

/// A line of the pick list.
struct RadekSeznamu {
    std::string Text;
    bool Videt = true;
    bool Ziva = true;
    std::string Jmena;  ///< of the object that the line speaks of
    friend bool operator==(const RadekSeznamu&, const RadekSeznamu&) = default;
};

/// The pick list of the step dialogue.
struct Seznam {
    enum class Obsah { Jmena, Slova, Popisy, DlouhePopisy };
    bool Otevreny = false;
    Obsah CoRika = Obsah::Jmena;  ///< how much its lines say
    std::vector<RadekSeznamu> Radky;
    friend bool operator==(const Seznam&, const Seznam&) = default;
};

/// A value that is typed.
struct Vstup {
    std::string Text;
    bool Videt = false;  ///< it is asked for
    bool Ziva = true;
    friend bool operator==(const Vstup&, const Vstup&) = default;
};

/// The sign of a perpendicular, between the names of two lines.
constexpr std::string_view KOLMO = "⊥";

/// A quantity of the step: its name as far as the value ("úsečka AB, |AB| = "), the value, and the
/// unit behind it. Where no value is asked for, the name of the object ("přímka b, b ⊥ AB").
struct Velicina {
    std::string Nazev;
    Vstup Hodnota;
    std::string Jednotka;
    friend bool operator==(const Velicina&, const Velicina&) = default;
};

/// A quantity of the assignment: its name ("a", "alfa") and what it equals ("= 12 cm, "). What is
/// given in words has no name.
struct ZadanaVelicina {
    enum class Druh { Delka, Uhel, Slovy };
    Druh Co = Druh::Delka;
    std::string Nazev, Hodnota;
    friend bool operator==(const ZadanaVelicina&, const ZadanaVelicina&) = default;
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

/// What the step dialogue says, in its own words: which control shows it, where and how, is the
/// screen's. Computed from the construction and the dialogue, never patched, so that after a step
/// back it is right by itself.
struct Panel {
    std::string Uvod;  ///< lead-in of the assignment
    std::vector<ZadanaVelicina> Zadani;
    std::string Vyzva;
    std::string Nadpis;  ///< heading of the step
    MistaNastroju Nastroje;
    Seznam Vyber;
    Velicina Rysovane;               ///< of the object in hand
    std::vector<Velicina> Veliciny;  ///< of the triangle to start with: typed all at once
    bool PlochaZiva = true;          ///< the plane takes the mouse
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
    bool JmenoBodu = false;              ///< Text says which point lies under the pointer
    friend bool operator==(const Gumicka&, const Gumicka&) = default;
};

}  // namespace rysovna
