# The fonts that the game and the pictures print with. They are staged beside the pictures, so that
# nothing depends on what fonts a machine has or how they are set up: the letters that can come to be
# printed, cut out of whole fonts, and what is not the original bears a name of ours.
# Each row: staged file, family, whole font.
set(PISMA
    "RysovnaSans-Regular.ttf|Rysovna Sans|LiberationSans-Regular.ttf"
    "RysovnaSans-Bold.ttf|Rysovna Sans|LiberationSans-Bold.ttf"
    "RysovnaSans-Italic.ttf|Rysovna Sans|LiberationSans-Italic.ttf"
    "RysovnaSans-BoldItalic.ttf|Rysovna Sans|LiberationSans-BoldItalic.ttf"
    "RysovnaZnaky.ttf|Rysovna Znaky|DejaVuSans.ttf")
# Their licences, as the packages of the whole fonts bring them.
set(LICENCE
    "RysovnaSans.txt|/usr/share/doc/fonts-liberation/copyright"
    "RysovnaSans-GPL-2.txt|/usr/share/common-licenses/GPL-2"
    "RysovnaZnaky.txt|/usr/share/doc/fonts-dejavu-core/copyright")
# The system's own interpreter: the library comes from a package of the system.
find_program(PYTHON_SYSTEMU python3 NO_DEFAULT_PATH PATHS /usr/bin)
execute_process(COMMAND ${PYTHON_SYSTEMU} -c "import fontTools.subset"
    RESULT_VARIABLE chybi OUTPUT_QUIET ERROR_QUIET)
if(NOT PYTHON_SYSTEMU OR NOT chybi EQUAL 0)
    message(FATAL_ERROR "Fonts cannot be cut. Install the package python3-fonttools.")
endif()
set(ORIGINALY)
set(STAGOVANE_LICENCE)
set(STAGOVANA_PISMA)
foreach(radek ${PISMA})
    string(REPLACE "|" ";" radek "${radek}")
    list(GET radek 0 pismo)
    list(GET radek 1 rodina)
    list(GET radek 2 cele)
    string(MAKE_C_IDENTIFIER "PISMO_${cele}" promenna)
    find_file(${promenna} ${cele} NO_DEFAULT_PATH PATHS
        /usr/share/fonts/truetype/liberation /usr/share/fonts/truetype/liberation2
        /usr/share/fonts/truetype/dejavu)
    mark_as_advanced(${promenna})
    if(NOT ${promenna})
        message(FATAL_ERROR "Font ${cele} was not found below /usr/share/fonts. "
            "Install the packages fonts-liberation and fonts-dejavu-core.")
    endif()
    add_custom_command(OUTPUT ${ASSETY}/Fonts/${pismo}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${ASSETY}/Fonts
        COMMAND ${PYTHON_SYSTEMU} ${CMAKE_SOURCE_DIR}/tools/pisma/pisma.py
            ${rodina} ${${promenna}} ${ASSETY}/Fonts/${pismo}
        DEPENDS ${${promenna}} ${CMAKE_SOURCE_DIR}/tools/pisma/pisma.py VERBATIM)
    list(APPEND STAGOVANA_PISMA ${ASSETY}/Fonts/${pismo})
    list(APPEND ORIGINALY ${${promenna}} ${ASSETY}/Fonts/${pismo})
endforeach()
foreach(radek ${LICENCE})
    string(REPLACE "|" ";" radek "${radek}")
    list(GET radek 0 licence)
    list(GET radek 1 text)
    if(NOT EXISTS ${text})
        message(FATAL_ERROR "${text} is missing: no font may go out without its licence.")
    endif()
    add_custom_command(OUTPUT ${ASSETY}/Licence/${licence}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${ASSETY}/Licence
        COMMAND ${CMAKE_COMMAND} -E copy ${text} ${ASSETY}/Licence/${licence}
        DEPENDS ${text} VERBATIM)
    list(APPEND STAGOVANE_LICENCE ${ASSETY}/Licence/${licence})
endforeach()
# What an earlier build staged under another name would be taken for the game's own.
file(GLOB stare ${ASSETY}/Fonts/*)
list(REMOVE_ITEM stare ${STAGOVANA_PISMA} "")
if(stare)
    file(REMOVE ${stare})
endif()

if(RYSOVNA_TESTY)
    add_test(NAME pisma_jako_cela COMMAND pisma_jako_cela ${ORIGINALY})
endif()
