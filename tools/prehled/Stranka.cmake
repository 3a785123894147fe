# What the page is made of goes into the program: files of the folder stranka, and the library of
# its chart, which a package brings together with its licence.
find_file(GRAF_KNIHOVNA chart.min.js PATHS /usr/share/javascript/chart.js NO_DEFAULT_PATH
    NO_CMAKE_FIND_ROOT_PATH)
find_file(GRAF_LICENCE copyright PATHS /usr/share/doc/libjs-chart.js NO_DEFAULT_PATH
    NO_CMAKE_FIND_ROOT_PATH)
# Libraries of headers alone are the same for any system that is built for.
find_path(JSON_HLAVICKY nlohmann/json.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
find_path(SABLONY_HLAVICKY kainjow/mustache.hpp PATHS /usr/include NO_DEFAULT_PATH
    NO_CMAKE_FIND_ROOT_PATH)
if(NOT GRAF_KNIHOVNA OR NOT GRAF_LICENCE OR NOT JSON_HLAVICKY OR NOT SABLONY_HLAVICKY)
    message(FATAL_ERROR "Install the packages libjs-chart.js, nlohmann-json3-dev and "
        "libkainjow-mustache-dev.")
endif()
set(jen_hlavicky ${CMAKE_BINARY_DIR}/hlavicky/knihovny)
file(MAKE_DIRECTORY ${jen_hlavicky})
file(CREATE_LINK ${JSON_HLAVICKY}/nlohmann ${jen_hlavicky}/nlohmann SYMBOLIC)
file(CREATE_LINK ${SABLONY_HLAVICKY}/kainjow ${jen_hlavicky}/kainjow SYMBOLIC)
target_include_directories(prehled_jadro SYSTEM PRIVATE ${jen_hlavicky})

set(stranka ${CMAKE_CURRENT_SOURCE_DIR}/stranka)
# The page's program, in this order.
set(skripty ${stranka}/data.js ${stranka}/tabulka.js ${stranka}/pokus.js ${stranka}/graf.js
    ${stranka}/prehled.js)
list(JOIN skripty "," skript)
# Colours that the page shares with the game are filled into its style from the palette.
set(paleta ${CMAKE_SOURCE_DIR}/assets/barvy.txt)
file(STRINGS ${paleta} radky_palety REGEX "^[A-Z0-9_]+ = #[0-9A-F]+$")
foreach(radek ${radky_palety})
    if(radek MATCHES "^([A-Z0-9_]+) = (#......)$")
        set(BARVA_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
    endif()
endforeach()
file(READ ${stranka}/stranka.css styl)
string(REGEX MATCHALL "@[A-Z0-9_]+@" barvy_stylu "${styl}")
string(REPLACE "@" "" barvy_stylu "${barvy_stylu}")
foreach(barva ${barvy_stylu})
    if(NOT DEFINED ${barva})
        message(FATAL_ERROR "${stranka}/stranka.css: ${paleta} has no ${barva}")
    endif()
endforeach()
set(styl ${CMAKE_BINARY_DIR}/vyrobene/prehled/stranka.css)
configure_file(${stranka}/stranka.css ${styl} @ONLY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${paleta})
set(vlozene ${CMAKE_BINARY_DIR}/vyrobene/prehled/Vlozene.cpp)
add_custom_command(OUTPUT ${vlozene}
    COMMAND ${CMAKE_COMMAND} -DVEN=${vlozene}
        "-DCO=STRANKA|${stranka}/stranka.html;STYL|${styl};SKRIPT|${skript};GRAF|${GRAF_KNIHOVNA};LICENCE_GRAFU|${GRAF_LICENCE}"
        -P ${CMAKE_CURRENT_SOURCE_DIR}/vloz.cmake
    DEPENDS ${stranka}/stranka.html ${styl} ${skripty} ${GRAF_KNIHOVNA} ${GRAF_LICENCE}
        ${CMAKE_CURRENT_SOURCE_DIR}/vloz.cmake VERBATIM)
target_sources(prehled_jadro PRIVATE ${vlozene})
