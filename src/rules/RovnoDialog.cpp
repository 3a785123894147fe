#include "rules/RovnoDialog.h"

#include <algorithm>

#include "engine/Kresleni.h"
#include "engine/Tabulky.h"
#include "rules/LosovaniRovnobezniku.h"
#include "rules/Misc.h"
#include "rules/SlovaKroku.h"

namespace rysovna {

namespace {

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

constexpr PravidlaCtyruhelniku PRAVIDLA{
    "Sestroj rovnoběžník ABCD:", VETY_ROVNOBEZNIKU, {NACRT, PISMENA}};

constexpr std::string_view JMENO_STREDU = "S";
constexpr ChybaKroku CHYBA_STRED = 112, CHYBA_VZOR = 137;
constexpr int KROKU = 6;

constexpr std::string_view VYZVA_STRED = "Nyní zvol střed souměrnosti.";
constexpr std::string_view VYZVA_STRED_KLIK = "Zvol kliknutím na kreslící ploše střed úsečky.";
constexpr std::string_view VYZVA_OBRAZ = "Nyní najdi obraz bodů ve středové souměrnosti.";
constexpr std::string_view VYZVA_OBRAZ_KLIK =
    "Zvol kliknutím na kreslící ploše obraz ve střed. souměrnosti.";

}  // namespace

RovnoDialog::RovnoDialog(Misc& misc, Platna platna) : DialogCtyruhelniku(misc, platna, PRAVIDLA) {}

bool RovnoDialog::VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) {
    return VylosujRovnobeznik(misc_.Generator, platna_.Pic, p, Pravidla().Vety, hodnoty) > 0;
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
    const int n = misc_.NovyUtvar(JMENO_STREDU, "");
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
        if (p && q) bod = StredUseckyBodu(*p, *q);
        NakresliStred(bod, false);
    } else {
        const std::string hledany = HledanyBod();
        const auto vzor = Misto(prvek);
        const auto stred = Misto(JMENO_STREDU);
        if (vzor && stred) bod = ObrazVeStredu(*vzor, *stred);
        const int n = misc_.NovyUtvar(hledany, "");
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
