#include "platform/Zalom.h"

#include "base/Text.h"
#include "platform/Pisma.h"

namespace rysovna {

namespace {

/// Whether a row likes to end at this blank: Czech leaves neither a number nor a preposition of one
/// letter at the end of a row.
bool JdeZalomit(std::u32string_view znaky, std::size_t mezera) {
    constexpr std::u32string_view PREDLOZKY = U"osvzV";
    if (mezera == 0) return true;
    const char32_t znak = znaky[mezera - 1];
    if (znak >= U'0' && znak <= U'9') return false;
    const bool samo = mezera == 1 || znaky[mezera - 2] == U' ' || znaky[mezera - 2] == U'\n';
    return !(samo && PREDLOZKY.find(znak) != std::u32string_view::npos);
}

}  // namespace

std::vector<std::string> RozdelNaRadky(const Pismo& pismo, std::string_view text, int sirka) {
    std::vector<std::string> radky;
    const std::u32string znaky = DoZnaku(text);
    const std::vector<double> x = Zacatky(pismo, text);
    std::size_t zacatek = 0;
    std::size_t mezera = std::u32string::npos;
    std::size_t nouzova = std::u32string::npos;
    const auto zalom = [&](std::size_t konec, std::size_t dalsi) {
        radky.push_back(ZeZnaku(std::u32string_view(znaky).substr(zacatek, konec - zacatek)));
        zacatek = dalsi;
        mezera = nouzova = std::u32string::npos;
    };
    for (std::size_t i = 0; i < znaky.size(); ++i) {
        if (znaky[i] == U'\r') continue;
        if (znaky[i] == U'\n') {
            zalom(i > zacatek && znaky[i - 1] == U'\r' ? i - 1 : i, i + 1);
        } else if (znaky[i] == U' ') {
            (JdeZalomit(znaky, i) ? mezera : nouzova) = i;
        } else if (sirka > 0 && x[i + 1] - x[zacatek] > sirka && i > zacatek) {
            if (mezera == std::u32string::npos) mezera = nouzova;
            if (mezera == std::u32string::npos) {
                zalom(i, i);
            } else {
                zalom(mezera, mezera + 1);
            }
        }
    }
    zalom(znaky.size(), znaky.size());
    return radky;
}

}  // namespace rysovna
