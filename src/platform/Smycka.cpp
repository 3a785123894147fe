#include "platform/Smycka.h"

#include <algorithm>
#include <utility>

#include "platform/Host.h"
#include "platform/Obrazovky.h"

namespace rysovna {

Smycka::Smycka(Host& host) : host_(host) {}

Smycka::~Smycka() = default;

std::size_t Smycka::Hloubka() const {
    return host_.Okna().Prace().Hloubka();
}

/// A work that goes on to its end lets the one below go on at once; before one that comes to
/// another wait, what is due by then has its turn.
bool Smycka::Splatne(std::size_t dno) {
    Obrazovky& okna = host_.Okna();
    Zasobnik& prace = okna.Prace();
    bool neco = false;
    for (;;) {
        okna.SpustOdlozene();
        neco |= Prijmi();
        okna.Casovace(host_.TickCount());
        Zasobnik::Krok krok = prace.Pokracuj(dno);
        neco |= krok != Zasobnik::Krok::Nic;
        while (krok == Zasobnik::Krok::Dobehl) krok = prace.Pokracuj(dno);
        if (krok == Zasobnik::Krok::Nic) return neco;
    }
}

void Smycka::Obrat(std::uint32_t nejvyseMs, std::size_t dno) {
    Obrazovky& okna = host_.Okna();
    try {
        const bool neco = Splatne(dno);
        Ukaz();
        // Who waits for a press must hear of one that was pending; nothing else may come after it.
        if (neco || nejvyseMs == 0) return;
        std::uint32_t cekat = nejvyseMs;
        std::uint32_t casovac = 0;
        if (okna.PristiCasovac(host_.TickCount(), casovac)) cekat = std::min(cekat, casovac);
        cekat = std::min(cekat, okna.Prace().Zbyva(dno).value_or(cekat));
        if (cekat > 0) Vyckej(cekat);
        Splatne(dno);
        Ukaz();
    } catch (...) {
        okna.Prace().Zrus();
        throw;
    }
}

void Smycka::Dobehni(std::size_t dno) {
    constexpr std::uint32_t KROK_MS = 100;
    while (Hloubka() > dno) Obrat(KROK_MS, dno);
}

void Smycka::Proved(Cinnost<> prace) {
    const std::size_t dno = Hloubka();
    host_.Okna().Spust(std::move(prace));
    Dobehni(dno);
}

}  // namespace rysovna
