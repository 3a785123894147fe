#include "prehled/Zapis.h"

#include <system_error>
#include <utility>

#include "base/Chyba.h"

namespace rysovna::prehled {

namespace fs = std::filesystem;

NovySoubor::NovySoubor(fs::path kam) : kam_(std::move(kam)), vedle_(kam_) {
    vedle_ += ".nove";
    proud_.open(vedle_, std::ios::binary | std::ios::trunc);
    if (proud_) return;
    const fs::path slozka = kam_.parent_path();
    std::error_code nevadi;
    if (!slozka.empty() && !fs::is_directory(slozka, nevadi))
        throw BehovaChyba("Taková složka není", slozka.string());
    Selhal();
}

NovySoubor::~NovySoubor() {
    if (!proud_.is_open()) return;
    proud_.close();
    std::error_code nevadi;
    fs::remove(vedle_, nevadi);
}

void NovySoubor::Dokonci() {
    proud_.flush();
    if (!proud_) Selhal();
    proud_.close();
    std::error_code chyba;
    fs::rename(vedle_, kam_, chyba);
    if (!chyba) return;
    std::error_code nevadi;
    fs::remove(vedle_, nevadi);
    Selhal();
}

void NovySoubor::Selhal() const {
    throw BehovaChyba("Do souboru nelze zapsat; není otevřený v jiném programu?", kam_.string());
}

}  // namespace rysovna::prehled
