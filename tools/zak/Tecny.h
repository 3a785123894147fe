#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rules/TecnyDialog.h"
#include "zak/Los.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// What the perfect pupil does at a step of an exercise. Where: the point from which a line starts,
/// the centre of a circle, both ends of a line between points or of a midpoint's segment.
struct KrokZaka {
    Nastroj Cim;
    std::string_view Radek = "", Od = "", K = "";
    bool JenZBodu = false;  ///< a line that must start on its point: near it is not right
};

/// The perfect pupil of the tangents: the right tool, row and place at each step, a few pixels off
/// where the board allows it; a line from its point, or free so that it passes it. Its own geometry
/// tells where, a seed which of what is right.
class DokonaleTecny {
public:
    DokonaleTecny(Ruka& ruka, std::uint32_t seminko) : ruka_(ruka), los_(seminko) {}

    /// Begins the random choices anew.
    void Zasej(std::uint32_t seminko) { los_.Zasej(seminko); }

    /// Marks what has to be marked.
    void Oznac();
    /// The whole example without the check.
    void Sestroj();
    void SpravnyKrok();
    void SpravneDo(int faze);
    void SpravneVse();

    /// Presses the button of this tool; throws if it is not live.
    Ruka& Nastroj(rysovna::Nastroj cim);
    /// The row of the step in hand; throws past the last one.
    [[nodiscard]] const KrokZaka& Krok() const;
    /// Both places that the marking step could take.
    [[nodiscard]] std::vector<Bod> Kandidati() const;
    [[nodiscard]] int Cislo(int pod) { return los_.Cislo(pod); }
    /// Somewhere on the plane off the arrows.
    [[nodiscard]] Bod Nahodne() {
        const int x = los_.Cislo(364);
        return {x, los_.Cislo(315)};
    }

    bool Osou = false;      ///< in "05" and "06" the axis at once
    bool Obracene = false;  ///< of two results the other one first

private:
    [[nodiscard]] const TecnyDialog& Dialogem() const {
        return dynamic_cast<const TecnyDialog&>(ruka_.Hrany());
    }
    [[nodiscard]] std::string Kod() const;
    void Proved(const KrokZaka& krok, bool druhy);
    void NarysujPrimku(const KrokZaka& krok);
    [[nodiscard]] bool NajdiVolnyTah(const KrokZaka& krok, Bod& odkud, Bod& kam);

    Ruka& ruka_;
    Los los_;
};

}  // namespace rysovna::hrac
