#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <grp.h>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "platform/PosixDisk.h"
#include "podpora/UkladaniHned.h"
#include "store/VymenaSouboru.h"

namespace rysovna::testy {

namespace fs = std::filesystem;

/// A folder of results and state folders, in memory where the machine has such a disk.
class Trida : public ::testing::Test {
protected:
    static constexpr gid_t SKUPINA = 61000;

    Trida() {
        std::string vzor = fs::is_directory("/dev/shm") && !NaDisku() ? "/dev/shm/rysovna_XXXXXX"
                                                                      : "/tmp/rysovna_XXXXXX";
        if (mkdtemp(vzor.data()) == nullptr) std::abort();
        koren = vzor;
        fs::permissions(koren, fs::perms(0755));
        data = koren / "data";
        fs::create_directory(data);
    }
    ~Trida() override {
        std::error_code nevadi;
        fs::permissions(data, fs::perms(0700), nevadi);
        fs::remove_all(koren, nevadi);
    }
    /// Whether the measurement is to be of a real disk.
    static bool NaDisku() { return std::getenv("RYSOVNA_NA_DISKU") != nullptr; }

    static std::string Cti(const fs::path& soubor) {
        std::ifstream vstup(soubor, std::ios::binary);
        return {std::istreambuf_iterator<char>(vstup), {}};
    }
    static void Pis(const fs::path& soubor, std::string_view obsah) {
        std::ofstream(soubor, std::ios::binary | std::ios::trunc) << obsah;
    }
    std::string Tabulka() const { return std::string(PlatneBajty(Cti(data / "01.res"))); }
    std::string Denik() const { return Cti(data / "Vysledky.dat"); }

    /// Rights of the folder and of the files in it. Where this account may give them away, they
    /// are another's, in the group of the class.
    void NastavPrava(bool otevrena) const {
        for (const auto& soubor : fs::directory_iterator(data)) {
            fs::permissions(soubor, fs::perms(0666));
            Rozdej(soubor);
        }
        fs::permissions(data, otevrena ? fs::perms(0777) : fs::perms(0555));
        Rozdej(data);
    }
    static void Rozdej(const fs::path& co) {
        constexpr uid_t UCITEL = 61000;
        if (geteuid() == 0 && chown(co.c_str(), UCITEL, SKUPINA) != 0) std::abort();
    }
    /// The state folder of an account; one that it may use is made by ZalozStav.
    fs::path Stav(int ucet = 0) const { return koren / ("stav" + std::to_string(ucet)); }
    void ZalozStav(int ucet = 0) const {
        fs::remove_all(Stav(ucet));
        fs::create_directory(Stav(ucet));
        fs::permissions(Stav(ucet), fs::perms(0777));
    }
    /// Runs something in a process of its own; kdo and skupina: its account, where this one may
    /// choose.
    static pid_t Spust(uid_t kdo, const std::function<void()>& co, gid_t skupina = SKUPINA) {
        const pid_t pid = fork();
        if (pid != 0) return pid;
        const bool vsemocny = geteuid() == 0;
        if (vsemocny && (setgroups(0, nullptr) != 0 || setgid(skupina) != 0 || setuid(kdo) != 0))
            _exit(99);
        try {
            co();
        } catch (const std::exception& chyba) {
            std::cerr << chyba.what() << std::endl;
            _exit(98);
        }
        _exit(0);
    }
    /// Its exit status; -1 for one that was killed.
    static int Pockej(pid_t pid) {
        int stav = 0;
        if (waitpid(pid, &stav, 0) != pid) return -2;
        return WIFEXITED(stav) ? WEXITSTATUS(stav) : -1;
    }
    static Hodiny SkutecneHodiny() {
        return {.Ted =
                    [] {
                        const auto ted = std::chrono::steady_clock::now().time_since_epoch();
                        return static_cast<std::uint32_t>(
                            std::chrono::duration_cast<std::chrono::milliseconds>(ted).count());
                    },
                .Spi =
                    [](std::uint32_t ms) {
                        std::this_thread::sleep_for(std::chrono::milliseconds(ms));
                    }};
    }

    fs::path koren, data;
};

}  // namespace rysovna::testy
