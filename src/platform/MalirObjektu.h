#pragma once

#include "platform/Bitmapa.h"
#include "platform/Form.h"
#include "platform/Obrazovky.h"

namespace rysovna {

/// Where an object is painted: the target, the scale, where the design area begins, and the pixels
/// that may be touched.
struct Kresba {
    Vyhled Cil;
    double S = 1;
    int X0 = 0, Y0 = 0;
    Obdelnik Orez;
    bool Kurzor = false;  ///< the caret is in its visible half

    /// A design rectangle as target pixels.
    [[nodiscard]] Obdelnik NaCil(const Obdelnik& o) const {
        Obdelnik r = Zvetsi(o, S);
        r.Left += X0;
        r.Top += Y0;
        return r;
    }
};

/// An object with its place on the design area.
struct Umisteny {
    const Ovladac* Co = nullptr;
    Obdelnik Kde;           ///< design pixels; of a line or circle, all that its pen reaches
    Obdelnik Videt;         ///< the part that its containers let be seen
    bool Zamereny = false;  ///< the text box that gets typed text
    friend bool operator==(const Umisteny&, const Umisteny&) = default;
};

/// Paints one object, within k.Orez and what of it can be seen.
void NamalujObjekt(const Kresba& k, const Umisteny& u);
/// Paints the ring of the keys, and the cross where it has one, over all else.
void NamalujPrsten(const Kresba& k, const Obrazovky::Prsten& p);
/// The rectangle that they reach, design pixels.
[[nodiscard]] Obdelnik DosahPrstenu(const Obrazovky::Prsten& p);
/// Paints what answers the pointer, and the rectangle that it reaches, design pixels.
void NamalujOhlas(const Kresba& k, const Obrazovky::Ohlas& o);
[[nodiscard]] Obdelnik DosahOhlasu(const Obrazovky::Ohlas& o);
/// Paints the ground of a form: its picture over its colour.
void NamalujForm(const Kresba& k, const Form& form, const Obdelnik& kde);

/// A number that differs when the look of the object does (its place apart).
[[nodiscard]] std::uint64_t OtiskObjektu(const Umisteny& u, bool kurzor);
[[nodiscard]] std::uint64_t OtiskFormu(const Form& form);

/// The rectangle that the pen of a line or circle reaches, pixels of its parent.
[[nodiscard]] Obdelnik DosahTvaru(const Ovladac& o);

}  // namespace rysovna
