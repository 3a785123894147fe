#include "podpora/Zak.h"

#include <algorithm>
#include <cmath>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "shell/Misc.h"
#include "shell/Zaznamy.h"

namespace rysovna::testy {
namespace {

constexpr int NA_CM = 8;  // px

/// Where an element of the sketch is pressed.
struct MistoZnacky {
    std::string_view Velicina;
    Bod Misto;
};
constexpr MistoZnacky ZNACKY[] = {{"a", {205, 85}},    {"b", {95, 85}},      {"c", {150, 140}},
                                  {"alfa", {74, 123}}, {"beta", {220, 122}}, {"gama", {149, 52}}};

constexpr std::pair<std::string_view, std::string_view> UHLY[] = {
    {"a", "alfa"}, {"b", "beta"}, {"g", "gama"}, {"d", "delta"}};

/// A side of the triangle and its ends.
struct KonceStrany {
    std::string_view Nazev, Od, Do;
};
constexpr KonceStrany STRANY[] = {{"a", "B", "C"}, {"b", "A", "C"}, {"c", "A", "B"}};
constexpr std::pair<std::string_view, std::string_view> VRCHOLY[] = {
    {"alfa", "A"}, {"beta", "B"}, {"gama", "C"}};

const KonceStrany& Konce(std::string_view strana) {
    return *std::ranges::find(STRANY, strana, &KonceStrany::Nazev);
}

/// Far enough from the plane's edges that a press near the point, too, misses the arrows.
bool NaPlose(Bod b) {
    return b.X >= 25 && b.Y >= 28 && b.X <= 365 && b.Y <= 310;
}

}  // namespace

Zak& Zak::Oznac(std::string_view velicina) {
    const auto* z = std::ranges::find(ZNACKY, velicina, &MistoZnacky::Velicina);
    if (z == std::end(ZNACKY)) throw std::runtime_error("není na náčrtu: " + std::string(velicina));
    relace_.Stiskni("SamplePic", 0, z->Misto.X, z->Misto.Y);
    return *this;
}

Zak& Zak::Stiskni(std::string_view jmeno, int index) {
    relace_.Stiskni(jmeno, index);
    return *this;
}

Zak& Zak::Vyber(std::string_view radek) {
    Form& deska = *relace_.Vpredu();
    for (int i = 1; auto* l = dynamic_cast<Label*>(deska.Najdi("ComboLabel", i)); ++i) {
        if (!l->Visible || l->Caption != radek) continue;
        if (!l->Enabled) throw std::runtime_error("nejde zvolit: " + std::string(radek));
        relace_.Stiskni("ComboLabel", i, 8, 8);
        relace_.Cekej(60);
        return *this;
    }
    throw std::runtime_error("v seznamu není: " + std::string(radek));
}

Zak& Zak::Napis(std::string_view text) {
    relace_.Napis(text);
    return *this;
}

Zak& Zak::Tahni(Bod odkud, Bod kam) {
    relace_.Tahni("Pic", odkud, kam);
    relace_.Cekej(110);
    return *this;
}

std::vector<Zadano> Zak::Zadani() {
    std::vector<Zadano> vse;
    Form& deska = *relace_.Vpredu();
    for (int i = 0;; ++i) {
        const auto* nazev = dynamic_cast<Label*>(deska.Najdi("lblZadani", 2 * i));
        const auto* hodnota = dynamic_cast<Label*>(deska.Najdi("lblZadani", 2 * i + 1));
        if (nazev == nullptr || hodnota == nullptr || !nazev->Visible) return vse;
        std::string velicina = nazev->Caption;
        if (nazev->Font.Nazev == Pismo::Rez::Symbol) {
            for (const auto& [pismeno, uhel] : UHLY) {
                if (nazev->Caption == pismeno) velicina = uhel;
            }
        }
        vse.push_back({velicina, static_cast<int>(Cislo(hodnota->Caption.substr(1)))});
    }
}

int Zak::Hodnota(std::string_view velicina) {
    for (const Zadano& z : Zadani()) {
        if (z.Velicina == velicina) return z.Hodnota;
    }
    throw std::runtime_error("není zadáno: " + std::string(velicina));
}

bool Zak::JeZadano(std::string_view velicina) {
    return std::ranges::any_of(Zadani(), [&](const Zadano& z) { return z.Velicina == velicina; });
}

std::vector<Chyba> Zak::Chyby() {
    std::vector<Chyba> chyby;
    for (int i = 1; i <= PocetChybnychKroku; ++i) {
        const ChybnyKrok& k = ChybneKroky[i];
        const std::size_t body = k.Text.rfind("  -");
        chyby.push_back({static_cast<int>(Cislo(k.Cislo)),
                         body == std::string::npos ? "" : k.Text.substr(body), k.Body});
    }
    return chyby;
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

// ---- The perfect pupil -----------------------------------------------------------------------

Bod DokonalyZak::Poloha(std::string_view vrchol) const {
    return vrchol == strana_.Od ? strana_.OdBod : strana_.DoBod;
}

void DokonalyZak::NarysujPrvni() {
    std::vector<std::string_view> strany;
    for (const KonceStrany& s : STRANY) {
        if (zak_.JeZadano(s.Nazev)) strany.push_back(s.Nazev);
    }
    const KonceStrany& k =
        Konce(strany[static_cast<std::size_t>(Cislo(static_cast<int>(strany.size())))]);
    const int cm = zak_.Hodnota(k.Nazev);
    const int px = cm * NA_CM;
    Bod od{};
    Bod kam{};
    if (zasunPanel_) {
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
    strana_ = {std::string(k.Nazev), std::string(k.Od), std::string(k.Do), od, kam};
    zak_.Nastroj(1).Vyber(strana_.Od + strana_.Do).Napis(cm).Tahni(od, kam);
}

void DokonalyZak::NarysujPaprsek(std::string_view uhel) {
    const std::string vrchol(
        std::ranges::find(VRCHOLY, uhel, &std::pair<std::string_view, std::string_view>::first)
            ->second);
    const bool prvni = PocetUtvaru == 1;
    const int stupnu = zak_.Hodnota(uhel);
    const Bod start = Poloha(vrchol);
    const bool zacatek = vrchol == strana_.Od;
    const Bod druhy = zacatek ? strana_.DoBod : strana_.OdBod;
    // The figure goes round to the left from A over B to C: on a side named A, C the third vertex
    // lies to the right.
    const bool vlevo = zacatek == (strana_.Nazev != "b");
    const Bod kam = PodUhlem(start, druhy, vlevo ? stupnu : -stupnu);
    const int posun = Cislo(13) - 6;  // the press snaps
    zak_.Nastroj(1)
        .Vyber(vrchol + (prvni ? "X" : "Y"))
        .Napis(stupnu)
        .Tahni({start.X + posun, start.Y - posun}, kam);
}

void DokonalyZak::NarysujKruznici(std::string_view strana) {
    // The side's end that lies on the first side is the centre.
    const KonceStrany& k = Konce(strana);
    const std::string stred(k.Od == strana_.Od || k.Od == strana_.Do ? k.Od : k.Do);
    const bool prvni = PocetUtvaru == 1;
    const int cm = zak_.Hodnota(strana);
    const Bod s = Poloha(stred);
    const int smer = s.X > 180 ? -1 : 1;
    zak_.Nastroj(4)
        .Vyber(std::string("kružnice ") + (prvni ? "k" : "l") + ", střed v bodě " + stred)
        .Napis(cm)
        .Tahni({s.X + Cislo(11) - 5, s.Y + Cislo(11) - 5},
               {s.X + smer * (cm * NA_CM + Cislo(5) - 2), s.Y});
}

void DokonalyZak::Sestroj() {
    std::vector<Zadano> zadani = zak_.Zadani();
    for (const Zadano& z : zadani) zak_.Oznac(z.Velicina);
    if (zasunPanel_) zak_.Stiskni("Image1");
    NarysujPrvni();
    std::ranges::shuffle(zadani, nahoda_);
    for (const Zadano& z : zadani) {
        if (z.Velicina == strana_.Nazev) continue;
        if (z.Velicina.size() == 1) {
            NarysujKruznici(z.Velicina);
        } else {
            NarysujPaprsek(z.Velicina);
        }
    }
}

void DokonalyZak::OdehrajPriklad() {
    Sestroj();
    zak_.Stiskni("PicTop", 1);
    zak_.Hra().Cekej(500);
}

void DokonalyZak::OdehrajSerii(int prikladu) {
    for (int i = 0; i < prikladu; ++i) {
        OdehrajPriklad();
        zak_.Stiskni("picPokracuj");
        zak_.Hra().Cekej(200);
    }
}

}  // namespace rysovna::testy
