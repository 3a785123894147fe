#pragma once

#include <filesystem>
#include <string>

#include "base/Disk.h"
#include "platform/Host.h"
#include "screens/Papir.h"
#include "screens/RadaCesky.h"

namespace rysovna {

/// Stores a document in a folder under the name and a number that is free there; nothing that is
/// there changes. Where that cannot be done nothing is left, and ChybaDisku tells why.
std::filesystem::path UlozDokument(Disk& disk, const std::filesystem::path& slozka,
                                   const std::string& nazev, const std::string& obsah);

/// Makes the pages and stores them among the account's documents under a name of their own, or
/// hands them to the person where there are no folders; has the system show them. Gives what the
/// person is to be told, also where they could not be stored: two rows of so many px of a font.
[[nodiscard]] RadkyRady UlozPapir(Host& stroj, const Papir& papir, const Surface& figura,
                                  const Surface& nacrt, const Pismo& pismo, int sirka);

}  // namespace rysovna
