#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "prehled/Prehled.h"
#include "prehled/Sql.h"

namespace rysovna::prehled {

/// The index is not what this program wrote.
struct VadnyRejstrik : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What was read of attempts, kept so that each file is read once: a database of one file. It holds
/// nothing that the attempts do not, and may be thrown away at any time.
class Rejstrik {
public:
    /// Opens it, or makes it where there is none; from here on until Potvrd all is one change, for
    /// which other programs wait. One that cannot be made is a fault, one of another's making
    /// throws VadnyRejstrik, as all calls do where they find it damaged.
    explicit Rejstrik(const std::filesystem::path& soubor);

    /// What is known of a series without reading it.
    struct Zaznam {
        std::int64_t Id = 0;
        std::string Slozka{};  ///< from which it was read
        std::string Jmeno{};   ///< as typed
    };
    /// By names of files.
    [[nodiscard]] std::unordered_map<std::string, Zaznam> Serie();

    /// Adds a series. slozka: where its file lies. rozchod: where its replay came apart.
    /// obrazce: its figures as ZabalObrazce has them; those in the series are not looked at.
    void Pridej(const prehled::Serie& serie, const std::string& slozka, std::string_view rozchod,
                std::string_view obrazce);
    void Odeber(std::int64_t id);
    /// All that was added and taken away since it was opened is kept from now on.
    void Potvrd();

    /// Calls with each series, without pupil, grade and figures, from the oldest on; what it began
    /// at the same minute by the names of files.
    struct Prectena {
        std::int64_t Id = 0;
        prehled::Serie Co{};
        std::string Rozchod{};
    };
    void ProKazdou(const std::function<void(Prectena&)>& coSNi);
    /// Fills in the figures.
    void NactiObrazce(std::int64_t id, prehled::Serie& serie);

private:
    void Zaloz();
    [[nodiscard]] std::int64_t IdVety(const std::string& veta);

    Databaze db_;
    std::unordered_map<std::string, std::int64_t> vety_;  ///< rows of sentences
    std::optional<Dotaz> pridejSerii_, pridejPriklad_, pridejChybu_, pridejObrazce_, obrazce_;
};

/// Opens the index. What stands there and cannot be used is put aside or, if it is one of this
/// program's own, thrown away, and a new one made; oznam gets a sentence that says so.
[[nodiscard]] std::unique_ptr<Rejstrik> OtevriRejstrik(const std::filesystem::path& soubor,
                                                       std::string& oznam);
/// Puts it out of the way all the same; what was found out later.
void OdlozRejstrik(const std::filesystem::path& soubor, std::string& oznam);

}  // namespace rysovna::prehled
