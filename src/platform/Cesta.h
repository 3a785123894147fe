#pragma once

#include <filesystem>
#include <string_view>

namespace rysovna {

/// A path of the system's own spelling (backslashes, any case) as a real one. Parts that exist
/// under another case are taken as they are on the disk.
[[nodiscard]] std::filesystem::path NativniCesta(std::string_view cesta);

}  // namespace rysovna
