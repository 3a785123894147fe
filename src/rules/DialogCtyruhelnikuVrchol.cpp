// The fourth vertex of a quadrilateral by two objects: tools, lists, judgements, closing.

#include "rules/DialogCtyruhelnikuVrchol.h"

#include <algorithm>

#include "engine/Miry.h"
#include "rules/Chyby.h"
#include "rules/FiguraCtyruhelniku.h"
#include "rules/LosovaniCtyruhelniku.h"
#include "rules/Misc.h"
#include "rules/Uzavreni.h"

namespace rysovna {

namespace {

/// A ray: its vertex is the first letter, the side that its angle is measured from the last two.
constexpr std::string_view PAPRSKY[] = {"AXAD", "AXAB", "BXBC", "BXBA",
                                        "CXCD", "CXCB", "DXDA", "DXDC"};

/// A circle about a vertex.
struct RadekStredu {
    std::string_view Prvek, Stred;
    ChybaKroku Chyba;  ///< wrong step when the data expect no such circle
};
constexpr RadekStredu KRUZNICE_RADKY[] = {
    {"KA", "A", 32}, {"KB", "B", 33}, {"KC", "C", 34}, {"KD", "D", 46}};

/// What a read-out costs that is not the expected value.
struct CenaOdectu {
    std::string_view Druh;
    ChybaKroku Chyba;
};
constexpr CenaOdectu CENY_ODECTU[] = {{POLOPRIMKA, 30}, {KRUZNICE, 126}};

constexpr ChybaKroku CHYBA_PAPRSEK_PRVEK = 49;

}  // namespace

std::vector<Zadana> DialogCtyruhelnikuVrchol::Zadane() const {
    std::vector<Zadana> zadane = DialogCtyruhelniku::Zadane();
    for (const int n : {1, 2}) {
        const Krok& krok = Hrany().Kroky[n];
        zadane.push_back({krok.Jmeno, krok.JmenoB});
    }
    return zadane;
}

bool DialogCtyruhelnikuVrchol::VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) {
    return VylosujCtyruhelnik(misc_.Generator, platna_.Pic, p, Pravidla().Vety, hodnoty) > 0;
}

// ---- Lists -----------------------------------------------------------------------------------

/// A kind of object: its list, and what becomes of a chosen line.
struct DialogCtyruhelnikuVrchol::RadekNastroje {
    Nastroj Co;
    std::string_view Druh;
    std::vector<RadekSeznamu> (DialogCtyruhelnikuVrchol::*Radky)() const;
    void (DialogCtyruhelnikuVrchol::*Zvol)(const std::string& kod);
};

std::span<const DialogCtyruhelnikuVrchol::RadekNastroje> DialogCtyruhelnikuVrchol::Nastroje() {
    using D = DialogCtyruhelnikuVrchol;
    static constexpr RadekNastroje NASTROJE[] = {
        {Nastroj::Poloprimka, POLOPRIMKA, &D::Paprsky, &D::ZvolPaprsek},
        {Nastroj::Kolmice, KOLMICE, &D::Primky, &D::ZvolKolmici},
        {Nastroj::Rovnobezka, ROVNOBEZKA, &D::Primky, &D::ZvolRovnobezku},
        {Nastroj::Kruznice, KRUZNICE, &D::Kruznice, &D::ZvolKruznici}};
    return NASTROJE;
}

void DialogCtyruhelnikuVrchol::NabidniDalsi(Nastroj co) {
    const RadekNastroje& n = *std::ranges::find(Nastroje(), co, &RadekNastroje::Co);
    Upravit().ZvolenyUtvar = n.Druh;
    std::vector<RadekSeznamu> radky = (this->*n.Radky)();
    if (!radky.empty()) OtevriSeznam(Seznam::Obsah::Popisy, std::move(radky));
}

std::vector<RadekSeznamu> DialogCtyruhelnikuVrchol::Paprsky() const {
    std::vector<RadekSeznamu> radky;
    for (const std::string_view kod : PAPRSKY) {
        radky.push_back({std::string(kod.substr(0, 1)) + Jmeno() + ", svírající úhel s úsečkou " +
                             std::string(kod.substr(2)),
                         true, true, std::string(kod)});
    }
    return radky;
}

/// The lines that a perpendicular or a parallel can go by: the sides of the triangle, then what
/// line was drawn before; by a ray none goes.
std::vector<RadekSeznamu> DialogCtyruhelnikuVrchol::Primky() const {
    std::vector<RadekSeznamu> radky;
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar& u = misc_.Utvary[i];
        auto r = RadekPrimky(u, Stav().ZvolenyUtvar == KOLMICE);
        if (!r || u.Druh == POLOPRIMKA) continue;
        if (u.Druh == USECKA && vrchol_.Rovnobezky) {
            // A trapezoid's bases are sides; the starting triangle has a diagonal, too.
            if (VyskaNaStranu(r->Jmena).empty()) continue;
            r->Text = r->Jmena;
        }
        radky.push_back(std::move(*r));
    }
    return radky;
}

std::vector<RadekSeznamu> DialogCtyruhelnikuVrchol::Kruznice() const {
    std::vector<RadekSeznamu> radky;
    for (const RadekStredu& r : KRUZNICE_RADKY) {
        radky.push_back({"kružnice " + Jmeno() + ", střed v bodě " + std::string(r.Stred), true,
                         true, std::string(r.Prvek)});
    }
    return radky;
}

// ---- Choosing a line -------------------------------------------------------------------------

bool DialogCtyruhelnikuVrchol::JeOcekavany(std::string_view prvek) const {
    return Hrany().Kroky[1].UtvarB == prvek || Hrany().Kroky[2].UtvarB == prvek;
}

void DialogCtyruhelnikuVrchol::ZvolDalsi(std::size_t i) {
    const std::string kod = Stav().Vyber.Radky[i].Jmena;
    const auto n =
        std::ranges::find(Nastroje(), std::string_view(Stav().ZvolenyUtvar), &RadekNastroje::Druh);
    (this->*n->Zvol)(kod);
    Zapis(Stav().ZvolenyUtvar, Stav().ZvolenyPrvek);
}

void DialogCtyruhelnikuVrchol::ZvolPaprsek(const std::string& kod) {
    const std::string vrchol = kod.substr(0, 1);
    const std::string strana = kod.substr(2);
    Upravit().ZvolenyPrvek = kod;
    ZacniPaprsek(strana.substr(1), vrchol);
    if (!ObsadKrok(POLOPRIMKA)) {
        ChybnaVolba(CHYBA_PAPRSEK_NECEKANY);
    } else if (!JeOcekavany(kod)) {
        ChybnaVolba(CHYBA_PAPRSEK_PRVEK, vrchol + Jmeno() + " vůči úsečce " + strana +
                                             " - nesprávný postup konstrukce.");
    }
}

void DialogCtyruhelnikuVrchol::ZvolKruznici(const std::string& kod) {
    const auto* r = std::ranges::find(KRUZNICE_RADKY, std::string_view(kod), &RadekStredu::Prvek);
    Upravit().ZvolenyPrvek = kod;
    ZacniKruznici(r->Stred);
    if (!ObsadKrok(KRUZNICE)) {
        ChybnaVolba(CHYBA_KRUZNICE_NECEKANA);
    } else if (!JeOcekavany(kod)) {
        ChybnaVolba(r->Chyba);
    }
}

void DialogCtyruhelnikuVrchol::ZvolKolmici(const std::string& jmena) {
    Upravit().ZvolenyPrvek.clear();
    ZacniPrimku(jmena, jmena);
    ChybnaVolba(CHYBA_KOLMICE.Jinde());
}

void DialogCtyruhelnikuVrchol::ZvolRovnobezku(const std::string& jmena) {
    Upravit().ZvolenyPrvek = VyskaNaStranu(jmena);
    ZacniPrimku(jmena, jmena);
    if (vrchol_.Rovnobezky) {
        ObsadKrok(ROVNOBEZKA);
    } else {
        ChybnaVolba(CHYBA_ROVNOBEZKA.Jinde());
    }
}

bool DialogCtyruhelnikuVrchol::PrvekSpravny(int faze) const {
    const ZadanyPrvek& z = misc_.ZadanePrvky[faze];
    return std::ranges::any_of(std::array{1, 2}, [&](int n) {
        const Krok& krok = Hrany().Kroky[n];
        return !z.Utvar.empty() && z.Utvar == krok.Utvar && z.Prvek == krok.UtvarB;
    });
}

// ---- The plane -------------------------------------------------------------------------------

/// A parallel close to a vertex of the starting triangle that is not on its base goes through it,
/// where parallels belong to the construction.
std::optional<Bod> DialogCtyruhelnikuVrchol::BodRovnobezky(Bod konec) const {
    if (!vrchol_.Rovnobezky) return {};
    const Utvar& zakladna = Zakladna();
    const Dvojice tazena = Rovnobezne(zakladna, Stav().Start, konec);
    for (const char pismeno : Vrcholy()) {
        const std::string jmeno(1, pismeno);
        const std::optional<Bod> vrchol = MistoVrcholu(jmeno);
        if (!vrchol || jmeno == zakladna.Jmeno1 || jmeno == zakladna.Jmeno2) continue;
        if (Vzdalenost(PataUkazatele(tazena, *vrchol), *vrchol) < DOSAH_CHYTANI) return vrchol;
    }
    return {};
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

std::string DialogCtyruhelnikuVrchol::RamenoUhlu() const {
    return Stav().ZvolenyPrvek.substr(3);
}

void DialogCtyruhelnikuVrchol::PosudOdecet(double odecet) {
    const std::string_view druh = Stav().ZvolenyUtvar;
    const auto* cena = std::ranges::find(CENY_ODECTU, druh, &CenaOdectu::Druh);
    if (cena == std::end(CENY_ODECTU)) return;
    for (const int n : {1, 2}) {
        const Krok& krok = Hrany().Kroky[n];
        if (krok.Utvar != druh || krok.UtvarB != Stav().ZvolenyPrvek) continue;
        if (odecet != Hodnoty()[static_cast<std::size_t>(n) + 2]) {
            PridejChybu(misc_, cena->Chyba);
        }
        break;
    }
}

bool DialogCtyruhelnikuVrchol::ZacinaSpravne() const {
    const std::size_t kde = Stav().ZvolenyUtvar == KRUZNICE ? 1 : 0;
    return ZacinaVBode(misc_, Stav().Start, Stav().ZvolenyPrvek.substr(kde, 1));
}

/// The fourth vertex and, where the objects meet twice, its second solution with an apostrophe,
/// each with its two sides.
void DialogCtyruhelnikuVrchol::Uzavri() {
    if (Stav().Nesestrojen) return;
    const Utvar& prvniUtvar = misc_.Utvary[misc_.PocetUtvaru - 1];
    const Utvar& druhyUtvar = misc_.Utvary[misc_.PocetUtvaru];
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

void DialogCtyruhelnikuVrchol::UkazDalsi(Panel& p) const {
    UkazVolbuUtvaru(p, "Čtvrtý vrchol leží v průniku dvou geometrických útvarů:");
}

}  // namespace rysovna
