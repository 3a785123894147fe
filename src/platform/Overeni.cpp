#include "platform/Overeni.h"

#include <fstream>
#include <ft2build.h>
#include FT_FREETYPE_H

#include "base/Chyba.h"
#include "platform/ObrazekData.h"
#include "platform/Stroj.h"
#include "platform/bmp/Bmp.h"

namespace rysovna {
namespace {

bool JeTu(const std::filesystem::path& soubor) {
    std::error_code chyba;
    return std::filesystem::is_regular_file(soubor, chyba);
}

}  // namespace

std::string VadaObrazku(const std::filesystem::path& soubor, int sirka, int vyska) {
    try {
        if (JsouJenTvary()) {
            const auto tvary = NactiTvary(SouborTvaru(soubor));
            if (!tvary) return "chybí";
            return tvary->Sirka == sirka && tvary->Vyska == vyska ? "" : "má jiný rozměr";
        }
        if (!JeTu(soubor)) return "chybí";
        const Bitmapa obraz = NactiBmp(soubor);
        if (obraz.Sirka != sirka || obraz.Vyska != vyska) return "má jiný rozměr";
        // A picture of somebody else's is enlarged as it is.
        if (NactiHlavuBmp(soubor).Otisk && !NactiTvary(SouborTvaru(soubor))) return "chybí tvary";
    } catch (const BehovaChyba& chyba) {
        return chyba.what();
    }
    return {};
}

std::string VadaPisma(const std::filesystem::path& soubor) {
    if (!JeTu(soubor)) return "chybí";
    FT_Library knihovna = nullptr;
    if (FT_Init_FreeType(&knihovna) != 0) return "písma nelze číst";
    FT_Face rez = nullptr;
    const std::string obsah = CelySoubor(soubor).value_or(std::string());
    const bool jde = FT_New_Memory_Face(knihovna, reinterpret_cast<const FT_Byte*>(obsah.data()),
                                        static_cast<FT_Long>(obsah.size()), 0, &rez) == 0;
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
