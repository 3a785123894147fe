#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>

#include "base/Chyba.h"

namespace rysovna::testy {

/// A folder that goes with the test.
class Slozka {
public:
    Slozka() {
        std::string vzor = (std::filesystem::temp_directory_path() / "rysovna_XXXXXX").string();
        if (mkdtemp(vzor.data()) == nullptr) throw std::runtime_error("nelze založit " + vzor);
        cesta_ = vzor;
    }
    ~Slozka() {
        std::error_code nevadi;
        std::filesystem::remove_all(cesta_, nevadi);
    }
    Slozka(const Slozka&) = delete;
    Slozka& operator=(const Slozka&) = delete;

    [[nodiscard]] std::filesystem::path operator/(std::string_view soubor) const {
        return cesta_ / soubor;
    }
    std::filesystem::path Pis(std::string_view soubor, std::string_view obsah) const {
        std::ofstream(cesta_ / soubor, std::ios::binary) << obsah;
        return cesta_ / soubor;
    }
    [[nodiscard]] std::string Cti(std::string_view soubor) const {
        std::ifstream proud(cesta_ / soubor, std::ios::binary);
        return {std::istreambuf_iterator<char>(proud), std::istreambuf_iterator<char>()};
    }
    /// How many files there are.
    [[nodiscard]] auto Pocet() const {
        return std::distance(std::filesystem::directory_iterator(cesta_), {});
    }

private:
    std::filesystem::path cesta_;
};

/// While it lives, no file can grow over so many bytes: a write that would is cut there and fails,
/// as on a full disk.
class PlnyDisk {
public:
    explicit PlnyDisk(rlim_t bajtu) {
        drivejsiSignal_ = std::signal(SIGXFSZ, SIG_IGN);
        if (getrlimit(RLIMIT_FSIZE, &drivejsi_) != 0) throw std::runtime_error("getrlimit");
        const rlimit plny{bajtu, drivejsi_.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &plny) != 0) throw std::runtime_error("setrlimit");
    }
    ~PlnyDisk() {
        setrlimit(RLIMIT_FSIZE, &drivejsi_);
        std::signal(SIGXFSZ, drivejsiSignal_);
    }
    PlnyDisk(const PlnyDisk&) = delete;
    PlnyDisk& operator=(const PlnyDisk&) = delete;

private:
    rlimit drivejsi_{};
    void (*drivejsiSignal_)(int) = nullptr;
};

/// What the run-time fault of an action says; empty if it ran through.
template <class Akce>
std::string Hlaska(Akce&& akce) {
    try {
        akce();
    } catch (const BehovaChyba& chyba) {
        return chyba.what();
    }
    return {};
}

}  // namespace rysovna::testy
