#include "platform/Overeni.h"

#include <cairo.h>
#include <fstream>
#include <ft2build.h>
#include <memory>
#include FT_FREETYPE_H

#include "base/Chyba.h"
#include "platform/ObrazekData.h"

namespace rysovna {
namespace {

/// How many times larger the twin is than its picture.
constexpr int ZVETSENI = 3;

bool JeTu(const std::filesystem::path& soubor) {
    std::error_code chyba;
    return std::filesystem::is_regular_file(soubor, chyba);
}

std::string VadaDvojcete(const std::filesystem::path& soubor, int sirka, int vyska) {
    if (!JeTu(soubor)) return "chybí velké dvojče";
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> png(
        cairo_image_surface_create_from_png(soubor.c_str()), &cairo_surface_destroy);
    if (cairo_surface_status(png.get()) != CAIRO_STATUS_SUCCESS)
        return "velké dvojče nelze přečíst";
    if (cairo_image_surface_get_width(png.get()) != sirka * ZVETSENI ||
        cairo_image_surface_get_height(png.get()) != vyska * ZVETSENI)
        return "velké dvojče má jiný rozměr";
    return {};
}

}  // namespace

std::string VadaObrazku(const std::filesystem::path& soubor, int sirka, int vyska) {
    if (!JeTu(soubor)) return "chybí";
    try {
        const Bitmapa obraz = NactiBmp(soubor);
        if (obraz.Sirka != sirka || obraz.Vyska != vyska) return "má jiný rozměr";
    } catch (const BehovaChyba& chyba) {
        return chyba.what();
    }
    auto dvojce = soubor;
    return VadaDvojcete(dvojce.replace_extension(".png"), sirka, vyska);
}

std::string VadaPisma(const std::filesystem::path& soubor) {
    if (!JeTu(soubor)) return "chybí";
    FT_Library knihovna = nullptr;
    if (FT_Init_FreeType(&knihovna) != 0) return "písma nelze číst";
    FT_Face rez = nullptr;
    const bool jde = FT_New_Face(knihovna, soubor.c_str(), 0, &rez) == 0;
    // A letter that the texts need and that a cut file lacks.
    const bool cele = jde && FT_Get_Char_Index(rez, 0x159) != 0;
    if (jde) FT_Done_Face(rez);
    FT_Done_FreeType(knihovna);
    return cele ? std::string() : "není písmo s českými znaky";
}

std::string VadaZvuku(const std::filesystem::path& soubor) {
    if (!JeTu(soubor)) return "chybí";
    constexpr std::streamsize HLAVICKA = 44;
    std::string zacatek(HLAVICKA, '\0');
    std::ifstream vstup(soubor, std::ios::binary);
    vstup.read(zacatek.data(), HLAVICKA);
    const bool zvuk = vstup && zacatek.compare(0, 4, "RIFF") == 0 &&
                      zacatek.compare(8, 4, "WAVE") == 0 && vstup.get() != EOF;
    return zvuk ? std::string() : "není zvuk";
}

}  // namespace rysovna
