# Windows, by mingw-w64: what a program of the game has there besides its code.
#   RYSOVNA_IKONA  the icon as .ico; without it none
set(RYSOVNA_IKONA "" CACHE FILEPATH "icon of the programs")
enable_language(RC)

# pro_windows(PROGRAM "what it is" [OKNO]): icon, version, manifest; OKNO: no console of its own.
function(pro_windows program popis)
    set(PROGRAM ${program})
    set(POPIS ${popis})
    set(IKONA ${RYSOVNA_IKONA})
    string(REPLACE "." "," CISLA_VERZE "${PROJECT_VERSION},0,0")
    set(rc ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
    if(RYSOVNA_IKONA)
        configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${rc} @ONLY)
        set_source_files_properties(${rc} PROPERTIES
            OBJECT_DEPENDS "${RYSOVNA_IKONA};${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest")
        target_sources(${program} PRIVATE ${rc})
    endif()
    if("OKNO" IN_LIST ARGN)
        target_link_options(${program} PRIVATE -mwindows)
    endif()
    target_link_options(${program} PRIVATE $<$<CONFIG:Release>:LINKER:--strip-all>)
endfunction()
