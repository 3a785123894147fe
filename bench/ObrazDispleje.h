#pragma once

#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <optional>
#include <sys/mman.h>
#include <sys/stat.h>

namespace rysovna::testy {

/// What a virtual display shows: its frame buffer, 32 bits a pixel, in the memory of its server.
struct ObrazDispleje {
    const std::uint8_t* Pixely = nullptr;
    std::size_t Radek = 0;  ///< bytes
};

/// Maps the server's frame buffer file for the rest of the process; nothing if it cannot be read.
inline std::optional<ObrazDispleje> OtevriObraz(const char* jmeno) {
    const int soubor = open(jmeno, O_RDONLY | O_CLOEXEC);
    struct stat popis {};
    if (soubor < 0 || fstat(soubor, &popis) != 0) return {};
    void* mapa =
        mmap(nullptr, static_cast<std::size_t>(popis.st_size), PROT_READ, MAP_SHARED, soubor, 0);
    if (mapa == MAP_FAILED) return {};
    const auto* bajty = static_cast<const std::uint8_t*>(mapa);
    // The dump's header (XWD, big-endian words): its own length, bytes a row, number of colours.
    const auto slovo = [bajty](int i) {
        const std::uint8_t* p = bajty + i * 4;
        return static_cast<std::size_t>(p[0]) << 24 | static_cast<std::size_t>(p[1]) << 16 |
               static_cast<std::size_t>(p[2]) << 8 | p[3];
    };
    return ObrazDispleje{bajty + slovo(0) + slovo(19) * 12, slovo(12)};
}

}  // namespace rysovna::testy
