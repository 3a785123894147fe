#include "platform/Tvary.h"

#include <algorithm>
#include <array>
#include <cairo.h>
#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/Pisma.h"
#include "platform/bmp/Sbaleni.h"

namespace rysovna {

namespace {

/// No picture comes near these; what does is a damaged file.
constexpr std::uint32_t NEJVETSI_ROZMER = 16384, NEJDELSI_PRIKAZY = 1U << 22;
constexpr std::int32_t NEJDAL = 1 << 21;

/// Reads the numbers of a list, and never beyond its end.
class Cteni {
public:
    Cteni(std::string_view data, const std::string& kde) : data_(data), kde_(kde) {}

    [[noreturn]] void Vadne() const { throw BehovaChyba("Vadný obrázek: poškozené tvary", kde_); }

    std::uint8_t Bajt() {
        if (misto_ >= data_.size()) Vadne();
        return static_cast<std::uint8_t>(data_[misto_++]);
    }
    /// A byte below the given one.
    unsigned Volba(unsigned mez) {
        const unsigned b = Bajt();
        if (b >= mez) Vadne();
        return b;
    }
    std::uint32_t Cislo() {
        std::uint32_t x = 0;
        for (unsigned posun = 0; posun < 28; posun += 7) {
            const unsigned b = Bajt();
            x |= (b & 0x7FU) << posun;
            if (b < 0x80) return x;
        }
        Vadne();
    }
    std::int32_t SeZnamenkem() {
        const std::uint32_t x = Cislo();
        const auto velikost = static_cast<std::int32_t>(x >> 1);
        return (x & 1U) != 0 ? -velikost : velikost;
    }
    double Delka() { return static_cast<double>(Cislo()) / DILKU_TVARU; }
    /// A place, from the one before.
    double Od(std::int32_t& misto) {
        misto += SeZnamenkem();
        if (misto < -NEJDAL || misto > NEJDAL) Vadne();
        return static_cast<double>(misto) / DILKU_TVARU;
    }
    Pixel Barva() {
        Pixel p = 0xFFU;
        for (int i = 0; i < 3; ++i) p = p << 8 | Bajt();
        return p;
    }
    /// A count of things of at least so many bytes each.
    std::size_t Pocet(std::size_t bajtu) {
        const std::size_t n = Cislo();
        if (n * bajtu > data_.size() - misto_) Vadne();
        return n;
    }

private:
    std::string_view data_;
    const std::string& kde_;
    std::size_t misto_ = 0;
};

/// A rectangle, design pixels.
struct Ramec {
    double X1, Y1, X2, Y2;
};
struct BodCesty {
    double X, Y;
};
/// A path: the steps, and the points that they take, one or (a curve) three.
struct Cesta {
    std::vector<KrokTvaru> Kroky;
    std::vector<BodCesty> Body;
};
struct Pero {
    double Sirka;
    cairo_line_cap_t Konce;
    cairo_line_join_t Spoje;
    double MezSpoje;
    std::vector<double> Carkovani;
};
struct Radka {
    int Rez;
    double Velikost, X, Y;
    std::vector<GlyfNaMiste> Glyfy;  ///< X: how much farther than the one before is wide
};

Ramec CtiRamec(Cteni& c) {
    std::int32_t x = 0;
    std::int32_t y = 0;
    Ramec r{};
    r.X1 = c.Od(x);
    r.Y1 = c.Od(y);
    r.X2 = r.X1 + c.Delka();
    r.Y2 = r.Y1 + c.Delka();
    return r;
}

void CtiCestu(Cteni& c, Cesta& cesta) {
    cesta.Kroky.clear();
    cesta.Body.clear();
    std::int32_t x = 0;
    std::int32_t y = 0;
    BodCesty bod{0, 0};
    for (;;) {
        const auto krok = static_cast<KrokTvaru>(c.Volba(7));
        if (krok == KrokTvaru::Konec) return;
        // Nothing goes on from nowhere.
        if (cesta.Kroky.empty() && krok != KrokTvaru::Bod) c.Vadne();
        if (krok == KrokTvaru::Vodorovne) {
            bod.X = c.Od(x);
        } else if (krok == KrokTvaru::Svisle) {
            bod.Y = c.Od(y);
        }
        const int bodu = krok == KrokTvaru::Zavri                              ? 0
                         : krok == KrokTvaru::Krivka                           ? 3
                         : krok == KrokTvaru::Bod || krok == KrokTvaru::Usecka ? 1
                                                                               : 0;
        for (int i = 0; i < bodu; ++i) {
            bod.X = c.Od(x);
            bod.Y = c.Od(y);
            cesta.Body.push_back(bod);
        }
        const bool rovne = krok == KrokTvaru::Vodorovne || krok == KrokTvaru::Svisle;
        if (rovne) cesta.Body.push_back(bod);
        cesta.Kroky.push_back(rovne ? KrokTvaru::Usecka : krok);
    }
}

Pero CtiPero(Cteni& c) {
    Pero p{};
    p.Sirka = c.Delka();
    p.Konce = static_cast<cairo_line_cap_t>(c.Volba(3));
    p.Spoje = static_cast<cairo_line_join_t>(c.Volba(3));
    p.MezSpoje = c.Delka();
    double delka = 0;
    for (std::size_t i = c.Pocet(1); i > 0; --i) {
        p.Carkovani.push_back(c.Delka());
        delka += p.Carkovani.back();
    }
    // A pen that never gets on would draw for ever.
    if (!p.Carkovani.empty() && delka < 0.1) c.Vadne();
    return p;
}

Radka CtiRadku(Cteni& c) {
    Radka r{};
    r.Rez = static_cast<int>(c.Volba(POCET_REZU));
    r.Velikost = c.Delka();
    if (r.Velikost <= 0 || r.Velikost > NEJVETSI_ROZMER) c.Vadne();
    std::int32_t x = 0;
    std::int32_t y = 0;
    r.X = c.Od(x);
    r.Y = c.Od(y);
    r.Glyfy.resize(c.Pocet(1));
    for (GlyfNaMiste& g : r.Glyfy) {
        g.Cislo = c.Cislo();
        if (g.Cislo > 0xFFFF) c.Vadne();
    }
    for (std::size_t i = 1; i < r.Glyfy.size(); ++i) {
        std::int32_t navic = 0;
        r.Glyfy[i].X = c.Od(navic);
    }
    return r;
}

/// Goes through the commands; kam gets each, read.
template <class Kam>
void Projdi(std::string_view prikazy, const std::string& kde, Kam&& kam) {
    Cteni c(prikazy, kde);
    Cesta cesta;
    for (;;) {
        switch (static_cast<PrikazTvaru>(c.Bajt())) {
            case PrikazTvaru::Konec:
                return;
            case PrikazTvaru::Obdelnik: {
                const Pixel barva = c.Barva();
                kam.Obdelnik(barva, CtiRamec(c));
                break;
            }
            case PrikazTvaru::Vypln: {
                const Pixel barva = c.Barva();
                const bool sudaLicha = c.Volba(2) == 1;
                CtiCestu(c, cesta);
                kam.Vypln(barva, sudaLicha, cesta);
                break;
            }
            case PrikazTvaru::Tah: {
                const Pixel barva = c.Barva();
                const Pero pero = CtiPero(c);
                CtiCestu(c, cesta);
                kam.Tah(barva, pero, cesta);
                break;
            }
            case PrikazTvaru::Text: {
                const Pixel barva = c.Barva();
                kam.Text(barva, CtiRadku(c));
                break;
            }
            case PrikazTvaru::Orez:
                kam.Orez(CtiRamec(c));
                break;
            case PrikazTvaru::BezOrezu:
                kam.BezOrezu();
                break;
            default:
                c.Vadne();
        }
    }
}

/// Only reads.
struct Overovani {
    void Obdelnik(Pixel /*b*/, const Ramec& /*r*/) const {}
    void Vypln(Pixel /*b*/, bool /*s*/, const Cesta& /*c*/) const {}
    void Tah(Pixel /*b*/, const Pero& /*p*/, const Cesta& /*c*/) const {}
    void Text(Pixel /*b*/, const Radka& /*r*/) const {}
    void Orez(const Ramec& /*r*/) const {}
    void BezOrezu() const {}
};

/// Draws the commands on a target. Paths go through Cairo, rectangles and text are done on the
/// pixels. Whole rectangles and base lines are brought to the rows of pixels, so that they are as
/// crisp at any scale as at 1:1.
class Kresleni {
public:
    Kresleni(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Tvary& tvary)
        : cil_(cil),
          kam_(kam),
          cely_(orez),
          orez_(orez),
          sx_(static_cast<double>(kam.Width) / tvary.Sirka),
          sy_(static_cast<double>(kam.Height) / tvary.Vyska) {}
    ~Kresleni() {
        if (cairo_ == nullptr) return;
        cairo_destroy(cairo_);
        cairo_surface_destroy(plocha_);
    }
    Kresleni(const Kresleni&) = delete;
    Kresleni& operator=(const Kresleni&) = delete;

    void Obdelnik(Pixel barva, const Ramec& r) {
        const auto celych = [](double x) { return x == std::floor(x); };
        if (celych(r.X1) && celych(r.Y1) && celych(r.X2) && celych(r.Y2)) {
            Dokonci();
            cil_.Vypln(Prunik(NaBody(r), orez_), barva);
        } else if (Zasahuje(r, 0)) {
            Priprav(barva);
            cairo_rectangle(cairo_, X(r.X1), Y(r.Y1), (r.X2 - r.X1) * sx_, (r.Y2 - r.Y1) * sy_);
            cairo_fill(cairo_);
        }
    }

    void Vypln(Pixel barva, bool sudaLicha, const Cesta& cesta) {
        if (!Zasahuje(Obal(cesta), 0)) return;
        Priprav(barva);
        Poloz(cesta);
        cairo_set_fill_rule(cairo_, sudaLicha ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
        cairo_fill(cairo_);
    }

    void Tah(Pixel barva, const Pero& pero, const Cesta& cesta) {
        if (!Zasahuje(Obal(cesta), pero.Sirka * std::max(1.0, pero.MezSpoje))) return;
        Priprav(barva);
        Poloz(cesta);
        cairo_save(cairo_);
        cairo_scale(cairo_, sx_, sy_);
        cairo_set_line_width(cairo_, pero.Sirka);
        cairo_set_line_cap(cairo_, pero.Konce);
        cairo_set_line_join(cairo_, pero.Spoje);
        cairo_set_miter_limit(cairo_, pero.MezSpoje);
        cairo_set_dash(cairo_, pero.Carkovani.data(), static_cast<int>(pero.Carkovani.size()), 0);
        cairo_stroke(cairo_);
        cairo_restore(cairo_);
    }

    void Text(Pixel barva, Radka r) {
        if (r.Glyfy.empty()) return;
        const double y = r.Y;
        // A glyph reaches less than its size from the base line.
        if (Y(y + r.Velikost) < orez_.Top || Y(y - 2 * r.Velikost) > orez_.Top + orez_.Height)
            return;
        Dokonci();
        double kde = r.X;
        for (GlyfNaMiste& g : r.Glyfy) {
            kde += g.X;
            g.X = X(kde);
            kde += PosuvGlyfu(r.Rez, g.Cislo) * r.Velikost;
        }
        KresliGlyfy(cil_, orez_, r.Rez, r.Velikost * sy_, r.Glyfy, Y(y), barva);
    }

    void Orez(const Ramec& r) {
        Dokonci();
        orez_ = Prunik(cely_, NaBody(r));
        Orizni();
    }
    void BezOrezu() {
        Dokonci();
        orez_ = cely_;
        Orizni();
    }

    void Dokonci() {
        if (maluje_) cairo_surface_flush(plocha_);
        maluje_ = false;
    }

private:
    [[nodiscard]] double X(double x) const { return kam_.Left + x * sx_; }
    [[nodiscard]] double Y(double y) const { return kam_.Top + y * sy_; }

    [[nodiscard]] rysovna::Obdelnik NaBody(const Ramec& r) const {
        const auto zaokrouhli = [](double x) { return static_cast<int>(std::floor(x + 0.5)); };
        const int x = zaokrouhli(X(r.X1));
        const int y = zaokrouhli(Y(r.Y1));
        // What is there at 1:1 is there at any size.
        const int sirka = std::max(zaokrouhli(X(r.X2)) - x, r.X2 > r.X1 ? 1 : 0);
        const int vyska = std::max(zaokrouhli(Y(r.Y2)) - y, r.Y2 > r.Y1 ? 1 : 0);
        return {x, y, sirka, vyska};
    }

    static Ramec Obal(const Cesta& cesta) {
        Ramec r{NEJDAL, NEJDAL, -NEJDAL, -NEJDAL};
        for (const BodCesty& b : cesta.Body) {
            r = {std::min(r.X1, b.X), std::min(r.Y1, b.Y), std::max(r.X2, b.X),
                 std::max(r.Y2, b.Y)};
        }
        return r;
    }

    /// Whether something of it can be seen; navic: how far it reaches beyond, design pixels.
    [[nodiscard]] bool Zasahuje(const Ramec& r, double navic) const {
        return X(r.X2 + navic) + 1 >= orez_.Left &&
               X(r.X1 - navic) - 1 <= orez_.Left + orez_.Width &&
               Y(r.Y2 + navic) + 1 >= orez_.Top && Y(r.Y1 - navic) - 1 <= orez_.Top + orez_.Height;
    }

    void Priprav(Pixel barva) {
        if (cairo_ == nullptr) {
            plocha_ = cairo_image_surface_create_for_data(
                reinterpret_cast<unsigned char*>(cil_.Body), CAIRO_FORMAT_ARGB32, cil_.Sirka,
                cil_.Vyska, cil_.Krok * static_cast<int>(sizeof(Pixel)));
            cairo_ = cairo_create(plocha_);
            Orizni();
        }
        if (!maluje_) cairo_surface_mark_dirty(plocha_);
        maluje_ = true;
        const auto kanal = [barva](unsigned posun) { return ((barva >> posun) & 0xFFU) / 255.0; };
        cairo_set_source_rgb(cairo_, kanal(16), kanal(8), kanal(0));
    }

    void Orizni() {
        if (cairo_ == nullptr) return;
        cairo_reset_clip(cairo_);
        cairo_rectangle(cairo_, orez_.Left, orez_.Top, orez_.Width, orez_.Height);
        cairo_clip(cairo_);
    }

    void Poloz(const Cesta& cesta) {
        cairo_new_path(cairo_);
        const BodCesty* b = cesta.Body.data();
        for (const KrokTvaru krok : cesta.Kroky) {
            switch (krok) {
                case KrokTvaru::Bod:
                    cairo_move_to(cairo_, X(b->X), Y(b->Y));
                    ++b;
                    break;
                case KrokTvaru::Krivka:
                    cairo_curve_to(cairo_, X(b[0].X), Y(b[0].Y), X(b[1].X), Y(b[1].Y), X(b[2].X),
                                   Y(b[2].Y));
                    b += 3;
                    break;
                case KrokTvaru::Zavri:
                    cairo_close_path(cairo_);
                    break;
                default:
                    cairo_line_to(cairo_, X(b->X), Y(b->Y));
                    ++b;
                    break;
            }
        }
    }

    Vyhled cil_;
    rysovna::Obdelnik kam_, cely_, orez_;
    double sx_, sy_;
    cairo_surface_t* plocha_ = nullptr;
    cairo_t* cairo_ = nullptr;
    bool maluje_ = false;
};

/// From colours that bear their share of the pixel already to those of a display bitmap.
void NaVlastniBarvy(const Vyhled& cil, const Obdelnik& kde) {
    for (int y = kde.Top; y < kde.Top + kde.Height; ++y) {
        Pixel* c = cil.Radka(y) + kde.Left;
        for (const Pixel* konec = c + kde.Width; c != konec; ++c) {
            const unsigned kryti = *c >> 24;
            if (kryti == 255) continue;
            if (kryti == 0) {
                *c = KLIC;
                continue;
            }
            Pixel p = static_cast<Pixel>(kryti) << 24;
            for (const unsigned posun : {0U, 8U, 16U}) {
                const unsigned k = (*c >> posun) & 0xFFU;
                p |= std::min((k * 255U + kryti / 2) / kryti, 255U) << posun;
            }
            *c = p;
        }
    }
}

}  // namespace

Tvary CtiTvary(std::string_view data, const std::string& kde) {
    const auto cislo = [&](std::size_t misto, std::size_t bajtu) {
        std::uint32_t x = 0;
        while (bajtu-- > 0) x = x << 8 | static_cast<unsigned char>(data[misto + bajtu]);
        return x;
    };
    const auto vadne = [&] { return BehovaChyba("Vadný obrázek: poškozené tvary", kde); };
    if (data.size() < VELIKOST_HLAVY_TVARU || data.substr(0, 4) != ZNACKA_TVARU ||
        cislo(4, 1) != VERZE_TVARU || cislo(5, 1) > 1)
        throw vadne();
    Tvary t;
    t.MaKlic = cislo(5, 1) == 1;
    t.Sirka = static_cast<int>(cislo(6, 2));
    t.Vyska = static_cast<int>(cislo(8, 2));
    t.Otisk = cislo(10, 4);
    const std::uint32_t delka = cislo(14, 4);
    if (t.Sirka < 1 || t.Vyska < 1 || static_cast<std::uint32_t>(t.Sirka) > NEJVETSI_ROZMER ||
        static_cast<std::uint32_t>(t.Vyska) > NEJVETSI_ROZMER || delka > NEJDELSI_PRIKAZY)
        throw vadne();
    auto prikazy = Rozbal(data.substr(VELIKOST_HLAVY_TVARU), delka);
    if (!prikazy) throw vadne();
    t.Prikazy = std::move(*prikazy);
    Projdi(t.Prikazy, kde, Overovani());
    return t;
}

std::unique_ptr<Tvary> NactiTvary(const std::filesystem::path& soubor) {
    std::ifstream vstup(soubor, std::ios::binary);
    if (!vstup) return nullptr;
    const std::string data(std::istreambuf_iterator<char>(vstup), {});
    return std::make_unique<Tvary>(CtiTvary(data, soubor.string()));
}

void KresliTvary(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Tvary& tvary) {
    const Obdelnik kde = Prunik(Prunik(orez, kam), cil.Meze());
    if (JePrazdny(kde)) return;
    if (tvary.MaKlic) cil.Vypln(kde, 0);
    Kresleni kresleni(cil, kam, kde, tvary);
    Projdi(tvary.Prikazy, {}, kresleni);
    kresleni.Dokonci();
    if (tvary.MaKlic) NaVlastniBarvy(cil, kde);
}

}  // namespace rysovna
