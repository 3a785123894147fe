#include "platform/web/WebDisk.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

#include "platform/web/Stranka.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

/// As the page tells what became of something that was to be kept.
enum class Stav { Ceka = 0, Uchovano = 1, Plno = 2, Nepovoleno = 3, Jinak = 4 };

bool LeziV(const fs::path& co, const char* slozka) {
    return co.string().starts_with(std::string(slozka) + "/");
}

/// An entry that is being written is nobody's until it gets its name.
bool JeDocasny(const fs::path& co) {
    return co.extension() == PRIPONA_NOVEHO || co.filename() == JMENO_ZAMKU;
}

/// A file in a folder below that of results is made once and never changed: what was refused of
/// them goes from memory too, and nothing is remembered of what was kept.
bool JeStaly(const fs::path& co) {
    return co.parent_path() != SLOZKA_UCTU;
}

std::optional<std::string> Obsah(const fs::path& co) {
    std::ifstream soubor(co, std::ios::binary);
    if (!soubor) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(soubor), {});
}

[[noreturn]] void Odmitnuto(Stav stav, const fs::path& co) {
    throw ChybaDisku(stav == Stav::Plno         ? Pricina::Plno
                     : stav == Stav::Nepovoleno ? Pricina::Nepovoleno
                                                : Pricina::Jina,
                     co);
}

void PisDoPameti(const fs::path& co, const std::string& obsah) {
    std::ofstream(co, std::ios::binary) << obsah;
}

}  // namespace

/// A file in memory that tells its disk what is done to it.
class WebDisk::WebSoubor final : public Soubor {
public:
    WebSoubor(WebDisk& kde, fs::path cesta, std::unique_ptr<Soubor> pamet)
        : kde_(kde), cesta_(std::move(cesta)), pamet_(std::move(pamet)) {}
    ~WebSoubor() override {
        if (zamceno_) kde_.zamcene_.erase(cesta_.string());
    }

    std::string Cti(std::uint64_t odkud, std::size_t nejvyse) override {
        return pamet_->Cti(odkud, nejvyse);
    }
    std::uint64_t Delka() override { return pamet_->Delka(); }
    void Pis(std::uint64_t kam, std::string_view co) override {
        Zmen([&] { pamet_->Pis(kam, co); });
    }
    void Pripis(std::string_view co) override {
        Zmen([&] { pamet_->Pripis(co); });
    }
    void Zkrat(std::uint64_t delka) override {
        Zmen([&] { pamet_->Zkrat(delka); });
    }
    void NaDisk() override {}
    bool Zamkni() override {
        zamceno_ = zamceno_ || kde_.zamcene_.insert(cesta_.string()).second;
        return zamceno_;
    }
    void PrevezmiPrava(Soubor& /*od*/) override {}

private:
    /// What the browser refuses is taken back.
    template <class Co>
    void Zmen(Co&& co) {
        const std::string drive = pamet_->Cti();
        co();
        try {
            kde_.Zmenen(cesta_);
        } catch (const ChybaDisku&) {
            pamet_->Zkrat(0);
            pamet_->Pis(0, drive);
            throw;
        }
    }

    WebDisk& kde_;
    fs::path cesta_;
    std::unique_ptr<Soubor> pamet_;
    bool zamceno_ = false;
};

WebDisk::WebDisk() {
    std::error_code chyba;
    for (const auto& polozka : fs::directory_iterator(SLOZKA_UCTU, chyba)) {
        if (polozka.is_regular_file())
            uchovane_[polozka.path().string()] = Obsah(polozka.path()).value_or("");
    }
}

std::unique_ptr<Soubor> WebDisk::Otevri(const fs::path& co, Jak jak) {
    return std::make_unique<WebSoubor>(*this, co, PosixDisk::Otevri(co, jak));
}

std::unique_ptr<Soubor> WebDisk::NovySoubor(const fs::path& co) {
    auto soubor = std::make_unique<WebSoubor>(*this, co, PosixDisk::NovySoubor(co));
    try {
        Zmenen(co);
    } catch (const ChybaDisku&) {
        PosixDisk::Odstran(co);
        throw;
    }
    return soubor;
}

void WebDisk::Nahrad(const fs::path& novy, const fs::path& stary) {
    const std::optional<std::string> drive = Obsah(stary);
    PosixDisk::Nahrad(novy, stary);
    try {
        Zmenen(stary);
    } catch (const ChybaDisku&) {
        PosixDisk::Nahrad(stary, novy);
        if (drive) PisDoPameti(stary, *drive);
        throw;
    }
    Zmenen(novy);
}

/// No other program sees the files: a look before tells enough.
void WebDisk::Prejmenuj(const fs::path& soubor, const fs::path& jmeno) {
    if (JeSoubor(jmeno)) throw ChybaDisku(Pricina::UzJe, jmeno);
    Nahrad(soubor, jmeno);
}

void WebDisk::Odstran(const fs::path& soubor) {
    PosixDisk::Odstran(soubor);
    Zmenen(soubor);
}

bool WebDisk::SmiZakladat(const fs::path& slozka) {
    return slozka == SLOZKA_UCTU || slozka == SLOZKA_STAVU || LeziV(slozka, SLOZKA_UCTU) ||
           LeziV(slozka, SLOZKA_STAVU) || slozka == "/";
}

std::uint64_t WebDisk::Volno(const fs::path& /*slozka*/) {
    return static_cast<std::uint64_t>(stranka_volno());
}

void WebDisk::Zmenen(const fs::path& co) {
    if (LeziV(co, SLOZKA_STAVU)) return HnedUchovej(co);
    if (LeziV(co, SLOZKA_UCTU)) zmenene_.insert(co.string());
}

void WebDisk::HnedUchovej(const fs::path& co) {
    if (JeDocasny(co)) return;
    const std::optional<std::string> obsah = Obsah(co);
    const auto stav = static_cast<Stav>(
        stranka_hned(co.c_str(), obsah ? obsah->data() : nullptr, obsah ? obsah->size() : 0));
    if (stav != Stav::Uchovano) Odmitnuto(stav, co);
}

bool WebDisk::Uchovano() {
    if (uklada_.empty()) {
        if (zmenene_.empty()) return true;
        for (const std::string& cesta : std::exchange(zmenene_, {})) {
            const std::optional<std::string> obsah = Obsah(cesta);
            stranka_transakce_pridej(cesta.c_str(), obsah ? obsah->data() : nullptr,
                                     obsah ? obsah->size() : 0);
            uklada_[cesta] = obsah;
        }
        stranka_transakce_zacni();
    }
    const auto stav = static_cast<Stav>(stranka_transakce_stav());
    if (stav == Stav::Ceka) return false;
    const auto ulozene = std::exchange(uklada_, {});
    if (stav != Stav::Uchovano) {
        for (const auto& [cesta, obsah] : ulozene) zmenene_.insert(cesta);
        VratUchovane();
        Odmitnuto(stav, ulozene.begin()->first);
    }
    for (const auto& [cesta, obsah] : ulozene) {
        if (JeStaly(cesta)) continue;
        if (obsah) {
            uchovane_[cesta] = *obsah;
        } else {
            uchovane_.erase(cesta);
        }
    }
    // What changed meanwhile goes in a transaction of its own.
    return zmenene_.empty() ? true : Uchovano();
}

/// What was refused must not pass for stored: it is taken back.
void WebDisk::VratUchovane() {
    for (const std::string& cesta : std::exchange(zmenene_, {})) {
        if (JeStaly(cesta)) {
            std::error_code nevadi;
            fs::remove(cesta, nevadi);
            continue;
        }
        const auto i = uchovane_.find(cesta);
        if (i != uchovane_.end()) {
            PisDoPameti(cesta, i->second);
        } else {
            // The program looks for its empty files; the store will get them with the next ones.
            PisDoPameti(cesta, "");
            zmenene_.insert(cesta);
        }
    }
}

}  // namespace rysovna
