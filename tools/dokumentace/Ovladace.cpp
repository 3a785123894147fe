#include "dokumentace/Ovladace.h"

#include <algorithm>
#include <array>
#include <cairo.h>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "base/Chyba.h"
#include "hrac/RukaNaDesce.h"
#include "platform/Malir.h"
#include "platform/Misto.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "zak/Sestroj.h"

namespace rysovna::dokumentace {
namespace {

using hrac::Relace;
using hrac::RukaNaDesce;

constexpr std::uint32_t SEMINKO = 7;
constexpr std::uint32_t SUNE_SE = 2000;  // ms, the panel at most
constexpr Bod SEZNAM{212, 250};          // design px, beside the tools

constexpr double MERITKO = 1.5;       // of the board in the picture
constexpr int OKRAJ = 140, NAD = 30;  // px, beside the board and above it, for the names
constexpr int SIRKA = 960 + 2 * OKRAJ, VYSKA = NAD + 720;
constexpr double MERITKO_PISMA = 1.3;
constexpr int ROZESTUP = 20;               // px, from name to name
constexpr int ODSTUP = 6, POD_TEXTEM = 7;  // px, from a name to its line; from its top
constexpr int KROK = 2;                    // design px, of the search for a place that is seen
const Pismo PISMO{.Tucne = true};

// What the program draws with, or shows for the length of a drag: it has no place of its own.
constexpr std::array<std::string_view, 4> BEZ_MISTA = {"HidenPic", "Line1", "Circle1", "Text"};

/// On which side of the board a name stands.
enum class Strana { Vlevo, Vpravo, Nahore };

/// A name and what it belongs to, pixels of the picture.
struct Nazev {
    std::string Text;
    bool Videt = true;
    Obdelnik Kde;
    Bod Cil;    ///< where its line ends: a place at which the control is seen
    Bod Odkud;  ///< where its line begins
    Bod Napis;  ///< top left corner of the name
};

Bod NaObrazku(Bod b) {
    return {OKRAJ + Zvetsi(b.X, MERITKO), NAD + Zvetsi(b.Y, MERITKO)};
}

bool Videt(const Ovladac& o) {
    return o.Visible && (o.Rodic == nullptr || Videt(*o.Rodic));
}

/// What is painted last at a place.
const Ovladac* Nejvyse(const Form& form, Bod b, const Ovladac* rodic = nullptr) {
    const auto& vsechny = form.Ovladace();
    for (auto i = vsechny.rbegin(); i != vsechny.rend(); ++i) {
        if ((*i)->Rodic == rodic && (*i)->Visible && MistoNaFormu(**i).Obsahuje(b.X, b.Y)) {
            return Nejvyse(form, b, *i);
        }
    }
    return rodic;
}

Strana NaKtereStrane(const Ovladac& o) {
    constexpr int HORNI_RADA = 80, LEVA_CAST = 280;  // design px
    const Obdelnik kde = MistoNaFormu(o);
    if (kde.Top + kde.Height <= HORNI_RADA) return Strana::Nahore;
    return kde.Left + kde.Width / 2 < LEVA_CAST ? Strana::Vlevo : Strana::Vpravo;
}

/// Where a control is seen, design px: near the side of its name, in the middle of it.
Bod NajdiCil(const Form& form, const Ovladac& o, Strana strana) {
    const Obdelnik kde = MistoNaFormu(o);
    const Bod stred{kde.Left + kde.Width / 2, kde.Top + kde.Height / 2};
    const auto cena = [&](Bod b) {
        if (strana == Strana::Nahore) return b.Y + std::abs(b.X - stred.X);
        return (strana == Strana::Vlevo ? b.X : NAVRH_SIRKA - b.X) + std::abs(b.Y - stred.Y);
    };
    const int okraj = std::min({4, kde.Width / 2, kde.Height / 2});
    const int vpravo = std::min(kde.Left + kde.Width - okraj, NAVRH_SIRKA - 1);
    std::optional<Bod> cil;
    for (int y = kde.Top + okraj; y <= kde.Top + kde.Height - okraj; y += KROK) {
        for (int x = kde.Left + okraj; x <= vpravo; x += KROK) {
            if (cil && cena({x, y}) >= cena(*cil)) continue;
            if (!Videt(o) || Nejvyse(form, {x, y}) == &o) cil = {x, y};
        }
    }
    return cil.value_or(stred);
}

bool Krizi(Bod a, Bod b, Bod c, Bod d) {
    const auto vlevo = [](Bod p, Bod q, Bod r) {
        return (q.X - p.X) * (r.Y - p.Y) > (q.Y - p.Y) * (r.X - p.X);
    };
    return vlevo(a, b, c) != vlevo(a, b, d) && vlevo(c, d, a) != vlevo(c, d, b);
}

/// Each name as near its control as there is room, none over another, no lines crossed.
void Rozmisti(std::vector<Nazev>& nazvy, Strana strana) {
    const auto sirka = [](const Nazev& n) {
        return static_cast<int>(PresnaSirka(PISMO, n.Text) * MERITKO_PISMA);
    };
    if (strana == Strana::Nahore) {
        for (Nazev& n : nazvy) {
            n.Napis = {n.Cil.X - sirka(n) / 2, ODSTUP};
            n.Odkud = {n.Cil.X, NAD - ODSTUP};
        }
        return;
    }
    std::ranges::stable_sort(nazvy, {}, [](const Nazev& n) { return n.Cil.Y; });
    int volno = NAD;
    for (Nazev& n : nazvy) {
        n.Odkud = {strana == Strana::Vlevo ? OKRAJ - ODSTUP : SIRKA - OKRAJ + ODSTUP,
                   std::max(volno, n.Cil.Y)};
        volno = n.Odkud.Y + ROZESTUP;
    }
    int dole = VYSKA;
    for (auto n = nazvy.rbegin(); n != nazvy.rend(); ++n) {
        dole = n->Odkud.Y = std::min(dole - ROZESTUP, n->Odkud.Y);
    }
    // Two lines that cross are together longer than with their names changed: this ends.
    for (bool krizi = true; krizi;) {
        krizi = false;
        for (std::size_t i = 0; i < nazvy.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (!Krizi(nazvy[i].Odkud, nazvy[i].Cil, nazvy[j].Odkud, nazvy[j].Cil)) continue;
                std::swap(nazvy[i].Odkud, nazvy[j].Odkud);
                krizi = true;
            }
        }
    }
    for (Nazev& n : nazvy) {
        n.Napis = {strana == Strana::Vlevo ? n.Odkud.X - ODSTUP - sirka(n) : n.Odkud.X + ODSTUP,
                   n.Odkud.Y - POD_TEXTEM};
    }
}

/// The names that stand on one side. An array of labels has one name.
std::vector<Nazev> Nazvy(const Form& form, Strana strana) {
    std::vector<Nazev> nazvy;
    for (const Ovladac* o : form.Ovladace()) {
        if (std::ranges::find(BEZ_MISTA, o->Name) != BEZ_MISTA.end()) continue;
        if (NaKtereStrane(*o) != strana) continue;
        const bool pole = form.Najdi(o->Name, 1) != nullptr;
        const bool stitky = pole && o->Druh == Ovladac::Typ::Label;
        if (stitky && form.Najdi(o->Name, o->Index - 1) != nullptr) continue;
        Nazev n;
        n.Text = o->Name;
        n.Videt = Videt(*o);
        if (pole) n.Text += "(" + std::to_string(o->Index) + (stitky ? " …)" : ")");
        n.Kde = Zvetsi(MistoNaFormu(*o), MERITKO);
        n.Kde.Left += OKRAJ;
        n.Kde.Top += NAD;
        n.Cil = NaObrazku(NajdiCil(form, *o, strana));
        nazvy.push_back(n);
    }
    Rozmisti(nazvy, strana);
    return nazvy;
}

/// Strokes what is drawn, to be seen on any ground.
void Obtahni(cairo_t* cr) {
    for (const auto& [barva, sirka] : {std::pair{BILA, 3}, std::pair{paleta::ACCENT, 1}}) {
        const auto kanal = [b = barva](int posun) { return ((b >> posun) & 0xFF) / 255.0; };
        cairo_set_source_rgb(cr, kanal(0), kanal(8), kanal(16));
        cairo_set_line_width(cr, sirka);
        cairo_stroke_preserve(cr);
    }
    cairo_new_path(cr);
}

void NakresliNazev(Bitmapa& obraz, cairo_t* cr, const Nazev& n) {
    if (!n.Videt) {
        constexpr std::array<double, 2> CARKY = {4, 4};
        cairo_set_dash(cr, CARKY.data(), 2, 0);
        cairo_rectangle(cr, n.Kde.Left + 0.5, n.Kde.Top + 0.5, n.Kde.Width - 1, n.Kde.Height - 1);
        Obtahni(cr);
        cairo_set_dash(cr, nullptr, 0, 0);
    }
    cairo_move_to(cr, n.Odkud.X + 0.5, n.Odkud.Y + 0.5);
    cairo_line_to(cr, n.Cil.X + 0.5, n.Cil.Y + 0.5);
    Obtahni(cr);
    cairo_arc(cr, n.Cil.X + 0.5, n.Cil.Y + 0.5, 2.5, 0, 7);
    cairo_fill(cr);
    cairo_surface_flush(cairo_get_target(cr));
    KresliText(obraz.Pohled(), obraz.Pohled().Meze(), n.Napis.X, n.Napis.Y, MERITKO_PISMA, PISMO,
               n.Text, DoPixelu(n.Videt ? paleta::INKOUST : paleta::INKOUST2), Hladkost::Seda);
    cairo_surface_mark_dirty(cairo_get_target(cr));
}

void UlozObrazek(const Form& form, HeadlessHost& host, const std::string& soubor) {
    Bitmapa obraz(SIRKA, VYSKA, DoPixelu(paleta::KARTA));
    Malir().Namaluj(
        {obraz.Pohled().Radka(NAD) + OKRAJ, SIRKA - 2 * OKRAJ, VYSKA - NAD, obraz.Sirka},
        host.Okna(), host.TickCount());
    cairo_surface_t* png = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(obraz.Body.data()), CAIRO_FORMAT_RGB24, SIRKA, VYSKA,
        SIRKA * static_cast<int>(sizeof(Pixel)));
    cairo_t* cr = cairo_create(png);
    for (const Strana strana : {Strana::Vlevo, Strana::Vpravo, Strana::Nahore}) {
        for (const Nazev& n : Nazvy(form, strana)) NakresliNazev(obraz, cr, n);
    }
    cairo_destroy(cr);
    const cairo_status_t stav = cairo_surface_write_to_png(png, soubor.c_str());
    cairo_surface_destroy(png);
    if (stav != CAIRO_STATUS_SUCCESS) throw BehovaChyba("Nelze zapsat obrázek", soubor);
}

/// Takes the picture before the first drag, while a value is typed, with the panel out.
class RukaSFotem : public RukaNaDesce {
public:
    RukaSFotem(Relace& hra, std::string soubor) : RukaNaDesce(hra), soubor_(std::move(soubor)) {}

protected:
    void TahPoPlose(Bod odkud, Bod kam) override {
        if (!std::exchange(vyfoceno_, true)) Vyfot();
        RukaNaDesce::TahPoPlose(odkud, kam);
    }

private:
    void Vyfot() {
        Hra().Stiskni("MalaSipka");
        Hra().Cekej(SUNE_SE);
        Form& form = *Hra().Vpredu();
        // The list went when its line was taken; for the picture it is there again.
        Ovladac& seznam = *form.Najdi("Combo");
        seznam.Visible = true;
        seznam.Left = SEZNAM.X;
        seznam.Top = SEZNAM.Y;
        UlozObrazek(form, Hra().Host(), soubor_);
        seznam.Visible = false;
        ZasunPanel();
        Hra().Cekej(SUNE_SE);
    }

    std::string soubor_;
    bool vyfoceno_ = false;
};

}  // namespace

void NakresliOvladace(const std::string& soubor) {
    Relace hra(SEMINKO);
    hra.Start();
    hra.SpustUlohu(1);
    RukaSFotem ruka(hra, soubor);
    Sestroj(ruka, 1);
}

}  // namespace rysovna::dokumentace
