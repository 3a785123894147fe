#include "platform/bmp/Sbaleni.h"

#include <zlib.h>

#include "base/Chyba.h"

namespace rysovna {

std::string Sbal(const std::string& data, Sbaleni jak) {
    uLongf delka = compressBound(static_cast<uLong>(data.size()));
    std::string sbalene(delka, '\0');
    if (compress2(reinterpret_cast<Bytef*>(sbalene.data()), &delka,
                  reinterpret_cast<const Bytef*>(data.data()), static_cast<uLong>(data.size()),
                  jak == Sbaleni::Rychle ? Z_DEFAULT_COMPRESSION : Z_BEST_COMPRESSION) != Z_OK)
        Selhani("Data nelze sbalit");
    sbalene.resize(delka);
    return sbalene;
}

std::optional<std::string> Rozbal(std::string_view sbalene, std::size_t delka) {
    // Deflating makes nothing smaller than this: a damaged length must not ask for all memory.
    constexpr std::size_t NEJVYSSI_POMER = 1100;
    if (delka / NEJVYSSI_POMER > sbalene.size()) return std::nullopt;
    std::string data(delka, '\0');
    auto vyslo = static_cast<uLongf>(delka);
    if (uncompress(reinterpret_cast<Bytef*>(data.data()), &vyslo,
                   reinterpret_cast<const Bytef*>(sbalene.data()),
                   static_cast<uLong>(sbalene.size())) != Z_OK ||
        vyslo != delka)
        return std::nullopt;
    return data;
}

}  // namespace rysovna
