#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/DialogKroku.h"
#include "rules/FiguraCtyruhelniku.h"

namespace rysovna {

/// What one quadrilateral board has of its own in its sketch and its starting triangle.
struct PravidlaCtyruhelniku {
    std::string_view Uvod;  ///< lead-in of the assignment
    /// Each triangle once by SSS: the lines of the first list, in this order.
    std::span<const VetaTrojuhelniku> Vety;
    Nacrt NacrtFigury;
};

/// The dialogue's own record. Faze: 1 starting triangle, then the board's own steps.
struct StavCtyruhelniku : StavKroku {
    std::string ZvolenyTrojuhelnik;     ///< line of the first list; empty until it is chosen
    std::string ZvolenaVeta;            ///< SSS, SUS or empty
    bool Nesestrojen = false;           ///< the typed values made no triangle
    std::array<std::string, 3> Vstupy;  ///< what was typed for the triangle
    friend bool operator==(const StavCtyruhelniku&, const StavCtyruhelniku&) = default;
};

/// The step dialogue of the quadrilateral boards, as far as they share it: the sketch, the
/// starting triangle that the board draws from three typed values, undo, the check. What follows
/// the triangle is each board's own.
class DialogCtyruhelniku : public DialogSeStavem<StavCtyruhelniku> {
public:
    DialogCtyruhelniku(Misc& misc, Platna platna, const PravidlaCtyruhelniku& pravidla);

    void Napis(int ktery, const std::string& text) override;
    void Posun(int dx, int dy) override;

protected:
    /// A tool was pressed after the triangle; opens its list.
    virtual void NabidniDalsi(Nastroj co) = 0;
    /// Line i, from 0, of such a list was chosen; the list is closed by now.
    virtual void ZvolDalsi(std::size_t i) = 0;
    /// Whether the step of this phase is what the data expect.
    [[nodiscard]] virtual bool PrvekSpravny(int faze) const = 0;
    /// Prompts and tools after the triangle.
    virtual void UkazDalsi(Panel& panel) const = 0;

    [[nodiscard]] bool ZacinaKrok(Nastroj co) const override;
    void Nabidni(Nastroj co) override;
    void ZvolRadek(std::size_t i) override;
    void Prekresli() override;
    [[nodiscard]] int ChybnychPrvku() const override;
    void UkazFazi(Panel& panel) const override;

    /// Draws a side between two named points; the labels may be empty.
    void NakresliStranu(std::string_view jmeno1, Bod p1, std::string_view popis1,
                        std::string_view jmeno2, Bod p2, std::string_view popis2, bool znacky);
    /// The vertex of this name; none as long as it is not drawn.
    [[nodiscard]] std::optional<Bod> MistoVrcholu(std::string_view pismeno) const;
    /// Letters of the starting triangle in the order of construction; empty while it is open.
    [[nodiscard]] std::string_view Vrcholy() const;
    [[nodiscard]] const PravidlaCtyruhelniku& Pravidla() const { return pravidla_; }

private:
    [[nodiscard]] const VetaTrojuhelniku* ZvolenaVetaRadek() const;
    void ZvolTrojuhelnik(const std::string& trojuhelnik);
    void ZvolVetu(const std::string& veta);
    void PotvrdHodnoty();
    void NakresliTrojuhelnik(const VetaTrojuhelniku& veta);

    const PravidlaCtyruhelniku& pravidla_;
};

}  // namespace rysovna
