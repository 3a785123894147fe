#include "platform/windows/WindowsDisk.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "platform/Cesta.h"
#include "platform/windows/Volani.h"

// After the calls that it builds on.
#include <aclapi.h>

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// The disk's share of the account is used up; the headers are older than it.
constexpr DWORD VYCERPANY_PODIL = 1295;

/// Errors that mean something to who asked; all others are Pricina::Jina.
constexpr struct {
    DWORD Cislo;
    Pricina Proc;
} PRICINY[] = {
    {ERROR_FILE_NOT_FOUND, Pricina::Neni},
    {ERROR_PATH_NOT_FOUND, Pricina::Neni},
    {ERROR_INVALID_DRIVE, Pricina::Neni},
    {ERROR_INVALID_NAME, Pricina::Neni},
    {ERROR_BAD_NETPATH, Pricina::Neni},
    {ERROR_BAD_NET_NAME, Pricina::Neni},
    {ERROR_NOT_READY, Pricina::Neni},
    {ERROR_DIRECTORY, Pricina::Neni},
    {ERROR_FILE_EXISTS, Pricina::UzJe},
    {ERROR_ALREADY_EXISTS, Pricina::UzJe},
    {ERROR_ACCESS_DENIED, Pricina::Nepovoleno},
    {ERROR_WRITE_PROTECT, Pricina::Nepovoleno},
    {ERROR_PRIVILEGE_NOT_HELD, Pricina::Nepovoleno},
    {ERROR_SHARING_VIOLATION, Pricina::Zamceno},
    {ERROR_LOCK_VIOLATION, Pricina::Zamceno},
    {ERROR_DISK_FULL, Pricina::Plno},
    {ERROR_HANDLE_DISK_FULL, Pricina::Plno},
    {VYCERPANY_PODIL, Pricina::Plno},
    {ERROR_FILE_TOO_LARGE, Pricina::Plno},
};

Pricina ProcSelhalo(DWORD cislo) {
    const auto* const i = std::ranges::find(PRICINY, cislo, [](const auto& p) { return p.Cislo; });
    return i == std::end(PRICINY) ? Pricina::Jina : i->Proc;
}

/// Call at once after what failed.
[[noreturn]] void Selhal(const fs::path& co) {
    throw ChybaDisku(ProcSelhalo(GetLastError()), co);
}

/// The same for a call without which the file can be written in place: what another program
/// hinders, or the file system does not know, is as good as not allowed.
[[noreturn]] void SelhalaVymena(const fs::path& co) {
    const DWORD cislo = GetLastError();
    const Pricina proc = ProcSelhalo(cislo);
    const bool neumi = cislo == ERROR_NOT_SUPPORTED || cislo == ERROR_INVALID_FUNCTION ||
                       cislo == ERROR_INVALID_PARAMETER || cislo == ERROR_CALL_NOT_IMPLEMENTED;
    throw ChybaDisku(neumi || proc == Pricina::Zamceno ? Pricina::Nepovoleno : proc, co);
}

/// Waits between attempts, ms: what looks at every new file has done so by then.
constexpr DWORD CEKANI[] = {5, 10, 20, 40, 80, 160};

/// Repeats a call as long as it fails for what another program does to the file for a moment.
/// A name whose file is just going is refused like one that is not allowed: iOdepreni.
template <class Volani>
bool Znovu(Volani&& volani, bool iOdepreni) {
    for (const DWORD cekat : CEKANI) {
        if (volani()) return true;
        const DWORD cislo = GetLastError();
        const bool mozna = cislo == ERROR_SHARING_VIOLATION || cislo == ERROR_LOCK_VIOLATION ||
                           cislo == ERROR_USER_MAPPED_FILE ||
                           (iOdepreni && cislo == ERROR_ACCESS_DENIED);
        if (!mozna) return false;
        Sleep(cekat);
    }
    return volani();
}

/// The place behind whatever is in the file when it is written.
constexpr std::uint64_t NA_KONEC = std::numeric_limits<std::uint64_t>::max();

constexpr DWORD SDILENE = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A handle, closed with the object.
class Drzadlo {
public:
    explicit Drzadlo(HANDLE h) : h_(h) {}
    ~Drzadlo() {
        if (Je()) CloseHandle(h_);
    }
    Drzadlo(Drzadlo&& jine) noexcept : h_(std::exchange(jine.h_, INVALID_HANDLE_VALUE)) {}
    Drzadlo(const Drzadlo&) = delete;
    Drzadlo& operator=(const Drzadlo&) = delete;

    [[nodiscard]] bool Je() const { return h_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE operator*() const { return h_; }

private:
    HANDLE h_;
};

OVERLAPPED Misto(std::uint64_t kde) {
    OVERLAPPED misto{};
    misto.Offset = static_cast<DWORD>(kde & 0xFFFFFFFFU);
    misto.OffsetHigh = static_cast<DWORD>(kde >> 32);
    return misto;
}

LARGE_INTEGER Velke(std::uint64_t cislo) {
    LARGE_INTEGER velke{};
    velke.QuadPart = static_cast<LONGLONG>(cislo);
    return velke;
}

/// Who may do what with a file.
struct Prava {
    PACL Seznam = nullptr;
    bool Vlastni = false;  ///< not all of it comes from the folder
    PSECURITY_DESCRIPTOR Popis = nullptr;

    Prava() = default;
    ~Prava() { LocalFree(Popis); }
    Prava(const Prava&) = delete;
    Prava& operator=(const Prava&) = delete;

    [[nodiscard]] bool Zjisti(HANDLE soubor) {
        const DWORD stav = GetSecurityInfo(soubor, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                                           nullptr, nullptr, &Seznam, nullptr, &Popis);
        if (stav != ERROR_SUCCESS) return false;
        SECURITY_DESCRIPTOR_CONTROL rizeni = 0;
        DWORD verze = 0;
        if (GetSecurityDescriptorControl(Popis, &rizeni, &verze) == 0) return false;
        Vlastni = (rizeni & SE_DACL_PROTECTED) != 0;
        for (WORD i = 0; Seznam != nullptr && i < Seznam->AceCount; ++i) {
            void* zaznam = nullptr;
            if (GetAce(Seznam, i, &zaznam) == 0) return false;
            if ((static_cast<ACE_HEADER*>(zaznam)->AceFlags & INHERITED_ACE) == 0) Vlastni = true;
        }
        return true;
    }
};

class WindowsSoubor final : public Soubor {
public:
    WindowsSoubor(Drzadlo drzadlo, fs::path cesta)
        : drzadlo_(std::move(drzadlo)), cesta_(std::move(cesta)) {}

    std::string Cti(std::uint64_t odkud, std::size_t nejvyse) override {
        std::string obsah;
        std::array<char, 65536> kus;
        while (obsah.size() < nejvyse) {
            const auto chci = static_cast<DWORD>(std::min(kus.size(), nejvyse - obsah.size()));
            OVERLAPPED misto = Misto(odkud + obsah.size());
            DWORD n = 0;
            if (ReadFile(*drzadlo_, kus.data(), chci, &n, &misto) == 0) {
                if (GetLastError() == ERROR_HANDLE_EOF) break;
                Selhal(cesta_);
            }
            if (n == 0) break;
            obsah.append(kus.data(), n);
        }
        return obsah;
    }

    std::uint64_t Delka() override {
        LARGE_INTEGER delka{};
        if (GetFileSizeEx(*drzadlo_, &delka) == 0) Selhal(cesta_);
        return static_cast<std::uint64_t>(delka.QuadPart);
    }

    void Pis(std::uint64_t kam, std::string_view co) override {
        while (!co.empty()) {
            const DWORD n = Zapis(kam, co);
            if (n == 0) Selhal(cesta_);
            kam += n;
            co.remove_prefix(n);
        }
    }

    void Pripis(std::string_view co) override {
        std::uint64_t zapsano = 0;
        while (!co.empty()) {
            const DWORD n = Zapis(NA_KONEC, co);
            if (n == 0) {
                const DWORD proc = GetLastError();
                VratZpet(zapsano);
                SetLastError(proc);
                Selhal(cesta_);
            }
            zapsano += n;
            co.remove_prefix(n);
        }
    }

    void Zkrat(std::uint64_t delka) override {
        if (SetFilePointerEx(*drzadlo_, Velke(delka), nullptr, FILE_BEGIN) == 0 ||
            SetEndOfFile(*drzadlo_) == 0)
            Selhal(cesta_);
    }

    void NaDisk() override {
        if (FlushFileBuffers(*drzadlo_) != 0) return;
        const DWORD cislo = GetLastError();
        if (cislo != ERROR_INVALID_FUNCTION && cislo != ERROR_NOT_SUPPORTED) Selhal(cesta_);
    }

    bool Zamkni() override {
        OVERLAPPED misto = Misto(MISTO_ZAMKU);
        constexpr DWORD JAK = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
        if (LockFileEx(*drzadlo_, JAK, 0, 1, 0, &misto) != 0) return true;
        const DWORD cislo = GetLastError();
        if (cislo == ERROR_LOCK_VIOLATION || cislo == ERROR_IO_PENDING) return false;
        if (cislo == ERROR_INVALID_FUNCTION || cislo == ERROR_NOT_SUPPORTED)
            throw ChybaDisku(Pricina::NejdeZamek, cesta_);
        Selhal(cesta_);
    }

    /// What both have from their folder is the same without doing. What the other was given
    /// besides is given to this one.
    void PrevezmiPrava(Soubor& od) override {
        // The one disk of a process hands out no other kind.
        Prava vzor;
        if (!vzor.Zjisti(*static_cast<WindowsSoubor&>(od).drzadlo_)) SelhalaVymena(cesta_);
        if (!vzor.Vlastni) return;
        std::wstring jmeno = cesta_.native();
        const DWORD stav =
            SetNamedSecurityInfoW(jmeno.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                  nullptr, vzor.Seznam, nullptr);
        if (stav == ERROR_SUCCESS) return;
        SetLastError(stav);
        SelhalaVymena(cesta_);
    }

private:
    /// How many bytes were written; 0 if it failed.
    DWORD Zapis(std::uint64_t kam, std::string_view co) const {
        constexpr std::size_t NEJVIC = std::size_t{1} << 20;
        OVERLAPPED misto = Misto(kam);
        DWORD n = 0;
        const auto kolik = static_cast<DWORD>(std::min(co.size(), NEJVIC));
        if (WriteFile(*drzadlo_, co.data(), kolik, &n, &misto) == 0) return 0;
        if (n == 0) SetLastError(ERROR_DISK_FULL);
        return n;
    }

    /// Takes back so many bytes written last, if they are the last of the file. A failure leaves
    /// them: whoever appends next begins on a new line.
    void VratZpet(std::uint64_t zapsano) const {
        if (zapsano == 0) return;
        LARGE_INTEGER konec{};
        LARGE_INTEGER delka{};
        if (SetFilePointerEx(*drzadlo_, {}, &konec, FILE_CURRENT) == 0 ||
            GetFileSizeEx(*drzadlo_, &delka) == 0 || konec.QuadPart != delka.QuadPart ||
            std::cmp_less(konec.QuadPart, zapsano))
            return;
        const std::uint64_t bez = static_cast<std::uint64_t>(konec.QuadPart) - zapsano;
        if (SetFilePointerEx(*drzadlo_, Velke(bez), nullptr, FILE_BEGIN) != 0)
            static_cast<void>(SetEndOfFile(*drzadlo_));
    }

    Drzadlo drzadlo_;
    fs::path cesta_;
};

DWORD Vlastnosti(const fs::path& co) {
    return GetFileAttributesW(co.c_str());
}

/// Puts a file under the name of another even while that one is open, where the file system can.
bool NahradOtevreny(const fs::path& novy, const fs::path& stary) {
    constexpr DWORD NAHRAD_I_OTEVRENY =
        0x1 | 0x2;                 // FILE_RENAME_REPLACE_IF_EXISTS, POSIX_SEMANTICS
    constexpr int PREJMENUJ = 22;  // FileRenameInfoEx
    const Drzadlo soubor(CreateFileW(novy.c_str(), DELETE | SYNCHRONIZE, SDILENE, nullptr,
                                     OPEN_EXISTING, 0, nullptr));
    if (!soubor.Je()) return false;
    const std::wstring jmeno = fs::absolute(stary).make_preferred().native();
    const std::size_t delka = jmeno.size() * sizeof(wchar_t);
    std::vector<std::max_align_t> misto(
        (sizeof(FILE_RENAME_INFO) + delka) / sizeof(std::max_align_t) + 1);
    auto* co = reinterpret_cast<FILE_RENAME_INFO*>(misto.data());
    // The flags lie where the older call has its yes or no.
    std::copy_n(reinterpret_cast<const char*>(&NAHRAD_I_OTEVRENY), sizeof(DWORD),
                reinterpret_cast<char*>(misto.data()));
    co->FileNameLength = static_cast<DWORD>(delka);
    std::ranges::copy(jmeno, co->FileName);
    return SetFileInformationByHandle(*soubor, static_cast<FILE_INFO_BY_HANDLE_CLASS>(PREJMENUJ),
                                      co,
                                      static_cast<DWORD>(sizeof(FILE_RENAME_INFO) + delka)) != 0;
}

}  // namespace

fs::path WindowsDisk::Skutecna(std::string_view cesta) {
    return NativniCesta(cesta);
}

fs::path WindowsDisk::Jednoznacna(const fs::path& co) {
    const Drzadlo h(CreateFileW(co.c_str(), 0, SDILENE, nullptr, OPEN_EXISTING,
                                FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!h.Je()) return co;
    const DWORD delka = GetFinalPathNameByHandleW(*h, nullptr, 0, FILE_NAME_NORMALIZED);
    std::wstring cesta(delka, L'\0');
    const DWORD n = GetFinalPathNameByHandleW(*h, cesta.data(), delka, FILE_NAME_NORMALIZED);
    if (n == 0 || n >= delka) return co;
    cesta.resize(n);
    // As people write it: C:\... and \\server\...
    constexpr std::wstring_view PREDPONA = L"\\\\?\\";
    constexpr std::wstring_view SIT = L"\\\\?\\UNC\\";
    if (cesta.starts_with(SIT)) return L"\\\\" + cesta.substr(SIT.size());
    if (cesta.starts_with(PREDPONA)) return cesta.substr(PREDPONA.size());
    return cesta;
}

bool WindowsDisk::JeSoubor(const fs::path& co) {
    const DWORD jaky = Vlastnosti(co);
    return jaky != INVALID_FILE_ATTRIBUTES && (jaky & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool WindowsDisk::JeSlozka(const fs::path& co) {
    const DWORD jaky = Vlastnosti(co);
    return jaky != INVALID_FILE_ATTRIBUTES && (jaky & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::unique_ptr<Soubor> WindowsDisk::Otevri(const fs::path& co, Jak jak) {
    const DWORD jakPristup = jak == Jak::Cteni ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    HANDLE h = INVALID_HANDLE_VALUE;
    const bool jde = Znovu(
        [&] {
            h = CreateFileW(co.c_str(), jakPristup, SDILENE, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
            return h != INVALID_HANDLE_VALUE;
        },
        false);
    if (!jde) {
        const DWORD cislo = GetLastError();
        // A folder in the place of a file is refused like one that is not allowed.
        if (JeSlozka(co)) throw ChybaDisku(Pricina::Jina, co);
        SetLastError(cislo);
        Selhal(co);
    }
    return std::make_unique<WindowsSoubor>(Drzadlo(h), co);
}

std::unique_ptr<Soubor> WindowsDisk::NovySoubor(const fs::path& co) {
    Drzadlo h(CreateFileW(co.c_str(), GENERIC_READ | GENERIC_WRITE, SDILENE, nullptr, CREATE_NEW,
                          FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!h.Je()) Selhal(co);
    return std::make_unique<WindowsSoubor>(std::move(h), co);
}

void WindowsDisk::Nahrad(const fs::path& novy, const fs::path& stary) {
    const auto vymen = [&] {
        return NahradOtevreny(novy, stary) ||
               MoveFileExW(novy.c_str(), stary.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    };
    if (!Znovu(vymen, true)) SelhalaVymena(stary);
}

void WindowsDisk::Prejmenuj(const fs::path& soubor, const fs::path& jmeno) {
    const auto dej = [&] {
        return MoveFileExW(soubor.c_str(), jmeno.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    };
    if (!Znovu(dej, false)) Selhal(jmeno);
}

void WindowsDisk::Odstran(const fs::path& soubor) {
    if (!Znovu([&] { return DeleteFileW(soubor.c_str()) != 0; }, true)) Selhal(soubor);
}

std::vector<std::string> WindowsDisk::Jmena(const fs::path& slozka) {
    std::vector<std::string> jmena;
    WIN32_FIND_DATAW nalez{};
    const HANDLE hledani = FindFirstFileW((slozka / "*").c_str(), &nalez);
    if (hledani == INVALID_HANDLE_VALUE) Selhal(slozka);
    do {
        const std::wstring_view jmeno = nalez.cFileName;
        if (jmeno != L"." && jmeno != L"..") jmena.push_back(fs::path(jmeno).string());
    } while (FindNextFileW(hledani, &nalez) != 0);
    const DWORD konec = GetLastError();
    FindClose(hledani);
    if (konec != ERROR_NO_MORE_FILES) {
        SetLastError(konec);
        Selhal(slozka);
    }
    std::ranges::sort(jmena);
    return jmena;
}

void WindowsDisk::ZalozSlozku(const fs::path& slozka) {
    if (JeSlozka(slozka)) return;
    if (slozka.empty()) throw ChybaDisku(Pricina::Neni, slozka);
    if (slozka.has_relative_path()) ZalozSlozku(slozka.parent_path());
    // Those of an account are made below folders that only the account may enter.
    if (CreateDirectoryW(slozka.c_str(), nullptr) != 0) return;
    const DWORD cislo = GetLastError();
    // Another program of the account may have been quicker.
    if (cislo == ERROR_ALREADY_EXISTS && JeSlozka(slozka)) return;
    SetLastError(cislo);
    Selhal(slozka);
}

void WindowsDisk::SlozkaNaDisk(const fs::path& slozka) {
    if (!JeSlozka(slozka)) throw ChybaDisku(Pricina::Neni, slozka);
}

bool WindowsDisk::SmiZakladat(const fs::path& slozka) {
    return Drzadlo(CreateFileW(slozka.c_str(), FILE_ADD_FILE, SDILENE, nullptr, OPEN_EXISTING,
                               FILE_FLAG_BACKUP_SEMANTICS, nullptr))
        .Je();
}

std::uint64_t WindowsDisk::Volno(const fs::path& slozka) {
    ULARGE_INTEGER volno{};
    if (GetDiskFreeSpaceExW(slozka.c_str(), &volno, nullptr, nullptr) == 0) Selhal(slozka);
    return volno.QuadPart;
}

}  // namespace rysovna
