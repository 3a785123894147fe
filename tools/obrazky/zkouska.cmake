# Tries the renderer on small lists of its own: what must come out, and each mistake in a source
# that must be refused with a message that names it. Run with -DNASTROJ= -DKODOVANI= -DFONTY= -DSLOZKA=.

# One run of the tool; its exit status in VYSLEDEK, what it printed in VYPIS.
function(spust)
    execute_process(COMMAND ${NASTROJ} ${ARGN}
        RESULT_VARIABLE vysledek OUTPUT_VARIABLE ven ERROR_VARIABLE chyby)
    set(VYSLEDEK ${vysledek} PARENT_SCOPE)
    set(VYPIS "${ven}${chyby}" PARENT_SCOPE)
endfunction()

function(vykresli seznam)
    file(WRITE ${SLOZKA}/seznam.txt "${seznam}")
    spust(${SLOZKA}/seznam.txt ${SLOZKA}/assets ${SLOZKA}/prace)
    set(VYSLEDEK ${VYSLEDEK} PARENT_SCOPE)
    set(VYPIS "${VYPIS}" PARENT_SCOPE)
endfunction()

function(ocekavej co vysledek vzor)
    if(NOT VYSLEDEK EQUAL ${vysledek} OR NOT VYPIS MATCHES "${vzor}")
        message(SEND_ERROR "${co}: status ${VYSLEDEK}, wanted ${vysledek} and \"${vzor}\":\n${VYPIS}")
    endif()
endfunction()

file(REMOVE_RECURSE ${SLOZKA})
file(MAKE_DIRECTORY ${SLOZKA}/svg ${SLOZKA}/assets)
file(COPY ${FONTY}/ DESTINATION ${SLOZKA}/assets/Fonts)
file(WRITE ${SLOZKA}/svg/plocha.svg "<rect width='100%' height='100%' fill='{{BARVA_{{S}}}}'/>")
file(WRITE ${SLOZKA}/svg/text.svg
    "<sazba x=\"0\" y=\"0\" sirka=\"{{SIRKA}}\" vyska=\"{{VYSKA}}\">{{TEXT}}</sazba>")
file(WRITE ${SLOZKA}/svg/klic.svg "<rect width='20' height='20' fill='#FF00FF'/>{{TVAR}}")
file(WRITE ${SLOZKA}/svg/kruh.svg "{{>kruh.svg}}")

file(WRITE ${SLOZKA}/barvy.txt "BARVA_0 = #102030\nBARVA_1 = #FF8000\n")
set(dva "[a]\nsoubor = a_{{S}}.bmp\npredloha = plocha.svg\nrozmer = 3 2\nstavy = 0 1\n")
vykresli("${dva}")
ocekavej("two states" 0 "nově vykresleno 2")
# 3 x 2 pixels: 9 bytes a row padded to 12, blue green red from the bottom row up
execute_process(COMMAND ${KODOVANI} rozbal ${SLOZKA}/assets/a_1.bmp ${SLOZKA}/prosty.bmp)
file(READ ${SLOZKA}/prosty.bmp data OFFSET 54 HEX)
if(NOT data STREQUAL "0080ff0080ff0080ff0000000080ff0080ff0080ff000000")
    message(SEND_ERROR "pixels of a_1.bmp: ${data}")
endif()
vykresli("${dva}")
ocekavej("nothing changed" 0 "nově vykresleno 0")
file(REMOVE ${SLOZKA}/assets/a_0.tvary)
vykresli("${dva}")
ocekavej("lost shapes" 0 "nově vykresleno 1")
file(WRITE ${SLOZKA}/barvy.txt "BARVA_0 = #102030\nBARVA_1 = #FF8001\n")
vykresli("${dva}")
ocekavej("one colour changed" 0 "nově vykresleno 1")

# The staged files held against a list of them.
file(WRITE ${SLOZKA}/soubory.txt "a_0.bmp 3 2\na_1.bmp 3 2\nFonts/RysovnaZnaky.ttf\n")
spust(--zkontroluj ${SLOZKA}/soubory.txt ${SLOZKA}/assets)
ocekavej("all there" 0 "^$")
file(WRITE ${SLOZKA}/soubory.txt "a_0.bmp 2 3\nchybi.wav\n")
spust(--zkontroluj ${SLOZKA}/soubory.txt ${SLOZKA}/assets)
ocekavej("three faults" 1 "a_0.bmp: má jiný rozměr.*chybi.wav: chybí.*a_1.bmp: není v seznamu")

# A picture that leaves the list leaves the staged ones.
vykresli("[b]\nsoubor = b.bmp\npredloha = plocha.svg\nrozmer = 3 2\nstavy = 1\n")
ocekavej("another list" 0 "Obrázky: 1")
if(EXISTS ${SLOZKA}/assets/a_0.bmp OR EXISTS ${SLOZKA}/assets/a_1.tvary)
    message(SEND_ERROR "a picture that left the list was not removed")
endif()

set(text "[t]\nsoubor = t.bmp\npredloha = text.svg\nrozmer = 60 40\nTEXT =")
set(klic "[k]\nsoubor = k.bmp\npredloha = klic.svg\nrozmer = 20 20\nklic = ano\nTVAR =")
vykresli("${text} *Žluť* _k_~1\n")
ocekavej("text" 0 "Obrázky: 1")
vykresli("${klic} <circle cx='9' cy='9' r='6' fill='#224' shape-rendering='crispEdges'/>\n")
ocekavej("sharp edges" 0 "Obrázky: 1")

# A source with a mistake, and what the message must say.
foreach(pripad
    "${text} nejnerovnoběžnější\n|Slovo se nevejde"
    "${text} na tři řádky se to sem opravdu nevejde\n|Text je vyšší"
    "${text} 好\n|není v žádném písmu"
    "${klic} <circle cx='9' cy='9' r='6' fill='#224'/>\n|není ostrý"
    "${klic} <circle\n|Nelze vykreslit"
    "${klic} {{NENI}}\n|Chybí hodnota"
    "[x]\nsoubor = x.bmp\npredloha = kruh.svg\nrozmer = 2 2\n|nekončí"
    "[x]\nsoubor = x.bmp\npredloha = neni.svg\nrozmer = 2 2\n|Nelze číst"
    "[x]\nsoubor = x.bmp\npredloha = klic.svg\nrozmer = 2\nTVAR =\n|Špatný rozměr"
    "[x]\nsoubor = x.bmp\npredloha = klic.svg\nrozmer = 2 2\nTVAR =\nradky = A\n1\n2\n|dvakrát"
    "[x]\nvelikost = 2 2\n|Neznámý klíč")
    string(REPLACE "|" ";" pripad "${pripad}")
    list(GET pripad 0 seznam)
    list(GET pripad 1 vzor)
    vykresli("${seznam}")
    ocekavej("${vzor}" 1 "${vzor}")
endforeach()
