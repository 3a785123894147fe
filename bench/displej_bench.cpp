// What the display costs at three sizes: redraw of a construction with its painting, the slide of
// the panel. Each with the counter ku_dnu: how many times longer it takes than the same fills,
// strokes and copies on bitmaps that lie ready, without lists and label search.

#include <benchmark/benchmark.h>
#include <cairo.h>
#include <cmath>
#include <vector>

#include "Mereni.h"
#include "base/Rastr.h"
#include "engine/Miry.h"
#include "engine/Prekresleni.h"
#include "engine/Tabulky.h"
#include "hrac/Relace.h"
#include "platform/Bitmapa.h"
#include "platform/Malir.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "podpora/Konstrukce.h"
#include "podpora/ZaznamPlane.h"

namespace rysovna {
namespace {

using namespace testy;

constexpr int UTVARU = 100;
constexpr Bod ROZMERY[] = {{640, 480}, {1920, 1080}, {3840, 2160}};

/// A board with its panel out, and a window's pixels.
struct Stanice {
    explicit Stanice(Bod rozmer)
        : Okno(rozmer.X, rozmer.Y, 0), Kam(Umisteni::Vejdi(rozmer.X, rozmer.Y)) {
        Hra.Start();
        Hra.SpustUlohu(1);
        Namaluj();
    }
    void Namaluj() {
        Malir_.Namaluj({Okno.Body.data(), Okno.Sirka, Okno.Vyska, Okno.Sirka}, Hra.Host().Okna(),
                       Hra.Host().TickCount());
    }
    /// Where an object stands in the window.
    Obdelnik Misto(std::string_view jmeno) {
        const Ovladac& o = Hra.Prvek(jmeno);
        const Bod roh = Hra.Roh(o);
        Obdelnik r = Zvetsi({roh.X, roh.Y, o.Width, o.Height}, Kam.S);
        r.Left += Kam.X;
        r.Top += Kam.Y;
        return r;
    }

    hrac::Relace Hra;
    Bitmapa Okno;
    Umisteni Kam;
    Malir Malir_;
};

/// Lines and circles of a recorded drawing on a bitmap, by the means that draw them at this scale.
void Tahy(const ZaznamPlane& zaznam, Bitmapa& b, double s) {
    const Vyhled cil = b.Pohled();
    if (s == 1) {
        const auto put = [&](const Obdelnik& o) { cil.Vypln(o, DoPixelu(CERNA)); };
        for (const auto& c : zaznam.carky)
            RastrUsecka(static_cast<double>(c.x1), static_cast<double>(c.y1),
                        static_cast<double>(c.x2), static_cast<double>(c.y2), c.pero, cil.Meze(),
                        put);
        for (const auto& k : zaznam.kruhy)
            RastrKruznice(static_cast<double>(k.x), static_cast<double>(k.y),
                          static_cast<double>(k.r), 1, cil.Meze(), put);
        return;
    }
    cairo_surface_t* plocha = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(b.Body.data()), CAIRO_FORMAT_RGB24, b.Sirka, b.Vyska,
        b.Sirka * static_cast<int>(sizeof(Pixel)));
    cairo_t* cairo = cairo_create(plocha);
    const auto misto = [s](float x) { return (static_cast<double>(x) + 0.5) * s; };
    for (const auto& c : zaznam.carky) {
        cairo_set_line_width(cairo, std::round(c.pero * s));
        cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
        cairo_move_to(cairo, misto(c.x1), misto(c.y1));
        cairo_line_to(cairo, misto(c.x2), misto(c.y2));
        cairo_stroke(cairo);
    }
    cairo_set_line_width(cairo, std::round(s));
    for (const auto& k : zaznam.kruhy) {
        cairo_new_path(cairo);
        cairo_arc(cairo, misto(k.x), misto(k.y), static_cast<double>(k.r) * s, 0, 2 * PI);
        cairo_stroke(cairo);
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(plocha);
}

void Napisy(const ZaznamPlane& zaznam, Bitmapa& b, const Plane& jako, double s, bool svatozar) {
    const auto kazdy = [&](auto co) {
        for (const auto& n : zaznam.napisy)
            co(static_cast<double>(n.x) * s, static_cast<double>(n.y) * s, n.text);
    };
    if (svatozar && s != 1) {
        kazdy([&](double x, double y, const std::string& text) {
            KresliSvatozar(b.Pohled(), x, y, s, jako.Font, text, DoPixelu(BILA),
                           static_cast<int>(std::lround(1.4 * s)));
        });
    }
    kazdy([&](double x, double y, const std::string& text) {
        KresliText(b.Pohled(), b.Pohled().Meze(), x, y, s, jako.Font, text, DoPixelu(CERNA),
                   s == 1 ? Hladkost::Logicka : Hladkost::Seda);
    });
}

/// PrekresliVse of 100 objects on a board's planes, and the painting of the window.
void PrekresleniDispleje(benchmark::State& stav) {
    Stanice st(ROZMERY[stav.range(0)]);
    st.Hra.Stiskni("Image1");
    st.Namaluj();
    const double s = st.Kam.S;
    Surface& pic = st.Hra.Prvek<PictureBox>("Pic").Plocha();
    Surface& hiden = st.Hra.Prvek<PictureBox>("HidenPic").Plocha();
    Tabulky t;
    NakresliNahodne(t, pic, UTVARU, 1);
    ZaznamPlane zaznam(pic.Width(), pic.Height());
    PrekresliVse(t, zaznam, pic);

    const auto vse = [&] {
        PrekresliVse(t, hiden, pic);
        st.Namaluj();
    };
    Bitmapa plocha(Zvetsi(pic.Width(), s), Zvetsi(pic.Height(), s), 0);
    const Obdelnik kam = st.Misto("Pic");
    Bitmapa okno = st.Okno;
    const auto dno = [&] {
        plocha.Pohled().Vypln(plocha.Pohled().Meze(), DoPixelu(BILA));
        Tahy(zaznam, plocha, s);
        Napisy(zaznam, plocha, hiden, s, hiden.Svatozar);
        Prenes(okno.Pohled(), kam, okno.Pohled().Meze(), plocha, 0, 0, Prenos::Kopie);
    };
    const double pomer = PomerCasu(vse, dno);
    for (auto _ : stav) vse();
    stav.counters["ku_dnu"] = pomer;
}
BENCHMARK(PrekresleniDispleje)
    ->DenseRange(0, 2)
    ->ArgName("640_1920_3840")
    ->Unit(benchmark::kMillisecond);

/// The panel in and out: 68 frames put together and painted into the window. The floor copies the
/// rows of two ready pictures into the window, frame by frame.
void JizdaPanelu(benchmark::State& stav) {
    Stanice st(ROZMERY[stav.range(0)]);
    const Obdelnik kam = st.Misto("VPImage");
    st.Hra.Host().PriPrekresleni = [&] { st.Namaluj(); };
    bool venku = true;
    const auto jizda = [&] {
        st.Hra.Stiskni(venku ? "Image1" : "MalaSipka");
        venku = !venku;
    };
    const Bitmapa spodek(kam.Width, kam.Height, 1), panel(kam.Width, kam.Height, 2);
    Bitmapa okno = st.Okno;
    const auto dno = [&] {
        for (int k = 0; k < 34; ++k) {
            const int o = std::min(Zvetsi(9 * k, st.Kam.S), kam.Width);
            const Obdelnik vlevo{kam.Left, kam.Top, o, kam.Height};
            const Obdelnik vpravo{kam.Left + o, kam.Top, kam.Width - o, kam.Height};
            Prenes(okno.Pohled(), vlevo, okno.Pohled().Meze(), spodek, 0, 0, Prenos::Kopie);
            Prenes(okno.Pohled(), vpravo, okno.Pohled().Meze(), panel, 0, 0, Prenos::Kopie);
        }
        benchmark::DoNotOptimize(okno.Body.data());
    };
    const double pomer = PomerCasu([&] { jizda(), jizda(); }, [&] { dno(), dno(); });
    for (auto _ : stav) jizda(), jizda();
    stav.counters["ku_dnu"] = pomer;
}
BENCHMARK(JizdaPanelu)->DenseRange(0, 2)->ArgName("640_1920_3840")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace rysovna
