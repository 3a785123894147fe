// A board played by keys: the round of its stops, the cross on the plane, the elements of the
// sketch.

#include <algorithm>
#include <cctype>
#include <utility>

#include "engine/Tabulky.h"
#include "platform/Host.h"
#include "platform/Klavesnice.h"
#include "platform/Obrazovky.h"
#include "screens/DeskaForm.h"

namespace rysovna {

namespace {

constexpr int KROK_S_SHIFTEM = 10;     // px of the cross
constexpr int PRVNI_POD_HODNOTOU = 5;  // of the step buttons, those below the box for a value
constexpr int OKRAJ_PLOCHY = 4;        // px, so that the ring leaves the arrows out
constexpr int POD_RADKEM = 5;          // px, so that the ring leaves the next line out
constexpr int OKOLI_ZONY = 6;          // px of the ring around a place of the sketch

/// Which points of an object bear a letter: the others' names are those of lines.
constexpr struct {
    std::string_view Druh;
    bool Prvni, Druhy, Treti;
} PISMENA_BODU[] = {
    {BOD, true, false, false}, {USECKA, true, true, true}, {POLOPRIMKA, false, true, false}};

/// The points on the plane whose name begins with the letter, in the order in which they were made.
std::vector<Bod> BodyPismene(const Tabulky& t, char pismeno, const Ovladac& pic) {
    std::vector<Bod> body;
    const auto pridej = [&](bool jeBod, const std::string& jmeno, Bod b) {
        const bool ten = jeBod && !jmeno.empty() && jmeno[0] == pismeno && b.X >= 0 && b.Y >= 0 &&
                         b.X < pic.Width && b.Y < pic.Height;
        if (ten && std::ranges::find(body, b) == body.end()) body.push_back(b);
    };
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        const Utvar& u = t.Utvary[i];
        for (const auto& p : PISMENA_BODU) {
            if (p.Druh != u.Druh) continue;
            pridej(p.Prvni, u.Jmeno1, {u.X1, u.Y1});
            pridej(p.Druhy, u.Jmeno2, {u.X2, u.Y2});
            pridej(p.Treti, u.Jmeno3, {u.X3, u.Y3});
        }
    }
    return body;
}

}  // namespace

/// The round goes as one reads: the top, the left column, the plane with its arrows, the sliding
/// panel; the open list at the end.
void DeskaForm::OcislujZastavky() {
    const auto vse = [](auto& pole, int cislo) {
        for (auto& o : pole) o.Zastavka = cislo;
    };
    INadpis.Zastavka = 1;
    vse(PicTop, 2);
    vse(cmd, 3);
    txtVstup.Zastavka = 4;  // 5 and 6 where a board has more of them
    for (std::size_t i = PRVNI_POD_HODNOTOU - 1; i < cmd.size(); ++i) cmd[i].Zastavka = 7;
    ImgHodnoceni.Zastavka = 8;
    ImgHodnoceni.Klavesou = StiskKlavesou::Drzeni;
    Pic.JemneSipkami = true;
    vse(picSipka, ZASTAVKA_PLOCHY + 1);
    SamplePic.Zastavka = ZASTAVKA_PLOCHY + 2;
    Image1.Zastavka = MalaSipka.Zastavka = ZASTAVKA_PLOCHY + 3;
    picPokracuj.Zastavka = ZASTAVKA_PLOCHY + 4;
    vse(ComboLabel, ZASTAVKA_PLOCHY + 5);
}

/// What is to be done next; never what a press too many would do harm with: the check, the way out,
/// the step back, the sketch of a figure that is done.
Ovladac* DeskaForm::PrvniZastavka() {
    std::vector<Ovladac*> poradi;
    for (Label& l : ComboLabel) poradi.push_back(&l);
    poradi.push_back(&txtVstup);
    poradi.push_back(&Pic);
    for (PictureBox& c : cmd) {
        if (c.Index != NASTROJ_ZPET) poradi.push_back(&c);
    }
    poradi.push_back(&picPokracuj);
    if (Pic.Enabled) poradi.push_back(&SamplePic);
    const auto zivy =
        std::ranges::find_if(poradi, [](const Ovladac* o) { return JeZivaZastavka(*o); });
    return zivy == poradi.end() ? nullptr : *zivy;
}

UkazatelKlaves DeskaForm::Ukazatel(const Ovladac& o) const {
    UkazatelKlaves u = Form::Ukazatel(o);
    if (&o == &Pic) {
        u.Hrot = kriz_;
        u.Kriz = true;
        u.Ram = {-OKRAJ_PLOCHY, -OKRAJ_PLOCHY, Pic.Width + 2 * OKRAJ_PLOCHY,
                 Pic.Height + 2 * OKRAJ_PLOCHY};
    } else if (Je(ComboLabel, &o)) {
        u.Ram.Width -= POD_RADKEM;
        u.Ram.Height -= POD_RADKEM;
    } else if (&o == &SamplePic) {
        const std::vector<Bod> mista = MistaPrvku(dialog_->NacrtPrikladu());
        if (mista.empty()) return u;
        u.Hrot = mista[static_cast<std::size_t>(zona_) % mista.size()];
        u.Ram = {u.Hrot.X - OKOLI_ZONY, u.Hrot.Y - OKOLI_ZONY, 2 * OKOLI_ZONY, 2 * OKOLI_ZONY};
    }
    return u;
}

/// What the passing cross showed goes with it.
void DeskaForm::PriselPrsten(Ovladac& o) {
    videne_.MrtvyNastroj = 0;
    UkazatelNad(&o);
    ObnovRadu();
    if (&o != &Pic) SkryjTah();
}

void DeskaForm::UkazSeznamKlavesam() {
    for (Label& l : ComboLabel) {
        if (JeZivaZastavka(l)) return Prsten(l);
    }
}

Odezva DeskaForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa == "Ctrl+p") {
        NaPapir();
        return Cinnost<>();
    }
    if (klavesa == "Escape" && Combo.Visible) {
        SkryjSeznam();
        Prsten(cmd[static_cast<std::size_t>(nastroj_ - 1)]);
        return Cinnost<>();
    }
    if (klavesa == "Return") return EnterVPoli() ? Odezva(Cinnost<>()) : std::nullopt;
    if (!JeZnak(klavesa) || klavesa[0] < '1' || klavesa[0] > '9') return std::nullopt;
    const auto i = static_cast<std::size_t>(klavesa[0] - '1');
    Obrazovky& okna = s_.Okna();
    Odezva stisk;
    if (Combo.Visible) {
        if (i < ComboLabel.size()) stisk = okna.StiskniZastavku(*this, ComboLabel[i]);
    } else if (i < cmd.size()) {
        stisk = okna.StiskniZastavku(*this, cmd[i]);
        // The guide says why, as to a press beside what is live.
        const Mys vedle{1, 0, static_cast<float>(cmd[i].Left), static_cast<float>(cmd[i].Top)};
        if (!stisk) stisk = MouseDown(nullptr, vedle);
    }
    return stisk ? std::move(stisk) : Cinnost<>();
}

/// From a box for a value on to the next one, then to the button that confirms, else to the plane.
bool DeskaForm::EnterVPoli() {
    Obrazovky& okna = s_.Okna();
    Ovladac* pole = okna.Psane();
    if (pole == nullptr) return false;
    const std::vector<Ovladac*> zive = Zastavky(*this);
    for (auto i = std::ranges::find(zive, pole); i != zive.end(); ++i) {
        if (*i == pole || (*i)->Druh != Ovladac::Typ::TextBox) continue;
        okna.DejPrsten(*this, **i);
        return true;
    }
    for (Ovladac* kam : {static_cast<Ovladac*>(&cmd.back()), static_cast<Ovladac*>(&Pic)}) {
        if (!JeZivaZastavka(*kam)) continue;
        okna.DejPrsten(*this, *kam);
        break;
    }
    return true;
}

/// A press is on the plane; a drag may leave it, as the mouse can.
Bod DeskaForm::VRozsahu(Bod kriz) const {
    const bool tah = s_.Okna().DrziKlavesa();
    const Bod od = tah ? Bod{-Pic.Left, -Pic.Top} : Bod{};
    const Bod po =
        tah ? Bod{NAVRH_SIRKA - Pic.Left, NAVRH_VYSKA - Pic.Top} : Bod{Pic.Width, Pic.Height};
    return {std::clamp(kriz.X, od.X, po.X - 1), std::clamp(kriz.Y, od.Y, po.Y - 1)};
}

bool DeskaForm::KlavesaNa(Ovladac& o, std::string_view klavesa, int shift) {
    const std::optional<Bod> smer = SmerSipky(klavesa);
    if (&o == &SamplePic && smer) {
        const auto pocet = static_cast<int>(dialog_->NacrtPrikladu().Prvky.size());
        if (pocet > 0) zona_ = (zona_ % pocet + smer->X + smer->Y + pocet) % pocet;
        ObnovRadu();
        return true;
    }
    if (&o != &Pic) return false;
    Bod kam = kriz_;
    if (smer) {
        const int krok = (shift & SHIFT) != 0 ? KROK_S_SHIFTEM : 1;
        kam = {kriz_.X + krok * smer->X, kriz_.Y + krok * smer->Y};
    } else if (JeZnak(klavesa)) {
        const auto pismeno =
            static_cast<char>(std::toupper(static_cast<unsigned char>(klavesa[0])));
        const std::vector<Bod> body = BodyPismene(s_, pismeno, Pic);
        if (body.empty()) return true;
        const auto ted = std::ranges::find(body, kriz_);
        kam = ted == body.end() || ted + 1 == body.end() ? body.front() : *(ted + 1);
    } else {
        // Return, which led here from a box, begins no drag.
        return klavesa == "Return";
    }
    kriz_ = VRozsahu(kam);
    s_.Okna().PosunutUkazatel(*this, Pic);
    return true;
}

}  // namespace rysovna
