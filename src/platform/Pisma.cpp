#include "platform/Pisma.h"

#include <array>
#include <cmath>
#include <ft2build.h>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "base/Text.h"
#include "platform/Cesta.h"
#include "platform/NacteniGlyfu.h"
#include "platform/Sazba.h"
#include "platform/Stroj.h"

namespace rysovna {

namespace {

/// The files in the order of italic (1) and bold (2), then the one that fills in.
constexpr std::array<std::string_view, POCET_REZU> SOUBORY = {
    "RysovnaSans-Regular.ttf", "RysovnaSans-Italic.ttf", "RysovnaSans-Bold.ttf",
    "RysovnaSans-BoldItalic.ttf", "RysovnaZnaky.ttf"};
constexpr int NAHRADNI = 4;

/// Set in a character's code, it says that this is the number of a glyph of just that font file.
constexpr char32_t CISLO_GLYFU = 1U << 23;
/// From this type size on glyphs begin at halves of a pixel: quarters could not be told apart.
constexpr int PULKY_OD = 24 * 64;
/// Quarters of a pixel at which an antialiased glyph may begin.
constexpr int CTVRTINY = 4;
/// Below this scale antialiased glyphs are fitted to the rows of pixels, or they look washed out.
constexpr double MALE_MERITKO = 1.5;
/// Glyphs kept; a window that is drawn through many sizes would pile them up.
constexpr std::size_t NEJVIC_GLYFU = 4000;

/// A lower index is this much smaller than the text around it, and lower by this much of its size.
constexpr double VELIKOST_INDEXU = 0.75, POKLES_INDEXU = 0.2;

struct Glyf {
    int Vlevo = 0, Nahore = 0, Sirka = 0, Vyska = 0;
    std::vector<std::uint8_t> Kryti;
};

enum class Rezim : unsigned { Logicky, Maly, Velky };

class Knihovna {
public:
    Knihovna() {
        if (FT_Init_FreeType(&ft_) != 0) Selhani("Nelze použít písma");
    }
    ~Knihovna() {
        ZavriPisma();
        FT_Done_FreeType(ft_);
    }
    Knihovna(const Knihovna&) = delete;
    Knihovna& operator=(const Knihovna&) = delete;

    void NastavSlozku(std::string_view slozka) {
        if (slozka_ && *slozka_ == slozka) return;
        ZavriPisma();
        slozka_ = slozka;
    }

    [[nodiscard]] bool MaVse() {
        if (!slozka_) return false;
        for (int i = 0; i < static_cast<int>(SOUBORY.size()); ++i) {
            if (Otevri(i) == nullptr) return false;
        }
        return true;
    }

    FT_Face Rez(int i) {
        FT_Face rez = Otevri(i);
        if (rez == nullptr) throw BehovaChyba("Nelze otevřít písmo", Cesta(i).string());
        return rez;
    }

    const std::string& Obsah(unsigned rez) {
        static_cast<void>(Rez(static_cast<int>(rez)));
        return obsahy_.at(rez);
    }

    /// Which file shows the character.
    int Kde(int rez, char32_t znak) {
        if ((znak & CISLO_GLYFU) != 0) return rez;
        if (FT_Get_Char_Index(Rez(rez), znak) != 0) return rez;
        return FT_Get_Char_Index(Rez(NAHRADNI), znak) != 0 ? NAHRADNI : rez;
    }

    /// Unrounded advance, parts of the type size.
    double Posuv(int rez, char32_t znak) {
        const std::uint64_t klic = (std::uint64_t{static_cast<unsigned>(rez)} << 32) | znak;
        const auto nalezeny = posuvy_.find(klic);
        if (nalezeny != posuvy_.end()) return nalezeny->second;
        FT_Face f = Rez(Kde(rez, znak));
        double posuv = 0;
        if (FT_Load_Glyph(f, Cislo(f, znak), FT_LOAD_NO_SCALE) == 0)
            posuv = static_cast<double>(f->glyph->advance.x) / f->units_per_EM;
        posuvy_[klic] = posuv;
        return posuv;
    }

    /// velikost: type size, 1/64 px; ctvrtina: where within its pixel the glyph begins.
    const Glyf& DejGlyf(int rez, char32_t znak, int velikost, Rezim rezim, int ctvrtina) {
        const std::uint64_t klic =
            (std::uint64_t{znak} << 40) | (std::uint64_t{static_cast<unsigned>(velikost)} << 16) |
            (std::uint64_t{static_cast<unsigned>(rez)} << 8) |
            (std::uint64_t{static_cast<unsigned>(rezim)} << 4) | static_cast<unsigned>(ctvrtina);
        const auto nalezeny = glyfy_.find(klic);
        if (nalezeny != glyfy_.end()) return nalezeny->second;
        if (glyfy_.size() >= NEJVIC_GLYFU) glyfy_.clear();
        return glyfy_[klic] = Vytvor(Rez(Kde(rez, znak)), znak, velikost, rezim, ctvrtina);
    }

private:
    [[nodiscard]] std::filesystem::path Cesta(int i) const {
        if (!slozka_) return "?";
        return NativniCesta(*slozka_ + "\\" + std::string(SOUBORY[static_cast<std::size_t>(i)]));
    }

    /// The font of a file; what the file holds is put where it stays. Null if it is none.
    FT_Face ZObsahu(std::string& obsah, const std::filesystem::path& soubor) {
        obsah = CelySoubor(soubor).value_or(std::string());
        FT_Face rez = nullptr;
        const auto* data = reinterpret_cast<const FT_Byte*>(obsah.data());
        const auto delka = static_cast<FT_Long>(obsah.size());
        return FT_New_Memory_Face(ft_, data, delka, 0, &rez) == 0 ? rez : nullptr;
    }

    FT_Face Otevri(int i) {
        FT_Face& rez = rezy_[static_cast<std::size_t>(i)];
        if (rez == nullptr && slozka_)
            rez = ZObsahu(obsahy_[static_cast<std::size_t>(i)], Cesta(i));
        return rez;
    }

    void ZavriPisma() {
        for (FT_Face& rez : rezy_) {
            if (rez != nullptr) FT_Done_Face(rez);
            rez = nullptr;
        }
        glyfy_.clear();
        posuvy_.clear();
    }

    static FT_UInt Cislo(FT_Face f, char32_t znak) {
        return (znak & CISLO_GLYFU) != 0 ? znak & ~CISLO_GLYFU : FT_Get_Char_Index(f, znak);
    }

    static Glyf Vytvor(FT_Face f, char32_t znak, int velikost, Rezim rezim, int ctvrtina) {
        Glyf g;
        if (FT_Set_Char_Size(f, velikost, velikost, 72, 72) != 0) return g;
        const FT_Int32 nacteni = NACTENI_GLYFU[static_cast<std::size_t>(rezim)];
        if (FT_Load_Glyph(f, Cislo(f, znak), nacteni) != 0) return g;
        if (ctvrtina != 0) FT_Outline_Translate(&f->glyph->outline, ctvrtina * 64 / CTVRTINY, 0);
        const bool mono = rezim == Rezim::Logicky;
        if (FT_Render_Glyph(f->glyph, mono ? FT_RENDER_MODE_MONO : FT_RENDER_MODE_NORMAL) != 0)
            return g;
        const FT_Bitmap& b = f->glyph->bitmap;
        g = {f->glyph->bitmap_left,
             f->glyph->bitmap_top,
             static_cast<int>(b.width),
             static_cast<int>(b.rows),
             {}};
        g.Kryti.reserve(std::size_t{b.width} * b.rows);
        for (unsigned y = 0; y < b.rows; ++y) {
            const unsigned char* radka = b.buffer + static_cast<std::ptrdiff_t>(y) * b.pitch;
            for (unsigned x = 0; x < b.width; ++x) {
                g.Kryti.push_back(!mono                                      ? radka[x]
                                  : (radka[x / 8] & (0x80u >> (x % 8))) != 0 ? std::uint8_t{255}
                                                                             : std::uint8_t{0});
            }
        }
        return g;
    }

    FT_Library ft_ = nullptr;
    std::optional<std::string> slozka_;
    std::array<FT_Face, SOUBORY.size()> rezy_{};
    /// What the files hold, for as long as they are open.
    std::array<std::string, SOUBORY.size()> obsahy_;
    std::unordered_map<std::uint64_t, double> posuvy_;
    std::unordered_map<std::uint64_t, Glyf> glyfy_;
};

Knihovna& Pisma() {
    static Knihovna knihovna;
    return knihovna;
}

int CisloRezu(const Pismo& p) {
    return (p.Kurziva ? 1 : 0) + (p.Tucne ? 2 : 0);
}

/// Type size, design pixels.
double Velikost(const Pismo& p) {
    return static_cast<double>(p.Velikost) * 96 / 72;
}

int Horni(const Pismo& p) {
    FT_Face f = Pisma().Rez(0);
    return static_cast<int>(std::lround(Velikost(p) * f->ascender / f->units_per_EM));
}

std::u32string ZnakyPisma(const Pismo& p, std::string_view text) {
    std::u32string znaky = DoZnaku(text);
    if (p.Nazev == Pismo::Rez::Symbol) {
        for (char32_t& z : znaky) z = ZnakSymbolu(z);
    }
    return znaky;
}

/// The character itself, which may stand as an index, and its size.
struct Tisk {
    char32_t Znak;
    bool Index;
    double Podil;  ///< of the text's size
};
Tisk RozlisIndex(char32_t znak) {
    const bool index = znak >= DOLNI_INDEX && znak < DOLNI_INDEX + 0x80;
    return {index ? znak - DOLNI_INDEX : znak, index, index ? VELIKOST_INDEXU : 1};
}

/// Unrounded advance, parts of the text's size.
double PosuvTisku(int rez, char32_t znak) {
    const Tisk t = RozlisIndex(znak);
    return Pisma().Posuv(rez, t.Znak) * t.Podil;
}

/// Goes through the glyphs of a row: ukaz(x, y, glyph), x and y being its top left pixel.
template <class F>
void ProGlyfy(double x, double y, double s, const Pismo& pismo, std::string_view text,
              Hladkost hladkost, F ukaz) {
    const Rezim rezim = hladkost == Hladkost::Logicka ? Rezim::Logicky
                        : s < MALE_MERITKO            ? Rezim::Maly
                                                      : Rezim::Velky;
    const double velikost = Velikost(pismo) * s;
    const int rez = CisloRezu(pismo);
    const double ucari = y + Horni(pismo) * s;
    for (const char32_t znak : ZnakyPisma(pismo, text)) {
        double zacatek = std::floor(x + 0.5);
        int ctvrtina = 0;
        if (rezim != Rezim::Logicky) {
            const double naCtvrtiny = std::floor(x * CTVRTINY + 0.5) / CTVRTINY;
            zacatek = std::floor(naCtvrtiny);
            ctvrtina = static_cast<int>((naCtvrtiny - zacatek) * CTVRTINY);
        }
        const Tisk t = RozlisIndex(znak);
        const Glyf& g = Pisma().DejGlyf(
            rez, t.Znak, static_cast<int>(std::lround(velikost * t.Podil * 64)), rezim, ctvrtina);
        const double dole = std::floor(ucari + (t.Index ? POKLES_INDEXU * velikost : 0) + 0.5);
        ukaz(static_cast<int>(zacatek) + g.Vlevo, static_cast<int>(dole) - g.Nahore, g);
        x += PosuvTisku(rez, znak) * velikost;
    }
}

void Otiskni(const Vyhled& cil, const Obdelnik& orez, int x, int y, const Glyf& g, Pixel barva) {
    const Obdelnik o = Prunik(Prunik({x, y, g.Sirka, g.Vyska}, orez), cil.Meze());
    for (int py = o.Top; py < o.Top + o.Height; ++py) {
        Pixel* c = cil.Radka(py);
        const std::uint8_t* k = g.Kryti.data() + static_cast<std::ptrdiff_t>(py - y) * g.Sirka;
        for (int px = o.Left; px < o.Left + o.Width; ++px) {
            const unsigned kryti = k[px - x];
            if (kryti == 255) {
                c[px] = barva;
            } else if (kryti != 0) {
                c[px] = Smichej(c[px], barva, kryti);
            }
        }
    }
}

/// As Otiskni, but of a target that may be covered in part.
void Privrstvi(const Vyhled& cil, const Obdelnik& orez, int x, int y, const Glyf& g, Pixel barva) {
    const Obdelnik o = Prunik(Prunik({x, y, g.Sirka, g.Vyska}, orez), cil.Meze());
    for (int py = o.Top; py < o.Top + o.Height; ++py) {
        Pixel* c = cil.Radka(py) + o.Left;
        const std::uint8_t* k =
            g.Kryti.data() + static_cast<std::ptrdiff_t>(py - y) * g.Sirka + (o.Left - x);
        for (int i = 0; i < o.Width; ++i) {
            const unsigned kryti = k[i];
            if (kryti == 0) continue;
            if (kryti == 255) {
                c[i] = barva;
                continue;
            }
            const unsigned zbytek = (c[i] >> 24) * (255U - kryti);
            c[i] = (Smichej(c[i], barva, kryti) & 0xFFFFFFU) |
                   ((kryti + (zbytek + 127U) / 255U) << 24);
        }
    }
}

}  // namespace

void KresliText(const Vyhled& cil, const Obdelnik& orez, double x, double y, double s,
                const Pismo& pismo, std::string_view text, Pixel barva, Hladkost hladkost) {
    ProGlyfy(x, y, s, pismo, text, hladkost,
             [&](int gx, int gy, const Glyf& g) { Otiskni(cil, orez, gx, gy, g, barva); });
}

void KresliGlyfy(const Vyhled& cil, const Obdelnik& orez, int rez, double velikost,
                 std::span<const GlyfNaMiste> glyfy, double y, Pixel barva) {
    const int dilku = static_cast<int>(std::lround(velikost * 64));
    const int poloh = dilku < PULKY_OD ? CTVRTINY : 2;
    const int ucari = static_cast<int>(std::floor(y + 0.5));
    for (const GlyfNaMiste& g : glyfy) {
        // A glyph reaches less than its size to either side.
        if (g.X + velikost * 2 < orez.Left || g.X - velikost > orez.Left + orez.Width) continue;
        const double naPolohu = std::floor(g.X * poloh + 0.5) / poloh;
        const double zacatek = std::floor(naPolohu);
        const int ctvrtina = static_cast<int>((naPolohu - zacatek) * CTVRTINY);
        const Glyf& glyf =
            Pisma().DejGlyf(rez, CISLO_GLYFU | g.Cislo, dilku, Rezim::Velky, ctvrtina);
        Privrstvi(cil, orez, static_cast<int>(zacatek) + glyf.Vlevo, ucari - glyf.Nahore, glyf,
                  barva);
    }
}

std::vector<ZnakRadku> Rozsad(const Pismo& pismo, std::string_view text) {
    std::vector<ZnakRadku> radek;
    const double velikost = Velikost(pismo);
    double x = 0;
    for (const char32_t znak : ZnakyPisma(pismo, text)) {
        const Tisk t = RozlisIndex(znak);
        const int kde = Pisma().Kde(CisloRezu(pismo), t.Znak);
        radek.push_back({t.Znak, static_cast<unsigned>(kde), x, velikost * t.Podil,
                         t.Index ? POKLES_INDEXU * velikost : 0});
        x += PosuvTisku(CisloRezu(pismo), znak) * velikost;
    }
    return radek;
}

double Ucari(const Pismo& pismo) {
    return Horni(pismo);
}

const std::string& ObsahRezu(unsigned rez) {
    return Pisma().Obsah(rez);
}

std::string_view SouborRezu(unsigned rez) {
    return SOUBORY.at(rez);
}

double PosuvGlyfu(int rez, std::uint32_t cislo) {
    return Pisma().Posuv(rez, CISLO_GLYFU | cislo);
}

void KresliSvatozar(const Vyhled& cil, double x, double y, double s, const Pismo& pismo,
                    std::string_view text, Pixel barva, int polomer) {
    ProGlyfy(x, y, s, pismo, text, Hladkost::Seda, [&](int gx, int gy, const Glyf& g) {
        for (int i = 0; i < g.Sirka * g.Vyska; ++i) {
            if (g.Kryti[static_cast<std::size_t>(i)] == 0) continue;
            const int px = gx + i % g.Sirka;
            const int py = gy + i / g.Sirka;
            for (int d = -polomer; d <= polomer; ++d) {
                const int w = static_cast<int>(std::sqrt(polomer * polomer - d * d));
                cil.Vypln({px - w, py + d, 2 * w + 1, 1}, barva);
            }
        }
    });
}

double PresnaSirka(const Pismo& pismo, std::string_view text) {
    double sirka = 0;
    for (const char32_t znak : ZnakyPisma(pismo, text)) sirka += PosuvTisku(CisloRezu(pismo), znak);
    return sirka * Velikost(pismo);
}

std::vector<double> Zacatky(const Pismo& pismo, std::string_view text) {
    std::vector<double> zacatky{0};
    for (const char32_t znak : ZnakyPisma(pismo, text))
        zacatky.push_back(zacatky.back() + PosuvTisku(CisloRezu(pismo), znak) * Velikost(pismo));
    return zacatky;
}

int SirkaTextu(const Pismo& pismo, std::string_view text) {
    return static_cast<int>(std::ceil(PresnaSirka(pismo, text)));
}

int VyskaRadku(const Pismo& pismo) {
    FT_Face f = Pisma().Rez(0);
    return Horni(pismo) +
           static_cast<int>(std::lround(Velikost(pismo) * -f->descender / f->units_per_EM));
}

void NastavSlozkuPisem(std::string_view slozka) {
    Pisma().NastavSlozku(slozka);
}

bool MamePisma() {
    return Pisma().MaVse();
}

}  // namespace rysovna
