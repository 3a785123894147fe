#include "rules/Prehravka.h"

#include <exception>
#include <utility>

#include "rules/VolaniDialogu.h"

namespace rysovna {

namespace {

/// "15 za 1, 301 za 3"; "nic" for no charge.
std::string Ucty(const std::vector<ChybnyKrok>& chyby) {
    std::string text;
    for (const ChybnyKrok& c : chyby)
        text += (text.empty() ? "" : ", ") + c.Cislo + " za " + std::to_string(c.Body);
    return text.empty() ? "nic" : text;
}

}  // namespace

std::string TextRozchodu(const Rozchod& rozchod) {
    const auto krok = rozchod.Udalost == 0 ? "" : ", krok " + std::to_string(rozchod.Udalost);
    return "příklad " + std::to_string(rozchod.Priklad) + krok + ": " + rozchod.Proc;
}

Prehravka::Prehravka(const Pokus& pokus, Platna platna, const VyrobceDialogu& vyrobce)
    : pokus_(pokus) {
    const Deska deska = DeskaUlohy(pokus.CisloUlohy);
    misc_.CisloUlohy = static_cast<std::uint8_t>(pokus.CisloUlohy);
    misc_.SmazTabulky();
    // A number that was not asked for then has no sentence; that it is asked for now is a
    // difference of its own.
    misc_.Vety = [this](int cislo) -> std::vector<std::string> {
        const auto& vety = pokus_.Priklady[priklad_ - 1].Vety;
        const auto v = vety.find(cislo);
        if (v != vety.end()) return v->second;
        Rozejdi("nově se účtuje chybný krok " + std::to_string(cislo));
        return {};
    };
    dialog_ =
        vyrobce ? vyrobce(pokus.CisloUlohy, misc_, platna) : VyrobDialog(deska, misc_, platna);
}

void Prehravka::Rozejdi(std::string proc) {
    if (!rozchod_) rozchod_ = {priklad_, udalost_, std::move(proc)};
}

void Prehravka::PorovnejTabulky(std::uint32_t otisk) {
    if (OtiskTabulek(misc_, *dialog_) != otisk) Rozejdi("konstrukce je jiná");
}

void Prehravka::Zadej(const HranyPriklad& p) {
    dialog_->NovyPriklad();
    dialog_->Zadej(p.Zadani);
    PorovnejTabulky(p.Otisk);
}

void Prehravka::Proved(const HranyPriklad& p, const rysovna::Udalost& u) {
    const int pred = misc_.PocetChybnychKroku;
    static_cast<void>(rysovna::Proved(*dialog_, u.Co));
    const std::vector<ChybnyKrok> chyby = NoveChyby(misc_, pred);
    if (Ucty(chyby) != Ucty(u.Chyby)) {
        Rozejdi("účtuje se " + Ucty(chyby) + ", účtovalo se " + Ucty(u.Chyby));
    } else if (chyby != u.Chyby) {
        Rozejdi("znění chybného kroku je jiné");
    }
    PorovnejTabulky(u.Otisk);
    if (u.Co.Co != Volani::Druh::Kontrola || !p.Konec) return;
    const HranyPriklad::Vysledek konec = KonecPrikladu(*dialog_);
    if (konec != *p.Konec) {
        Rozejdi("vychází bodů: " + std::to_string(konec.Bodu) +
                ", vyšlo: " + std::to_string(p.Konec->Bodu));
    }
}

bool Prehravka::Dalsi() {
    if (rozchod_) return false;
    const bool novy = priklad_ == 0 || udalost_ == pokus_.Priklady[priklad_ - 1].Udalosti.size();
    if (novy && priklad_ == pokus_.Priklady.size()) return false;
    priklad_ += novy ? 1 : 0;
    udalost_ = novy ? 0 : udalost_ + 1;
    const HranyPriklad& p = pokus_.Priklady[priklad_ - 1];
    // What others wrote may ask for what no pupil could do: that is no fault of this program.
    try {
        novy ? Zadej(p) : Proved(p, p.Udalosti[udalost_ - 1]);
    } catch (const std::exception& chyba) {
        Rozejdi(chyba.what());
    }
    return !rozchod_;
}

const std::optional<Rozchod>& Prehravka::DoKonce() {
    while (Dalsi()) {
    }
    return rozchod_;
}

}  // namespace rysovna
