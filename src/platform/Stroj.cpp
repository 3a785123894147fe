#include "platform/Stroj.h"

#include "base/Disk.h"
#include "platform/Cesta.h"

namespace rysovna {
namespace {

bool MaNastaveni(const std::filesystem::path& slozka) {
    return !slozka.empty() && DiskStroje().JeSoubor(NativniCesta((slozka / JMENO_INI).string()));
}

}  // namespace

std::filesystem::path SlozkaNastaveni(const std::filesystem::path& program) {
    if (MaNastaveni(program)) return program;
    const std::filesystem::path uctu = SlozkaNastaveniUctu();
    return MaNastaveni(uctu) ? uctu : SlozkaNastaveniStroje();
}

std::optional<std::string> CelySoubor(const std::filesystem::path& soubor) {
    try {
        return DiskStroje().Otevri(soubor, Disk::Jak::Cteni)->Cti();
    } catch (const ChybaDisku&) {
        return std::nullopt;
    }
}

}  // namespace rysovna
