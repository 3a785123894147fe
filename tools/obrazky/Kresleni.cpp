#include "Kresleni.h"

#include <cairo-script.h>
#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <librsvg/rsvg.h>
#include <memory>

#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

constexpr std::uint32_t PLNE = 0xFF000000;

struct Uvolni {
    void operator()(RsvgHandle* h) const { g_object_unref(h); }
    void operator()(cairo_surface_t* s) const { cairo_surface_destroy(s); }
    void operator()(cairo_device_t* d) const { cairo_device_destroy(d); }
    void operator()(cairo_t* c) const { cairo_destroy(c); }
};

}  // namespace

void NastavPisma(const std::filesystem::path& fonty, const std::filesystem::path& pracovni) {
    const auto soubor = pracovni / "fonts.conf";
    std::ofstream ven(soubor);
    ven << "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n<fontconfig>\n"
        << "<dir>" << fonty.string() << "</dir>\n"
        << "<cachedir>" << (pracovni / "fontcache").string() << "</cachedir>\n"
        << "<match target=\"font\"><edit name=\"antialias\" "
           "mode=\"assign\"><bool>true</bool></edit>"
        << "<edit name=\"hinting\" mode=\"assign\"><bool>false</bool></edit></match>\n"
        << "</fontconfig>\n";
    ven.close();
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor.string());
    setenv("FONTCONFIG_FILE", soubor.c_str(), 1);
}

namespace {

/// Draws the whole on a surface of that size.
void NaPlochu(const std::string& svg, int sirka, int vyska, cairo_surface_t* plocha, int zvetseni,
              double natoceni, const std::string& kde) {
    const std::string w = std::to_string(sirka);
    const std::string h = std::to_string(vyska);
    const std::string cele = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + w +
                             "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h +
                             "\" font-family=\"Rysovna Sans, Rysovna Znaky\">" + svg + "</svg>";
    GError* chyba = nullptr;
    const std::unique_ptr<RsvgHandle, Uvolni> kresba(rsvg_handle_new_from_data(
        reinterpret_cast<const guint8*>(cele.data()), cele.size(), &chyba));
    const auto selhani = [&] {
        const std::string proc = chyba != nullptr ? chyba->message : "";
        g_clear_error(&chyba);
        throw BehovaChyba("Nelze vykreslit: " + proc, kde);
    };
    if (!kresba) selhani();
    const std::unique_ptr<cairo_t, Uvolni> pero(cairo_create(plocha));
    cairo_translate(pero.get(), vyska * zvetseni * std::sin(natoceni), 0);
    cairo_rotate(pero.get(), natoceni);
    const RsvgRectangle okno{0, 0, static_cast<double>(sirka * zvetseni),
                             static_cast<double>(vyska * zvetseni)};
    if (rsvg_handle_render_document(kresba.get(), pero.get(), &okno, &chyba) == 0) selhani();
}

}  // namespace

ObrazBmp Vykresli(const std::string& svg, int sirka, int vyska, int zvetseni,
                  const std::string& kde) {
    ObrazBmp rastr{sirka * zvetseni, vyska * zvetseni, {}};
    const std::unique_ptr<cairo_surface_t, Uvolni> plocha(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, rastr.Sirka, rastr.Vyska));
    NaPlochu(svg, sirka, vyska, plocha.get(), zvetseni, 0, kde);
    cairo_surface_flush(plocha.get());

    const unsigned char* data = cairo_image_surface_get_data(plocha.get());
    const int delka = cairo_image_surface_get_stride(plocha.get());
    rastr.Body.reserve(static_cast<std::size_t>(rastr.Sirka) *
                       static_cast<std::size_t>(rastr.Vyska));
    for (int y = 0; y < rastr.Vyska; ++y) {
        const auto* radek = reinterpret_cast<const std::uint32_t*>(data + y * delka);
        for (int x = 0; x < rastr.Sirka; ++x) rastr.Body.push_back(radek[x] | PLNE);
    }
    return rastr;
}

std::string Nahraj(const std::string& svg, int sirka, int vyska, int zvetseni,
                   const std::string& kde) {
    std::string zaznam;
    const std::unique_ptr<cairo_device_t, Uvolni> zapis(cairo_script_create_for_stream(
        [](void* kam, const unsigned char* data, unsigned delka) {
            static_cast<std::string*>(kam)->append(reinterpret_cast<const char*>(data), delka);
            return CAIRO_STATUS_SUCCESS;
        },
        &zaznam));
    cairo_script_set_mode(zapis.get(), CAIRO_SCRIPT_MODE_ASCII);
    {
        // Nothing that lies outside is recorded.
        const double strana = (sirka + vyska) * zvetseni;
        const std::unique_ptr<cairo_surface_t, Uvolni> plocha(
            cairo_script_surface_create(zapis.get(), CAIRO_CONTENT_COLOR_ALPHA, strana, strana));
        NaPlochu(svg, sirka, vyska, plocha.get(), zvetseni, NATOCENI_NAHRAVKY, kde);
    }
    cairo_device_finish(zapis.get());
    return zaznam;
}

}  // namespace rysovna::obrazky
