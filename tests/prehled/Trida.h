#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "podpora/RukaPravidel.h"
#include "prehled/Prehled.h"
#include "rules/NahravanyDialog.h"
#include "rules/Prehravka.h"
#include "zak/Sestroj.h"

// A class whose pupils make known mistakes, and what is known of each series.

namespace rysovna::testy {

/// What is done in an example of the triangle by three sides, as bits.
enum Cin : unsigned {
    BEZ_CHYBY = 0,
    SPATNA_DELKA = 1,  ///< the first side is typed 1 cm longer: a point
    KOLMICE = 2,       ///< a perpendicular that does not belong there, and back: three points
    NEDOKONCI = 4,     ///< checked after the first side: all points
    VZDA = 8           ///< after what else was done another example is asked for
};

inline constexpr int BODU_KOLMICE = 3, CHYBA_KOLMICE = 19, CHYBA_NEDOKONCENI = 300,
                     CHYBA_PRVKU = 301;
inline const std::string VETA_KOLMICE = "Kolmice do této konstrukce nepatří.";

/// A pupil that plays the triangle by three sides and plants wrong steps.
class ChybujiciZak final : public RukaPravidel {
public:
    /// jmeno: as typed. plan: what is done in each example. Gives the attempt; vi what is known.
    std::pair<Pokus, prehled::Serie> Odehraj(const std::string& jmeno, DatumACas kdy,
                                             const std::vector<unsigned>& plan,
                                             std::uint32_t seminko) {
        vi_ = {.JmenoNapsane = jmeno, .Uloha = 1, .Zacatek = kdy, .Dokoncena = true};
        Misc misc = PametPrikladu(1, "1#sss, od strany c#a#b#c#cm#cm#cm#usecka#kruznice#kruznice");
        misc.Vety = [](int cislo) { return std::vector{Veta(cislo)}; };
        misc.Generator.Zasej(seminko);
        dialog_ = std::make_unique<NahravanyDialog>(misc, Platna_(),
                                                    VyrobDialog(DeskaUlohy(1), misc, Platna_()),
                                                    [this] { return ted_ += MEZI_VOLANIMI; });
        od_ = ted_;
        int prikladu = 0;
        for (const unsigned cin : plan) {
            ++prikladu;
            OdehrajPriklad(cin, prikladu, seminko);
        }
        vi_.Trvani = ted_ - od_;
        Pokus pokus{.Program = "1.0",
                    .Jmeno = jmeno,
                    .CisloUlohy = 1,
                    .Zacatek = kdy,
                    .PrikladuSerie = prikladu,
                    .Priklady = dialog_->Priklady(),
                    .Dokonceny = true};
        dialog_.reset();
        return {std::move(pokus), std::move(vi_)};
    }

protected:
    [[nodiscard]] Dialog& Hra() override { return *dialog_; }
    [[nodiscard]] const Dialog& Hra() const override { return dialog_->Hrany(); }

    void StiskRadku(int i, std::string_view text) override {
        if (strana_.empty()) strana_ = text;
        RukaPravidel::StiskRadku(i, text);
    }
    void Pis(int ktery, const std::string& text) override {
        const bool spatne = (cin_ & SPATNA_DELKA) != 0 && tahu_ == 0;
        RukaPravidel::Pis(ktery, spatne ? std::to_string(std::stoi(text) + 1) : text);
    }
    void TahPoPlose(Bod odkud, Bod kam) override {
        RukaPravidel::TahPoPlose(odkud, kam);
        if (++tahu_ != 1) return;
        // The first side is there.
        if ((cin_ & SPATNA_DELKA) != 0) Vim(CisloDelky(), 1, 1);  // at its press
        if ((cin_ & KOLMICE) != 0) {
            Nastroj(2).Vyber("k úsečce " + strana_).Tahni({140, 190}, {140, 100});
            Zpet();
            // At the press of the drag: its release and the step back came after it.
            Vim(CHYBA_KOLMICE, BODU_KOLMICE, 2);
        }
        if ((cin_ & (NEDOKONCI | VZDA)) != 0) throw Dost{};
    }

private:
    struct Dost {};
    static constexpr std::uint32_t MEZI_VOLANIMI = 700;  // ms

    static std::string Veta(int cislo) {
        constexpr std::pair<int, const char*> VETY[] = {
            {7, "Zapsaná délka strany a neodpovídá zadání."},
            {8, "Zapsaná délka strany b neodpovídá zadání."},
            {9, "Zapsaná délka strany c neodpovídá zadání."},
            {CHYBA_NEDOKONCENI, "Konstrukce není dokončená; „trojúhelník“ chybí."}};
        for (const auto& [c, veta] : VETY) {
            if (c == cislo) return veta;
        }
        return cislo == CHYBA_KOLMICE ? VETA_KOLMICE : "Věta " + std::to_string(cislo);
    }
    [[nodiscard]] int CisloDelky() const { return strana_ == "BC" ? 7 : strana_ == "AC" ? 8 : 9; }

    /// pred: so many calls ago.
    void Vim(int cislo, int bodu, std::uint32_t pred = 0) {
        vi_.Chyby.push_back({.Cislo = cislo,
                             .Bodu = bodu,
                             .Veta = Veta(cislo),
                             .Priklad = priklad_,
                             .Kdy = ted_ - od_ - pred * MEZI_VOLANIMI});
        ztraceno_ += bodu;
    }

    void OdehrajPriklad(unsigned cin, int priklad, std::uint32_t seminko) {
        cin_ = cin;
        priklad_ = priklad;
        tahu_ = ztraceno_ = 0;
        strana_.clear();
        dialog_->NovyPriklad();
        dialog_->NoveZadani();
        const std::uint32_t zadano = ted_;
        std::string zadani;
        for (const hrac::Zadano& z : Zadani())
            zadani += (zadani.empty() ? "" : ", ") + z.Velicina + " = " +
                      std::to_string(z.Hodnota) + " cm";
        try {
            hrac::Sestroj(*this, seminko + static_cast<std::uint32_t>(priklad));
        } catch (const Dost&) {
            tahu_ = 0;
        }
        const bool hotova = (cin & (NEDOKONCI | VZDA)) == 0;
        const bool zkontrolovan = (cin & VZDA) == 0;
        if (zkontrolovan) Zkontroluj();
        if (zkontrolovan && !hotova) {
            Vim(CHYBA_PRVKU, 2);  // both circles
            Vim(CHYBA_NEDOKONCENI, 10);
        }
        const int bodu = hotova ? 10 - ztraceno_ : 0;
        vi_.Priklady.push_back({.Zadani = zadani,
                                .Bodu = bodu,
                                .Nejvic = 10,
                                .Zkontrolovan = zkontrolovan,
                                .Hotova = hotova,
                                .Trvani = ted_ - zadano});
        if (zkontrolovan) {
            vi_.Bodu += bodu;
            vi_.Nejvic += 10;
        }
    }

    std::unique_ptr<NahravanyDialog> dialog_;
    prehled::Serie vi_;
    std::string strana_;  ///< that was chosen first, "AB"
    unsigned cin_ = BEZ_CHYBY;
    int priklad_ = 0, tahu_ = 0, ztraceno_ = 0;
    std::uint32_t ted_ = 0, od_ = 0;
};

}  // namespace rysovna::testy
