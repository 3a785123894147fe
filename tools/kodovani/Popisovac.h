#pragma once

#include <filesystem>

namespace rysovna {

/// Waits until all that was written into a file, or made in a folder, is on the disk. False if it
/// cannot be waited for.
[[nodiscard]] bool NaDisk(const std::filesystem::path& co);

/// Makes owner, group and rights of a file those of another one; false if they may not be so.
[[nodiscard]] bool PrevezmiPrava(const std::filesystem::path& soubor,
                                 const std::filesystem::path& od);

}  // namespace rysovna
