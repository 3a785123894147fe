#include <algorithm>
#include <cstdlib>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

#include "platform/Stroj.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// The folder that this account is at home in; empty where it has none.
fs::path Domov() {
    const char* domov = std::getenv("HOME");
    if (domov == nullptr || *domov != '/') {
        const passwd* ucet = ::getpwuid(::geteuid());
        domov = ucet == nullptr ? nullptr : ucet->pw_dir;
    }
    return domov == nullptr || *domov != '/' ? fs::path() : fs::path(domov);
}

/// What a variable names, else a folder of the account's home; empty where there is neither.
fs::path Slozka(const char* promenna, const char* podDomovem) {
    const char* hodnota = std::getenv(promenna);
    if (hodnota != nullptr && *hodnota == '/') return hodnota;
    const fs::path domov = Domov();
    return domov.empty() ? fs::path() : domov / podDomovem;
}

fs::path SlozkaUctu(const char* promenna, const char* podDomovem) {
    constexpr const char* PROGRAM = "rysovna";
    const fs::path slozka = Slozka(promenna, podDomovem);
    return slozka.empty() ? fs::path() : slozka / PROGRAM;
}

/// The folder that a line of the desktop's settings names, XDG_DOCUMENTS_DIR="$HOME/Dokumenty";
/// empty where none does.
fs::path SlozkaZNastaveni(std::string_view nastaveni, const fs::path& domov) {
    constexpr std::string_view KLIC = "XDG_DOCUMENTS_DIR=\"", DOMOV = "$HOME/";
    for (std::size_t od = 0; od < nastaveni.size();) {
        const std::size_t konec = std::min(nastaveni.find('\n', od), nastaveni.size());
        std::string_view radek = nastaveni.substr(od, konec - od);
        od = konec + 1;
        if (!radek.starts_with(KLIC)) continue;
        radek.remove_prefix(KLIC.size());
        radek = radek.substr(0, radek.find('"'));
        if (radek.starts_with('/')) return radek;
        if (radek.starts_with(DOMOV)) return domov / radek.substr(DOMOV.size());
    }
    return {};
}

}  // namespace

fs::path SlozkaProgramu() {
    std::error_code neni;
    return fs::read_symlink("/proc/self/exe", neni).parent_path();
}

fs::path SlozkaStavuUctu() {
    return SlozkaUctu("XDG_STATE_HOME", ".local/state");
}

fs::path SlozkaDatUctu() {
    return SlozkaUctu("XDG_DATA_HOME", ".local/share");
}

fs::path SlozkaDokumentuUctu() {
    const fs::path domov = Domov();
    const auto nastaveni = CelySoubor(Slozka("XDG_CONFIG_HOME", ".config") / "user-dirs.dirs");
    const fs::path jmenovana = SlozkaZNastaveni(nastaveni.value_or(""), domov);
    if (!jmenovana.empty()) return jmenovana;
    std::error_code chyba;
    const fs::path obvykla = domov / "Documents";
    return fs::is_directory(obvykla, chyba) ? obvykla : domov;
}

bool OtevriSoubor(const fs::path& /*soubor*/) {
    return false;
}

fs::path SlozkaNastaveniUctu() {
    return SlozkaUctu("XDG_CONFIG_HOME", ".config");
}

fs::path SlozkaNastaveniStroje() {
    return "/etc/rysovna";
}

std::vector<std::string> Argumenty(int pocet, char** slova) {
    return {slova + std::min(pocet, 1), slova + pocet};
}

}  // namespace rysovna
