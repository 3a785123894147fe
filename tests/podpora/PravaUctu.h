#pragma once

#include <cstdint>

namespace rysovna::testy {

/// Whether this system lets a test close files by rights, lead links to them and take room away.
/// Where it does not, what needs that is proved on the others.
[[nodiscard]] bool MaPravaPosix();

/// While it lives, no file grows over so many bytes: a write that would is cut there and fails, as
/// on a full disk.
class PlnyDisk {
public:
    explicit PlnyDisk(std::uint64_t bajtu);
    ~PlnyDisk();
    PlnyDisk(const PlnyDisk&) = delete;
    PlnyDisk& operator=(const PlnyDisk&) = delete;

private:
    std::uint64_t drivejsi_ = 0;
    void (*drivejsiSignal_)(int) = nullptr;
};

/// Makes this process somebody whom the rights of files bind, for good.
void BudNekdoJiny();

}  // namespace rysovna::testy
