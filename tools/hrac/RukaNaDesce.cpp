#include "hrac/RukaNaDesce.h"

#include <utility>

namespace rysovna::hrac {
namespace {

constexpr std::uint32_t PO_VOLBE = 60, PO_TAHU = 110, PO_KONTROLE = 500;  // ms

[[noreturn]] void Nejde(std::string_view proc, std::string_view co) {
    throw NejdeUdelat(std::string(proc) + ": " + std::string(co));
}

}  // namespace

DeskaForm& RukaNaDesce::Deska() const {
    auto* deska = dynamic_cast<DeskaForm*>(relace_.Vpredu());
    if (deska == nullptr) Nejde("vpředu není deska", relace_.JmenoVpredu());
    return *deska;
}

const Dialog& RukaNaDesce::Hrany() const {
    return Deska().Dialogem();
}

std::vector<Zadano> RukaNaDesce::Zadani() const {
    // Name, value, name, value.
    std::vector<ZadanaVelicina> zadani;
    DeskaForm& deska = Deska();
    const auto popisek = [&deska](int i) {
        const auto* l = dynamic_cast<Label*>(deska.Najdi("lblZadani", i));
        return l != nullptr && l->Visible ? l : nullptr;
    };
    for (int i = 0;; i += 2) {
        const Label* nazev = popisek(i);
        const Label* hodnota = popisek(i + 1);
        if (nazev == nullptr || hodnota == nullptr) return CtiZadani(zadani);
        using enum ZadanaVelicina::Druh;
        zadani.push_back({nazev->Font.Nazev == Pismo::Rez::Symbol ? Uhel : Delka, nazev->Caption,
                          hodnota->Caption});
    }
}

bool RukaNaDesce::StiskNacrtu(Bod misto) {
    // A mark of another element that lies over the wanted one is taken back by a second press,
    // which is no double click.
    constexpr std::uint32_t PO_STISKU = 600;  // ms
    if (std::exchange(oznaceno_, misto) == misto) relace_.Cekej(PO_STISKU);
    // Whether it hit cannot be seen from outside; the check tells in the end.
    relace_.Stiskni("SamplePic", 0, misto.X, misto.Y);
    return true;
}

void RukaNaDesce::Klepni(std::string_view jmeno, int index, int dx, int dy) {
    constexpr int KDY = 3, CHVENI = 4;  // one in so many; px
    const Ovladac& prvek = relace_.Prvek(jmeno, index);
    const Bod roh = relace_.Roh(prvek);
    const Bod kde{roh.X + (dx < 0 ? prvek.Width / 2 : dx),
                  roh.Y + (dy < 0 ? prvek.Height / 2 : dy)};
    relace_.Stiskni(jmeno, index, dx, dy);
    if (!dvojkliky_ || dvojkliky_->Cislo(KDY) != 0) return;
    if (relace_.Hraje() == Relace::Cim::Klavesami) return;  // keys know none
    const Bod podruhe = dvojkliky_->Vedle(kde, CHVENI);
    relace_.StiskniMisto(podruhe.X, podruhe.Y);
}

void RukaNaDesce::StiskNastroje(int i) {
    // There the second press is one more step back.
    if (i == NASTROJ_ZPET) return relace_.Stiskni("cmd", i);
    Klepni("cmd", i);
}

void RukaNaDesce::StiskRadku(int i, std::string_view text) {
    if (relace_.Prvek<Label>("ComboLabel", i).Caption != text) Nejde("seznam neukazuje", text);
    Klepni("ComboLabel", i, 8, 8);
    relace_.Cekej(PO_VOLBE);
}

void RukaNaDesce::Pis(int ktery, const std::string& text) {
    if (Hrany().UkazPanel().Veliciny.empty()) return relace_.Napis(text);  // the box has the keys
    relace_.Prepis(ktery == 1 ? "txtVstup" : "txtVstup" + std::to_string(ktery), text);
}

void RukaNaDesce::TahPoPlose(Bod odkud, Bod kam) {
    relace_.Tahni("Pic", odkud, kam);
    relace_.Cekej(PO_TAHU);
}

void RukaNaDesce::Posun(int dx, int dy) {
    const auto sipka = [this](int i, int px) {
        for (; px > 0; px -= KROK_POSUNU) relace_.Stiskni("picSipka", i);
    };
    // The left arrow moves the view to the left and the figure to the right.
    sipka(1, dx);
    sipka(2, -dx);
    sipka(3, dy);
    sipka(4, -dy);
}

void RukaNaDesce::ZasunPanel() {
    if (relace_.Prvek<Image>("Image1").Tag == "1") Klepni("Image1", 0);
}

void RukaNaDesce::Zkontroluj() {
    Klepni("PicTop", 1);
    relace_.Cekej(PO_KONTROLE);
}

}  // namespace rysovna::hrac
