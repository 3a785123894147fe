#pragma once

// Windows' own calls, without those of its names that are macros here (min, max) and without what
// the program does not use.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
