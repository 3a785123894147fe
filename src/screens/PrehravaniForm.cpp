#include "screens/PrehravaniForm.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "rules/KatalogChyb.h"
#include "screens/DeskaForm.h"
#include "screens/Meritko.h"
#include "screens/Papir.h"
#include "screens/PopisKroku.h"

namespace rysovna {

namespace {

// Places, px: the strip and the card on the design, the others on these.
constexpr Obdelnik PRUH{0, 440, NAVRH_SIRKA, 40};
constexpr int KRAJ = 4;
constexpr Obdelnik KROK{12, 1, 442, 16}, DAL{12, 15, 442, 13};
constexpr Obdelnik PAS{6, 28, 628, 12};
constexpr Obdelnik KARTA{240, 2, 398, 82};
constexpr int KRAJ_KARTY = 7;
constexpr int OVLADACE_NAHORE = 4, OVLADACE_VYSKA = 23;
constexpr struct {
    int Left, Width;
    std::string_view Napis;
} OVLADACE[] = {
    {458, 32, "▮◀"}, {492, 32, "▶"}, {526, 32, "▶▮"}, {560, 34, ""}, {596, 40, "konec"}};
enum Ovladani : int { ZPET = 1, JET, VPRED, RYCHLOST, KONEC };
constexpr std::string_view STAT = "▮▮", JED = "▶";

// The bar, px of it: from where to where the time goes, and the heights of what is on it.
constexpr int PAS_OD = 5, PAS_PO = PAS.Width - 6, DRAHA = 4, TLOUSTKA_DRAHY = 4;
constexpr int POLOMER_CHYBY = 4, SIRKA_JEZDCE = 6;

constexpr float PISMO_KROKU = 10, PISMO_DAL = 8, PISMO_OVLADACU = 8;  // points
constexpr float NEJVETSI_PISMO_KARTY = 14, NEJMENSI_PISMO_KARTY = 7;

// Times, ms.
constexpr std::uint32_t OBNOVA = 20;
constexpr std::uint32_t CESTA_ZAKA = 700, CESTA_VYKLADU = 1500;  // of the mouse to its next press
constexpr std::uint32_t STISK = 250;                             // so long a press is seen

/// Speeds; none: a step, and it stops.
constexpr struct {
    double Kolikrat;
    std::string_view Napis;
} RYCHLOSTI[] = {{0, "krok"}, {0.5, "½×"}, {1, "1×"}, {2, "2×"}, {4, "4×"}, {8, "8×"}};
constexpr std::size_t BEZNA = 2;

constexpr Bod ODKUD_MYS{320, 300};  // px of the design: before its first press

/// Slow at both ends.
double Plynule(double t) {
    return t * t * (3 - 2 * t);
}

Bod Mezi(Bod a, Bod b, double t) {
    return {Zaokrouhli(a.X + (b.X - a.X) * t), Zaokrouhli(a.Y + (b.Y - a.Y) * t)};
}

}  // namespace

PrehravaniForm::PrehravaniForm(Sezeni& s, Pokus pokus, Tempo tempo)
    : FormHry(s), pokus_(std::move(pokus)), tempo_(tempo), rychlost_(BEZNA) {
    Rozloz();
}

PrehravaniForm::~PrehravaniForm() = default;

void PrehravaniForm::Rozloz() {
    BackColor = BEZ_BARVY;
    Pridej(PicPruh, "PicPruh", PRUH);
    PicPruh.BackColor = paleta::KARTA;
    Pridej(PicKraj, "PicKraj", {0, 0, KRAJ, PRUH.Height}, &PicPruh);
    PicKraj.BackColor = paleta::ACCENT;
    Pridej(PicHrana, "PicHrana", {0, 0, PRUH.Width, 1}, &PicPruh);
    PicHrana.BackColor = paleta::INKOUST;
    Pridej(lblKrok, "lblKrok", KROK, &PicPruh);
    Pridej(lblDal, "lblDal", DAL, &PicPruh);
    lblKrok.WordWrap = lblDal.WordWrap = false;
    lblKrok.ForeColor = paleta::INKOUST;
    lblDal.ForeColor = paleta::INKOUST2;
    for (std::size_t i = 0; i < picOvladac.size(); ++i) {
        PictureBox& p = picOvladac[i];
        const Obdelnik misto{OVLADACE[i].Left, OVLADACE_NAHORE, OVLADACE[i].Width, OVLADACE_VYSKA};
        Pridej(p, "picOvladac", misto, &PicPruh);
        p.Index = static_cast<int>(i) + 1;
        p.Zastavka = 1;
        p.BackColor = BILA;
        p.Ramecek = p.Ramovat = p.DalPrstem = true;
        Label& l = lblOvladac[i];
        Pridej(l, "lblOvladac", {1, 4, misto.Width - 2, misto.Height - 5}, &p);
        l.Index = p.Index;
        l.Caption = OVLADACE[i].Napis;
        l.ForeColor = paleta::INKOUST;
        l.Alignment = 2;
        l.WordWrap = l.ProMys = false;
    }
    Pridej(PicPas, "PicPas", PAS, &PicPruh);
    Pridej(PicKarta, "PicKarta", KARTA);
    PicKarta.BackColor = paleta::CHYBY;
    PicKarta.Visible = false;
    const Obdelnik text{KRAJ_KARTY, 0, KARTA.Width - KRAJ_KARTY, KARTA.Height};
    Pridej(txtKarta, "txtKarta", text, &PicKarta);
    txtKarta.BackColor = paleta::CHYBY;
    txtKarta.MultiLine = true;
    txtKarta.Zastavka = 0;
    Pridej(PicKrajKarty, "PicKrajKarty", {0, 0, KRAJ_KARTY, KARTA.Height}, &PicKarta);
    PicKrajKarty.BackColor = paleta::ACCENT;
    Pridej(Timer1, "Timer1", {});
    Timer1.Interval = OBNOVA;
}

void PrehravaniForm::Load() {
    PrizpusobForm(s_, *this);
    Caption = "Rysovna 1";
    lblKrok.Font.Velikost = PISMO_KROKU;
    lblKrok.Font.Tucne = true;
    lblDal.Font.Velikost = PISMO_DAL;
    for (Label& l : lblOvladac) l.Font.Velikost = PISMO_OVLADACU;
    txtKarta.Font.Tucne = true;
    PicPas.Plocha().BackColor = paleta::KARTA;

    predtimUloha_ = std::exchange(s_.CisloUlohy, Bajt(pokus_.CisloUlohy));
    deska_ = std::dynamic_pointer_cast<DeskaForm>(s_.VyrobDesku(s_.CisloUlohy));
    if (!deska_) Selhani("Úloha nemá desku");
    deska_->BudePromitat();
    s_.Okna().Zaved(deska_);
    prehravani_ = std::make_unique<Prehravani>(std::move(pokus_), deska_->PlatnaDesky(), tempo_);
    if (Co().Kroky().empty()) return;
    Ukaz();
    s_.Okna().Show(*deska_);
}

void PrehravaniForm::Unload() {
    s_.CisloUlohy = predtimUloha_;
}

void PrehravaniForm::Skonci() {
    const auto drzeny = shared_from_this();
    s_.Okna().Unload(*deska_);
    s_.Okna().Unload(*this);
    if (PoKonci) PoKonci();
}

// ---- Going on --------------------------------------------------------------------------------

void PrehravaniForm::Jed(bool ano) {
    // From the end it begins anew.
    if (ano && Co().NaKonci() && Co().Cas() >= Co().Delka()) prehravani_->NaKrok(0);
    Timer1.Enabled = ano && !Co().NaKonci();
    naposledy_ = s_.Stroj.TickCount();
    zbytek_ = 0;
    Ukaz();
}

Cinnost<> PrehravaniForm::TimerTick(Timer& /*t*/) {
    const std::uint32_t ted = s_.Stroj.TickCount();
    const double nasobek = RYCHLOSTI[rychlost_].Kolikrat;
    const double uplynulo = (ted - std::exchange(naposledy_, ted)) * (nasobek > 0 ? nasobek : 1);
    // A machine that slept for days is as if at the end.
    const auto cele =
        static_cast<std::uint32_t>(std::min(uplynulo + zbytek_, static_cast<double>(Co().Delka())));
    zbytek_ += uplynulo - cele;
    const std::size_t predtim = Co().Krok();
    prehravani_->NaCas(Co().Cas() + cele);
    const bool stuj = nasobek == 0 && Co().Krok() != predtim && !Co().Ted().Naprazdno;
    if (stuj) prehravani_->NaKrok(Co().Krok());
    if (stuj || Co().NaKonci()) Timer1.Enabled = false;
    Ukaz();
    return {};
}

void PrehravaniForm::NaKrok(std::size_t krok) {
    prehravani_->NaKrok(krok);
    Ukaz();
}

void PrehravaniForm::ZmenRychlost(int oKolik) {
    const auto pocet = static_cast<int>(std::size(RYCHLOSTI));
    rychlost_ =
        static_cast<std::size_t>(std::clamp(static_cast<int>(rychlost_) + oKolik, 0, pocet - 1));
    Ukaz();
}

Cinnost<> PrehravaniForm::MouseDown(Ovladac* o, const Mys& m) {
    if (o != &PicPas) return {};
    prehravani_->NaCas(CasNaPasu(m.X));
    NaKrok(Co().Krok());
    return {};
}

void PrehravaniForm::MouseMove(Ovladac* o, const Mys& m) {
    if (o == &PicPas && (m.Button & LEVE) != 0) static_cast<void>(MouseDown(o, m));
}

Cinnost<> PrehravaniForm::Click(Ovladac* o) {
    if (o != nullptr && !Je(picOvladac, o)) return {};
    switch (o == nullptr ? JET : o->Index) {
        case ZPET:
            Timer1.Enabled = false;
            prehravani_->Zpet();
            break;
        case VPRED:
            Timer1.Enabled = false;
            prehravani_->Vpred();
            break;
        case RYCHLOST:
            // Round and round; the keys stop at the ends.
            rychlost_ = (rychlost_ + 1) % std::size(RYCHLOSTI);
            break;
        case KONEC:
            Skonci();
            return {};
        default:
            Jed(!Jede());
    }
    Ukaz();
    return {};
}

/// To the next wrong step that way, or to the end of the way.
void PrehravaniForm::NaChybu(bool vpred) {
    const auto& kroky = Co().Kroky();
    std::size_t k = Co().Krok();
    const std::size_t kraj = vpred ? kroky.size() - 1 : 0;
    while (k != kraj) {
        k = vpred ? k + 1 : k - 1;
        if (kroky[k].Chyba) break;
    }
    Timer1.Enabled = false;
    NaKrok(k);
}

Odezva PrehravaniForm::Klavesa(std::string_view klavesa, int shift) {
    if ((shift & SHIFT) != 0 && (klavesa == "Left" || klavesa == "Right")) {
        NaChybu(klavesa == "Right");
        return Cinnost<>();
    }
    if (klavesa == "Left") return Click(&picOvladac[ZPET - 1]);
    if (klavesa == "Right") return Click(&picOvladac[VPRED - 1]);
    if (klavesa == "Space") return Click(&picOvladac[JET - 1]);
    if (klavesa == "Escape") return Click(&picOvladac[KONEC - 1]);
    if (klavesa == "Up" || klavesa == "Down") {
        ZmenRychlost(klavesa == "Up" ? 1 : -1);
    } else if (klavesa == "Ctrl+p") {
        NaPapir();
    } else if (klavesa == "Home") {
        NaKrok(0);
    } else if (klavesa == "End") {
        Timer1.Enabled = false;
        NaKrok(Co().Kroky().size() - 1);
    } else {
        return std::nullopt;
    }
    return Cinnost<>();
}

Cinnost<> PrehravaniForm::QueryUnload() {
    Skonci();
    return {};
}

// ---- What is seen ----------------------------------------------------------------------------

void PrehravaniForm::Ukaz() {
    if (ukazany_ != Co().Krok()) {
        ukazany_ = Co().Krok();
        UkazDesku();
    }
    UkazMys();
    UkazText();
    UkazPas();
    lblOvladac[JET - 1].Caption = Jede() ? STAT : JED;
    lblOvladac[RYCHLOST - 1].Caption = RYCHLOSTI[rychlost_].Napis;
    UkazKartu();
}

void PrehravaniForm::UkazDesku() {
    const KrokPrehravani& ted = Co().Ted();
    const Udalost* u = Co().UdalostKroku(ted);
    DeskaForm::Promitane jak{.Danych = Co().Danych(), .NacrtVysunuty = Co().NacrtVysunuty()};
    const auto& konec = Co().PrikladKroku(ted).Konec;
    if (u != nullptr && u->Co.Co == Volani::Druh::Kontrola && konec)
        jak.Bezchybny = konec->Bodu == BODU_ZA_PRIKLAD;
    for (std::size_t k = Co().Krok(); Co().Kroky()[k].Udalost != 0 && jak.Nastroj == 0; --k) {
        const Volani& v = Co().UdalostKroku(Co().Kroky()[k])->Co;
        if (v.Co == Volani::Druh::Nastroj) jak.Nastroj = v.Cislo;
    }
    const Seznam seznam = Co().Hrany().UkazPanel().Vyber;
    jak.Radku = static_cast<int>((seznam.Otevreny ? seznam : Co().Predtim().Vyber).Radky.size());
    deska_->Promitni(Co().Hrany(), jak);
    popis_ = u == nullptr ? std::string() : PopisKroku(u->Co, Co().Predtim(), Co().Hrany());
    mysKroku_.reset();
    for (std::size_t k = Co().Krok(); Co().Kroky()[k].Udalost != 0 && !mysKroku_; --k)
        mysKroku_ = deska_->MistoVolani(Co().UdalostKroku(Co().Kroky()[k])->Co);
}

/// The mouse is on its way to the next step, which is told from then on.
bool PrehravaniForm::Ohlasen() const {
    const KrokPrehravani* pristi = Co().Pristi();
    if (pristi == nullptr || pristi->Udalost == 0 || Co().Cas() == Co().Ted().Kdy) return false;
    const std::uint32_t cesta = tempo_ == Tempo::Vyklad ? CESTA_VYKLADU : CESTA_ZAKA;
    return Co().Drzi() || pristi->Kdy - Co().Cas() <= cesta;
}

void PrehravaniForm::UkazMys() {
    const Bod odkud = mysKroku_.value_or(ODKUD_MYS);
    mys_.reset();
    if (!mysKroku_ && !Ohlasen()) return deska_->PromitniTah(std::nullopt);
    mys_ = {odkud, false};
    const std::uint32_t od = Co().Ted().Kdy;
    if (Ohlasen()) {
        const KrokPrehravani& pristi = *Co().Pristi();
        const std::uint32_t nejvyse = tempo_ == Tempo::Vyklad ? CESTA_VYKLADU : CESTA_ZAKA;
        const std::uint32_t cesta = Co().Drzi() ? pristi.Doba : std::min(nejvyse, pristi.Doba);
        const double dil = 1 - static_cast<double>(pristi.Kdy - Co().Cas()) / cesta;
        const Bod kam = deska_->MistoVolani(Co().UdalostKroku(pristi)->Co).value_or(odkud);
        mys_->Hrot = Mezi(odkud, kam, Plynule(std::clamp(dil, 0.0, 1.0)));
    }
    const Udalost* u = Co().UdalostKroku(Co().Ted());
    const bool tiskne =
        u != nullptr && u->Co.Co != Volani::Druh::Pusteni && u->Co.Co != Volani::Druh::Napsani;
    mys_->Stisknuta = Co().Drzi() || (tiskne && Co().Cas() - od < STISK && !Ohlasen());
    deska_->PromitniTah(Co().Drzi() ? std::optional(mys_->Hrot) : std::nullopt);
}

void PrehravaniForm::UkazText() {
    lblKrok.Sazba = true;
    lblDal.Sazba = tempo_ == Tempo::Vyklad;  // else it holds a pupil's name
    VypisDalsi();
    const std::string krok = TextKroku();
    if (lblKrok.Caption == krok) return;
    lblKrok.Caption = krok;
    lblKrok.Font.Velikost = PISMO_KROKU;
    while (lblKrok.Font.Velikost > PISMO_DAL && SirkaTextu(lblKrok.Font, krok) > lblKrok.Width)
        lblKrok.Font.Velikost -= 1;
}

void PrehravaniForm::UkazKartu() {
    const std::string text = TextKarty();
    PicKarta.Visible = !text.empty();
    if (text.empty() || txtKarta.Text == text) return;
    txtKarta.Text = text;
    txtKarta.Font.Velikost = NEJVETSI_PISMO_KARTY;
    while (!txtKarta.VejdeSe() && txtKarta.Font.Velikost > NEJMENSI_PISMO_KARTY)
        txtKarta.Font.Velikost -= 1;
}

int PrehravaniForm::MistoNaPasu(std::uint32_t cas) const {
    if (Co().Delka() == 0) return PAS_OD;
    return PAS_OD + Zaokrouhli(static_cast<double>(cas) * (PAS_PO - PAS_OD) / Co().Delka());
}

std::uint32_t PrehravaniForm::CasNaPasu(float x) const {
    const double dil = (static_cast<double>(x) - PAS_OD) / (PAS_PO - PAS_OD);
    // A press a little before a mark is meant for it.
    constexpr double PRESAH = 0.003;
    return static_cast<std::uint32_t>(std::clamp(dil + PRESAH, 0.0, 1.0) * Co().Delka());
}

/// Time as a line, gone from left to right; where examples begin a stroke, at each charge a disc.
void PrehravaniForm::UkazPas() {
    const int kde = MistoNaPasu(Co().Cas());
    if (std::exchange(pas_, kde) == kde) return;
    Surface& p = PicPas.Plocha();
    p.Cls();
    p.Vypln(PAS_OD, DRAHA, PAS_PO - PAS_OD, TLOUSTKA_DRAHY, paleta::STIN);
    p.Vypln(PAS_OD, DRAHA, kde - PAS_OD, TLOUSTKA_DRAHY, paleta::TMAVA_POD);
    for (const KrokPrehravani& k : Co().Kroky()) {
        if (k.Udalost == 0)
            p.Vypln(MistoNaPasu(k.Kdy) - 1, 1, 2, 2 * DRAHA + TLOUSTKA_DRAHY - 2, paleta::INKOUST2);
    }
    p.Vypln(kde - SIRKA_JEZDCE / 2 - 1, 0, SIRKA_JEZDCE + 2, PAS.Height - 1, BILA);
    p.Vypln(kde - SIRKA_JEZDCE / 2, 0, SIRKA_JEZDCE, PAS.Height - 1, paleta::INKOUST);
    p.ForeColor = paleta::ACCENT;
    for (const KrokPrehravani& k : Co().Kroky()) {
        if (k.Chyba)
            p.Kotouc(static_cast<float>(MistoNaPasu(k.Kdy)),
                     static_cast<float>(DRAHA) + static_cast<float>(TLOUSTKA_DRAHY) / 2,
                     static_cast<float>(POLOMER_CHYBY));
    }
}

std::string Prehraj(Sezeni& s, Pokus pokus, Tempo tempo, std::function<void()> poKonci) {
    Obrazovky& okna = s.Okna();
    const auto form = okna.Nacti<PrehravaniForm>(s, std::move(pokus), tempo);
    if (form->Co().Kroky().empty()) {
        const auto& rozchod = form->Co().KdeSeRozesla();
        std::string proc = rozchod ? "Záznam nejde přehrát (" + TextRozchodu(*rozchod) + ")."
                                   : "V záznamu není žádný příklad.";
        form->Skonci();
        return proc;
    }
    form->PoKonci = std::move(poKonci);
    okna.NastavModalni(form);
    form->Jed(true);
    return {};
}

/// What the board shows now; told in the strip, until the next step.
void PrehravaniForm::NaPapir() {
    Jed(false);
    const Pokus& pokus = Co().Co();
    const int poradi = PoradiPrikladu();
    const auto [prvni, druhy] = deska_->NaPapir({.Jmeno = pokus.Jmeno,
                                                 .Kdy = pokus.Zacatek,
                                                 .Poradi = poradi,
                                                 .Prikladu = std::max(pokus.PrikladuSerie, poradi)},
                                                lblKrok.Font, lblKrok.Width);
    lblKrok.Caption = prvni;
    lblDal.Caption = druhy;
    lblKrok.Sazba = lblDal.Sazba = false;  // names of files are no names of the figure
}

}  // namespace rysovna
