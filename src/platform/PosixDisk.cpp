#include "platform/PosixDisk.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <string_view>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "platform/Cesta.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// Errors that mean something to who asked; all others are Pricina::Jina.
constexpr struct {
    int Cislo;
    Pricina Proc;
} PRICINY[] = {
    {ENOENT, Pricina::Neni},       {ENOTDIR, Pricina::Neni},     {EEXIST, Pricina::UzJe},
    {EACCES, Pricina::Nepovoleno}, {EPERM, Pricina::Nepovoleno}, {EROFS, Pricina::Nepovoleno},
    {ENOSPC, Pricina::Plno},       {EDQUOT, Pricina::Plno},      {EFBIG, Pricina::Plno},
    {ENOLCK, Pricina::NejdeZamek},
};

/// Call at once after what failed.
[[noreturn]] void Selhal(const fs::path& co) {
    const int cislo = errno;
    const auto* const i = std::ranges::find(PRICINY, cislo, [](const auto& p) { return p.Cislo; });
    throw ChybaDisku(i == std::end(PRICINY) ? Pricina::Jina : i->Proc, co);
}

/// Whether the last call failed because the file system does not know such a thing.
bool Neumi() {
    return errno == EINVAL || errno == EOPNOTSUPP || errno == ENOTSUP || errno == ENOSYS;
}

/// The same for a call without which the file can be written in place: what is not known there, or
/// not now, is as good as not allowed.
[[noreturn]] void SelhalaVymena(const fs::path& co) {
    if (Neumi() || errno == EBUSY || errno == ETXTBSY) errno = EPERM;
    Selhal(co);
}

/// Repeats a call that a signal broke off.
template <class Volani>
auto Znovu(Volani&& volani) {
    auto vysledek = volani();
    while (vysledek == -1 && errno == EINTR) vysledek = volani();
    return vysledek;
}

static_assert(sizeof(off_t) == 8);

constexpr mode_t PRAVA = 07777;
constexpr mode_t PRAVA_SOUBORU = 0666;
constexpr uid_t KDO_JE = static_cast<uid_t>(-1);  // the owner stays
constexpr mode_t PRAVA_SLOZKY = 0700;

class PosixSoubor final : public Soubor {
public:
    PosixSoubor(int cislo, fs::path cesta) : cislo_(cislo), cesta_(std::move(cesta)) {}
    ~PosixSoubor() override { ::close(cislo_); }

    std::string Cti(std::uint64_t odkud, std::size_t nejvyse) override {
        std::string obsah;
        std::array<char, 65536> kus;
        while (obsah.size() < nejvyse) {
            const std::size_t chci = std::min(kus.size(), nejvyse - obsah.size());
            const auto misto = static_cast<off_t>(odkud + obsah.size());
            const ssize_t n = Znovu([&] { return ::pread(cislo_, kus.data(), chci, misto); });
            if (n < 0) Selhal(cesta_);
            if (n == 0) break;
            obsah.append(kus.data(), static_cast<std::size_t>(n));
        }
        return obsah;
    }

    std::uint64_t Delka() override { return static_cast<std::uint64_t>(Stav().st_size); }

    void Pis(std::uint64_t kam, std::string_view co) override {
        while (!co.empty()) {
            const auto misto = static_cast<off_t>(kam);
            const ssize_t n = Znovu([&] { return ::pwrite(cislo_, co.data(), co.size(), misto); });
            if (n < 0) Selhal(cesta_);
            kam += static_cast<std::uint64_t>(n);
            co.remove_prefix(static_cast<std::size_t>(n));
        }
    }

    void Pripis(std::string_view co) override {
        off_t zapsano = 0;
        while (!co.empty()) {
            const ssize_t n = Znovu([&] { return ::write(cislo_, co.data(), co.size()); });
            if (n < 0) {
                const int proc = errno;
                VratZpet(zapsano);
                errno = proc;
                Selhal(cesta_);
            }
            zapsano += n;
            co.remove_prefix(static_cast<std::size_t>(n));
        }
    }

    void Zkrat(std::uint64_t delka) override {
        if (Znovu([&] { return ::ftruncate(cislo_, static_cast<off_t>(delka)); }) != 0)
            Selhal(cesta_);
    }

    void NaDisk() override {
        if (Znovu([&] { return ::fsync(cislo_); }) != 0 && errno != EINVAL) Selhal(cesta_);
    }

    bool Zamkni() override {
        struct flock zamek {};
        zamek.l_type = F_WRLCK;
        zamek.l_whence = SEEK_SET;
        zamek.l_start = static_cast<off_t>(MISTO_ZAMKU);
        zamek.l_len = 1;
#ifdef F_OFD_SETLK
        // The lock of this very opening: closing another one of the same file does not free it.
        if (Znovu([&] { return ::fcntl(cislo_, F_OFD_SETLK, &zamek); }) == 0) return true;
        if (errno == EAGAIN || errno == EACCES) return false;
        if (!Neumi()) Selhal(cesta_);
#endif
        if (Znovu([&] { return ::fcntl(cislo_, F_SETLK, &zamek); }) == 0) return true;
        if (errno == EAGAIN || errno == EACCES) return false;
        if (Neumi()) errno = ENOLCK;
        Selhal(cesta_);
    }

    void PrevezmiPrava(Soubor& od) override {
        // The one disk of a process hands out no other kind.
        const struct stat vzor = static_cast<PosixSoubor&>(od).Stav();
        // Group first: a change of it takes some rights away.
        if (Stav().st_gid != vzor.st_gid && ::fchown(cislo_, KDO_JE, vzor.st_gid) != 0)
            SelhalaVymena(cesta_);
        // Where nothing differs nothing is asked: some file systems refuse even that.
        if ((Stav().st_mode & PRAVA) != (vzor.st_mode & PRAVA) &&
            ::fchmod(cislo_, vzor.st_mode & PRAVA) != 0)
            SelhalaVymena(cesta_);
    }

    /// Who may write into the folder may write into the file. One that cannot be made so is as the
    /// account makes its files. prava: of the folder's, those that it is to have.
    void JakoSlozka(const fs::path& slozka, mode_t prava) const {
        struct stat vzor {};
        if (::stat(slozka.c_str(), &vzor) != 0) return;
        static_cast<void>(::fchown(cislo_, KDO_JE, vzor.st_gid) == 0);
        static_cast<void>(::fchmod(cislo_, vzor.st_mode & prava) == 0);
    }

private:
    [[nodiscard]] struct stat Stav() const {
        struct stat stav {};
        if (::fstat(cislo_, &stav) != 0) Selhal(cesta_);
        return stav;
    }

    /// Takes back so many bytes written last, if they are the last of the file. A failure leaves
    /// them: whoever appends next begins on a new line.
    void VratZpet(off_t zapsano) const {
        if (zapsano == 0) return;
        const off_t konec = ::lseek(cislo_, 0, SEEK_CUR);
        struct stat stav {};
        if (konec < zapsano || ::fstat(cislo_, &stav) != 0 || stav.st_size != konec) return;
        static_cast<void>(Znovu([&] { return ::ftruncate(cislo_, konec - zapsano); }));
    }

    int cislo_;
    fs::path cesta_;
};

int Vlajky(Disk::Jak jak) {
    switch (jak) {
        case Disk::Jak::Cteni:
            return O_RDONLY | O_NONBLOCK;  // what is no file, as a pipe, is not waited for
        case Disk::Jak::Zapis:
            return O_RDWR;
        case Disk::Jak::Pripisek:
            return O_RDWR | O_APPEND;
    }
    return O_RDONLY;
}

}  // namespace

fs::path PosixDisk::Skutecna(std::string_view cesta) {
    return NativniCesta(cesta);
}

fs::path PosixDisk::Jednoznacna(const fs::path& co) {
    std::error_code chyba;
    fs::path jedina = fs::canonical(co, chyba);
    return chyba ? co : jedina;
}

bool PosixDisk::JeSoubor(const fs::path& co) {
    std::error_code chyba;
    return fs::is_regular_file(co, chyba);
}

bool PosixDisk::JeSlozka(const fs::path& co) {
    std::error_code chyba;
    return fs::is_directory(co, chyba);
}

std::unique_ptr<Soubor> PosixDisk::Otevri(const fs::path& co, Jak jak) {
    const int cislo = Znovu([&] { return ::open(co.c_str(), Vlajky(jak) | O_CLOEXEC); });
    if (cislo < 0) Selhal(co);
    return std::make_unique<PosixSoubor>(cislo, co);
}

std::unique_ptr<Soubor> PosixDisk::NovySoubor(const fs::path& co) {
    const int vlajky = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int cislo = Znovu([&] { return ::open(co.c_str(), vlajky, PRAVA_SOUBORU); });
    if (cislo < 0) Selhal(co);
    auto soubor = std::make_unique<PosixSoubor>(cislo, co);
    soubor->JakoSlozka(co.parent_path(), PRAVA_SOUBORU);
    return soubor;
}

void PosixDisk::Nahrad(const fs::path& novy, const fs::path& stary) {
    if (::rename(novy.c_str(), stary.c_str()) != 0) SelhalaVymena(stary);
}

void PosixDisk::Prejmenuj(const fs::path& soubor, const fs::path& jmeno) {
#ifdef RENAME_NOREPLACE
    if (::renameat2(AT_FDCWD, soubor.c_str(), AT_FDCWD, jmeno.c_str(), RENAME_NOREPLACE) == 0)
        return;
    if (!Neumi()) Selhal(jmeno);
#endif
    if (::link(soubor.c_str(), jmeno.c_str()) == 0) {
        // It has both names; whoever finds the first one may take it away.
        static_cast<void>(::unlink(soubor.c_str()));
        return;
    }
    if (!Neumi() && errno != EPERM && errno != EMLINK) Selhal(jmeno);
    // Neither is known here, as on a stick: an empty file holds the name meanwhile.
    const int vlajky = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int cislo = Znovu([&] { return ::open(jmeno.c_str(), vlajky, PRAVA_SOUBORU); });
    if (cislo < 0) Selhal(jmeno);
    ::close(cislo);
    if (::rename(soubor.c_str(), jmeno.c_str()) == 0) return;
    const int proc = errno;
    static_cast<void>(::unlink(jmeno.c_str()));
    errno = proc;
    Selhal(jmeno);
}

void PosixDisk::Odstran(const fs::path& soubor) {
    if (::unlink(soubor.c_str()) != 0) Selhal(soubor);
}

std::vector<std::string> PosixDisk::Jmena(const fs::path& slozka) {
    std::vector<std::string> jmena;
    std::error_code chyba;
    for (fs::directory_iterator i(slozka, chyba), konec; !chyba && i != konec; i.increment(chyba))
        jmena.push_back(i->path().filename().string());
    if (chyba) {
        errno = chyba.value();
        Selhal(slozka);
    }
    std::ranges::sort(jmena);
    return jmena;
}

void PosixDisk::ZalozSlozku(const fs::path& slozka) {
    if (JeSlozka(slozka)) return;
    if (slozka.empty()) throw ChybaDisku(Pricina::Neni, slozka);
    if (slozka.has_relative_path()) ZalozSlozku(slozka.parent_path());
    // Another program of the account may have been quicker.
    if (::mkdir(slozka.c_str(), PRAVA_SLOZKY) != 0 && !(errno == EEXIST && JeSlozka(slozka)))
        Selhal(slozka);
    SlozkaNaDisk(slozka.has_parent_path() ? slozka.parent_path() : fs::path("."));
}

void PosixDisk::ZalozPodslozku(const fs::path& slozka) {
    if (JeSlozka(slozka)) return;
    ZalozSlozku(slozka);
    const int vlajky = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const int cislo = Znovu([&] { return ::open(slozka.c_str(), vlajky); });
    if (cislo < 0) Selhal(slozka);
    PosixSoubor(cislo, slozka).JakoSlozka(slozka.parent_path(), PRAVA);
}

void PosixDisk::SlozkaNaDisk(const fs::path& slozka) {
    const int cislo =
        Znovu([&] { return ::open(slozka.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (cislo < 0) {
        if (errno == EACCES || errno == EPERM) return;
        Selhal(slozka);
    }
    const PosixSoubor drzi(cislo, slozka);
    if (Znovu([&] { return ::fsync(cislo); }) == 0 || Neumi()) return;
    // Some file systems say so of folders, or have nothing to wait for.
    if (errno != EBADF && errno != EROFS) Selhal(slozka);
}

bool PosixDisk::SmiZakladat(const fs::path& slozka) {
    return ::faccessat(AT_FDCWD, slozka.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::uint64_t PosixDisk::Volno(const fs::path& slozka) {
    struct statvfs stav {};
    if (::statvfs(slozka.c_str(), &stav) != 0) Selhal(slozka);
    return std::uint64_t{stav.f_bavail} * stav.f_frsize;
}

}  // namespace rysovna
