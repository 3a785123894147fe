#include "zak/Ctyruhelnik.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/Tabulky.h"
#include "rules/Veliciny.h"
#include "zak/Rysovani.h"

namespace rysovna::hrac {
namespace {

// The sketches as the boards show them. Along a side or a diagonal anywhere but near its ends.
constexpr MistoZnacky CTYRUHELNIK[] = {
    {"a", {50, 150}, {240, 150}},   {"b", {220, 56}, {245, 134}},
    {"c", {80, 26}, {208, 39}},     {"d", {45, 132}, {70, 43}},
    {"e", {85, 122}, {135, 90}},    {"f", {180, 100}, {224, 131}},
    {"alfa", {70, 137}, {78, 143}}, {"beta", {207, 133}, {216, 143}},
    {"gama", {198, 67}, {207, 77}}, {"delta", {82, 54}, {91, 64}}};
constexpr MistoZnacky ROVNOBEZNIK[] = {
    {"a", {50, 150}, {190, 150}},   {"b", {204, 142}, {251, 48}},
    {"c", {105, 40}, {245, 40}},    {"d", {44, 142}, {91, 48}},
    {"e", {90, 124}, {135, 101}},   {"f", {115, 61}, {138, 85}},
    {"alfa", {70, 136}, {78, 144}}, {"beta", {164, 133}, {174, 143}},
    {"gama", {224, 61}, {232, 71}}, {"delta", {95, 68}, {105, 78}},
    {"delt", {95, 68}, {105, 78}}};
constexpr MistoZnacky LICHOBEZNIK[] = {
    {"a", {50, 150}, {240, 150}},   {"b", {204, 49}, {246, 141}},
    {"c", {95, 40}, {190, 40}},     {"d", {44, 140}, {81, 50}},
    {"e", {86, 118}, {125, 92}},    {"f", {165, 93}, {200, 117}},
    {"alfa", {70, 136}, {78, 144}}, {"beta", {207, 133}, {217, 143}},
    {"gama", {186, 69}, {195, 79}}, {"delta", {91, 68}, {100, 78}}};
constexpr MistoZnacky LICHOBEZNIK_BC_DA[] = {
    {"a", {50, 150}, {205, 150}},   {"b", {218, 140}, {248, 40}},
    {"c", {75, 68}, {240, 32}},     {"d", {43, 140}, {61, 80}},
    {"e", {145, 90}, {205, 56}},    {"f", {140, 110}, {180, 131}},
    {"alfa", {70, 136}, {78, 144}}, {"beta", {197, 113}, {206, 123}},
    {"gama", {221, 56}, {230, 66}}, {"delta", {69, 89}, {79, 99}}};

/// Parallel sides and the angles at the centre have no mark.
bool MaZnacku(std::span<const MistoZnacky> nacrt, std::string_view velicina) {
    return std::ranges::find(nacrt, velicina, &MistoZnacky::Velicina) != nacrt.end();
}

/// What a pupil knows: which triangle three quantities make, in any order, and by which theorem.
/// The angles epsi and omeg are ASB and BSC, as the sketch has them.
struct UrcenyTrojuhelnik {
    std::string_view Trojuhelnik, Veta;
    std::array<std::string_view, 3> Veliciny;
};
constexpr std::string_view SSS = "podle věty SSS", SUS = "podle věty SUS";
constexpr UrcenyTrojuhelnik TROJUHELNIKY[] = {
    {"ABC", SSS, {"a", "b", "e"}},     {"BCD", SSS, {"b", "c", "f"}},
    {"CDA", SSS, {"c", "d", "e"}},     {"DAB", SSS, {"d", "a", "f"}},
    {"ABC", SUS, {"a", "b", "beta"}},  {"BCD", SUS, {"b", "c", "gama"}},
    {"CDA", SUS, {"c", "d", "delta"}}, {"DAB", SUS, {"d", "a", "alfa"}},
    {"ABS", SSS, {"e", "f", "a"}},     {"BCS", SSS, {"e", "f", "b"}},
    {"CDS", SSS, {"e", "f", "c"}},     {"DAS", SSS, {"e", "f", "d"}},
    {"ABS", SUS, {"e", "f", "epsi"}},  {"BCS", SUS, {"e", "f", "omeg"}},
};

/// A quantity at the fourth vertex: the ends of a side, or an angle's vertex and its neighbours.
struct PrvekUVrcholu {
    std::string_view Velicina, Vrchol, Sousede;
};
constexpr PrvekUVrcholu PRVKY[] = {
    {"a", "", "AB"},     {"b", "", "BC"},     {"c", "", "CD"},     {"d", "", "DA"},
    {"alfa", "A", "BD"}, {"beta", "B", "CA"}, {"gama", "C", "DB"}, {"delta", "D", "AC"},
};

constexpr std::string_view VRCHOLY = "ABCD";
constexpr int POKUSU = 50;  // to find places on the plane

/// How far the arrows can take a figure, px.
std::vector<Bod> CestySipek() {
    std::vector<Bod> cesty;
    for (int y = -NEJDAL_POSUNU; y <= NEJDAL_POSUNU; y += KROK_POSUNU) {
        for (int x = -NEJDAL_POSUNU; x <= NEJDAL_POSUNU; x += KROK_POSUNU) cesty.push_back({x, y});
    }
    return cesty;
}

/// The quantity that a typed row asks for: "délka strany a = ", "vel. úhlu beta = ".
std::string VelicinaRadku(const std::string& popis) {
    const std::size_t konec = popis.find(" = ");
    const std::size_t od = popis.rfind(' ', konec - 1) + 1;
    return popis.substr(od, konec - od);
}

}  // namespace

Bod VrcholNaPlose(const Tabulky& t, std::string_view pismeno) {
    for (int i = 1; i <= 3; ++i) {
        if (t.Utvary[i].Jmeno1 == pismeno) return {t.Utvary[i].X1, t.Utvary[i].Y1};
    }
    throw NejdeUdelat("není vrchol " + std::string(pismeno));
}

void ZakCtyruhelniku::Oznac() {
    std::vector<Zadano> zadani = ruka_.Zadani();
    los_.Zamichej(zadani);
    for (const Zadano& z : zadani) {
        if (!MaZnacku(NaNacrtu(), z.Velicina)) continue;
        const MistoZnacky& kde = NajdiMisto(NaNacrtu(), z.Velicina);
        ruka_.Oznac(los_.NaCeste(kde.Od, kde.Do));
    }
}

/// A trapezoid's assignment names its parallel sides; no other does.
std::span<const MistoZnacky> DokonalyCtyruhelnik::NaNacrtu() const {
    for (const Zadano& z : ruka_.Zadani()) {
        if (z.Velicina.find("||") == std::string::npos) continue;
        return z.Velicina.find("AB") != std::string::npos ? std::span(LICHOBEZNIK)
                                                          : std::span(LICHOBEZNIK_BC_DA);
    }
    return CTYRUHELNIK;
}

std::span<const MistoZnacky> DokonalyRovnobeznik::NaNacrtu() const {
    return ROVNOBEZNIK;
}

/// The first three quantities make the starting triangle.
void ZakCtyruhelniku::Trojuhelnik() {
    const std::vector<Zadano> zadano = ruka_.Zadani();
    const auto* t = std::ranges::find_if(TROJUHELNIKY, [&](const UrcenyTrojuhelnik& u) {
        return std::ranges::all_of(u.Veliciny, [&](std::string_view v) {
            return std::any_of(zadano.begin(), zadano.begin() + 3,
                               [v](const Zadano& z) { return StejnaVelicina(z.Velicina, v); });
        });
    });
    if (t == std::end(TROJUHELNIKY)) throw NejdeUdelat("zadání neurčuje trojúhelník");
    ruka_.Nastroj(1).Vyber(t->Trojuhelnik);
    ruka_.Nastroj(2).Vyber(t->Veta);
    const auto radky = ruka_.Hrany().UkazPanel().Veliciny;
    if (radky.size() != t->Veliciny.size()) throw NejdeUdelat("hodnoty není kam napsat");
    std::vector<std::size_t> poradi = {0, 1, 2};
    los_.Zamichej(poradi);
    for (const std::size_t i : poradi) {
        std::string velicina = VelicinaRadku(radky[i].Nazev);
        // A half of a diagonal is asked for by the letters of its ends.
        const bool pulka = velicina.size() == 2 && velicina.find('S') != std::string::npos;
        if (pulka) velicina = velicina.find_first_of("AC") != std::string::npos ? "e" : "f";
        if (!ruka_.JeZadano(velicina) && velicina == "delt") velicina = "delta";
        ruka_.Napis(ruka_.Hodnota(velicina) / (pulka ? 2 : 1), static_cast<int>(i) + 1);
    }
    ruka_.Nastroj(6);
}

// ---- By two objects --------------------------------------------------------------------------

void DokonalyCtyruhelnik::Sestroj() {
    Oznac();
    ruka_.ZasunPanel();
    Trojuhelnik();
    std::vector<int> poradi = {1, 2};
    los_.Zamichej(poradi);
    for (const int n : poradi) Narysuj(n);
    Bod posunuto{};
    const auto posun = [&](Bod kam) {
        ruka_.Zpet().Zpet();
        ruka_.Posun(kam.X - posunuto.X, kam.Y - posunuto.Y);
        posunuto = kam;
        for (const int n : poradi) Narysuj(n);
    };
    // Where the figure would fit if it only moved; the other solution may come first there, so all
    // the other ways of the arrows remain.
    std::vector<Bod> cesty = CestySipek();
    std::ranges::stable_partition(cesty, [&](Bod kam) { return VejdeSe(kam); });
    for (std::size_t i = 0; i < cesty.size() && !VejdeSe(); ++i) posun(cesty[i]);
}

/// The quantities behind the triangle's three say what meets in the fourth vertex: parallel sides a
/// parallel to the one that stands, a side a circle about its known end, an angle a ray along the
/// side that stands.
void DokonalyCtyruhelnik::Narysuj(int n) {
    const Zadano z = ruka_.Zadani().at(static_cast<std::size_t>(n) + 2);
    const std::string& trojuhelnik = Dialogem().Stav().ZvolenyTrojuhelnik;
    const char chybi = VRCHOLY[VRCHOLY.find_first_not_of(trojuhelnik)];
    if (const std::size_t znak = z.Velicina.find("||"); znak != std::string::npos) {
        const std::string prvni = z.Velicina.substr(0, znak);
        const bool stoji = prvni.find(chybi) == std::string::npos;
        return NarysujRovnobezku(stoji ? prvni : z.Velicina.substr(znak + 2));
    }
    const auto* p = std::ranges::find_if(
        PRVKY, [&z](const PrvekUVrcholu& u) { return StejnaVelicina(z.Velicina, u.Velicina); });
    if (p == std::end(PRVKY)) throw NejdeUdelat("neurčuje vrchol: " + z.Velicina);
    std::string znamy(p->Sousede);
    std::erase(znamy, chybi);
    if (p->Vrchol.empty()) return NarysujKruznici(znamy, z.Hodnota);
    NarysujPaprsek(std::string(p->Vrchol), znamy, z.Hodnota);
}

void DokonalyCtyruhelnik::NarysujKruznici(const std::string& stred, int cm) {
    const bool prvni = Dialogem().Stav().Faze == 2;
    const Bod b = VrcholNaPlose(ruka_.Pamet(), stred);
    const Bod stisk = los_.Vedle(b, CHYTNE);
    ruka_.Nastroj(4)
        .Vyber(std::string("kružnice ") + (prvni ? "k" : "l") + ", střed v bodě " + stred)
        .Napis(cm)
        .Tahni(stisk, NaKruznici(los_, b, cm * PIXELU_NA_CM));
}

void DokonalyCtyruhelnik::NarysujPaprsek(const std::string& vrchol, const std::string& rameno,
                                         int stupnu) {
    const bool prvni = Dialogem().Stav().Faze == 2;
    const Bod v = VrcholNaPlose(ruka_.Pamet(), vrchol);
    const Bod stisk = los_.Vedle(v, CHYTNE);
    const Bod r = VrcholNaPlose(ruka_.Pamet(), rameno);
    const Bod t = Treti(vrchol, rameno);
    const bool vlevo = (r.X - v.X) * (t.Y - v.Y) - (r.Y - v.Y) * (t.X - v.X) < 0;
    ruka_.Nastroj(1)
        .Vyber(vrchol + (prvni ? "X" : "Y") + ", svírající úhel s úsečkou " + vrchol + rameno)
        .Napis(stupnu)
        .Tahni(stisk, PodUhlem(v, r, vlevo ? stupnu : -stupnu, los_.Mezi(50, 150)));
}

/// From anywhere along the side to where the parallel misses the third vertex by a few pixels.
void DokonalyCtyruhelnik::NarysujRovnobezku(const std::string& strana) {
    const std::string od = strana.substr(0, 1);
    const std::string k = strana.substr(1);
    const Bod p = VrcholNaPlose(ruka_.Pamet(), od);
    const Bod q = VrcholNaPlose(ruka_.Pamet(), k);
    const Bod t = Treti(od, k);
    const auto kolem = [&](Bod b, double podel, double napric) {
        const double d = std::hypot(q.X - p.X, q.Y - p.Y);
        return Bod{b.X + Zaokrouhli(podel * (q.X - p.X) + napric * (q.Y - p.Y) / d),
                   b.Y + Zaokrouhli(podel * (q.Y - p.Y) - napric * (q.X - p.X) / d)};
    };
    Bod stisk = kolem(p, 0.5, 0);
    Bod kam = kolem(t, 0.5, 0);
    for (int i = 0; i < POKUSU; ++i) {
        const Bod odkud = kolem(p, los_.Mezi(-50, 150) / 100.0, 0);
        // Drawn one after the other: compilers differ in which argument comes first.
        const int napric = los_.Mezi(-5, 5);
        const Bod pustit = kolem(t, los_.Mezi(-100, 100) / 100.0, napric);
        if (!NaPlose(odkud) || !NaPlose(pustit)) continue;
        stisk = odkud;
        kam = pustit;
        break;
    }
    ruka_.Nastroj(3);
    ruka_.Vyber(ruka_.JeVSeznamu(strana) ? strana : "s úsečkou " + strana).Tahni(stisk, kam);
}

/// Whether the closed figure lies on the plane, once it is moved so far, px.
bool DokonalyCtyruhelnik::VejdeSe(Bod posun) const {
    constexpr int OKRAJ = 20;  // px
    if (!ruka_.Hrany().Hotova()) return false;
    return std::ranges::all_of(std::array{1, 2, 3, 6}, [this, posun](int i) {
        const int x = ruka_.Pamet().Utvary[i].X2 + posun.X;
        const int y = ruka_.Pamet().Utvary[i].Y2 + posun.Y;
        return x >= OKRAJ && y >= OKRAJ && x < SIRKA_PLOCHY - OKRAJ && y < VYSKA_PLOCHY - OKRAJ;
    });
}

Bod DokonalyCtyruhelnik::Treti(const std::string& a, const std::string& b) const {
    for (const char c : Dialogem().Stav().ZvolenyTrojuhelnik) {
        if (c != a[0] && c != b[0]) return VrcholNaPlose(ruka_.Pamet(), {&c, 1});
    }
    return {};
}

// ---- By symmetry -----------------------------------------------------------------------------

/// A missed click costs nothing.
Bod DokonalyRovnobeznik::Nekam() {
    const int x = los_.Cislo(360);  // px of the plane, off the arrows
    return {x, los_.Cislo(310)};
}

void DokonalyRovnobeznik::Stred() {
    const std::string& t = Dialogem().Stav().ZvolenyTrojuhelnik;
    ruka_.Nastroj(1);
    if (t[2] == 'S') {
        ruka_.Vyber("vrchol S");
        return;
    }
    std::string uhlopricka{t[0], t[2]};
    std::ranges::sort(uhlopricka);
    ruka_.Vyber("střed úsečky " + uhlopricka).Klikni(Nekam());
}

void DokonalyRovnobeznik::Obrazy() {
    constexpr std::string_view UVOD = "hledaný bod ";
    while (!ruka_.Hrany().Hotova()) {
        ruka_.Nastroj(2);
        // "hledaný bod D je obrazem vrcholu A": the pupil sees which point is looked for.
        const auto seznam = ruka_.Hrany().UkazPanel().Vyber.Radky;
        if (seznam.empty() || !seznam.back().Text.starts_with(UVOD)) {
            throw NejdeUdelat("obrazy se nenabízejí");
        }
        const std::string radek = seznam.back().Text;
        const char pres = "CDAB"[radek[UVOD.size()] - 'A'];
        const int pred = Dialogem().Stav().Faze;
        ruka_.Vyber(radek.substr(0, radek.size() - 1) + pres).Klikni(Nekam());
        if (Dialogem().Stav().Faze == pred) throw NejdeUdelat("obraz se nenakreslil");
    }
}

void DokonalyRovnobeznik::Sestroj() {
    Oznac();
    ruka_.ZasunPanel();
    Trojuhelnik();
    Stred();
    Obrazy();
}

}  // namespace rysovna::hrac
