#include "sit/Pozorovatel.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "base/Cisla.h"
#include "platform/Ovladace.h"
#include "platform/SurfaceVnitrek.h"
#include "rules/Misc.h"
#include "rules/Zaznamy.h"
#include "sit/Otisk.h"
#include "store/JmenaSouboru.h"

namespace rysovna::sit {
namespace {

/// Between two looks at the picture while the game waits, ms: no divisor of its own waits.
constexpr std::uint32_t TIK = 9;

std::string Chyby(const Misc& misc) {
    std::string vse;
    for (int i = 1; i <= misc.PocetChybnychKroku; ++i) {
        const ChybnyKrok& k = misc.ChybneKroky[i];
        vse += k.Cislo + "|" + k.Text + "|" + std::to_string(k.Body) + "\n";
    }
    return vse;
}

/// The surface of a drawing plane of the board in front; null on other screens.
const Surface* Plocha(hrac::Relace& hra, std::string_view jmeno) {
    Form* form = hra.Vpredu();
    const auto* pic =
        form == nullptr ? nullptr : dynamic_cast<const PictureBox*>(form->Najdi(jmeno));
    return pic == nullptr ? nullptr : pic->PlochaNeboNic();
}

}  // namespace

bool Okno::Namaluj(const Obrazovky& okna, std::uint32_t ted) {
    const auto zmeny =
        malir_.Namaluj({obraz_.Body.data(), obraz_.Sirka, obraz_.Vyska, obraz_.Sirka}, okna, ted);
    // Only what the painter says that it painted gets to a real window.
    for (const Obdelnik& o : zmeny) {
        for (int y = std::max(o.Top, 0); y < std::min(o.Top + o.Height, obraz_.Vyska); ++y) {
            radky_[static_cast<std::size_t>(y)] =
                Otisk(obraz_.Radka(y), static_cast<std::size_t>(obraz_.Sirka) * sizeof(Pixel));
        }
    }
    return !zmeny.empty();
}

std::uint64_t Okno::OtiskObrazu() const {
    return Otisk(radky_.data(), radky_.size() * sizeof(std::uint64_t));
}

Pozorovatel::Pozorovatel(hrac::Relace& hra, std::ostream& kam, Velikosti velikosti,
                         std::optional<Prani> prani)
    : hra_(hra), kam_(kam), velikosti_(velikosti), prani_(std::move(prani)) {
    hra_.Sleduj([this](std::string_view co) { Stanice(co); });
    hra_.Host().PriPrekresleni = [this] { Snimek(); };
    Tik();
}

void Pozorovatel::Tik() {
    Snimek();
    hra_.Host().NaplanujZa(TIK, [this] { Tik(); });
}

/// A change of the picture while the game waits or slides.
void Pozorovatel::Snimek() {
    const std::uint32_t ted = hra_.Host().TickCount();
    const std::uint64_t pred = male_.OtiskObrazu();
    if (!male_.Namaluj(hra_.Host().Okna(), ted) || male_.OtiskObrazu() == pred) return;
    ++cislo_;
    if (Chce("640x480")) Splnit("640x480", male_.Obrazem());
    if (Chce("1920x1080")) {
        (void)velke_.Namaluj(hra_.Host().Okna(), ted);
        Splnit("1920x1080", velke_.Obrazem());
    }
    kam_ << cislo_ << ' ' << ted << ' ' << Sestnactkove(male_.OtiskObrazu()) << " snimek\n";
}

void Pozorovatel::Splnit(std::string_view co, const Obraz& obraz) {
    if (!Chce(co)) return;
    UlozPng(obraz, prani_->Soubor);
    throw ObrazHotov{};
}

std::string Pozorovatel::OtiskPlochy(std::string_view jmeno) {
    const Surface* plocha = Plocha(hra_, jmeno);
    if (plocha == nullptr) return "-";
    const Bitmapa& b = plocha->Uvnitr().Logicka;
    if (Chce(jmeno)) {
        Obraz obraz(b.Sirka, b.Vyska);
        obraz.Body = b.Body;
        Splnit(jmeno, obraz);
    }
    return Sestnactkove(Otisk(b.Body.data(), b.Body.size() * sizeof(Pixel)));
}

void Pozorovatel::Sloupec(std::size_t ktery, std::string text) {
    if (drive_.size() <= ktery) drive_.resize(ktery + 1);
    kam_ << (drive_[ktery] == text ? "." : text) << ' ';
    drive_[ktery] = std::move(text);
}

void Pozorovatel::Stanice(std::string_view co) {
    const std::uint32_t ted = hra_.Host().TickCount();
    ++cislo_;
    (void)male_.Namaluj(hra_.Host().Okna(), ted);
    Splnit("640x480", male_.Obrazem());
    if (velikosti_ == Velikosti::Obe) (void)velke_.Namaluj(hra_.Host().Okna(), ted);
    Splnit("1920x1080", velke_.Obrazem());
    for (int i = pocetChyb_; i < hra_.Pamet().PocetChybnychKroku; ++i)
        ++chyb_[hra_.Pamet().ChybneKroky[i + 1].Cislo];
    pocetChyb_ = hra_.Pamet().PocetChybnychKroku;
    kam_ << cislo_ << ' ' << ted << ' ';
    Sloupec(0, Sestnactkove(male_.OtiskObrazu()));
    Sloupec(1, Sestnactkove(velke_.OtiskObrazu()));
    Sloupec(2, OtiskPlochy("Pic"));
    Sloupec(3, OtiskPlochy("HidenPic"));
    Sloupec(4, std::to_string(hra_.Pamet().KladneBody) + "/" +
                   std::to_string(hra_.Pamet().ZaporneBody) + "/" +
                   std::to_string(hra_.Pamet().SoucetZapornychBodu));
    Sloupec(5, std::to_string(hra_.Pamet().PocetChybnychKroku));
    Sloupec(6, Sestnactkove(Otisk(Chyby(hra_.Pamet()))));
    Sloupec(7, hra_.JmenoVpredu().empty() ? "-" : hra_.JmenoVpredu());
    kam_ << co << '\n';
}

void Pozorovatel::Zaver(int uloha) {
    for (const std::string& soubor : {JmenoTabulky(uloha), std::string(JMENO_DENIKU)}) {
        kam_ << "soubor " << soubor << ' ' << Sestnactkove(Otisk(hra_.CtiSoubor(soubor))) << '\n';
    }
    std::string zvuky;
    for (const auto& z : hra_.Host().Zvuky) zvuky += std::to_string(z.Cas) + " ";
    for (const std::string& z : hra_.NoveZvuky()) zvuky += z + " ";
    std::string zpravy;
    for (const auto& z : hra_.Host().Zpravy) {
        zpravy += z.Titul + "|" + z.Text + "|" + std::to_string(static_cast<int>(z.Druh)) + "\n";
    }
    kam_ << "zvuky " << hra_.Host().Zvuky.size() << ' ' << Sestnactkove(Otisk(zvuky)) << '\n'
         << "zpravy " << hra_.Host().Zpravy.size() << ' ' << Sestnactkove(Otisk(zpravy)) << '\n';
}

}  // namespace rysovna::sit
