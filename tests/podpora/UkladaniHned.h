#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/Zasobnik.h"
#include "store/Ukladani.h"
#include "store/UkladaniPokusu.h"

namespace rysovna::testy {

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
