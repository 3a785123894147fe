#include <array>
#include <cstring>
#include <fstream>

#include "base/Chyba.h"
#include "platform/ObrazekData.h"

// The format: a file header of 14 bytes ("BM", at 10 where the pixels begin), an information header
// (at 14 its size, at 18 width, at 22 height, at 28 bits a pixel, at 30 compression), then the
// rows, bottom up unless the height is negative, each filled up to a multiple of four bytes. All
// numbers little-endian.

namespace rysovna {

namespace {

constexpr std::size_t HLAVICKA = 54;
/// No picture of the program comes near this; a larger one is a damaged header.
constexpr int NEJVETSI_ROZMER = 16384;

std::int32_t Cislo32(const std::string& data, std::size_t misto) {
    std::array<unsigned char, 4> b{};
    std::memcpy(b.data(), data.data() + misto, 4);
    return static_cast<std::int32_t>(b[0] | (unsigned{b[1]} << 8) | (unsigned{b[2]} << 16) |
                                     (unsigned{b[3]} << 24));
}

std::int32_t Cislo16(const std::string& data, std::size_t misto) {
    return static_cast<unsigned char>(data[misto]) |
           (static_cast<unsigned char>(data[misto + 1]) << 8);
}

}  // namespace

Bitmapa NactiBmp(const std::filesystem::path& soubor) {
    const auto vadny = [&](const std::string& proc) {
        return BehovaChyba("Vadný obrázek: " + proc, soubor.string());
    };
    std::ifstream vstup(soubor, std::ios::binary | std::ios::ate);
    if (!vstup) throw BehovaChyba("Nelze otevřít obrázek", soubor.string());
    const std::streamoff delka = vstup.tellg();
    if (delka < 0) throw vadny("nelze přečíst");
    std::string data(static_cast<std::size_t>(delka), '\0');
    vstup.seekg(0);
    vstup.read(data.data(), delka);
    if (!vstup) throw vadny("nelze přečíst");
    if (data.size() < HLAVICKA) throw vadny("je useknutý");
    if (data.compare(0, 2, "BM") != 0) throw vadny("není to bitmapa");
    const std::int32_t zacatek = Cislo32(data, 10);
    const std::int32_t sirka = Cislo32(data, 18);
    const std::int32_t vyska = Cislo32(data, 22);
    if (Cislo16(data, 28) != 24 || Cislo32(data, 30) != 0)
        throw vadny("nemá 24 bitů na bod bez komprese");
    if (sirka < 1 || sirka > NEJVETSI_ROZMER || vyska == 0 || vyska < -NEJVETSI_ROZMER ||
        vyska > NEJVETSI_ROZMER || zacatek < static_cast<std::int32_t>(HLAVICKA))
        throw vadny("nesmyslné rozměry");
    const bool odshora = vyska < 0;
    const int radek = odshora ? -vyska : vyska;
    const auto krok = (static_cast<std::size_t>(sirka) * 3 + 3) / 4 * 4;
    if (data.size() < static_cast<std::size_t>(zacatek) + krok * static_cast<std::size_t>(radek))
        throw vadny("je useknutý");

    Bitmapa obraz(sirka, radek, 0);
    for (int y = 0; y < radek; ++y) {
        const auto r = static_cast<std::size_t>(odshora ? y : radek - 1 - y);
        const auto* z = reinterpret_cast<const unsigned char*>(data.data()) + zacatek + r * krok;
        Pixel* c = obraz.Pohled().Radka(y);
        for (int x = 0; x < sirka; ++x, z += 3)
            c[x] = 0xFF000000u | (unsigned{z[2]} << 16) | (unsigned{z[1]} << 8) | z[0];
    }
    return obraz;
}

}  // namespace rysovna
