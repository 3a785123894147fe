#pragma once

#include <coroutine>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <ranges>
#include <type_traits>
#include <utility>
#include <vector>

namespace rysovna {

class Cekani;
class Vlakno;
class Zasobnik;
template <class T = void>
class Cinnost;

/// Whose work it is: what has no owner left is ended at its next wait.
class Majitel {
public:
    virtual ~Majitel() = default;
    [[nodiscard]] virtual bool Skoncil() const = 0;

protected:
    Majitel() = default;
    Majitel(const Majitel&) = default;
    Majitel& operator=(const Majitel&) = default;
};

/// Base of the classes whose member functions may wait: their objects outlive the waits. No other
/// class may, so no lambda either, whose captures go when its full expression ends.
struct SmiCekat {};

/// What an argument of a work that waits may be: it lives in the work's own frame, longer than what
/// the caller had at hand.
template <class A>
constexpr bool JE_HODNOTA =
    !std::is_reference_v<A> && !std::is_pointer_v<A> && !std::ranges::view<std::remove_cv_t<A>>;
template <class A>
constexpr bool JE_HODNOTA<std::reference_wrapper<A>> = false;

template <class... A>
constexpr bool JSOU_HODNOTY = (JE_HODNOTA<A> && ...);
/// The first one may be the object of a member function.
template <class A, class... B>
constexpr bool JSOU_HODNOTY<A&, B...> = std::is_base_of_v<SmiCekat, std::remove_cv_t<A>> &&
                                        (JE_HODNOTA<B> && ...);

/// What is common to all works: who runs it, and the fault that ended it.
struct PrislibCinnosti {
    [[nodiscard]] std::suspend_always initial_suspend() const noexcept { return {}; }
    [[nodiscard]] std::suspend_always final_suspend() const noexcept { return {}; }
    void unhandled_exception() noexcept { Chyba = std::current_exception(); }

    Vlakno* Kdo = nullptr;
    std::exception_ptr Chyba;
};

template <class T>
struct PrislibHodnoty : PrislibCinnosti {
    void return_value(T hodnota) { Hodnota.emplace(std::move(hodnota)); }
    std::optional<T> Hodnota;
};
template <>
struct PrislibHodnoty<void> : PrislibCinnosti {
    void return_void() const noexcept {}
};

/// A work that may wait on its way: what a function gives back that says `co_await`. It begins when
/// it is awaited by another one, or handed to a Zasobnik; it owns its frame and ends with it. An
/// empty one is nothing to be done. Its arguments are values, see JSOU_HODNOTY.
template <class T>
class [[nodiscard]] Cinnost {
public:
    struct Prislib : PrislibHodnoty<T> {
        Cinnost get_return_object() { return Cinnost(Ramec::from_promise(*this)); }
    };

    Cinnost() = default;
    Cinnost(Cinnost&& jiny) noexcept
        : komu_(std::move(jiny.komu_)), ramec_(std::exchange(jiny.ramec_, nullptr)) {}
    Cinnost& operator=(Cinnost&& jiny) noexcept {
        std::swap(komu_, jiny.komu_);
        std::swap(ramec_, jiny.ramec_);
        return *this;
    }
    Cinnost(const Cinnost&) = delete;
    Cinnost& operator=(const Cinnost&) = delete;
    ~Cinnost() {
        // The owner outlives what it owns.
        if (ramec_) ramec_.destroy();
    }

    /// The same work as somebody's: held by it, and ended with it.
    [[nodiscard]] Cinnost Komu(std::shared_ptr<const Majitel> komu) && {
        komu_ = std::move(komu);
        return std::move(*this);
    }
    [[nodiscard]] bool JePrazdna() const { return !ramec_; }

    // co_await: runs it to its end first. One that was ended before gives T().
    [[nodiscard]] bool await_ready() const noexcept { return !ramec_; }
    template <class P>
    void await_suspend(std::coroutine_handle<P> rodic) {
        ramec_.promise().Kdo = rodic.promise().Kdo;
        ramec_.promise().Kdo->Vnor(ramec_, komu_.get());
    }
    T await_resume() {
        if constexpr (std::is_void_v<T>) {
            if (ramec_ && ramec_.promise().Chyba) std::rethrow_exception(ramec_.promise().Chyba);
        } else {
            if (!ramec_) return T();
            if (ramec_.promise().Chyba) std::rethrow_exception(ramec_.promise().Chyba);
            return std::move(ramec_.promise().Hodnota).value_or(T());
        }
    }

private:
    friend class Zasobnik;
    using Ramec = std::coroutine_handle<Prislib>;
    explicit Cinnost(Ramec ramec) : ramec_(ramec) {}

    std::shared_ptr<const Majitel> komu_;
    Ramec ramec_ = nullptr;
};

/// A work that was begun, with the works that it awaits within it, and the wait that it stands in.
class Vlakno {
public:
    /// A work within it begins: it is run next, and what awaits it when it is done.
    void Vnor(std::coroutine_handle<> ramec, const Majitel* komu) {
        ramce_.push_back({ramec, komu});
    }
    /// It comes to a wait. False if that is over at once.
    [[nodiscard]] bool Zacni(Cekani& cekani);

private:
    friend class Zasobnik;
    struct Ramec {
        std::coroutine_handle<> Co;
        const Majitel* Komu = nullptr;
    };
    Vlakno(Zasobnik& kde, Cinnost<void> prace);
    void Jdi();
    void UkonciOsirele(bool konec);

    Zasobnik& kde_;
    std::unique_ptr<Cinnost<void>> prace_;
    std::vector<Ramec> ramce_;  ///< the innermost one last
    Cekani* ceka_ = nullptr;
};

/// A wait: `co_await Cekani(50);`. Over when its time is, or its condition, which is asked after
/// whatever happened; at the latest when the process is to end.
class Cekani {
public:
    /// So many milliseconds; 0 is no wait. nac: what for, so that it can be asked after.
    explicit Cekani(std::uint32_t ms, int nac = 0) : ms_(ms), nac_(nac) {}
    /// Until the condition holds, or so many milliseconds.
    explicit Cekani(std::function<bool()> dokud, std::optional<std::uint32_t> ms = {})
        : ms_(ms), dokud_(std::move(dokud)) {}
    /// So many milliseconds, in which at least what has come by now is taken in, were they none.
    [[nodiscard]] static Cekani SVstupem(std::uint32_t ms) {
        Cekani cekani(ms);
        cekani.vzdy_ = true;
        return cekani;
    }

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    template <class P>
    [[nodiscard]] bool await_suspend(std::coroutine_handle<P> kdo) {
        return kdo.promise().Kdo->Zacni(*this);
    }
    void await_resume() const noexcept {}

private:
    friend class Vlakno;
    friend class Zasobnik;
    std::optional<std::uint32_t> ms_;
    std::function<bool()> dokud_;
    bool vzdy_ = false;
    int nac_ = 0;
    std::uint32_t od_ = 0;
};

}  // namespace rysovna

template <class T, class... A>
struct std::coroutine_traits<rysovna::Cinnost<T>, A...> {
    static_assert(rysovna::JSOU_HODNOTY<A...>,
                  "arguments of a work that waits are values, and it is no lambda");
    using promise_type = typename rysovna::Cinnost<T>::Prislib;
};

namespace rysovna {

/// The same work as one that gives nothing: what it gives is handed to kam.
template <class T>
Cinnost<> Predej(Cinnost<T> prace, std::function<void(T)> kam) {
    // It has a name: the compiler numbers the nameless values of a frame anew in each file, and the
    // link that looks for types of one name that differ would find them to differ.
    T vysledek = co_await prace;
    kam(std::move(vysledek));
}

}  // namespace rysovna
