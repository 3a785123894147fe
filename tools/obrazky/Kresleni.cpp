#include "Kresleni.h"

#include <cairo.h>
#include <cstdlib>
#include <fstream>
#include <librsvg/rsvg.h>
#include <memory>
#include <png.h>

#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

constexpr std::uint32_t PLNE = 0xFF000000;

struct Uvolni {
    void operator()(RsvgHandle* h) const { g_object_unref(h); }
    void operator()(cairo_surface_t* s) const { cairo_surface_destroy(s); }
    void operator()(cairo_t* c) const { cairo_destroy(c); }
    void operator()(std::FILE* f) const { std::fclose(f); }
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

ObrazBmp Vykresli(const std::string& svg, int sirka, int vyska, int zvetseni,
                  const std::string& kde) {
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

    ObrazBmp rastr{sirka * zvetseni, vyska * zvetseni, {}};
    const std::unique_ptr<cairo_surface_t, Uvolni> plocha(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, rastr.Sirka, rastr.Vyska));
    const std::unique_ptr<cairo_t, Uvolni> pero(cairo_create(plocha.get()));
    const RsvgRectangle okno{0, 0, static_cast<double>(rastr.Sirka),
                             static_cast<double>(rastr.Vyska)};
    if (rsvg_handle_render_document(kresba.get(), pero.get(), &okno, &chyba) == 0) selhani();
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

void OverKlic(const ObrazBmp& rastr, const std::string& kde) {
    // No colour of the drawings has red and blue both this far above green, but mixtures have.
    constexpr int ODSTUP = 60;
    for (const std::uint32_t b : rastr.Body) {
        const int r = static_cast<int>(b >> 16 & 255);
        const int g = static_cast<int>(b >> 8 & 255);
        const int m = static_cast<int>(b & 255);
        if (b != KLICOVA_BARVA && r > g + ODSTUP && m > g + ODSTUP)
            throw BehovaChyba("Okraj průhledné části není ostrý", kde);
    }
}

void Uloz(const std::string& data, const std::filesystem::path& soubor) {
    std::ofstream ven(soubor, std::ios::binary);
    ven.write(data.data(), static_cast<std::streamsize>(data.size()));
    ven.close();
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor.string());
}

void UlozPng(const ObrazBmp& rastr, const std::filesystem::path& soubor) {
    const std::unique_ptr<std::FILE, Uvolni> ven(std::fopen(soubor.c_str(), "wb"));
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor.string());
    std::vector<unsigned char> radek(static_cast<std::size_t>(rastr.Sirka) * 3);
    png_structp png = png_create_write_struct(
        PNG_LIBPNG_VER_STRING, nullptr,
        [](png_structp, png_const_charp co) { throw BehovaChyba(co, "libpng"); }, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, ven.get());
    png_set_IHDR(png, info, static_cast<png_uint_32>(rastr.Sirka),
                 static_cast<png_uint_32>(rastr.Vyska), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    // Flat colours: without filters the rows repeat, pack well and need no work to unfilter.
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, 4);
    png_write_info(png, info);
    const std::uint32_t* bod = rastr.Body.data();
    for (int y = 0; y < rastr.Vyska; ++y) {
        for (std::size_t x = 0; x < radek.size(); x += 3, ++bod) {
            radek[x] = static_cast<unsigned char>(*bod >> 16);
            radek[x + 1] = static_cast<unsigned char>(*bod >> 8);
            radek[x + 2] = static_cast<unsigned char>(*bod);
        }
        png_write_row(png, radek.data());
    }
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
}

}  // namespace rysovna::obrazky
