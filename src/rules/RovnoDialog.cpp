#include "rules/RovnoDialog.h"

#include <algorithm>
#include <map>

#include "base/Cisla.h"
#include "engine/Kresleni.h"
#include "engine/Tabulky.h"
#include "rules/Misc.h"
#include "rules/Radky.h"
#include "rules/SlovaKroku.h"

namespace rysovna {

namespace {

// Whole triangles as on every quadrilateral. In a triangle with the centre S the halves of the
// diagonals are typed; the angle of the diagonals has no number of its own.
constexpr VetaTrojuhelniku SeStranou(std::string_view t, VstupVety strana, VstupVety druha,
                                     VstupVety treti) {
    return {SSS, t, t, {strana, druha, treti}};
}
constexpr VstupVety AS{"e", "AS", 127, true}, BS{"f", "BS", 128, true}, CS{"e", "CS", 127, true},
    DS{"f", "DS", 128, true};
constexpr VstupVety EPSI{"epsi", "epsi", {}}, OMEG{"omeg", "omeg", {}};
constexpr auto VETY = Spoj(VETY_CELYCH, std::array<VetaTrojuhelniku, 8>{
                                            SeStranou("ABS", {"a", "a", 113}, BS, AS),
                                            SeStranou("BCS", {"b", "b", 114}, CS, BS),
                                            SeStranou("CDS", {"c", "c", 115}, DS, CS),
                                            SeStranou("DAS", {"d", "d", 116}, AS, DS),
                                            {SUS, "ABS", "ASB", {AS, BS, EPSI}},
                                            {SUS, "BCS", "BSC", {BS, CS, OMEG}},
                                            {SUS, "CDS", "CSD", {CS, DS, EPSI}},
                                            {SUS, "DAS", "DSA", {DS, AS, OMEG}},
                                        });

// The sketch: a parallelogram A(40, 150), B(200, 150), C(255, 40), D(95, 40) with its diagonals. An
// angle's zone is the place of its letter. The diagonals' angles have no mark, so letters say which
// they are: ASB and BSC.
constexpr PrvekNacrtu NACRT[] = {
    CaraNacrtu("a", {40, 200, 0, 150, 3}, {40, 150}, {200, 150}, {115, 151}),
    CaraNacrtu("b", {200, 255, -2, 550, 9}, {200, 150}, {255, 40}, {236, 88}),
    CaraNacrtu("c", {95, 255, 0, 40, 3}, {95, 40}, {255, 40}, {172, 23}),
    CaraNacrtu("d", {40, 95, -2, 230, 9}, {40, 150}, {95, 40}, {50, 80}),
    UhelNacrtu("alfa", {68, 80, 0, 140, 6}, {40, 150}, {200, 150}, {95, 40}, 46, {70, 132}),
    UhelNacrtu("beta", {162, 176, 0, 138, 7}, {200, 150}, {40, 150}, {255, 40}, 44, {165, 130}),
    UhelNacrtu("gama", {222, 234, 0, 66, 6}, {255, 40}, {200, 150}, {95, 40}, 46, {225, 58}),
    UhelNacrtu("delta", {93, 107, 0, 73, 7}, {95, 40}, {40, 150}, {255, 40}, 44, {96, 65}),
    CaraNacrtu("e", {85, 215, -22 / 43.0, 170.5, 5}, {40, 150}, {255, 40}, {92, 100}),
    CaraNacrtu("f", {108, 187, 22 / 21.0, -59.5, 6}, {200, 150}, {95, 40}, {117, 74})};
constexpr PismenoNacrtu PISMENA[] = {{"A", 26, 146},
                                     {"B", 204, 146},
                                     {"C", 259, 26},
                                     {"D", 82, 26},
                                     {"S", 144, 70},
                                     {"epsi", 141, 103, NapisNacrtu::Uhel},
                                     {"omeg", 162, 88, NapisNacrtu::Uhel}};

constexpr PravidlaCtyruhelniku PRAVIDLA{"Sestroj rovnoběžník ABCD:", VETY, {NACRT, PISMENA}};

/// How the three values are drawn, kinds from Od to Po (two digits, so text compares as numbers).
/// The first two are lengths.
struct Losovani {
    std::string_view Od, Po;
    std::array<Vzorec, 2> Treti;  ///< the third value of an even kind, of an odd one
    bool Uhel;                    ///< two diagonals, the first the longer, and their angle
    bool Uhlopricky;              ///< diagonals are even: their halves fit the third value
};
constexpr Vzorec DELKA{12, 10}, OSTRY{67, 22}, TUPY{70, 91};
constexpr Losovani LOSOVANI[] = {{"01", "24", {DELKA, DELKA}, false, false},
                                 {"25", "56", {DELKA, DELKA}, false, true},
                                 {"57", "60", {OSTRY, TUPY}, true, true}};

constexpr std::string_view JMENO_STREDU = "S";
constexpr ChybaKroku CHYBA_STRED = 112, CHYBA_VZOR = 137;
constexpr int KROKU = 6;

constexpr std::string_view VYZVA_STRED = "Nyní zvol střed souměrnosti.";
constexpr std::string_view VYZVA_STRED_KLIK = "Zvol kliknutím na kreslící ploše střed úsečky.";
constexpr std::string_view VYZVA_OBRAZ = "Nyní najdi obraz bodů ve středové souměrnosti.";
constexpr std::string_view VYZVA_OBRAZ_KLIK =
    "Zvol kliknutím na kreslící ploše obraz ve střed. souměrnosti.";

bool JeUhlopricka(std::string_view nazev) {
    return nazev == "e" || nazev == "f";
}
bool Sude(int x) {
    return x % 2 == 0;
}

/// The vertex across the centre.
char Protejsi(char vrchol) {
    constexpr std::string_view VRCHOLY = "ABCD";
    const std::size_t i = VRCHOLY.find(vrchol);
    return i == std::string_view::npos ? vrchol : VRCHOLY[(i + 2) % 4];
}

Bod PulkaCesty(Bod p, Bod q) {
    return {Zaokrouhli((p.X + q.X) / 2.0), Zaokrouhli((p.Y + q.Y) / 2.0)};
}
Bod ObrazVeStredu(Bod vzor, Bod stred) {
    return {2 * stred.X - vzor.X, 2 * stred.Y - vzor.Y};
}

bool Vyhovuje(const Losovani& l, const std::string_view (&nazvy)[3], const HodnotyPrikladu& h) {
    if (l.Uhel) return h[0] > h[1] && Sude(h[0]) && Sude(h[1]);
    double delky[3];
    for (std::size_t i = 0; i < 3; ++i) {
        const bool pulka = l.Uhlopricky && JeUhlopricka(nazvy[i]);
        if (pulka && !Sude(h[i])) return false;
        delky[i] = pulka ? h[i] / 2.0 : h[i];
    }
    return Trojuhelnikova(delky[0], delky[1], delky[2]);
}

/// The whole parallelogram of these values, as the board would draw it, and its centre: four
/// vertices in order, then S. None if they make no triangle.
std::optional<std::array<Bod, 5>> SpocitejRovnobeznik(const Plane& plocha,
                                                      const VetaTrojuhelniku& veta,
                                                      const std::array<double, 3>& hodnoty) {
    const auto body = SpocitejTrojuhelnik(plocha, veta.Veta, hodnoty);
    if (!body) return {};
    std::map<char, Bod> misto;
    for (std::size_t i = 0; i < body->size(); ++i) misto[veta.Vrcholy[i]] = (*body)[i];
    for (const char c : {'A', 'B'}) {
        if (!misto.contains('S') && misto.contains(c) && misto.contains(Protejsi(c))) {
            misto['S'] = PulkaCesty(misto[c], misto[Protejsi(c)]);
        }
    }
    std::array<Bod, 5> vse{};
    for (std::size_t i = 0; i < 4; ++i) {
        const char c = "ABCD"[i];
        vse[i] = misto.contains(c) ? misto[c] : ObrazVeStredu(misto[Protejsi(c)], misto['S']);
    }
    vse[4] = misto['S'];
    return vse;
}

/// Whether the figure of the values can be read. Where the data name no triangle, any can.
bool FiguraCitelna(const Plane& plocha, const Priklad& p, const HodnotyPrikladu& h) {
    const auto* veta = std::ranges::find_if(VETY, [&p](const VetaTrojuhelniku& v) {
        return v.Veta == p.Text1 && v.Trojuhelnik == p.Text2;
    });
    if (veta == VETY.end()) return true;
    const auto body = SpocitejRovnobeznik(plocha, *veta, HodnotyVety(*veta, p, h));
    if (!body) return false;
    const auto& b = *body;
    const std::array<Bod, 4> vrcholy = {b[0], b[1], b[2], b[3]};
    return JeCitelna(b, {&vrcholy, 1});
}

}  // namespace

int VylosujRovnobeznik(Nahoda& nahoda, const Plane& plocha, const Priklad& p,
                       HodnotyPrikladu& hodnoty) {
    const std::string_view nazvy[] = {p.Nazev1, p.Nazev2, p.Nazev3};
    for (const Losovani& l : LOSOVANI) {
        if (p.Druh < l.Od || p.Druh > l.Po) continue;
        const std::size_t lichy = p.Druh.back() % 2 == 0 ? 0 : 1;
        for (int i = 1; i <= NEJVIC_LOSOVANI; ++i) {
            VylosujTri(nahoda, {DELKA, DELKA, l.Treti[lichy]}, hodnoty);
            if (Vyhovuje(l, nazvy, hodnoty) && FiguraCitelna(plocha, p, hodnoty)) return i;
        }
        return NEJVIC_LOSOVANI;
    }
    return 0;
}

RovnoDialog::RovnoDialog(Misc& misc, Platna platna) : DialogCtyruhelniku(misc, platna, PRAVIDLA) {}

bool RovnoDialog::VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) {
    return VylosujRovnobeznik(misc_.Generator, platna_.Pic, p, hodnoty) > 0;
}

bool RovnoDialog::SeStredem() const {
    return Stav().ZvolenyTrojuhelnik.find(JMENO_STREDU) != std::string::npos;
}

/// A triangle with the centre lacks two vertices, a whole one lacks one.
int RovnoDialog::PosledniFaze() const {
    return SeStredem() ? 5 : 4;
}

/// The centres that the data accept: of the first two steps those that are points.
std::vector<std::string_view> RovnoDialog::Stredy() const {
    std::vector<std::string_view> stredy;
    for (const int n : {1, 2}) {
        const Krok& k = Hrany().Kroky[n];
        if (k.Utvar == BOD) stredy.push_back(k.Jmeno);
    }
    return stredy;
}

/// The vertices whose images are to be found, in the order in which they are asked for.
std::vector<std::string_view> RovnoDialog::Vzory() const {
    std::vector<std::string_view> vzory;
    for (int n = 1; n <= KROKU; ++n) {
        const Krok& k = Hrany().Kroky[n];
        if (k.Utvar == OBRAZ_BODU) vzory.push_back(k.Jmeno);
    }
    return vzory;
}

/// The point that is looked for now: opposite to what the data expect; where they expect nothing
/// more, the first vertex that is still missing.
std::string RovnoDialog::HledanyBod() const {
    const auto vzory = Vzory();
    const auto i = static_cast<std::size_t>(Stav().Faze - 3);
    if (i < vzory.size() && !vzory[i].empty()) {
        const std::string bod(1, Protejsi(vzory[i][0]));
        if (!Misto(bod)) return bod;
    }
    for (const char c : {'A', 'B', 'C', 'D'}) {
        const std::string bod(1, c);
        if (!Misto(bod)) return bod;
    }
    return "D";
}

/// Where a vertex is: of the triangle, or an image found already.
std::optional<Bod> RovnoDialog::Misto(std::string_view pismeno) const {
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar& u = misc_.Utvary[i];
        if (u.Druh == BOD && u.Jmeno1 == pismeno) return Bod{u.X1, u.Y1};
    }
    return MistoVrcholu(pismeno);
}

// ---- Lists -----------------------------------------------------------------------------------

void RovnoDialog::NabidniDalsi(Nastroj co) {
    if (co == Nastroj::StredSoumernosti) return NabidniStredy();
    NabidniObrazy();
}

void RovnoDialog::NabidniStredy() {
    Upravit().ZvolenyUtvar = STRED_SOUMERNOSTI;
    std::vector<RadekSeznamu> radky;
    std::string t = Stav().ZvolenyTrojuhelnik;
    for (const auto& [i, j] : {std::pair{0U, 1U}, std::pair{1U, 2U}, std::pair{2U, 0U}}) {
        std::string strana{t[i], t[j]};
        if (strana == "CA" || strana == "DB") std::swap(strana[0], strana[1]);
        radky.push_back({"střed úsečky " + strana, true, true, strana});
    }
    for (const char c : t) {
        radky.push_back({"vrchol " + std::string(1, c), true, true, std::string(1, c)});
    }
    OtevriSeznam(Seznam::Obsah::Slova, std::move(radky));
}

void RovnoDialog::NabidniObrazy() {
    Upravit().ZvolenyUtvar = OBRAZ_BODU;
    // The heading stands in two lines that cannot be picked.
    std::vector<RadekSeznamu> radky = {{"Obraz", true, false, ""},
                                       {"ve střed. souměrnosti", true, false, ""}};
    for (const char c : {'A', 'B', 'C', 'D'}) {
        const std::string vzor(1, c);
        radky.push_back(
            {"hledaný bod " + HledanyBod() + " je obrazem vrcholu " + vzor, true, true, vzor});
    }
    OtevriSeznam(Seznam::Obsah::DlouhePopisy, std::move(radky));
}

void RovnoDialog::ZvolDalsi(std::size_t i) {
    const std::string kod = Stav().Vyber.Radky[i].Jmena;
    Upravit().CekaNaKresleni = true;
    Upravit().ZvolenyPrvek = kod;
    Stav().ZvolenyUtvar == STRED_SOUMERNOSTI ? ZvolStred(kod) : ZvolObraz(kod);
}

void RovnoDialog::ZvolStred(const std::string& kod) {
    Zapis(BOD, kod);
    const auto stredy = Stredy();
    if (std::ranges::find(stredy, std::string_view(kod)) == stredy.end()) ChybnaVolba(CHYBA_STRED);
    // A vertex that stands on the plane already needs no click.
    const auto vrchol = Misto(kod);
    if (kod.size() > 1 || !vrchol) return;
    NakresliStred(*vrchol, kod == JMENO_STREDU);
    misc_.Utvary[misc_.PocetUtvaru].Jak = {Stav().ZvolenyUtvar, kod, ""};
    DalsiFaze();
}

void RovnoDialog::ZvolObraz(const std::string& vzor) {
    Zapis(OBRAZ_BODU, vzor);
    if (Protejsi(vzor[0]) != HledanyBod()[0]) ChybnaVolba(CHYBA_VZOR);
}

bool RovnoDialog::PrvekSpravny(int faze) const {
    const auto sedi = [this](int f, std::string_view druh,
                             const std::vector<std::string_view>& jmena) {
        const ZadanyPrvek& z = misc_.ZadanePrvky[f];
        return z.Utvar == druh &&
               std::ranges::find(jmena, std::string_view(z.Prvek)) != jmena.end();
    };
    if (faze == 2) return sedi(2, BOD, Stredy());
    // The images are one element together.
    const auto vzory = Vzory();
    for (std::size_t i = 0; i < vzory.size(); ++i) {
        if (!sedi(3 + static_cast<int>(i), OBRAZ_BODU, {vzory[i]})) return false;
    }
    return !vzory.empty();
}

// ---- The plane -------------------------------------------------------------------------------

/// Marks the centre. maPismeno: it is the vertex S of the triangle, which has its letter already.
void RovnoDialog::NakresliStred(Bod stred, bool maPismeno) {
    const int n = NovyUtvar(JMENO_STREDU, "");
    KresliBod(misc_, platna_.Pic, n,
              {.Druh = BOD, .P1 = stred, .Popis1 = maPismeno ? "" : JMENO_STREDU}, ANO);
}

/// The click marks the computed point, near or far: where the triangle is missing, its own place.
void RovnoDialog::NakresliUtvar(Bod /*konec*/) {
    const std::string prvek = Stav().ZvolenyPrvek;
    Bod bod = Stav().Start;
    if (Stav().ZvolenyUtvar == STRED_SOUMERNOSTI) {
        const auto p = Misto(prvek.substr(0, 1));
        const auto q = Misto(prvek.substr(1));
        if (p && q) bod = PulkaCesty(*p, *q);
        NakresliStred(bod, false);
    } else {
        const std::string hledany = HledanyBod();
        const auto vzor = Misto(prvek);
        const auto stred = Misto(JMENO_STREDU);
        if (vzor && stred) bod = ObrazVeStredu(*vzor, *stred);
        const int n = NovyUtvar(hledany, "");
        KresliBod(misc_, platna_.Pic, n, {.Druh = BOD, .P1 = bod, .Popis1 = hledany}, ANO);
    }
}

/// The sides that the triangle lacks.
void RovnoDialog::Uzavri() {
    if (Stav().Nesestrojen) return;
    constexpr std::string_view STRANY[] = {"AB", "BC", "CD", "DA"};
    for (const std::string_view s : STRANY) {
        const std::string_view od = s.substr(0, 1);
        const std::string_view k = s.substr(1);
        const bool stoji = std::any_of(&misc_.Utvary[1], &misc_.Utvary[3] + 1, [&](const Utvar& u) {
            return (u.Jmeno1 == od && u.Jmeno2 == k) || (u.Jmeno1 == k && u.Jmeno2 == od);
        });
        const auto p = Misto(od);
        const auto q = Misto(k);
        if (!stoji && p && q) NakresliStranu(od, *p, "", k, *q, "", false);
    }
    Upravit().HotovaKonstrukce = true;
}

// ---- The panel -------------------------------------------------------------------------------

void RovnoDialog::UkazDalsi(Panel& p) const {
    const bool ceka = Stav().CekaNaKresleni;
    const bool stred = Stav().Faze == 2;
    if (stred) {
        p.Vyzva = ceka ? VYZVA_STRED_KLIK : VYZVA_STRED;
    } else {
        p.Vyzva = ceka ? VYZVA_OBRAZ_KLIK : VYZVA_OBRAZ;
    }
    using enum Nastroj;
    UkazNastroje(p, {StredSoumernosti, Obraz, Zadny, Zadny, Zpet, Zadny},
                 {stred, !stred, false, false, true});
}

}  // namespace rysovna
