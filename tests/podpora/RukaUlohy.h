#pragma once

#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "hrac/Relace.h"
#include "podpora/RukaPravidel.h"
#include "rules/NahravanyDialog.h"
#include "rules/Postup.h"
#include "rules/Prehravka.h"
#include "screens/Start.h"
#include "store/Soubory.h"

namespace rysovna::testy {

using hrac::Relace;

/// A hand at a dialogue of a task: the tables of a session of its own, the lines of the task's
/// file.
class RukaUlohy : public RukaPravidel {
public:
    using Ruka::Pamet;
    /// The session, to set and to look at.
    [[nodiscard]] Sezeni& Pamet() { return relace_.Pamet(); }

protected:
    explicit RukaUlohy(int uloha) {
        if (!NactiKonfiguraci(Pamet()).empty()) throw std::runtime_error("bez konfigurace");
        Pamet().CisloUlohy = static_cast<std::uint8_t>(uloha);
        NactiRadky();
    }
    void NactiRadky() {
        NactiPriklady(Pamet(), relace_.Host().Disk(), Pamet().CestaHD + Soubor(),
                      MapaDesky(DeskaUlohy(Pamet().CisloUlohy)));
    }
    /// The name of the task's file.
    [[nodiscard]] std::string Soubor() { return DveCislice(Pamet().CisloUlohy) + ".dat"; }

    Relace relace_;
};

/// One that plays series, which are recorded, at whatever board the task has.
class RukaSerie : public RukaUlohy {
protected:
    using RukaUlohy::RukaUlohy;
    /// ted: tick count, ms.
    void ZacniSerii(std::function<std::uint32_t()> ted) {
        dialog_ = std::make_unique<NahravanyDialog>(
            Pamet(), Platna_(), VyrobDialog(DeskaUlohy(Pamet().CisloUlohy), Pamet(), Platna_()),
            std::move(ted));
    }
    [[nodiscard]] Dialog& Hra() override { return *dialog_; }
    // The board's own: pupils ask it what it is.
    [[nodiscard]] const Dialog& Hra() const override { return dialog_->Hrany(); }

    std::unique_ptr<NahravanyDialog> dialog_;
};

/// Whether what stands there, right or wrong, can be written down, each object once.
inline bool ZapiseSe(const Dialog& dialog) {
    std::set<int> radky;
    int utvaru = 0;
    for (const KrokPostupu& k : SestavPostup(dialog)) {
        radky.insert(k.Utvary.begin(), k.Utvary.end());
        utvaru += static_cast<int>(k.Utvary.size());
        if (k.Co.empty()) return false;
    }
    const int vsech = dialog.Pamet().PocetUtvaru;
    return utvaru == vsech && std::ssize(radky) == vsech &&
           (radky.empty() || (*radky.begin() == 1 && *radky.rbegin() == vsech));
}

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
