#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "podpora/Konstrukce.h"
#include "rules/Dialog.h"
#include "rules/Ulohy.h"
#include "store/MapaPoli.h"
#include "zak/Ruka.h"

namespace rysovna::testy {

/// A session before an example of the task: its one line read.
inline Misc PametPrikladu(int uloha, std::string_view radek) {
    Misc misc;
    misc.CisloUlohy = static_cast<std::uint8_t>(uloha);
    misc.PocetPrikladu = 1;
    for (const Slot& slot : MapaDesky(DeskaUlohy(uloha)).Pole) {
        const std::size_t konec = radek.find('#');
        slot.V(misc.Priklady[1]) = radek.substr(0, konec);
        if (konec == std::string_view::npos) break;
        radek.remove_prefix(konec + 1);
    }
    return misc;
}

/// A hand that plays a step dialogue without a screen, as fast as the machine goes, on two planes
/// in memory.
class RukaPravidel : public hrac::Ruka {
public:
    [[nodiscard]] const Dialog& Hrany() const override { return Hra(); }
    [[nodiscard]] std::vector<hrac::Zadano> Zadani() const override {
        return hrac::CtiZadani(Hra().UkazPanel().Zadani);
    }
    void Posun(int dx, int dy) override { Hra().Posun(dx, dy); }
    void Zkontroluj() override { Hra().Zkontroluj(); }

protected:
    /// The dialogue that is played.
    [[nodiscard]] virtual Dialog& Hra() = 0;
    [[nodiscard]] virtual const Dialog& Hra() const = 0;
    [[nodiscard]] Platna Platna_() { return {pic_, hiden_}; }
    [[nodiscard]] const PametovaPlocha& Pic() const { return pic_; }
    [[nodiscard]] const PametovaPlocha& Hiden() const { return hiden_; }

    bool StiskNacrtu(Bod b) override {
        return Hra().StiskNacrtu(static_cast<float>(b.X), static_cast<float>(b.Y));
    }
    void StiskNastroje(int i) override { Hra().StiskNastroje(i); }
    void StiskRadku(int i, std::string_view /*text*/) override { Hra().VyberRadku(i); }
    void Pis(int ktery, const std::string& text) override { Hra().Napis(ktery, text); }
    void TahPoPlose(Bod odkud, Bod kam) override {
        Hra().StiskPlochy(static_cast<float>(odkud.X), static_cast<float>(odkud.Y));
        if (!Hra().CekaNaKresleni()) return;
        Hra().PusteniPlochy(static_cast<float>(kam.X), static_cast<float>(kam.Y));
    }

private:
    PametovaPlocha pic_{SIRKA_PLOCHY, VYSKA_PLOCHY}, hiden_{SIRKA_PLOCHY, VYSKA_PLOCHY};
};

}  // namespace rysovna::testy
