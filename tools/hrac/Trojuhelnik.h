#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "hrac/Ruka.h"

namespace rysovna::hrac {

/// The perfect pupil of the triangles (tasks 1 to 8): marks what is given, constructs it without a
/// fault. Which side first, where, which object first: by a seed.
class DokonalyTrojuhelnik {
public:
    /// zasunPanel: slides the panel away first and draws all over the plane; otherwise keeps to
    /// the strip that the panel leaves free, which no height or median fits.
    DokonalyTrojuhelnik(Ruka& ruka, std::uint32_t seminko, bool zasunPanel = true)
        : ruka_(ruka), nahoda_(seminko), zasunPanel_(zasunPanel) {}

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
    [[nodiscard]] int Cislo(int rozpeti) {
        return static_cast<int>(nahoda_() % static_cast<unsigned>(rozpeti));
    }

    Ruka& ruka_;
    std::mt19937 nahoda_;
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

/// Where the sketch of a triangle is pressed for a quantity, px of the sketch.
[[nodiscard]] Bod MistoNaNacrtu(std::string_view velicina);

/// A place at the given whole-number angle, degrees, from the direction rameno1 to rameno2, turned
/// to the left, whose read-out is exactly that angle.
[[nodiscard]] Bod PodUhlem(Bod rameno1, Bod rameno2, int stupnu);

}  // namespace rysovna::hrac
