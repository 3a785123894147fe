#include "store/KodovaStranka.h"

#include <algorithm>
#include <array>

#include "base/Chyba.h"
#include "base/Text.h"

namespace rysovna {
namespace {

constexpr char16_t NIC = 0;
constexpr unsigned char PRVNI_HORNI = 0x80;

// The upper half of Windows-1250, bytes 0x80 to 0xFF; NIC where the page defines none.
constexpr std::array<char16_t, 128> HORNI_1250{
    0x20AC, NIC,    0x201A, NIC,    0x201E, 0x2026, 0x2020, 0x2021,  // 80
    NIC,    0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,  // 88
    NIC,    0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    NIC,    0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,  // 98
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7,  // A0
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,  // A8
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7,  // B0
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,  // B8
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,  // C0
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,  // C8
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7,  // D0
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,  // D8
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,  // E0
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,  // E8
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,  // F0
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,  // F8
};

char16_t Znak(unsigned char bajt) {
    return bajt < PRVNI_HORNI ? bajt : HORNI_1250[bajt - PRVNI_HORNI];
}

/// The byte of a character; nothing if the page lacks it.
std::optional<unsigned char> BajtZnaku(char32_t znak) {
    if (znak < PRVNI_HORNI) return static_cast<unsigned char>(znak);
    const auto* const i = std::ranges::find(HORNI_1250, znak);
    if (i == HORNI_1250.end()) return std::nullopt;
    return static_cast<unsigned char>(PRVNI_HORNI + (i - HORNI_1250.begin()));
}

}  // namespace

std::optional<std::size_t> NedefinovanyBajt(std::string_view bajty) {
    for (std::size_t i = 0; i < bajty.size(); ++i) {
        const auto bajt = static_cast<unsigned char>(bajty[i]);
        if (bajt != 0 && Znak(bajt) == NIC) return i;
    }
    return std::nullopt;
}

std::string Z1250(std::string_view bajty, const std::string& misto) {
    if (NedefinovanyBajt(bajty)) throw BehovaChyba("Znak mimo kódovou stránku 1250", misto);
    std::u32string znaky;
    znaky.reserve(bajty.size());
    for (const char c : bajty) znaky += Znak(static_cast<unsigned char>(c));
    return ZeZnaku(znaky);
}

std::string Z1250Vzdy(std::string_view bajty) {
    constexpr char32_t NEZNAMY = 0xFFFD;
    std::u32string znaky;
    znaky.reserve(bajty.size());
    for (const char c : bajty) {
        const char16_t znak = Znak(static_cast<unsigned char>(c));
        znaky += znak == NIC && c != 0 ? NEZNAMY : znak;
    }
    return ZeZnaku(znaky);
}

std::string Do1250(std::string_view utf8) {
    std::string bajty;
    for (const char32_t znak : DoZnaku(utf8)) {
        bajty += static_cast<char>(BajtZnaku(znak).value_or('?'));
    }
    return bajty;
}

std::optional<std::size_t> ZnakMimoStranku(std::string_view utf8) {
    const std::u32string znaky = DoZnaku(utf8);
    const auto i = std::ranges::find_if(znaky, [](char32_t znak) { return !BajtZnaku(znak); });
    if (i == znaky.end()) return std::nullopt;
    return static_cast<std::size_t>(i - znaky.begin());
}

}  // namespace rysovna
