#include <cairo.h>
#include <cmath>
#include <numbers>
#include <span>

#include "base/Obdelniky.h"
#include "platform/DisplayList.h"
#include "platform/Pisma.h"
#include "platform/Vrstvy.h"

namespace rysovna {

namespace {

/// Paints items of a display list over a bitmap at a scale. Strokes go through Cairo, everything
/// else is done on the pixels.
class Prehravac {
public:
    Prehravac(Bitmapa& cil, double s) : cil_(cil), s_(s) {}
    ~Prehravac() {
        if (cairo_ == nullptr) return;
        cairo_destroy(cairo_);
        cairo_surface_destroy(plocha_);
    }
    Prehravac(const Prehravac&) = delete;
    Prehravac& operator=(const Prehravac&) = delete;

    void operator()(const PolozkaUsecky& u) {
        const double sirka = SirkaPera(u.Pero, s_);
        Tah(u.Barva, sirka);
        const bool svisla = u.X1 == u.X2;
        const bool vodorovna = u.Y1 == u.Y2;
        // A line of no length is a dot, which Cairo draws with round ends alone.
        cairo_set_line_cap(cairo_,
                           svisla != vodorovna ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_ROUND);
        const double x1 = svisla ? NaMrizku(u.X1, sirka) : Stred(u.X1);
        const double x2 = svisla ? x1 : Stred(u.X2);
        const double y1 = vodorovna ? NaMrizku(u.Y1, sirka) : Stred(u.Y1);
        const double y2 = vodorovna ? y1 : Stred(u.Y2);
        cairo_move_to(cairo_, x1, y1);
        cairo_line_to(cairo_, x2, y2);
        cairo_stroke(cairo_);
    }

    void operator()(const PolozkaKruznice& k) {
        if (k.R < 0) return;
        Tah(k.Barva, SirkaPera(k.Pero, s_));
        cairo_new_path(cairo_);
        cairo_arc(cairo_, Stred(k.X), Stred(k.Y), k.Polomer() * s_, 0, 2 * std::numbers::pi);
        if (k.JeKotouc()) {
            cairo_fill(cairo_);
        } else {
            cairo_stroke(cairo_);
        }
    }

    void operator()(const PolozkaTextu& t) {
        Dokonci();
        if (MaSvatozar(t)) return;  // printed by Popisky
        Vytiskni(t);
    }

    /// Prints the labels among the items: first the grounds of all, so that none takes a bit of
    /// another's letters.
    void Popisky(std::span<const Polozka> polozky, Pixel podklad) {
        Dokonci();
        const int polomer = std::max(1, static_cast<int>(std::lround(SVATOZAR * s_)));
        for (const bool pismena : {false, true}) {
            for (const Polozka& p : polozky) {
                const auto* t = std::get_if<PolozkaTextu>(&p);
                if (t == nullptr || !MaSvatozar(*t)) continue;
                if (pismena) {
                    Vytiskni(*t);
                } else {
                    KresliSvatozar(cil_.Pohled(), static_cast<double>(t->X) * s_,
                                   static_cast<double>(t->Y) * s_, s_, t->Font, t->Text, podklad,
                                   polomer);
                }
            }
        }
    }

    /// Whether what lies over the labels may leave them above it.
    static bool JePodPopisky(const Polozka& p) {
        return std::holds_alternative<PolozkaUsecky>(p) ||
               std::holds_alternative<PolozkaKruznice>(p) ||
               std::holds_alternative<PolozkaTextu>(p);
    }

    void operator()(const PolozkaVyplne& v) {
        Dokonci();
        cil_.Pohled().Vypln(Zvetsi(v.Kam, s_), v.Barva);
    }

    void operator()(const PolozkaObrazku& o) {
        Dokonci();
        PolozObrazek(cil_.Pohled(), Zvetsi({o.X, o.Y, o.Co.Width(), o.Co.Height()}, s_),
                     cil_.Pohled().Meze(), o.Co, s_, false);
    }

    void operator()(const PolozkaKopie& k) {
        Dokonci();
        Bitmapa docasna;
        Prenes(cil_.Pohled(), Zvetsi(k.Kam, s_), cil_.Pohled().Meze(),
               Vykresli(k.Zdroj, s_, docasna), Zvetsi(k.ZX, s_), Zvetsi(k.ZY, s_), Podily(k.Jak),
               k.Klic);
    }

    void operator()(const PolozkaPixelu& p) {
        Dokonci();
        const Obdelnik kam = Zvetsi(p.Kam, s_);
        if (JePrazdny(kam)) return;
        // One bit, or the key: no new colours may come in at the edges.
        const bool ostre = p.Jak != Prenos::Kopie;
        const Bitmapa vetsi =
            ostre ? Zopakuj(*p.Co, kam) : Preskaluj(p.Co->KeCteni(), kam.Width, kam.Height, true);
        Prenes(cil_.Pohled(), kam, cil_.Pohled().Meze(), vetsi, 0, 0, Podily(p.Jak), p.Klic);
    }

    void operator()(const PolozkaVrstev& v) {
        Dokonci();
        Bitmapa docasnaDolni, docasnaHorni;
        SlozVrstvy(cil_.Pohled(), cil_.Pohled().Meze(), cil_.Pohled().Meze(),
                   Vykresli(v.Dolni, s_, docasnaDolni), Vykresli(v.Horni, s_, docasnaHorni),
                   Zvetsi(v.Vpravo, s_));
    }

    void operator()(const PolozkaObraceni& o) {
        Dokonci();
        cil_.Pohled().Obrat(Zvetsi(o.Kde, s_));
    }

    /// Whether Cairo painted anything.
    [[nodiscard]] bool Tahl() const { return cairo_ != nullptr; }

private:
    [[nodiscard]] bool MaSvatozar(const PolozkaTextu& t) const { return t.Svatozar && s_ > 1; }

    void Vytiskni(const PolozkaTextu& t) {
        KresliText(cil_.Pohled(), cil_.Pohled().Meze(), static_cast<double>(t.X) * s_,
                   static_cast<double>(t.Y) * s_, s_, t.Font, t.Text, t.Barva, Hladkost::Seda);
    }

    static Bitmapa Zopakuj(const Bitmapa& zdroj, const Obdelnik& kam) {
        Bitmapa cil(kam.Width, kam.Height, 0);
        for (int y = 0; y < cil.Vyska; ++y) {
            const Pixel* z = zdroj.Radka(y * zdroj.Vyska / cil.Vyska);
            for (int x = 0; x < cil.Sirka; ++x)
                cil.Pohled().Radka(y)[x] = z[x * zdroj.Sirka / cil.Sirka];
        }
        return cil;
    }

    /// Masks have greys at their edges once they are enlarged.
    [[nodiscard]] Prenos Podily(Prenos jak) const {
        if (s_ == 1) return jak;
        return jak == Prenos::Soucin   ? Prenos::SoucinPodilu
               : jak == Prenos::Soucet ? Prenos::SoucetPodilu
                                       : jak;
    }

    /// The middle of a design pixel.
    [[nodiscard]] double Stred(float x) const { return (static_cast<double>(x) + 0.5) * s_; }

    /// The middle of a stroke of this width whose edges lie between pixels.
    [[nodiscard]] double NaMrizku(float x, double sirka) const {
        return std::round(Stred(x) - sirka / 2) + sirka / 2;
    }

    void Tah(Pixel barva, double sirka) {
        if (cairo_ == nullptr) {
            plocha_ = cairo_image_surface_create_for_data(
                reinterpret_cast<unsigned char*>(cil_.Body.data()), CAIRO_FORMAT_RGB24, cil_.Sirka,
                cil_.Vyska, cil_.Sirka * static_cast<int>(sizeof(Pixel)));
            cairo_ = cairo_create(plocha_);
        }
        if (!maluje_) cairo_surface_mark_dirty(plocha_);
        maluje_ = true;
        const auto kanal = [barva](unsigned posun) { return ((barva >> posun) & 0xFFu) / 255.0; };
        cairo_set_source_rgb(cairo_, kanal(16), kanal(8), kanal(0));
        cairo_set_line_width(cairo_, sirka);
    }

    void Dokonci() {
        if (maluje_) cairo_surface_flush(plocha_);
        maluje_ = false;
    }

    Bitmapa& cil_;
    double s_;
    cairo_surface_t* plocha_ = nullptr;
    cairo_t* cairo_ = nullptr;
    bool maluje_ = false;
};

Bitmapa Zaklad(const DisplayList& seznam, double s) {
    Bitmapa b(Zvetsi(seznam.Sirka, s), Zvetsi(seznam.Vyska, s), seznam.Pozadi);
    if (!seznam.Podklad.Prazdny()) Prehravac(b, s)(PolozkaObrazku{seznam.Podklad, 0, 0});
    return b;
}

void Prehraj(const DisplayList& seznam, std::size_t od, std::size_t po, double s, Bitmapa& b) {
    if (b.Prazdna()) return;
    Prehravac prehravac(b, s);
    // The labels since the last item that is more than lines and text go over all that came since.
    std::size_t popisky = od;
    while (popisky > 0 && Prehravac::JePodPopisky(seznam.Polozky[popisky - 1])) --popisky;
    const auto vytiskni = [&](std::size_t az) {
        const std::span<const Polozka> vse(seznam.Polozky);
        prehravac.Popisky(vse.subspan(popisky, az - popisky), seznam.Pozadi);
        popisky = az + 1;
    };
    for (std::size_t i = od; i < po; ++i) {
        if (!Prehravac::JePodPopisky(seznam.Polozky[i])) vytiskni(i);
        std::visit(prehravac, seznam.Polozky[i]);
    }
    if (popisky < po) vytiskni(po);
    // What Cairo leaves in the unused byte is not ours to rely on.
    if (!prehravac.Tahl()) return;
    for (Pixel& p : b.Body) p |= 0xFF000000u;
}

}  // namespace

const Bitmapa& Vykresli(const Okamzik& okamzik, double s, Bitmapa& docasna) {
    DisplayList& seznam = *okamzik.Kde;
    const bool platne = seznam.Meritko == s;
    if (platne && seznam.Vykresleno > okamzik.Pocet) {
        docasna = Zaklad(seznam, s);
        Prehraj(seznam, 0, okamzik.Pocet, s, docasna);
        return docasna;
    }
    if (!platne) {
        seznam.Dvojce = Zaklad(seznam, s);
        seznam.Meritko = s;
        seznam.Vykresleno = 0;
    }
    if (seznam.Vykresleno < okamzik.Pocet)
        Prehraj(seznam, seznam.Vykresleno, okamzik.Pocet, s, seznam.Dvojce);
    seznam.Vykresleno = okamzik.Pocet;
    return seznam.Dvojce;
}

}  // namespace rysovna
