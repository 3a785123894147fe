# What every target of the house is compiled with: warnings are errors; arithmetic is done as it is
# written, in the precision that is written (no fused multiply-add, no reordering).
add_library(prisnost INTERFACE)
target_compile_options(prisnost INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -ffp-contract=off -fno-fast-math)
# GCC 12 sees overlapping copies in the library's own string concatenation, where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(prisnost INTERFACE -Wno-restrict)
endif()
if(CMAKE_SYSTEM_PROCESSOR MATCHES "i[3-6]86")
    target_compile_options(prisnost INTERFACE -msse2 -mfpmath=sse)
endif()
# Places in files of 64 bits everywhere: the lock of the results lies where 32 do not reach.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_definitions(prisnost INTERFACE _FILE_OFFSET_BITS=64)
endif()
# A mistake in the handling of memory ends the program and gives nobody a hold: guarded stacks,
# checked copies (these want optimisation, and would be in the sanitizers' way), addresses that
# differ each time, and tables of them that are read only once all is linked, at the start.
# A browser keeps the program in a room of its own instead.
if(NOT EMSCRIPTEN)
    target_compile_options(prisnost INTERFACE -fstack-protector-strong)
    if(NOT RYSOVNA_SANITIZE)
        target_compile_options(prisnost INTERFACE
            $<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
    endif()
endif()
if(WIN32)
    # Nothing is needed beside the program.
    target_link_options(prisnost INTERFACE -static -fstack-protector-strong)
elseif(NOT APPLE AND NOT EMSCRIPTEN)
    target_link_options(prisnost INTERFACE LINKER:-z,relro LINKER:-z,now)
endif()
if(RYSOVNA_ODR)
    # Objects for either kind of link: few programs are linked with all their parts at hand.
    target_compile_options(prisnost INTERFACE -flto -ffat-lto-objects)
endif()
if(RYSOVNA_SANITIZE)
    # Instrumented code makes the compiler see uninitialized values in the library where none are.
    target_compile_options(prisnost INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(prisnost INTERFACE -fsanitize=address,undefined)
endif()
