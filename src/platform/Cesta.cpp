#include "platform/Cesta.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <system_error>

#include "base/Disk.h"

namespace rysovna {

namespace {

bool StejneBezVelikosti(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

/// The name as the folder spells it; the first in alphabetical order if several differ in case
/// alone, so that the same is taken every time. As given if there is none.
std::string JmenoNaDisku(const std::filesystem::path& slozka, std::string_view jmeno) {
    std::string nalezene;
    std::error_code chyba;
    const auto kde = slozka.empty() ? std::filesystem::path(".") : slozka;
    for (auto i = std::filesystem::directory_iterator(kde, chyba);
         !chyba && i != std::filesystem::directory_iterator(); i.increment(chyba)) {
        std::string dalsi = i->path().filename().string();
        if (StejneBezVelikosti(dalsi, jmeno) && (nalezene.empty() || dalsi < nalezene))
            nalezene = std::move(dalsi);
    }
    return nalezene.empty() ? std::string(jmeno) : nalezene;
}

}  // namespace

std::filesystem::path NativniCesta(std::string_view cesta) {
    std::string lomitka(cesta);
    std::replace(lomitka.begin(), lomitka.end(), '\\', '/');
    std::error_code chyba;
    std::filesystem::path psana = CestaZTextu(lomitka);
    std::filesystem::path skutecna;
    if (std::filesystem::exists(psana, chyba)) skutecna.swap(psana);
    for (const std::filesystem::path& cast : psana) {
        const std::filesystem::path takhle = skutecna / cast;
        if (cast.empty() || std::filesystem::exists(takhle, chyba)) {
            skutecna = takhle;
        } else {
            skutecna /= CestaZTextu(JmenoNaDisku(skutecna, cast.string()));
        }
    }
    // What stands in messages later is spelt as people spell it there.
    return skutecna.make_preferred();
}

}  // namespace rysovna
