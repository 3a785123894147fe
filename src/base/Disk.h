#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna {

/// A path out of a text of the program, which is UTF-8 whatever the machine's own texts are. The
/// other way is path::string().
[[nodiscard]] std::filesystem::path CestaZTextu(std::string_view text);

/// How the name of an entry of the queue or of an attempt ends that is still being written and gets
/// its own name when it is whole, and the name of a file that holds nothing but a lock: what keeps
/// files elsewhere leaves these out. (A score table that is being written bears a name of its own.)
constexpr std::string_view PRIPONA_NOVEHO = ".novy", JMENO_ZAMKU = "zamek";

/// The file that says where things are.
constexpr const char* JMENO_INI = "Rysovna.ini";

/// Why the disk did not do what it was asked for.
enum class Pricina {
    Neni,        ///< there is no such file or folder
    UzJe,        ///< the name is taken
    Nepovoleno,  ///< this account may not, or nobody may (a read-only disk)
    Plno,        ///< no room, or the account's share of it is used up
    NejdeZamek,  ///< the file system keeps no locks
    Zamceno,     ///< another program keeps the lock
    Jina
};

/// What the disk could not do. Not the fault that ends the program: storing a result catches it,
/// tells it, and the game goes on.
class ChybaDisku : public std::runtime_error {
public:
    ChybaDisku(Pricina proc, const std::filesystem::path& soubor);
    [[nodiscard]] Pricina Proc() const { return proc_; }
    /// The file or folder that was meant.
    [[nodiscard]] const std::filesystem::path& Soubor() const { return soubor_; }

private:
    Pricina proc_;
    std::filesystem::path soubor_;
};

/// In Czech, as it stands in brackets of a message: "na disku není místo".
[[nodiscard]] std::string_view TextPriciny(Pricina proc);

/// An open file; closed, and its lock given up, when the object goes. Places and lengths in bytes.
/// Every call does what it says or throws ChybaDisku.
class Soubor {
public:
    static constexpr std::size_t VSE = std::numeric_limits<std::size_t>::max();
    /// The one byte that is locked: far beyond any log, and small enough for servers that count
    /// places in 63 bits or less. The same on every computer that shares the folder.
    static constexpr std::uint64_t MISTO_ZAMKU = std::uint64_t{1} << 40;

    virtual ~Soubor() = default;
    Soubor(const Soubor&) = delete;
    Soubor& operator=(const Soubor&) = delete;

    /// What stands there now, at most so many bytes; less where the file ends.
    [[nodiscard]] virtual std::string Cti(std::uint64_t odkud = 0, std::size_t nejvyse = VSE) = 0;
    [[nodiscard]] virtual std::uint64_t Delka() = 0;
    /// Writes over what stands there, and on past the end.
    virtual void Pis(std::uint64_t kam, std::string_view co) = 0;
    /// Writes behind whatever is there at that moment. What a failure left half written is taken
    /// back, unless somebody has written behind it meanwhile: nothing of another's is ever cut.
    virtual void Pripis(std::string_view co) = 0;
    /// Cuts the file to this length.
    virtual void Zkrat(std::uint64_t delka) = 0;
    /// Waits until all that was written is on the disk. A disk that does not know the question is
    /// no fault.
    virtual void NaDisk() = 0;
    /// Asks once, without waiting, for the one lock of this file, kept until the file is closed:
    /// it holds against other programs, other computers that share the folder, and other opened
    /// copies of this process. False while another has it. The file must be open for writing.
    /// The lock lies at MISTO_ZAMKU and hinders nobody's reading or writing.
    [[nodiscard]] virtual bool Zamkni() = 0;
    /// Rights and group as those of another file; the owner stays.
    virtual void PrevezmiPrava(Soubor& od) = 0;

protected:
    Soubor() = default;
};

/// Files and folders as results need them: real paths, no paths of the system's own spelling but
/// in Skutecna. Every call does what it says or throws ChybaDisku.
class Disk {
public:
    enum class Jak {
        Cteni,    ///< reading
        Zapis,    ///< reading and Pis
        Pripisek  ///< reading and Pripis
    };

    Disk() = default;
    virtual ~Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    /// A path with backslashes, in any case, as it stands on the disk.
    [[nodiscard]] virtual std::filesystem::path Skutecna(std::string_view cesta) = 0;
    /// The one name of a folder: absolute, links followed. As given where that cannot be found out.
    [[nodiscard]] virtual std::filesystem::path Jednoznacna(const std::filesystem::path& co) = 0;

    [[nodiscard]] virtual bool JeSoubor(const std::filesystem::path& co) = 0;
    [[nodiscard]] virtual bool JeSlozka(const std::filesystem::path& co) = 0;
    /// Opens a file that is there.
    [[nodiscard]] virtual std::unique_ptr<Soubor> Otevri(const std::filesystem::path& co,
                                                         Jak jak) = 0;
    /// Makes an empty file that was not there, follows no link; open as for Zapis. Who may write
    /// into its folder may write into it, whatever the account's habit is.
    [[nodiscard]] virtual std::unique_ptr<Soubor> NovySoubor(const std::filesystem::path& co) = 0;
    /// Puts a file in the place of another of the same folder: that name is the new one from then
    /// on, or still the old one.
    virtual void Nahrad(const std::filesystem::path& novy, const std::filesystem::path& stary) = 0;
    /// Gives a file another name in the same folder, unless there is one of that name: then UzJe,
    /// and nothing has changed. The name is never seen with another content, but for an empty one
    /// for a moment where the system cannot do better.
    virtual void Prejmenuj(const std::filesystem::path& soubor,
                           const std::filesystem::path& jmeno) = 0;
    virtual void Odstran(const std::filesystem::path& soubor) = 0;
    /// Names in a folder, in alphabetical order.
    [[nodiscard]] virtual std::vector<std::string> Jmena(const std::filesystem::path& slozka) = 0;
    /// Makes a folder, and those above it, that only this account may enter; one that is there
    /// stays as it is.
    virtual void ZalozSlozku(const std::filesystem::path& slozka) = 0;
    /// Makes a folder in one that is there: whoever may work in that one may work in this.
    virtual void ZalozPodslozku(const std::filesystem::path& slozka) { ZalozSlozku(slozka); }
    /// Waits until what was made, replaced and removed in the folder is on the disk. A folder that
    /// may not be asked is no fault.
    virtual void SlozkaNaDisk(const std::filesystem::path& slozka) = 0;

    /// Whether this account may make files in the folder.
    [[nodiscard]] virtual bool SmiZakladat(const std::filesystem::path& slozka) = 0;
    /// Bytes that this account can still write there.
    [[nodiscard]] virtual std::uint64_t Volno(const std::filesystem::path& slozka) = 0;

    /// Whether all that was done by now outlives the end of the program: asked until it is so, with
    /// waits between. A disk whose calls are over when they return, as at home, says so at once;
    /// one whose store answers later does when it has answered, and throws if that refused.
    [[nodiscard]] virtual bool Uchovano() { return true; }
};

/// Takes a file away if it can be: what stays hinders nobody and will go another time.
void OdstranPotichu(Disk& disk, const std::filesystem::path& soubor);

/// Sixteen digits that no other file has in its name.
[[nodiscard]] std::string NahodneCislice();

}  // namespace rysovna
