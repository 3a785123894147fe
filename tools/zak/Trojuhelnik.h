#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "zak/Los.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// The perfect pupil of the triangles (tasks 1 to 8): marks what is given, constructs it without a
/// fault. It has no habits: which side first and where, which object first, where it presses within
/// what is right and to which side it drags go by a seed.
class DokonalyTrojuhelnik {
public:
    /// zasunPanel: slides the panel away first and draws all over the plane; otherwise keeps to
    /// the strip that the panel leaves free, which no height or median fits.
    DokonalyTrojuhelnik(Ruka& ruka, std::uint32_t seminko, bool zasunPanel = true)
        : ruka_(ruka), los_(seminko), zasunPanel_(zasunPanel) {}

    /// The whole example up to the closed figure, without the check.
    void Sestroj();

private:
    struct Strana {
        std::string Nazev, Od, Do;  ///< "c", "A", "B"
        Bod OdBod, DoBod;
    };
    void ZvolPrvni();
    void UmistiPrvni(int px);
    void NarysujPaprsek(std::string_view uhel);
    void NarysujKruznici(std::string_view velicina);
    void NarysujVysku(std::string_view vyska);
    [[nodiscard]] Bod Stred() const;

    Ruka& ruka_;
    Los los_;
    bool zasunPanel_;
    bool nahoru_ = false;  ///< the third vertex lies above the first side
    Strana strana_;
};

/// A side of the triangle: its ends and the vertex across.
struct KonceStrany {
    std::string_view Nazev, Od, Do, Treti;
};
/// Throws for what is no side.
[[nodiscard]] const KonceStrany& Konce(std::string_view strana);
/// The vertex of an angle, "alfa"; empty for what is no angle.
[[nodiscard]] std::string_view VrcholUhlu(std::string_view uhel);

/// Where the sketch of a triangle is pressed for a quantity: px of the sketch.
[[nodiscard]] const MistoZnacky& MistoNaNacrtu(std::string_view velicina);

}  // namespace rysovna::hrac
