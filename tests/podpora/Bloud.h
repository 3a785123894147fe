#pragma once

#include <random>
#include <string>

#include "rules/Dialog.h"

namespace rysovna::testy {

/// Whatever a careless pupil does next. Places are as a mouse on a large screen gives them, as
/// often as not on what is drawn, and now and then where it is led to.
inline void Bloud(Dialog& dialog, std::mt19937& los, Bod sem = BEZ_BODU) {
    const auto cislo = [&los](int pod) {
        return static_cast<int>(los() % static_cast<unsigned>(pod));
    };
    const auto misto = [&los](int nejvyse) {
        return static_cast<float>(static_cast<double>(los() % 100000) * nejvyse / 90000 - 10);
    };
    const Panel panel = dialog.UkazPanel();
    switch (cislo(8)) {
        case 0:
            dialog.StiskNacrtu(misto(289), misto(177));
            return;
        case 1:
            dialog.Napis(cislo(3) + 1, std::to_string(cislo(16)));
            return;
        case 2:
            if (cislo(4) == 0) dialog.Posun(cislo(2) == 0 ? 20 : -20, 0);
            return;
        case 3:
            if (cislo(6) == 0) dialog.ZavriSeznam();
            return;
        case 4:
        case 5:
            if (panel.Vyber.Otevreny)
                dialog.VyberRadku(cislo(static_cast<int>(panel.Vyber.Radky.size())) + 1);
            else
                dialog.StiskNastroje(cislo(cislo(5) != 0 ? 4 : 6) + 1);
            return;
        default:
            break;
    }
    float x = misto(SIRKA_PLOCHY), y = misto(VYSKA_PLOCHY);
    if (const int n = dialog.Pamet().PocetTrojic; n > 0 && cislo(2) == 0) {
        const Trojice& t = dialog.Pamet().Trojice_tab[cislo(n) + 1];
        x = static_cast<float>(t.X1);
        y = static_cast<float>(t.Y1) + 0.25F;
    }
    if (sem != BEZ_BODU && cislo(3) == 0) {
        x = static_cast<float>(sem.X);
        y = static_cast<float>(sem.Y);
    }
    dialog.StiskPlochy(x, y);
    if (dialog.CekaNaKresleni()) dialog.PusteniPlochy(misto(SIRKA_PLOCHY), misto(VYSKA_PLOCHY));
}

}  // namespace rysovna::testy
