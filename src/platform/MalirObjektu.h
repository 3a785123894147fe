#pragma once

#include <cstdint>
#include <variant>

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

/// Whether the object, the form's ground, paints over all that lies beneath it.
[[nodiscard]] bool Kryje(const Umisteny& u);
[[nodiscard]] bool Kryje(const Form& form);
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

/// What an object or a form's ground looks like, its place apart: two that are the same paint the
/// same pixels.
struct Vzhled {
    std::variant<std::monostate, VzhledObrazku, VzhledPictureBoxu, VzhledLabelu, VzhledTextBoxu,
                 VzhledTvaru>
        Jak;
    Pismo Font;
    bool Zivy = true;            ///< of a label: not greyed
    std::uint64_t Kresleni = 0;  ///< what was drawn on its surface; 0: it has none
    bool SKurzorem = false;      ///< a text box with the caret in its visible half
    friend bool operator==(const Vzhled&, const Vzhled&) = default;
};
[[nodiscard]] Vzhled VzhledObjektu(const Umisteny& u, bool kurzor);
[[nodiscard]] Vzhled VzhledFormu(const Form& form);

/// The rectangle that the pen of a line or circle reaches, pixels of its parent.
[[nodiscard]] Obdelnik DosahTvaru(const Ovladac& o);

}  // namespace rysovna
