#include "store/Ini.h"

#include <algorithm>
#include <cctype>

#include "base/Text.h"
#include "store/KodovaStranka.h"

namespace rysovna {
namespace {

constexpr std::string_view MEZERY = " \t\r";

std::string_view Orez(std::string_view text) {
    const std::size_t zacatek = text.find_first_not_of(MEZERY);
    if (zacatek == std::string_view::npos) return {};
    return text.substr(zacatek, text.find_last_not_of(MEZERY) - zacatek + 1);
}

bool Stejne(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

/// Without the pair of quotes around it.
std::string_view BezUvozovek(std::string_view text) {
    const bool par = text.size() >= 2 && text.front() == text.back() &&
                     (text.front() == '"' || text.front() == '\'');
    return par ? text.substr(1, text.size() - 2) : text;
}

/// A path may be written by an editor that saves either of the two.
std::string DoUtf8(std::string_view bajty) {
    std::string text(bajty);
    if (ZeZnaku(DoZnaku(bajty)) == text || NedefinovanyBajt(bajty)) return text;
    return Z1250(bajty, {});
}

}  // namespace

std::string HodnotaIni(std::string_view obsah, std::string_view sekce, std::string_view klic,
                       std::string_view vychozi) {
    if (obsah.starts_with(ZNACKA_UTF8)) obsah.remove_prefix(ZNACKA_UTF8.size());
    bool uvnitr = false;
    while (!obsah.empty()) {
        const std::size_t konec = obsah.find('\n');
        const std::string_view radek = Orez(obsah.substr(0, konec));
        obsah.remove_prefix(konec == std::string_view::npos ? obsah.size() : konec + 1);
        if (radek.starts_with(';')) continue;
        if (radek.starts_with('[')) {
            const std::size_t zavorka = radek.find(']');
            if (zavorka == std::string_view::npos) continue;
            uvnitr = Stejne(Orez(radek.substr(1, zavorka - 1)), sekce);
            continue;
        }
        const std::size_t rovna = radek.find('=');
        if (!uvnitr || rovna == std::string_view::npos) continue;
        if (!Stejne(Orez(radek.substr(0, rovna)), klic)) continue;
        const std::string_view hodnota = BezUvozovek(Orez(radek.substr(rovna + 1)));
        return hodnota.empty() ? std::string(vychozi) : DoUtf8(hodnota);
    }
    return std::string(vychozi);
}

bool RikaNe(std::string_view obsah, std::string_view sekce, std::string_view klic) {
    return Stejne(HodnotaIni(obsah, sekce, klic, ""), "ne");
}

}  // namespace rysovna
