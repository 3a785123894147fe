#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rules/DialogCtyruhelniku.h"
#include "zak/Los.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// What the perfect pupils of the quadrilaterals share: the marks, the starting triangle. They go
/// by what the screen says, never by what the data expect, so that an example which nobody could
/// solve from its assignment costs them points. They have no habits: orders, places and sides that
/// are all right go by a seed.
class ZakCtyruhelniku {
public:
    virtual ~ZakCtyruhelniku() = default;
    ZakCtyruhelniku(const ZakCtyruhelniku&) = delete;
    ZakCtyruhelniku& operator=(const ZakCtyruhelniku&) = delete;
    ZakCtyruhelniku(Ruka& ruka, std::uint32_t seminko) : ruka_(ruka), los_(seminko) {}

    /// Marks what is given; a second time takes the marks off.
    void Oznac();
    /// Chooses the triangle that the assignment begins with and its theorem, types the values in
    /// and has it drawn.
    void Trojuhelnik();

protected:
    [[nodiscard]] const DialogCtyruhelniku& Dialogem() const {
        return dynamic_cast<const DialogCtyruhelniku&>(ruka_.Hrany());
    }
    /// The sketch that the board shows.
    [[nodiscard]] virtual std::span<const MistoZnacky> NaNacrtu() const = 0;

    Ruka& ruka_;
    Los los_;
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

protected:
    [[nodiscard]] std::span<const MistoZnacky> NaNacrtu() const override;

private:
    void NarysujKruznici(const std::string& stred, int cm);
    void NarysujPaprsek(const std::string& vrchol, const std::string& rameno, int stupnu);
    void NarysujRovnobezku(const std::string& strana);
    [[nodiscard]] bool VejdeSe(Bod posun = {}) const;
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

protected:
    [[nodiscard]] std::span<const MistoZnacky> NaNacrtu() const override;

private:
    [[nodiscard]] Bod Nekam();
};

/// A vertex of the starting triangle as it stands on the plane; throws if there is none.
[[nodiscard]] Bod VrcholNaPlose(const Tabulky& t, std::string_view pismeno);

}  // namespace rysovna::hrac
