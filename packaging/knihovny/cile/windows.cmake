# Windows of 64 bits by Debian's mingw-w64; whoever links them needs nothing beside the program.
set(DELKA_LONG 4)
set(VOLBY -O2)
set(PIXMAN_ZDROJE ${ZDROJE}/pixman/pixman/pixman-sse2.c)
set(PIXMAN_DEFINICE SIZEOF_LONG=4 USE_SSE2)
set(PIXMAN_VOLBY -O3)
# The first is said to those who link it too: its header would have them look for a DLL. Names of
# files are UTF-16 there, which the library turns them into only if it is told so.
set(CAIRO_VOLBY_PC -DCAIRO_WIN32_STATIC_BUILD)
set(CAIRO_DEFINICE CAIRO_WIN32_STATIC_BUILD CAIRO_HAS_UTF8_TO_UTF16=1 HAVE_UNISTD_H=1 HAVE_FENV_H=1)
# The overview of a class is made there.
set(PREHLED ON)
set(SDL_KNIHOVNY_PC user32 gdi32 winmm imm32 ole32 oleaut32 version uuid advapi32 setupapi shell32)
