#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "base/Cinnost.h"

namespace rysovna {

class Host;
class Obrazovky;

/// The loop: main, the player and the tests turn it. What a handler is handed is a Host, from which
/// it cannot be reached: who wants to wait says so and gives the rest back.
class Smycka : public SmiCekat {
public:
    explicit Smycka(Host& host);
    virtual ~Smycka();
    Smycka(const Smycka&) = delete;
    Smycka& operator=(const Smycka&) = delete;

    /// A wait that only something that happens will end.
    static constexpr std::uint32_t BEZ_LHUTY = std::numeric_limits<std::uint32_t>::max();

    /// One turn: what is due (input, timers, then the waits whose time has come), and the picture.
    /// If there was nothing, it waits for the next thing to happen, at most so long (0: not at
    /// all), and does the same again. dno: works that were begun before, which do not go on. A
    /// fault of a handler comes out here, and all that waited besides is ended.
    void Obrat(std::uint32_t nejvyseMs, std::size_t dno = 0);
    /// How many works are begun and not done.
    [[nodiscard]] std::size_t Hloubka() const;
    /// Turns until no more than dno are.
    void Dobehni(std::size_t dno = 0);
    /// Begins a work, turns until it is done, and gives what it gives.
    void Proved(Cinnost<> prace);
    template <class T>
    T Proved(Cinnost<T> prace) {
        std::optional<T> vysledek;
        Proved(Predej<T>(std::move(prace), [&](T v) { vysledek = std::move(v); }));
        return std::move(vysledek).value_or(T());
    }

protected:
    /// Takes in what has come, and hands it to the screens. Whether there was something.
    virtual bool Prijmi() = 0;
    /// Shows what changed.
    virtual void Ukaz() = 0;
    /// Waits for something to come, at least 1 ms and at most so long.
    virtual void Vyckej(std::uint32_t nejvyseMs) = 0;

private:
    bool Splatne(std::size_t dno);

    Host& host_;
};

}  // namespace rysovna
