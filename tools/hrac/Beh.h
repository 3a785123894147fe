#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/Sezeni.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// One run of the program on the headless host, with a data root of its own that goes with it, and
/// what can be seen of it: screens and controls by their names, files, sounds. What is not there
/// throws NejdeUdelat.
class Beh {
public:
    Beh(const Beh&) = delete;
    Beh& operator=(const Beh&) = delete;

    [[nodiscard]] HeadlessHost& Host() { return host_; }
    /// The session that is played.
    [[nodiscard]] Sezeni& Pamet() { return sezeni_; }

    /// The screen in front; null if none is visible.
    [[nodiscard]] Form* Vpredu();
    /// Its name; empty if there is none.
    [[nodiscard]] std::string JmenoVpredu();
    /// The loaded screen of this name; null if there is none.
    [[nodiscard]] Form* Najdi(std::string_view form);
    /// A control of the screen in front.
    [[nodiscard]] Ovladac& Prvek(std::string_view jmeno, int index = 0);
    /// The top left corner of such a control, design pixels.
    [[nodiscard]] Bod Roh(const Ovladac& prvek);
    /// A control as what it is: Prvek<Image>("LI", 1).Picture.
    template <class T>
    [[nodiscard]] T& Prvek(std::string_view jmeno, int index = 0) {
        auto* prvek = dynamic_cast<T*>(&Prvek(jmeno, index));
        if (prvek == nullptr) throw NejdeUdelat("jiný druh: " + std::string(jmeno));
        return *prvek;
    }

    /// The data root of this run.
    [[nodiscard]] const std::filesystem::path& DataDir() const { return data_; }
    /// A file of the data root, byte for byte.
    [[nodiscard]] std::string CtiSoubor(const std::string& soubor) const;
    void PisSoubor(const std::string& soubor, std::string_view obsah) const;
    /// The sounds since the last call, file names alone ("click.wav").
    std::vector<std::string> NoveZvuky();

protected:
    /// The data root is a copy of the staged one, with no results in it. seminko: of the generator
    /// of examples. vyrobce: what makes the boards.
    Beh(std::uint32_t seminko, VyrobceDesek vyrobce);
    ~Beh();

private:
    HeadlessHost host_;
    Sezeni sezeni_;
    std::filesystem::path koren_, data_;
    std::size_t slysenych_ = 0;
};

}  // namespace rysovna::hrac
