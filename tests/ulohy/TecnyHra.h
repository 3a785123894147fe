#pragma once

#include <string_view>
#include <vector>

#include "podpora/Stul.h"
#include "zak/Tecny.h"

namespace rysovna::testy {

/// The exercises, each with a task of its own.
inline const auto CVICENI = testing::Values("01", "02", "03", "04", "05", "06", "07", "08", "09");

/// A tangent exercise at the dialogue, and its perfect pupil. Begins with an example of the
/// exercise, its marks on the sketch, played without a fault up to a step.
class TecnyHra : public Stul<TecnyDialog> {
public:
    explicit TecnyHra(std::string_view kod, std::uint32_t seminko = 1, int krok = 1);

    /// A new example with figures of this seed.
    void Znovu(std::uint32_t seminko);
    /// Takes a tool, a row of its list, drags; by places or by names of points.
    TecnyHra& Narysuj(rysovna::Nastroj cim, std::string_view radek, Bod od, Bod kam);
    TecnyHra& Narysuj(rysovna::Nastroj cim, std::string_view radek, std::string_view od,
                      std::string_view kam);
    /// Nothing has been charged so far.
    void OdpustChyby() { Pamet().SoucetZapornychBodu = Pamet().PocetChybnychKroku = 0; }

    [[nodiscard]] Bod Misto(std::string_view bod) const { return NajdiBod(Pamet(), bod); }
    [[nodiscard]] const Utvar& Posledni() const { return Pamet().Utvary[Pamet().PocetUtvaru]; }
    [[nodiscard]] Panel P() const { return dialog.UkazPanel(); }
    [[nodiscard]] int Faze() const { return dialog.Stav().Faze; }

    DokonaleTecny zak{*this, 1};
};

/// All that a step can change besides the panel and the way it was reached; back has to restore it.
struct Otisk {
    explicit Otisk(const TecnyHra& hra);
    friend bool operator==(const Otisk&, const Otisk&) = default;

    std::vector<Utvar> Utvary;
    std::vector<Trojice> Zachyty;
    std::vector<ZadanyPrvek> Prvky;
    std::vector<int> Hotovo;
    StavTecny Stav;
};

}  // namespace rysovna::testy
