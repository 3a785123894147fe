#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "rules/KatalogChyb.h"
#include "rules/Panel.h"

namespace rysovna {

// The nine exercises of the tangent board as rows. The interpreter is TecnyDialog.

/// A line of the pick list. Of a circle the name of its centre; of a line the names of its two
/// points; of a perpendicular or parallel the name of its base.
struct Volba {
    std::string_view Prvek{};
    std::array<std::string_view, 2> Polomer{};  ///< of a circle the points between which it is read
};

/// The radius of a circle's row as prompt and paper say it: "|SB|".
[[nodiscard]] std::string NazevPolomeru(const Volba& v);

/// How a drawn line is held against its point.
enum class Soud {
    Zadny,
    Pul,           ///< the half-pixel rule, whatever the start
    Patnact,       ///< the 15-pixel rule, whatever the start
    PodleZacatku,  ///< from a snapped start the half-pixel rule, otherwise the 15-pixel one
    Konce          ///< both ends are the points of the picked row
};

/// What the step works out for the marking that follows.
enum class Prunik { Nic, PrimkaKruznice, Primky, Kruznice };

/// One step of an exercise.
struct KrokTecny {
    std::array<Nastroj, 4> Nastroje{};  ///< what is offered, in its order
    Nastroj Spravny = Nastroj::Zadny;
    std::array<Nastroj, 2> Chybne{};  ///< tools that cost 3 points at the press
    /// Names that the right object can get: the first whose solution entry is not done.
    std::array<std::string_view, 2> Jmena{};
    std::string_view Vyzva{};      ///< prompt of the step, on the way forward
    std::string_view VyzvaZpet{};  ///< prompt when the pupil came by back; empty: the same

    std::array<Volba, 3> Volby{};     ///< list of the right tool
    std::string_view SpravnaVolba{};  ///< empty: any row is right
    ChybaKroku ChybaVolby{};
    std::string_view VedlejsiVolba{};  ///< a row that by itself costs nothing and makes no result

    /// Of a line the points through which it may go, of a midpoint the ends of its segment.
    std::array<std::string_view, 2> Body{};
    Soud Jak = Soud::Zadny;
    ChybaKroku ChybaRysovani{};   ///< a line past its point, a wrong radius, a missed click
    std::string_view NaPrimce{};  ///< of a point that was hit: the line on which it is said to lie
    std::string_view Odecet{};    ///< of a midpoint: what stands by the pointer

    Prunik Pocita = Prunik::Nic;
    std::array<std::string_view, 2> Ceho{};
    ChybaKroku ChybaPruniku{};  ///< when there is none

    /// Bases for perpendiculars and parallels that are not the right tool.
    std::array<std::string_view, 3> Zakladny{};
    std::string_view JmenoChybnehoStredu{};  ///< of a midpoint that is a wrong choice
    std::array<Nastroj, 4> SedeNastroje{};   ///< what is seen after the press; all Zadny: the same
    /// Reached by back, the step leaves the way back dead. Not where an earlier step holds
    /// another object than its own: only back leads to what is then still to be drawn.
    bool MrtveZpet = false;
};

struct Cviceni {
    std::string_view Kod{};
    std::string_view Zadani{}, Dano{};       ///< the assignment; the given objects
    std::array<std::string_view, 3> Dane{};  ///< what is to be marked on the sketch
    std::string_view PocatekPoloprimky{};    ///< name of the start of any ray
    std::string_view ChybnaKruznice{};       ///< name of a wrong circle; empty: "k" and the step
    std::array<std::string_view, 2> Vysledky{};  ///< objects that the finish makes stand out
    /// The crossings that are marked; 219 when a marking finds both done. Empty: no such charge.
    std::array<std::string_view, 2> Znacene{};
    std::span<const KrokTecny> Kroky{};
};

/// The exercise of this code; null for any other code.
[[nodiscard]] const Cviceni* NajdiCviceni(std::string_view kod);
/// All nine, in the order of their codes.
[[nodiscard]] std::span<const Cviceni> VsechnaCviceni();

/// Wrong steps that do not depend on the exercise.
constexpr ChybaKroku CHYBA_NASTROJ = ChybaKroku(21).Jinde();
constexpr ChybaKroku CHYBA_OBA_HOTOVE = katalog::OBA_HOTOVE;

}  // namespace rysovna
