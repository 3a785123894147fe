#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dotyk.h"
#include "platform/Obrazovky.h"

namespace rysovna {

using Formular = std::shared_ptr<Form>;

/// One piece of input as a host handed it in; design pixels.
struct Obrazovky::Vstup {
    enum class Druh {
        Dolu,
        Pohyb,
        Nahoru,
        PrstDolu,
        PrstPohyb,
        PrstNahoru,
        Text,
        Klavesa,
        KlavesaNahoru,
        Zavreni,
        Navrat
    };
    Druh Co;
    double X = 0, Y = 0;
    int Tlacitko = 0;  ///< of a move the sum of those held
    int Shift = 0;
    CasStisku Cas;
    std::string Text;  ///< typed text, or the name of a key
    /// Kept from a closed wait: presses that were dropped since are none of its.
    bool Odlozeny = false;
    bool Prst = false;  ///< a press, move or release that a finger made
};

/// The object that gets the events of a place of the design area; null is the form itself.
[[nodiscard]] Ovladac* NajdiObjekt(const Form& f, double x, double y);
/// An event at a place of the design area, as the object gets it.
[[nodiscard]] Mys Udalost(const Form& f, const Ovladac* o, double x, double y, int tlacitko,
                          int shift);

/// What the finger that is down does.
enum class PracePrstu {
    Zadna,  ///< none is down
    Klepa,  ///< it presses an object
    Tahne,  ///< it draws on a plane
    Znovu,  ///< it moves the end of a drag that is held
    Mrtva,  ///< nobody's, until it is lifted
};

/// A drag that a finger has left for a while: it goes on until "hotovo".
struct ZvednutyTah {
    std::weak_ptr<Form> Formular_;
    Ovladac* Objekt = nullptr;
    Bod Zacatek, Konec;  ///< design px
    Podlozka Pad;
};

/// What a press is to those right before it.
enum class PoradiStisku {
    Prvni,    ///< of no double click, or as good as that
    Druhy,    ///< of a double click on one object
    Zahodit,  ///< it is not for what lies under it
};

/// Double clicks. A press at the time and place of the one before acts only on the very object that
/// the first of the row hit: who double-clicks a line of a list does not mean the plane, which is
/// under it once the list has gone. Time and place are measured from press to press.
class RadaStisku {
public:
    /// Places a press in the row, or begins a new one with it. o: the object under it, null for the
    /// form itself.
    PoradiStisku Zarad(const Formular& form, const Ovladac* o, const Obrazovky::Vstup& s);
    /// A press that reached nobody: it goes on with a row, and begins none.
    void Ztraceny(const Obrazovky::Vstup& s);

private:
    [[nodiscard]] bool Navazuje(const Obrazovky::Vstup& s) const;

    bool plati_ = false;
    std::weak_ptr<Form> form_;
    const Ovladac* objekt_ = nullptr;  ///< what the first press hit
    double x_ = 0, y_ = 0;             ///< of the last press
    CasStisku cas_;
    int tlacitko_ = 0;
    bool druhy_ = false;  ///< the last press was the second of a double click
};

struct Obrazovky::Vnitrek {
    Vnitrek(std::function<std::uint32_t()> ted, std::function<bool()> konec)
        : Prace(std::move(ted), std::move(konec)) {}

    std::vector<Formular> Nactene;
    std::vector<Formular> Viditelne;  ///< modal ones at the end
    std::vector<Formular> Modalni;
    std::weak_ptr<Form> Aktivni;
    bool Konci = false;

    // The press that owns the pointer until all buttons are up. Its object may be gone meanwhile:
    // then what comes until the release goes to nobody.
    bool Drzi = false;
    std::weak_ptr<Form> DrziForm;
    Ovladac* DrziObjekt = nullptr;
    int DrziTlacitka = 0;
    std::string DrziKlavesa;  ///< the key that made it; empty: the mouse
    StiskKlavesou DrziJak = StiskKlavesou::Klik;
    double MysX = 0, MysY = 0;  ///< where the mouse was last, and whether it was anywhere
    bool ZnaMys = false;
    bool Prstem = false;  ///< the last press or move was a finger's
    Bod Posun;            ///< how far arrows have carried the mouse that is held

    PracePrstu Prst = PracePrstu::Zadna;
    Bod PrstOd;                ///< where it went down, design px
    Bod PosunPrstu;            ///< from there to what it counted as
    StopaPrstu Stopa;          ///< of one that draws
    bool PrstZahozen = false;  ///< its press was dropped
    std::optional<ZvednutyTah> Zvednuty_;

    bool PrstenVidet = false;
    double MysPriPrstenuX = 0, MysPriPrstenuY = 0;  ///< the mouse when the last key came

    RadaStisku Rada;
    int Zahozena = 0;            ///< buttons held whose presses were dropped, their sum
    int Zavreno = 0;             ///< how many keep waits closed, one in another
    std::deque<Vstup> Odlozene;  ///< what came in them and is to be delivered

    std::vector<const Timer*> BeziciCasovace;  ///< whose handlers are running
    std::uint32_t Psano = 0;
    Zasobnik Prace;  ///< the last one: what waits goes before what it may touch

    [[nodiscard]] Formular Cilovy() const { return Viditelne.empty() ? nullptr : Viditelne.back(); }
    [[nodiscard]] bool Modalne(const Form& f) const;
    /// The form of the press, if it still gets events: it stays visible, and no modal form has come
    /// up over it. A small form that its press brought up takes nothing from it.
    [[nodiscard]] Formular Drzici() const;
    /// The form of the drag that is held, if it goes on: there is one, and nothing came over it.
    [[nodiscard]] Formular Zvednuty() const;
    /// The form gets the events of a press on it: it is visible and has no modal form over it.
    [[nodiscard]] bool Dostava(const Form& f) const {
        return f.Viditelny() && (Modalni.empty() || Modalni.back().get() == &f);
    }
    /// A drag by keys goes on, which nothing but keys may end.
    [[nodiscard]] bool KresliKlavesy() const {
        return !DrziKlavesa.empty() && DrziJak == StiskKlavesou::Tah && Drzici() != nullptr;
    }
    void PustDrzeni() {
        Drzi = false;
        DrziKlavesa.clear();
    }
    [[nodiscard]] Formular VpreduPodModalnimi() const;
    /// The form that is in front now gets Activate if it was not the active one.
    void Aktivuj(const Formular& f);
    static bool Vyrad(std::vector<Formular>& odkud, const Form& f) {
        return std::erase_if(odkud, [&](const Formular& x) { return x.get() == &f; }) > 0;
    }
};

}  // namespace rysovna
