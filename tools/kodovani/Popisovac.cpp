#include "Popisovac.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// A file or folder by its descriptor, for what streams cannot do.
class Popisovac {
public:
    explicit Popisovac(const fs::path& co) : cislo_(::open(co.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~Popisovac() {
        if (cislo_ >= 0) ::close(cislo_);
    }
    Popisovac(const Popisovac&) = delete;
    Popisovac& operator=(const Popisovac&) = delete;

    [[nodiscard]] bool Je() const { return cislo_ >= 0; }
    [[nodiscard]] int operator*() const { return cislo_; }

private:
    int cislo_;
};

}  // namespace

bool NaDisk(const fs::path& co) {
    const Popisovac p(co);
    // What does not know the question is no fault.
    return p.Je() && (::fsync(*p) == 0 || errno == EINVAL);
}

bool PrevezmiPrava(const fs::path& soubor, const fs::path& od) {
    const Popisovac p(soubor);
    struct stat jeho {};
    struct stat moje {};
    if (!p.Je() || ::stat(od.c_str(), &jeho) != 0 || ::fstat(*p, &moje) != 0) return false;
    const bool jinak = jeho.st_uid != moje.st_uid || jeho.st_gid != moje.st_gid;
    if (jinak && ::fchown(*p, jeho.st_uid, jeho.st_gid) != 0) return false;
    constexpr mode_t PRAVA = 07777;
    return ::fchmod(*p, jeho.st_mode & PRAVA) == 0;
}

}  // namespace rysovna
