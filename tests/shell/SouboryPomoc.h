#pragma once

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>

#include "base/Chyba.h"
#include "hrac/Relace.h"
#include "platform/Host.h"
#include "rules/Misc.h"
#include "store/Soubory.h"
#include "store/Ukladani.h"

namespace rysovna::testy {

using hrac::Relace;

/// Stores a result in a session, and waits for what it waits for.
inline Ukladani::Ulozeni Uloz(Relace& relace, const Vysledek& vysledek) {
    return relace.Host().Proved(relace.Pamet().Vysledky().Uloz(vysledek));
}

/// A data root to write into.
class Soubory : public ::testing::Test {
protected:
    Soubory() {
        relace.Pamet().CestaHD = relace.Pamet().CestaVysledku = Cesta("").string();
        relace.Pamet().Vety = [this](int cislo) {
            return CtiVety(host.Disk(), relace.Pamet().CestaHD + "Errors.dat", cislo);
        };
    }
    std::filesystem::path Cesta(std::string_view s) const { return relace.DataDir() / s; }
    std::filesystem::path Pis(const std::string& soubor, std::string_view obsah) const {
        relace.PisSoubor(soubor, obsah);
        return Cesta(soubor);
    }
    rysovna::Disk& Disk_() { return relace.Host().Disk(); }
    std::string Cti(const std::string& soubor) const { return relace.CtiSoubor(soubor); }
    /// How many files there are.
    auto Pocet() const {
        return std::distance(std::filesystem::directory_iterator(relace.DataDir()), {});
    }
    /// What the run-time fault of an action says, the folder cut out; empty if it ran through.
    template <class Akce>
    std::string Chyba(Akce&& akce) const {
        try {
            akce();
        } catch (const BehovaChyba& chyba) {
            std::string text = chyba.what();
            const std::string cesta = Cesta("").string();
            if (const auto i = text.find(cesta); i != text.npos) text.erase(i, cesta.size());
            return text;
        }
        return {};
    }
    /// The same while no file can grow over so many bytes: a write that would is cut there and
    /// fails, as on a full disk.
    template <class Akce>
    std::string ChybaNaPlnemDisku(rlim_t bajtu, Akce&& akce) const {
        const auto drivejsiSignal = std::signal(SIGXFSZ, SIG_IGN);
        rlimit drivejsi{};
        getrlimit(RLIMIT_FSIZE, &drivejsi);
        const rlimit plny{bajtu, drivejsi.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &plny) != 0) throw std::runtime_error("setrlimit");
        std::string hlaska = Chyba(akce);
        setrlimit(RLIMIT_FSIZE, &drivejsi);
        std::signal(SIGXFSZ, drivejsiSignal);
        return hlaska;
    }
    Relace relace;
    HeadlessHost& host = relace.Host();
    Misc& misc = relace.Pamet();
};

}  // namespace rysovna::testy
