#include "rules/NahravanyDialog.h"

#include <utility>

#include "rules/VolaniDialogu.h"

namespace rysovna {

using enum Volani::Druh;

namespace {

/// For the length of a call the session's sentences are noted as they are asked for. Not longer:
/// a board may still be there when the next one plays in the same session.
class ZapisVet {
public:
    ZapisVet(Misc& misc, std::map<int, std::vector<std::string>>& kam)
        : misc_(misc), vety_(misc.Vety) {
        if (!vety_) return;  // a charge is a fault then
        misc_.Vety = [this, &kam](int cislo) { return kam[cislo] = vety_(cislo); };
    }
    ~ZapisVet() { misc_.Vety = std::move(vety_); }
    ZapisVet(const ZapisVet&) = delete;
    ZapisVet& operator=(const ZapisVet&) = delete;

private:
    Misc& misc_;
    ZdrojVet vety_;
};

}  // namespace

NahravanyDialog::NahravanyDialog(Misc& misc, Platna platna, std::unique_ptr<Dialog> hrany,
                                 std::function<std::uint32_t()> ted)
    : Dialog(misc, platna), hrany_(std::move(hrany)), ted_(std::move(ted)), od_(ted_()) {}

void NahravanyDialog::NovyPriklad() {
    nahrava_ = false;
    hrany_->NovyPriklad();
}

void NahravanyDialog::ZacniPriklad() {
    priklady_.push_back(
        {.Kdy = Cas(), .Zadani = hrany_->Zadany(), .Otisk = OtiskTabulek(misc_, *hrany_)});
    nahrava_ = true;
}

void NahravanyDialog::NoveZadani() {
    hrany_->NoveZadani();
    ZacniPriklad();
}

void NahravanyDialog::Zadej(const ZadanyPriklad& zadany) {
    hrany_->Zadej(zadany);
    ZacniPriklad();
}

bool NahravanyDialog::Nahraj(Volani volani) {
    if (!nahrava_) return Proved(*hrany_, volani);
    volani.Kdy = Cas();
    const int chyb = misc_.PocetChybnychKroku;
    const bool zasah = [&] {
        const ZapisVet zapis(misc_, priklady_.back().Vety);
        return Proved(*hrany_, volani);
    }();
    priklady_.back().Udalosti.push_back({.Co = std::move(volani),
                                         .Chyby = NoveChyby(misc_, chyb),
                                         .Otisk = OtiskTabulek(misc_, *hrany_)});
    return zasah;
}

void NahravanyDialog::StiskNastroje(int i) {
    Nahraj({.Co = Nastroj, .Cislo = i});
}

void NahravanyDialog::VyberRadku(int i) {
    Nahraj({.Co = Radek, .Cislo = i});
}

void NahravanyDialog::ZavriSeznam() {
    Nahraj({.Co = ZavritSeznam});
}

void NahravanyDialog::Napis(int ktery, const std::string& text) {
    Nahraj({.Co = Napsani, .Cislo = ktery, .Text = text});
}

void NahravanyDialog::StiskPlochy(float x, float y) {
    Nahraj({.Co = Stisk, .X = x, .Y = y});
}

void NahravanyDialog::PusteniPlochy(float x, float y) {
    Nahraj({.Co = Pusteni, .X = x, .Y = y});
}

bool NahravanyDialog::StiskNacrtu(float x, float y) {
    return Nahraj({.Co = Nacrt, .X = x, .Y = y});
}

void NahravanyDialog::Posun(int dx, int dy) {
    Nahraj({.Co = Posunuti, .O = {dx, dy}});
}

void NahravanyDialog::Zkontroluj() {
    Nahraj({.Co = Kontrola});
    if (!nahrava_) return;
    priklady_.back().Konec = KonecPrikladu(*hrany_);
    nahrava_ = false;
}

}  // namespace rysovna
