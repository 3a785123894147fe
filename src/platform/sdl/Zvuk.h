#pragma once

#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace rysovna {

/// The sound device. All work is done on a thread of its own, begun at the first sound, so that
/// neither opening the device nor reading a file holds the screen up. Without a device everything
/// is silent.
class Zvuk {
public:
    Zvuk() = default;
    ~Zvuk();
    Zvuk(const Zvuk&) = delete;
    Zvuk& operator=(const Zvuk&) = delete;

    /// Starts a sound; the one that is playing ends. One that waits still is forgotten.
    void Zahraj(std::filesystem::path soubor);

private:
    using Vzorky = std::vector<std::uint8_t>;

    void Pracuj();
    bool OtevriZarizeni();
    const Vzorky& DejVzorky(const std::filesystem::path& soubor);

    std::thread vlakno_;
    std::mutex zamek_;
    std::condition_variable budik_;
    std::optional<std::filesystem::path> zadany_;  ///< guarded by zamek_
    bool konec_ = false;                           ///< guarded by zamek_

    // The thread's own.
    std::uint32_t zarizeni_ = 0;
    std::uint16_t format_ = 0;
    std::uint8_t kanaly_ = 0;
    int frekvence_ = 0;
    std::map<std::filesystem::path, Vzorky> nactene_;
};

}  // namespace rysovna
