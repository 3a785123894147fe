#include "vysledky/Poruchy.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>
#include <utility>

// What is defined here must not be renamed by the headers to what it stands before.
#ifdef __USE_FILE_OFFSET64
#error "built without large-file renaming only"
#endif

namespace rysovna::testy {
namespace {

Porucha g_druh = Porucha::Zadna;
int g_kolikate = 0;
int g_volani = 0;
bool g_trvale = false;
bool g_dalsiPlno = false;  ///< the next write finds the disk full

[[noreturn]] void Zabij() {
    ::kill(::getpid(), SIGKILL);
    while (true) ::pause();
}

/// Counts a call; what is to become of it.
Porucha Dalsi() {
    ++g_volani;
    const bool tahle = g_volani == g_kolikate || (g_trvale && g_volani > g_kolikate);
    return g_kolikate > 0 && tahle ? g_druh : Porucha::Zadna;
}

int Cislo(Porucha druh) {
    constexpr std::pair<Porucha, int> CISLA[] = {{Porucha::Plno, ENOSPC},
                                                 {Porucha::Io, EIO},
                                                 {Porucha::Prava, EACCES},
                                                 {Porucha::Neumi, EOPNOTSUPP},
                                                 {Porucha::Zaneprazdneno, EBUSY}};
    for (const auto& [co, cislo] : CISLA) {
        if (co == druh) return cislo;
    }
    return 0;
}

/// The call with the fault that is due. FUNKCE: what stands before the right one, which is found
/// once. kolik: of a write, how many bytes; a short one makes it half.
template <auto FUNKCE, class... A>
auto Proved(std::size_t* kolik, const char* jmeno, const A&... argumenty) {
    static const auto prava = reinterpret_cast<decltype(FUNKCE)>(::dlsym(RTLD_NEXT, jmeno));
    using Navrat = decltype(prava(argumenty...));
    const auto selhani = [](int cislo) {
        errno = cislo;
        if constexpr (std::is_pointer_v<Navrat>)
            return Navrat{nullptr};
        else
            return Navrat{-1};
    };
    if (kolik != nullptr && std::exchange(g_dalsiPlno, false)) return selhani(ENOSPC);
    const Porucha druh = Dalsi();
    if (druh == Porucha::ZabitPred) Zabij();
    if (const int cislo = Cislo(druh); cislo != 0) return selhani(cislo);
    const bool zabit = druh == Porucha::KratkyAZabit, plno = druh == Porucha::KratkyAPlno;
    const bool kratky = kolik != nullptr && (zabit || plno || druh == Porucha::KratkyZapis);
    g_dalsiPlno = kratky && plno && *kolik > 1;
    if (kratky && *kolik > 1) *kolik /= 2;
    const Navrat vysledek = prava(argumenty...);
    if (druh == Porucha::ZabitPo || (kratky && zabit)) Zabij();
    return vysledek;
}

}  // namespace

void NastavPoruchu(Porucha druh, int kolikate, bool trvale) {
    g_druh = druh;
    g_kolikate = kolikate;
    g_trvale = trvale;
    g_volani = 0;
    g_dalsiPlno = false;
}

int PocetVolani() {
    return g_volani;
}

}  // namespace rysovna::testy

using rysovna::testy::Proved;

extern "C" {

// The rights are there for a new file alone.
int open(const char* cesta, int vlajky, ...) {
    std::va_list dalsi;
    va_start(dalsi, vlajky);
    const mode_t prava = (vlajky & O_CREAT) != 0 ? va_arg(dalsi, mode_t) : 0;
    va_end(dalsi);
    return Proved<&::open>(nullptr, "open", cesta, vlajky, prava);
}

int openat(int slozka, const char* cesta, int vlajky, ...) {
    std::va_list dalsi;
    va_start(dalsi, vlajky);
    const mode_t prava = (vlajky & O_CREAT) != 0 ? va_arg(dalsi, mode_t) : 0;
    va_end(dalsi);
    return Proved<&::openat>(nullptr, "openat", slozka, cesta, vlajky, prava);
}

int fcntl(int popisovac, int povel, ...) {
    std::va_list dalsi;
    va_start(dalsi, povel);
    void* const argument = va_arg(dalsi, void*);
    va_end(dalsi);
    return Proved<&::fcntl>(nullptr, "fcntl", popisovac, povel, argument);
}

ssize_t write(int popisovac, const void* co, size_t kolik) {
    return Proved<&::write>(&kolik, "write", popisovac, co, kolik);
}

ssize_t pwrite(int popisovac, const void* co, size_t kolik, off_t kam) {
    return Proved<&::pwrite>(&kolik, "pwrite", popisovac, co, kolik, kam);
}

ssize_t pread(int popisovac, void* kam, size_t kolik, off_t odkud) {
    return Proved<&::pread>(nullptr, "pread", popisovac, kam, kolik, odkud);
}

off_t lseek(int popisovac, off_t kam, int odkud) noexcept {
    return Proved<&::lseek>(nullptr, "lseek", popisovac, kam, odkud);
}

int ftruncate(int popisovac, off_t delka) noexcept {
    return Proved<&::ftruncate>(nullptr, "ftruncate", popisovac, delka);
}

int fsync(int popisovac) {
    return Proved<&::fsync>(nullptr, "fsync", popisovac);
}

int fstat(int popisovac, struct stat* stav) noexcept {
    return Proved<&::fstat>(nullptr, "fstat", popisovac, stav);
}

int stat(const char* cesta, struct stat* stav) noexcept {
    return Proved<static_cast<int (*)(const char*, struct stat*) noexcept>(&::stat)>(
        nullptr, "stat", cesta, stav);
}

int fchmod(int popisovac, mode_t jak) noexcept {
    return Proved<&::fchmod>(nullptr, "fchmod", popisovac, jak);
}

int fchown(int popisovac, uid_t kdo, gid_t skupina) noexcept {
    return Proved<&::fchown>(nullptr, "fchown", popisovac, kdo, skupina);
}

int rename(const char* odkud, const char* kam) noexcept {
    return Proved<&::rename>(nullptr, "rename", odkud, kam);
}

int renameat2(int odkudSlozka, const char* odkud, int kamSlozka, const char* kam,
              unsigned jak) noexcept {
    return Proved<&::renameat2>(nullptr, "renameat2", odkudSlozka, odkud, kamSlozka, kam, jak);
}

int link(const char* odkud, const char* kam) noexcept {
    return Proved<&::link>(nullptr, "link", odkud, kam);
}

int unlink(const char* cesta) noexcept {
    return Proved<&::unlink>(nullptr, "unlink", cesta);
}

int mkdir(const char* cesta, mode_t jak) noexcept {
    return Proved<&::mkdir>(nullptr, "mkdir", cesta, jak);
}

DIR* opendir(const char* cesta) {
    return Proved<&::opendir>(nullptr, "opendir", cesta);
}

DIR* fdopendir(int popisovac) {
    return Proved<&::fdopendir>(nullptr, "fdopendir", popisovac);
}

/// An end of the folder and a fault differ in errno alone.
struct dirent* readdir(DIR* slozka) {
    return Proved<&::readdir>(nullptr, "readdir", slozka);
}

char* realpath(const char* cesta, char* kam) noexcept {
    return Proved<&::realpath>(nullptr, "realpath", cesta, kam);
}

/// Closes whatever it says, as the system does.
int close(int popisovac) {
    const int vysledek = Proved<&::close>(nullptr, "close", popisovac);
    static const auto prava = reinterpret_cast<int (*)(int)>(::dlsym(RTLD_NEXT, "close"));
    if (vysledek != 0) prava(popisovac);
    return vysledek;
}

}  // extern "C"
