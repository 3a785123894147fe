#include "board/DialogCtyruhelniku.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "base/Cisla.h"
#include "board/Kontrola.h"
#include "board/Nacrt.h"
#include "board/Tahy.h"
#include "board/Uzavreni.h"
#include "engine/Kresleni.h"
#include "engine/Resitele.h"
#include "engine/Sluzby.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

const std::array<std::string_view, 4> CELE_TROJUHELNIKY = {"ABC", "BCD", "CDA", "DAB"};

const std::array<VetaTrojuhelniku, 8> VETY_CELYCH = {{
    {"sss", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"e", "e", 127}}}},
    {"sss", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"f", "f", 128}}}},
    {"sss", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"e", "e", 127}}}},
    {"sss", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"f", "f", 128}}}},
    {"sus", "ABC", "ABC", {{{"a", "a", 113}, {"b", "b", 114}, {"beta", "beta", 118}}}},
    {"sus", "BCD", "BCD", {{{"b", "b", 114}, {"c", "c", 115}, {"gama", "gama", 119}}}},
    {"sus", "CDA", "CDA", {{{"c", "c", 115}, {"d", "d", 116}, {"delta", "delta", 120}}}},
    {"sus", "DAB", "DAB", {{{"d", "d", 116}, {"a", "a", 113}, {"alfa", "alfa", 117}}}},
}};

namespace {

// The sketch: a quadrilateral A(40, 150), B(250, 150), C(215, 40), D(75, 25) with its diagonals.
// An angle's zone is the place of its letter.
constexpr auto CARA = PrvekNacrtu::Tvar::Usecka;
constexpr auto OBLOUK = PrvekNacrtu::Tvar::Oblouk;
constexpr PrvekNacrtu NACRT[] = {
    {"a", {40, 250, 0, 150, 3}, CARA, 40, 150, 250, 150, 0, 0, 0, "a", false, 145, 151},
    {"b", {215, 250, 22 / 7.0, -635.7, 13}, CARA, 250, 150, 215, 40, 0, 0, 0, "b", false, 238, 84},
    {"c", {75, 215, 3 / 28.0, 17, 5}, CARA, 215, 40, 75, 25, 0, 0, 0, "c", false, 145, 14},
    {"d", {40, 75, -25 / 7.0, 292.9, 14}, CARA, 75, 25, 40, 150, 0, 0, 0, "d", false, 43, 76},
    {"alfa", {68, 80, 0, 140, 6}, OBLOUK, 40, 150, 250, 150, 75, 25, 46, "a", true, 70, 132},
    {"beta", {205, 219, 0, 138, 7}, OBLOUK, 250, 150, 40, 150, 215, 40, 50, "b", true, 208, 130},
    {"gama", {196, 210, 0, 72, 7}, OBLOUK, 215, 40, 250, 150, 75, 25, 44, "g", true, 199, 64},
    {"delta", {80, 94, 0, 59, 7}, OBLOUK, 75, 25, 40, 150, 215, 40, 46, "d", true, 83, 51},
    {"e", {65, 200, -22 / 35.0, 175.1, 5}, CARA, 40, 150, 215, 40, 0, 0, 0, "e", false, 111, 82},
    {"f", {100, 225, 5 / 7.0, -28.6, 5}, CARA, 250, 150, 75, 25, 0, 0, 0, "f", false, 196, 91}};
constexpr PismenoNacrtu PISMENA[] = {
    {"A", 26, 146}, {"B", 254, 146}, {"C", 219, 26}, {"D", 61, 10}};

struct RadekVety {
    std::string_view Text, Veta;
};
constexpr RadekVety RADKY_VET[] = {{"podle věty SSS", "sss"}, {"podle věty SUS", "sus"}};

constexpr std::string_view TROJUHELNIK = "trojuhelnik";
constexpr std::string_view PODLE_VETY = "podlevety";

constexpr int CHYBA_TROJUHELNIK = 133, CHYBA_VETA = 101;

// Where the starting triangle is drawn.
constexpr Bod PRVNI_VRCHOL{150, 210};
// The same rule as for the meeting of two circles: a vertex closer to the edge gives way, px.
constexpr int OKRAJ = 20;
constexpr int DALEKO = 800;              // px from the origin, beyond it there is no triangle
constexpr double NEJDELSI = 1e5;         // px that a typed length may make at all
constexpr double DELKA_PAPRSKU = 10000;  // px, so that rounding does not bend the ray

constexpr std::string_view NELZE = "Z vepsaných hodnot nelze sestrojit trojúhelník!";
constexpr int SIRKA_NELZE = 274, VYSKA_NELZE = 12;  // px of that text as the plane prints it

constexpr int SIRKA_SEZNAMU_TROJUHELNIKU = 105, SIRKA_SEZNAMU_VET = 140;  // px
constexpr int OKRAJ_RADKU = 4, VYSKA_RADKU = 20;
constexpr int ODSAZENI_JEDNOTKY = 142;

constexpr int MEZERA = 2, MEZERA_UHLU = 4;  // px, of the assignment's labels

constexpr int NASTROJ_ZPET = 5, NASTROJ_POTVRZENI = 6;

constexpr int MEZ_POSUNU = 140, KROK_POSUNU = 20;  // px, of the arrows

int PrvkuTrojuhelniku(bool nesestrojen) {
    return nesestrojen ? 0 : 3;
}

bool Blizko(Bod b) {
    return std::abs(b.X) <= DALEKO && std::abs(b.Y) <= DALEKO;
}

}  // namespace

bool StejnaVelicina(std::string_view a, std::string_view b) {
    const auto cele = [](std::string_view n) { return n == "delt" ? "delta" : n; };
    return cele(a) == cele(b);
}

std::optional<std::array<Bod, 3>> SpocitejTrojuhelnik(const Plane& plocha, std::string_view veta,
                                                      const std::array<double, 3>& hodnoty) {
    const double a = hodnoty[0] * PIXELU_NA_CM;
    const double b = hodnoty[1] * PIXELU_NA_CM;
    const double c = hodnoty[2] * PIXELU_NA_CM;
    for (const double px : {a, b, c}) {
        if (!(std::fabs(px) < NEJDELSI)) return {};
    }
    const Bod p1 = PRVNI_VRCHOL;
    const Bod p2{Zaokrouhli(p1.X + a), p1.Y};
    Bod p3 = BEZ_BODU;
    Bod druhy = BEZ_BODU;
    if (veta == "sss") {
        PrunikKruznic(plocha, p1, static_cast<float>(c), p2, static_cast<float>(b), p3, druhy);
    } else {
        // Below the first side, as the circles would have it, if the vertex has room there.
        const double uhel = hodnoty[2] * PI / STUPNU_PULOTACKY;
        const double dolu = p2.Y + b * std::sin(uhel);
        const double x = p2.X - b * std::cos(uhel);
        const bool dole = x > OKRAJ && x < plocha.Width() - OKRAJ && dolu > OKRAJ &&
                          dolu < plocha.Height() - OKRAJ;
        Utvar paprsek;
        paprsek.Druh = POLOPRIMKA;
        paprsek.X1 = p2.X;
        paprsek.Y1 = p2.Y;
        paprsek.X2 = Zaokrouhli(p2.X - DELKA_PAPRSKU * std::cos(uhel));
        paprsek.Y2 = Zaokrouhli(p2.Y + (dole ? 1 : -1) * DELKA_PAPRSKU * std::sin(uhel));
        Utvar kruznice;
        kruznice.Druh = KRUZNICE;
        kruznice.X1 = p2.X;
        kruznice.Y1 = p2.Y;
        kruznice.Polomer = static_cast<float>(std::fabs(b));
        p3 = b == 0 || a == 0 ? BEZ_BODU : PrusecikyUtvaru(plocha, paprsek, kruznice).P1;
    }
    if (p3 == BEZ_BODU || !Blizko(p2) || !Blizko(p3)) return {};
    return std::array<Bod, 3>{p1, p2, p3};
}

bool VejdouSe(const Plane& plocha, std::span<const Bod> body) {
    const auto vSmeru = [body](int Bod::*os, int rozmer) {
        for (int d = -MEZ_POSUNU; d <= MEZ_POSUNU; d += KROK_POSUNU) {
            if (std::ranges::all_of(body, [=](const Bod& b) {
                    return b.*os + d >= OKRAJ && b.*os + d < rozmer - OKRAJ;
                })) {
                return true;
            }
        }
        return false;
    };
    return vSmeru(&Bod::X, plocha.Width()) && vSmeru(&Bod::Y, plocha.Height());
}

DialogCtyruhelniku::DialogCtyruhelniku(Platna platna, const PravidlaCtyruhelniku& pravidla)
    : Dialog(platna), pravidla_(pravidla) {}

std::optional<int> DialogCtyruhelniku::Hodnota(std::string_view velicina) const {
    const std::vector<Zadana> zadane = Zadane();
    for (std::size_t i = 0; i < zadane.size(); ++i) {
        if (StejnaVelicina(zadane[i].Nazev, velicina)) return hodnoty_[i];
    }
    return {};
}

void DialogCtyruhelniku::ChybnaVolba(int cislo, std::string_view text) {
    PridejChybu(cislo, text, 3);
    stav_.KrokChybny = true;
}

void DialogCtyruhelniku::ChybnaVolba(int cislo) {
    ChybnaVolba(cislo, TRI_BODY);
}

// ---- The life of an example ------------------------------------------------------------------

void DialogCtyruhelniku::NovyPriklad() {
    VyprazdniKonstrukci(platna_);
    stav_ = StavCtyruhelniku{};
}

void DialogCtyruhelniku::NoveZadani() {
    stav_.Znacky = 0;
    cisloPrikladu_ = VylosujPriklad();
    ZapomenZadanePrvky();
    if (VylosujHodnoty(Hrany(), hodnoty_)) SestavZadani();
}

void DialogCtyruhelniku::SestavZadani() {
    const std::vector<Zadana> zadane = Zadane();
    zadani_.clear();
    for (std::size_t i = 0; i < zadane.size(); ++i) {
        const auto& [nazev, jednotka] = zadane[i];
        const std::string_view pismeno = PismenoUhlu(nazev);
        const bool uhel = !pismeno.empty();
        const bool novyRadek = i % 2 == 0;
        const bool posledni = i + 1 == zadane.size();
        zadani_.push_back(uhel ? NazevUhlu(pismeno, MEZERA, novyRadek)
                               : NazevStrany(nazev, MEZERA, novyRadek));
        // What has no unit has no value: it says all by its name.
        zadani_.push_back(HodnotaZadani(jednotka.empty()
                                            ? std::string(posledni ? "" : ", ")
                                            : TextHodnoty(hodnoty_[i], jednotka, posledni),
                                        uhel ? MEZERA_UHLU : MEZERA));
    }
}

void DialogCtyruhelniku::Posun(int dx, int dy) {
    PosunVse(platna_.HidenPic, platna_.Pic, dx, dy);
    if (stav_.Nesestrojen) Prekresli();
}

void DialogCtyruhelniku::Prekresli() {
    PrekresliVse(platna_.HidenPic, platna_.Pic);
    if (!stav_.Nesestrojen) return;
    Plane& pic = platna_.Pic;
    pic.CurrentX = static_cast<float>(pic.Width() - SIRKA_NELZE) / 2;
    pic.CurrentY = static_cast<float>(pic.Height() - VYSKA_NELZE) / 2;
    pic.Print(NELZE);
}

bool DialogCtyruhelniku::StiskNacrtu(float x, float y) {
    const int prvek = PrvekPod(NACRT, x, y);
    if (prvek < 0 || stav_.Skontrolovano) return false;
    stav_.Znacky ^= 1U << prvek;
    return true;
}

void DialogCtyruhelniku::KresliNacrt(Plane& plocha) const {
    KresliPrvkyNacrtu(plocha, NACRT, PISMENA, stav_.Znacky);
}

// ---- Tools and lists -------------------------------------------------------------------------

void DialogCtyruhelniku::StiskNastroje(int i) {
    const Panel panel = UkazPanel();
    if (i < 1 || i > NASTROJ_POTVRZENI || !panel.cmd[static_cast<std::size_t>(i - 1)].Zive) return;
    KonstrukceZahajena = ANO;
    ZavriSeznam();
    if (i == NASTROJ_ZPET) return Zpet();
    if (stav_.Faze > 1) {
        if (stav_.Faze >= PosledniFaze()) return;  // a full construction takes no further object
        stav_.KrokChybny = false;
        return NabidniDalsi(i);
    }
    std::vector<RadekSeznamu> radky;
    if (i == 1) {
        stav_.KrokChybny = false;
        stav_.ZvolenyUtvar = TROJUHELNIK;
        for (const std::string_view t : pravidla_.Trojuhelniky) {
            radky.push_back({std::string(t), true, true, std::string(t)});
        }
        OtevriSeznam(SIRKA_SEZNAMU_TROJUHELNIKU, std::move(radky));
    } else if (i == 2) {
        stav_.ZvolenyUtvar = PODLE_VETY;
        for (const RadekVety& r : RADKY_VET) {
            radky.push_back({std::string(r.Text), true, true, std::string(r.Veta)});
        }
        OtevriSeznam(SIRKA_SEZNAMU_VET, std::move(radky));
    } else {
        PotvrdHodnoty();
    }
}

void DialogCtyruhelniku::OtevriSeznam(int sirka, std::vector<RadekSeznamu> radky) {
    const int vyska = static_cast<int>(radky.size()) * VYSKA_RADKU + OKRAJ_RADKU;
    stav_.Combo = {true, sirka, vyska, sirka - OKRAJ_RADKU, std::move(radky)};
}

void DialogCtyruhelniku::VyberRadku(int i) {
    if (!stav_.Combo.Otevreny || i < 1 || i > static_cast<int>(stav_.Combo.Radky.size())) return;
    const RadekSeznamu radek = stav_.Combo.Radky[static_cast<std::size_t>(i - 1)];
    if (!radek.Videt || !radek.Ziva) return;
    ZavriSeznam();
    if (stav_.ZvolenyUtvar == TROJUHELNIK) return ZvolTrojuhelnik(radek.Tag);
    if (stav_.ZvolenyUtvar == PODLE_VETY) return ZvolVetu(radek.Tag);
    stav_.Tazeni = false;
    ZvolDalsi(radek);
}

void DialogCtyruhelniku::Napis(int ktery, const std::string& text) {
    if (stav_.Faze > 1) {
        stav_.txtVstup.Text = text;
    } else if (ktery >= 1 && ktery <= static_cast<int>(stav_.Vstupy.size())) {
        stav_.Vstupy[static_cast<std::size_t>(ktery - 1)] = text;
    }
}

void DialogCtyruhelniku::Vyzvi(std::string vyzva, std::string jednotka) {
    stav_.lblText3 = std::move(vyzva);
    stav_.lblText4 = {std::move(jednotka), true, false, ODSAZENI_JEDNOTKY, false};
    stav_.txtVstup = {"", true, true};
}

void DialogCtyruhelniku::Zapis(std::string_view druh, std::string_view prvek) {
    ZadanyPrvek& z = ZadanePrvky[stav_.Faze];
    z.Faze = static_cast<std::int16_t>(stav_.Faze);
    z.Utvar = druh;
    z.Prvek = prvek;
}

void DialogCtyruhelniku::ZvolTrojuhelnik(const std::string& radek) {
    stav_.ZvolenyTrojuhelnik = radek;
    stav_.ZvolenaVeta.clear();
    stav_.Vstupy = {};
    if (radek != Hrany().Text2) ChybnaVolba(CHYBA_TROJUHELNIK);
    Zapis(TROJUHELNIK, radek);
}

void DialogCtyruhelniku::ZvolVetu(const std::string& radek) {
    stav_.ZvolenaVeta = radek;
    stav_.Vstupy = {};
    if (radek != Hrany().Text1) ChybnaVolba(CHYBA_VETA, radek + "." + std::string(TRI_BODY));
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
            if (!hodnota || v.Chyba == 0) continue;
            const double ma = v.Pulka ? *hodnota / 2.0 : *hodnota;
            if (Cislo(stav_.Vstupy[i]) != ma) PridejChybu(v.Chyba, JEDEN_BOD, 1);
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
    }
    Prekresli();
}

int DialogCtyruhelniku::NovyUtvar(std::string_view jmeno1, std::string_view jmeno2) {
    const int n = ++PocetUtvaru;
    SmazRadekUtvaru(n);
    SmazRadekTrojic(PocetTrojic + 1);
    Utvary[n].Jmeno1 = jmeno1;
    Utvary[n].Jmeno2 = jmeno2;
    return n;
}

void DialogCtyruhelniku::NakresliStranu(std::string_view jmeno1, Bod p1, std::string_view popis1,
                                        std::string_view jmeno2, Bod p2, std::string_view popis2,
                                        bool znacky) {
    const int n = NovyUtvar(jmeno1, jmeno2);
    const auto delka = static_cast<float>(DelkaVCm(Vzdalenost(p1, p2)));
    KresliUsecku(platna_.Pic, USECKA, n, p1.X, p1.Y, p2.X, p2.Y, delka, popis1, popis2,
                 znacky ? ANO : NE, ANO, ANO);
}

std::optional<Bod> DialogCtyruhelniku::MistoVrcholu(std::string_view pismeno) {
    for (int i = 1; i <= PocetUtvaru; ++i) {
        const Utvar& u = Utvary[i];
        if (u.Druh != USECKA) continue;
        if (u.Jmeno1 == pismeno) return Bod{u.X1, u.Y1};
        if (u.Jmeno2 == pismeno) return Bod{u.X2, u.Y2};
    }
    return {};
}

void DialogCtyruhelniku::DalsiFaze() {
    stav_.CekaNaKresleni = false;
    stav_.Tazeni = false;
    stav_.ZvolenyUtvar.clear();
    stav_.txtVstup = {};
    stav_.lblText3.clear();
    stav_.lblText4 = {};
    ++stav_.Faze;
}

void DialogCtyruhelniku::Zpet() {
    platna_.Pic.DrawWidth = 1;
    --stav_.Faze;
    stav_.CekaNaKresleni = false;
    stav_.ZvolenyUtvar.clear();
    stav_.HotovaKonstrukce = false;
    for (int n = 1; n <= decltype(Priklad::Kroky)::POSLEDNI; ++n) {
        HranyProUpravu().Kroky[n].Hotovo = NE;
    }
    if (stav_.Faze == 1) {
        // The whole triangle goes, and what it was chosen by.
        PocetUtvaru = PocetTrojic = 0;
        stav_.Nesestrojen = false;
        stav_.ZvolenyTrojuhelnik.clear();
        stav_.ZvolenaVeta.clear();
        stav_.Vstupy = {};
    } else {
        PocetUtvaru = PocetTrojic = PrvkuTrojuhelniku(stav_.Nesestrojen) + UtvaruVeFazi(stav_.Faze);
    }
    Prekresli();
}

// ---- The check -------------------------------------------------------------------------------

void DialogCtyruhelniku::Zkontroluj() {
    stav_.Skontrolovano = true;
    stav_.Tazeni = false;
    ZavriSeznam();
    int chybnych = ZadanePrvky[1].Prvek == Hrany().Text2 ? 0 : 1;
    for (const int faze : {2, 3}) {
        if (!PrvekSpravny(faze)) ++chybnych;
    }
    UctujChybnePrvky(chybnych);

    std::uint32_t ocekavane = 0;
    for (std::size_t i = 0; i < std::size(NACRT); ++i) {
        if (Hodnota(NACRT[i].Velicina)) ocekavane |= 1U << i;
    }
    UctujZnacky(stav_.Znacky == ocekavane);
    if (!stav_.HotovaKonstrukce) UctujNedokoncenou(TvarBodu::PodleCisla);
}

// ---- The panel -------------------------------------------------------------------------------

Panel DialogCtyruhelniku::UkazPanel() const {
    constexpr std::string_view VYZVA = "Nejprve zvol trojúhelník, kterým začneš konstrukci.";
    constexpr std::string_view VYZVA_HODNOT = "Délky úseček a velikosti úhlů:";
    constexpr std::array<int, 6> TVARY_FAZE1 = {10, 13, 0, 0, 12, 14};

    Panel p;
    p.Label1 = pravidla_.Uvod;
    p.Combo = stav_.Combo;
    p.lblZadani = zadani_;
    p.PicZiva = !stav_.HotovaKonstrukce && !stav_.Skontrolovano;
    p.lblText3 = stav_.lblText3;
    p.lblText4 = stav_.lblText4;
    p.txtVstup = stav_.txtVstup;
    if (stav_.Faze == 1) {
        p.lblText1 = VYZVA;
        const bool muzeZacit = KonstrukceZahajena != NE || stav_.Znacky != 0;
        const bool trojuhelnik = !stav_.ZvolenyTrojuhelnik.empty();
        const VetaTrojuhelniku* veta = ZvolenaVetaRadek();
        const bool zive[] = {muzeZacit, trojuhelnik, false, false, false, veta != nullptr};
        for (std::size_t i = 0; i < p.cmd.size(); ++i)
            p.cmd[i] = {TVARY_FAZE1[i], zive[i], zive[i]};
        if (veta != nullptr) {
            p.lblText2 = VYZVA_HODNOT;
            for (std::size_t i = 0; i < stav_.Vstupy.size(); ++i) {
                const bool uhel = i == 2 && veta->Veta == "sus";
                p.Vstupy.push_back({(uhel ? "vel. úhlu " : "délka strany ") +
                                        std::string(veta->Vstupy[i].Popis) + " = ",
                                    {stav_.Vstupy[i], true, !stav_.Skontrolovano},
                                    uhel ? "°" : " cm"});
            }
            p.txtVstup = p.Vstupy[0].Box;
            p.lblText4 = {p.Vstupy[0].Jednotka, true, false, 0, false};
        }
    } else {
        UkazDalsi(p);
    }
    p.txtVstup.Ziva = !stav_.Skontrolovano;
    for (std::size_t i = 0; stav_.Skontrolovano && i < p.cmd.size(); ++i) {
        p.cmd[i].Zive = false;
        if (i + 1 == NASTROJ_ZPET) p.cmd[i].Barevne = false;
    }
    return p;
}

}  // namespace rysovna
