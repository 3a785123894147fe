#include "rules/Postup.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Tabulky.h"
#include "rules/SlovaKroku.h"
#include "rules/Ulohy.h"

namespace rysovna {

namespace {

constexpr std::string_view PAPRSEK = "↦", SPOJNICE = "↔", STUPEN = "°";

/// A line passes through a point that lies no further from it, px: both are rounded to pixels.
constexpr double NA_CARE = 1;

/// What a row asks of the object; all of it has to hold.
enum Podminka : unsigned {
    NIC = 0,
    PODLE = 1,        ///< all names that it goes by are known
    BOD_NA_NI = 2,    ///< a known point lies on it
    DVA_BODY = 4,     ///< two of them do
    DVE_JMENA = 8,    ///< it is called by two points of its own
    PODLE_SEBE = 16,  ///< it goes by a point of its own name
    PODLE_BODU = 32   ///< it goes by one point
};

/// How a step is written. %n: the object's plain name, %o: as it is written, %1 and %2: what it
/// goes by, %a and %b: points that lie on it, %h: its value.
struct Zapis {
    std::string_view Cim;
    unsigned Kdy;
    std::string_view Co, Vztah;
};

/// The first row that holds.
constexpr Zapis ZAPISY[] = {
    {USECKA, NIC, "%o", "|%n| = %h"},
    {POLOPRIMKA, PODLE, "%o", "|∢%1%n| = %h"},
    {POLOPRIMKA, NIC, "%o", ""},
    {KRUZNICE, PODLE, "%o", "%n(%1; %h)"},
    {KRUZNICE, NIC, "%o", "r = %h"},
    {KOLMICE, PODLE | BOD_NA_NI, "%o", "%n ⊥ %1, %a ∈ %n"},
    {KOLMICE, PODLE, "%o", "%n ⊥ %1"},
    {KOLMICE, BOD_NA_NI, "%o", "%a ∈ %n"},
    {KOLMICE, NIC, "%o", ""},
    {ROVNOBEZKA, PODLE | BOD_NA_NI, "%o", "%n ∥ %1, %a ∈ %n"},
    {ROVNOBEZKA, PODLE, "%o", "%n ∥ %1, |%n, %1| = %h"},
    {ROVNOBEZKA, BOD_NA_NI, "%o", "%a ∈ %n"},
    {ROVNOBEZKA, NIC, "%o", ""},
    {PRIMKA, DVE_JMENA, "%o", ""},
    {PRIMKA, DVA_BODY, "%o", "%n = ↔%a%b"},
    {PRIMKA, BOD_NA_NI, "%o", "%a ∈ %n"},
    {PRIMKA, NIC, "%o", ""},
    {OSA, NIC, "%o", "%n je osa úsečky %1"},
    {STRED, PODLE, "%o", "%n je střed úsečky %1%2"},
    {PRUSECIK, PODLE, "%o", "%n ∈ %1 ∩ %2"},
    {STRED_SOUMERNOSTI, PODLE | PODLE_SEBE, "%o", "%n je střed souměrnosti"},
    {STRED_SOUMERNOSTI, PODLE | PODLE_BODU, "%o", "%n = %1, %n je střed souměrnosti"},
    {STRED_SOUMERNOSTI, PODLE, "%o", "%n je střed úsečky %1"},
    {OBRAZ_BODU, PODLE, "%o", "%n je obraz bodu %1 v souměrnosti podle středu S"},
    {"", NIC, "%o", ""},
};

/// What a closed figure is called, by the board.
struct NazevFigury {
    Deska Kde;
    std::string_view Jeden, Vic;
};
constexpr NazevFigury FIGURY[] = {{Deska::Troj1Form, "△", "△"},
                                  {Deska::Troj2Form, "△", "△"},
                                  {Deska::CtyrUForm, "čtyřúhelník ", "čtyřúhelníky "},
                                  {Deska::RovnoForm, "rovnoběžník ", "rovnoběžníky "},
                                  {Deska::LichoForm, "lichoběžník ", "lichoběžníky "}};

bool JeBod(const Utvar& u) {
    return u.Druh == BOD;
}
bool JeCara(const Utvar& u) {
    return u.Druh == PRIMKA || u.Druh == KOLMICE || u.Druh == ROVNOBEZKA;
}

std::string Jmeno(const Utvar& u) {
    return u.Jmeno1 + u.Jmeno2;
}

/// As it is written among other names.
std::string Oznaceni(const Utvar& u) {
    if (u.Druh == POLOPRIMKA) return std::string(PAPRSEK) + Jmeno(u);
    const bool spojnice = u.Druh == PRIMKA && !u.Jmeno2.empty();
    return (spojnice ? std::string(SPOJNICE) : std::string()) + Jmeno(u);
}

double Odstup(const Utvar& cara, Bod b) {
    const double dx = cara.X2 - cara.X1;
    const double dy = cara.Y2 - cara.Y1;
    const double delka = Hypot(dx, dy);
    if (delka == 0) return Hypot(b.X - cara.X1, b.Y - cara.Y1);
    return std::fabs(dx * (b.Y - cara.Y1) - dy * (b.X - cara.X1)) / delka;
}

std::string Spoj(const std::vector<std::string>& co) {
    std::string vse;
    for (const std::string& s : co) vse += (vse.empty() ? "" : ", ") + s;
    return vse;
}

/// Goes through the rows and writes their steps.
class Psani {
public:
    explicit Psani(const Dialog& dialog) : dialog_(dialog), misc_(dialog.Pamet()) {}

    std::vector<KrokPostupu> Postup() {
        for (int i = 1; i <= misc_.PocetUtvaru;) {
            const std::string_view cim = misc_.Utvary[i].Jak.Cim;
            if (cim.empty() && i == 1) {
                i = Dano();
            } else if (cim.empty()) {
                i = Strany(i);
            } else if (cim == TROJUHELNIK) {
                i = Trojuhelnik(i);
            } else {
                Rysovany(i++);
            }
        }
        if (dialog_.Hotova()) Vrchol();
        return std::move(kroky_);
    }

private:
    // ---- Names

    void Poznej(const std::string& jmeno, std::optional<Bod> bod, KrokPostupu& krok) {
        if (jmeno.empty()) return;
        if (bod && !body_.contains(jmeno)) {
            body_[jmeno] = *bod;
            poradiBodu_.push_back(jmeno);
        }
        if (znama_.insert(jmeno).second) krok.Jmena.push_back(jmeno);
    }

    /// The names that an object brings. A ray's second point is no place: it lies anywhere on it.
    void Poznej(const Utvar& u, KrokPostupu& krok) {
        const Bod p1{u.X1, u.Y1};
        if (JeBod(u)) return Poznej(u.Jmeno1, p1, krok);
        if (u.Druh == USECKA) {
            Poznej(u.Jmeno1, p1, krok);
            Poznej(u.Jmeno2, Bod{u.X2, u.Y2}, krok);
        } else if (u.Druh == POLOPRIMKA) {
            Poznej(u.Jmeno2, {}, krok);
        }
        Poznej(Jmeno(u), {}, krok);
    }

    /// The last object of this name that stands before a row; null if none does.
    [[nodiscard]] const Utvar* Cara(std::string_view jmeno, int pred) const {
        for (int i = pred - 1; i >= 1; --i) {
            if (!JeBod(misc_.Utvary[i]) && Jmeno(misc_.Utvary[i]) == jmeno) return &misc_.Utvary[i];
        }
        return nullptr;
    }

    [[nodiscard]] std::vector<std::string> BodyNa(const Utvar& u) const {
        std::vector<std::string> body;
        if (!JeCara(u)) return body;
        for (const std::string& jmeno : poradiBodu_) {
            if (Odstup(u, body_.at(jmeno)) <= NA_CARE) body.push_back(jmeno);
        }
        return body;
    }

    // ---- Steps

    void Pridej(KrokPostupu krok) { kroky_.push_back(std::move(krok)); }

    /// The objects that the example began with; gives the row behind them.
    int Dano() {
        KrokPostupu krok;
        std::vector<std::string> jmena;
        int i = 1;
        for (; i <= misc_.PocetUtvaru && misc_.Utvary[i].Jak.Cim.empty(); ++i) {
            jmena.push_back(Oznaceni(misc_.Utvary[i]));
            krok.Utvary.push_back(i);
            Poznej(misc_.Utvary[i], krok);
        }
        krok.Co = Spoj(jmena);
        krok.Vztah = "zadáno";
        Pridej(std::move(krok));
        return i;
    }

    /// The starting triangle, which the board draws from three values.
    int Trojuhelnik(int od) {
        constexpr int STRAN = 3;
        KrokPostupu krok;
        std::string vrcholy;
        std::vector<std::string> vztahy;
        for (int i = od; i < od + STRAN; ++i) {
            const Utvar& u = misc_.Utvary[i];
            krok.Utvary.push_back(i);
            Poznej(u, krok);
            vrcholy += u.Jmeno1;
            const bool uhel = u.Jak.Odecet.ends_with(STUPEN);
            vztahy.push_back((uhel ? "|∢" + vrcholy : "|" + Jmeno(u)) + "| = " + u.Jak.Odecet);
        }
        krok.Co = "△" + vrcholy;
        krok.Vztah = Spoj(vztahy);
        Pridej(std::move(krok));
        return od + STRAN;
    }

    /// The name of a side's midpoint, which nobody draws, becomes known when it is first gone by.
    void NajdiStredStrany(const std::string& jmeno, int pred) {
        for (int i = 1; i < pred && !znama_.contains(jmeno); ++i) {
            const Utvar& u = misc_.Utvary[i];
            if (u.Druh != USECKA || u.Jmeno3 != jmeno) continue;
            KrokPostupu krok{.Co = jmeno, .Vztah = jmeno + " je střed úsečky " + Jmeno(u)};
            Poznej(jmeno, Bod{u.X3, u.Y3}, krok);
            Pridej(std::move(krok));
        }
    }

    [[nodiscard]] unsigned Podminky(const Utvar& u, const std::vector<std::string>& podle,
                                    const std::vector<std::string>& body) const {
        const bool zname = !podle.empty() && std::ranges::all_of(podle, [this](const auto& j) {
            // A side may be meant by its two ends.
            return znama_.contains(j) || (j.size() == 2 && znama_.contains(j.substr(0, 1)) &&
                                          znama_.contains(j.substr(1)));
        });
        const bool jedenBod = podle.size() == 1 && body_.contains(podle[0]);
        return (zname ? PODLE : NIC) | (body.empty() ? NIC : BOD_NA_NI) |
               (body.size() > 1 ? DVA_BODY : NIC) | (u.Jmeno2.empty() ? NIC : DVE_JMENA) |
               (jedenBod ? PODLE_BODU : NIC) |
               (jedenBod && podle[0] == Jmeno(u) ? PODLE_SEBE : NIC);
    }

    void Rysovany(int i) {
        const Utvar& u = misc_.Utvary[i];
        std::vector<std::string> podle;
        for (std::string_view zbytek = u.Jak.Podle; !zbytek.empty();) {
            const std::size_t konec = std::min(zbytek.find(' '), zbytek.size());
            podle.emplace_back(zbytek.substr(0, konec));
            zbytek.remove_prefix(std::min(konec + 1, zbytek.size()));
        }
        if (u.Druh == KRUZNICE && podle.size() == 1) NajdiStredStrany(podle[0], i);
        const std::vector<std::string> body = BodyNa(u);
        const unsigned plati = Podminky(u, podle, body);
        const auto* z = std::ranges::find_if(ZAPISY, [&](const Zapis& r) {
            return (r.Cim.empty() || r.Cim == u.Jak.Cim) && (r.Kdy & ~plati) == 0;
        });
        const auto napis = [&](std::size_t n) {
            if (n >= podle.size()) return std::string();
            const Utvar* cara = Cara(podle[n], i);
            return cara == nullptr ? podle[n] : Oznaceni(*cara);
        };
        // A distance that was read off has a sign: which way the parallel was pushed.
        const std::string hodnota = u.Jak.Odecet.substr(u.Jak.Odecet.starts_with('-') ? 1 : 0);
        const std::map<char, std::string> dosad = {{'n', Jmeno(u)},
                                                   {'o', Oznaceni(u)},
                                                   {'1', napis(0)},
                                                   {'2', napis(1)},
                                                   {'a', body.empty() ? "" : body[0]},
                                                   {'b', body.size() < 2 ? "" : body[1]},
                                                   {'h', hodnota}};
        const auto vypln = [&dosad](std::string_view vzor) {
            std::string text;
            for (std::size_t k = 0; k < vzor.size(); ++k) {
                if (vzor[k] == '%') {
                    text += dosad.at(vzor[++k]);
                } else {
                    text += vzor[k];
                }
            }
            return text;
        };
        KrokPostupu krok{.Co = vypln(z->Co), .Vztah = vypln(z->Vztah), .Jmena = {}, .Utvary = {i}};
        Poznej(u, krok);
        Pridej(std::move(krok));
    }

    // ---- Closing

    [[nodiscard]] std::string NazvySlov(bool vic) const {
        const Uloha* uloha = NajdiUlohu(misc_.CisloUlohy);
        if (uloha == nullptr) return {};
        const auto* f = std::ranges::find(FIGURY, uloha->deska, &NazevFigury::Kde);
        return f == std::end(FIGURY) ? std::string() : std::string(vic ? f->Vic : f->Jeden);
    }

    /// Points in which the two objects before a row meet.
    void Prunik(const std::vector<std::string>& jmena, const std::vector<Bod>& mista, int pred) {
        if (jmena.empty()) return;
        const std::string kde =
            Oznaceni(misc_.Utvary[pred - 2]) + " ∩ " + Oznaceni(misc_.Utvary[pred - 1]);
        KrokPostupu krok{.Co = Spoj(jmena)};
        std::vector<std::string> vztahy;
        for (std::size_t k = 0; k < jmena.size(); ++k) {
            vztahy.push_back(jmena[k] + " ∈ " + kde);
            Poznej(jmena[k], mista[k], krok);
        }
        krok.Vztah = Spoj(vztahy);
        Pridej(std::move(krok));
    }

    /// The sides that close a quadrilateral; those of a second solution after those of the first.
    int Strany(int od) {
        std::vector<std::string> nove;
        std::vector<Bod> mista;
        KrokPostupu krok;
        int i = od;
        for (; i <= misc_.PocetUtvaru && misc_.Utvary[i].Jak.Cim.empty(); ++i) {
            const Utvar& u = misc_.Utvary[i];
            krok.Utvary.push_back(i);
            if (znama_.contains(u.Jmeno2) || std::ranges::find(nove, u.Jmeno2) != nove.end())
                continue;
            nove.push_back(u.Jmeno2);
            mista.push_back({u.X2, u.Y2});
        }
        Prunik(nove, mista, od);
        std::vector<std::string> figury;
        for (const std::string& novy : nove.empty() ? std::vector<std::string>{""} : nove) {
            std::string figura = "ABCD";
            if (!novy.empty()) figura.replace(figura.find(novy[0]), 1, novy);
            figury.push_back(std::move(figura));
        }
        krok.Co = NazvySlov(figury.size() > 1) + Spoj(figury);
        for (const int n : krok.Utvary) Poznej(misc_.Utvary[n], krok);
        Pridej(std::move(krok));
        return i;
    }

    /// The third vertex of a triangle, which is the last place that the mouse catches.
    void Vrchol() {
        const Trojice& t = misc_.Trojice_tab[misc_.PocetTrojic];
        const std::string nazev = NazvySlov(false);
        if (nazev.empty() || t.Jmeno1.empty() || znama_.contains(t.Jmeno1)) return;
        Prunik({t.Jmeno1}, {{t.X1, t.Y1}}, misc_.PocetUtvaru + 1);
        Pridej({.Co = nazev + "ABC"});
    }

    const Dialog& dialog_;
    const Misc& misc_;
    std::vector<KrokPostupu> kroky_;
    std::set<std::string> znama_;
    std::map<std::string, Bod> body_;
    std::vector<std::string> poradiBodu_;
};

}  // namespace

std::vector<KrokPostupu> SestavPostup(const Dialog& dialog) {
    return Psani(dialog).Postup();
}

std::string TextKroku(int poradi, const KrokPostupu& krok) {
    return TextBezMezery(poradi) + ". " + krok.Co + (krok.Vztah.empty() ? "" : "; " + krok.Vztah);
}

}  // namespace rysovna
