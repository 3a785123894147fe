#include "platform/Stroj.h"

namespace rysovna {

std::optional<std::string> CelySoubor(const std::filesystem::path& soubor) {
    try {
        return DiskStroje().Otevri(soubor, Disk::Jak::Cteni)->Cti();
    } catch (const ChybaDisku&) {
        return std::nullopt;
    }
}

}  // namespace rysovna
