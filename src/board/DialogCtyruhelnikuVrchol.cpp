// The fourth vertex of a quadrilateral by two objects: tools, lists, judgements, closing.

#include "board/DialogCtyruhelnikuVrchol.h"

#include <algorithm>
#include <cstdlib>

#include "base/Cisla.h"
#include "board/Kontrola.h"
#include "board/Prichytavani.h"
#include "board/Uzavreni.h"
#include "engine/Kresleni.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

namespace {

/// A ray: its vertex is the first letter, the side that its angle is measured from the last two.
constexpr std::string_view PAPRSKY[] = {"AXAD", "AXAB", "BXBC", "BXBA",
                                        "CXCD", "CXCB", "DXDA", "DXDC"};

struct RadekKruznice {
    std::string_view Prvek, Stred;
    int Chyba;  ///< wrong step when the data expect no such circle
};
constexpr RadekKruznice KRUZNICE_RADKY[] = {
    {"KA", "A", 32}, {"KB", "B", 33}, {"KC", "C", 34}, {"KD", "D", 46}};

struct VyskaStrany {
    std::string_view Strana, Vyska;
};
constexpr VyskaStrany VYSKY[] = {{"AB", "vc"}, {"BC", "va"}, {"CD", "vb"}, {"DA", "vd"}};

constexpr int CHYBA_PAPRSEK_NECEKANY = 18, CHYBA_PAPRSEK_PRVEK = 49, CHYBA_PAPRSEK_JINDE = 23;
constexpr int CHYBA_KOLMICE = 19, CHYBA_ROVNOBEZKA = 20, CHYBA_KRUZNICE_NECEKANA = 21;
constexpr int CHYBA_UHEL = 30, CHYBA_POLOMER = 126;
constexpr int CHYBA_STRED_FAZE2 = 22, CHYBA_STRED_FAZE3 = 45;

// This board's own spelling for a perpendicular and a parallel.
constexpr std::string_view TRI_BODY_PRIMKY = " - 3 body";

constexpr int SIRKA_SEZNAMU = 200;  // px
constexpr int ODSAZENI_KOLMO = 66;  // px, of the sign behind the prompt
constexpr int STRAN_TROJUHELNIKU = 3;

constexpr std::string_view VYZVA_VRCHOL = "Čtvrtý vrchol leží v průniku dvou geometrických útvarů:";

Bod NaPixely(float x, float y) {
    return {Zaokrouhli(x), Zaokrouhli(y)};
}

/// Names of the object of this step, by its kind and phase.
struct JmenoUtvaru {
    std::string_view Druh, Faze2, Faze3;
};
constexpr JmenoUtvaru JMENA[] = {
    {KRUZNICE, "k", "l"}, {POLOPRIMKA, "X", "Y"}, {ROVNOBEZKA, "t", "u"}, {KOLMICE, "p", "q"}};

std::string Jmeno(std::string_view druh, int faze) {
    const auto* j = std::ranges::find(JMENA, druh, &JmenoUtvaru::Druh);
    return j == std::end(JMENA) ? "" : std::string(faze == 2 ? j->Faze2 : j->Faze3);
}

}  // namespace

std::string CtvrtePismeno(std::string_view trojuhelnik) {
    if (trojuhelnik.size() != STRAN_TROJUHELNIKU) return "";
    for (const char pismeno : {'A', 'B', 'C', 'D'}) {
        if (trojuhelnik.find(pismeno) == std::string_view::npos) return {pismeno};
    }
    return "";
}

std::string_view VyskaNaStranu(std::string_view strana) {
    for (const VyskaStrany& v : VYSKY) {
        if (v.Strana == strana) return v.Vyska;
    }
    return {};
}

std::vector<Zadana> DialogCtyruhelnikuVrchol::Zadane() const {
    const Priklad& p = Hrany();
    return {{p.Nazev1, p.Jednotka1},
            {p.Nazev2, p.Jednotka2},
            {p.Nazev3, p.Jednotka3},
            {p.Kroky[1].Jmeno, p.Kroky[1].JmenoB},
            {p.Kroky[2].Jmeno, p.Kroky[2].JmenoB}};
}

bool DialogCtyruhelnikuVrchol::VylosujHodnoty(const Priklad& p, Hodnoty5& hodnoty) {
    return VylosujCtyruhelnik(platna_.Pic, p, Pravidla().Vety, hodnoty);
}

// ---- Lists -----------------------------------------------------------------------------------

void DialogCtyruhelnikuVrchol::NabidniDalsi(int i) {
    switch (i) {
        case 1:
            return NabidniPaprsky();
        case 2:
            return NabidniPrimky(KOLMICE);
        case 3:
            return NabidniPrimky(ROVNOBEZKA);
        default:
            return NabidniKruznice();
    }
}

void DialogCtyruhelnikuVrchol::NabidniPaprsky() {
    Upravit().ZvolenyUtvar = POLOPRIMKA;
    std::vector<RadekSeznamu> radky;
    for (const std::string_view kod : PAPRSKY) {
        radky.push_back({std::string(kod.substr(0, 1)) + Jmeno(POLOPRIMKA, Stav().Faze) +
                             ", svírající úhel s úsečkou " + std::string(kod.substr(2)),
                         true, true, std::string(kod)});
    }
    OtevriSeznam(SIRKA_SEZNAMU, std::move(radky));
}

/// The lines that a perpendicular or a parallel can go by: the sides of the triangle, then what
/// straight line was drawn before.
void DialogCtyruhelnikuVrchol::NabidniPrimky(std::string_view druh) {
    Upravit().ZvolenyUtvar = druh;
    const bool kolmice = druh == KOLMICE;
    const std::string uStrany = vrchol_.HoleStrany ? "" : kolmice ? "k úsečce " : "s úsečkou ";
    std::vector<RadekSeznamu> radky;
    for (int i = 1; i <= PocetUtvaru; ++i) {
        const Utvar& u = Utvary[i];
        const std::string jmena = u.Jmeno1 + u.Jmeno2;
        if (u.Druh == USECKA) {
            // A trapezoid's bases are sides; the starting triangle has a diagonal, too.
            if (vrchol_.HoleStrany && VyskaNaStranu(jmena).empty()) continue;
            radky.push_back({uStrany + jmena, true, true, jmena});
        } else if (u.Druh == ROVNOBEZKA || u.Druh == KOLMICE) {
            radky.push_back({(kolmice ? "k přímce " : "s přímkou ") + u.Jmeno1, true, true, jmena});
        }
    }
    if (!radky.empty()) OtevriSeznam(SIRKA_SEZNAMU, std::move(radky));
}

void DialogCtyruhelnikuVrchol::NabidniKruznice() {
    Upravit().ZvolenyUtvar = KRUZNICE;
    const std::string uvod = "kružnice " + Jmeno(KRUZNICE, Stav().Faze) + ", střed v bodě ";
    std::vector<RadekSeznamu> radky;
    for (const RadekKruznice& r : KRUZNICE_RADKY) {
        radky.push_back({uvod + std::string(r.Stred), true, true, std::string(r.Prvek)});
    }
    OtevriSeznam(SIRKA_SEZNAMU, std::move(radky));
}

// ---- Choosing a line -------------------------------------------------------------------------

bool DialogCtyruhelnikuVrchol::ObsadKrok(std::string_view druh) {
    for (const int n : {1, 2}) {
        Krok& krok = HranyProUpravu().Kroky[n];
        if (krok.Utvar != druh || krok.Hotovo != NE) continue;
        krok.Hotovo = ANO;
        return true;
    }
    return false;
}

bool DialogCtyruhelnikuVrchol::JeOcekavany(std::string_view prvek) const {
    return Hrany().Kroky[1].UtvarB == prvek || Hrany().Kroky[2].UtvarB == prvek;
}

void DialogCtyruhelnikuVrchol::ZvolDalsi(const RadekSeznamu& radek) {
    const std::string druh = Stav().ZvolenyUtvar;
    SmazRadekUtvaru(PocetUtvaru + 1);
    SmazRadekTrojic(PocetTrojic + 1);
    Upravit().CekaNaKresleni = true;
    Upravit().KrokChybny = false;
    Utvary[PocetUtvaru + 1].Jmeno1 = Jmeno(druh, Stav().Faze);
    if (druh == POLOPRIMKA) {
        ZvolPaprsek(radek.Tag);
    } else if (druh == KRUZNICE) {
        ZvolKruznici(radek.Tag);
    } else {
        ZvolPrimku(radek.Tag);
    }
    Zapis(druh, Stav().ZvolenyPrvek);
}

void DialogCtyruhelnikuVrchol::ZvolPaprsek(const std::string& kod) {
    const std::string vrchol = kod.substr(0, 1);
    const std::string strana = kod.substr(2);
    const std::string bod = Jmeno(POLOPRIMKA, Stav().Faze);
    Upravit().ZvolenyPrvek = kod;
    Utvary[PocetUtvaru + 1].Jmeno1 = vrchol;
    Utvary[PocetUtvaru + 1].Jmeno2 = bod;
    Vyzvi("polopřímka " + vrchol + bod + ", |<" + strana.substr(1) + vrchol + bod + "| = ", "°");
    if (!ObsadKrok(POLOPRIMKA)) {
        ChybnaVolba(CHYBA_PAPRSEK_NECEKANY);
    } else if (!JeOcekavany(kod)) {
        ChybnaVolba(CHYBA_PAPRSEK_PRVEK, vrchol + bod + " vůči úsečce " + strana +
                                             " - nesprávný postup konstrukce." +
                                             std::string(TRI_BODY));
    }
}

void DialogCtyruhelnikuVrchol::ZvolKruznici(const std::string& kod) {
    const auto* r = std::ranges::find(KRUZNICE_RADKY, std::string_view(kod), &RadekKruznice::Prvek);
    Upravit().ZvolenyPrvek = kod;
    Vyzvi("kružnice " + Jmeno(KRUZNICE, Stav().Faze) + "(" + std::string(r->Stred) + ", r = ",
          ") cm");
    if (!ObsadKrok(KRUZNICE)) {
        ChybnaVolba(CHYBA_KRUZNICE_NECEKANA);
    } else if (!JeOcekavany(kod)) {
        ChybnaVolba(r->Chyba);
    }
}

/// A parallel or a perpendicular to the line of these names.
void DialogCtyruhelnikuVrchol::ZvolPrimku(const std::string& jmena) {
    const bool kolmice = Stav().ZvolenyUtvar == KOLMICE;
    const std::string jmeno = Jmeno(Stav().ZvolenyUtvar, Stav().Faze);
    VybranyUtvar = 0;
    for (int i = 1; i <= PocetUtvaru; ++i) {
        if (Utvary[i].Jmeno1 + Utvary[i].Jmeno2 == jmena) VybranyUtvar = i;
    }
    Upravit().ZvolenyPrvek = kolmice ? "" : VyskaNaStranu(jmena);
    if (kolmice) {
        Upravit().lblText3 = "přímka " + jmeno + ", " + jmeno + "      " + jmena;
        Upravit().lblText4 = {"^", true, true, ODSAZENI_KOLMO, true};
        Upravit().txtVstup = {};
        ChybnaVolba(CHYBA_KOLMICE, TRI_BODY_PRIMKY);
        return;
    }
    Vyzvi("přímka " + jmeno + ", " + jmeno + "||" + jmena + ", |" + jmeno + "," + jmena + "| = ",
          " cm");
    if (vrchol_.Rovnobezky) {
        static_cast<void>(ObsadKrok(ROVNOBEZKA));
    } else {
        ChybnaVolba(CHYBA_ROVNOBEZKA, TRI_BODY_PRIMKY);
    }
}

bool DialogCtyruhelnikuVrchol::PrvekSpravny(int faze) const {
    const ZadanyPrvek& z = ZadanePrvky[faze];
    return std::ranges::any_of(std::array{1, 2}, [&](int n) {
        const Krok& krok = Hrany().Kroky[n];
        return !z.Utvar.empty() && z.Utvar == krok.Utvar && z.Prvek == krok.UtvarB;
    });
}

// ---- The plane -------------------------------------------------------------------------------

void DialogCtyruhelnikuVrchol::StiskPlochy(float x, float y) {
    if (!CekaNaKresleni()) return;
    Upravit().Tazeni = true;
    const std::string& druh = Stav().ZvolenyUtvar;
    if (druh == KRUZNICE) {
        Upravit().Start = ZachytNejblizsi(x, y).Misto;
    } else if (druh == POLOPRIMKA) {
        Upravit().Start = ZachytPosledni(x, y).Misto;
    } else {
        Upravit().Start = BodNaZakladne(Utvary[VybranyUtvar], x, y);
    }
}

/// The two points of the parallel or perpendicular that a drag to here makes. A parallel close to
/// a vertex of the starting triangle that is not on its base goes through it, where parallels
/// belong to the construction.
Dvojice DialogCtyruhelnikuVrchol::BodyPrimky(Bod konec) const {
    const Utvar& zakladna = Utvary[VybranyUtvar];
    if (Stav().ZvolenyUtvar == KOLMICE) return Kolme(zakladna, Stav().Start, konec);
    const Dvojice tazena = Rovnobezne(zakladna, Stav().Start, konec);
    if (!vrchol_.Rovnobezky) return tazena;
    for (const char pismeno : Vrcholy()) {
        const std::string jmeno(1, pismeno);
        const std::optional<Bod> vrchol = MistoVrcholu(jmeno);
        if (!vrchol || jmeno == zakladna.Jmeno1 || jmeno == zakladna.Jmeno2) continue;
        if (Vzdalenost(PataUkazatele(tazena, *vrchol), *vrchol) >= DOSAH_CHYTANI) continue;
        return Rovnobezne(zakladna, {zakladna.X1, zakladna.Y1}, *vrchol);
    }
    return tazena;
}

/// The angle of a ray against the side that its list line names; against a level line where that
/// side is not drawn.
std::string DialogCtyruhelnikuVrchol::OdectiPaprsek(Bod konec) const {
    const std::string strana = Stav().ZvolenyPrvek.substr(2);
    const std::optional<Bod> od = MistoVrcholu(strana.substr(0, 1));
    const std::optional<Bod> k = MistoVrcholu(strana.substr(1));
    if (!od || !k) return OdectiUhel({0, 0}, {1, 0}, Stav().Start, konec);
    return OdectiUhel(*od, *k, Stav().Start, konec);
}

Gumicka DialogCtyruhelnikuVrchol::Tah(float x, float y) const {
    if (!CekaNaKresleni() || !Stav().Tazeni) return {};
    const Bod konec = NaPixely(x, y);
    const Bod start = Stav().Start;
    const std::string& druh = Stav().ZvolenyUtvar;
    Gumicka g{.Druh = Gumicka::Tvar::Cara,
              .X1 = start.X,
              .Y1 = start.Y,
              .X2 = konec.X,
              .Y2 = konec.Y,
              .Text = {}};
    if (druh == KRUZNICE) {
        const int r = std::abs(konec.X - start.X);
        g = {.Druh = Gumicka::Tvar::Kruh,
             .X1 = start.X - r,
             .Y1 = start.Y - r,
             .X2 = start.X + r,
             .Y2 = start.Y + r,
             .Text = OdectiDelku(r)};
    } else if (druh == POLOPRIMKA) {
        g.Text = OdectiPaprsek(konec);
    } else {
        Dvojice body = BodyPrimky(konec);
        if (druh == KOLMICE) body.P2 = PataUkazatele(body, konec);
        g.X1 = body.P1.X;
        g.Y1 = body.P1.Y;
        g.X2 = body.P2.X;
        g.Y2 = body.P2.Y;
        if (druh == ROVNOBEZKA) g.Text = OdectiVzdalenost(Utvary[VybranyUtvar], start, konec);
    }
    return g;
}

void DialogCtyruhelnikuVrchol::PosudPusteni(const Gumicka& tah) {
    const std::string& druh = Stav().ZvolenyUtvar;
    const bool kruznice = druh == KRUZNICE;
    if (Stav().KrokChybny || (!kruznice && druh != POLOPRIMKA)) return;
    for (const int n : {1, 2}) {
        const Krok& krok = Hrany().Kroky[n];
        if (krok.Utvar != druh || krok.UtvarB != Stav().ZvolenyPrvek) continue;
        if (CisloZOdectu(tah.Text) != Hodnoty()[static_cast<std::size_t>(n) + 2]) {
            PridejChybu(kruznice ? CHYBA_POLOMER : CHYBA_UHEL, JEDEN_BOD, 1);
        }
        break;
    }
    const std::string& prvek = Stav().ZvolenyPrvek;
    if (ZacinaVBode(Stav().Start, kruznice ? prvek.substr(1) : prvek.substr(0, 1))) return;
    PridejChybu(!kruznice          ? CHYBA_PAPRSEK_JINDE
                : Stav().Faze == 2 ? CHYBA_STRED_FAZE2
                                   : CHYBA_STRED_FAZE3,
                JEDEN_BOD, 1);
}

void DialogCtyruhelnikuVrchol::PusteniPlochy(float x, float y) {
    if (!CekaNaKresleni() || !Stav().Tazeni) return;
    PosudPusteni(Tah(x, y));
    NakresliUtvar(NaPixely(x, y));
    DalsiFaze();
    if (Stav().Faze == PosledniFaze()) Uzavri();
}

void DialogCtyruhelnikuVrchol::NakresliUtvar(Bod konec) {
    const int n = ++PocetUtvaru;
    const std::string& druh = Stav().ZvolenyUtvar;
    Plane& pic = platna_.Pic;
    pic.DrawWidth = 1;
    const Bod s = Stav().Start;
    if (druh == KRUZNICE) {
        KresliKruznici(pic, druh, n, s.X, s.Y, konec.X, ANO);
    } else if (druh == POLOPRIMKA) {
        const std::string jmeno2 = Utvary[n].Jmeno2;
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

/// The fourth vertex and, where the objects meet twice, its second solution with an apostrophe,
/// each with its two sides.
void DialogCtyruhelnikuVrchol::Uzavri() {
    if (Stav().Nesestrojen) return;
    const Utvar& prvniUtvar = Utvary[PocetUtvaru - 1];
    const Utvar& druhyUtvar = Utvary[PocetUtvaru];
    const Pruseciky body = PrusecikyUtvaru(platna_.Pic, prvniUtvar, druhyUtvar);
    // Rays to the wrong sides meet behind their starts: the read-out, which has no sign, cannot
    // tell, the figure does.
    if (body.P1 == BEZ_BODU || !JePred(prvniUtvar, body.P1) || !JePred(druhyUtvar, body.P1)) return;
    const std::string_view v = Vrcholy();
    const std::string prvni(v.substr(0, 1));
    const std::string treti(v.substr(2, 1));
    const Bod kPrvnimu = *MistoVrcholu(prvni);
    const Bod kTretimu = *MistoVrcholu(treti);
    std::string pismeno = CtvrtePismeno(v);
    for (const Bod bod : {body.P1, body.P2}) {
        if (bod == BEZ_BODU || (bod == body.P1 && pismeno.size() > 1)) continue;
        NakresliStranu(treti, kTretimu, "", pismeno, bod, pismeno, false);
        NakresliStranu(pismeno, bod, "", prvni, kPrvnimu, "", false);
        pismeno += "'";
    }
    Upravit().HotovaKonstrukce = true;
}

// ---- The panel -------------------------------------------------------------------------------

void DialogCtyruhelnikuVrchol::UkazDalsi(Panel& p) const {
    constexpr std::array<int, 6> TVARY = {3, 4, 5, 6, 12, 0};
    p.lblText1 = VYZVA_VRCHOL;
    p.lblText2 = Stav().Faze == 2 ? "1. útvar:" : "2. útvar:";
    for (std::size_t i = 0; i < TVARY.size(); ++i) {
        const bool zive = !Stav().CekaNaKresleni && TVARY[i] != 0;
        p.cmd[i] = {TVARY[i], zive, zive};
    }
}

}  // namespace rysovna
