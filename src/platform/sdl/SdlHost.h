#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Host.h"
#include "platform/Smycka.h"
#include "platform/Stroj.h"

namespace rysovna {

/// The window "Rysovna 1" on a real display. It opens at the first switch of the screen mode (full
/// screen, on the monitor with the pointer) or at the first message box (an ordinary window). The
/// design area keeps its aspect ratio, black beside it. Alt+Enter and F11 switch between full
/// screen and a window; the close button asks the program's own question.
class SdlHost final : public Host, public Smycka {
public:
    /// A display that cannot be opened is a run-time fault: ask MaDisplej() first. With a seed the
    /// same examples come in the same order at each start; otherwise the clock seeds them.
    explicit SdlHost(std::optional<std::uint32_t> seminko = std::nullopt);
    ~SdlHost() override;

    /// Whether this process has a display to open a window on.
    [[nodiscard]] static bool MaDisplej();

    [[nodiscard]] std::uint32_t TickCount() override;
    void Prekresli() override;
    Cinnost<Odpoved> MsgBox(std::string text, std::string titul, Styl styl) override;
    void SndPlaySound(std::string_view cesta) override;
    [[nodiscard]] RezimObrazovky GetDeviceCaps() override;
    /// 640 by 480 fills the screen, the first time; any other mode, and any later call, puts the
    /// window away. 0 unless only an ordinary window can be opened; none at all is a fault.
    int ChangeDisplaySettings(const RezimObrazovky& rezim) override;
    /// As SlozkaNastaveni of Stroj.h looks for it, first in the executable's folder.
    [[nodiscard]] std::string WindowsDirectory() override {
        return SlozkaNastaveni(SlozkaProgramu()).string();
    }
    [[nodiscard]] std::filesystem::path SlozkaStavu() override { return SlozkaStavuUctu(); }
    [[nodiscard]] std::filesystem::path SlozkaDat() override { return SlozkaDatUctu(); }
    [[nodiscard]] std::filesystem::path SlozkaDokumentu() override { return SlozkaDokumentuUctu(); }
    void UkazDokument(const std::filesystem::path& soubor) override;
    /// Opens the window for a moment.
    [[nodiscard]] std::string OverObrazovku() override;
    /// Opens the sound device for a moment; one that does not answer is a fault after a while.
    [[nodiscard]] std::string OverZvuk() override;
    [[nodiscard]] std::uint32_t Seminko() override;
    void VychoziSeminko(std::uint32_t seminko) override {
        if (!seminko_) seminko_ = seminko;
    }
    [[nodiscard]] DatumACas Nyni() override;
    [[nodiscard]] std::string SchrankaText() override;
    void DoSchranky(const std::string& text) override;

private:
    bool Prijmi() override;
    void Ukaz() override;
    void Vyckej(std::uint32_t nejvyseMs) override;

    struct Vnitrek;
    std::optional<std::uint32_t> seminko_;
    std::unique_ptr<Vnitrek> vnitrek_;
};

}  // namespace rysovna
