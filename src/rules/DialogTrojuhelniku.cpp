#include "rules/DialogTrojuhelniku.h"

#include "base/Cisla.h"
#include "engine/Kresleni.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"
#include "rules/Uzavreni.h"

namespace rysovna {

namespace {

constexpr JmenaUtvaru JMENA[] = {
    {POLOPRIMKA, "X", "Y"}, {KOLMICE, "b", "c"}, {ROVNOBEZKA, "p", "q"}, {KRUZNICE, "k", "l"}};

constexpr CenaPocatku CENY_POCATKU[] = {{POLOPRIMKA, 31, 31}, {KRUZNICE, 22, 45}};

constexpr ChybaKroku CHYBA_PAPRSEK_JINDE = 23;

constexpr int SIRKA_HOTOVYCH_STRAN = 2;  // px

}  // namespace

DialogTrojuhelniku::DialogTrojuhelniku(Misc& misc, Platna platna,
                                       const PravidlaTrojuhelniku& pravidla)
    : DialogSeStavem(misc, platna,
                     {"Sestroj trojúhelník ABC:",
                      pravidla.NacrtFigury,
                      JMENA,
                      CENY_POCATKU,
                      {2, 3},
                      CHYBA_NEDOKONCENY_TROJUHELNIK}),
      pravidla_(pravidla) {
    // As designed: what no rule sets stays as it is.
    for (const char* navrh : {"a", "b", "c"}) {
        ZadaniProUpravu().push_back({ZadanaVelicina::Druh::Delka, navrh, ""});
    }
}

void DialogTrojuhelniku::Posun(int dx, int dy) {
    DialogKroku::Posun(dx, dy);
    if (!stav_.HotovaKonstrukce) return;
    // The redraw wrote over the last snap record: the vertex is the dialogue's own, and goes on.
    stav_.Vrchol.X += dx;
    stav_.Vrchol.Y += dy;
    ObtahniStrany();
    ZapisVrchol();
}

// ---- The plane -------------------------------------------------------------------------------

const CenaVeliciny* DialogTrojuhelniku::Cena() const {
    for (const CenaVeliciny& c : pravidla_.Ceny) {
        if (c.Nastroj == stav_.ZvolenyUtvar && c.Velicina == stav_.Velicina) return &c;
    }
    return nullptr;
}

bool DialogTrojuhelniku::HodnotaSedi(double hodnota) const {
    return hodnota == Hodnota(stav_.Velicina).value_or(0);
}

/// Judges the typed value, then what the press caught.
void DialogTrojuhelniku::PosudStisk(const Zachyt& zachyt) {
    const std::string& druh = stav_.ZvolenyUtvar;
    const CenaVeliciny* cena = stav_.KrokChybny ? nullptr : Cena();
    if (cena != nullptr && !HodnotaSedi(Cislo(stav_.Rysovane.Hodnota.Text))) {
        PridejChybu(misc_, cena->Napsana);
    } else if (druh == POLOPRIMKA && !stav_.KrokChybny && zachyt.Je &&
               !BodMaJmeno(misc_, zachyt.Misto, stav_.ZvolenyPrvek.substr(0, 1))) {
        PridejChybu(misc_, CHYBA_PAPRSEK_JINDE);
    }
    if (druh == KOLMICE) PridejChybu(misc_, CHYBA_KOLMICE);
    if (druh == ROVNOBEZKA && pravidla_.ChybaRovnobezky) {
        PridejChybu(misc_, pravidla_.ChybaRovnobezky);
    }
}

/// The angle against the first side, from the end at which the ray's vertex is.
std::string DialogTrojuhelniku::OdectiPaprsek(Bod konec) const {
    const Utvar& strana = misc_.Utvary[1];
    const bool odPrvni = strana.Jmeno1 == stav_.ZvolenyPrvek.substr(0, 1);
    const Bod p1{strana.X1, strana.Y1};
    const Bod p2{strana.X2, strana.Y2};
    return OdectiUhel(odPrvni ? p1 : p2, odPrvni ? p2 : p1, stav_.Start, konec);
}

std::string DialogTrojuhelniku::RamenoUhlu() const {
    const Utvar& strana = misc_.Utvary[1];
    return strana.Jmeno1 == stav_.ZvolenyPrvek.substr(0, 1) ? strana.Jmeno2 : strana.Jmeno1;
}

void DialogTrojuhelniku::PosudOdecet(double odecet) {
    const CenaVeliciny* cena = Cena();
    if (cena != nullptr && !HodnotaSedi(odecet)) PridejChybu(misc_, cena->Nakreslena);
}

// ---- Closing ---------------------------------------------------------------------------------

void DialogTrojuhelniku::Uzavri() {
    if (!NajdiVrchol()) return;
    ObtahniStrany();
    ++misc_.PocetTrojic;
    ZapisVrchol();
    stav_.HotovaKonstrukce = true;
}

bool DialogTrojuhelniku::NajdiVrchol() {
    const Utvar& strana = misc_.Utvary[misc_.PocetUtvaru - 2];
    const std::string jmena = strana.Jmeno1 + strana.Jmeno2;
    stav_.PismenoVrcholu = jmena == "AB" ? "C" : jmena == "AC" ? "B" : "A";
    const Pruseciky body = PrusecikyUtvaru(platna_.Pic, misc_.Utvary[misc_.PocetUtvaru - 1],
                                           misc_.Utvary[misc_.PocetUtvaru]);
    if (body.P1 == BEZ_BODU) return false;
    stav_.Vrchol = VyberVrchol(strana, body);
    return true;
}

/// The two sides that meet in the third vertex, and its letter.
void DialogTrojuhelniku::ObtahniStrany() {
    const Utvar& strana = misc_.Utvary[misc_.PocetUtvaru - 2];
    Plane& pic = platna_.Pic;
    pic.DrawWidth = SIRKA_HOTOVYCH_STRAN;
    const auto x = static_cast<float>(stav_.Vrchol.X);
    const auto y = static_cast<float>(stav_.Vrchol.Y);
    pic.Line(x, y, static_cast<float>(strana.X1), static_cast<float>(strana.Y1));
    pic.Line(x, y, static_cast<float>(strana.X2), static_cast<float>(strana.Y2));
    PopisBod(pic, stav_.Vrchol, stav_.PismenoVrcholu);
}

/// The last snap record becomes the third vertex.
void DialogTrojuhelniku::ZapisVrchol() {
    misc_.SmazRadekTrojic(misc_.PocetTrojic);
    Trojice& zachyt = misc_.Trojice_tab[misc_.PocetTrojic];
    zachyt.X1 = stav_.Vrchol.X;
    zachyt.Y1 = stav_.Vrchol.Y;
    zachyt.Jmeno1 = stav_.PismenoVrcholu;
}

// ---- The check and the panel -----------------------------------------------------------------

int DialogTrojuhelniku::ChybnychPrvku() const {
    const auto& kroky = Hrany().Kroky;
    int chybnych = 0;
    for (int radek = 1; radek <= 3; ++radek) {
        const ZadanyPrvek& z = misc_.ZadanePrvky[radek];
        const bool druh = radek == 1 ? DruhSedi(kroky[1], z.Utvar)
                                     : DruhSedi(kroky[2], z.Utvar) || DruhSedi(kroky[3], z.Utvar);
        if (!JeZadana(z.Prvek) || !druh) ++chybnych;
    }
    return chybnych;
}

void DialogTrojuhelniku::UkazFazi(Panel& panel) const {
    if (stav_.Faze > 1) {
        return UkazVolbuUtvaru(
            panel, "Třetí vrchol trojúhelníka leží v průniku následujících geometrických útvarů:");
    }
    panel.Vyzva = "Nejprve narýsuješ stranu trojúhelníka. Zvol, kterou úsečkou začneš.";
    using enum Nastroj;
    UkazNastroje(panel, {Usecka, Zadny, Zadny, Zadny, Zpet, Zadny}, {MuzeZacit()});
}

}  // namespace rysovna
