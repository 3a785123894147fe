# The browser: wasm of 32 bits by Debian's emscripten, one thread. Vectors of 128 bits, which
# browsers have had since 2021 to 2023, halve the time of mixing pixels.
set(DELKA_LONG 4)
set(VOLBY -O2 -msimd128)
# The vector code of the other home's processors, put into the machine's own by the compiler; what
# would ask the processor whether it has them is left out.
set(PIXMAN_VYJMA pixman-x86.c)
set(PIXMAN_ZDROJE ${ZDROJE}/pixman/pixman/pixman-sse2.c ${CMAKE_SOURCE_DIR}/pixman-vzdy-sse2.c)
set(PIXMAN_DEFINICE PIXMAN_NO_TLS SIZEOF_LONG=4 USE_SSE2)
set(PIXMAN_VOLBY -O3 -msse2)
set(CAIRO_DEFINICE CAIRO_NO_MUTEX=1 HAVE_UNISTD_H=1 HAVE_FENV_H=1)
