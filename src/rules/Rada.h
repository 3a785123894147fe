#pragma once

#include <string>

#include "rules/Panel.h"

namespace rysovna {

/// An example after its check, as the pupil is told: points of ten, points of the series with this
/// example in it, which example of how many.
struct VysledekPrikladu {
    int Bodu = 0, BoduSerie = 0;
    int Poradi = 0, Prikladu = 0;
    bool Bezchybny = false;  ///< there is no list of wrong steps to show
    friend bool operator==(const VysledekPrikladu&, const VysledekPrikladu&) = default;
};

/// What the pupil sees of a board. The guide knows this and nothing else: not what the example
/// expects, not what was charged before the check, so that it can give nothing away.
struct Videne {
    enum class Doba { Ceka, Hraje, PoKontrole };  ///< Ceka: the next example is not there yet
    Doba Kdy = Doba::Ceka;
    Panel Krok;
    bool Narysovano = false;    ///< the plane shows more than what is given
    bool NacrtVysunuty = true;  ///< the sketch is out, and over a part of the plane
    bool Tahne = false;         ///< the button is held over the plane, and a rubber band follows
    bool Podlozka = false;      ///< a finger has left the drag, and the pad is up
    std::string Odecet;         ///< the live read-out; empty: there is none
    int MrtvyNastroj = 0;  ///< place, from 1, of the tool under the pointer that cannot be pressed
    /// What a press would do that the pointer (or the ring of the keys) is over.
    enum class CoPod { Nic, Zpet, Sestroj, Kontrola, Odchod };
    CoPod Pod = CoPod::Nic;
    PrvekVNacrtu PodPrstenem;   ///< element of the sketch that the ring of the keys is at
    VysledekPrikladu Vysledek;  ///< after the check
    friend bool operator==(const Videne&, const Videne&) = default;
};

/// What the guide says: a kind and what it names. How it is said is the screen's.
struct Rada {
    enum class Co {
        Nic,
        // before a step
        OznacZadane,      ///< on the sketch that is out
        VysunNacrt,       ///< its handle brings it
        ZvolPrvni,        ///< the first tool, once all that is given is marked
        ZvolTrojuhelnik,  ///< its theorem, or another triangle
        ZvolNastroj,
        VyberRadek,     ///< of the open list
        VyplnHodnoty,   ///< the rows of values
        PotvrdHodnoty,  ///< they are filled in
        // with an object in hand: by its gesture
        NapisHodnotu,  ///< then what Gesto tells
        Kresli,        ///< what Gesto tells
        Tahni,         ///< the button is held
        // past the last step
        Zkontroluj,
        VratNezavrenou,    ///< a step back: the objects do not close the figure
        VratNesestrojeny,  ///< a step back: there is no triangle of the values
        // with the ring of the keys on the sketch
        OznacPrvek,  ///< which element a press would mark
        // why a tool is not live
        MrtvyBezZnacek,   ///< nothing is marked yet
        MrtvySUtvarem,    ///< an object waits to be drawn
        MrtvySeSeznamem,  ///< a list waits
        MrtveZpet,        ///< no step to take back from here
        MrtvaVeta,        ///< no triangle chosen yet
        MrtveHodnoty,     ///< no theorem chosen yet
        // what a press here would bring, where it cannot be taken back
        PodZpet,      ///< the step back gives no points back
        PodSestroj,   ///< boxes are empty yet
        PodKontrola,  ///< the figure is not done yet
        PodOdchod,    ///< the series ends without a result
        // after the check
        Vysledek,
    };
    Co Druh = Co::Nic;
    Gesto Kresleni;
    bool ZasunNacrt = false;  ///< the sketch lies over the plane that is to be drawn on
    bool Podlozka = false;    ///< the drag is ended by the pad
    bool SMirou = false;      ///< a value is typed that the read-out is to reach
    bool BezMiry = false;     ///< its box is empty
    bool Shoda = false;       ///< it is reached
    bool Zpet = false;        ///< the step in hand can be laid down by a step back
    PrvekVNacrtu Prvek;
    std::string Odecet;
    VysledekPrikladu Priklad;
    friend bool operator==(const Rada&, const Rada&) = default;
};

/// What to do next, by what the pupil sees.
[[nodiscard]] Rada UrciRadu(const Videne& v);

}  // namespace rysovna
