#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "board/Dialog.h"
#include "board/Zadani.h"

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

/// The values of an example in the order of its names.
using Hodnoty5 = std::array<int, 5>;

/// What one quadrilateral board has of its own in its starting triangle.
struct PravidlaCtyruhelniku {
    std::string_view Uvod;                           ///< lead-in of the assignment
    std::span<const std::string_view> Trojuhelniky;  ///< lines of the first list
    std::span<const VetaTrojuhelniku> Vety;
};

/// The four whole triangles by both theorems; boards with further ones add their own.
extern const std::array<std::string_view, 4> CELE_TROJUHELNIKY;
extern const std::array<VetaTrojuhelniku, 8> VETY_CELYCH;

/// The dialogue's own record: all that changes from step to step besides the construction.
struct StavCtyruhelniku {
    int Faze = 1;                    ///< 1 starting triangle, then the board's own steps
    std::string ZvolenyTrojuhelnik;  ///< line of the first list; empty until it is chosen
    std::string ZvolenaVeta;         ///< "sss", "sus" or empty
    std::string ZvolenyUtvar;        ///< kind of the tool in hand; empty between steps
    std::string ZvolenyPrvek;        ///< code of the element: "KA", "AXAB", ...
    bool CekaNaKresleni = false;
    bool KrokChybny = false;  ///< judged wrong already: its values cost nothing more
    bool HotovaKonstrukce = false;
    bool Skontrolovano = false;  ///< the check took the example
    bool Nesestrojen = false;    ///< the typed values made no triangle
    bool Tazeni = false;         ///< the button is held over the plane
    Bod Start;
    std::uint32_t Znacky = 0;  ///< marks of the sketch, bits in the order of its elements
    Seznam Combo;
    std::array<std::string, 3> Vstupy;  ///< what was typed for the triangle
    std::string lblText3;
    TextPanelu lblText4;
    Vstup txtVstup;
    friend bool operator==(const StavCtyruhelniku&, const StavCtyruhelniku&) = default;
};

/// A given quantity as the data name it.
struct Zadana {
    std::string_view Nazev, Jednotka;
};

/// Whether two names mean the same quantity: data spell delta also "delt".
[[nodiscard]] bool StejnaVelicina(std::string_view a, std::string_view b);

/// The step dialogue of the quadrilateral boards, as far as they share it: the sketch, the
/// starting triangle that the board draws from three typed values, undo, the check. What follows
/// the triangle is each board's own.
class DialogCtyruhelniku : public Dialog {
public:
    DialogCtyruhelniku(Platna platna, const PravidlaCtyruhelniku& pravidla);

    void NovyPriklad() override;
    void NoveZadani() override;
    void StiskNastroje(int i) override;
    void VyberRadku(int i) override;
    void ZavriSeznam() override { stav_.Combo.Otevreny = false; }
    void Napis(int ktery, const std::string& text) override;
    [[nodiscard]] bool CekaNaKresleni() const override {
        return stav_.CekaNaKresleni && !stav_.Skontrolovano;
    }
    bool StiskNacrtu(float x, float y) override;
    void KresliNacrt(Plane& plocha) const override;
    void Posun(int dx, int dy) override;
    void Zkontroluj() override;
    [[nodiscard]] bool Hotova() const override { return stav_.HotovaKonstrukce; }
    [[nodiscard]] Panel UkazPanel() const override;

    [[nodiscard]] const StavCtyruhelniku& Stav() const { return stav_; }
    [[nodiscard]] int CisloPrikladu() const { return cisloPrikladu_; }
    [[nodiscard]] const Priklad& Hrany() const { return Priklady[cisloPrikladu_]; }
    [[nodiscard]] const Hodnoty5& Hodnoty() const { return hodnoty_; }
    /// The example's value of a quantity; none if it is not given.
    [[nodiscard]] std::optional<int> Hodnota(std::string_view velicina) const;

protected:
    /// The given quantities in their order.
    [[nodiscard]] virtual std::vector<Zadana> Zadane() const = 0;
    /// Draws the values for a kind. False for an unknown kind: values and assignment stay.
    [[nodiscard]] virtual bool VylosujHodnoty(const Priklad& p, Hodnoty5& hodnoty) = 0;
    /// A tool was pressed after the triangle; opens its list.
    virtual void NabidniDalsi(int i) = 0;
    /// A line of such a list was chosen; the list is closed by now.
    virtual void ZvolDalsi(const RadekSeznamu& radek) = 0;
    /// How many phases an example has until it is closed.
    [[nodiscard]] virtual int PosledniFaze() const { return 4; }
    /// Whether the step of this phase is what the data expect.
    [[nodiscard]] virtual bool PrvekSpravny(int faze) const = 0;
    /// Prompts and faces after the triangle.
    virtual void UkazDalsi(Panel& panel) const = 0;
    /// Objects besides the triangle that stand when the dialogue is back in this phase.
    [[nodiscard]] virtual int UtvaruVeFazi(int faze) const { return faze - 2; }

    /// Opens the list.
    void OtevriSeznam(int sirka, std::vector<RadekSeznamu> radky);
    /// Prompts for a value.
    void Vyzvi(std::string vyzva, std::string jednotka);
    /// The step is drawn: the next phase.
    void DalsiFaze();
    /// What the pupil chose in this phase, for the check.
    void Zapis(std::string_view druh, std::string_view prvek);
    /// Charges a choice: 3 points, and the step is wrong from now on.
    void ChybnaVolba(int cislo);
    void ChybnaVolba(int cislo, std::string_view text);
    /// Opens the next row of the construction with the names of its points.
    int NovyUtvar(std::string_view jmeno1, std::string_view jmeno2);
    /// Draws a side between two named points; the labels may be empty.
    void NakresliStranu(std::string_view jmeno1, Bod p1, std::string_view popis1,
                        std::string_view jmeno2, Bod p2, std::string_view popis2, bool znacky);
    /// The vertex of this name; none as long as it is not drawn.
    [[nodiscard]] static std::optional<Bod> MistoVrcholu(std::string_view pismeno);
    [[nodiscard]] const VetaTrojuhelniku* ZvolenaVetaRadek() const;
    /// Letters of the starting triangle in the order of construction; empty while it is open.
    [[nodiscard]] std::string_view Vrcholy() const;
    /// All drawn anew; the text in place of a triangle too.
    void Prekresli();
    [[nodiscard]] StavCtyruhelniku& Upravit() { return stav_; }
    [[nodiscard]] Priklad& HranyProUpravu() { return Priklady[cisloPrikladu_]; }
    [[nodiscard]] const PravidlaCtyruhelniku& Pravidla() const { return pravidla_; }

private:
    void ZvolTrojuhelnik(const std::string& radek);
    void ZvolVetu(const std::string& radek);
    void PotvrdHodnoty();
    void NakresliTrojuhelnik(const VetaTrojuhelniku& veta);
    void Zpet();
    void SestavZadani();

    const PravidlaCtyruhelniku& pravidla_;
    StavCtyruhelniku stav_;
    std::vector<PolozkaZadani> zadani_;
    int cisloPrikladu_ = 1;
    Hodnoty5 hodnoty_{};
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
