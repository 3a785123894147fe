#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Plane.h"
#include "engine/PametovaPlocha.h"
#include "podpora/Konstrukce.h"
#include "rules/Dialog.h"
#include "zak/Ruka.h"

namespace rysovna::testy {

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
