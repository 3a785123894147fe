#include "store/TextRadku.h"

#include <charconv>

namespace rysovna {

std::string NaRadek(std::string_view text) {
    constexpr std::string_view CISLICE = "0123456789ABCDEF";
    constexpr unsigned char MEZERA = ' ';
    std::string radek;
    for (const char c : text) {
        const auto bajt = static_cast<unsigned char>(c);
        if (bajt >= MEZERA && c != '%') {
            radek += c;
        } else {
            radek += {'%', CISLICE[bajt >> 4], CISLICE[bajt & 15]};
        }
    }
    return radek;
}

std::string ZRadku(std::string_view radek) {
    std::string text;
    for (std::size_t i = 0; i < radek.size(); ++i) {
        unsigned bajt = 0;
        const char* const kod = radek.data() + i + 1;
        const bool je = radek[i] == '%' && i + 2 < radek.size() &&
                        std::from_chars(kod, kod + 2, bajt, 16).ptr == kod + 2;
        text += je ? static_cast<char>(bajt) : radek[i];
        if (je) i += 2;
    }
    return text;
}

}  // namespace rysovna
