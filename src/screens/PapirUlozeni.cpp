// Where a page goes, under which name, and what is told of it.

#include "screens/PapirUlozeni.h"

#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Pisma.h"

namespace rysovna {

namespace {

namespace fs = std::filesystem;

/// Characters of a pupil's name that go into that of a file.
constexpr std::size_t NEJDELSI_JMENO = 40;
/// Documents of one pupil, task and day.
constexpr int NEJVIC_DOKUMENTU = 999;

/// Any character that a file system refuses in a name becomes a blank.
std::string DoSouboru(std::string_view jmeno) {
    constexpr std::u32string_view NELZE = U"<>:\"/\\|?*";
    std::u32string znaky = DoZnaku(jmeno).substr(0, NEJDELSI_JMENO);
    for (char32_t& z : znaky) {
        if (z < U' ' || z == 0x7F || z == 0xFFFD || NELZE.find(z) != std::u32string_view::npos)
            z = U' ';
    }
    return BezKrajnichMezer(ZeZnaku(znaky));
}

std::string NazevSouboru(const Papir& papir) {
    const std::string jmeno = DoSouboru(papir.Jmeno);
    return "Rysovna " + (jmeno.empty() ? "" : jmeno + " ") + "úloha " +
           TextBezMezery(papir.CisloUlohy) + " " + TextBezMezery(papir.Kdy.Rok) + "-" +
           DveCislice(papir.Kdy.Mesic) + "-" + DveCislice(papir.Kdy.Den);
}

/// Writes a file that was not there; what was begun and cannot be finished goes again.
void Zapis(Disk& disk, const fs::path& cesta, const std::string& obsah) {
    auto soubor = disk.NovySoubor(cesta);
    try {
        soubor->Pis(0, obsah);
        soubor->NaDisk();
    } catch (const ChybaDisku&) {
        soubor.reset();
        OdstranPotichu(disk, cesta);  // the first fault is the one that is told
        throw;
    }
}

/// The row with a name in it whose middle goes where it would not fit.
std::string VejdiSe(const std::string& uvod, std::string_view jmeno, const std::string& zaver,
                    const Pismo& pismo, int sirka) {
    std::u32string znaky = DoZnaku(jmeno);
    std::string radek = uvod + std::string(jmeno) + zaver;
    while (SirkaTextu(pismo, radek) > sirka && znaky.size() > 2) {
        znaky.erase(znaky.size() / 2, 1);
        std::u32string zkracene = znaky;
        zkracene.insert(znaky.size() / 2, U"…");
        radek = uvod + ZeZnaku(zkracene) + zaver;
    }
    return radek;
}

}  // namespace

fs::path UlozDokument(Disk& disk, const fs::path& slozka, const std::string& nazev,
                      const std::string& obsah) {
    disk.ZalozSlozku(slozka);
    for (int i = 1; i <= NEJVIC_DOKUMENTU; ++i) {
        const fs::path cesta = slozka / CestaZTextu(nazev + " " + TextBezMezery(i) + ".pdf");
        try {
            Zapis(disk, cesta, obsah);
            return cesta;
        } catch (const ChybaDisku& chyba) {
            if (chyba.Proc() != Pricina::UzJe) throw;
        }
    }
    throw ChybaDisku(Pricina::UzJe, slozka);
}

RadkyRady UlozPapir(Host& stroj, const Papir& papir, const Surface& figura, const Surface& nacrt,
                    const Pismo& pismo, int sirka) {
    const std::string obsah = SlozPapir(papir, figura, nacrt);
    const std::string nazev = NazevSouboru(papir);
    if (stroj.VydejDokument(nazev + ".pdf", obsah)) {
        return {VejdiSe("Prohlížeč ukládá ", nazev + ".pdf", ".", pismo, sirka),
                "Najdeš ho mezi staženými soubory."};
    }
    const fs::path slozka = stroj.SlozkaDokumentu();
    try {
        if (slozka.empty()) throw ChybaDisku(Pricina::Neni, slozka);
        const fs::path cesta = UlozDokument(stroj.Disk(), slozka, nazev, obsah);
        stroj.UkazDokument(cesta);
        return {VejdiSe("Uloženo: ", cesta.filename().string(), "", pismo, sirka),
                VejdiSe("ve složce ", slozka.string(), "", pismo, sirka)};
    } catch (const ChybaDisku& chyba) {
        return {"PDF se nepodařilo uložit (" + std::string(TextPriciny(chyba.Proc())) +
                    "). Konstrukce zůstává, jak je.",
                slozka.empty() ? "Účet nemá složku dokumentů."
                               : VejdiSe("Složka ", slozka.string(), "", pismo, sirka)};
    }
}

}  // namespace rysovna
