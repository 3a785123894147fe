#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "base/Cinnost.h"
#include "base/DatumACas.h"
#include "base/Disk.h"

namespace rysovna {

class Obrazovky;

/// A screen mode: width and height in pixels, bits per pixel.
struct RezimObrazovky {
    int Sirka = 0, Vyska = 0, Barvy = 0;
    friend bool operator==(const RezimObrazovky&, const RezimObrazovky&) = default;
};
/// The mode that the game asks for, and by which a host knows that it does.
constexpr RezimObrazovky REZIM_HRY{.Sirka = 640, .Vyska = 480, .Barvy = 16};

/// Buttons and icon of a message box, and its answers.
enum class Styl : int { Ok = 0, Stop = 16, OtazkaAnoNe = 36 };
enum class Odpoved : int { Ok = 1, Ano = 6, Ne = 7 };

/// All that the program wants from a machine. There are three: the window, a browser's page
/// and the headless one. The program asks no clock, no screen and no sound device but through here.
/// The loop is no part of it: see Smycka.
class Host : public SmiCekat {
public:
    Host();
    virtual ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Milliseconds since some start. The headless clock moves only when the program waits.
    [[nodiscard]] virtual std::uint32_t TickCount() = 0;
    /// Paints what changed, at once, with no event let through.
    virtual void Prekresli() = 0;

    /// A modal message box in the window, in the program's own style; awaited, it gives the answer,
    /// or that of Escape if the process is to end before.
    virtual Cinnost<Odpoved> MsgBox(std::string text, std::string titul, Styl styl) = 0;
    /// Starts a sound and returns at once; the sound that was playing ends. A missing device is
    /// no fault. cesta: with backslashes, as the program spells paths.
    virtual void SndPlaySound(std::string_view cesta) = 0;

    /// The mode of the screen; switching it (0: done, anything else: could not be).
    [[nodiscard]] virtual RezimObrazovky GetDeviceCaps() = 0;
    virtual int ChangeDisplaySettings(const RezimObrazovky& rezim) = 0;
    /// Twips per pixel: 15 at every display scale, so the design geometry never changes.
    [[nodiscard]] virtual int TwipsPerPixel() const { return 15; }
    /// The folder that holds Rysovna.ini, with a final separator or without.
    [[nodiscard]] virtual std::string WindowsDirectory() = 0;

    /// Files as results need them.
    [[nodiscard]] virtual rysovna::Disk& Disk();
    /// Where the account keeps what the program remembers between runs, and its own data; real
    /// paths, empty where it has no such place. Nothing is made by asking.
    [[nodiscard]] virtual std::filesystem::path SlozkaStavu() = 0;
    [[nodiscard]] virtual std::filesystem::path SlozkaDat() = 0;
    /// Where the account keeps its documents; empty where it has no such place.
    [[nodiscard]] virtual std::filesystem::path SlozkaDokumentu() = 0;
    /// Has the system show a document, by a program of its own and beside the game; where it has
    /// none, nothing happens.
    virtual void UkazDokument(const std::filesystem::path& /*soubor*/) {}
    /// Hands a document to the person where there are no folders, as a page of a browser does:
    /// under this name, without waiting. False where there are.
    virtual bool VydejDokument(const std::string& /*jmeno*/, const std::string& /*obsah*/) {
        return false;
    }

    /// Looks whether the game can be seen and heard here, and says what it found, in Czech. What
    /// is not so is a run-time fault that says why.
    [[nodiscard]] virtual std::string OverObrazovku() = 0;
    [[nodiscard]] virtual std::string OverZvuk() = 0;

    /// A seed for the generator of examples.
    [[nodiscard]] virtual std::uint32_t Seminko() = 0;
    /// The seeds begin with this one, unless whoever started the program gave another.
    virtual void VychoziSeminko(std::uint32_t /*seminko*/) {}
    [[nodiscard]] virtual DatumACas Nyni() = 0;

    [[nodiscard]] virtual std::string SchrankaText() = 0;
    virtual void DoSchranky(const std::string& text) = 0;

    /// The screens that stand on this machine.
    [[nodiscard]] Obrazovky& Okna() { return *okna_; }

protected:
    /// Shows a message box over the screens until it is answered. The fonts must be there
    /// (MamePisma).
    Cinnost<Odpoved> UkazZpravu(std::string text, std::string titul, Styl styl);

private:
    std::unique_ptr<Obrazovky> okna_;
    std::unique_ptr<rysovna::Disk> disk_;
};

}  // namespace rysovna
