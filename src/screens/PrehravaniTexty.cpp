// A watched attempt in words: the two rows of the strip, the card.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Cisla.h"
#include "platform/Pisma.h"
#include "rules/Chyby.h"
#include "rules/KatalogChyb.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/PopisKroku.h"
#include "screens/PrehravaniForm.h"
#include "screens/RadaCesky.h"
#include "screens/SlovaObrazovek.h"

namespace rysovna {

namespace {

constexpr std::string_view PREDVEDENI = "Předvedení";

std::string Cislo(int n) {
    return TextBezMezery(n);
}

/// "3 min 5 s", "12 s".
std::string TextDoby(std::uint32_t ms) {
    constexpr std::uint32_t SEKUNDA = 1000, MINUTA = 60;
    const std::uint32_t s = (ms + SEKUNDA / 2) / SEKUNDA;
    const auto text = [](std::uint32_t n) { return std::to_string(n); };
    return (s >= MINUTA ? text(s / MINUTA) + " min " : "") + text(s % MINUTA) + " s";
}

}  // namespace

/// From 1; one that was given up for another counts again.
int PrehravaniForm::PoradiPrikladu() const {
    int poradi = 1;
    for (std::size_t p = 1; p < Co().Ted().Priklad; ++p)
        poradi += Co().Co().Priklady[p - 1].Konec ? 1 : 0;
    return poradi;
}

std::string PrehravaniForm::TextPrikladu() const {
    const int poradi = PoradiPrikladu();
    return "Příklad " + Cislo(poradi) + " z " + Cislo(std::max(Co().Co().PrikladuSerie, poradi));
}

std::string PrehravaniForm::TextKroku() const {
    const KrokPrehravani* pristi = Co().Pristi();
    if (Ohlasen()) {
        return PopisKroku(Co().UdalostKroku(*pristi)->Co, Co().Hrany().UkazPanel(), Co().Hrany());
    }
    if (Co().Cas() > Co().Ted().Kdy && pristi != nullptr && pristi->Vynechano > 0)
        return "Přemýšlení " + TextDoby(pristi->Vynechano + pristi->Doba) + " (zkráceno)";
    const Udalost* u = Co().UdalostKroku(Co().Ted());
    const bool odchod = pristi == nullptr && !Co().Co().Dokonceny && !Co().KdeSeRozesla();
    if (odchod) return (u == nullptr ? TextPrikladu() : popis_) + " – tady pokus končí";
    if (u == nullptr) return TextPrikladu();
    const auto& konec = Co().PrikladKroku(Co().Ted()).Konec;
    if (u->Co.Co == Volani::Druh::Kontrola && konec)
        return popis_ + ": " + TextBodu(konec->Bodu) + " z " + Cislo(BODU_ZA_PRIKLAD);
    return popis_;
}

/// The guide's rows in one, or as much of them as fits.
std::string PrehravaniForm::TextRady() const {
    const RadkyRady rada = RadaCesky(deska_->RadaTed(), CimSeHraje::Mysi);
    const std::string cela = rada[0] + (rada[1].empty() ? "" : " ") + rada[1];
    return SirkaTextu(lblDal.Font, cela) <= lblDal.Width ? cela : rada[0];
}

/// The second row.
void PrehravaniForm::VypisDalsi() {
    const Uloha& uloha = *NajdiUlohu(Co().Co().CisloUlohy);
    const std::string nazev = std::string(RODINY[uloha.Rodina]) + " " + std::string(uloha.TypUlohy);
    const bool zacatek = Co().Ted().Udalost == 0 && !Ohlasen();
    const auto& konec = Co().PrikladKroku(Co().Ted()).Konec;
    if (tempo_ == Tempo::Vyklad) {
        const bool poKontrole = Co().NaKonci() || (Co().Pristi()->Udalost == 0);
        lblDal.Caption = zacatek      ? std::string(PREDVEDENI) + ": " + nazev
                         : poKontrole ? nazev
                                      : TextRady();
        return;
    }
    const std::string kdo = Co().Co().Jmeno + ", " + DatumACasCesky(Co().Co().Zacatek);
    if (zacatek) {
        lblDal.Caption = kdo + ", " + nazev;
        return;
    }
    lblDal.Caption = TextPrikladu() + ", " +
                     (konec ? TextBodu(konec->Bodu) + " z " + Cislo(BODU_ZA_PRIKLAD)
                            : std::string("bez kontroly")) +
                     " – " + kdo;
}

std::string PrehravaniForm::TextKarty() const {
    std::string text;
    if (const Udalost* u = Co().UdalostKroku(Co().Ted())) {
        for (const ChybnyKrok& c : u->Chyby) text += (text.empty() ? "" : "\n") + c.Text;
    }
    if (Co().NaKonci() && Co().KdeSeRozesla()) {
        text += (text.empty() ? "" : "\n") +
                ("Dál záznam přehrát nejde (" + TextRozchodu(*Co().KdeSeRozesla()) + ").");
    }
    return text;
}

std::string PrehravaniForm::CoSeRika() const {
    const std::string karta = TextKarty();
    return lblKrok.Caption + " " + lblDal.Caption + (karta.empty() ? "" : " " + karta);
}

}  // namespace rysovna
