#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#ifdef _WIN32
#include "platform/windows/WindowsDisk.h"
#else
#include "platform/PosixDisk.h"
#endif

namespace rysovna {

// What a process wants of its system without any window.

/// The disk of the system that the program is built for.
#ifdef _WIN32
using DiskStroje = WindowsDisk;
#else
using DiskStroje = PosixDisk;
#endif

/// What a file holds, whole; nothing where it cannot be read. For the libraries that would open a
/// file by a name in the machine's own code page.
[[nodiscard]] std::optional<std::string> CelySoubor(const std::filesystem::path& soubor);

/// Where this account keeps what the program remembers between runs ($XDG_STATE_HOME or
/// ~/.local/state; %LOCALAPPDATA%) and its own data ($XDG_DATA_HOME or ~/.local/share; %APPDATA%),
/// each with the program's name behind. Empty where the account has no home.
[[nodiscard]] std::filesystem::path SlozkaStavuUctu();
[[nodiscard]] std::filesystem::path SlozkaDatUctu();

/// Where this account keeps its documents: the folder that the desktop's settings name, else
/// Documents in its home if there is one, else its home. Empty where the account has no home.
[[nodiscard]] std::filesystem::path SlozkaDokumentuUctu();
/// Has the system show a file by a program of its own. False where the window's library is asked.
bool OtevriSoubor(const std::filesystem::path& soubor);

/// Where configuration is looked for when there is none beside the program: that of the account
/// (rysovna below $XDG_CONFIG_HOME or ~/.config; %APPDATA%), then that of the machine
/// (/etc/rysovna; %PROGRAMDATA%). Empty where there is no such place.
[[nodiscard]] std::filesystem::path SlozkaNastaveniUctu();
[[nodiscard]] std::filesystem::path SlozkaNastaveniStroje();

/// The folder of these that holds Rysovna.ini (any case): the program's own, the account's, else
/// the machine's, whether that one does or not.
[[nodiscard]] std::filesystem::path SlozkaNastaveni(const std::filesystem::path& program);

/// The folder that the program's own file lies in; empty where that cannot be found out.
[[nodiscard]] std::filesystem::path SlozkaProgramu();

/// The words behind the program's name, in UTF-8, of what main was given. What the process writes
/// from then on is seen where it was started from, in UTF-8 too.
[[nodiscard]] std::vector<std::string> Argumenty(int pocet, char** slova);

}  // namespace rysovna
