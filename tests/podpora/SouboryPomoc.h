#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "base/Chyba.h"
#include "hrac/Relace.h"
#include "platform/Host.h"
#include "store/Soubory.h"
#include "store/Ukladani.h"

namespace rysovna::testy {

using hrac::Relace;

/// A session with a data root to write into.
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
    /// The configuration, with more lines behind the two.
    void Ini(const std::string& dalsi = "", const std::string& cd = "CD=assets",
             const std::string& hd = "HD=data") const {
        Pis("../Rysovna.ini", "[RYSOVNA1]\r\n" + cd + "\r\n" + hd + "\r\n" + dalsi + "\r\n");
    }
    /// Takes a file away, a folder in its place if that is asked for; puts it back.
    void Schovej(std::string_view s, bool slozka = false) const {
        std::filesystem::rename(Cesta(s), Cesta("stranou"));
        if (slozka) std::filesystem::create_directory(Cesta(s));
    }
    void Vrat(std::string_view s) const {
        std::filesystem::remove(Cesta(s));
        std::filesystem::rename(Cesta("stranou"), Cesta(s));
    }
    rysovna::Disk& Disk_() { return host.Disk(); }
    std::string Cti(const std::string& soubor) const { return relace.CtiSoubor(soubor); }
    /// Stores a result in the session, and waits for what it waits for.
    Ukladani::Ulozeni UlozVysledek(const Vysledek& vysledek) {
        return host.Proved(relace.Pamet().Vysledky().Uloz(vysledek));
    }
    /// The log, or another file, locked as another program locks it.
    std::unique_ptr<Soubor> CiziZamek(const std::filesystem::path& co) {
        auto cizi = host.Disk().Otevri(co, Disk::Jak::Zapis);
        EXPECT_TRUE(cizi->Zamkni());
        return cizi;
    }
    std::unique_ptr<Soubor> CiziZamek() { return CiziZamek(Cesta("Vysledky.dat")); }
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
    Relace relace;
    HeadlessHost& host = relace.Host();
    Sezeni& misc = relace.Pamet();
};

}  // namespace rysovna::testy
