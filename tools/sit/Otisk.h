#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace rysovna::sit {

/// A 64-bit hash, 32 bytes a step: for telling pictures apart, not for keeping secrets. Goes on
/// from the one before. The same on every machine of the same byte order.
[[nodiscard]] inline std::uint64_t Otisk(const void* data, std::size_t bajtu,
                                         std::uint64_t drive = 0) {
    constexpr std::uint64_t NASOBEK = 0x9E3779B185EBCA87U, PRICTI = 0xC2B2AE3D27D4EB4FU;
    constexpr std::size_t PRUHU = 4, SLOVO = sizeof(std::uint64_t);
    const auto michej = [](std::uint64_t h, std::uint64_t slovo) {
        return std::rotl(h ^ (slovo * PRICTI), 29) * NASOBEK;
    };
    std::array<std::uint64_t, PRUHU> pruhy{};
    for (std::size_t i = 0; i < PRUHU; ++i) pruhy[i] = drive + (i + 1) * PRICTI;
    const char* kde = static_cast<const char*>(data);
    std::size_t zbyva = bajtu;
    for (; zbyva >= PRUHU * SLOVO; zbyva -= PRUHU * SLOVO, kde += PRUHU * SLOVO) {
        for (std::size_t i = 0; i < PRUHU; ++i) {
            std::uint64_t slovo = 0;
            std::memcpy(&slovo, kde + i * SLOVO, SLOVO);
            pruhy[i] = michej(pruhy[i], slovo);
        }
    }
    std::uint64_t h = bajtu * NASOBEK;
    for (; zbyva > 0; --zbyva, ++kde) h = michej(h, static_cast<unsigned char>(*kde));
    for (const std::uint64_t pruh : pruhy) h = michej(h, pruh);
    h ^= h >> 32;
    h *= PRICTI;
    return h ^ (h >> 29);
}

[[nodiscard]] inline std::uint64_t Otisk(std::string_view text, std::uint64_t drive = 0) {
    return Otisk(text.data(), text.size(), drive);
}

}  // namespace rysovna::sit
