#include "base/Text.h"

namespace rysovna {

namespace {

constexpr char32_t NAHRADA = 0xFFFD;

/// Length of the sequence that begins with this byte; 0 if none does.
int DelkaPosloupnosti(unsigned char prvni) {
    if (prvni < 0x80) return 1;
    if (prvni >= 0xC2 && prvni < 0xE0) return 2;
    if (prvni >= 0xE0 && prvni < 0xF0) return 3;
    if (prvni >= 0xF0 && prvni < 0xF5) return 4;
    return 0;
}

/// Whether a sequence of so many bytes may stand for this number: not one that a shorter sequence
/// could say, no half of a pair, none beyond the last character.
bool JeZnak(char32_t kod, std::size_t bajtu) {
    constexpr char32_t NEJMENSI[] = {0, 0, 0x80, 0x800, 0x10000};
    constexpr char32_t PRVNI_PULKA = 0xD800, ZA_PULKAMI = 0xE000, POSLEDNI = 0x10FFFF;
    return kod >= NEJMENSI[bajtu] && kod <= POSLEDNI && (kod < PRVNI_PULKA || kod >= ZA_PULKAMI);
}

}  // namespace

std::u32string DoZnaku(std::string_view utf8) {
    std::u32string znaky;
    znaky.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto prvni = static_cast<unsigned char>(utf8[i]);
        const auto n = static_cast<std::size_t>(DelkaPosloupnosti(prvni));
        char32_t kod = NAHRADA;
        std::size_t krok = 1;
        if (n == 1) {
            kod = prvni;
        } else if (n > 1 && i + n <= utf8.size()) {
            char32_t slozeny = prvni & (0x7Fu >> n);
            bool platny = true;
            for (std::size_t j = 1; j < n; ++j) {
                const auto dalsi = static_cast<unsigned char>(utf8[i + j]);
                platny = platny && (dalsi & 0xC0) == 0x80;
                slozeny = (slozeny << 6) | (dalsi & 0x3Fu);
            }
            if (platny && JeZnak(slozeny, n)) {
                kod = slozeny;
                krok = n;
            }
        }
        znaky.push_back(kod);
        i += krok;
    }
    return znaky;
}

std::string ZeZnaku(std::u32string_view znaky) {
    std::string utf8;
    utf8.reserve(znaky.size());
    for (const char32_t kod : znaky) {
        const auto pridej = [&utf8](char32_t bajt) { utf8.push_back(static_cast<char>(bajt)); };
        if (kod < 0x80) {
            pridej(kod);
        } else if (kod < 0x800) {
            pridej(0xC0 | (kod >> 6));
            pridej(0x80 | (kod & 0x3F));
        } else if (kod < 0x10000) {
            pridej(0xE0 | (kod >> 12));
            pridej(0x80 | ((kod >> 6) & 0x3F));
            pridej(0x80 | (kod & 0x3F));
        } else {
            pridej(0xF0 | (kod >> 18));
            pridej(0x80 | ((kod >> 12) & 0x3F));
            pridej(0x80 | ((kod >> 6) & 0x3F));
            pridej(0x80 | (kod & 0x3F));
        }
    }
    return utf8;
}

int PocetZnaku(std::string_view utf8) {
    return static_cast<int>(DoZnaku(utf8).size());
}

std::string Dopln(std::string_view utf8, int sirka) {
    std::string text(utf8);
    const int chybi = sirka - PocetZnaku(utf8);
    if (chybi > 0) text.append(static_cast<std::size_t>(chybi), ' ');
    return text;
}

std::string BezUvodnichMezer(std::string_view text) {
    const std::size_t zacatek = text.find_first_not_of(' ');
    return zacatek == std::string_view::npos ? std::string() : std::string(text.substr(zacatek));
}

std::string BezKrajnichMezer(std::string_view text) {
    return BezUvodnichMezer(text.substr(0, text.find_last_not_of(' ') + 1));
}

}  // namespace rysovna
