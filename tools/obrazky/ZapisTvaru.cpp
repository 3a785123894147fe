#include "ZapisTvaru.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/Chyba.h"
#include "base/Text.h"
#include "platform/Pisma.h"
#include "platform/Tvary.h"
#include "platform/bmp/Sbaleni.h"

namespace rysovna::obrazky {

namespace {

/// A measured size that comes so near to one of the drawing's own is that one.
constexpr double BLIZKO = 0.006;

std::int32_t Dilky(double x) {
    return static_cast<std::int32_t>(std::lround(x * DILKU_TVARU));
}

/// Writes the commands as platform/Tvary.h tells them.
class Zapis {
public:
    void Prikaz(PrikazTvaru p) { data_.push_back(static_cast<char>(p)); }
    void Bajt(int b) { data_.push_back(static_cast<char>(b)); }
    void Cislo(std::uint32_t x) {
        for (; x >= 0x80; x >>= 7) data_.push_back(static_cast<char>(x | 0x80));
        data_.push_back(static_cast<char>(x));
    }
    void SeZnamenkem(std::int32_t x) {
        const auto velikost = static_cast<std::uint32_t>(x < 0 ? -x : x);
        Cislo(velikost << 1 | (x < 0 ? 1U : 0U));
    }
    void Delka(double x) { Cislo(static_cast<std::uint32_t>(Dilky(x))); }
    void Barva(std::uint32_t rgb) {
        for (const unsigned posun : {16U, 8U, 0U}) Bajt(static_cast<int>(rgb >> posun & 255U));
    }
    void Ramec(const obrazky::Ramec& r) {
        SeZnamenkem(Dilky(r.X));
        SeZnamenkem(Dilky(r.Y));
        Cislo(static_cast<std::uint32_t>(Dilky(r.X + r.Sirka) - Dilky(r.X)));
        Cislo(static_cast<std::uint32_t>(Dilky(r.Y + r.Vyska) - Dilky(r.Y)));
    }
    void Cesta(const std::vector<Obrys>& cesta) {
        x_ = y_ = 0;
        for (const Obrys& o : cesta) {
            Krok(KrokTvaru::Bod);
            Bod(o.Zacatek);
            for (const Obrys::Usek& u : o.Useky) Usek(u);
            if (o.Zavreny) Krok(KrokTvaru::Zavri);
        }
        Krok(KrokTvaru::Konec);
    }
    std::string Vydej() { return std::move(data_); }

private:
    void Krok(KrokTvaru k) { data_.push_back(static_cast<char>(k)); }
    void Od(std::int32_t& misto, double x) {
        SeZnamenkem(Dilky(x) - misto);
        misto = Dilky(x);
    }
    void Bod(const BodCesty& b) {
        Od(x_, b.X);
        Od(y_, b.Y);
    }
    void Usek(const Obrys::Usek& u) {
        if (u.Krivka) {
            Krok(KrokTvaru::Krivka);
            Bod(u.Ridici1);
            Bod(u.Ridici2);
            Bod(u.Konec);
        } else if (Dilky(u.Konec.Y) == y_) {
            Krok(KrokTvaru::Vodorovne);
            Od(x_, u.Konec.X);
        } else if (Dilky(u.Konec.X) == x_) {
            Krok(KrokTvaru::Svisle);
            Od(y_, u.Konec.Y);
        } else {
            Krok(KrokTvaru::Usecka);
            Bod(u.Konec);
        }
    }

    std::string data_;
    std::int32_t x_ = 0, y_ = 0;
};

/// All sizes of letters that a drawing names.
std::set<double> Velikosti(const std::string& svg) {
    std::set<double> velikosti;
    const std::string klic = "font-size";
    for (auto i = svg.find(klic); i != std::string::npos; i = svg.find(klic, i + 1)) {
        const auto cislo = svg.find_first_of("0123456789.", i);
        if (cislo != std::string::npos && cislo < i + klic.size() + 5)
            velikosti.insert(std::stod(svg.substr(cislo, 12)));
    }
    return velikosti;
}

/// All characters between the marks of a drawing.
std::set<char32_t> PsaneZnaky(const std::string& svg) {
    std::string text;
    for (auto i = svg.find('>'); i != std::string::npos; i = svg.find('>', i + 1)) {
        const auto konec = std::min(svg.find('<', i), svg.size());
        text += svg.substr(i + 1, konec - i - 1);
    }
    for (const auto& [jak, co] : {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&amp;", "&"}}) {
        if (text.find(jak) != std::string::npos) text += co;
    }
    std::set<char32_t> znaky;
    for (const char32_t z : DoZnaku(text)) znaky.insert(z);
    return znaky;
}

void ZapisRadku(Zapis& z, std::uint32_t barva, const Radka& r, const std::set<double>& velikosti) {
    double velikost = r.Velikost;
    for (const double v : velikosti) {
        if (std::abs(v - r.Velikost) < BLIZKO * v) velikost = v;
    }
    z.Prikaz(PrikazTvaru::Text);
    z.Barva(barva);
    z.Bajt(static_cast<int>(r.Rez));
    z.Delka(velikost);
    z.SeZnamenkem(Dilky(r.Glyfy[0].X));
    z.SeZnamenkem(Dilky(r.Y));
    z.Cislo(static_cast<std::uint32_t>(r.Glyfy.size()));
    for (const Radka::Glyf& g : r.Glyfy) z.Cislo(g.Cislo);
    // Counted on as the reader will, so that what is rounded away does not add up.
    const double psana = static_cast<double>(Dilky(velikost)) / DILKU_TVARU;
    double kde = static_cast<double>(Dilky(r.Glyfy[0].X)) / DILKU_TVARU;
    for (std::size_t i = 1; i < r.Glyfy.size(); ++i) {
        kde += PosuvGlyfu(static_cast<int>(r.Rez), r.Glyfy[i - 1].Cislo) * psana;
        const std::int32_t navic = Dilky(r.Glyfy[i].X - kde);
        z.SeZnamenkem(navic);
        kde += static_cast<double>(navic) / DILKU_TVARU;
    }
}

/// What the text of a drawing is known by.
struct Pismena {
    std::set<double> Velikosti;
    std::set<char32_t> Znaky;
};

void ZapisVypln(Zapis& z, const Ukon& u, const Glyfy& glyfy, const Pismena& pismo) {
    Ramec r;
    if (JeObdelnik(u.Cesta, r)) {
        z.Prikaz(PrikazTvaru::Obdelnik);
        z.Barva(u.Barva);
        z.Ramec(r);
        return;
    }
    // A triangle of a drawing without text is none of the letters that look like it.
    const std::vector<Radka> radky =
        pismo.Velikosti.empty() ? std::vector<Radka>() : glyfy.Precti(u.Cesta, pismo.Znaky);
    for (const Radka& radka : radky) ZapisRadku(z, u.Barva, radka, pismo.Velikosti);
    if (!radky.empty()) return;
    z.Prikaz(PrikazTvaru::Vypln);
    z.Barva(u.Barva);
    z.Bajt(u.SudaLicha ? 1 : 0);
    z.Cesta(u.Cesta);
}

}  // namespace

std::string SlozTvary(const Obrazek& obrazek, const std::vector<Ukon>& ukony, const Glyfy& glyfy,
                      std::uint32_t otisk) {
    const Pismena pismo{Velikosti(obrazek.Svg), PsaneZnaky(obrazek.Svg)};
    const Ramec cely{0, 0, static_cast<double>(obrazek.Sirka), static_cast<double>(obrazek.Vyska)};
    Zapis z;
    bool zacato = false;
    for (const Ukon& u : ukony) {
        const bool kresli = u.Co == Ukon::Druh::Vypln || u.Co == Ukon::Druh::Tah;
        if (kresli && u.Cesta.empty()) continue;
        if (kresli && obrazek.Klic && u.Barva == (KLIC & 0xFFFFFFU)) {
            if (zacato) throw BehovaChyba("Průhledná barva smí být jen vespod", obrazek.Soubor);
            continue;
        }
        if (kresli && !zacato && !obrazek.Klic) {
            // What is not painted is black, as on the bitmap; nothing may show through.
            Ramec r;
            const bool kryje = u.Co == Ukon::Druh::Vypln && JeObdelnik(u.Cesta, r) &&
                               Dilky(r.X) <= 0 && Dilky(r.Y) <= 0 &&
                               Dilky(r.X + r.Sirka) >= Dilky(cely.Sirka) &&
                               Dilky(r.Y + r.Vyska) >= Dilky(cely.Vyska);
            if (!kryje) {
                z.Prikaz(PrikazTvaru::Obdelnik);
                z.Barva(0);
                z.Ramec(cely);
            }
        }
        zacato = zacato || kresli;
        switch (u.Co) {
            case Ukon::Druh::Vypln:
                ZapisVypln(z, u, glyfy, pismo);
                break;
            case Ukon::Druh::Tah:
                z.Prikaz(PrikazTvaru::Tah);
                z.Barva(u.Barva);
                z.Delka(u.Pero);
                z.Bajt(u.Konce);
                z.Bajt(u.Spoje);
                z.Delka(u.MezSpoje);
                z.Cislo(static_cast<std::uint32_t>(u.Carkovani.size()));
                for (const double d : u.Carkovani) z.Delka(d);
                z.Cesta(u.Cesta);
                break;
            case Ukon::Druh::Orez:
                z.Prikaz(PrikazTvaru::Orez);
                z.Ramec(u.Kam);
                break;
            case Ukon::Druh::BezOrezu:
                z.Prikaz(PrikazTvaru::BezOrezu);
                break;
        }
    }
    z.Prikaz(PrikazTvaru::Konec);
    const std::string prikazy = z.Vydej();

    std::string soubor(ZNACKA_TVARU);
    const auto pripis = [&](std::uint32_t x, int bajtu) {
        for (int i = 0; i < bajtu; ++i) soubor.push_back(static_cast<char>(x >> (8 * i)));
    };
    pripis(VERZE_TVARU, 1);
    pripis(obrazek.Klic ? 1 : 0, 1);
    pripis(static_cast<std::uint32_t>(obrazek.Sirka), 2);
    pripis(static_cast<std::uint32_t>(obrazek.Vyska), 2);
    pripis(otisk, 4);
    pripis(static_cast<std::uint32_t>(prikazy.size()), 4);
    return soubor + Sbal(prikazy);
}

}  // namespace rysovna::obrazky
