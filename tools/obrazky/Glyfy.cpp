#include "Glyfy.h"

#include <algorithm>
#include <cmath>
#include <ft2build.h>
#include <limits>
#include <map>
#include <string>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

/// The outlines that were drawn stood on a grid of 64ths of a pixel.
constexpr double PRESNOST = 0.03;
/// The size, too, is known by measuring only: so much of it may be wrong.
constexpr double PRESNOST_VELIKOSTI = 0.0025;
/// From so many of the largest outlines of a text its size is tried.
constexpr std::size_t ZKUSENYCH_OBRYSU = 8;

BodCesty Dal(const BodCesty& a, const BodCesty& b, double podil) {
    return {a.X + (b.X - a.X) * podil, a.Y + (b.Y - a.Y) * podil};
}

/// Without what a drawing leaves out: segments of no length, a last one that the closing draws, and
/// points in the middle of a straight one.
void Zjednodus(Obrys& o) {
    const auto stejne = [](const BodCesty& a, const BodCesty& b, double mez) {
        return std::abs(a.X - b.X) <= mez && std::abs(a.Y - b.Y) <= mez;
    };
    std::vector<Obrys::Usek> useky;
    BodCesty drive = o.Zacatek;
    for (const Obrys::Usek& u : o.Useky) {
        if (!u.Krivka && stejne(u.Konec, drive, 0)) continue;
        useky.push_back(u);
        drive = u.Konec;
    }
    if (!useky.empty() && !useky.back().Krivka && stejne(useky.back().Konec, o.Zacatek, 0))
        useky.pop_back();
    o.Useky = std::move(useky);
}

/// Which outlines can be the same at all: their kinds of segments in order.
std::string Podpis(const Obrys& o) {
    std::string p;
    for (const Obrys::Usek& u : o.Useky) p += u.Krivka ? 'c' : 'l';
    return p;
}

template <class F>
void ProBody(const Obrys& o, F f) {
    f(o.Zacatek);
    for (const Obrys::Usek& u : o.Useky) {
        if (u.Krivka) {
            f(u.Ridici1);
            f(u.Ridici2);
        }
        f(u.Konec);
    }
}

/// The upright rectangle around an outline, and what it encloses if its curves are taken straight.
struct Obal {
    BodCesty Roh1, Roh2;
    double Plocha = 0;
};
Obal Zabal(const Obrys& o) {
    Obal z{o.Zacatek, o.Zacatek, 0};
    BodCesty drive = o.Useky.back().Konec;
    const auto dal = [&](const BodCesty& b) {
        z.Roh1 = {std::min(z.Roh1.X, b.X), std::min(z.Roh1.Y, b.Y)};
        z.Roh2 = {std::max(z.Roh2.X, b.X), std::max(z.Roh2.Y, b.Y)};
        z.Plocha += (drive.X * b.Y - b.X * drive.Y) / 2;
        drive = b;
    };
    dal(o.Zacatek);
    for (const Obrys::Usek& u : o.Useky) dal(u.Konec);
    return z;
}

/// "fi", "fl" and their like, which have characters of their own and are printed for two.
bool JeLigaturaF(char32_t z) {
    return z >= U'\uFB00' && z <= U'\uFB04';
}

/// A glyph as it stands in the font: outlines, parts of the type size, Y downward.
struct Predloha {
    unsigned Rez = 0;
    std::uint32_t Cislo = 0;
    std::vector<Obrys> Obrysy;
    Obal Prvni;  ///< of the first outline
    /// The characters that it prints; none if it comes in the place of others, as a ligature may.
    std::vector<char32_t> Znaky{};

    [[nodiscard]] bool MuzeByt(const std::set<char32_t>& psane) const {
        return Znaky.empty() || std::ranges::any_of(Znaky, [&](char32_t z) {
                   return psane.contains(JeLigaturaF(z) ? U'f' : z);
               });
    }
};

/// Points of a drawing and those of a glyph that they should be.
struct Dvojice {
    std::vector<BodCesty> Body, Predloha;
    /// Outlines that lost a step: the drawn one, the glyph's.
    std::vector<std::pair<const Obrys*, const Obrys*>> Zjednodusene;
};

/// Outlines with the same steps are compared point by point. On the grid that the drawing was made
/// on, near points of small marks come to be one, or three to lie in a line, and a step is lost: of
/// such outlines the surrounding rectangle is compared, what they enclose, and each corner that is
/// left with the nearest one of the glyph. (A caron and a circumflex have one rectangle and one
/// area.)
Dvojice Sparuj(const Obrys* kresba, const std::vector<Obrys>& predloha) {
    Dvojice d;
    for (const Obrys& p : predloha) {
        const Obrys& k = *kresba++;
        if (Podpis(k) == Podpis(p)) {
            ProBody(k, [&](const BodCesty& b) { d.Body.push_back(b); });
            ProBody(p, [&](const BodCesty& b) { d.Predloha.push_back(b); });
        } else {
            const Obal ok = Zabal(k);
            const Obal op = Zabal(p);
            d.Body.insert(d.Body.end(), {ok.Roh1, ok.Roh2});
            d.Predloha.insert(d.Predloha.end(), {op.Roh1, op.Roh2});
            d.Zjednodusene.emplace_back(&k, &p);
        }
    }
    return d;
}

/// How outlines lie: body = misto + velikost * predloha, the best that there is, and how far off
/// the farthest point is then.
struct Poloha {
    double Velikost = 0;
    BodCesty Misto;
    double Odchylka = 0;
};

/// How far the farthest corner of a drawn outline is from the nearest one of a glyph that lies so.
double NejdalOdRohu(const Obrys& kresba, const Obrys& predloha, const Poloha& kde) {
    const auto proRohy = [](const Obrys& o, auto f) {
        f(o.Zacatek);
        for (const Obrys::Usek& u : o.Useky) f(u.Konec);
    };
    double nejdal = 0;
    proRohy(kresba, [&](const BodCesty& k) {
        double nejbliz = std::numeric_limits<double>::max();
        proRohy(predloha, [&](const BodCesty& p) {
            nejbliz = std::min(nejbliz, std::max(std::abs(k.X - kde.Misto.X - kde.Velikost * p.X),
                                                 std::abs(k.Y - kde.Misto.Y - kde.Velikost * p.Y)));
        });
        nejdal = std::max(nejdal, nejbliz);
    });
    return nejdal;
}

/// velikost: given, or 0 to find it.
Poloha Zmer(const Dvojice& d, double velikost) {
    const auto& body = d.Body;
    const auto& predloha = d.Predloha;
    BodCesty stredB;
    BodCesty stredP;
    const auto n = static_cast<double>(body.size());
    for (std::size_t i = 0; i < body.size(); ++i) {
        stredB = {stredB.X + body[i].X / n, stredB.Y + body[i].Y / n};
        stredP = {stredP.X + predloha[i].X / n, stredP.Y + predloha[i].Y / n};
    }
    if (velikost == 0) {
        double spolu = 0;
        double sama = 0;
        for (std::size_t i = 0; i < body.size(); ++i) {
            const BodCesty p{predloha[i].X - stredP.X, predloha[i].Y - stredP.Y};
            spolu += (body[i].X - stredB.X) * p.X + (body[i].Y - stredB.Y) * p.Y;
            sama += p.X * p.X + p.Y * p.Y;
        }
        velikost = sama > 0 ? spolu / sama : 0;
    }
    Poloha z{velikost, {stredB.X - velikost * stredP.X, stredB.Y - velikost * stredP.Y}, 0};
    for (std::size_t i = 0; i < body.size(); ++i) {
        z.Odchylka =
            std::max({z.Odchylka, std::abs(body[i].X - z.Misto.X - velikost * predloha[i].X),
                      std::abs(body[i].Y - z.Misto.Y - velikost * predloha[i].Y)});
    }
    for (const auto& [k, p] : d.Zjednodusene) {
        const Obal ok = Zabal(*k);
        const double obvod = ok.Roh2.X - ok.Roh1.X + ok.Roh2.Y - ok.Roh1.Y;
        z.Odchylka = std::max({z.Odchylka, NejdalOdRohu(*k, *p, z),
                               std::abs(ok.Plocha - velikost * velikost * Zabal(*p).Plocha) /
                                   std::max(obvod, PRESNOST)});
    }
    return z;
}

double Mez(double velikost) {
    return PRESNOST + PRESNOST_VELIKOSTI * velikost;
}

/// The steps of an outline of a font, for FreeType. Each gets the glyph being made.
struct Stavba {
    Predloha* Kam;
    double Jednotka;
    [[nodiscard]] BodCesty Bod(const FT_Vector* v) const {
        return {static_cast<double>(v->x) / Jednotka, -static_cast<double>(v->y) / Jednotka};
    }
};
int Zacni(const FT_Vector* kam, void* data) {
    auto& s = *static_cast<Stavba*>(data);
    s.Kam->Obrysy.push_back({s.Bod(kam), {}, true});
    return 0;
}
int Usecka(const FT_Vector* kam, void* data) {
    auto& s = *static_cast<Stavba*>(data);
    s.Kam->Obrysy.back().Useky.push_back({false, {}, {}, s.Bod(kam)});
    return 0;
}
int Kubicka(const FT_Vector* r1, const FT_Vector* r2, const FT_Vector* kam, void* data) {
    auto& s = *static_cast<Stavba*>(data);
    s.Kam->Obrysy.back().Useky.push_back({true, s.Bod(r1), s.Bod(r2), s.Bod(kam)});
    return 0;
}
int Kvadraticka(const FT_Vector* r, const FT_Vector* kam, void* data) {
    auto& s = *static_cast<Stavba*>(data);
    Obrys& o = s.Kam->Obrysy.back();
    const BodCesty od = o.Useky.empty() ? o.Zacatek : o.Useky.back().Konec;
    const BodCesty ridici = s.Bod(r);
    const BodCesty konec = s.Bod(kam);
    o.Useky.push_back({true, Dal(od, ridici, 2.0 / 3), Dal(konec, ridici, 2.0 / 3), konec});
    return 0;
}

}  // namespace

struct Glyfy::Vnitrek {
    std::vector<Predloha> Predlohy;
    std::multimap<std::string, const Predloha*> PodlePodpisu;  ///< by the first outline

    /// A glyph found: which, and where.
    struct Nalez {
        const Predloha* Co = nullptr;
        Poloha Kde;
    };

    /// The glyph that the outlines from the given one on are, the one of most outlines.
    [[nodiscard]] Nalez Najdi(const std::vector<Obrys>& cesta, std::size_t od, double velikost,
                              double ucari, const std::set<char32_t>& psane) const {
        Nalez nejlepsi;
        const auto zkus = [&](const Predloha& p) {
            if (!p.MuzeByt(psane)) return;
            if (od + p.Obrysy.size() > cesta.size()) return;
            const Poloha z = Zmer(Sparuj(&cesta[od], p.Obrysy), velikost);
            if (z.Odchylka > Mez(velikost) || std::abs(z.Misto.Y - ucari) > Mez(velikost)) return;
            const bool lepsi = nejlepsi.Co == nullptr ||
                               p.Obrysy.size() > nejlepsi.Co->Obrysy.size() ||
                               (p.Obrysy.size() == nejlepsi.Co->Obrysy.size() &&
                                z.Odchylka < nejlepsi.Kde.Odchylka);
            if (lepsi) nejlepsi = {&p, z};
        };
        const auto [prvni, konec] = PodlePodpisu.equal_range(Podpis(cesta[od]));
        for (auto i = prvni; i != konec; ++i) zkus(*i->second);
        if (nejlepsi.Co != nullptr) return nejlepsi;
        // Its first outline is one that lost a step: all of about its size.
        const Obal k = Zabal(cesta[od]);
        for (const Predloha& p : Predlohy) {
            const Obal& o = p.Prvni;
            const auto blizko = [&](double a, double b) {
                return std::abs(a - velikost * b) < 2 * Mez(velikost);
            };
            if (blizko(k.Roh1.Y - ucari, o.Roh1.Y) && blizko(k.Roh2.Y - ucari, o.Roh2.Y) &&
                blizko(k.Roh2.X - k.Roh1.X, o.Roh2.X - o.Roh1.X))
                zkus(p);
        }
        return nejlepsi;
    }

    /// All of the path at this size on this base line; empty if something is left.
    [[nodiscard]] std::vector<Nalez> PrectiVse(const std::vector<Obrys>& cesta, double velikost,
                                               double ucari,
                                               const std::set<char32_t>& psane) const {
        std::vector<Nalez> nalezy;
        for (std::size_t i = 0; i < cesta.size();) {
            nalezy.push_back(Najdi(cesta, i, velikost, ucari, psane));
            if (nalezy.back().Co == nullptr) return {};
            i += nalezy.back().Co->Obrysy.size();
        }
        return nalezy;
    }
};

Glyfy::Glyfy(const std::vector<std::filesystem::path>& soubory)
    : vnitrek_(std::make_unique<Vnitrek>()) {
    FT_Library knihovna = nullptr;
    if (FT_Init_FreeType(&knihovna) != 0) Selhani("FreeType nelze spustit");
    for (std::size_t i = 0; i < soubory.size(); ++i) {
        FT_Face tvar = nullptr;
        if (FT_New_Face(knihovna, soubory[i].c_str(), 0, &tvar) != 0)
            throw BehovaChyba("Nelze otevřít písmo", soubory[i].string());
        std::map<std::uint32_t, std::vector<char32_t>> znaky;
        FT_UInt tisteny = 0;
        for (FT_ULong znak = FT_Get_First_Char(tvar, &tisteny); tisteny != 0;
             znak = FT_Get_Next_Char(tvar, znak, &tisteny))
            znaky[tisteny].push_back(static_cast<char32_t>(znak));
        const FT_Outline_Funcs kroky{Zacni, Usecka, Kvadraticka, Kubicka, 0, 0};
        for (long g = 0; g < tvar->num_glyphs; ++g) {
            const auto cislo = static_cast<FT_UInt>(g);
            if (FT_Load_Glyph(tvar, cislo, FT_LOAD_NO_SCALE) != 0) continue;
            Predloha p{static_cast<unsigned>(i), cislo, {}, {}, znaky[cislo]};
            Stavba s{&p, static_cast<double>(tvar->units_per_EM)};
            if (FT_Outline_Decompose(&tvar->glyph->outline, &kroky, &s) != 0) continue;
            for (Obrys& o : p.Obrysy) Zjednodus(o);
            std::erase_if(p.Obrysy, [](const Obrys& o) { return o.Useky.empty(); });
            if (p.Obrysy.empty()) continue;
            p.Prvni = Zabal(p.Obrysy[0]);
            vnitrek_->Predlohy.push_back(std::move(p));
        }
        FT_Done_Face(tvar);
    }
    FT_Done_FreeType(knihovna);
    for (const Predloha& p : vnitrek_->Predlohy)
        vnitrek_->PodlePodpisu.emplace(Podpis(p.Obrysy[0]), &p);
}

Glyfy::~Glyfy() = default;

std::vector<Radka> Glyfy::Precti(const std::vector<Obrys>& puvodni,
                                 const std::set<char32_t>& psane) const {
    std::vector<Obrys> cesta = puvodni;
    for (Obrys& o : cesta) Zjednodus(o);
    std::erase_if(cesta, [](const Obrys& o) { return o.Useky.empty(); });
    if (cesta.empty()) return {};

    // The larger an outline, the better it tells the size.
    std::vector<std::pair<double, std::size_t>> poradi;
    for (std::size_t i = 0; i < cesta.size(); ++i) {
        double nahore = cesta[i].Zacatek.Y;
        double dole = nahore;
        ProBody(cesta[i], [&](const BodCesty& b) {
            nahore = std::min(nahore, b.Y);
            dole = std::max(dole, b.Y);
        });
        poradi.emplace_back(nahore - dole, i);
    }
    std::sort(poradi.begin(), poradi.end());
    if (poradi.size() > ZKUSENYCH_OBRYSU) poradi.resize(ZKUSENYCH_OBRYSU);

    std::vector<Vnitrek::Nalez> nejlepsi;
    double nejmene = 0;
    for (const auto& [vyska, i] : poradi) {
        const auto [prvni, konec] = vnitrek_->PodlePodpisu.equal_range(Podpis(cesta[i]));
        for (auto k = prvni; k != konec; ++k) {
            const Predloha& p = *k->second;
            if (!p.MuzeByt(psane) || i + p.Obrysy.size() > cesta.size()) continue;
            const Poloha z = Zmer(Sparuj(&cesta[i], p.Obrysy), 0);
            if (z.Velikost <= 0 || z.Odchylka > Mez(z.Velikost)) continue;
            auto nalezy = vnitrek_->PrectiVse(cesta, z.Velikost, z.Misto.Y, psane);
            if (nalezy.empty()) continue;
            double odchylka = 0;
            for (const auto& n : nalezy) odchylka += n.Kde.Odchylka;
            if (nejlepsi.empty() || odchylka < nejmene) {
                nejlepsi = std::move(nalezy);
                nejmene = odchylka;
            }
        }
        if (!nejlepsi.empty()) break;
    }
    if (nejlepsi.empty()) return {};

    // The size, as all letters together tell it.
    double vaha = 0;
    double velikost = 0;
    double ucari = 0;
    std::size_t od = 0;
    for (const auto& n : nejlepsi) {
        const Dvojice d = Sparuj(&cesta[od], n.Co->Obrysy);
        const Poloha z = Zmer(d, 0);
        const auto v = static_cast<double>(d.Body.size());
        vaha += v;
        velikost += v * z.Velikost;
        ucari += n.Kde.Misto.Y / static_cast<double>(nejlepsi.size());
        od += n.Co->Obrysy.size();
    }
    velikost /= vaha;
    std::vector<Radka> radky;
    for (const auto& n : nejlepsi) {
        if (radky.empty() || radky.back().Rez != n.Co->Rez)
            radky.push_back({n.Co->Rez, velikost, ucari, {}});
        radky.back().Glyfy.push_back({n.Co->Cislo, n.Kde.Misto.X});
    }
    return radky;
}

}  // namespace rysovna::obrazky
