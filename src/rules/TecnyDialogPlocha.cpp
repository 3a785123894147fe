// The plane: marking of points, drawing of objects, their judgement.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "base/Cisla.h"
#include "engine/Kresleni.h"
#include "rules/Chyby.h"
#include "rules/Prichytavani.h"
#include "rules/TecnyDialog.h"

namespace rysovna {

namespace {

// Tolerances, px: ends included but for the 15 of a line.
constexpr int DOSAH_PRUSECIKU = 8;
constexpr int DOSAH_STREDU = 5;
constexpr double DOSAH_PRIMKY = 15;
constexpr double TOLERANCE_POLOMERU = 4;

bool VDosahu(float x, float y, Bod b, int dosah) {
    const auto d = static_cast<float>(dosah);
    return std::fabs(x - static_cast<float>(b.X)) <= d &&
           std::fabs(y - static_cast<float>(b.Y)) <= d;
}

/// How far a line passes from a point, measured along Y; along X when the line is upright.
struct Odchylka {
    double O;  ///< signed way from the line to the point
    bool Svisla;
    double Primka;  ///< where the line is
    int Bod_;       ///< where the point is
};
Odchylka Zmer(Dvojice p, Bod b) {
    if (p.P1.X == p.P2.X) {
        return {static_cast<double>(b.X) - p.P1.X, true, static_cast<double>(p.P1.X), b.X};
    }
    const double y = p.P1.Y + static_cast<double>(b.X - p.P1.X) * (p.P2.Y - p.P1.Y) /
                                  static_cast<double>(p.P2.X - p.P1.X);
    return {b.Y - y, false, y, b.Y};
}

/// The half-pixel rule. A line that runs exactly through the point is right whatever the rounding
/// of halves.
bool NaPulPixelu(const Odchylka& o) {
    return o.O == 0 || Zaokrouhli(o.Primka + 0.5) == o.Bod_ || Zaokrouhli(o.Primka - 0.5) == o.Bod_;
}

}  // namespace

bool TecnyDialog::CekaNaKresleni() const {
    return stav_.CekaNaKresleni && !stav_.Skontrolovano && stav_.VRuce != Nastroj::Prusecik &&
           stav_.VRuce != Nastroj::Stred;
}

// ---- Clicks ----------------------------------------------------------------------------------

Zachyt TecnyDialog::Chyt(float x, float y) const {
    if (stav_.VRuce == Nastroj::Kruznice) return ZachytNejblizsi(misc_, x, y);
    // A parallel from a point of its own base would be the base again. Every object of this board
    // has its snap points in the row of the same number.
    return ZachytPosledni(misc_, x, y, false,
                          stav_.VRuce == Nastroj::Rovnobezka ? stav_.Zakladna : 0);
}

std::optional<Bod> TecnyDialog::ChytilBy(float x, float y) const {
    if (!CekaNaKresleni()) return std::nullopt;
    const Zachyt z = Chyt(x, y);
    return z.Je ? std::optional(z.Misto) : std::nullopt;
}

std::optional<Bod> TecnyDialog::TrefilBy(float x, float y) const {
    if (!stav_.CekaNaKresleni || stav_.Skontrolovano || CekaNaKresleni()) return std::nullopt;
    if (stav_.VRuce == Nastroj::Stred) {
        const bool zasah =
            stav_.StredUsecky != BEZ_BODU && VDosahu(x, y, stav_.StredUsecky, DOSAH_STREDU);
        return zasah ? std::optional(stav_.StredUsecky) : std::nullopt;
    }
    const int par = ZasazenyPar(x, y);
    return par < 0 ? std::nullopt : std::optional(stav_.Pary.Misto[static_cast<std::size_t>(par)]);
}

/// The free crossing that a click here hits, the first one before the second; -1: none.
int TecnyDialog::ZasazenyPar(float x, float y) const {
    const DvaPruseciky& p = stav_.Pary;
    for (std::size_t i = 0; i < p.Misto.size(); ++i) {
        const bool volny = p.Misto[i] != BEZ_BODU && !p.Hotovo[i];
        if (volny && VDosahu(x, y, p.Misto[i], DOSAH_PRUSECIKU)) return static_cast<int>(i);
    }
    return -1;
}

void TecnyDialog::StiskPlochy(float x, float y) {
    if (!stav_.CekaNaKresleni || stav_.Skontrolovano) return;
    if (stav_.VRuce == Nastroj::Prusecik) return KlikniPrusecik(x, y);
    if (stav_.VRuce == Nastroj::Stred) return KlikniStred(x, y);
    stav_.Tazeni = true;
    const Zachyt z = Chyt(x, y);
    stav_.Zachyceno = z.Je;
    stav_.Start = z.Misto;
    if (!z.Je && stav_.Zakladna != 0)
        stav_.Start = BodNaZakladne(misc_.Utvary[stav_.Zakladna], x, y);
}

void TecnyDialog::KlikniStred(float x, float y) {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr || stav_.StredUsecky == BEZ_BODU) return;
    const bool zasah = VDosahu(x, y, stav_.StredUsecky, DOSAH_STREDU);
    if (!zasah) Uctuj(krok->ChybaRysovani);
    Pamatuj();
    NakresliBod(stav_.StredUsecky, stav_.Jmeno, zasah ? krok->NaPrimce : std::string_view{});
    misc_.Utvary[misc_.PocetUtvaru].Jak = {
        stav_.ZvolenyUtvar, std::string(krok->Body[0]) + " " + std::string(krok->Body[1]), ""};
    Zapis(stav_.Faze, stav_.ZvolenyUtvar, stav_.Jmeno);
    if (stav_.Spravny) SplnPolozku(stav_.Jmeno);
    UkonciKrok(stav_.Spravny);
}

void TecnyDialog::KlikniPrusecik(float x, float y) {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr) return;
    if (ObeHotove()) return PridejChybu(misc_, CHYBA_OBA_HOTOVE);
    const DvaPruseciky& p = stav_.Pary;
    int volny = -1;
    for (int i = 1; i >= 0; --i) {
        const auto j = static_cast<std::size_t>(i);
        if (p.Misto[j] != BEZ_BODU && !p.Hotovo[j]) volny = i;
    }
    if (volny < 0) return;
    const int zasazeny = ZasazenyPar(x, y);
    const bool zasah = zasazeny >= 0;
    if (!zasah) Uctuj(krok->ChybaRysovani);
    const auto par = static_cast<std::size_t>(zasah ? zasazeny : volny);
    const std::string jmeno = stav_.OcekavanyBod;
    const bool vReseni = PolozkaReseni(jmeno) != 0;
    Pamatuj();
    NakresliBod(p.Misto[par], jmeno, zasah && vReseni ? krok->NaPrimce : std::string_view{});
    misc_.Utvary[misc_.PocetUtvaru].Jak = {stav_.ZvolenyUtvar, ZnacenyPrunik(), ""};
    Zapis(stav_.Faze, stav_.ZvolenyUtvar, jmeno);
    SplnPolozku(jmeno);
    stav_.Pary.Hotovo[par] = true;
    UkonciKrok(true);
}

/// Names of the lines whose crossing is marked now: the last ones that a step has worked out.
std::string TecnyDialog::ZnacenyPrunik() const {
    for (int faze = stav_.Faze - 1; faze >= 1; --faze) {
        const KrokTecny& krok = *KrokFaze(faze);
        if (krok.Pocita == Prunik::Nic) continue;
        return std::string(krok.Ceho[0]) + " " + std::string(krok.Ceho[1]);
    }
    return {};
}

/// Whether the exercise charges a marking when both of its crossings are done, and they are.
bool TecnyDialog::ObeHotove() const {
    const auto& znacene = Hrane()->Znacene;
    if (znacene[0].empty()) return false;
    for (const std::string_view jmeno : znacene) {
        const int i = PolozkaReseni(jmeno);
        if (i == 0 || misc_.Priklady[cisloPrikladu_].Kroky[i].Hotovo == NE) return false;
    }
    return true;
}

// ---- Drags -----------------------------------------------------------------------------------

/// The centre of the circle in hand: its row's point, or the place of the press.
Bod TecnyDialog::StredTahu() const {
    const Bod stred = stav_.StredKruznice.empty() ? BEZ_BODU : NajdiBod(misc_, stav_.StredKruznice);
    return stred == BEZ_BODU ? stav_.Start : stred;
}

/// The two points of the straight object that a drag to here makes.
Dvojice TecnyDialog::BodyPrimky(Bod konec) const {
    if (stav_.Zakladna == 0) return {stav_.Start, konec};
    const Utvar& zakladna = misc_.Utvary[stav_.Zakladna];
    if (stav_.VRuce == Nastroj::Kolmice) return Kolme(zakladna, stav_.Start, konec);
    if (!stav_.Zachyceno) return Rovnobezne(zakladna, stav_.Start, konec);
    // From a caught point a parallel stays on it.
    return Rovnobezne(zakladna, {zakladna.X1, zakladna.Y1}, stav_.Start);
}

Gumicka TecnyDialog::Tah(float x, float y) const {
    if (!CekaNaKresleni() || !stav_.Tazeni) return {};
    const Bod konec = NaPixely(x, y);
    if (stav_.VRuce == Nastroj::Kruznice) return TahKruznice(StredTahu(), konec);
    const bool volna = stav_.VRuce == Nastroj::Rovnobezka && !stav_.Zachyceno;
    Dvojice b = BodyPrimky(konec);
    if (stav_.Zakladna != 0 && !volna) b.P2 = PataUkazatele(b, konec);
    Gumicka g{Gumicka::Tvar::Cara, b.P1.X, b.P1.Y, b.P2.X, b.P2.Y, {}};
    if (stav_.VRuce == Nastroj::Rovnobezka && stav_.Zakladna != 0) {
        g.Text = OdectiVzdalenost(misc_.Utvary[stav_.Zakladna], stav_.Start, volna ? konec : b.P1);
    }
    return g;
}

Gumicka TecnyDialog::Prejezd(float /*x*/, float /*y*/) const {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr || stav_.VRuce != Nastroj::Stred || stav_.Skontrolovano) return {};
    Gumicka g;
    g.Text = krok->Odecet;
    return g;
}

void TecnyDialog::PusteniPlochy(float x, float y) {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr || !CekaNaKresleni() || !stav_.Tazeni) return;
    const Bod konec = NaPixely(x, y);
    platna_.Pic.DrawWidth = 1;
    const Vznik vznik{stav_.ZvolenyUtvar, stav_.OcekavanyBod, OdectiKrok(*krok, x, y)};
    Pamatuj();
    if (stav_.VRuce == Nastroj::Kruznice) {
        NakresliKruznici(*krok, konec);
    } else if (stav_.VRuce == Nastroj::Poloprimka) {
        const Bod s = stav_.Start;
        KresliPoloprimku(misc_, platna_.Pic, misc_.NovyUtvar(stav_.Jmeno, "Y"),
                         {.Druh = stav_.ZvolenyUtvar, .P1 = s, .P2 = konec, .Popis2 = "Y"}, ANO);
    } else {
        NakresliPrimku(*krok, x, y);
    }
    misc_.Utvary[misc_.PocetUtvaru].Jak = vznik;
    Zapis(stav_.Faze, stav_.ZvolenyUtvar, stav_.Jmeno);
    if (stav_.Spravny) {
        SplnPolozku(stav_.Jmeno);
        SpocitejPruseciky(*krok);
    }
    UkonciKrok(stav_.Spravny);
}

/// The value of what a drag to here makes: of a circle its radius in the prompt's words ("|SB|") as
/// far as it was drawn so, else what is read off.
std::string TecnyDialog::OdectiKrok(const KrokTecny& krok, float x, float y) const {
    const auto* v = std::ranges::find(krok.Volby, stav_.OcekavanyBod, &Volba::Prvek);
    if (stav_.VRuce == Nastroj::Kruznice && v != krok.Volby.end() && !v->Polomer[0].empty()) {
        const Bod od = StredTahu();
        const Bod p = NajdiBod(misc_, v->Polomer[0]);
        const Bod q = NajdiBod(misc_, v->Polomer[1]);
        const double r = std::abs(NaPixely(x, y).X - od.X);
        const bool znamy = p != BEZ_BODU && q != BEZ_BODU;
        if (znamy && std::fabs(Vzdalenost(p, q) - r) <= TOLERANCE_POLOMERU) {
            return NazevPolomeru(*v);
        }
    }
    return Tah(x, y).Text;
}

void TecnyDialog::NakresliKruznici(const KrokTecny& krok, Bod konec) {
    const Bod s = StredTahu();
    if (stav_.Spravny) PosudPolomer(krok, s, std::abs(konec.X - s.X));
    KresliKruznici(misc_, platna_.Pic, misc_.NovyUtvar(stav_.Jmeno, ""),
                   {.Druh = stav_.ZvolenyUtvar, .P1 = s, .P2 = {konec.X, s.Y}}, ANO);
}

/// Judged as drawn; only then are its points put where they are stored.
void TecnyDialog::NakresliPrimku(const KrokTecny& krok, float x, float y) {
    const bool spojnice = stav_.VRuce == Nastroj::Primka;
    const Bod konec = NaPixely(x, y);
    Dvojice b = BodyPrimky(konec);
    std::optional<Bod> pres;  // the named point that it passes
    if (stav_.Zachyceno) pres = stav_.Start;
    if (spojnice) b.P2 = ZachytPosledni(misc_, x, y).Misto;
    if (krok.Jak == Soud::Konce) {
        if (spojnice) PosudKonce(krok, b);
    } else if (stav_.Spravny) {
        const std::optional<Bod> posunuta = PosudPrimku(krok, b);
        if (posunuta) pres = posunuta;
    }
    // A line through two points that bears their names has both; any other has its own.
    const bool podleBodu = spojnice && stav_.Jmeno == stav_.OcekavanyBod;
    const int n = podleBodu ? misc_.NovyUtvar(stav_.Jmeno.substr(0, 1), stav_.Jmeno.substr(1))
                            : misc_.NovyUtvar(stav_.Jmeno, "");
    if (stav_.VRuce == Nastroj::Kolmice) {
        KresliKolmici(misc_, platna_.Pic, n, {.Druh = stav_.ZvolenyUtvar, .P1 = b.P1, .P2 = b.P2},
                      ANO);
    } else if (stav_.VRuce == Nastroj::Rovnobezka && stav_.Zakladna != 0) {
        KresliPosunutou(misc_, platna_.Pic, n, UlozRovnobezku(platna_.Pic, b, pres, konec));
    } else {
        KresliPrimku(misc_, platna_.Pic, n, {.Druh = stav_.ZvolenyUtvar, .P1 = b.P1, .P2 = b.P2},
                     ANO);
    }
}

// ---- Judgement -------------------------------------------------------------------------------

/// Charges it, unless the step is known to be wrong already.
void TecnyDialog::Uctuj(ChybaKroku chyba) {
    if (!stav_.KrokChybny && chyba) PridejChybu(misc_, chyba);
}

/// Holds the line against the nearest of its points that is still free; under the 15-pixel rule it
/// is moved onto it: then that point. A point that is not there is no measure.
std::optional<Bod> TecnyDialog::PosudPrimku(const KrokTecny& krok, Dvojice& body) {
    int bod = -1;
    Bod misto;
    Odchylka o{std::numeric_limits<double>::infinity(), false, 0, 0};
    for (int i = 0; i < static_cast<int>(krok.Body.size()); ++i) {
        const std::string_view jmeno = krok.Body[static_cast<std::size_t>(i)];
        if (jmeno.empty() || (stav_.Pouzite >> i & 1U) != 0) continue;
        const Bod b = NajdiBod(misc_, jmeno);
        if (b == BEZ_BODU) continue;
        const Odchylka nova = Zmer(body, b);
        if (std::fabs(nova.O) >= std::fabs(o.O)) continue;
        o = nova;
        bod = i;
        misto = b;
    }
    if (bod < 0) return {};
    if (!krok.Body[1].empty()) stav_.Pouzite |= 1U << bod;
    const bool pul = krok.Jak == Soud::Pul || (krok.Jak == Soud::PodleZacatku && stav_.Zachyceno);
    if (pul) {
        if (!NaPulPixelu(o)) Uctuj(krok.ChybaRysovani);
    } else if (std::fabs(o.O) < DOSAH_PRIMKY) {
        const int posun = Zaokrouhli(o.O);
        for (Bod* b : {&body.P1, &body.P2}) (o.Svisla ? b->X : b->Y) += posun;
        return misto;
    } else {
        Uctuj(krok.ChybaRysovani);
    }
    return {};
}

/// A line from point to point: both ends are those that its row names.
void TecnyDialog::PosudKonce(const KrokTecny& krok, const Dvojice& body) {
    const std::string& jmena = stav_.OcekavanyBod;
    if (jmena.empty()) return;
    const bool spravne = body.P1 == NajdiBod(misc_, jmena.substr(0, 1)) &&
                         body.P2 == NajdiBod(misc_, jmena.substr(1));
    if (!spravne) Uctuj(krok.ChybaRysovani);
    const auto* radek = std::ranges::find(krok.Volby, jmena, &Volba::Prvek);
    if (stav_.Spravny) stav_.Pouzite |= 1U << (radek - krok.Volby.begin());
}

/// The circle has to pass through A, as near as the pointer can.
void TecnyDialog::PosudPolomer(const KrokTecny& krok, Bod stred, int r) {
    const Bod A = NajdiBod(misc_, "A");
    if (A == BEZ_BODU) return;
    if (std::fabs(Vzdalenost(stred, A) - r) > TOLERANCE_POLOMERU) Uctuj(krok.ChybaRysovani);
}

}  // namespace rysovna
