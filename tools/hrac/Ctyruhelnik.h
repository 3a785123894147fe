#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "board/DialogCtyruhelniku.h"
#include "hrac/Ruka.h"

namespace rysovna::hrac {

/// What the perfect pupils of the quadrilaterals share: the marks, the starting triangle. They go
/// by what the screen says, never by what the data expect, so that an example which nobody could
/// solve from its assignment costs them points.
class ZakCtyruhelniku {
public:
    ZakCtyruhelniku(Ruka& ruka, std::uint32_t seminko) : ruka_(ruka), nahoda_(seminko) {}

    /// Marks what is given; a second time takes the marks off.
    void Oznac();
    /// Chooses the triangle that the assignment begins with and its theorem, types the values in
    /// and has it drawn.
    void Trojuhelnik();

protected:
    [[nodiscard]] const DialogCtyruhelniku& Dialogem() const {
        return dynamic_cast<const DialogCtyruhelniku&>(ruka_.Hrany());
    }
    [[nodiscard]] int Cislo(int rozpeti) {
        return static_cast<int>(nahoda_() % static_cast<unsigned>(rozpeti));
    }

    Ruka& ruka_;
    std::mt19937 nahoda_;
};

/// The perfect pupil of the general quadrilateral and the trapezoid: the fourth vertex by two
/// objects, in an order that goes by the seed.
class DokonalyCtyruhelnik : public ZakCtyruhelniku {
public:
    using ZakCtyruhelniku::ZakCtyruhelniku;

    /// The whole example without the check. Where a vertex comes out off the plane, takes both
    /// objects back and scrolls until the figure fits.
    void Sestroj();
    /// Draws the object of the n-th quantity (1, 2) behind those of the triangle.
    void Narysuj(int n);

private:
    void NarysujKruznici(const std::string& stred, int cm);
    void NarysujPaprsek(const std::string& vrchol, const std::string& rameno, int stupnu);
    void NarysujRovnobezku(const std::string& strana);
    [[nodiscard]] bool VejdeSe() const;
    [[nodiscard]] Bod Treti(const std::string& a, const std::string& b) const;
};

/// The perfect pupil of the parallelogram.
class DokonalyRovnobeznik : public ZakCtyruhelniku {
public:
    using ZakCtyruhelniku::ZakCtyruhelniku;

    /// The whole example without the check.
    void Sestroj();
    /// The centre of symmetry; the vertices that are still missing.
    void Stred();
    void Obrazy();

private:
    [[nodiscard]] Bod Nekam();
};

/// Where the sketch of a quadrilateral is pressed for a quantity, px of the sketch.
[[nodiscard]] Bod MistoNaNacrtuCtyruhelniku(std::string_view velicina);

/// A vertex of the starting triangle as it stands on the plane; throws if there is none.
[[nodiscard]] Bod VrcholNaPlose(std::string_view pismeno);

}  // namespace rysovna::hrac
