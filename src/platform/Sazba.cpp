#include "platform/Sazba.h"

#include "base/Text.h"

namespace rysovna {

namespace {

/// What may stand before or behind.
enum class Okoli { Cokoli, Cislice, Mimo };

/// One rule: where one of Prvni, followed by one of Druhy, stands between such neighbours, Nove
/// takes the place of the first; or, where there is none, the second becomes its index.
struct Pravidlo {
    Okoli Pred;
    std::u32string_view Prvni, Druhy;
    Okoli Za;
    std::u32string_view Nove;
};

constexpr std::u32string_view PISMENA = U"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::u32string_view CISLICE = U"0123456789";
constexpr std::u32string_view BEZE_ZMENY = U"";

/// The first rule that fits holds.
constexpr Pravidlo PRAVIDLA[] = {
    {Okoli::Mimo, U"vtS", U"abcd", Okoli::Mimo, BEZE_ZMENY},       // heights, medians, midpoints
    {Okoli::Cokoli, PISMENA, CISLICE, Okoli::Cokoli, BEZE_ZMENY},  // A1, k2
    {Okoli::Cokoli, U"<", PISMENA, Okoli::Cokoli, U"∢"},           // |<ABC|
    {Okoli::Mimo, U"-", CISLICE, Okoli::Cokoli, U"\u2212"},        // a minus, no hyphen
    {Okoli::Cislice, U" ", U"°", Okoli::Cokoli, U"\u2009"},        // 45 °
    {Okoli::Cislice, U"°", U"", Okoli::Cokoli, U"\u2009°"},        // 45°
};

bool JeSlovo(char32_t z) {
    return z >= 0x80 || PISMENA.find(z) != std::u32string_view::npos ||
           CISLICE.find(z) != std::u32string_view::npos;
}

/// Whether the place, which may lie beside the text, is such a one.
bool Sedi(Okoli okoli, std::u32string_view text, std::size_t i) {
    if (okoli == Okoli::Cokoli) return true;
    if (okoli == Okoli::Mimo) return i >= text.size() || !JeSlovo(text[i]);
    return i < text.size() && CISLICE.find(text[i]) != std::u32string_view::npos;
}

const Pravidlo* Najdi(std::u32string_view text, std::size_t i) {
    for (const Pravidlo& p : PRAVIDLA) {
        const std::size_t za = i + (p.Druhy.empty() ? 1 : 2);
        if (za > text.size() || p.Prvni.find(text[i]) == std::u32string_view::npos) continue;
        if (!p.Druhy.empty() && p.Druhy.find(text[i + 1]) == std::u32string_view::npos) continue;
        // Before the first character lies no place: one far beyond the end stands for it.
        if (Sedi(p.Pred, text, i - 1) && Sedi(p.Za, text, za)) return &p;
    }
    return nullptr;
}

}  // namespace

std::string Vysad(std::string_view text) {
    const std::u32string znaky = DoZnaku(text);
    std::u32string sazba;
    for (std::size_t i = 0; i < znaky.size(); ++i) {
        const Pravidlo* p = Najdi(znaky, i);
        if (p == nullptr) {
            sazba += znaky[i];
        } else if (!p->Nove.empty()) {
            sazba += p->Nove;
        } else {
            sazba += znaky[i];
            sazba += DOLNI_INDEX + znaky[++i];
        }
    }
    return ZeZnaku(sazba);
}

}  // namespace rysovna
