#include "platform/Bitmapa.h"

#include <algorithm>
#include <cmath>

namespace rysovna {

namespace {

/// Where each pixel of a resized row comes from: whole source pixels from Od, weighted.
struct Zdroje {
    int Od = 0;
    std::vector<unsigned> Vahy;  ///< sum 256
};

std::vector<Zdroje> RozpocitejZdroje(int zdroj, int cil) {
    std::vector<Zdroje> vse(static_cast<std::size_t>(cil));
    const double krok = static_cast<double>(zdroj) / cil;
    for (int i = 0; i < cil; ++i) {
        Zdroje& z = vse[static_cast<std::size_t>(i)];
        // Smaller: the span that the pixel covers. Larger: the two neighbours of its middle.
        double od = i * krok;
        double po = od + krok;
        if (krok < 1) {
            const double stred = (i + 0.5) * krok;
            od = std::max(0.0, stred - 0.5);
            po = std::min<double>(zdroj, stred + 0.5);
        }
        z.Od = std::min(static_cast<int>(od), zdroj - 1);
        const int posledni = std::clamp(static_cast<int>(std::ceil(po)) - 1, z.Od, zdroj - 1);
        double soucet = 0;
        std::vector<double> vahy;
        for (int x = z.Od; x <= posledni; ++x) {
            vahy.push_back(std::max(0.0, std::min<double>(po, x + 1) - std::max<double>(od, x)));
            soucet += vahy.back();
        }
        unsigned dano = 0;
        for (const double v : vahy) {
            z.Vahy.push_back(static_cast<unsigned>(std::lround(v / soucet * 256)));
            dano += z.Vahy.back();
        }
        // Rounding may leave the sum a little off: the heaviest bears it.
        auto nejtezsi = std::max_element(z.Vahy.begin(), z.Vahy.end());
        *nejtezsi += 256u - dano;
    }
    return vse;
}

/// Two passes of weighted sums, first along the rows. The channels are summed in pairs.
Bitmapa Zprumeruj(const Bitmapa& zdroj, int sirka, int vyska) {
    const auto sloupce = RozpocitejZdroje(zdroj.Sirka, sirka);
    const auto radky = RozpocitejZdroje(zdroj.Vyska, vyska);
    Bitmapa cil(sirka, vyska, 0);
    std::vector<Pixel> uzsi(static_cast<std::size_t>(sirka) *
                            static_cast<std::size_t>(zdroj.Vyska));
    for (int y = 0; y < zdroj.Vyska; ++y) {
        const Pixel* z = zdroj.Radka(y);
        Pixel* c = uzsi.data() + static_cast<std::ptrdiff_t>(y) * sirka;
        for (const Zdroje& s : sloupce) {
            unsigned rb = 0x00800080u, g = 0x80u;
            const Pixel* p = z + s.Od;
            for (const unsigned vaha : s.Vahy) {
                rb += (*p & 0xFF00FFu) * vaha;
                g += ((*p >> 8) & 0xFFu) * vaha;
                ++p;
            }
            *c++ = 0xFF000000u | ((rb >> 8) & 0xFF00FFu) | (g & 0xFF00u);
        }
    }
    std::vector<unsigned> rb(static_cast<std::size_t>(sirka)), g(rb.size());
    for (int y = 0; y < vyska; ++y) {
        const Zdroje& s = radky[static_cast<std::size_t>(y)];
        std::fill(rb.begin(), rb.end(), 0x00800080u);
        std::fill(g.begin(), g.end(), 0x80u);
        for (std::size_t i = 0; i < s.Vahy.size(); ++i) {
            const Pixel* z = uzsi.data() + (s.Od + static_cast<std::ptrdiff_t>(i)) * sirka;
            const unsigned vaha = s.Vahy[i];
            for (std::size_t x = 0; x < rb.size(); ++x) {
                rb[x] += (z[x] & 0xFF00FFu) * vaha;
                g[x] += ((z[x] >> 8) & 0xFFu) * vaha;
            }
        }
        Pixel* c = cil.Pohled().Radka(y);
        for (std::size_t x = 0; x < rb.size(); ++x)
            c[x] = 0xFF000000u | ((rb[x] >> 8) & 0xFF00FFu) | (g[x] & 0xFF00u);
    }
    return cil;
}

/// As the average, but the key colour neither mixes nor is mixed.
Bitmapa ZprumerujSKlicem(const Bitmapa& zdroj, int sirka, int vyska) {
    const auto sloupce = RozpocitejZdroje(zdroj.Sirka, sirka);
    const auto radky = RozpocitejZdroje(zdroj.Vyska, vyska);
    Bitmapa cil(sirka, vyska, 0);
    for (int y = 0; y < vyska; ++y) {
        const Zdroje& r = radky[static_cast<std::size_t>(y)];
        const int stredY = std::min((2 * y + 1) * zdroj.Vyska / (2 * vyska), zdroj.Vyska - 1);
        Pixel* c = cil.Pohled().Radka(y);
        for (int x = 0; x < sirka; ++x) {
            const int stredX = std::min((2 * x + 1) * zdroj.Sirka / (2 * sirka), zdroj.Sirka - 1);
            c[x] = zdroj.Radka(stredY)[stredX];
            if (c[x] == KLIC) continue;
            const Zdroje& s = sloupce[static_cast<std::size_t>(x)];
            std::uint64_t cerv = 0, zel = 0, modr = 0, vaha = 0;
            for (std::size_t j = 0; j < r.Vahy.size(); ++j) {
                const Pixel* z = zdroj.Radka(r.Od + static_cast<int>(j)) + s.Od;
                for (std::size_t i = 0; i < s.Vahy.size(); ++i) {
                    if (z[i] == KLIC) continue;
                    const std::uint64_t v = std::uint64_t{r.Vahy[j]} * s.Vahy[i];
                    cerv += ((z[i] >> 16) & 0xFFu) * v;
                    zel += ((z[i] >> 8) & 0xFFu) * v;
                    modr += (z[i] & 0xFFu) * v;
                    vaha += v;
                }
            }
            if (vaha == 0) continue;
            const auto stred = [&](std::uint64_t k) {
                return static_cast<Pixel>((k + vaha / 2) / vaha);
            };
            c[x] = 0xFF000000u | (stred(cerv) << 16) | (stred(zel) << 8) | stred(modr);
        }
    }
    return cil;
}

Pixel Spoj(Prenos jak, Pixel cil, Pixel zdroj, Pixel klic) {
    switch (jak) {
        case Prenos::Kopie:
            return zdroj;
        case Prenos::BezKlice:
            return zdroj == KLIC ? cil : zdroj;
        case Prenos::Soucin:
            return (cil & zdroj) | 0xFF000000u;
        case Prenos::Soucet:
            return cil | zdroj;
        case Prenos::NaJednobitovou:
            return zdroj == klic ? DoPixelu(BILA) : DoPixelu(CERNA);
    }
    return zdroj;
}

}  // namespace

void Vyhled::Vypln(const Obdelnik& kam, Pixel barva) const {
    const Obdelnik o = Prunik(kam, Meze());
    for (int y = o.Top; y < o.Top + o.Height; ++y)
        std::fill_n(Radka(y) + o.Left, std::max(o.Width, 0), barva);
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

Obdelnik Prunik(const Obdelnik& a, const Obdelnik& b) {
    const int x1 = std::max(a.Left, b.Left);
    const int y1 = std::max(a.Top, b.Top);
    const int x2 = std::min(a.Left + a.Width, b.Left + b.Width);
    const int y2 = std::min(a.Top + a.Height, b.Top + b.Height);
    if (x2 <= x1 || y2 <= y1) return {x1, y1, 0, 0};
    return {x1, y1, x2 - x1, y2 - y1};
}

Obdelnik Obal(const Obdelnik& a, const Obdelnik& b) {
    if (JePrazdny(a)) return b;
    if (JePrazdny(b)) return a;
    const int x1 = std::min(a.Left, b.Left);
    const int y1 = std::min(a.Top, b.Top);
    const int x2 = std::max(a.Left + a.Width, b.Left + b.Width);
    const int y2 = std::max(a.Top + a.Height, b.Top + b.Height);
    return {x1, y1, x2 - x1, y2 - y1};
}

bool Pokryva(const Obdelnik& a, const Obdelnik& b) {
    return JePrazdny(b) || Prunik(a, b) == b;
}

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
    const int prvni = std::max(o.Left, -posunX);
    const int konec = std::min(o.Left + o.Width, zdroj.Sirka - posunX);
    for (int y = o.Top; y < o.Top + o.Height; ++y) {
        const Pixel* z = zdroj.Radka(std::clamp(y - kam.Top + zy, 0, zdroj.Vyska - 1));
        Pixel* c = cil.Radka(y);
        if (jak == Prenos::Kopie && prvni == o.Left && konec == o.Left + o.Width) {
            std::copy_n(z + prvni + posunX, konec - prvni, c + prvni);
            continue;
        }
        for (int x = o.Left; x < o.Left + o.Width; ++x)
            c[x] = Spoj(jak, c[x], z[std::clamp(x + posunX, 0, zdroj.Sirka - 1)], klic);
    }
}

Bitmapa Preskaluj(const Bitmapa& zdroj, int sirka, int vyska, bool sKlicem) {
    sirka = std::max(sirka, 1);
    vyska = std::max(vyska, 1);
    if (zdroj.Prazdna() || (sirka == zdroj.Sirka && vyska == zdroj.Vyska)) return zdroj;
    return sKlicem ? ZprumerujSKlicem(zdroj, sirka, vyska) : Zprumeruj(zdroj, sirka, vyska);
}

}  // namespace rysovna
