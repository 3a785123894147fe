#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "base/Disk.h"
#include "rules/Pokus.h"

namespace rysovna {

/// Keeps attempts: one file a series, in the folder Pokusy of the folder of results, under a name
/// of its own, made once and whole and never changed. While the series is played its file grows in
/// the queue of the account, locked, example by example; where the program was killed the next
/// start finds it there, and makes it an unfinished one. Nothing here throws: what cannot be
/// written is told once, until all that waits is stored, and stays in the queue.
class UkladaniPokusu {
public:
    /// Name of the folder in the folder of results, and how its files end.
    static constexpr std::string_view SLOZKA = "Pokusy", PRIPONA = ".pokus";

    /// koren: the folder of results. slozkaStavu: the account's state folder; may be empty.
    UkladaniPokusu(Disk& disk, const std::filesystem::path& koren,
                   const std::filesystem::path& slozkaStavu);

    /// A series begins; its examples are not looked at. Touches no file.
    void Zacni(const Pokus& pokus);
    /// An example of it is over: from now on it outlives the program.
    void Pridej(const HranyPriklad& priklad);
    /// The series is over, or was left. One in which nothing was done is kept nowhere. What is to
    /// be told; mostly nothing. smiRici: it will be told. Without a series it does nothing.
    [[nodiscard]] std::string Dokonci(bool dokonceny, bool smiRici = true);
    /// Stores what earlier runs left in the queue, at the start of the program. What is to be told.
    [[nodiscard]] std::string ZkusCekajici(const DatumACas& dnes);

private:
    void Rozepis();
    void UlozSoubor(const std::string& jmeno, std::string_view text);
    void UlozCekajici(const std::string& jmeno, const std::string& dnes);
    [[nodiscard]] std::string Oznam(const std::string& proc, bool ceka);
    [[nodiscard]] std::filesystem::path Znamka() const;
    void ZapomenOznameni();

    Disk& disk_;
    std::filesystem::path koren_, fronta_;  ///< the latter empty where the account has none
    std::string jmeno_;                     ///< of the file; empty between two series
    std::string text_;                      ///< of the series so far
    int cisloUlohy_ = 0;
    bool neco_ = false;                  ///< something was done in it
    std::unique_ptr<Soubor> rozepsany_;  ///< in the queue, with its lock
    bool ohlaseno_ = false;
};

}  // namespace rysovna
