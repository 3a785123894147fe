#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace rysovna::obrazky {

/// One picture to be rendered, with its template filled in.
struct Obrazek {
    std::string Soubor;  ///< path of the .bmp below the assets, with "/"
    int Sirka = 0;       ///< px at 1:1
    int Vyska = 0;       ///< px at 1:1
    bool Klic = false;   ///< has see-through parts in the key colour: must have clean edges
    std::string Svg;     ///< what stands inside the root element; may still hold <sazba> elements
};

/// The values of placeholders by name.
using Hodnoty = std::map<std::string, std::string>;

/// Text with each {{NAME}} replaced by its value and each {{>path}} by the file of that path below
/// koren, expanded in turn. The innermost braces go first, so {{GROUND_{{STATE}}}} works. A name
/// without a value and a file that is not there are faults; kde names the place in the message.
std::string Dopln(std::string text, const Hodnoty& hodnoty, const std::filesystem::path& koren,
                  const std::string& kde);

/// Reads the list of pictures; values for all are the rows "NAME = value" of the file barvy.txt
/// beside it. Groups begin with a line "[name]". In a group the lines "key = value" with a key in
/// small letters say what it makes: soubor, predloha (a file of the folder "svg" beside the list),
/// rozmer (width and height), klic = ano, stavy (values that {{S}} takes in turn: one picture for
/// each); with a key in capitals they are values of placeholders. "radky = A | B" names columns,
/// and each line after it is one row of the table, one picture (times the states) each. "#" begins
/// a comment line.
std::vector<Obrazek> NactiSeznam(const std::filesystem::path& soubor);

/// The whole file; one that cannot be read is a fault.
std::string NactiSoubor(const std::filesystem::path& soubor);

/// Without blanks, tabs and line ends at both ends.
std::string Orez(const std::string& text);

}  // namespace rysovna::obrazky
