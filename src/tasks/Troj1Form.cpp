#include "tasks/Troj1Form.h"

#include <algorithm>

#include "board/Kontrola.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

namespace {

constexpr RadekStrany STRANY[] = {{"AB", "c", 3}, {"AC", "b", 2}, {"BC", "a", 1}};

constexpr RadekPaprsku PAPRSKY[] = {
    {"A", "Aalfa", 38, 39}, {"B", "Bbeta", 40, 41}, {"C", "Cgama", 42, 43}};

// The quantity by the first side: AB, AC, BC.
constexpr RadekKruznice KRUZNICE_RADKY[] = {
    {"A", "střed v bodě A", {{{"AkB", "b"}, {"AkC", "c"}, {}}}, 32},
    {"B", "střed v bodě B", {{{"BkA", "a"}, {}, {"BkC", "c"}}}, 33},
    {"C", "střed v bodě C", {{{}, {"CkA", "a"}, {"CkB", "b"}}}, 34}};

constexpr CenaVeliciny CENY[] = {
    {USECKA, "a", 7, 13},         {USECKA, "b", 8, 14},         {USECKA, "c", 9, 15},
    {POLOPRIMKA, "alfa", 10, 30}, {POLOPRIMKA, "beta", 11, 30}, {POLOPRIMKA, "gama", 12, 30},
    {KRUZNICE, "a", 7, 27},       {KRUZNICE, "b", 8, 28},       {KRUZNICE, "c", 9, 29}};

// The sketch: the triangle A(40, 140), B(260, 140), C(150, 30). The angles' zones are the middles
// of their printed letters.
constexpr auto CARA = PrvekNacrtu::Tvar::Usecka;
constexpr auto OBLOUK = PrvekNacrtu::Tvar::Oblouk;
constexpr PrvekNacrtu NACRT[] = {
    {"c", {40, 260, 0, 140, 2}, CARA, 40, 140, 260, 140, 0, 0, 0, "c", false, 150, 145},
    {"a", {150, 260, 1, -120, 5}, CARA, 150, 30, 260, 140, 0, 0, 0, "a", false, 210, 65},
    {"b", {40, 150, -1, 180, 5}, CARA, 40, 140, 150, 30, 0, 0, 0, "b", false, 80, 65},
    {"alfa", {72, 76, 0, 123.5, 2.5}, OBLOUK, 40, 140, 260, 140, 150, 30, 52, "a", true, 70, 116},
    {"beta", {218, 221, 0, 122, 4}, OBLOUK, 260, 140, 150, 30, 40, 140, 58, "b", true, 215, 116},
    {"gama", {147, 152, 0, 52, 3}, OBLOUK, 150, 30, 40, 140, 260, 140, 40, "g", true, 146, 44}};
constexpr PismenoNacrtu PISMENA[] = {{"A", 24, 138}, {"B", 266, 138}, {"C", 145, 10}};

// Marks, in the order of the sketch.
constexpr std::uint32_t ZC = 1, ZA = 2, ZB = 4, ZALFA = 8, ZBETA = 16, ZGAMA = 32;
constexpr DruhTrojuhelniku DRUHY[] = {{"1", ZA | ZB | ZC},       {"2", ZB | ZC | ZALFA},
                                      {"3", ZA | ZC | ZBETA},    {"4", ZA | ZB | ZGAMA},
                                      {"5", ZA | ZBETA | ZGAMA}, {"6", ZB | ZALFA | ZGAMA},
                                      {"7", ZC | ZALFA | ZBETA}};

constexpr PravidlaTrojuhelniku PRAVIDLA{"Sestroj trojúhelník ABC:",
                                        STRANY,
                                        PAPRSKY,
                                        KRUZNICE_RADKY,
                                        CENY,
                                        DRUHY,
                                        NACRT,
                                        PISMENA,
                                        false};

// ---- Values of an example --------------------------------------------------------------------

/// How the three values of a kind are drawn. Of two angles the other one is drawn again by the key
/// angle.
struct Losovani {
    std::string_view Druh;
    std::array<Vzorec, 3> Vzorce;
    int Klic = -1, Jiny = -1;  ///< which values are the key angle and the other; -1: none
    bool Nerovnost = false;    ///< the three are sides of a triangle
};
constexpr Vzorec STRANA{20, 10}, UHEL{140, 20}, KLICOVY{70, 20};
constexpr Losovani LOSOVANI[] = {
    {"1", {{{15, 10}, {15, 10}, {10, 10}}}, -1, -1, true},
    {"2", {{UHEL, STRANA, STRANA}}},
    {"3", {{STRANA, UHEL, STRANA}}},
    {"4", {{STRANA, STRANA, UHEL}}},
    {"5", {{STRANA, KLICOVY, UHEL}}, 1, 2},
    {"6", {{KLICOVY, STRANA, UHEL}}, 0, 2},
    {"7", {{KLICOVY, UHEL, STRANA}}, 0, 1},
};

/// The other angle, drawn again where Nad < key angle <= Nejvyse, degrees.
struct DruhyUhel {
    int Nad, Nejvyse;
    Vzorec Jiny;
};
constexpr DruhyUhel DRUHE_UHLY[] = {{60, 90, {25, 20}}, {0, 60, {45, 20}}};

constexpr int SOUCET_DVOU_UHLU = 180;  // degrees, never reached

bool Vyhovuje(const Losovani& l, const Hodnoty3& h) {
    if (l.Nerovnost) return Trojuhelnikova(h[0], h[1], h[2]);
    if (l.Klic < 0) return true;
    return h[static_cast<std::size_t>(l.Klic)] + h[static_cast<std::size_t>(l.Jiny)] <
           SOUCET_DVOU_UHLU;
}

// ---- The assignment --------------------------------------------------------------------------

/// A label with a name: a side by its letter, or an angle whose caption is set only when the
/// data's name is the given word.
struct NazevVZadani {
    bool Uhel;
    std::string_view Slovo;    ///< a side: its fixed letter, empty: the data's name
    std::string_view Pismeno;  ///< an angle: its Symbol letter
    int MezeraPred, MezeraZa;  ///< px before the label and before its value
};
struct Sazba {
    std::string_view Druh;
    std::array<NazevVZadani, 3> Nazvy;
};

constexpr int MEZERA = 2, MEZERA_UHLU = 4, MEZERA_SIRSI = 5;
constexpr NazevVZadani Strana(std::string_view pevne = "", int za = MEZERA) {
    return {false, pevne, "", MEZERA, za};
}
constexpr NazevVZadani Uhel(std::string_view slovo, std::string_view pismeno,
                            int za = MEZERA_UHLU) {
    return {true, slovo, pismeno, MEZERA, za};
}
// Kind 7 tests its second name against "gama" and would set "b": the data write "beta", so the
// caption stays the designed one, which is "b" as well.
constexpr Sazba SAZBA[] = {
    {"1", {Strana("a"), Strana("b"), Strana("c")}},
    {"2", {Uhel("alfa", "a"), Strana(), Strana()}},
    {"3", {Strana(), Uhel("beta", "b"), Strana()}},
    {"4", {Strana(), Strana(), Uhel("gama", "g")}},
    {"5", {Strana(), Uhel("beta", "b", MEZERA_SIRSI), Uhel("gama", "g", MEZERA_SIRSI)}},
    {"6", {Uhel("alfa", "a"), Strana(), Uhel("gama", "g", MEZERA_SIRSI)}},
    {"7", {Uhel("alfa", "a"), Uhel("gama", "b"), Strana("", MEZERA_SIRSI)}},
};

/// Which value belongs to a quantity.
struct HodnotaVrcholu {
    std::string_view Velicina;
    std::size_t Poradi;
};
constexpr HodnotaVrcholu HODNOTY[] = {{"a", 0},    {"b", 1},    {"c", 2},
                                      {"alfa", 0}, {"beta", 1}, {"gama", 2}};

constexpr int ULOHA_SSS = 1, ULOHA_SUS = 2;
constexpr int CHYBA_ROVNOBEZKA = 20;

// Numbers of the faces that the step buttons have here.
constexpr int TVARY[] = {1, 3, 4, 5, 6, 12};

}  // namespace

Troj1Dialog::Troj1Dialog(Platna platna) : DialogTrojuhelniku(platna, PRAVIDLA) {}

bool Troj1Dialog::VylosujHodnoty(const Priklad& p, Hodnoty3& hodnoty) {
    const auto* l = std::ranges::find(LOSOVANI, p.Druh, &Losovani::Druh);
    if (l == std::end(LOSOVANI)) return false;
    do {
        for (std::size_t i = 0; i < hodnoty.size(); ++i) {
            hodnoty[i] = Generator.D(l->Vzorce[i].Rozpeti, l->Vzorce[i].Zaklad);
        }
        if (l->Klic < 0) continue;
        const int klic = hodnoty[static_cast<std::size_t>(l->Klic)];
        for (const DruhyUhel& u : DRUHE_UHLY) {
            if (klic <= u.Nad || klic > u.Nejvyse) continue;
            hodnoty[static_cast<std::size_t>(l->Jiny)] = Generator.D(u.Jiny.Rozpeti, u.Jiny.Zaklad);
        }
    } while (!Vyhovuje(*l, hodnoty));
    return true;
}

void Troj1Dialog::SestavZadani(const Priklad& p, const Hodnoty3& hodnoty,
                               std::vector<PolozkaZadani>& zadani) {
    const auto* s = std::ranges::find(SAZBA, p.Druh, &Sazba::Druh);
    if (s == std::end(SAZBA)) return;
    const std::string* nazvy[] = {&p.Nazev1, &p.Nazev2, &p.Nazev3};
    const std::string* jednotky[] = {&p.Jednotka1, &p.Jednotka2, &p.Jednotka3};
    for (std::size_t i = 0; i < s->Nazvy.size(); ++i) {
        const NazevVZadani& n = s->Nazvy[i];
        const bool novyRadek = i != 1;
        PolozkaZadani& nazev = zadani[2 * i];
        if (n.Uhel) {
            const bool shoda = *nazvy[i] == n.Slovo;
            nazev = NazevUhlu(shoda ? n.Pismeno : std::string_view(nazev.Text), n.MezeraPred,
                              novyRadek);
        } else {
            nazev = NazevStrany(n.Slovo.empty() ? std::string_view(*nazvy[i]) : n.Slovo,
                                n.MezeraPred, novyRadek);
        }
        const bool posledni = i + 1 == s->Nazvy.size();
        zadani[2 * i + 1] =
            HodnotaZadani(TextHodnoty(hodnoty[i], *jednotky[i], posledni), n.MezeraZa);
    }
}

int Troj1Dialog::Hodnota(std::string_view velicina) const {
    const auto* h = std::ranges::find(HODNOTY, velicina, &HodnotaVrcholu::Velicina);
    return h == std::end(HODNOTY) ? 0 : Hodnoty()[h->Poradi];
}

bool Troj1Dialog::PrvniStranaSpravna(std::string_view prvek) const {
    return JeZadana(prvek);
}

bool Troj1Dialog::KruzniceJeChyba(bool /*krokCekal*/) const {
    return CisloUlohy != ULOHA_SSS && CisloUlohy != ULOHA_SUS;
}

void Troj1Dialog::PosudVolbuRovnobezky(std::string_view /*vyska*/) {}

void Troj1Dialog::PosudStiskRovnobezky() {
    PridejChybu(CHYBA_ROVNOBEZKA, TRI_BODY, 3);
}

std::unique_ptr<Dialog> Troj1Form::VyrobDialog(Platna platna) {
    return std::make_unique<Troj1Dialog>(platna);
}

std::span<const int> Troj1Form::Tvary() const {
    return TVARY;
}

}  // namespace rysovna
