#pragma once

// A library that stands between the program and the system's calls of files and makes one of them
// fail. Linked before the C library, its functions are taken in place of that one's.

namespace rysovna::testy {

/// What becomes of the call.
enum class Porucha {
    Zadna,
    ZabitPred,     ///< the process is killed before it
    ZabitPo,       ///< and after it
    KratkyZapis,   ///< half is written; the next call is right
    KratkyAZabit,  ///< half is written, then the process is killed
    KratkyAPlno,   ///< half is written, the next write finds the disk full
    Plno,          ///< ENOSPC
    Io,            ///< EIO
    Prava,         ///< EACCES
    Neumi,         ///< EOPNOTSUPP
    Zaneprazdneno  ///< EBUSY
};

/// From now on calls are counted from 1, and this one fails; trvale: all later ones too. Short
/// writes are of writes alone, other calls are let through.
void NastavPoruchu(Porucha druh, int kolikate, bool trvale = false);

/// How many calls came since.
[[nodiscard]] int PocetVolani();

}  // namespace rysovna::testy
