#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "engine/PametovaPlocha.h"
#include "podpora/Relace.h"
#include "tasks/TecnyDialog.h"

namespace rysovna::testy {

/// A tangent exercise on planes in memory, played at the dialogue: faces, lines of the list,
/// presses and drags. Begins with an example of the exercise and a mark on its sketch.
class TecnyHra {
public:
    explicit TecnyHra(std::string_view kod, std::uint32_t seminko = 1);

    /// A new example with figures of this seed.
    void Znovu(std::uint32_t seminko);

    /// Presses the live button that has this face; throws if there is none.
    TecnyHra& Nastroj(int tvar);
    /// Picks the line that reads so; throws if the open list has none.
    TecnyHra& Vyber(std::string_view radek);
    TecnyHra& Klikni(Bod kde);
    TecnyHra& Tahni(Bod odkud, Bod kam);
    TecnyHra& Zpet();

    /// The perfect step: the right tool, row and place, a few pixels off where the board allows it.
    void SpravnyKrok();
    void SpravneDo(int faze);
    void SpravneVse();

    /// A step that ends past its point: the right tool and row, drawn or clicked elsewhere.
    void KrokVedle();

    [[nodiscard]] static std::vector<int> Chyby();
    [[nodiscard]] Panel P() const { return d.UkazPanel(); }
    [[nodiscard]] int Faze() const { return d.Stav().Faze; }
    [[nodiscard]] int Cislo(int rozpeti) {
        return static_cast<int>(nahoda_() % static_cast<unsigned>(rozpeti));
    }
    [[nodiscard]] Bod Nahodne() { return {Cislo(384), Cislo(335)}; }
    /// Both places that the marking step could take, by the pupil's own geometry.
    [[nodiscard]] std::vector<Bod> Kandidati() const;

    bool Osou = false;      ///< in "05" and "06" the axis at once
    bool Obracene = false;  ///< of two results the other one first

private:
    Relace relace_;
    std::string kod_;
    PametovaPlocha pic_{384, 335}, hidenPic_{384, 335};
    std::mt19937 nahoda_{1};

public:
    TecnyDialog d{{pic_, hidenPic_}};
    [[nodiscard]] const PametovaPlocha& Obraz() const { return pic_; }
};

}  // namespace rysovna::testy
