#include "board/DialogTrojuhelniku.h"

#include <cmath>
#include <cstdlib>

#include "base/Cisla.h"
#include "board/Kontrola.h"
#include "board/Prichytavani.h"
#include "board/Uzavreni.h"
#include "engine/Kresleni.h"
#include "engine/Resitele.h"
#include "engine/Sluzby.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

namespace {

// What a release costs when the object does not start at its vertex or centre.
struct CenaPocatku {
    std::string_view Nastroj;
    int Faze2, Faze3;
};
constexpr CenaPocatku CENY_POCATKU[] = {{POLOPRIMKA, 31, 31}, {KRUZNICE, 22, 45}};

constexpr int CHYBA_PAPRSEK_JINDE = 23;
constexpr int CHYBA_KOLMICE = 19;

// Waits after a release, ms: a segment shorter, since nothing of it needs to be seen first.
constexpr std::uint32_t CEKANI_USECKA = 10;
constexpr std::uint32_t CEKANI_OSTATNI = 100;

constexpr int SIRKA_HOTOVYCH_STRAN = 2;  // px

// The names of sides' midpoints, and so of the circles about them, begin with this letter.
constexpr char STRED_STRANY = 'S';

Bod NaPixely(float x, float y) {
    return {Zaokrouhli(x), Zaokrouhli(y)};
}

}  // namespace

DialogTrojuhelniku::DialogTrojuhelniku(Platna platna, const PravidlaTrojuhelniku& pravidla)
    : Dialog(platna), pravidla_(pravidla) {
    // The labels' captions as designed: a caption that no rule sets stays as it is.
    for (const std::string_view navrh : {"a", "b", "c"}) {
        zadani_.push_back(NazevStrany(navrh, 2, navrh != "b"));
        zadani_.push_back(HodnotaZadani("", 2));
    }
}

bool DialogTrojuhelniku::DruhSedi(const Krok& krok, std::string_view druh) const {
    return krok.Utvar == druh;
}

bool DialogTrojuhelniku::JeZadana(std::string_view velicina) const {
    const Priklad& p = Hrany();
    return velicina == p.Nazev1 || velicina == p.Nazev2 || velicina == p.Nazev3;
}

void DialogTrojuhelniku::ChybnaVolba(int cislo) {
    PridejChybu(cislo, TRI_BODY, 3);
    stav_.KrokChybny = true;
}

// ---- The life of an example ------------------------------------------------------------------

void DialogTrojuhelniku::NovyPriklad() {
    VyprazdniKonstrukci(platna_);
    stav_ = StavTrojuhelniku{};
}

void DialogTrojuhelniku::NoveZadani() {
    stav_.Znacky = 0;
    cisloPrikladu_ = VylosujPriklad();
    ZapomenZadanePrvky();
    if (VylosujHodnoty(Hrany(), hodnoty_)) SestavZadani(Hrany(), hodnoty_, zadani_);
}

void DialogTrojuhelniku::Posun(int dx, int dy) {
    PosunVse(platna_.HidenPic, platna_.Pic, dx, dy);
    if (!stav_.HotovaKonstrukce) return;
    // The redraw wrote over the last snap record: the vertex is the dialogue's own, and goes on.
    stav_.Vrchol.X += dx;
    stav_.Vrchol.Y += dy;
    DokonciTrojuhelnik(false);
}

bool DialogTrojuhelniku::StiskNacrtu(float x, float y) {
    const int prvek = PrvekPod(pravidla_.Nacrt, x, y);
    if (prvek < 0 || stav_.Skontrolovano) return false;
    stav_.Znacky ^= 1U << prvek;
    return true;
}

void DialogTrojuhelniku::KresliNacrt(Plane& plocha) const {
    KresliPrvkyNacrtu(plocha, pravidla_.Nacrt, pravidla_.PismenaNacrtu, stav_.Znacky);
}

// ---- The plane -------------------------------------------------------------------------------

const Utvar& DialogTrojuhelniku::Zakladna() const {
    return Utvary[VybranyUtvar];
}

const CenaVeliciny* DialogTrojuhelniku::Cena() const {
    for (const CenaVeliciny& c : pravidla_.Ceny) {
        if (c.Nastroj == stav_.ZvolenyUtvar && c.Velicina == stav_.Velicina) return &c;
    }
    return nullptr;
}

/// Judges the typed value. True if that cost nothing.
bool DialogTrojuhelniku::PosudNapsane() {
    const CenaVeliciny* cena = Cena();
    if (cena == nullptr || stav_.KrokChybny) return true;
    if (Cislo(stav_.txtVstup.Text) == Hodnota(stav_.Velicina)) return true;
    PridejChybu(cena->Napsana, JEDEN_BOD, 1);
    return false;
}

void DialogTrojuhelniku::StiskPlochy(float x, float y) {
    if (!CekaNaKresleni()) return;
    stav_.Tazeni = true;
    const std::string& druh = stav_.ZvolenyUtvar;
    const bool bezCeny = PosudNapsane();
    if (druh == KRUZNICE) {
        const bool oStredu = stav_.ZvolenyPrvek.starts_with(STRED_STRANY);
        stav_.Start = ZachytNejblizsi(x, y, pravidla_.TretiBody && oStredu).Misto;
    } else if (druh == POLOPRIMKA) {
        const Zachyt z = ZachytPosledni(x, y);
        stav_.Start = z.Misto;
        const bool jinde = z.Je && !BodMaJmeno(z.Misto, stav_.ZvolenyPrvek.substr(0, 1));
        if (jinde && bezCeny && !stav_.KrokChybny) PridejChybu(CHYBA_PAPRSEK_JINDE, JEDEN_BOD, 1);
    } else if (druh == KOLMICE) {
        PridejChybu(CHYBA_KOLMICE, TRI_BODY, 3);
        stav_.Start = BodNaZakladne(Zakladna(), x, y);
    } else if (druh == ROVNOBEZKA) {
        PosudStiskRovnobezky();
        stav_.Start = BodNaZakladne(Zakladna(), x, y);
    } else {
        stav_.Start = ZachytPosledni(x, y).Misto;
    }
}

/// The two points of the straight object that a drag to here makes.
Dvojice DialogTrojuhelniku::BodyPrimky(Bod konec) const {
    if (stav_.ZvolenyUtvar == KOLMICE) return Kolme(Zakladna(), stav_.Start, konec);
    if (stav_.ZvolenyUtvar == ROVNOBEZKA) return Rovnobezne(Zakladna(), stav_.Start, konec);
    return {stav_.Start, konec};
}

Gumicka DialogTrojuhelniku::Tah(float x, float y) const {
    if (!CekaNaKresleni() || !stav_.Tazeni) return {};
    const Bod konec = NaPixely(x, y);
    const std::string& druh = stav_.ZvolenyUtvar;
    if (druh == KRUZNICE) {
        const int r = std::abs(konec.X - stav_.Start.X);
        return {Gumicka::Tvar::Kruh, stav_.Start.X - r, stav_.Start.Y - r,
                stav_.Start.X + r,   stav_.Start.Y + r, OdectiDelku(r)};
    }
    Dvojice body = BodyPrimky(konec);
    if (druh == KOLMICE) body.P2 = PataUkazatele(body, konec);
    Gumicka g{Gumicka::Tvar::Cara, body.P1.X, body.P1.Y, body.P2.X, body.P2.Y, {}};
    if (druh == USECKA) {
        g.Text = OdectiDelku(Vzdalenost(stav_.Start, konec));
    } else if (druh == ROVNOBEZKA) {
        g.Text = OdectiVzdalenost(Zakladna(), stav_.Start, konec);
    } else if (druh == POLOPRIMKA) {
        const Utvar& strana = Utvary[1];
        const bool odPrvni = strana.Jmeno1 == stav_.ZvolenyPrvek.substr(0, 1);
        const Bod p1{strana.X1, strana.Y1};
        const Bod p2{strana.X2, strana.Y2};
        g.Text = OdectiUhel(odPrvni ? p1 : p2, odPrvni ? p2 : p1, stav_.Start, konec);
    }
    return g;
}

std::uint32_t DialogTrojuhelniku::CekaniPoTahu() const {
    return stav_.ZvolenyUtvar == USECKA ? CEKANI_USECKA : CEKANI_OSTATNI;
}

void DialogTrojuhelniku::PusteniPlochy(float x, float y) {
    if (!CekaNaKresleni() || !stav_.Tazeni) return;
    const Gumicka tah = Tah(x, y);
    const CenaVeliciny* cena = Cena();
    if (cena != nullptr && !stav_.KrokChybny && CisloZOdectu(tah.Text) != Hodnota(stav_.Velicina)) {
        PridejChybu(cena->Nakreslena, JEDEN_BOD, 1);
    }
    for (const CenaPocatku& c : CENY_POCATKU) {
        if (c.Nastroj != stav_.ZvolenyUtvar || stav_.KrokChybny) continue;
        if (!ZacinaSpravne()) {
            PridejChybu(stav_.Faze == 3 ? c.Faze3 : c.Faze2, JEDEN_BOD, 1);
        }
    }
    NakresliUtvar(NaPixely(x, y));
    DalsiFaze();
}

bool DialogTrojuhelniku::ZacinaSpravne() const {
    return ZacinaVBode(stav_.Start, stav_.ZvolenyPrvek.substr(0, 1));
}

void DialogTrojuhelniku::NakresliUtvar(Bod konec) {
    const int n = ++PocetUtvaru;
    const std::string& druh = stav_.ZvolenyUtvar;
    Plane& pic = platna_.Pic;
    pic.DrawWidth = 1;
    const std::string jmeno1 = Utvary[n].Jmeno1;
    const std::string jmeno2 = Utvary[n].Jmeno2;
    const Bod s = stav_.Start;
    if (druh == KRUZNICE) {
        KresliKruznici(pic, druh, n, s.X, s.Y, konec.X, ANO);
    } else if (druh == USECKA) {
        const auto delka = static_cast<float>(DelkaVCm(Vzdalenost(s, konec)));
        KresliUsecku(pic, druh, n, s.X, s.Y, konec.X, konec.Y, delka, jmeno1, jmeno2, ANO, ANO,
                     ANO);
    } else if (druh == POLOPRIMKA) {
        KresliPoloprimku(pic, druh, n, s.X, s.Y, konec.X, konec.Y, jmeno2, ANO);
    } else {
        const Dvojice b = BodyPrimky(konec);
        if (druh == KOLMICE) {
            KresliKolmici(pic, druh, n, b.P1.X, b.P1.Y, b.P2.X, b.P2.Y, ANO);
        } else {
            KresliPrimku(pic, druh, n, b.P1.X, b.P1.Y, b.P2.X, b.P2.Y, 0, ANO);
        }
    }
}

void DialogTrojuhelniku::DalsiFaze() {
    stav_.CekaNaKresleni = false;
    stav_.Tazeni = false;
    stav_.ZvolenyUtvar.clear();
    stav_.txtVstup = {};
    stav_.lblText3.clear();
    stav_.lblText4 = {};
    ++stav_.Faze;
    if (stav_.Faze == 4) DokonciTrojuhelnik(true);
}

void DialogTrojuhelniku::DokonciTrojuhelnik(bool pridatRadek) {
    const Utvar& strana = Utvary[PocetUtvaru - 2];
    const bool poprve = !stav_.HotovaKonstrukce;
    if (poprve) {
        const std::string jmena = strana.Jmeno1 + strana.Jmeno2;
        stav_.PismenoVrcholu = jmena == "AB" ? "C" : jmena == "AC" ? "B" : "A";
        const Pruseciky body =
            PrusecikyUtvaru(platna_.Pic, Utvary[PocetUtvaru - 1], Utvary[PocetUtvaru]);
        if (body.P1 == BEZ_BODU) return;
        stav_.Vrchol = VyberVrchol(strana, body);
    }
    Plane& pic = platna_.Pic;
    pic.DrawWidth = SIRKA_HOTOVYCH_STRAN;
    const auto x = static_cast<float>(stav_.Vrchol.X);
    const auto y = static_cast<float>(stav_.Vrchol.Y);
    pic.Line(x, y, static_cast<float>(strana.X1), static_cast<float>(strana.Y1));
    pic.Line(x, y, static_cast<float>(strana.X2), static_cast<float>(strana.Y2));
    PopisVrchol(pic, stav_.Vrchol, stav_.PismenoVrcholu);
    if (poprve && pridatRadek) ++PocetTrojic;
    SmazRadekTrojic(PocetTrojic);
    Trojice& zachyt = Trojice_tab[PocetTrojic];
    zachyt.X1 = stav_.Vrchol.X;
    zachyt.Y1 = stav_.Vrchol.Y;
    zachyt.Jmeno1 = stav_.PismenoVrcholu;
    stav_.HotovaKonstrukce = true;
}

// ---- The check -------------------------------------------------------------------------------

void DialogTrojuhelniku::Zkontroluj() {
    stav_.Skontrolovano = true;
    stav_.Tazeni = false;
    ZavriSeznam();
    PosudPrvky();
    UctujZnacky(stav_.Znacky == OcekavaneZnacky());
    if (!stav_.HotovaKonstrukce) UctujNedokoncenou(TvarBodu::VzdyBod);
}

void DialogTrojuhelniku::PosudPrvky() {
    const Priklad& p = Hrany();
    int chybnych = 0;
    for (int radek = 1; radek <= 3; ++radek) {
        const ZadanyPrvek& z = ZadanePrvky[radek];
        const bool druh = radek == 1
                              ? DruhSedi(p.Kroky[1], z.Utvar)
                              : DruhSedi(p.Kroky[2], z.Utvar) || DruhSedi(p.Kroky[3], z.Utvar);
        if (!JeZadana(z.Prvek) || !druh) ++chybnych;
    }
    UctujChybnePrvky(chybnych);
}

std::uint32_t DialogTrojuhelniku::OcekavaneZnacky() const {
    for (const DruhTrojuhelniku& d : pravidla_.Druhy) {
        if (d.Druh == Hrany().Druh) return d.Znacky;
    }
    return 0;
}

}  // namespace rysovna
