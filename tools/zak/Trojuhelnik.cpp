#include "zak/Trojuhelnik.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/Tabulky.h"
#include "zak/Rysovani.h"

namespace rysovna::hrac {
namespace {

constexpr MistoZnacky ZNACKY[] = {{"a", {160, 40}, {250, 130}},     {"b", {50, 130}, {140, 40}},
                                  {"c", {50, 140}, {250, 140}},     {"alfa", {72, 122}, {76, 125}},
                                  {"beta", {218, 119}, {221, 125}}, {"gama", {147, 50}, {152, 54}},
                                  {"va", {25, 115}, {120, 20}},     {"vb", {180, 20}, {270, 110}},
                                  {"vc", {6, 40}, {10, 130}},       {"ta", {95, 122}, {135, 108}},
                                  {"tb", {165, 108}, {205, 122}},   {"tc", {148, 64}, {152, 88}}};

constexpr KonceStrany STRANY[] = {{"a", "B", "C", "A"}, {"b", "A", "C", "B"}, {"c", "A", "B", "C"}};
constexpr std::pair<std::string_view, std::string_view> VRCHOLY[] = {
    {"alfa", "A"}, {"beta", "B"}, {"gama", "C"}};

constexpr int POKUSU = 50;  // to find places on the plane

bool JeVyska(std::string_view velicina) {
    return velicina.size() == 2 && velicina[0] == 'v';
}
bool JeTeznice(std::string_view velicina) {
    return velicina.size() == 2 && velicina[0] == 't';
}

/// The line of a circle list: which circle it becomes, and about what.
std::string RadekKruznice(const Tabulky& t, const std::string& stred) {
    return std::string("kružnice ") + (t.PocetUtvaru == 1 ? "k" : "l") + ", střed " + stred;
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

const MistoZnacky& MistoNaNacrtu(std::string_view velicina) {
    return NajdiMisto(ZNACKY, velicina);
}

Bod DokonalyTrojuhelnik::Stred() const {
    return {ruka_.Pamet().Utvary[1].X3, ruka_.Pamet().Utvary[1].Y3};
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
        Konce(strany.at(static_cast<std::size_t>(los_.Cislo(static_cast<int>(strany.size())))));
    strana_ = {std::string(k.Nazev), std::string(k.Od), std::string(k.Do), {}, {}};
}

void DokonalyTrojuhelnik::UmistiPrvni(int px) {
    Bod od{};
    Bod kam{};
    if (nahoru_) {
        // In the middle, level within 60 degrees, to either side: the parallel is pushed upward.
        const double odklon = los_.Mezi(-600, 600) / 10.0;
        const double smer = (odklon + (los_.Ano() ? 180 : 0)) * PI / 180;
        od = {192 - Zaokrouhli(px / 2.0 * std::cos(smer)),
              170 + Zaokrouhli(px / 2.0 * std::sin(smer))};
        kam = {od.X + Zaokrouhli(px * std::cos(smer)), od.Y - Zaokrouhli(px * std::sin(smer))};
    } else if (zasunPanel_) {
        // All over the plane, in any direction.
        do {
            od.X = los_.Cislo(SIRKA_PLOCHY);
            od.Y = los_.Cislo(VYSKA_PLOCHY);
            const double smer = los_.Cislo(3600) * PI / 1800;
            kam = {od.X + Zaokrouhli(px * std::cos(smer)), od.Y + Zaokrouhli(px * std::sin(smer))};
        } while (!NaPlose(od) || !NaPlose(kam));
    } else {
        od.X = los_.Mezi(30, 69);
        od.Y = los_.Mezi(313, 320);
        const int dx = los_.Mezi(-10, 10);
        kam = {od.X + dx, od.Y - Zaokrouhli(std::sqrt(px * px - dx * dx))};
        if (los_.Ano()) std::swap(od, kam);
    }
    strana_.OdBod = od;
    strana_.DoBod = kam;
}

void DokonalyTrojuhelnik::NarysujPaprsek(std::string_view uhel) {
    const std::string vrchol(VrcholUhlu(uhel));
    const bool prvni = ruka_.Pamet().PocetUtvaru == 1;
    const int stupnu = ruka_.Hodnota(uhel);
    const bool zacatek = vrchol == strana_.Od;
    const Bod start = zacatek ? strana_.OdBod : strana_.DoBod;
    const Bod druhy = zacatek ? strana_.DoBod : strana_.OdBod;
    // The figure goes round to the left from A over B to C: on a side named A, C the third vertex
    // lies to the right. Upward is to the left of a way that goes to the right.
    const bool vlevo = nahoru_ ? druhy.X > start.X : zacatek == (strana_.Nazev != "b");
    const Bod kam = PodUhlem(start, druhy, vlevo ? stupnu : -stupnu, los_.Mezi(50, 150));
    ruka_.Nastroj(1)
        .Vyber(vrchol + (prvni ? "X" : "Y"))
        .Napis(stupnu)
        .Tahni(los_.Vedle(start, CHYTNE), kam);
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
    // A triangle by a median may be nearly flat: there two pixels decide whether it closes.
    const int r = cm * PIXELU_NA_CM + (nahoru_ ? 0 : los_.Mezi(-2, 2));
    ruka_.Nastroj(4).Vyber(RadekKruznice(ruka_.Pamet(), kde)).Napis(cm);
    const Bod stisk = los_.Vedle(s, CHYTNE);
    ruka_.Tahni(stisk, NaKruznici(los_, s, r));
}

/// A height is the distance of the parallel to the first side. It is pushed from anywhere on the
/// side's line to anywhere at that distance.
void DokonalyTrojuhelnik::NarysujVysku(std::string_view vyska) {
    const int cm = ruka_.Hodnota(vyska);
    const Bod smer{strana_.DoBod.X - strana_.OdBod.X, strana_.DoBod.Y - strana_.OdBod.Y};
    const double px = cm * PIXELU_NA_CM * (smer.X > 0 ? 1 : -1) / std::hypot(smer.X, smer.Y);
    /// So many ways of the side from its beginning, and so many heights up.
    const auto misto = [&](double podel, int nahoru) {
        return Bod{Zaokrouhli(strana_.OdBod.X + smer.X * podel + nahoru * smer.Y * px),
                   Zaokrouhli(strana_.OdBod.Y + smer.Y * podel - nahoru * smer.X * px)};
    };
    Bod od = misto(0.5, 0);
    Bod kam = misto(0.5, 1);
    for (int i = 0; i < POKUSU; ++i) {
        const Bod p = misto(los_.Mezi(-100, 200) / 100.0, 0);
        const Bod q = misto(los_.Mezi(-100, 200) / 100.0, 1);
        // Upward: only there the read-out has no sign.
        if (!NaPlose(p) || !NaPlose(q) || q.Y >= p.Y) continue;
        od = p;
        kam = q;
        break;
    }
    ruka_.Nastroj(3).Vyber("s úsečkou " + strana_.Od + strana_.Do).Napis(cm).Tahni(od, kam);
}

void DokonalyTrojuhelnik::Sestroj() {
    std::vector<Zadano> zadani = ruka_.Zadani();
    los_.Zamichej(zadani);
    for (const Zadano& z : zadani) {
        const MistoZnacky& kde = MistoNaNacrtu(z.Velicina);
        ruka_.Oznac(los_.NaCeste(kde.Od, kde.Do));
    }
    if (zasunPanel_) ruka_.ZasunPanel();
    ZvolPrvni();
    const int cm = ruka_.Hodnota(strana_.Nazev);
    UmistiPrvni(cm * PIXELU_NA_CM);
    ruka_.Nastroj(1).Vyber(strana_.Od + strana_.Do).Napis(cm).Tahni(strana_.OdBod, strana_.DoBod);
    los_.Zamichej(zadani);
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
