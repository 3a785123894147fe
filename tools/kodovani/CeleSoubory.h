#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rysovna {

/// Reads a file whole; one that cannot be read is a fault.
[[nodiscard]] std::string CtiSoubor(const std::filesystem::path& soubor);

/// Rewrites a file that exists or not: written beside and renamed over, so that it is the old one
/// or the new one and never half. Owner, group and rights stay. Where no file may be made beside
/// it, or none of that owner and group, it is written over in place, its growth first, so that a
/// full disk leaves the old content. Any failure is a fault.
void PrepisSoubor(const std::filesystem::path& soubor, std::string_view obsah);

}  // namespace rysovna
