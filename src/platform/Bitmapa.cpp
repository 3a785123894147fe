#include "platform/Bitmapa.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Obdelniky.h"
#include "base/Pixely.h"

namespace rysovna {

namespace {

/// Where the pixels of a resized row (or column) come from: for each the same count of source
/// pixels in a row, weighted.
struct Zdroje {
    int NaBod = 0;               ///< how many
    std::vector<int> Od;         ///< the first of them
    std::vector<unsigned> Vahy;  ///< NaBod for each pixel, sum 256

    [[nodiscard]] const unsigned* VahyBodu(int i) const {
        return Vahy.data() + static_cast<std::ptrdiff_t>(i) * NaBod;
    }
};

Zdroje RozpocitejZdroje(int zdroj, int cil) {
    const double krok = static_cast<double>(zdroj) / cil;
    Zdroje z;
    z.NaBod = std::min(static_cast<int>(std::ceil(std::max(krok, 1.0))) + 1, zdroj);
    for (int i = 0; i < cil; ++i) {
        // Smaller: the span that the pixel covers. Larger: the two neighbours of its middle.
        double od = i * krok;
        double po = od + krok;
        if (krok < 1) {
            const double stred = (i + 0.5) * krok;
            od = std::max(0.0, stred - 0.5);
            po = std::min<double>(zdroj, stred + 0.5);
        }
        const int prvni = std::clamp(static_cast<int>(od), 0, zdroj - z.NaBod);
        z.Od.push_back(prvni);
        unsigned zbyva = 256;
        std::size_t nejtezsi = z.Vahy.size();
        for (int x = prvni; x < prvni + z.NaBod; ++x) {
            const double podil =
                std::max(0.0, std::min<double>(po, x + 1) - std::max<double>(od, x)) / (po - od);
            z.Vahy.push_back(std::min(static_cast<unsigned>(std::lround(podil * 256)), zbyva));
            zbyva -= z.Vahy.back();
            if (z.Vahy.back() > z.Vahy[nejtezsi]) nejtezsi = z.Vahy.size() - 1;
        }
        // Rounding may leave the sum a little short: the heaviest bears it.
        z.Vahy[nejtezsi] += zbyva;
    }
    return z;
}

/// The four channels of a pixel, 16 bits each, so that one multiplication weighs them all.
constexpr std::uint64_t Rozprostri(Pixel p) {
    return (p & 0xFF00FFu) | ((std::uint64_t{p} & 0xFF00FF00u) << 24);
}
constexpr std::uint64_t PULKY = 0x0080008000800080u;
constexpr std::uint64_t KANALY = 0x00FF00FF00FF00FFu;
constexpr Pixel Sloz(std::uint64_t kanaly) {
    return static_cast<Pixel>(kanaly | (kanaly >> 24)) | 0xFF000000u;
}

/// Two passes of weighted sums for each row of the result: down the columns, then along the row.
Bitmapa Zprumeruj(const PohledKeCteni& zdroj, int sirka, int vyska) {
    const Zdroje sloupce = RozpocitejZdroje(zdroj.Sirka, sirka);
    const Zdroje radky = RozpocitejZdroje(zdroj.Vyska, vyska);
    Bitmapa cil(sirka, vyska, 0);
    std::vector<std::uint64_t> radek(static_cast<std::size_t>(zdroj.Sirka));
    for (int y = 0; y < vyska; ++y) {
        std::fill(radek.begin(), radek.end(), PULKY);
        for (int j = 0; j < radky.NaBod; ++j) {
            const std::uint64_t vaha = radky.VahyBodu(y)[j];
            if (vaha == 0) continue;
            const Pixel* z = zdroj.Radka(radky.Od[static_cast<std::size_t>(y)] + j);
            for (std::uint64_t& kanaly : radek) kanaly += Rozprostri(*z++) * vaha;
        }
        for (std::uint64_t& kanaly : radek) kanaly = (kanaly >> 8) & KANALY;
        Pixel* c = cil.Pohled().Radka(y);
        const unsigned* vaha = sloupce.Vahy.data();
        for (const int od : sloupce.Od) {
            std::uint64_t kanaly = PULKY;
            const std::uint64_t* z = radek.data() + od;
            for (int i = 0; i < sloupce.NaBod; ++i) kanaly += *z++ * *vaha++;
            *c++ = Sloz((kanaly >> 8) & KANALY);
        }
    }
    return cil;
}

/// As the average, but the key colour neither mixes nor is mixed: what part of a pixel it takes
/// goes to the pixel's highest byte.
Bitmapa ZprumerujSKlicem(const PohledKeCteni& zdroj, int sirka, int vyska) {
    const Zdroje sloupce = RozpocitejZdroje(zdroj.Sirka, sirka);
    const Zdroje radky = RozpocitejZdroje(zdroj.Vyska, vyska);
    Bitmapa cil(sirka, vyska, 0);
    for (int y = 0; y < vyska; ++y) {
        Pixel* c = cil.Pohled().Radka(y);
        for (int x = 0; x < sirka; ++x) {
            c[x] = KLIC;
            std::uint64_t cerv = 0, zel = 0, modr = 0, vaha = 0;
            for (int j = 0; j < radky.NaBod; ++j) {
                const Pixel* z = zdroj.Radka(radky.Od[static_cast<std::size_t>(y)] + j) +
                                 sloupce.Od[static_cast<std::size_t>(x)];
                for (int i = 0; i < sloupce.NaBod; ++i) {
                    if ((z[i] | 0xFF000000u) == KLIC) continue;
                    const std::uint64_t v =
                        std::uint64_t{radky.VahyBodu(y)[j]} * sloupce.VahyBodu(x)[i];
                    cerv += ((z[i] >> 16) & 0xFFu) * v;
                    zel += ((z[i] >> 8) & 0xFFu) * v;
                    modr += (z[i] & 0xFFu) * v;
                    vaha += v;
                }
            }
            constexpr std::uint64_t PLNA = 256 * 256;
            const std::uint64_t kryti = (vaha * 255 + PLNA / 2) / PLNA;
            if (kryti == 0) continue;
            const auto stred = [&](std::uint64_t k) {
                return static_cast<Pixel>((k + vaha / 2) / vaha);
            };
            c[x] = (static_cast<Pixel>(kryti) << 24) | (stred(cerv) << 16) | (stred(zel) << 8) |
                   stred(modr);
        }
    }
    return cil;
}

/// The three channels of two pixels, taken together one by one.
template <class F>
Pixel PoKanalech(Pixel a, Pixel b, F f) {
    Pixel p = 0xFF000000u;
    for (const unsigned posun : {0u, 8u, 16u})
        p |= f((a >> posun) & 0xFFu, (b >> posun) & 0xFFu) << posun;
    return p;
}

Pixel Spoj(Prenos jak, Pixel cil, Pixel zdroj, Pixel klic) {
    const unsigned kryti = zdroj >> 24;
    switch (jak) {
        case Prenos::Kopie:
            return zdroj;
        case Prenos::BezKlice:
            return BezKlice(cil, zdroj);
        case Prenos::Soucin:
            return (cil & zdroj) | 0xFF000000u;
        case Prenos::Soucet:
            return cil | zdroj;
        case Prenos::SoucinPodilu:
            // Masks are all or nothing nearly everywhere.
            if (zdroj == DoPixelu(BILA)) return cil;
            if (zdroj == DoPixelu(CERNA)) return zdroj;
            return PoKanalech(cil, zdroj, [](Pixel a, Pixel b) { return (a * b + 127) / 255; });
        case Prenos::SoucetPodilu:
            if (zdroj == DoPixelu(CERNA)) return cil;
            if (cil == DoPixelu(CERNA)) return zdroj;
            return PoKanalech(cil, zdroj, [](Pixel a, Pixel b) { return std::min(a + b, 255u); });
        case Prenos::NaJednobitovou:
            return zdroj == klic ? DoPixelu(BILA) : 0xFF000000u | (255u - kryti) * 0x10101u;
    }
    return zdroj;
}

/// One row; the way is known to the compiler, so that nothing is decided for each pixel.
template <Prenos JAK>
void SpojRadek(Pixel* cil, const Pixel* zdroj, int n, Pixel klic) {
    if constexpr (JAK == Prenos::Kopie) {
        std::copy_n(zdroj, n, cil);
    } else {
        for (int i = 0; i < n; ++i) cil[i] = Spoj(JAK, cil[i], zdroj[i], klic);
    }
}

/// By Prenos.
constexpr std::array SPOJ_RADEK = {
    &SpojRadek<Prenos::Kopie>,          &SpojRadek<Prenos::BezKlice>,
    &SpojRadek<Prenos::Soucin>,         &SpojRadek<Prenos::Soucet>,
    &SpojRadek<Prenos::SoucinPodilu>,   &SpojRadek<Prenos::SoucetPodilu>,
    &SpojRadek<Prenos::NaJednobitovou>,
};

}  // namespace

void Vyhled::Vypln(const Obdelnik& kam, Pixel barva) const {
    const Obdelnik o = Prunik(kam, Meze());
    if (!JePrazdny(o)) VyplnRadky(Radka(o.Top) + o.Left, Krok, o.Width, o.Height, barva);
}

void Vyhled::Obrat(const Obdelnik& kde) const {
    const Obdelnik o = Prunik(kde, Meze());
    for (int y = o.Top; y < o.Top + o.Height; ++y) {
        for (int x = o.Left; x < o.Left + o.Width; ++x) Radka(y)[x] ^= 0xFFFFFFu;
    }
}

Bitmapa::Bitmapa(int sirka, int vyska, Pixel barva)
    : Sirka(std::max(sirka, 0)),
      Vyska(std::max(vyska, 0)),
      Body(static_cast<std::size_t>(Sirka) * static_cast<std::size_t>(Vyska), barva) {}

int Zvetsi(int x, double s) {
    return static_cast<int>(std::floor(x * s + 0.5));
}

Obdelnik Zvetsi(const Obdelnik& o, double s) {
    const int x = Zvetsi(o.Left, s);
    const int y = Zvetsi(o.Top, s);
    return {x, y, Zvetsi(o.Left + o.Width, s) - x, Zvetsi(o.Top + o.Height, s) - y};
}

void Prenes(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Bitmapa& zdroj,
            int zx, int zy, Prenos jak, Pixel klic) {
    if (zdroj.Prazdna()) return;
    const Obdelnik o = Prunik(Prunik(kam, orez), cil.Meze());
    if (JePrazdny(o)) return;
    const int posunX = zx - kam.Left;
    const int prvni = std::clamp(-posunX, o.Left, o.Left + o.Width);
    const int konec = std::clamp(zdroj.Sirka - posunX, prvni, o.Left + o.Width);
    const auto spoj = SPOJ_RADEK[static_cast<std::size_t>(jak)];
    for (int y = o.Top; y < o.Top + o.Height; ++y) {
        const Pixel* z = zdroj.Radka(std::clamp(y - kam.Top + zy, 0, zdroj.Vyska - 1));
        Pixel* c = cil.Radka(y);
        for (int x = o.Left; x < prvni; ++x) c[x] = Spoj(jak, c[x], z[0], klic);
        spoj(c + prvni, z + prvni + posunX, konec - prvni, klic);
        for (int x = konec; x < o.Left + o.Width; ++x)
            c[x] = Spoj(jak, c[x], z[zdroj.Sirka - 1], klic);
    }
}

Bitmapa Preskaluj(const PohledKeCteni& zdroj, int sirka, int vyska, bool sKlicem) {
    sirka = std::max(sirka, 1);
    vyska = std::max(vyska, 1);
    if (zdroj.Sirka < 1 || zdroj.Vyska < 1) return {};
    return sKlicem ? ZprumerujSKlicem(zdroj, sirka, vyska) : Zprumeruj(zdroj, sirka, vyska);
}

}  // namespace rysovna
