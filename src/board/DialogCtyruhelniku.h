#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "board/DialogKroku.h"

namespace rysovna {

/// A value that the pupil types for the starting triangle.
struct VstupVety {
    std::string_view Velicina;  ///< the quantity whose value it is
    std::string_view Popis;     ///< its name in the prompt
    int Chyba;                  ///< wrong step when it differs; 0: none
    bool Pulka = false;         ///< half of the quantity is typed
};

/// A starting triangle by a theorem. Vrcholy are its three vertices in the order of construction:
/// the first value is the side from the first to the second. By "sss" the second value is the side
/// from the second to the third and the third value that from the third to the first; by "sus" the
/// third value is the angle at the second.
struct VetaTrojuhelniku {
    std::string_view Veta, Trojuhelnik, Vrcholy;
    std::array<VstupVety, 3> Vstupy;
};

/// The four whole triangles by both theorems; boards with further ones join their own.
constexpr std::array<VetaTrojuhelniku, 8> VETY_CELYCH = {{
    {"sss", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"e", "e", 127}}}},
    {"sss", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"f", "f", 128}}}},
    {"sss", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"e", "e", 127}}}},
    {"sss", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"f", "f", 128}}}},
    {"sus", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"beta", "beta", 118}}}},
    {"sus", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"gama", "gama", 119}}}},
    {"sus", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"delta", "delta", 120}}}},
    {"sus", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"alfa", "alfa", 117}}}},
}};

/// Letters of the sketch at its vertices.
constexpr std::array<PismenoNacrtu, 4> PISMENA_VRCHOLU = {
    {{"A", 26, 146}, {"B", 254, 146}, {"C", 219, 26}, {"D", 61, 10}}};

/// What one quadrilateral board has of its own in its sketch and its starting triangle.
struct PravidlaCtyruhelniku {
    std::string_view Uvod;  ///< lead-in of the assignment
    /// Each triangle once by "sss": the lines of the first list, in this order.
    std::span<const VetaTrojuhelniku> Vety;
    std::span<const PismenoNacrtu> PismenaNacrtu = PISMENA_VRCHOLU;
};

/// The dialogue's own record. Faze: 1 starting triangle, then the board's own steps.
struct StavCtyruhelniku : StavKroku {
    std::string ZvolenyTrojuhelnik;     ///< line of the first list; empty until it is chosen
    std::string ZvolenaVeta;            ///< "sss", "sus" or empty
    bool Nesestrojen = false;           ///< the typed values made no triangle
    std::array<std::string, 3> Vstupy;  ///< what was typed for the triangle
    friend bool operator==(const StavCtyruhelniku&, const StavCtyruhelniku&) = default;
};

/// The step dialogue of the quadrilateral boards, as far as they share it: the sketch, the
/// starting triangle that the board draws from three typed values, undo, the check. What follows
/// the triangle is each board's own.
class DialogCtyruhelniku : public DialogKroku {
public:
    DialogCtyruhelniku(Platna platna, const PravidlaCtyruhelniku& pravidla);

    void NovyPriklad() override;
    void Napis(int ktery, const std::string& text) override;
    void Posun(int dx, int dy) override;

    [[nodiscard]] const StavCtyruhelniku& Stav() const override { return stav_; }

protected:
    /// A tool was pressed after the triangle; opens its list.
    virtual void NabidniDalsi(int i) = 0;
    /// Line i, from 0, of such a list was chosen; the list is closed by now.
    virtual void ZvolDalsi(std::size_t i) = 0;
    /// Whether the step of this phase is what the data expect.
    [[nodiscard]] virtual bool PrvekSpravny(int faze) const = 0;
    /// Prompts and faces after the triangle.
    virtual void UkazDalsi(Panel& panel) const = 0;

    [[nodiscard]] StavCtyruhelniku& Upravit() override { return stav_; }
    [[nodiscard]] bool ZacinaKrok(int i) const override;
    void Nabidni(int i) override;
    void ZvolRadek(std::size_t i) override;
    /// In the first phase, before the triangle is drawn, takes the choice of it back: triangle,
    /// theorem and typed values. What was charged, and the row of what was chosen, stay.
    void Zpet() override;
    void VratFazi() override;
    [[nodiscard]] int ChybnychPrvku() const override;
    void UkazFazi(Panel& panel) const override;

    /// Opens the next row of the construction with the names of its points.
    int NovyUtvar(std::string_view jmeno1, std::string_view jmeno2);
    /// Draws a side between two named points; the labels may be empty.
    void NakresliStranu(std::string_view jmeno1, Bod p1, std::string_view popis1,
                        std::string_view jmeno2, Bod p2, std::string_view popis2, bool znacky);
    /// The vertex of this name; none as long as it is not drawn.
    [[nodiscard]] static std::optional<Bod> MistoVrcholu(std::string_view pismeno);
    /// Letters of the starting triangle in the order of construction; empty while it is open.
    [[nodiscard]] std::string_view Vrcholy() const;
    [[nodiscard]] const PravidlaCtyruhelniku& Pravidla() const { return pravidla_; }

private:
    [[nodiscard]] const VetaTrojuhelniku* ZvolenaVetaRadek() const;
    void ZvolTrojuhelnik(const std::string& trojuhelnik);
    void ZvolVetu(const std::string& veta);
    void PotvrdHodnoty();
    void NakresliTrojuhelnik(const VetaTrojuhelniku& veta);
    void ZapomenTrojuhelnik();
    void Prekresli();

    const PravidlaCtyruhelniku& pravidla_;
    StavCtyruhelniku stav_;
};

/// The vertices of the starting triangle from three values (cm, degrees) in the order of the
/// theorem, where the board draws them: the first side level from the left. Plane pixels. None if
/// the values do not meet or put a vertex beyond 800 px of the origin.
[[nodiscard]] std::optional<std::array<Bod, 3>> SpocitejTrojuhelnik(
    const Plane& plocha, std::string_view veta, const std::array<double, 3>& hodnoty);

/// Whether all these points can stand on the plane at once after some travel of the arrows, 20 px
/// from its edge: closer to it a line's second point no longer keeps its direction.
[[nodiscard]] bool VejdouSe(const Plane& plocha, std::span<const Bod> body);

}  // namespace rysovna
