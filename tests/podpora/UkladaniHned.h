#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/Zasobnik.h"
#include "store/KodovaStranka.h"
#include "store/Ukladani.h"
#include "store/UkladaniPokusu.h"

namespace rysovna::testy {

/// A pupil's result, and its row of the table.
inline Vysledek VysledekZaka(const std::string& jmeno, int uloha = 1) {
    return {.CisloUlohy = uloha,
            .Jmeno = jmeno,
            .Hra = "Trojúhelník 1",
            .Typ = "podle věty SSS",
            .Prikladu = "5",
            .Kladne = "50",
            .Zaporne = "0",
            .Znamka = "1",
            .Konec = {2024, 9, 3, 8, 5}};
}
inline std::string RadekTabulky(const std::string& jmeno) {
    return Do1250(jmeno) + "|50|0|1\r\n";
}

/// A pupil's series of two examples, the second one left half done.
inline Pokus SerieZaka() {
    HranyPriklad p;
    p.Zadani.Zaznam.Druh = "1";
    p.Udalosti.push_back({.Co = {.Co = Volani::Druh::Nastroj, .Kdy = 5, .Cislo = 1}});
    HranyPriklad druhy = p;
    p.Konec = {.Bodu = 10, .Hotova = true};
    return {.Program = "1.0",
            .Jmeno = "Eva",
            .CisloUlohy = 1,
            .Zacatek = {2026, 11, 22, 17, 5},
            .PrikladuSerie = 2,
            .Priklady = {p, druhy}};
}

/// A clock and a sleep, ms.
struct Hodiny {
    std::function<std::uint32_t()> Ted;
    std::function<void(std::uint32_t)> Spi;
};

/// Does works with no screens about: what they wait for is slept.
class Hned {
public:
    explicit Hned(Hodiny hodiny) : hodiny_(std::move(hodiny)) {}

    template <class T>
    T operator()(Cinnost<T> prace) {
        Zasobnik zasobnik(hodiny_.Ted, [] { return false; });
        std::optional<T> vysledek;
        zasobnik.Spust(Predej<T>(std::move(prace), [&](T v) { vysledek = std::move(v); }));
        while (zasobnik.Hloubka() > 0) {
            hodiny_.Spi(zasobnik.Zbyva().value_or(0));
            zasobnik.Pokracuj();
        }
        return std::move(*vysledek);
    }

private:
    Hodiny hodiny_;
};

/// The storing of results at once.
class UkladaniHned {
public:
    UkladaniHned(Disk& disk, const Hodiny& hodiny, const std::filesystem::path& koren,
                 std::filesystem::path slozkaStavu)
        : hned_(hodiny), ukladani_(disk, hodiny.Ted, koren, std::move(slozkaStavu)) {}

    [[nodiscard]] Ukladani::Ulozeni Uloz(const Vysledek& v) { return hned_(ukladani_.Uloz(v)); }
    [[nodiscard]] std::string ZkusCekajici() { return hned_(ukladani_.ZkusCekajici()); }
    [[nodiscard]] const Ukladani& Sam() const { return ukladani_; }

private:
    Hned hned_;
    Ukladani ukladani_;
};

/// The keeping of attempts at once.
class UkladaniPokusuHned {
public:
    UkladaniPokusuHned(Disk& disk, const Hodiny& hodiny, const std::filesystem::path& koren,
                       const std::filesystem::path& slozkaStavu)
        : hned_(hodiny), ukladani_(disk, hodiny.Ted, koren, slozkaStavu) {}

    void Zacni(const Pokus& p) { ukladani_.Zacni(p); }
    void Pridej(const HranyPriklad& p) { ukladani_.Pridej(p); }
    void Opust() { ukladani_.Opust(); }
    [[nodiscard]] std::string Dokonci(bool dokonceny) {
        return hned_(ukladani_.Dokonci(dokonceny));
    }
    [[nodiscard]] std::string ZkusCekajici(const DatumACas& dnes) {
        return hned_(ukladani_.ZkusCekajici(dnes));
    }

private:
    Hned hned_;
    UkladaniPokusu ukladani_;
};

}  // namespace rysovna::testy
