#include "vysledky/Poruchy.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
    switch (druh) {
        case Porucha::Plno:
            return ENOSPC;
        case Porucha::Io:
            return EIO;
        case Porucha::Prava:
            return EACCES;
        case Porucha::Neumi:
            return EOPNOTSUPP;
        case Porucha::Zaneprazdneno:
            return EBUSY;
        default:
            return 0;
    }
}

/// The call with the fault that is due; selhani: what it returns when it fails.
template <class Volani, class Navrat>
Navrat Proved(Navrat selhani, Volani&& volani) {
    const Porucha druh = Dalsi();
    if (druh == Porucha::ZabitPred) Zabij();
    if (const int cislo = Cislo(druh); cislo != 0) {
        errno = cislo;
        return selhani;
    }
    const Navrat vysledek = volani();
    if (druh == Porucha::ZabitPo) Zabij();
    return vysledek;
}

/// volani: writes so many bytes.
template <class Volani>
ssize_t ProvedZapis(std::size_t kolik, Volani&& volani) {
    if (g_dalsiPlno) {
        g_dalsiPlno = false;
        errno = ENOSPC;
        return -1;
    }
    const Porucha druh = Dalsi();
    const bool kratky = druh == Porucha::KratkyZapis || druh == Porucha::KratkyAZabit ||
                        druh == Porucha::KratkyAPlno;
    if (druh == Porucha::ZabitPred) Zabij();
    if (const int cislo = Cislo(druh); cislo != 0) {
        errno = cislo;
        return -1;
    }
    const ssize_t zapsano = volani(kratky && kolik > 1 ? kolik / 2 : kolik);
    if (druh == Porucha::ZabitPo || druh == Porucha::KratkyAZabit) Zabij();
    g_dalsiPlno = druh == Porucha::KratkyAPlno && kolik > 1;
    return zapsano;
}

template <class Funkce>
Funkce* Prava_(Funkce*, const char* jmeno) {
    return reinterpret_cast<Funkce*>(::dlsym(RTLD_NEXT, jmeno));
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

// Each function finds the right one once.
#define PRAVA(jmeno) static auto* const prava = rysovna::testy::Prava_(&::jmeno, #jmeno)

using rysovna::testy::Proved;
using rysovna::testy::ProvedZapis;

extern "C" {

int open(const char* cesta, int vlajky, ...) {
    PRAVA(open);
    std::va_list dalsi;
    va_start(dalsi, vlajky);
    const mode_t prava_souboru = (vlajky & O_CREAT) != 0 ? va_arg(dalsi, mode_t) : 0;
    va_end(dalsi);
    return Proved(-1, [&] { return prava(cesta, vlajky, prava_souboru); });
}

int openat(int slozka, const char* cesta, int vlajky, ...) {
    PRAVA(openat);
    std::va_list dalsi;
    va_start(dalsi, vlajky);
    const mode_t prava_souboru = (vlajky & O_CREAT) != 0 ? va_arg(dalsi, mode_t) : 0;
    va_end(dalsi);
    return Proved(-1, [&] { return prava(slozka, cesta, vlajky, prava_souboru); });
}

int fcntl(int popisovac, int povel, ...) {
    PRAVA(fcntl);
    std::va_list dalsi;
    va_start(dalsi, povel);
    void* const argument = va_arg(dalsi, void*);
    va_end(dalsi);
    return Proved(-1, [&] { return prava(popisovac, povel, argument); });
}

ssize_t write(int popisovac, const void* co, size_t kolik) {
    PRAVA(write);
    return ProvedZapis(kolik, [&](size_t n) { return prava(popisovac, co, n); });
}

ssize_t pwrite(int popisovac, const void* co, size_t kolik, off_t kam) {
    PRAVA(pwrite);
    return ProvedZapis(kolik, [&](size_t n) { return prava(popisovac, co, n, kam); });
}

ssize_t pread(int popisovac, void* kam, size_t kolik, off_t odkud) {
    PRAVA(pread);
    return Proved(ssize_t{-1}, [&] { return prava(popisovac, kam, kolik, odkud); });
}

off_t lseek(int popisovac, off_t kam, int odkud) noexcept {
    PRAVA(lseek);
    return Proved(off_t{-1}, [&] { return prava(popisovac, kam, odkud); });
}

int ftruncate(int popisovac, off_t delka) noexcept {
    PRAVA(ftruncate);
    return Proved(-1, [&] { return prava(popisovac, delka); });
}

int fsync(int popisovac) {
    PRAVA(fsync);
    return Proved(-1, [&] { return prava(popisovac); });
}

int fstat(int popisovac, struct stat* stav) noexcept {
    PRAVA(fstat);
    return Proved(-1, [&] { return prava(popisovac, stav); });
}

int stat(const char* cesta, struct stat* stav) noexcept {
    static auto* const prava =
        reinterpret_cast<int (*)(const char*, struct stat*)>(::dlsym(RTLD_NEXT, "stat"));
    return Proved(-1, [&] { return prava(cesta, stav); });
}

int fchmod(int popisovac, mode_t jak) noexcept {
    PRAVA(fchmod);
    return Proved(-1, [&] { return prava(popisovac, jak); });
}

int fchown(int popisovac, uid_t kdo, gid_t skupina) noexcept {
    PRAVA(fchown);
    return Proved(-1, [&] { return prava(popisovac, kdo, skupina); });
}

int rename(const char* odkud, const char* kam) noexcept {
    PRAVA(rename);
    return Proved(-1, [&] { return prava(odkud, kam); });
}

int unlink(const char* cesta) noexcept {
    PRAVA(unlink);
    return Proved(-1, [&] { return prava(cesta); });
}

int mkdir(const char* cesta, mode_t jak) noexcept {
    PRAVA(mkdir);
    return Proved(-1, [&] { return prava(cesta, jak); });
}

DIR* opendir(const char* cesta) {
    PRAVA(opendir);
    return Proved(static_cast<DIR*>(nullptr), [&] { return prava(cesta); });
}

DIR* fdopendir(int popisovac) {
    PRAVA(fdopendir);
    return Proved(static_cast<DIR*>(nullptr), [&] { return prava(popisovac); });
}

/// An end of the folder and a fault differ in errno alone.
struct dirent* readdir(DIR* slozka) {
    PRAVA(readdir);
    return Proved(static_cast<struct dirent*>(nullptr), [&] { return prava(slozka); });
}

char* realpath(const char* cesta, char* kam) noexcept {
    PRAVA(realpath);
    return Proved(static_cast<char*>(nullptr), [&] { return prava(cesta, kam); });
}

/// Closes whatever it says, as the system does.
int close(int popisovac) {
    PRAVA(close);
    bool zavreno = false;
    const int vysledek = Proved(-1, [&] {
        zavreno = true;
        return prava(popisovac);
    });
    if (!zavreno) prava(popisovac);
    return vysledek;
}

}  // extern "C"
