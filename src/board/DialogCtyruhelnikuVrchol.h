#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "board/DialogCtyruhelniku.h"
#include "board/Panel.h"
#include "board/Tahy.h"
#include "engine/Tabulky.h"

namespace rysovna {

/// One of the two objects on which the fourth vertex lies, as the data expect it.
struct OcekavanyUtvar {
    std::string_view Druh, Prvek;  ///< kind of object and code of its element
    int Hodnota;
};

/// What the boards that find the fourth vertex by two objects differ in.
struct PravidlaVrcholu {
    bool Rovnobezky;  ///< a parallel is an expected tool
    bool HoleStrany;  ///< list lines name sides by their letters alone
};

/// The step dialogue of the boards where the fourth vertex of a quadrilateral is the meeting point
/// of two objects.
class DialogCtyruhelnikuVrchol : public DialogCtyruhelniku {
public:
    DialogCtyruhelnikuVrchol(Platna platna, const PravidlaCtyruhelniku& pravidla,
                             const PravidlaVrcholu& vrchol)
        : DialogCtyruhelniku(platna, pravidla), vrchol_(vrchol) {}

    void StiskPlochy(float x, float y) override;
    [[nodiscard]] Gumicka Tah(float x, float y) const override;
    [[nodiscard]] std::uint32_t CekaniPoTahu() const override { return 100; }
    void PusteniPlochy(float x, float y) override;

protected:
    [[nodiscard]] std::vector<Zadana> Zadane() const override;
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, Hodnoty5& hodnoty) override;
    void NabidniDalsi(int i) override;
    void ZvolDalsi(const RadekSeznamu& radek) override;
    [[nodiscard]] bool PrvekSpravny(int faze) const override;
    void UkazDalsi(Panel& panel) const override;

private:
    void NabidniPaprsky();
    void NabidniPrimky(std::string_view druh);
    void NabidniKruznice();
    void ZvolPaprsek(const std::string& kod);
    void ZvolKruznici(const std::string& kod);
    void ZvolPrimku(const std::string& jmena);
    [[nodiscard]] bool ObsadKrok(std::string_view druh);
    [[nodiscard]] bool JeOcekavany(std::string_view prvek) const;
    [[nodiscard]] Dvojice BodyPrimky(Bod konec) const;
    [[nodiscard]] std::string OdectiPaprsek(Bod konec) const;
    void PosudPusteni(const Gumicka& tah);
    void NakresliUtvar(Bod konec);
    void Uzavri();

    const PravidlaVrcholu& vrchol_;
};

/// The letter of the quadrilateral that its starting triangle lacks; empty for no such triangle.
[[nodiscard]] std::string CtvrtePismeno(std::string_view trojuhelnik);

/// The height upon a side named by its letters ("vc" for AB); empty for what is no side.
[[nodiscard]] std::string_view VyskaNaStranu(std::string_view strana);

/// Draws the five values of a kind by their table, again until they make a figure that can be
/// drawn: the two objects meet, also with the play that a read-out leaves, the vertices fit the
/// plane after some travel of the arrows, and with a parallel a trapezoid comes out.
[[nodiscard]] bool VylosujCtyruhelnik(const Plane& plocha, const Priklad& p,
                                      std::span<const VetaTrojuhelniku> vety, Hodnoty5& hodnoty);

}  // namespace rysovna
