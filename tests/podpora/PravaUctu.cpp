#include "podpora/PravaUctu.h"

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace rysovna::testy {

bool MaPravaPosix() {
    return true;
}

PlnyDisk::PlnyDisk(std::uint64_t bajtu) : drivejsiSignal_(std::signal(SIGXFSZ, SIG_IGN)) {
    rlimit mez{};
    getrlimit(RLIMIT_FSIZE, &mez);
    drivejsi_ = mez.rlim_cur;
    mez.rlim_cur = bajtu;
    if (setrlimit(RLIMIT_FSIZE, &mez) != 0) std::abort();
}

PlnyDisk::~PlnyDisk() {
    rlimit mez{};
    getrlimit(RLIMIT_FSIZE, &mez);
    mez.rlim_cur = drivejsi_;
    setrlimit(RLIMIT_FSIZE, &mez);
    std::signal(SIGXFSZ, drivejsiSignal_);
}

void BudNekdoJiny() {
    if (geteuid() == 0 && setuid(65534) != 0) std::abort();
}

}  // namespace rysovna::testy
