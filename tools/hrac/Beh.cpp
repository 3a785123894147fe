#include "hrac/Beh.h"

#include <fstream>
#include <iterator>
#include <random>
#include <utility>

#include "base/Disk.h"
#include "platform/Obrazovky.h"
#include "store/JmenaSouboru.h"

namespace rysovna::hrac {
namespace {

namespace fs = std::filesystem;

const fs::path STAGING = CestaZTextu(RYSOVNA_STAGING);

/// A folder that no other run, of this process or another, has.
fs::path NovaSlozka() {
    std::random_device nahoda;
    for (int i = 0; i < 100; ++i) {
        fs::path nova = fs::temp_directory_path() / ("rysovna_" + std::to_string(nahoda()));
        if (fs::create_directory(nova)) return nova;
    }
    throw NejdeUdelat("nelze založit " + fs::temp_directory_path().string());
}

[[noreturn]] void Nejde(const std::string& co, std::string_view jmeno, int index) {
    throw NejdeUdelat(co + ": " + std::string(jmeno) + "(" + std::to_string(index) + ")");
}

}  // namespace

Beh::Beh(std::uint32_t seminko, VyrobceDesek vyrobce)
    : sezeni_(host_, std::move(vyrobce)), koren_(NovaSlozka()), data_(koren_ / "data") {
    fs::copy(STAGING / "data", data_, fs::copy_options::recursive);
    // The staged copy may have been played with: a run begins with no results.
    for (const std::string& jmeno : JmenaVysledku()) fs::resize_file(data_ / jmeno, 0);
    host_.SlozkaSystemu = koren_.string();
    host_.SeminkoHry = seminko;
    std::ofstream ini(koren_ / JMENO_INI, std::ios::binary);
    ini << "[RYSOVNA1]\r\nCD=" << (STAGING / "assets").string() << "\r\nHD=" << data_.string()
        << "\r\n";
    ini.close();
}

Beh::~Beh() {
    host_.Okna().UnloadVse();
    std::error_code nevadi;
    fs::remove_all(koren_, nevadi);
}

Form* Beh::Vpredu() {
    return host_.Okna().Vpredu().get();
}

std::string Beh::JmenoVpredu() {
    const Form* form = Vpredu();
    return form == nullptr ? std::string() : std::string(form->Jmeno());
}

Form* Beh::Najdi(std::string_view form) {
    return host_.Okna().Najdi(form).get();
}

Ovladac& Beh::Prvek(std::string_view jmeno, int index) {
    Form* form = Vpredu();
    Ovladac* prvek = form == nullptr ? nullptr : form->Najdi(jmeno, index);
    if (prvek == nullptr) Nejde("na obrazovce " + JmenoVpredu() + " není", jmeno, index);
    return *prvek;
}

Bod Beh::Roh(const Ovladac& prvek) {
    const Form* form = Vpredu();
    Bod roh = form->Maximised ? Bod{} : Bod{form->Left, form->Top};
    for (const Ovladac* o = &prvek; o != nullptr; o = o->Rodic) {
        if (!o->Visible) Nejde("není vidět", prvek.Name, prvek.Index);
        roh.X += o->Left;
        roh.Y += o->Top;
    }
    return roh;
}

std::string Beh::CtiSoubor(const std::string& soubor) const {
    std::ifstream vstup(data_ / soubor, std::ios::binary);
    if (!vstup) throw NejdeUdelat("nelze číst " + soubor);
    return {std::istreambuf_iterator<char>(vstup), {}};
}

void Beh::PisSoubor(const std::string& soubor, std::string_view obsah) const {
    std::ofstream(data_ / soubor, std::ios::binary | std::ios::trunc) << obsah;
}

std::vector<std::string> Beh::NoveZvuky() {
    std::vector<std::string> nove;
    for (; slysenych_ < host_.Zvuky.size(); ++slysenych_) {
        const std::string& cesta = host_.Zvuky[slysenych_].Cesta;
        nove.push_back(cesta.substr(cesta.find_last_of('\\') + 1));
    }
    return nove;
}

}  // namespace rysovna::hrac
