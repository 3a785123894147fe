#include "platform/bmp/Bmp.h"

#include <algorithm>
#include <fstream>
#include <zlib.h>

#include "base/Chyba.h"
#include "platform/bmp/Sbaleni.h"

// The format: a file header of 14 bytes ("BM", at 10 where the pixels begin), an information header
// (at 14 its size, at 18 width, at 22 height, at 28 bits a pixel, at 30 compression, at 46 colours
// of the palette), then the palette, four bytes each, then the rows, bottom up unless the height is
// negative, each filled up to a multiple of four bytes. All numbers little-endian. A packed file
// has a compression of its own, the print at 6, where others have nothing, and all its rows
// deflated.

namespace rysovna {

namespace {

constexpr std::size_t HLAVICKA = 54;
constexpr std::uint32_t BEZ_KOMPRESE = 0;
constexpr std::uint32_t ZABALENO = 0x5A535952;  // "RYSZ"
constexpr int NEJVIC_BAREV = 256;
/// No picture of the program comes near this; a larger one is a damaged header.
constexpr int NEJVETSI_ROZMER = 16384;

std::uint32_t Cislo(const std::string& data, std::size_t misto, int bytu) {
    std::uint32_t x = 0;
    for (int i = bytu; i-- > 0;)
        x = x << 8 | static_cast<unsigned char>(data[misto + static_cast<std::size_t>(i)]);
    return x;
}

void Pripis(std::string& data, std::uint32_t x, int bytu) {
    for (int i = 0; i < bytu; ++i) data.push_back(static_cast<char>(x >> (8 * i)));
}

/// Bytes of a row, filled up.
std::size_t KrokRadku(int sirka, int bajtuNaBod) {
    return (static_cast<std::size_t>(sirka) * static_cast<std::size_t>(bajtuNaBod) + 3) / 4 * 4;
}

/// All that the headers say.
struct Hlavicka {
    int Sirka, Vyska;
    bool Odshora, Zabaleny;
    int BajtuNaBod;
    std::size_t Barev, Zacatek;
    std::uint32_t Otisk;
};

BehovaChyba Vadny(const std::string& proc, const std::string& kde) {
    return BehovaChyba("Vadný obrázek: " + proc, kde);
}

Hlavicka PrectiHlavicku(const std::string& data, const std::string& kde) {
    if (data.size() < HLAVICKA) throw Vadny("je useknutý", kde);
    if (data.compare(0, 2, "BM") != 0) throw Vadny("není to bitmapa", kde);
    const auto rozmer = [&](std::size_t misto) {
        return static_cast<std::int32_t>(Cislo(data, misto, 4));
    };
    const std::uint32_t bitu = Cislo(data, 28, 2);
    const std::uint32_t komprese = Cislo(data, 30, 4);
    const bool zabaleny = komprese == ZABALENO;
    if ((komprese != BEZ_KOMPRESE && !zabaleny) || (bitu != 24 && !(zabaleny && bitu == 8)))
        throw Vadny("nemá 24 bitů na bod bez komprese", kde);
    const std::int32_t sirka = rozmer(18);
    const std::int32_t vyska = rozmer(22);
    const std::uint32_t zacatek = Cislo(data, 10, 4);
    const std::uint32_t barev = bitu == 8 ? Cislo(data, 46, 4) : 0;
    if (sirka < 1 || sirka > NEJVETSI_ROZMER || vyska == 0 || vyska < -NEJVETSI_ROZMER ||
        vyska > NEJVETSI_ROZMER || barev > NEJVIC_BAREV || zacatek < HLAVICKA + 4 * barev)
        throw Vadny("nesmyslné rozměry", kde);
    return {sirka,   vyska < 0 ? -vyska : vyska, vyska < 0, zabaleny, bitu == 8 ? 1 : 3, barev,
            zacatek, Cislo(data, 6, 4)};
}

/// The file's beginning, at most so many bytes.
std::string NactiZacatek(const std::filesystem::path& soubor, std::size_t nejvic) {
    std::ifstream vstup(soubor, std::ios::binary | std::ios::ate);
    if (!vstup) throw BehovaChyba("Nelze otevřít obrázek", soubor.string());
    const std::streamoff delka = vstup.tellg();
    if (delka < 0) throw Vadny("nelze přečíst", soubor.string());
    std::string data(std::min(static_cast<std::size_t>(delka), nejvic), '\0');
    vstup.seekg(0);
    vstup.read(data.data(), static_cast<std::streamsize>(data.size()));
    if (!vstup) throw Vadny("nelze přečíst", soubor.string());
    return data;
}

/// The headers of a file of that size.
std::string SlozHlavicku(const ObrazBmp& o, std::uint32_t bitu, std::uint32_t komprese,
                         std::uint32_t otisk, std::size_t barev, std::size_t dat) {
    const auto zacatek = static_cast<std::uint32_t>(HLAVICKA + 4 * barev);
    const auto delka = static_cast<std::uint32_t>(dat);
    std::string h = "BM";
    for (const std::uint32_t x :
         {zacatek + delka, otisk, zacatek, 40U, static_cast<std::uint32_t>(o.Sirka),
          static_cast<std::uint32_t>(o.Vyska)})
        Pripis(h, x, 4);
    Pripis(h, 1, 2);  // planes
    Pripis(h, bitu, 2);
    // 3780: 96 dots an inch in dots a metre
    for (const std::uint32_t x :
         {komprese, delka, 3780U, 3780U, static_cast<std::uint32_t>(barev), 0U})
        Pripis(h, x, 4);
    return h;
}

/// The rows as they stand in a file, by what one pixel is there.
template <class Bod>
std::string SlozRadky(const ObrazBmp& o, int bajtuNaBod, Bod bod) {
    std::string radky;
    const std::size_t krok = KrokRadku(o.Sirka, bajtuNaBod);
    radky.reserve(krok * static_cast<std::size_t>(o.Vyska));
    for (int y = o.Vyska - 1; y >= 0; --y) {
        for (int x = 0; x < o.Sirka; ++x)
            Pripis(radky, bod(o.Body[static_cast<std::size_t>(y * o.Sirka + x)]), bajtuNaBod);
        while (radky.size() % krok != 0) radky.push_back('\0');
    }
    return radky;
}

/// The colours of a picture in rising order; empty when there are more than a palette holds.
std::vector<std::uint32_t> Paleta(const ObrazBmp& o) {
    std::vector<std::uint32_t> barvy;
    for (const std::uint32_t b : o.Body) {
        const auto kam = std::lower_bound(barvy.begin(), barvy.end(), b);
        if (kam != barvy.end() && *kam == b) continue;
        if (barvy.size() == NEJVIC_BAREV) return {};
        barvy.insert(kam, b);
    }
    return barvy;
}

}  // namespace

std::uint32_t OtiskBodu(const ObrazBmp& obraz) {
    std::string data;
    Pripis(data, static_cast<std::uint32_t>(obraz.Sirka), 4);
    data += SlozRadky(obraz, 3, [](std::uint32_t b) { return b; });
    return static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const unsigned char*>(data.data()),
                                            static_cast<uInt>(data.size())));
}

std::string ProstyBmp(const ObrazBmp& obraz) {
    const std::string radky = SlozRadky(obraz, 3, [](std::uint32_t b) { return b; });
    return SlozHlavicku(obraz, 24, BEZ_KOMPRESE, 0, 0, radky.size()) + radky;
}

std::string ZabalenyBmp(const ObrazBmp& obraz) {
    const std::vector<std::uint32_t> barvy = Paleta(obraz);
    const bool sPaletou = !barvy.empty();
    const std::string radky = Sbal(SlozRadky(obraz, sPaletou ? 1 : 3, [&](std::uint32_t b) {
        if (!sPaletou) return b;
        const auto kde = std::lower_bound(barvy.begin(), barvy.end(), b);
        return static_cast<std::uint32_t>(kde - barvy.begin());
    }));
    std::string vysledek = SlozHlavicku(obraz, sPaletou ? 8 : 24, ZABALENO, OtiskBodu(obraz),
                                        barvy.size(), radky.size());
    for (const std::uint32_t b : barvy) Pripis(vysledek, b & 0xFFFFFFU, 4);
    return vysledek + radky;
}

ObrazBmp NactiObrazBmp(const std::filesystem::path& soubor) {
    return CtiBmp(NactiZacatek(soubor, std::string::npos), soubor.string());
}

ObrazBmp CtiBmp(std::string data, const std::string& kde) {
    const Hlavicka h = PrectiHlavicku(data, kde);
    const std::size_t krok = KrokRadku(h.Sirka, h.BajtuNaBod);
    const std::size_t delka = krok * static_cast<std::size_t>(h.Vyska);
    if (data.size() < h.Zacatek) throw Vadny("je useknutý", kde);
    std::vector<std::uint32_t> barvy;
    for (std::size_t i = 0; i < h.Barev; ++i)
        barvy.push_back(0xFF000000U | Cislo(data, HLAVICKA + 4 * i, 3));
    std::size_t zacatek = h.Zacatek;
    if (h.Zabaleny) {
        auto radky = Rozbal(std::string_view(data).substr(zacatek), delka);
        if (!radky) throw Vadny("nejde rozbalit", kde);
        data = std::move(*radky);
        zacatek = 0;
    }
    if (data.size() - zacatek < delka) throw Vadny("je useknutý", kde);

    ObrazBmp o{h.Sirka, h.Vyska, {}};
    o.Body.reserve(static_cast<std::size_t>(h.Sirka) * static_cast<std::size_t>(h.Vyska));
    for (int y = 0; y < h.Vyska; ++y) {
        const auto r = static_cast<std::size_t>(h.Odshora ? y : h.Vyska - 1 - y);
        const auto* z = reinterpret_cast<const unsigned char*>(data.data()) + zacatek + r * krok;
        for (int x = 0; x < h.Sirka; ++x, z += h.BajtuNaBod) {
            if (h.BajtuNaBod == 3) {
                o.Body.push_back(0xFF000000U | (unsigned{z[2]} << 16) | (unsigned{z[1]} << 8) |
                                 z[0]);
            } else {
                if (*z >= barvy.size()) throw Vadny("barva mimo paletu", kde);
                o.Body.push_back(barvy[*z]);
            }
        }
    }
    return o;
}

HlavaBmp NactiHlavuBmp(const std::filesystem::path& soubor) {
    const Hlavicka h = PrectiHlavicku(NactiZacatek(soubor, HLAVICKA), soubor.string());
    return {h.Sirka, h.Vyska, h.Zabaleny ? std::optional(h.Otisk) : std::nullopt};
}

}  // namespace rysovna
