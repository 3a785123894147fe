#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Tabulky.h"
#include "rules/Dialog.h"
#include "rules/Prichytavani.h"
#include "rules/Tahy.h"
#include "rules/TecnyKroky.h"
#include "rules/TecnyZadani.h"
#include "rules/Zaznamy.h"

namespace rysovna {

/// The computed crossings that markings can take, and which of them are taken.
struct DvaPruseciky {
    std::array<Bod, 2> Misto{BEZ_BODU, BEZ_BODU};
    std::array<bool, 2> Hotovo{};
    friend bool operator==(const DvaPruseciky&, const DvaPruseciky&) = default;
};

/// The step in hand: all of it goes when the step is done or laid down.
struct KrokVRuce {
    Nastroj VRuce = Nastroj::Zadny;  ///< the tool that was pressed
    std::string ZvolenyUtvar;        ///< kind chosen for the step; empty between steps
    std::string Jmeno;               ///< name of the new object
    std::string OcekavanyBod;        ///< point to be marked, or line picked from the list
    bool Spravny = false;            ///< the step's own tool is in hand
    bool CekaNaKresleni = false;
    bool KrokChybny = false;     ///< judged wrong already: the step costs nothing more
    int Zakladna = 0;            ///< row of the base line; 0: none
    std::string StredKruznice;   ///< name of the centre; empty: where the press is
    Bod StredUsecky = BEZ_BODU;  ///< the expected midpoint
    bool Tazeni = false;         ///< the button is held over the plane
    bool Zachyceno = false;      ///< the press caught a point
    Bod Start;
    Seznam Vyber;
    std::string Rysovane;  ///< name of the object in hand
    friend bool operator==(const KrokVRuce&, const KrokVRuce&) = default;
};

/// The dialogue's own record: all that changes from step to step besides the construction.
struct StavTecny : KrokVRuce {
    int Faze = 1;               ///< step of the exercise; past its last one nothing is offered
    DvaPruseciky Pary;          ///< what the markings of this exercise can take
    std::uint32_t Pouzite = 0;  ///< bit i: a line took the i-th of the step's points or rows
    bool Zpatky = false;        ///< the step was reached by back
    bool HotovaKonstrukce = false;
    bool Skontrolovano = false;  ///< the check took the example
    std::uint32_t Znacky = 0;    ///< marks of the sketch
    friend bool operator==(const StavTecny&, const StavTecny&) = default;
};

/// The step dialogue of the tangent board: nine exercises in which nothing is typed. The pupil
/// chooses objects, picks them from lists, draws them or clicks the plane. A wrong choice is
/// charged and drawn all the same. The rows of the exercises are in TecnyKroky; which exercise is
/// played is read from the example each time.
class TecnyDialog final : public Dialog {
public:
    TecnyDialog(Misc& misc, Platna platna) : Dialog(misc, platna) {}

    void NovyPriklad() override;
    void NoveZadani() override;
    [[nodiscard]] ZadanyPriklad Zadany() const override;
    void Zadej(const ZadanyPriklad& zadany) override;
    void StiskNastroje(int i) override;
    void VyberRadku(int i) override;
    void ZavriSeznam() override;
    void Napis(int /*ktery*/, const std::string& /*text*/) override {}
    void StiskPlochy(float x, float y) override;
    [[nodiscard]] Gumicka Tah(float x, float y) const override;
    [[nodiscard]] Gumicka Prejezd(float x, float y) const override;
    void PusteniPlochy(float x, float y) override;
    [[nodiscard]] bool CekaNaKresleni() const override;
    [[nodiscard]] std::optional<Bod> ChytilBy(float x, float y) const override;
    [[nodiscard]] std::optional<Bod> TrefilBy(float x, float y) const override;
    [[nodiscard]] Nacrt NacrtPrikladu() const override;
    [[nodiscard]] std::uint32_t ZnackyNacrtu() const override { return stav_.Znacky; }
    bool StiskNacrtu(float x, float y) override;
    void Posun(int dx, int dy) override;
    void Zkontroluj() override;
    [[nodiscard]] bool Hotova() const override { return stav_.HotovaKonstrukce; }
    [[nodiscard]] Panel UkazPanel() const override;

    [[nodiscard]] const StavTecny& Stav() const { return stav_; }
    [[nodiscard]] int CisloPrikladu() const { return cisloPrikladu_; }
    /// The exercise in play, between two examples that of the last one; null for an unknown code.
    [[nodiscard]] const Cviceni* Hrane() const;

private:
    /// The beginning of a step, which a step back puts back. Points and marks stay.
    struct Minulost {
        SnimekKonstrukce Konstrukce;
        int Faze;
        DvaPruseciky Pary;
        std::uint32_t Pouzite;
        Tabulka<Krok, 8> Kroky;  ///< of the example: which solution entries are done
        decltype(Misc::ZadanePrvky) ZadanePrvky;
        bool Cizi = false;  ///< the object was another than the step's own
    };

    [[nodiscard]] const KrokTecny* KrokFaze(int faze) const;
    [[nodiscard]] const KrokTecny* KrokFaze() const { return KrokFaze(stav_.Faze); }
    [[nodiscard]] bool Znaci() const;

    // TecnyDialog.cpp: the life of an example, the end of a step, back
    void ZacniZadani(int cisloPrikladu);
    void Prekresli(int dx, int dy);
    void NakresliBod(Bod misto, const std::string& jmeno, std::string_view naPrimce);
    void SpocitejPruseciky(const KrokTecny& krok);
    /// Number of the solution entry of this name; 0 if there is none.
    [[nodiscard]] int PolozkaReseni(std::string_view jmeno) const;
    void Pamatuj();
    void Zapis(int faze, std::string_view druh, std::string_view prvek);
    void SplnPolozku(std::string_view jmeno);
    void UkonciKrok(bool vlastni);
    void ZvyrazniReseni();
    void Zpet();

    // TecnyDialogVolba.cpp: the tools with their lists, the pick of a line
    void Chybne();
    void Odzbroj();
    void OtevriSeznam(std::vector<RadekSeznamu> radky);
    void NabidniPrimky(const KrokTecny& krok);
    void NabidniKruznice(const KrokTecny& krok);
    void NabidniSpojnice(const KrokTecny& krok);
    void PripravStred(const KrokTecny& krok);
    void PripravOznaceni(const KrokTecny& krok);
    [[nodiscard]] std::string_view VolneJmeno(const KrokTecny& krok) const;
    [[nodiscard]] bool JeVzata(int radek) const;
    void ZvolPrimku(const std::string& zaklad);
    void ZvolKruznici(const KrokTecny& krok, const std::string& stred);
    void ZvolOsu();

    // TecnyDialogPlocha.cpp: the plane
    [[nodiscard]] Zachyt Chyt(float x, float y) const;
    [[nodiscard]] int ZasazenyPar(float x, float y) const;
    void KlikniStred(float x, float y);
    void KlikniPrusecik(float x, float y);
    [[nodiscard]] std::string ZnacenyPrunik() const;
    [[nodiscard]] bool ObeHotove() const;
    [[nodiscard]] std::string OdectiKrok(const KrokTecny& krok, float x, float y) const;
    [[nodiscard]] Bod StredTahu() const;
    [[nodiscard]] Dvojice BodyPrimky(Bod konec) const;
    void NakresliKruznici(const KrokTecny& krok, Bod konec);
    void NakresliPrimku(const KrokTecny& krok, float x, float y);
    [[nodiscard]] std::optional<Bod> PosudPrimku(const KrokTecny& krok, Dvojice& body);
    void PosudKonce(const KrokTecny& krok, const Dvojice& body);
    void PosudPolomer(const KrokTecny& krok, Bod stred, int r);
    void Uctuj(ChybaKroku chyba);

    // TecnyDialogPanel.cpp: what is shown
    [[nodiscard]] MistaNastroju Nastroje(const Cviceni& c) const;
    [[nodiscard]] Gesto GestoKroku() const;

    StavTecny stav_;
    std::vector<Minulost> minulost_;
    Figura dane_;
    int cisloPrikladu_ = 1;
    bool zadano_ = false;
};

/// The point of this name, given or marked; BEZ_BODU if there is none.
[[nodiscard]] Bod NajdiBod(const Tabulky& t, std::string_view jmeno);
/// The row of the straight object or circle of this name (both names of a segment or of a line
/// through two points, together); 0 if there is none.
[[nodiscard]] int NajdiCaru(const Tabulky& t, std::string_view jmeno);

}  // namespace rysovna
