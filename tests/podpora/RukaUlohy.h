#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "engine/Miry.h"
#include "hrac/Relace.h"
#include "podpora/RukaPravidel.h"
#include "rules/NahravanyDialog.h"
#include "rules/Prehravka.h"
#include "screens/Start.h"
#include "store/JmenaSouboru.h"
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
    [[nodiscard]] std::string Soubor() { return JmenoUlohy(Pamet().CisloUlohy); }

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

}  // namespace rysovna::testy
