#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/Zasobnik.h"
#include "store/Kodovani.h"
#include "store/Ukladani.h"

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

/// A clock and a sleep, ms.
struct Hodiny {
    std::function<std::uint32_t()> Ted;
    std::function<void(std::uint32_t)> Spi;
};

/// The storing of results with no screens about: what it waits for is slept.
class UkladaniHned : SmiCekat {
public:
    UkladaniHned(Disk& disk, Hodiny hodiny, const std::filesystem::path& koren,
                 std::filesystem::path slozkaStavu)
        : hodiny_(std::move(hodiny)), ukladani_(disk, hodiny_.Ted, koren, std::move(slozkaStavu)) {}

    [[nodiscard]] Ukladani::Ulozeni Uloz(const Vysledek& v) { return Hned(ukladani_.Uloz(v)); }
    [[nodiscard]] std::string ZkusCekajici() { return Hned(ukladani_.ZkusCekajici()); }
    [[nodiscard]] const Ukladani& Sam() const { return ukladani_; }

private:
    template <class T>
    Cinnost<> Predej(Cinnost<T> prace, std::function<void(T)> kam) {
        kam(co_await prace);
    }
    template <class T>
    T Hned(Cinnost<T> prace) {
        Zasobnik zasobnik(hodiny_.Ted, [] { return false; });
        std::optional<T> vysledek;
        zasobnik.Spust(Predej<T>(std::move(prace), [&](T v) { vysledek = std::move(v); }));
        while (zasobnik.Hloubka() > 0) {
            hodiny_.Spi(zasobnik.Zbyva().value_or(0));
            zasobnik.Pokracuj();
        }
        return std::move(*vysledek);
    }

    Hodiny hodiny_;
    Ukladani ukladani_;
};

}  // namespace rysovna::testy
