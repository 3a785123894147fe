// Holds staged fonts against the whole ones that they were cut out of: a staged glyph gives the
// same pixels in each of the ways in which the game prints, takes the same place, stands to its
// neighbours as before, and none that a pupil can type is missing.
//   pisma_jako_cela WHOLE.ttf STAGED.ttf [WHOLE STAGED ...]

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <ft2build.h>
#include <span>
#include <string>
#include <string_view>
#include <vector>
#include FT_FREETYPE_H

#include "platform/NacteniGlyfu.h"

namespace {

using rysovna::NACTENI_GLYFU;

/// What must be there if the whole font has it: Latin, Greek, signs of prompts and results.
constexpr struct {
    FT_ULong Od, Do;
} POVINNE[] = {{0x20, 0x24F},    {0x370, 0x3FF},   {0x1E00, 0x1EFF}, {0x2000, 0x206F},
               {0x20A0, 0x20CF}, {0x2190, 0x22FF}, {0xFFFD, 0xFFFD}};

/// Sizes, px: those of the 1:1 screens and their lower indices, whole and odd ones.
constexpr std::array<double, 10> VELIKOSTI = {8, 9.33, 10, 10.67, 12, 13.33, 14.67, 16, 18.67, 32};

class Rez {
public:
    Rez(FT_Library knihovna, const char* soubor) {
        if (FT_New_Face(knihovna, soubor, 0, &rez_) != 0) {
            std::fprintf(stderr, "%s: není písmo\n", soubor);
            std::exit(2);
        }
    }
    ~Rez() { FT_Done_Face(rez_); }
    Rez(const Rez&) = delete;
    Rez& operator=(const Rez&) = delete;

    FT_Face operator->() const { return rez_; }

    [[nodiscard]] FT_UInt Glyf(FT_ULong znak) const { return FT_Get_Char_Index(rez_, znak); }

    /// All that is seen of a glyph at the size that is set: place, size, pixels.
    [[nodiscard]] std::string Obraz(FT_UInt glyf, FT_Int32 nacteni) const {
        if (FT_Load_Glyph(rez_, glyf, nacteni) != 0) return "nejde načíst";
        FT_GlyphSlot g = rez_->glyph;
        const bool mono = nacteni == NACTENI_GLYFU[0];
        if (FT_Render_Glyph(g, mono ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL) != 0)
            return "nejde vykreslit";
        const FT_Bitmap& b = g->bitmap;
        std::string obraz;
        for (const long v : {long{g->bitmap_left}, long{g->bitmap_top}, static_cast<long>(b.width),
                             static_cast<long>(b.rows), g->linearHoriAdvance, g->advance.x})
            obraz += std::to_string(v) + ' ';
        for (unsigned y = 0; y < b.rows; ++y) {
            // The bits behind a row's last pixel say nothing.
            const auto* radek =
                reinterpret_cast<const char*>(b.buffer) + static_cast<std::ptrdiff_t>(y) * b.pitch;
            obraz.append(radek, mono ? (b.width + 7) / 8 : b.width);
        }
        return obraz;
    }

    /// How much nearer the second one stands, units of the font.
    [[nodiscard]] long Prilehnuti(FT_ULong a, FT_ULong b) const {
        FT_Vector v{};
        if (FT_Get_Kerning(rez_, Glyf(a), Glyf(b), FT_KERNING_UNSCALED, &v) != 0) return 0;
        return v.x;
    }

private:
    FT_Face rez_ = nullptr;
};

int vad = 0;
void Vada(const char* soubor, FT_ULong znak, const char* co) {
    if (++vad <= 20) std::fprintf(stderr, "%s: U+%04lX: %s\n", soubor, znak, co);
}

bool Povinny(FT_ULong znak) {
    return std::ranges::any_of(POVINNE,
                               [znak](const auto& r) { return znak >= r.Od && znak <= r.Do; });
}

void Porovnej(FT_Library knihovna, const char* souborCeleho, const char* soubor) {
    const Rez cele(knihovna, souborCeleho);
    const Rez nase(knihovna, soubor);
    if (cele->ascender != nase->ascender || cele->descender != nase->descender ||
        cele->units_per_EM != nase->units_per_EM)
        Vada(soubor, 0, "jiná výška řádku");
    for (const std::string_view zabrane : {"Liberation", "DejaVu", "Vera", "Bitstream"}) {
        if (std::strstr(nase->family_name, zabrane.data()) != nullptr ||
            std::strstr(FT_Get_Postscript_Name(nase.operator->()), zabrane.data()) != nullptr)
            Vada(soubor, 0, "jméno původního písma");
    }
    std::vector<FT_ULong> znaky;
    FT_UInt glyf = 0;
    for (FT_ULong z = FT_Get_First_Char(cele.operator->(), &glyf); glyf != 0;
         z = FT_Get_Next_Char(cele.operator->(), z, &glyf)) {
        if (nase.Glyf(z) != 0) {
            znaky.push_back(z);
        } else if (Povinny(z)) {
            Vada(soubor, z, "chybí");
        }
    }
    if (znaky.size() < 300) Vada(soubor, 0, "skoro nic v něm není");
    znaky.push_back(0x10FFFF);  // the sign for a missing one
    long obrazu = 0;
    for (const double px : VELIKOSTI) {
        const auto velikost = static_cast<FT_F26Dot6>(px * 64);
        for (const Rez* r : {&cele, &nase})
            FT_Set_Char_Size(r->operator->(), velikost, velikost, 72, 72);
        for (const FT_ULong z : znaky) {
            for (const FT_Int32 nacteni : NACTENI_GLYFU) {
                ++obrazu;
                if (cele.Obraz(cele.Glyf(z), nacteni) != nase.Obraz(nase.Glyf(z), nacteni))
                    Vada(soubor, z, "jiný obraz");
            }
        }
    }
    long dvojic = 0;
    for (const FT_ULong a : znaky) {
        for (const FT_ULong b : znaky) {
            if (b > 0x24F) continue;
            const long o = cele.Prilehnuti(a, b);
            dvojic += o != 0 ? 1 : 0;
            if (o != nase.Prilehnuti(a, b)) Vada(soubor, a, "jiné přilehnutí");
        }
    }
    std::printf("%s: znaků %zu, obrazů %ld, dvojic, které přiléhají, %ld\n", soubor, znaky.size(),
                obrazu, dvojic);
    if (dvojic == 0) Vada(soubor, 0, "nic v něm nepřiléhá");
}

}  // namespace

int main(int pocet, char** slova) {
    const std::span<char*> soubory(slova + 1, static_cast<std::size_t>(pocet - 1));
    FT_Library knihovna = nullptr;
    if (soubory.empty() || soubory.size() % 2 != 0 || FT_Init_FreeType(&knihovna) != 0) return 2;
    for (std::size_t i = 0; i < soubory.size(); i += 2)
        Porovnej(knihovna, soubory[i], soubory[i + 1]);
    FT_Done_FreeType(knihovna);
    std::printf("vad: %d\n", vad);
    return vad == 0 ? 0 : 1;
}
