#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Host.h"
#include "platform/Malir.h"
#include "platform/Smycka.h"
#include "platform/web/WebDisk.h"

namespace rysovna {

/// The machine is a page of a browser, which calls: each input is one of the calls below, and each
/// call of Obrat a turn of the loop that never waits itself but says when it wants to be called
/// next. The program paints a picture of the size that the page tells, in its own pixels.
class WebHost final : public Host, public Smycka {
public:
    /// With a seed the same examples come in the same order at each start.
    explicit WebHost(std::optional<std::uint32_t> seminko = std::nullopt);
    ~WebHost() override;

    // The page's calls. Places are px of the picture, times those of TickCount.
    void Rozmer(int sirka, int vyska);
    void Mys(int druh, double x, double y, int tlacitko, int shift, std::uint32_t cas);
    void Prst(int druh, double x, double y, std::uint32_t cas);
    void Klavesa(std::string jmeno, int shift, bool opakovana);
    void KlavesaNahoru(std::string jmeno);
    void Pis(std::string utf8);
    /// Text from outside; and what copying puts there: the text, for the page to hand on.
    void Vloz(std::string text);
    [[nodiscard]] const std::string& Schranka() const { return schranka_; }
    void Navrat();
    /// Turns until there is nothing more to do now; ms until it wants to be called again though
    /// nothing happens, or BEZ_LHUTY.
    std::uint32_t Tah();
    /// How long the last whole repaint took, and does one: for measuring, ms.
    double PrekresliVse();

    [[nodiscard]] std::uint32_t TickCount() override;
    void Prekresli() override;
    Cinnost<Odpoved> MsgBox(std::string text, std::string titul, Styl styl) override;
    void SndPlaySound(std::string_view cesta) override;
    [[nodiscard]] RezimObrazovky GetDeviceCaps() override;
    /// The page has its size from the browser: there is nothing to switch.
    int ChangeDisplaySettings(const RezimObrazovky& /*rezim*/) override { return 0; }
    [[nodiscard]] std::string WindowsDirectory() override { return SLOZKA_HRY; }
    [[nodiscard]] rysovna::Disk& Disk() override { return disk_; }
    [[nodiscard]] std::filesystem::path SlozkaStavu() override { return SLOZKA_STAVU; }
    [[nodiscard]] std::filesystem::path SlozkaDat() override { return SLOZKA_UCTU; }
    [[nodiscard]] std::filesystem::path SlozkaDokumentu() override { return {}; }
    bool VydejDokument(const std::string& jmeno, const std::string& obsah) override;
    [[nodiscard]] std::string OverObrazovku() override;
    [[nodiscard]] std::string OverZvuk() override;
    [[nodiscard]] std::uint32_t Seminko() override;
    void VychoziSeminko(std::uint32_t seminko) override {
        if (!seminko_) seminko_ = seminko;
    }
    [[nodiscard]] DatumACas Nyni() override;
    [[nodiscard]] std::string SchrankaText() override { return schranka_; }
    void DoSchranky(const std::string& text) override { schranka_ = text; }

private:
    bool Prijmi() override;
    void Ukaz() override;
    void Vyckej(std::uint32_t nejvyseMs) override;
    void SrovnejPsani();
    void Rekni();
    [[nodiscard]] Bod NaNavrh(double x, double y) const;
    [[nodiscard]] bool Uvnitr(Bod b) const;

    std::optional<std::uint32_t> seminko_;
    WebDisk disk_;
    Malir malir_;
    int sirka_ = NAVRH_SIRKA, vyska_ = NAVRH_VYSKA;
    Umisteni umisteni_;
    std::vector<std::uint32_t> body_;     ///< as the painter paints them
    std::vector<std::uint32_t> stranka_;  ///< as the page takes them
    std::deque<std::function<void()>> vstupy_;
    std::uint32_t pristeMs_ = 0;
    std::string schranka_, receno_;
    std::optional<Obdelnik> pise_;
    Kurzor kurzor_ = Kurzor::Sipka;
};

}  // namespace rysovna
