#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace rysovna {

/// The sentences of a wrong step's number: mostly one; none if there is no such number.
using ZdrojVet = std::function<std::vector<std::string>(int cislo)>;

/// Hands the rules their sentences. Without them a charge is a fault.
void NastavVety(ZdrojVet vety);

/// Charges a wrong step: the points to SoucetZapornychBodu and a row of ChybneKroky, the sentence
/// with text (the points in words) behind it. A number that has no sentence charges nothing; one
/// that has two charges twice.
void PridejChybu(int cislo, std::string_view text, int body);

}  // namespace rysovna
