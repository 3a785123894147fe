#include "hrac/Trojuhelnik.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Cisla.h"
#include "engine/Tabulky.h"

namespace rysovna::hrac {
namespace {

constexpr MistoZnacky ZNACKY[] = {{"a", {205, 85}},    {"b", {95, 85}},      {"c", {100, 140}},
                                  {"alfa", {74, 123}}, {"beta", {220, 122}}, {"gama", {149, 52}},
                                  {"va", {60, 80}},    {"vb", {240, 80}},    {"vc", {8, 85}},
                                  {"ta", {120, 113}},  {"tb", {180, 113}},   {"tc", {150, 75}}};

constexpr KonceStrany STRANY[] = {{"a", "B", "C", "A"}, {"b", "A", "C", "B"}, {"c", "A", "B", "C"}};
constexpr std::pair<std::string_view, std::string_view> VRCHOLY[] = {
    {"alfa", "A"}, {"beta", "B"}, {"gama", "C"}};

/// Far enough from the plane's edges that a press near the point, too, misses the arrows.
bool NaPlose(Bod b) {
    return b.X >= 25 && b.Y >= 28 && b.X <= 365 && b.Y <= 310;
}

bool JeVyska(std::string_view velicina) {
    return velicina.size() == 2 && velicina[0] == 'v';
}
bool JeTeznice(std::string_view velicina) {
    return velicina.size() == 2 && velicina[0] == 't';
}

/// The line of a circle list: which circle it becomes, and about what.
std::string RadekKruznice(const std::string& stred) {
    return std::string("kružnice ") + (PocetUtvaru == 1 ? "k" : "l") + ", střed " + stred;
}

}  // namespace

const KonceStrany& Konce(std::string_view strana) {
    const auto* k = std::ranges::find(STRANY, strana, &KonceStrany::Nazev);
    if (k == std::end(STRANY)) throw NejdeUdelat("není strana: " + std::string(strana));
    return *k;
}

std::string_view VrcholUhlu(std::string_view uhel) {
    for (const auto& [nazev, vrchol] : VRCHOLY) {
        if (nazev == uhel) return vrchol;
    }
    return {};
}

Bod MistoNaNacrtu(std::string_view velicina) {
    return NajdiMisto(ZNACKY, velicina);
}

Bod PodUhlem(Bod rameno1, Bod rameno2, int stupnu) {
    const double smer = std::atan2(rameno1.Y - rameno2.Y, rameno2.X - rameno1.X);
    // The pixel nearest to the exact angle, of several distances: the read-out rounds to degrees.
    Bod nejlepsi{};
    double odchylka = 1e9;
    for (int r = 60; r <= 90; ++r) {
        const double uhel = smer + stupnu * PI / STUPNU_PULOTACKY;
        const Bod b{rameno1.X + Zaokrouhli(r * std::cos(uhel)),
                    rameno1.Y - Zaokrouhli(r * std::sin(uhel))};
        const double skutecny = std::atan2(rameno1.Y - b.Y, b.X - rameno1.X) - smer;
        const double d =
            std::fabs(std::remainder(skutecny - stupnu * PI / STUPNU_PULOTACKY, DVE_PI));
        if (d < odchylka) {
            odchylka = d;
            nejlepsi = b;
        }
    }
    return nejlepsi;
}

Bod DokonalyTrojuhelnik::Stred() const {
    return {Utvary[1].X3, Utvary[1].Y3};
}

/// The side whose height or median is given, else any given one.
void DokonalyTrojuhelnik::ZvolPrvni() {
    std::vector<std::string> strany;
    for (const Zadano& z : ruka_.Zadani()) {
        if (JeVyska(z.Velicina) || JeTeznice(z.Velicina)) {
            nahoru_ = true;
            strany = {z.Velicina.substr(1)};
            break;
        }
        if (z.Velicina.size() == 1) strany.push_back(z.Velicina);
    }
    const KonceStrany& k =
        Konce(strany.at(static_cast<std::size_t>(Cislo(static_cast<int>(strany.size())))));
    strana_ = {std::string(k.Nazev), std::string(k.Od), std::string(k.Do), {}, {}};
}

void DokonalyTrojuhelnik::UmistiPrvni(int px) {
    Bod od{};
    Bod kam{};
    if (nahoru_) {
        // In the middle, level within 60 degrees, to either side: the parallel is pushed upward.
        const double smer = (Cislo(1200) / 10.0 - 60 + (Cislo(2) == 0 ? 180 : 0)) * PI / 180;
        od = {192 - Zaokrouhli(px / 2.0 * std::cos(smer)),
              170 + Zaokrouhli(px / 2.0 * std::sin(smer))};
        kam = {od.X + Zaokrouhli(px * std::cos(smer)), od.Y - Zaokrouhli(px * std::sin(smer))};
    } else if (zasunPanel_) {
        // All over the plane, in any direction.
        do {
            od = {Cislo(384), Cislo(335)};  // px of the plane
            const double smer = Cislo(3600) * PI / 1800;
            kam = {od.X + Zaokrouhli(px * std::cos(smer)), od.Y + Zaokrouhli(px * std::sin(smer))};
        } while (!NaPlose(od) || !NaPlose(kam));
    } else {
        od = {30 + Cislo(40), 320 - Cislo(8)};
        const int dx = Cislo(21) - 10;
        kam = {od.X + dx, od.Y - Zaokrouhli(std::sqrt(px * px - dx * dx))};
        if (Cislo(2) == 0) std::swap(od, kam);
    }
    strana_.OdBod = od;
    strana_.DoBod = kam;
}

void DokonalyTrojuhelnik::NarysujPaprsek(std::string_view uhel) {
    const std::string vrchol(VrcholUhlu(uhel));
    const bool prvni = PocetUtvaru == 1;
    const int stupnu = ruka_.Hodnota(uhel);
    const bool zacatek = vrchol == strana_.Od;
    const Bod start = zacatek ? strana_.OdBod : strana_.DoBod;
    const Bod druhy = zacatek ? strana_.DoBod : strana_.OdBod;
    // The figure goes round to the left from A over B to C: on a side named A, C the third vertex
    // lies to the right. Upward is to the left of a way that goes to the right.
    const bool vlevo = nahoru_ ? druhy.X > start.X : zacatek == (strana_.Nazev != "b");
    const Bod kam = PodUhlem(start, druhy, vlevo ? stupnu : -stupnu);
    const int posun = Cislo(13) - 6;  // the press snaps
    ruka_.Nastroj(1)
        .Vyber(vrchol + (prvni ? "X" : "Y"))
        .Napis(stupnu)
        .Tahni({start.X + posun, start.Y - posun}, kam);
}

/// A median is the radius about the first side's midpoint; a side that about its end that lies on
/// the first side.
void DokonalyTrojuhelnik::NarysujKruznici(std::string_view velicina) {
    Bod s = Stred();
    std::string kde = "ve středu " + strana_.Od + strana_.Do;
    if (!JeTeznice(velicina)) {
        const KonceStrany& k = Konce(velicina);
        const std::string stred(k.Od == strana_.Od || k.Od == strana_.Do ? k.Od : k.Do);
        s = stred == strana_.Od ? strana_.OdBod : strana_.DoBod;
        kde = "v bodě " + stred;
    }
    const int cm = ruka_.Hodnota(velicina);
    const int smer = s.X > 180 ? -1 : 1;
    // A triangle by a median may be nearly flat: there two pixels decide whether it closes.
    const int mimo = nahoru_ ? 0 : Cislo(5) - 2;
    ruka_.Nastroj(4)
        .Vyber(RadekKruznice(kde))
        .Napis(cm)
        .Tahni({s.X + Cislo(11) - 5, s.Y + Cislo(11) - 5},
               {s.X + smer * (cm * PIXELU_NA_CM + mimo), s.Y});
}

/// A height is the distance of the parallel to the first side.
void DokonalyTrojuhelnik::NarysujVysku(std::string_view vyska) {
    const int cm = ruka_.Hodnota(vyska);
    const Bod smer{strana_.DoBod.X - strana_.OdBod.X, strana_.DoBod.Y - strana_.OdBod.Y};
    const double px = cm * PIXELU_NA_CM * (smer.X > 0 ? 1 : -1) / std::hypot(smer.X, smer.Y);
    const Bod kam{Stred().X + Zaokrouhli(smer.Y * px), Stred().Y - Zaokrouhli(smer.X * px)};
    ruka_.Nastroj(3).Vyber("s úsečkou " + strana_.Od + strana_.Do).Napis(cm).Tahni(Stred(), kam);
}

void DokonalyTrojuhelnik::Sestroj() {
    std::vector<Zadano> zadani = ruka_.Zadani();
    for (const Zadano& z : zadani) ruka_.Oznac(MistoNaNacrtu(z.Velicina));
    if (zasunPanel_) ruka_.ZasunPanel();
    ZvolPrvni();
    const int cm = ruka_.Hodnota(strana_.Nazev);
    UmistiPrvni(cm * PIXELU_NA_CM);
    ruka_.Nastroj(1).Vyber(strana_.Od + strana_.Do).Napis(cm).Tahni(strana_.OdBod, strana_.DoBod);
    std::ranges::shuffle(zadani, nahoda_);
    for (const Zadano& z : zadani) {
        if (z.Velicina == strana_.Nazev) continue;
        if (!VrcholUhlu(z.Velicina).empty()) {
            NarysujPaprsek(z.Velicina);
        } else if (JeVyska(z.Velicina)) {
            NarysujVysku(z.Velicina);
        } else {
            NarysujKruznici(z.Velicina);
        }
    }
}

}  // namespace rysovna::hrac
