#include "Popisovac.h"

#include "platform/Stroj.h"

namespace rysovna {

bool NaDisk(const std::filesystem::path& co) {
    DiskStroje disk;
    try {
        // Folders need no waiting for.
        if (!disk.JeSlozka(co)) disk.Otevri(co, Disk::Jak::Zapis)->NaDisk();
        return true;
    } catch (const ChybaDisku&) {
        return false;
    }
}

bool PrevezmiPrava(const std::filesystem::path& soubor, const std::filesystem::path& od) {
    DiskStroje disk;
    try {
        const auto vzor = disk.Otevri(od, Disk::Jak::Cteni);
        disk.Otevri(soubor, Disk::Jak::Zapis)->PrevezmiPrava(*vzor);
        return true;
    } catch (const ChybaDisku&) {
        return false;
    }
}

}  // namespace rysovna
