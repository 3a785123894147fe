#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Zasobnik.h"
#include "platform/Form.h"

namespace rysovna {

class Host;

/// When a press was made, tick counts: as early as it can have been, as late. Both the same where
/// the machine knows.
struct CasStisku {
    std::uint32_t Nejdrive = 0, Nejpozdeji = 0;
};

/// What the pupil plays with.
enum class CimSeHraje { Mysi, Klavesami, Prstem };

/// The screens of the program on one window, and the dispatcher of events. A host feeds it with
/// input in design pixels (0 to 640, 0 to 480); it finds the object under the pointer and calls
/// the form. A press captures the pointer until the release, so that a drag that leaves its
/// object goes on.
///
/// A press within 500 ms and 4 px on each axis of the one before acts only on the very object that
/// the first of such a row hit, and not even there if that object takes no double clicks. What a
/// dropped press drags along (moves, release) goes to nobody.
class Obrazovky : public SmiCekat {
public:
    explicit Obrazovky(Host& host);
    ~Obrazovky();
    Obrazovky(const Obrazovky&) = delete;
    Obrazovky& operator=(const Obrazovky&) = delete;

    /// Makes a screen and runs its load handler.
    template <class F, class... A>
    std::shared_ptr<F> Nacti(A&&... a) {
        auto form = std::make_shared<F>(std::forward<A>(a)...);
        Zaved(form);
        return form;
    }
    void Zaved(const std::shared_ptr<Form>& form);
    /// Shows and brings to the front; the form gets Activate when it comes to the front.
    void Show(Form& form);
    void Hide(Form& form);
    /// Hides at once, runs Unload, forgets. The object lives on while a handler of it runs.
    void Unload(Form& form);
    /// Ends all that waits and unloads everything: the end of the process or of a test. Nothing is
    /// to end any more after it, so that a message about a fault waits for its answer.
    void UnloadVse();

    /// The loaded form of this name; null if there is none.
    [[nodiscard]] std::shared_ptr<Form> Najdi(std::string_view jmeno) const;
    /// The form in front; null if none is visible.
    [[nodiscard]] std::shared_ptr<Form> Vpredu() const;
    /// Visible forms from the back to the front.
    [[nodiscard]] const std::vector<std::shared_ptr<Form>>& Viditelne() const;

    /// A form that stands in front of all and alone gets events until it unloads (message box). It
    /// must be loaded; this shows it. The timers of other forms stand still meanwhile. When it
    /// goes, nobody gets Activate.
    void NastavModalni(const std::shared_ptr<Form>& form);
    [[nodiscard]] bool JeModalni() const;

    /// Begins a work that waits, as the form's own, where a call that does not wait asks for it:
    /// it goes on before whatever was begun before it.
    void Spust(Form& form, Cinnost<> prace);
    /// The same for a work of nobody: only the fault of another one ends it.
    void Spust(Cinnost<> prace);
    /// Whether a handler of the form waits; nac: for that.
    [[nodiscard]] bool Ceka(const Form& form, int nac = 0) const;

    /// As long as this lives, waits are closed, as those of a panel that slides, or of the storing
    /// of a result: presses made meanwhile are dropped with their releases, no timer fires, and all
    /// other input (keys, the window's close, moves, a press on a form that takes presses always)
    /// is delivered in its order when the program lets events through again. A message box that
    /// comes up inside gets its input as ever. Who closes waits once more at the end by
    /// Cekani::SVstupem(0): what has come since the last look belongs to the closed wait too.
    class Zavreni {
    public:
        explicit Zavreni(Obrazovky& kde);
        ~Zavreni();
        Zavreni(const Zavreni&) = delete;
        Zavreni& operator=(const Zavreni&) = delete;

    private:
        Obrazovky& kde_;
    };
    /// Whether waits are closed.
    [[nodiscard]] bool JeZavreno() const;
    /// Delivers what closed waits have kept, one after the other.
    Cinnost<> DorucOdlozene();

    // Input, design pixels.
    void MysDolu(double x, double y, int tlacitko, int shift, CasStisku cas);
    /// A press of this very moment.
    void MysDolu(double x, double y, int tlacitko, int shift);
    void MysPohyb(double x, double y, int drzena, int shift);
    void MysNahoru(double x, double y, int tlacitko, int shift);
    // A finger, design pixels, tick count; a second one that is down is the host's to leave out.
    // See Dotyk.h for what fingers do.
    void PrstDolu(double x, double y, std::uint32_t cas);
    void PrstPohyb(double x, double y, std::uint32_t cas);
    void PrstNahoru(double x, double y, std::uint32_t cas);
    /// The text box that typed text would go to; null if none has the focus or it cannot be seen.
    [[nodiscard]] TextBox* Psane() const;
    /// Where a line of text is typed, design px: what a screen keyboard or an input method must not
    /// cover. Empty where none is; keys work without it.
    [[nodiscard]] Obdelnik KdeSePise() const;
    /// Whether the caret is shown in its blinking; at once after typing and after a caret move.
    [[nodiscard]] bool KurzorJeVidet(std::uint32_t ted) const;
    /// Milliseconds until the caret comes or goes; none where no text is typed.
    [[nodiscard]] std::optional<std::uint32_t> DoBliknuti(std::uint32_t ted) const;

    /// Typed text, UTF-8.
    void Text(std::string_view utf8);
    /// A key goes down, by its name: "Left", "Right", "Up", "Down", "Home", "End", "BackSpace",
    /// "Delete", "Return", "Escape", "Tab", "Space", "F1", a letter ("a" to "z"; with ctrl "a",
    /// "c", "v", "x" edit a text box), a digit by its place on the keyboard ("1" to "9"). shift:
    /// SHIFT, CTRL. opakovana: it has been down, and comes again because it is held. What a key
    /// types comes as Text besides. See Klavesnice.h for what keys do.
    void Klavesa(std::string_view jmeno, int shift, bool opakovana = false);
    /// "Space" or "Return" went up again.
    void KlavesaNahoru(std::string_view jmeno);

    /// The ring of the keys on the screen in front, design pixels.
    struct Prsten {
        const Ovladac* Co = nullptr;
        Obdelnik Ram;
        Bod Hrot;
        bool Kriz = false;
        friend bool operator==(const Prsten&, const Prsten&) = default;
    };
    /// None while it is not shown: it comes with a key and goes with the mouse.
    [[nodiscard]] std::optional<Prsten> PrstenVpredu() const;
    /// What is painted over the screen in front to answer the pointer. Design pixels.
    struct Ohlas {
        enum class Druh {
            Najeto,     ///< a frame: the pointer is over something that can be pressed
            Stisknuto,  ///< a frame: it is pressed
            Zachytne,   ///< a ring around the point that a press would catch
            Podlozka,   ///< the pad of a drag that a finger has left
            Konec,      ///< a cross: where that drag ends so far
            Mys,        ///< an arrow: the mouse of whoever is watched
            MysDolu,    ///< the same, pressed
        };
        Druh Co;
        Obdelnik Kde;
        friend bool operator==(const Ohlas&, const Ohlas&) = default;
    };
    [[nodiscard]] std::vector<Ohlas> OhlasyVpredu() const;
    /// What the mouse pointer looks like where it is.
    [[nodiscard]] Kurzor KurzorMysi() const;

    /// What the game is being played with: keys while the ring is shown, else what pressed or moved
    /// last, the mouse or a finger.
    [[nodiscard]] CimSeHraje HrajeSe() const;
    /// Whether a press that a key made still holds its object.
    [[nodiscard]] bool DrziKlavesa() const;
    // For forms, in their handlers of keys:
    /// Shows the ring on an object; a text box gets the keyboard, all of it marked.
    void DejPrsten(Form& form, Ovladac& o);
    /// Shows the ring on a live object and clicks it. None if it is not live.
    Odezva StiskniZastavku(Form& form, Ovladac& o);
    /// The form's pointer of the keys moved on the object that has the ring.
    void PosunutUkazatel(Form& form, Ovladac& o);

    /// The window's own close button.
    void ZadostOZavreni();
    /// A press beside the design area, or the return from another application.
    void Navrat();
    /// Called after each of these, with how many works were there before it: for a player that goes
    /// on only when what it began is done.
    void PoVstupu(std::function<void(std::size_t)> co) { poVstupu_ = std::move(co); }

    /// What main and the start-up set: the process is to end, with this exit status.
    void Konec(int stav = 0) {
        konec_ = true;
        stavKonce_ = stav;
    }
    [[nodiscard]] bool JeKonec() const { return konec_; }
    /// The status of the last Konec(), 0 before any.
    [[nodiscard]] int StavKonce() const { return stavKonce_; }
    /// Grows whenever a form was shown, hidden or moved in the order, or unloaded.
    [[nodiscard]] std::uint64_t Verze() const { return verze_; }

private:
    struct Vnitrek;
    struct Vstup;
    friend class RadaStisku;
    friend class Smycka;
    using DrzenyForm = std::shared_ptr<Form>;
    /// An object, its form held by it; null is the form itself.
    using DrzenyOvladac = std::shared_ptr<Ovladac>;
    // What the loop wants.
    /// Delivers what closed waits have kept.
    void SpustOdlozene();
    /// Fires the timers that are due.
    void Casovace(std::uint32_t ted);
    /// When the next timer is due; false if none runs.
    [[nodiscard]] bool PristiCasovac(std::uint32_t ted, std::uint32_t& zaMs) const;
    [[nodiscard]] Zasobnik& Prace();
    Cinnost<> Tik(DrzenyForm form, std::shared_ptr<Timer> t);
    // ObrazovkyVstup.cpp
    /// Whether a key edits the text that is being typed.
    [[nodiscard]] bool Upravuje(std::string_view jmeno, int shift) const;
    void Prijmi(const Vstup& vstup);
    void Odloz(const Vstup& vstup);
    Cinnost<> Doruc(const Vstup& vstup);
    Cinnost<> DorucPoOdlozenych(Vstup vstup);
    Cinnost<> DorucStisk(const Vstup& s);
    void DorucPohyb(const Vstup& s);
    Cinnost<> DorucPusteni(const Vstup& s);
    Cinnost<> Pust(const DrzenyForm& form, Ovladac* o, const Mys& m);
    Cinnost<> Klik(const DrzenyForm& form, Ovladac* o, const Mys& m);
    Cinnost<> PakKlik(Cinnost<> pusteni, DrzenyForm form, DrzenyOvladac o, Mys m);
    void DorucText(const Vstup& s);
    Cinnost<> DorucZavreni();
    void DorucNavrat();
    // ObrazovkyDotyk.cpp
    Cinnost<> DorucPrst(const Vstup& s);
    Cinnost<> PrstSeDotkl(Bod kde, const Vstup& s);
    void DorucPohybPrstu(const Vstup& s);
    Cinnost<> PrstSeZvedl(Bod kde, const Vstup& s);
    Cinnost<> PrstNaZvednutem(Bod kde, const Vstup& s);
    void PresunKonec(Bod kam);
    void NechTah(Bod konec);
    Cinnost<> DokonciTah();
    [[nodiscard]] Bod KamKlepl(const Form& form, Bod kde) const;
    // Klavesnice.cpp
    Cinnost<> DorucKlavesu(const Vstup& s);
    Cinnost<> DorucPusteniKlavesy(const Vstup& s);
    bool PosunDrzenouMys(const Vstup& s);
    Odezva ZaDrzeni(const Vstup& s);
    Cinnost<> KlavesaPrstenu(const DrzenyForm& form, std::string_view jmeno, int shift);
    Cinnost<> ZmackniKlavesou(DrzenyForm form, DrzenyOvladac o, std::string jmeno);
    Cinnost<> PustKlavesou();
    Cinnost<> Klepni(DrzenyForm form, DrzenyOvladac o);
    void UkazPrsten();

    Host& host_;
    std::unique_ptr<Vnitrek> vnitrek_;
    std::function<void(std::size_t)> poVstupu_;
    bool konec_ = false;
    int stavKonce_ = 0;
    std::uint64_t verze_ = 0;
};

}  // namespace rysovna
