#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Cinnost.h"
#include "platform/Ovladace.h"

namespace rysovna {

/// The design area, design pixels: what every screen is laid out for.
constexpr int NAVRH_SIRKA = 640, NAVRH_VYSKA = 480;

/// The pointer of the keys on the object that has the ring, px of the object: what the ring goes
/// round, and where a press falls.
struct UkazatelKlaves {
    Obdelnik Ram;
    Bod Hrot;
    bool Kriz = false;  ///< that place is shown by a cross
};

/// A mouse that a form shows, as if somebody moved it: its tip, design px, and whether it is
/// pressed.
struct PromitanaMys {
    Bod Hrot;
    bool Stisknuta = false;
};

/// The answer to a key: none if it was not used, else what is still to be done.
using Odezva = std::optional<Cinnost<>>;

/// A screen: a record of its own with its objects, and the calls by which events reach it. One
/// class per screen derives from it. Made and destroyed by Obrazovky alone.
///
/// A handler that waits does at once what comes before its waits and gives the rest back, to be run
/// next. A wait lets further events through, and one of them may unload the very form whose handler
/// waits. Unloading hides at once; the handler is ended when its wait would have ended, also when
/// the process is to end, and the form is destroyed when no handler of it is left.
class Form : public std::enable_shared_from_this<Form>, public Majitel, public SmiCekat {
public:
    /// Name of the screen, "SelectForm": tests find it by this.
    [[nodiscard]] virtual std::string_view Jmeno() const = 0;

    std::string Caption;
    int Left = 0, Top = 0, Width = NAVRH_SIRKA, Height = NAVRH_VYSKA;  ///< design pixels
    bool Maximised = false;
    Barva BackColor = CERNA;  ///< BEZ_BARVY: where it has no picture, what lies below is seen
    Obrazek Picture;
    bool StiskVzdy = false;  ///< a press on it counts even if it was made in a closed wait

    [[nodiscard]] bool Viditelny() const { return viditelny_; }
    [[nodiscard]] bool Zavreny() const { return zavreny_; }
    [[nodiscard]] bool Skoncil() const final { return zavreny_; }

    /// The objects in the order of painting: later ones cover earlier ones.
    [[nodiscard]] const std::vector<Ovladac*>& Ovladace() const { return ovladace_; }
    /// By name and index (0 for one that stands alone); null if there is none.
    [[nodiscard]] Ovladac* Najdi(std::string_view jmeno, int index = 0) const;
    void DoPopredi(Ovladac& o);
    /// Gives a text box the keyboard.
    void SetFocus(TextBox& t) { prsten_ = zamereni_ = &t; }
    [[nodiscard]] TextBox* Zamereni() const { return zamereni_; }
    void ZrusZamereni() { zamereni_ = nullptr; }
    /// Puts the ring of the keys on an object; whether it is shown is not changed.
    void Prsten(Ovladac& o) { prsten_ = &o; }

    // Events. o is the object; null is the form itself. A subclass takes those that it wants.
    virtual void Load() {}
    virtual void Unload() {}
    virtual void Activate() {}
    /// Just before a painter paints the form: for what is laid out anew only when it is seen.
    virtual void Paint() {}
    virtual Cinnost<> MouseDown(Ovladac* /*o*/, const Mys& /*m*/) { return {}; }
    virtual void MouseMove(Ovladac* /*o*/, const Mys& /*m*/) {}
    virtual Cinnost<> MouseUp(Ovladac* /*o*/, const Mys& /*m*/) { return {}; }
    /// The left button went down and up over the same object.
    virtual Cinnost<> Click(Ovladac* /*o*/) { return {}; }
    /// The person edited the text. What the program itself writes into a text box gives no event.
    virtual void Change(TextBox& /*t*/) {}
    virtual Cinnost<> TimerTick(Timer& /*t*/) { return {}; }
    /// A key that no text box took: "Return", "Escape", ... (shift: SHIFT, CTRL), a letter with
    /// Ctrl as "Ctrl+p". What the form does not use moves the ring or presses what it is on.
    virtual Odezva Klavesa(std::string_view /*klavesa*/, int /*shift*/) { return std::nullopt; }
    /// A key for the object that has the shown ring, before it moves the ring. True if it was used.
    virtual bool KlavesaNa(Ovladac& /*o*/, std::string_view /*klavesa*/, int /*shift*/) {
        return false;
    }
    /// The shown ring came to an object.
    virtual void PriselPrsten(Ovladac& /*o*/) {}
    /// Where the ring is when its object is none or not live any more; null: the first live one.
    [[nodiscard]] virtual Ovladac* PrvniZastavka() { return nullptr; }
    /// What F1 presses; null if there is no help to this screen.
    [[nodiscard]] virtual Ovladac* Napoveda() { return nullptr; }
    [[nodiscard]] virtual UkazatelKlaves Ukazatel(const Ovladac& o) const {
        return {{0, 0, o.Width, o.Height}, {o.Width / 2, o.Height / 2}};
    }
    /// Which part of a live object, from 1, is at a place of it, so that a finger finds the
    /// nearest; 0: the object has no parts; -1: it has, and none is there.
    [[nodiscard]] virtual int CastProPrst(const Ovladac& /*o*/, float /*x*/, float /*y*/) const {
        return 0;
    }
    /// The pointer over an object (null: the form), px of it.
    [[nodiscard]] virtual Kurzor KurzorNad(const Ovladac* o, float x, float y) const;
    /// The point that a press would catch where the pointer is, design px.
    [[nodiscard]] virtual std::optional<Bod> Zachytne() const { return std::nullopt; }
    /// The mouse that is shown over this screen and all that lies below it.
    [[nodiscard]] virtual std::optional<PromitanaMys> CiziMys() const { return std::nullopt; }
    /// What is asked of the person now, for a machine that says it aloud; empty: nothing.
    [[nodiscard]] virtual std::string CoSeRika() const { return {}; }
    /// The window is being closed from outside. The shell's root screen asks its exit question.
    virtual Cinnost<> QueryUnload() { return {}; }

protected:
    /// Enters an object into the form at its place, as the design lays it out.
    void Pridej(Ovladac& o, std::string_view jmeno, Obdelnik misto, Ovladac* rodic = nullptr);
    /// Enters an array: row 1 (or prvniIndex) is its first member. All get the same place: the
    /// load handler spreads them.
    template <class T, std::size_t N>
    void PridejPole(std::array<T, N>& pole, std::string_view jmeno, Obdelnik misto,
                    Ovladac* rodic = nullptr, int prvniIndex = 1) {
        for (std::size_t i = 0; i < N; ++i) {
            Pridej(pole[i], jmeno, misto, rodic);
            pole[i].Index = static_cast<int>(i) + prvniIndex;
        }
    }
    /// Whether an object is a member of the array; gives its index by .Index.
    template <class T, std::size_t N>
    [[nodiscard]] static bool Je(const std::array<T, N>& pole, const Ovladac* o) {
        for (const T& prvek : pole) {
            if (&prvek == o) return true;
        }
        return false;
    }

private:
    friend class Obrazovky;
    friend Ovladac* MistoPrstenu(Form& form);
    std::vector<Ovladac*> ovladace_;
    TextBox* zamereni_ = nullptr;
    Ovladac* prsten_ = nullptr;
    bool viditelny_ = false;
    bool zavreny_ = false;
};

}  // namespace rysovna
