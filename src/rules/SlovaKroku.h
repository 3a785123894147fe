#pragma once

namespace rysovna {

// Words of steps beside the kinds of object (engine/Tabulky.h): in the record of the step in hand,
// in how an object came about, in the entries of the data.
inline constexpr const char* TROJUHELNIK = "trojuhelnik";
inline constexpr const char* OSA = "osa";
inline constexpr const char* STRED = "stred";
inline constexpr const char* PRUSECIK = "prusecik";
inline constexpr const char* STRED_SOUMERNOSTI = "stredsoumernosti";
inline constexpr const char* OBRAZ_BODU = "obrazbodu";

}  // namespace rysovna
