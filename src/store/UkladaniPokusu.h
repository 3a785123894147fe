#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/Disk.h"
#include "rules/Pokus.h"
#include "store/UkladaniNaDisk.h"

namespace rysovna {

/// Keeps attempts: one file a series, in the folder Pokusy of the folder of results, never changed
/// afterwards. It is written whole beside its name and then given that name, which no other file
/// may have (Disk::Prejmenuj); should one have it, another name is drawn.
///
/// While the series is played its file grows in the queue of the account, locked, example by
/// example; where the program was killed the next start finds it there, and makes it an unfinished
/// one. It leaves the queue when the disk has kept the other, which in a browser comes later.
/// Nothing here throws: what cannot be written is told once, until all that waits is stored, and
/// stays in the queue.
class UkladaniPokusu : public UkladaniNaDisk {
public:
    /// ted: tick count, ms. koren: the folder of results. slozkaStavu: the account's state folder;
    /// may be empty.
    UkladaniPokusu(Disk& disk, std::function<std::uint32_t()> ted,
                   const std::filesystem::path& koren, const std::filesystem::path& slozkaStavu);

    /// A series begins; its examples are not looked at. Touches no file.
    void Zacni(const Pokus& pokus);
    /// An example of it is over: from now on it outlives the program.
    void Pridej(const HranyPriklad& priklad);
    /// The series is over, or was left. One in which nothing was done is kept nowhere. What is to
    /// be told; mostly nothing. Without a series it does nothing.
    [[nodiscard]] Cinnost<std::string> Dokonci(bool dokonceny);
    /// The series was left, and nobody can wait or be told.
    void Opust();
    /// Stores what earlier runs left in the queue, at the start of the program. What is to be told.
    [[nodiscard]] Cinnost<std::string> ZkusCekajici(DatumACas dnes);
    /// Puts the text of an attempt from elsewhere into the folder, if it is not there: under its
    /// name if no other has it. Throws ChybaDisku; waits for nothing.
    void Prevezmi(const std::string& jmeno, std::string_view text);

private:
    /// A series that is played.
    struct Serie {
        std::string Jmeno{};  ///< of its file; empty between two series
        std::string Text{};   ///< of it so far
        int CisloUlohy = 0;
        bool Neco = false;                    ///< something was done in it
        std::unique_ptr<Soubor> Rozepsany{};  ///< in the queue, with its lock
    };

    [[nodiscard]] bool Rozepis(Serie& serie);
    void Stahni(Serie& serie);
    void UlozSoubor(const std::string& jmeno, std::string_view text);
    [[nodiscard]] bool DejJmeno(const std::filesystem::path& novy, const std::filesystem::path& cil,
                                std::string_view text);
    [[nodiscard]] bool JeUlozen(const std::filesystem::path& cesta, std::string_view text);
    Cinnost<> UlozCekajici(std::string jmeno, std::string dnes);
    [[nodiscard]] std::string Oznam(const std::string& proc, bool ceka);
    [[nodiscard]] std::string HlavickaFronty() const;
    [[nodiscard]] std::filesystem::path Znamka() const;
    void ZapomenOznameni();

    std::filesystem::path koren_, fronta_;  ///< the latter empty where the account has none
    Serie serie_;
    bool ohlaseno_ = false;
};

}  // namespace rysovna
