#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace rysovna {

/// The sound device. All work is done on a thread of its own, begun at the first sound, so that
/// neither opening the device nor reading a file holds the screen up. The device is closed when
/// nothing has sounded for two seconds and opened again at the next sound. Without a device
/// everything is silent.
class Zvuk {
public:
    Zvuk();
    ~Zvuk();
    Zvuk(const Zvuk&) = delete;
    Zvuk& operator=(const Zvuk&) = delete;

    /// Starts a sound; the one that is playing ends. One that waits still is forgotten.
    void Zahraj(std::filesystem::path soubor);

    /// Opens the device if it is not open yet and says which one it is, in Czech. None, or one that
    /// does not answer in two seconds, is a run-time fault.
    [[nodiscard]] std::string Over();

    /// Ends the thread; later sounds are silent. False if it hangs in the device still: then it is
    /// left alone, and the audio part of the library must not be closed.
    bool Skonci();

private:
    /// Wakes the thread, the first time makes it. The lock is held.
    void Zacni();

    struct Prace;
    std::shared_ptr<Prace> prace_;  ///< shared with the thread, which may outlive this object
    bool skoncil_ = true;           ///< what Skonci gave
};

}  // namespace rysovna
