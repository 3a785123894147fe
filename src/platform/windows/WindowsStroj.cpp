#include <cstdio>

#include "platform/Stroj.h"
#include "platform/windows/Volani.h"

// After the calls that it builds on.
#include <shellapi.h>
#include <shlobj.h>

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// The program's own folder below one that a variable names; empty where it names none.
fs::path SlozkaZPromenne(const wchar_t* promenna) {
    constexpr const wchar_t* PROGRAM = L"Rysovna";
    const DWORD delka = GetEnvironmentVariableW(promenna, nullptr, 0);
    if (delka == 0) return {};
    std::wstring hodnota(delka, L'\0');
    hodnota.resize(GetEnvironmentVariableW(promenna, hodnota.data(), delka));
    const fs::path slozka(hodnota);
    return slozka.is_absolute() ? slozka / PROGRAM : fs::path();
}

/// A stream that leads nowhere leads to the console that the program was started from.
void DoKonzole(DWORD ktery, std::FILE* proud) {
    const HANDLE h = GetStdHandle(ktery);
    if (h != nullptr && h != INVALID_HANDLE_VALUE) return;
    static_cast<void>(_wfreopen(L"CONOUT$", L"w", proud));
}

/// A program with a window has no console of its own: it writes into that of its starter.
void PripravKonzoli() {
    if (GetConsoleWindow() == nullptr && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        DoKonzole(STD_OUTPUT_HANDLE, stdout);
        DoKonzole(STD_ERROR_HANDLE, stderr);
    }
    SetConsoleOutputCP(CP_UTF8);
}

}  // namespace

fs::path SlozkaProgramu() {
    constexpr DWORD NEJVIC = 32768;  // letters of any path
    std::wstring soubor(NEJVIC, L'\0');
    soubor.resize(GetModuleFileNameW(nullptr, soubor.data(), NEJVIC));
    return fs::path(soubor).parent_path();
}

fs::path SlozkaStavuUctu() {
    return SlozkaZPromenne(L"LOCALAPPDATA");
}

fs::path SlozkaDatUctu() {
    return SlozkaZPromenne(L"APPDATA");
}

fs::path SlozkaDokumentuUctu() {
    wchar_t slozka[MAX_PATH] = {};
    const HRESULT stav = SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, slozka);
    return stav == S_OK ? fs::path(slozka) : fs::path();
}

bool OtevriSoubor(const fs::path& soubor) {
    ShellExecuteW(nullptr, L"open", soubor.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return true;
}

fs::path SlozkaNastaveniUctu() {
    return SlozkaZPromenne(L"APPDATA");
}

fs::path SlozkaNastaveniStroje() {
    return SlozkaZPromenne(L"PROGRAMDATA");
}

std::vector<std::string> Argumenty(int /*pocet*/, char** /*slova*/) {
    PripravKonzoli();
    // What main was given has lost the letters that the machine's own code page lacks.
    std::vector<std::string> argumenty;
    int n = 0;
    wchar_t** siroke = CommandLineToArgvW(GetCommandLineW(), &n);
    if (siroke == nullptr) return argumenty;
    for (int i = 1; i < n; ++i) argumenty.push_back(fs::path(siroke[i]).string());
    LocalFree(siroke);
    return argumenty;
}

}  // namespace rysovna
