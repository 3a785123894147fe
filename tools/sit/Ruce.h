#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "hrac/RukaNaDesce.h"
#include "zak/Los.h"
#include "zak/Ruka.h"

namespace rysovna::sit {

/// What going back met, for the summary.
struct Souhrn {
    std::map<int, int> ZpetZFaze;  ///< phase of the dialogue -> how many times back was pressed
    std::map<int, int> ZpetPo;     ///< the same by the tool that was pressed last, 1 to 6
    std::array<int, 4> Sipek{};    ///< presses of each arrow before a back
    int NejvyssiFaze = 0;
};

/// A hand that after one step in four goes back and does it again, and before one in four of these
/// presses arrows, which it takes back by others: a pupil that led it well still does. Goes back
/// once more, too, now and then.
class Vracejici : public hrac::RukaNaDesce {
public:
    Vracejici(hrac::Relace& relace, std::uint32_t seminko, Souhrn& souhrn)
        : RukaNaDesce(relace), los_(seminko), souhrn_(souhrn) {}

    /// Begins an example; poradi: which of four steps is followed by a back, by turns.
    void NovyPriklad(int poradi);
    void Posun(int dx, int dy) override;

protected:
    struct Ukon {
        enum class Druh { Nastroj, Radek, Text, Tah };
        Druh Co;
        int Cislo = 0;     ///< of the button, the line, the box
        std::string Text;  ///< the line's, the typed one
        Bod Od, Kam;
    };
    void StiskNastroje(int i) override;
    void StiskRadku(int i, std::string_view text) override;
    void Pis(int ktery, const std::string& text) override;
    void TahPoPlose(Bod odkud, Bod kam) override;
    /// Before an act is carried out: another hand may change it, or do something else first.
    virtual void Pred(Ukon& /*ukon*/) {}
    void Vykonej(const Ukon& u);
    [[nodiscard]] int Faze() const;
    /// The back button of the board is live.
    [[nodiscard]] bool MuzeZpet() const;

    hrac::Los los_;
    Souhrn& souhrn_;

private:
    void Proved(Ukon u);
    void VratSe();
    void Zapomen();
    [[nodiscard]] Bod Sipky();

    std::vector<Ukon> ukony_;             ///< that led to where the construction is
    std::map<int, std::size_t> zacatky_;  ///< phase -> its first act
    Bod posunuto_;                        ///< by the pupil's own will, px
    int prilezitost_ = 0, poradi_ = 0, nastroj_ = 0;
};

/// A hand that errs: wrong marks, tools, lines, values, drags beside; that presses something else
/// in the middle of a wait; that does not finish. Throws NejdeUdelat when it has had enough.
class Nedbala : public Vracejici {
public:
    using Vracejici::Vracejici;
    /// How many acts of the next example it has patience for.
    void DejTrpelivost(int ukonu) { trpelivost_ = ukonu; }
    [[nodiscard]] std::vector<hrac::Zadano> Zadani() const override;
    /// Something that can be done at the board now.
    void Neco();

protected:
    bool StiskNacrtu(Bod misto) override;
    void Pred(Ukon& ukon) override;

private:
    [[nodiscard]] bool Jednou(int z) { return los_.Cislo(z) == 0; }
    template <class T>
    [[nodiscard]] auto Jeden(const T& z) {
        return z[static_cast<std::size_t>(los_.Cislo(static_cast<int>(std::size(z))))];
    }
    [[nodiscard]] std::string TextRadku(int i) const;
    [[nodiscard]] Bod Nekde();
    [[nodiscard]] std::vector<int> ZiveRadky() const;
    [[nodiscard]] std::vector<int> ZiveNastroje() const;
    void Uprostred();

    int trpelivost_ = 0;
};

}  // namespace rysovna::sit
