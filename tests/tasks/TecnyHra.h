#pragma once

#include <string_view>
#include <vector>

#include "podpora/Stul.h"
#include "zak/Tecny.h"

namespace rysovna::testy {

/// A tangent exercise at the dialogue, and its perfect pupil. Begins with an example of the
/// exercise and its marks on the sketch.
class TecnyHra : public Stul<TecnyDialog> {
public:
    explicit TecnyHra(std::string_view kod, std::uint32_t seminko = 1);

    /// A new example with figures of this seed.
    void Znovu(std::uint32_t seminko);
    /// A step that ends past its point: the right tool and row, drawn or clicked elsewhere.
    void KrokVedle();

    [[nodiscard]] std::vector<int> Chyby() const;
    [[nodiscard]] Panel P() const { return dialog.UkazPanel(); }
    [[nodiscard]] int Faze() const { return dialog.Stav().Faze; }

    DokonaleTecny zak{*this, 1};
};

/// All that a step can change; back has to restore it.
struct Otisk {
    explicit Otisk(const TecnyHra& hra);
    /// What differs besides the panel and the way the step was reached; empty if nothing does.
    [[nodiscard]] std::string Rozdil(const Otisk& jiny) const;

    std::vector<Utvar> Utvary_;
    std::vector<Trojice> Trojice_;
    std::vector<ZadanyPrvek> Prvky;
    std::vector<int> Hotovo;
    StavTecny Stav;
    Panel P;
};

}  // namespace rysovna::testy
