#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/Cinnost.h"

namespace rysovna {

/// The works that were begun and are not done: a stack. Only the one that was begun last can go on,
/// so one that begins while another waits comes to its end first. A work whose owner is gone, or
/// any that has one once the process is to end, is ended when the wait that it stands in is over.
class Zasobnik {
public:
    /// ted: tick count, ms. konec: the process is to end: no wait lasts any more.
    Zasobnik(std::function<std::uint32_t()> ted, std::function<bool()> konec);
    ~Zasobnik();
    Zasobnik(const Zasobnik&) = delete;
    Zasobnik& operator=(const Zasobnik&) = delete;

    /// Begins a work: runs it to its first wait. Its fault comes out here.
    void Spust(Cinnost<> prace);

    enum class Krok {
        Nic,     ///< nothing could go on
        Dobehl,  ///< the last one went on to its end
        Ceka     ///< it went on to its next wait
    };
    /// Lets the last one go on if its wait is over and more than dno are there. Its fault comes out
    /// here.
    Krok Pokracuj(std::size_t dno = 0);
    /// In how many milliseconds the last one's time is over, if more than dno are there; none if it
    /// waits for no time.
    [[nodiscard]] std::optional<std::uint32_t> Zbyva(std::size_t dno = 0) const;

    /// How many works are begun and not done.
    [[nodiscard]] std::size_t Hloubka() const { return vlakna_.size(); }
    /// Whether a work of this owner waits; nac: for that.
    [[nodiscard]] bool Ceka(const Majitel& komu, int nac = 0) const;
    /// Ends all that wait, the last one first.
    void Zrus();

private:
    friend class Vlakno;
    void Vykonej(Vlakno& v);
    [[nodiscard]] bool Uplynulo(const Cekani& cekani) const;

    std::function<std::uint32_t()> ted_;
    std::function<bool()> konec_;
    std::vector<std::unique_ptr<Vlakno>> vlakna_;
};

}  // namespace rysovna
