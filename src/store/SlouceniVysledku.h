#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Disk.h"

namespace rysovna {

/// What one file of results holds when the same file of another machine is added to it: nothing
/// that stands here is lost or moved before what it stood behind, and what stands in both is there
/// once, so adding twice changes nothing. Equal entries of one file are as many results.
/// jmeno: of the file, which tells the log from tables. All as it stands in files.
[[nodiscard]] std::string SlucVysledky(std::string_view jmeno, std::string_view zde,
                                       std::string_view pridat);

/// Adds a file of results of another machine to the one of its name in the folder. False: files of
/// results have no such name. Throws ChybaDisku; waits for nothing and locks nothing.
[[nodiscard]] bool PrevezmiVysledky(Disk& disk, const std::filesystem::path& slozka,
                                    std::string_view jmeno, std::string_view pridat);

}  // namespace rysovna
