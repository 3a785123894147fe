#include "base/Disk.h"

#include <cstdint>
#include <random>

#include "base/Cisla.h"

namespace rysovna {

std::filesystem::path CestaZTextu(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

ChybaDisku::ChybaDisku(Pricina proc, const std::filesystem::path& soubor)
    : std::runtime_error(soubor.string() + " (" + std::string(TextPriciny(proc)) + ")"),
      proc_(proc),
      soubor_(soubor) {}

std::string_view TextPriciny(Pricina proc) {
    switch (proc) {
        case Pricina::Neni:
            return "neexistuje";
        case Pricina::UzJe:
            return "už existuje";
        case Pricina::Nepovoleno:
            return "chybí oprávnění";
        case Pricina::Plno:
            return "na disku není místo";
        case Pricina::NejdeZamek:
            return "disk neumí soubory zamykat";
        case Pricina::Zamceno:
            return "zapisuje do něj jiný program";
        case Pricina::Jina:
            break;
    }
    return "disk hlásí chybu";
}

void OdstranPotichu(Disk& disk, const std::filesystem::path& soubor) {
    try {
        disk.Odstran(soubor);
    } catch (const ChybaDisku&) {
        // Who looks after this folder tries again.
    }
}

std::string NahodneCislice() {
    std::random_device zdroj;
    const std::uint64_t horni = zdroj();
    return Sestnactkove(horni << 32 | zdroj());
}

}  // namespace rysovna
