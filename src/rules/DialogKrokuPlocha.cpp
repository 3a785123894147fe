// A drag on the plane: where it starts, what it reads, what it draws, by the kind of object.

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "engine/Kresleni.h"
#include "engine/Resitele.h"
#include "rules/Chyby.h"
#include "rules/DialogKroku.h"
#include "rules/Misc.h"
#include "rules/Tahy.h"

namespace rysovna {

namespace {

/// The wait after a segment's release, ms: shorter, since nothing of it needs to be seen first.
constexpr std::uint32_t CEKANI_USECKA = 10;

}  // namespace

/// What a drag does with one kind of object in hand.
struct DialogKroku::DruhTahu {
    std::string_view Nazev;
    Zachyt (DialogKroku::*Chyt)(float x, float y) const;    ///< the start of a press
    std::string (DialogKroku::*Odecti)(Bod konec) const;    ///< null: none, or the circle's own
    void (DialogKroku::*Nakresli)(int n, Bod konec) const;  ///< into row n
};

const DialogKroku::DruhTahu* DialogKroku::Druh() const {
    using D = DialogKroku;
    static constexpr DruhTahu DRUHY[] = {
        {USECKA, &D::ChytPosledni, &D::OdectiUsecku, &D::NakresliUsecku},
        {POLOPRIMKA, &D::ChytPosledni, &D::OdectiPaprsek, &D::NakresliPoloprimku},
        {KRUZNICE, &D::ChytStred, nullptr, &D::NakresliKruznici},
        {KOLMICE, &D::ChytZakladnu, nullptr, &D::NakresliKolmici},
        {ROVNOBEZKA, &D::ChytZakladnu, &D::OdectiPosunuti, &D::NakresliRovnobezku}};
    for (const DruhTahu& d : DRUHY) {
        if (d.Nazev == Stav().ZvolenyUtvar) return &d;
    }
    return nullptr;
}

const Utvar& DialogKroku::Zakladna() const {
    return misc_.Utvary[misc_.VybranyUtvar];
}

Zachyt DialogKroku::ChytPosledni(float x, float y) const {
    return ZachytPosledni(misc_, x, y);
}

Zachyt DialogKroku::ChytStred(float x, float y) const {
    return ZachytNejblizsi(misc_, x, y, ChytaStredStrany());
}

Zachyt DialogKroku::ChytZakladnu(float x, float y) const {
    return {false, BodNaZakladne(Zakladna(), x, y)};
}

std::string DialogKroku::OdectiUsecku(Bod konec) const {
    return OdectiDelku(Vzdalenost(Stav().Start, konec));
}

std::string DialogKroku::OdectiPosunuti(Bod konec) const {
    return OdectiVzdalenost(Zakladna(), Stav().Start, konec);
}

Dvojice DialogKroku::BodyPrimky(Bod konec) const {
    const Bod start = Stav().Start;
    if (Stav().ZvolenyUtvar == KOLMICE) return Kolme(Zakladna(), start, konec);
    if (Stav().ZvolenyUtvar == ROVNOBEZKA) {
        const Utvar& zakladna = Zakladna();
        const Dvojice tazena = Rovnobezne(zakladna, start, konec);
        const std::optional<Bod> pres = BodRovnobezky(konec);
        return pres ? Rovnobezne(zakladna, {zakladna.X1, zakladna.Y1}, *pres) : tazena;
    }
    return {start, konec};
}

Zachyt DialogKroku::Chyt(float x, float y) const {
    const DruhTahu* druh = Druh();
    return druh == nullptr ? Zachyt{false, NaPixely(x, y)} : (this->*druh->Chyt)(x, y);
}

std::optional<Bod> DialogKroku::ChytilBy(float x, float y) const {
    if (!CekaNaKresleni()) return std::nullopt;
    const Zachyt zachyt = Chyt(x, y);
    return zachyt.Je ? std::optional(zachyt.Misto) : std::nullopt;
}

void DialogKroku::StiskPlochy(float x, float y) {
    if (!CekaNaKresleni()) return;
    const Zachyt zachyt = Chyt(x, y);
    Upravit().Tazeni = true;
    Upravit().Start = zachyt.Misto;
    PosudStisk(zachyt);
}

Gumicka DialogKroku::Tah(float x, float y) const {
    const DruhTahu* druh = Druh();
    if (!CekaNaKresleni() || !Stav().Tazeni || druh == nullptr) return {};
    const Bod konec = NaPixely(x, y);
    if (druh->Nazev == KRUZNICE) return TahKruznice(Stav().Start, konec);
    Dvojice body = BodyPrimky(konec);
    if (druh->Nazev == KOLMICE) body.P2 = PataUkazatele(body, konec);
    return {Gumicka::Tvar::Cara, body.P1.X,
            body.P1.Y,           body.P2.X,
            body.P2.Y,           druh->Odecti == nullptr ? "" : (this->*druh->Odecti)(konec)};
}

std::uint32_t DialogKroku::CekaniPoTahu() const {
    return Stav().ZvolenyUtvar == USECKA ? CEKANI_USECKA : Dialog::CekaniPoTahu();
}

bool DialogKroku::ZacinaSpravne() const {
    return ZacinaVBode(misc_, Stav().Start, Stav().ZvolenyPrvek.substr(0, 1));
}

void DialogKroku::PusteniPlochy(float x, float y) {
    if (!CekaNaKresleni() || !Stav().Tazeni) return;
    if (!Stav().KrokChybny) {
        PosudOdecet(CisloZOdectu(Tah(x, y).Text));
        for (const CenaPocatku& c : pravidlaKroku_.CenyPocatku) {
            if (c.Druh != Stav().ZvolenyUtvar || ZacinaSpravne()) continue;
            PridejChybu(misc_, Stav().Faze == 2 ? c.Prvni : c.Druhy);
        }
    }
    const Vznik vznik{Stav().ZvolenyUtvar, PodleCeho(), Tah(x, y).Text};
    NakresliUtvar(NaPixely(x, y));
    misc_.Utvary[misc_.PocetUtvaru].Jak = vznik;
    DalsiFaze();
}

std::string DialogKroku::PodleCeho() const {
    const std::string& druh = Stav().ZvolenyUtvar;
    if (druh == POLOPRIMKA) return RamenoUhlu();
    if (druh == KRUZNICE) return Stav().BodVyzvy;
    const bool maZakladnu = druh == KOLMICE || druh == ROVNOBEZKA;
    return maZakladnu ? Zakladna().Jmeno1 + Zakladna().Jmeno2 : std::string();
}

void DialogKroku::NakresliUtvar(Bod konec) {
    const DruhTahu* druh = Druh();
    if (druh == nullptr) Selhani("Útvar se nedá narýsovat: " + Stav().ZvolenyUtvar);
    platna_.Pic.DrawWidth = 1;
    (this->*druh->Nakresli)(++misc_.PocetUtvaru, konec);
}

void DialogKroku::NakresliUsecku(int n, Bod konec) const {
    const Bod p = Stav().Start;
    const std::string jmeno1 = misc_.Utvary[n].Jmeno1;
    const std::string jmeno2 = misc_.Utvary[n].Jmeno2;
    const auto delka = static_cast<float>(DelkaVCm(Vzdalenost(p, konec)));
    KresliUsecku(misc_, platna_.Pic, n,
                 {.Druh = USECKA,
                  .P1 = p,
                  .P2 = konec,
                  .Popis1 = jmeno1,
                  .Popis2 = jmeno2,
                  .Delka = delka,
                  .Znacky = ANO},
                 ANO);
}

void DialogKroku::NakresliPoloprimku(int n, Bod konec) const {
    const Bod p = Stav().Start;
    const std::string jmeno2 = misc_.Utvary[n].Jmeno2;
    KresliPoloprimku(misc_, platna_.Pic, n,
                     {.Druh = POLOPRIMKA, .P1 = p, .P2 = konec, .Popis2 = jmeno2}, ANO);
}

void DialogKroku::NakresliKruznici(int n, Bod konec) const {
    const Bod p = Stav().Start;
    KresliKruznici(misc_, platna_.Pic, n, {.Druh = KRUZNICE, .P1 = p, .P2 = {konec.X, p.Y}}, ANO);
}

void DialogKroku::NakresliKolmici(int n, Bod konec) const {
    const auto& [p, q] = BodyPrimky(konec);
    KresliKolmici(misc_, platna_.Pic, n, {.Druh = KOLMICE, .P1 = p, .P2 = q}, ANO);
}

void DialogKroku::NakresliRovnobezku(int n, Bod konec) const {
    const Dvojice p = BodyPrimky(konec);
    KresliPosunutou(misc_, platna_.Pic, n,
                    UlozRovnobezku(platna_.Pic, p, BodRovnobezky(konec), konec));
}

}  // namespace rysovna
