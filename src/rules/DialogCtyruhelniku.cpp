#include "rules/DialogCtyruhelniku.h"

#include <utility>

#include "base/Cisla.h"
#include "engine/Kresleni.h"
#include "engine/Resitele.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"
#include "rules/SlovaKroku.h"
#include "rules/Tahy.h"
#include "rules/Veliciny.h"

namespace rysovna {

namespace {

// What a release costs when a ray or a circle starts elsewhere.
constexpr CenaPocatku CENY_POCATKU[] = {{POLOPRIMKA, 23, 23}, {KRUZNICE, 22, 45}};

constexpr JmenaUtvaru JMENA[] = {
    {KRUZNICE, "k", "l"}, {POLOPRIMKA, "X", "Y"}, {ROVNOBEZKA, "t", "u"}, {KOLMICE, "p", "q"}};

/// A line of the list of theorems.
struct RadekVety {
    std::string_view Text, Veta;
};
constexpr RadekVety RADKY_VET[] = {{"podle věty SSS", SSS}, {"podle věty SUS", SUS}};

constexpr std::string_view PODLE_VETY = "podlevety";

constexpr ChybaKroku CHYBA_TROJUHELNIK = 133, CHYBA_VETA = 101;

constexpr std::string_view NELZE = "Z vepsaných hodnot nelze sestrojit trojúhelník!";

const char* Jednotka(const VstupVety& v) {
    return JeUhel(v.Velicina) ? "°" : " cm";
}

}  // namespace

DialogCtyruhelniku::DialogCtyruhelniku(Misc& misc, Platna platna,
                                       const PravidlaCtyruhelniku& pravidla)
    : DialogSeStavem(
          misc, platna,
          {pravidla.Uvod, pravidla.NacrtFigury, JMENA, CENY_POCATKU, {1, 2}, CHYBA_NEDOKONCENA}),
      pravidla_(pravidla) {}

// ---- The life of an example ------------------------------------------------------------------

void DialogCtyruhelniku::Posun(int dx, int dy) {
    DialogKroku::Posun(dx, dy);
    if (stav_.Nesestrojen) Prekresli();
}

void DialogCtyruhelniku::Prekresli() {
    DialogKroku::Prekresli();
    if (!stav_.Nesestrojen) return;
    Plane& pic = platna_.Pic;
    pic.CurrentX = static_cast<float>(pic.Width() - pic.TextWidth(NELZE)) / 2;
    pic.CurrentY = static_cast<float>(pic.Height() - pic.TextHeight()) / 2;
    pic.Print(NELZE);
}

// ---- Tools and lists -------------------------------------------------------------------------

/// The theorem and the confirmation go on with the step that the triangle began.
bool DialogCtyruhelniku::ZacinaKrok(Nastroj co) const {
    return stav_.Faze > 1 || co == Nastroj::Trojuhelnik;
}

void DialogCtyruhelniku::Nabidni(Nastroj co) {
    if (stav_.Faze > 1) return NabidniDalsi(co);
    std::vector<RadekSeznamu> radky;
    if (co == Nastroj::Trojuhelnik) {
        stav_.ZvolenyUtvar = TROJUHELNIK;
        for (const VetaTrojuhelniku& v : pravidla_.Vety) {
            const std::string t(v.Trojuhelnik);
            if (v.Veta == SSS) radky.push_back({t, true, true, t});
        }
        OtevriSeznam(Seznam::Obsah::Jmena, std::move(radky));
    } else if (co == Nastroj::Veta) {
        stav_.ZvolenyUtvar = PODLE_VETY;
        for (const RadekVety& r : RADKY_VET) {
            radky.push_back({std::string(r.Text), true, true, std::string(r.Veta)});
        }
        OtevriSeznam(Seznam::Obsah::Slova, std::move(radky));
    } else {
        PotvrdHodnoty();
    }
}

void DialogCtyruhelniku::ZvolRadek(std::size_t i) {
    const std::string& kod = stav_.Vyber.Radky[i].Jmena;
    if (stav_.ZvolenyUtvar == TROJUHELNIK) return ZvolTrojuhelnik(kod);
    if (stav_.ZvolenyUtvar == PODLE_VETY) return ZvolVetu(kod);
    ZvolDalsi(i);
}

void DialogCtyruhelniku::Napis(int ktery, const std::string& text) {
    if (stav_.Faze > 1) {
        DialogKroku::Napis(ktery, text);
    } else if (ktery >= 1 && ktery <= static_cast<int>(stav_.Vstupy.size())) {
        stav_.Vstupy[static_cast<std::size_t>(ktery - 1)] = text;
    }
}

void DialogCtyruhelniku::ZvolTrojuhelnik(const std::string& trojuhelnik) {
    stav_.ZvolenyTrojuhelnik = trojuhelnik;
    stav_.ZvolenaVeta.clear();
    stav_.Vstupy = {};
    if (trojuhelnik != Hrany().Text2) ChybnaVolba(CHYBA_TROJUHELNIK);
    Zapis(TROJUHELNIK, trojuhelnik);
}

void DialogCtyruhelniku::ZvolVetu(const std::string& veta) {
    stav_.ZvolenaVeta = veta;
    stav_.Vstupy = {};
    if (veta != Hrany().Text1) ChybnaVolba(CHYBA_VETA, veta + ".");
}

const VetaTrojuhelniku* DialogCtyruhelniku::ZvolenaVetaRadek() const {
    for (const VetaTrojuhelniku& v : pravidla_.Vety) {
        if (v.Veta == stav_.ZvolenaVeta && v.Trojuhelnik == stav_.ZvolenyTrojuhelnik) return &v;
    }
    return nullptr;
}

std::string_view DialogCtyruhelniku::Vrcholy() const {
    const VetaTrojuhelniku* v = ZvolenaVetaRadek();
    return v == nullptr ? std::string_view() : v->Vrcholy;
}

// ---- The starting triangle -------------------------------------------------------------------

/// Compares the typed values, then draws the triangle from them whatever they are. Of a wrong
/// triangle the example has no values; of a wrong theorem it has some.
void DialogCtyruhelniku::PotvrdHodnoty() {
    const VetaTrojuhelniku* veta = ZvolenaVetaRadek();
    if (veta == nullptr) return;
    if (stav_.ZvolenyTrojuhelnik == Hrany().Text2) {
        for (std::size_t i = 0; i < stav_.Vstupy.size(); ++i) {
            const VstupVety& v = veta->Vstupy[i];
            const std::optional<int> hodnota = Hodnota(v.Velicina);
            if (!hodnota || !v.Chyba) continue;
            const double ma = v.Pulka ? *hodnota / 2.0 : *hodnota;
            if (Cislo(stav_.Vstupy[i]) != ma) PridejChybu(misc_, v.Chyba);
        }
    }
    NakresliTrojuhelnik(*veta);
    DalsiFaze();
}

void DialogCtyruhelniku::NakresliTrojuhelnik(const VetaTrojuhelniku& veta) {
    const std::array<double, 3> hodnoty = {Cislo(stav_.Vstupy[0]), Cislo(stav_.Vstupy[1]),
                                           Cislo(stav_.Vstupy[2])};
    const auto body = SpocitejTrojuhelnik(platna_.Pic, veta.Veta, hodnoty);
    stav_.Nesestrojen = !body;
    if (body) {
        const std::string_view v = veta.Vrcholy;
        const auto& [p1, p2, p3] = *body;
        NakresliStranu(v.substr(0, 1), p1, v.substr(0, 1), v.substr(1, 1), p2, v.substr(1, 1),
                       true);
        NakresliStranu(v.substr(1, 1), p2, "", v.substr(2, 1), p3, v.substr(2, 1), false);
        NakresliStranu(v.substr(2, 1), p3, "", v.substr(0, 1), p1, "", false);
        for (std::size_t i = 0; i < hodnoty.size(); ++i) {
            misc_.Utvary[static_cast<int>(i) + misc_.PocetUtvaru - 2].Jak = {
                TROJUHELNIK, "", FormatCesky(hodnoty[i]) + Jednotka(veta.Vstupy[i])};
        }
    }
    Prekresli();
}

void DialogCtyruhelniku::NakresliStranu(std::string_view jmeno1, Bod p1, std::string_view popis1,
                                        std::string_view jmeno2, Bod p2, std::string_view popis2,
                                        bool znacky) {
    const int n = misc_.NovyUtvar(jmeno1, jmeno2);
    const auto delka = static_cast<float>(DelkaVCm(Vzdalenost(p1, p2)));
    KresliUsecku(misc_, platna_.Pic, n,
                 {.Druh = USECKA,
                  .P1 = p1,
                  .P2 = p2,
                  .Popis1 = popis1,
                  .Popis2 = popis2,
                  .Delka = delka,
                  .Znacky = znacky ? ANO : NE},
                 ANO);
}

std::optional<Bod> DialogCtyruhelniku::MistoVrcholu(std::string_view pismeno) const {
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar& u = misc_.Utvary[i];
        if (u.Druh != USECKA) continue;
        if (u.Jmeno1 == pismeno) return Bod{u.X1, u.Y1};
        if (u.Jmeno2 == pismeno) return Bod{u.X2, u.Y2};
    }
    return {};
}

// ---- The check -------------------------------------------------------------------------------

int DialogCtyruhelniku::ChybnychPrvku() const {
    const bool trojuhelnik = misc_.ZadanePrvky[1].Prvek == Hrany().Text2;
    return (trojuhelnik ? 0 : 1) + (PrvekSpravny(2) ? 0 : 1) + (PrvekSpravny(3) ? 0 : 1);
}

// ---- The panel -------------------------------------------------------------------------------

void DialogCtyruhelniku::UkazFazi(Panel& p) const {
    p.Nesestrojen = stav_.Nesestrojen;
    if (stav_.Faze > 1) return UkazDalsi(p);
    const VetaTrojuhelniku* veta = ZvolenaVetaRadek();
    p.Vyzva = "Nejprve zvol trojúhelník, kterým začneš konstrukci.";
    const bool zvolen = !stav_.ZvolenyTrojuhelnik.empty();
    using enum Nastroj;
    UkazNastroje(p, {Trojuhelnik, Veta, Zadny, Zadny, Zpet, Sestroj},
                 {MuzeZacit(), zvolen, false, false, zvolen, veta != nullptr});
    if (veta == nullptr) {
        if (zvolen) p.Nadpis = "trojúhelník " + stav_.ZvolenyTrojuhelnik;
        return;
    }
    p.Nadpis = "Délky úseček a velikosti úhlů:";
    for (std::size_t i = 0; i < stav_.Vstupy.size(); ++i) {
        const VstupVety& v = veta->Vstupy[i];
        p.Veliciny.push_back(
            {(JeUhel(v.Velicina) ? "vel. úhlu " : "délka strany ") + std::string(v.Popis) + " = ",
             {stav_.Vstupy[i], true, !stav_.Skontrolovano},
             Jednotka(v)});
    }
}

}  // namespace rysovna
