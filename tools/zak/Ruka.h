#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "rules/Dialog.h"

namespace rysovna::hrac {

/// What the player was to do and could not: the control is hidden, the line is not offered.
struct NejdeUdelat : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A given quantity as it stands in the assignment: "a", "alfa", "AB||CD", and its value; 0 where
/// none stands.
struct Zadano {
    std::string Velicina;
    int Hodnota;
};

/// What a pupil does at a board, whatever carries it out: the dialogue itself or the screen with
/// its controls. Calls chain; what a person could not do throws NejdeUdelat.
class Ruka {
public:
    virtual ~Ruka() = default;
    Ruka() = default;
    Ruka(const Ruka&) = delete;
    Ruka& operator=(const Ruka&) = delete;

    /// The dialogue of the example in play, to look at.
    [[nodiscard]] virtual const Dialog& Hrany() const = 0;
    /// The session of that example, to look at.
    [[nodiscard]] const Misc& Pamet() const { return Hrany().Pamet(); }
    /// What the assignment says.
    [[nodiscard]] virtual std::vector<Zadano> Zadani() const = 0;
    /// Whether a press meets the very pixel that it aims at.
    [[nodiscard]] virtual bool Presna() const { return true; }
    /// The value of a given quantity; throws if it is not given.
    [[nodiscard]] int Hodnota(std::string_view velicina) const;
    [[nodiscard]] bool JeZadano(std::string_view velicina) const;
    /// Whether the open list has a live line that reads so.
    [[nodiscard]] bool JeVSeznamu(std::string_view radek) const { return CisloRadku(radek) > 0; }

    /// Presses a place of the sketch.
    Ruka& Oznac(Bod misto);
    /// Presses step button i, from 1.
    Ruka& Nastroj(int i);
    /// Takes the last step back.
    Ruka& Zpet() { return Nastroj(NASTROJ_ZPET); }
    /// Presses the line of the open list that reads so.
    Ruka& Vyber(std::string_view radek);
    /// Types into the box for the value; with several boxes into which of them, from 1.
    Ruka& Napis(std::string_view text, int ktery = 1);
    Ruka& Napis(int cislo, int ktery = 1);
    /// Drags on the plane.
    Ruka& Tahni(Bod odkud, Bod kam);
    Ruka& Klikni(Bod kde) { return Tahni(kde, kde); }
    /// Scrolls the plane; px of the figure, multiples of an arrow's step.
    virtual void Posun(int dx, int dy) = 0;
    /// Gets the panel out of the way.
    virtual void ZasunPanel() {}
    virtual void Zkontroluj() = 0;

protected:
    /// True if the sketch took it.
    virtual bool StiskNacrtu(Bod misto) = 0;
    virtual void StiskNastroje(int i) = 0;
    virtual void StiskRadku(int i, std::string_view text) = 0;
    virtual void Pis(int ktery, const std::string& text) = 0;
    virtual void TahPoPlose(Bod odkud, Bod kam) = 0;

private:
    [[nodiscard]] int CisloRadku(std::string_view text) const;
};

/// Where an element of a sketch is pressed: anywhere between two points, px of the sketch.
struct MistoZnacky {
    std::string_view Velicina;
    Bod Od, Do;
    [[nodiscard]] constexpr Bod Stred() const { return {(Od.X + Do.X) / 2, (Od.Y + Do.Y) / 2}; }
};
/// Throws for a quantity that is not on the sketch.
[[nodiscard]] const MistoZnacky& NajdiMisto(std::span<const MistoZnacky> nacrt,
                                            std::string_view velicina);

/// Reads what is given.
[[nodiscard]] std::vector<Zadano> CtiZadani(const std::vector<ZadanaVelicina>& zadani);

}  // namespace rysovna::hrac
