#include "platform/Pdf.h"

#include <algorithm>
#include <array>
#include <cairo-ft.h>
#include <cairo-pdf.h>
#include <cairo.h>
#include <cstdio>
#include <ft2build.h>
#include <numbers>
#include <span>
#include <variant>
#include <vector>
#include FT_FREETYPE_H

#include "base/Chyba.h"
#include "base/Text.h"
#include "platform/DisplayList.h"
#include "platform/Pisma.h"
#include "platform/SurfaceVnitrek.h"

namespace rysovna {

namespace {

constexpr double PLNY_UHEL = 2 * std::numbers::pi;
constexpr double BODU_NA_JEDNOTKU = 72.0 / 96;
/// On paper a line of one pixel would be too thick: parts of its width, design pixels.
constexpr double TENKE_PERO = 0.55;
/// Pixels of a picture to the design pixel, of what is no line and no letter.
constexpr double HUSTOTA = 3;

struct UvolniPlochu {
    void operator()(cairo_surface_t* p) const { cairo_surface_destroy(p); }
};
struct UvolniCairo {
    void operator()(cairo_t* c) const { cairo_destroy(c); }
};
struct UvolniPismo {
    void operator()(cairo_font_face_t* f) const { cairo_font_face_destroy(f); }
};

/// A font file opened for Cairo, which keeps fonts for as long as it likes: it lets this go.
struct OtevreneRezy {
    std::string Obsah;
    FT_Library Knihovna = nullptr;
    FT_Face Rez = nullptr;

    explicit OtevreneRezy(const std::string& obsah) : Obsah(obsah) {
        const auto* data = reinterpret_cast<const FT_Byte*>(Obsah.data());
        if (FT_Init_FreeType(&Knihovna) != 0 ||
            FT_New_Memory_Face(Knihovna, data, static_cast<FT_Long>(Obsah.size()), 0, &Rez) != 0) {
            Zavri();
            Selhani("Nelze použít písma");
        }
    }
    ~OtevreneRezy() { Zavri(); }
    OtevreneRezy(const OtevreneRezy&) = delete;
    OtevreneRezy& operator=(const OtevreneRezy&) = delete;

private:
    void Zavri() const {
        if (Rez != nullptr) FT_Done_Face(Rez);
        if (Knihovna != nullptr) FT_Done_FreeType(Knihovna);
    }
};

cairo_status_t Pripis(void* kam, const unsigned char* data, unsigned delka) {
    static_cast<std::string*>(kam)->append(reinterpret_cast<const char*>(data), delka);
    return CAIRO_STATUS_SUCCESS;
}

/// Whether lines and letters say all of it.
bool JeVektor(const Polozka& p) {
    return std::holds_alternative<PolozkaUsecky>(p) || std::holds_alternative<PolozkaKruznice>(p) ||
           std::holds_alternative<PolozkaTextu>(p) || std::holds_alternative<PolozkaVyplne>(p);
}

}  // namespace

struct Pdf::Vnitrek {
    struct PismoPdf {
        std::unique_ptr<cairo_font_face_t, UvolniPismo> Tvar;
        FT_Face Rez = nullptr;  ///< lives as long as Tvar
    };

    std::string Vystup;
    std::unique_ptr<cairo_surface_t, UvolniPlochu> Plocha;
    std::unique_ptr<cairo_t, UvolniCairo> Cairo;
    std::array<PismoPdf, POCET_REZU> Pisma;

    void Barvou(Pixel barva) const {
        const auto kanal = [barva](unsigned posun) { return ((barva >> posun) & 0xFFU) / 255.0; };
        cairo_set_source_rgb(Cairo.get(), kanal(16), kanal(8), kanal(0));
    }

    const PismoPdf& DejPismo(unsigned rez) {
        PismoPdf& p = Pisma.at(rez);
        if (p.Tvar) return p;
        auto otevrene = std::make_unique<OtevreneRezy>(ObsahRezu(rez));
        p.Rez = otevrene->Rez;
        p.Tvar.reset(cairo_ft_font_face_create_for_ft_face(p.Rez, FT_LOAD_NO_HINTING));
        static const cairo_user_data_key_t KLIC_PISMA{};
        const auto zavri = [](void* co) { delete static_cast<OtevreneRezy*>(co); };
        if (cairo_font_face_set_user_data(p.Tvar.get(), &KLIC_PISMA, otevrene.get(), zavri) ==
            CAIRO_STATUS_SUCCESS) {
            static_cast<void>(otevrene.release());
        }
        return p;
    }

    /// Characters of one font file and size, from the base line.
    void Usek(double x, double ucari, std::span<const ZnakRadku> znaky, bool obrys) {
        const PismoPdf& pismo = DejPismo(znaky[0].Rez);
        std::vector<cairo_glyph_t> glyfy;
        std::vector<cairo_text_cluster_t> shluky;
        std::string utf8;
        for (const ZnakRadku& z : znaky) {
            const std::string znak = ZeZnaku(std::u32string_view(&z.Znak, 1));
            glyfy.push_back({FT_Get_Char_Index(pismo.Rez, z.Znak), x + z.X, ucari + z.Pokles});
            shluky.push_back({static_cast<int>(znak.size()), 1});
            utf8 += znak;
        }
        cairo_set_font_face(Cairo.get(), pismo.Tvar.get());
        cairo_set_font_size(Cairo.get(), znaky[0].Velikost);
        const auto pocet = static_cast<int>(glyfy.size());
        if (obrys) {
            cairo_glyph_path(Cairo.get(), glyfy.data(), pocet);
        } else {
            cairo_show_text_glyphs(Cairo.get(), utf8.data(), static_cast<int>(utf8.size()),
                                   glyfy.data(), pocet, shluky.data(), pocet,
                                   static_cast<cairo_text_cluster_flags_t>(0));
        }
    }

    /// obrys: only adds the outlines of the letters to the path.
    void Radek(double x, double y, const Pismo& pismo, std::string_view text, bool obrys = false) {
        const std::vector<ZnakRadku> znaky = Rozsad(pismo, text);
        const double ucari = y + Ucari(pismo);
        for (std::size_t od = 0; od < znaky.size();) {
            std::size_t po = od + 1;
            while (po < znaky.size() && znaky[po].Rez == znaky[od].Rez &&
                   znaky[po].Velikost == znaky[od].Velikost) {
                ++po;
            }
            Usek(x, ucari, std::span(znaky).subspan(od, po - od), obrys);
            od = po;
        }
    }

    // Items of a display list.

    Pixel Podklad = 0;  ///< what it is drawn on

    void Kresli(const PolozkaUsecky& u) const {
        cairo_t* c = Cairo.get();
        Barvou(u.Barva);
        // What is drawn to be covered is covered whole.
        cairo_set_line_width(c, u.Pero * (u.Barva == Podklad ? 1 : TENKE_PERO));
        cairo_set_line_cap(c, CAIRO_LINE_CAP_ROUND);
        cairo_move_to(c, static_cast<double>(u.X1) + 0.5, static_cast<double>(u.Y1) + 0.5);
        cairo_line_to(c, static_cast<double>(u.X2) + 0.5, static_cast<double>(u.Y2) + 0.5);
        cairo_stroke(c);
    }
    void Kresli(const PolozkaKruznice& k) const {
        if (k.R < 0) return;
        cairo_t* c = Cairo.get();
        Barvou(k.Barva);
        cairo_set_line_width(c, k.Pero * TENKE_PERO);
        cairo_new_path(c);
        cairo_arc(c, static_cast<double>(k.X) + 0.5, static_cast<double>(k.Y) + 0.5, k.Polomer(), 0,
                  PLNY_UHEL);
        k.JeKotouc() ? cairo_fill(c) : cairo_stroke(c);
    }
    void Kresli(const PolozkaVyplne& v) const {
        Barvou(v.Barva);
        cairo_rectangle(Cairo.get(), v.Kam.Left, v.Kam.Top, v.Kam.Width, v.Kam.Height);
        cairo_fill(Cairo.get());
    }
    void Kresli(const PolozkaTextu& t) {
        Barvou(t.Barva);
        Radek(static_cast<double>(t.X), static_cast<double>(t.Y), t.Font, t.Text);
    }
    template <class T>
    void Kresli(const T& /*jina*/) const {}  // JeVektor let none through

    /// Labels stand above all lines, the grounds of all of them below the letters of any.
    void KresliSeznam(std::span<const Polozka> polozky, Pixel podklad) {
        Podklad = podklad;
        for (const Polozka& p : polozky) {
            const auto* text = std::get_if<PolozkaTextu>(&p);
            if (text != nullptr && text->Svatozar) continue;
            std::visit([this](const auto& co) { Kresli(co); }, p);
        }
        for (const bool pismena : {false, true}) {
            for (const Polozka& p : polozky) {
                const auto* text = std::get_if<PolozkaTextu>(&p);
                if (text == nullptr || !text->Svatozar) continue;
                if (pismena) {
                    Kresli(*text);
                    continue;
                }
                Radek(static_cast<double>(text->X), static_cast<double>(text->Y), text->Font,
                      text->Text, true);
                Barvou(podklad);
                cairo_set_line_width(Cairo.get(), 2 * SVATOZAR);
                cairo_set_line_join(Cairo.get(), CAIRO_LINE_JOIN_ROUND);
                cairo_stroke(Cairo.get());
            }
        }
    }

    void KresliObraz(const Okamzik& obsah) const {
        Bitmapa docasna;
        const Bitmapa& b = Vykresli(obsah, HUSTOTA, docasna);
        std::vector<Pixel> body = b.Body;
        const std::unique_ptr<cairo_surface_t, UvolniPlochu> obraz(
            cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(body.data()),
                                                CAIRO_FORMAT_RGB24, b.Sirka, b.Vyska,
                                                b.Sirka * static_cast<int>(sizeof(Pixel))));
        cairo_scale(Cairo.get(), 1 / HUSTOTA, 1 / HUSTOTA);
        cairo_set_source_surface(Cairo.get(), obraz.get(), 0, 0);
        cairo_paint(Cairo.get());
        cairo_surface_finish(obraz.get());
    }
};

Pdf::Pdf(const Udaje& udaje) : vnitrek_(std::make_unique<Vnitrek>()) {
    Vnitrek& v = *vnitrek_;
    v.Plocha.reset(cairo_pdf_surface_create_for_stream(Pripis, &v.Vystup, SIRKA * BODU_NA_JEDNOTKU,
                                                       VYSKA * BODU_NA_JEDNOTKU));
    char kdy[sizeof "-2147483648--2147483648--2147483648T-2147483648:-2147483648"];
    const DatumACas& d = udaje.Kdy;
    std::snprintf(kdy, sizeof kdy, "%04d-%02d-%02dT%02d:%02d", d.Rok, d.Mesic, d.Den, d.Hodina,
                  d.Minuta);
    const struct {
        cairo_pdf_metadata_t Co;
        const char* Text;
    } UDAJE[] = {{CAIRO_PDF_METADATA_TITLE, udaje.Nazev.c_str()},
                 {CAIRO_PDF_METADATA_AUTHOR, udaje.Autor.c_str()},
                 {CAIRO_PDF_METADATA_CREATOR, "Rysovna 1"},
                 {CAIRO_PDF_METADATA_CREATE_DATE, kdy}};
    // Cairo gives the whole document up for a byte that is no UTF-8.
    for (const auto& u : UDAJE)
        cairo_pdf_surface_set_metadata(v.Plocha.get(), u.Co, ZeZnaku(DoZnaku(u.Text)).c_str());
    v.Cairo.reset(cairo_create(v.Plocha.get()));
    cairo_scale(v.Cairo.get(), BODU_NA_JEDNOTKU, BODU_NA_JEDNOTKU);
}

Pdf::~Pdf() = default;

void Pdf::Text(double x, double y, const Pismo& pismo, std::string_view text, Barva barva) {
    vnitrek_->Barvou(DoPixelu(barva));
    vnitrek_->Radek(x, y, pismo, text);
}

void Pdf::Cara(double x1, double y1, double x2, double y2, double sirka, Barva barva) {
    cairo_t* c = vnitrek_->Cairo.get();
    vnitrek_->Barvou(DoPixelu(barva));
    cairo_set_line_width(c, sirka);
    cairo_set_line_cap(c, CAIRO_LINE_CAP_BUTT);
    cairo_move_to(c, x1, y1);
    cairo_line_to(c, x2, y2);
    cairo_stroke(c);
}

void Pdf::Ramecek(double x, double y, double w, double h, double sirka, Barva barva) {
    cairo_t* c = vnitrek_->Cairo.get();
    vnitrek_->Barvou(DoPixelu(barva));
    cairo_set_line_width(c, sirka);
    cairo_rectangle(c, x, y, w, h);
    cairo_stroke(c);
}

void Pdf::Plocha(double x, double y, double meritko, const Surface& plocha) {
    cairo_t* c = vnitrek_->Cairo.get();
    const Okamzik& obsah = plocha.Uvnitr().Obsah;
    const auto polozky = std::span<const Polozka>(obsah.Kde->Polozky).first(obsah.Pocet);
    cairo_save(c);
    cairo_translate(c, x, y);
    cairo_scale(c, meritko, meritko);
    cairo_rectangle(c, 0, 0, plocha.Width(), plocha.Height());
    cairo_clip(c);
    if (obsah.Kde->Podklad.Prazdny() && std::ranges::all_of(polozky, JeVektor)) {
        vnitrek_->KresliSeznam(polozky, obsah.Kde->Pozadi);
    } else {
        vnitrek_->KresliObraz(obsah);
    }
    cairo_restore(c);
}

void Pdf::NovaStranka() {
    cairo_show_page(vnitrek_->Cairo.get());
}

std::string Pdf::Dokonci() {
    Vnitrek& v = *vnitrek_;
    cairo_show_page(v.Cairo.get());
    const cairo_status_t stav = cairo_status(v.Cairo.get());
    v.Cairo.reset();
    cairo_surface_finish(v.Plocha.get());
    if (stav != CAIRO_STATUS_SUCCESS ||
        cairo_surface_status(v.Plocha.get()) != CAIRO_STATUS_SUCCESS) {
        Selhani(std::string("Stránku nelze složit: ") + cairo_status_to_string(stav));
    }
    return std::move(v.Vystup);
}

}  // namespace rysovna
