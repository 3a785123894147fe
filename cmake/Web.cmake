# The browser: wasm by emscripten, one thread. What the game's whole build for that home is compiled
# and linked with; the page itself stands in packaging/web.
#
# Vectors are the machine's own, which every browser has had since the spring of 2023. Exceptions go
# through the page's script: this compiler's native ones lose their way where catches are nested and
# inlined, and a fault that should have been caught ended the game.
set(CMAKE_EXECUTABLE_SUFFIX .js)
add_compile_options(-fexceptions -msimd128
    # Headers of the C++ library that this compiler has not.
    "SHELL:-isystem ${CMAKE_SOURCE_DIR}/packaging/web/nahrady")
add_link_options(-fexceptions -sALLOW_MEMORY_GROWTH=1)
if(RYSOVNA_SANITIZE)
    # The shadow of the whole memory lies at its beginning.
    add_link_options(-sINITIAL_MEMORY=536870912 -sTOTAL_STACK=8388608)
else()
    add_link_options(-sINITIAL_MEMORY=33554432 -sTOTAL_STACK=1048576)
endif()

# A program for node, which sees the machine's own files by their own paths.
function(pro_node program)
    target_link_options(${program} PRIVATE -sNODERAWFS=1 -sEXIT_RUNTIME=1 -sENVIRONMENT=node)
endfunction()

# The program of the page: a module without a main, called by what it exports.
function(pro_stranku program)
    set(most ${CMAKE_SOURCE_DIR}/packaging/web/most.js)
    target_link_options(${program} PRIVATE --no-entry -O3 -sMODULARIZE=1 -sEXPORT_ES6=1 -sUSE_ES6_IMPORT_META=0
        -sEXPORT_NAME=Rysovna -sENVIRONMENT=web -sFORCE_FILESYSTEM=1 -sINVOKE_RUN=0
        -sEXPORTED_RUNTIME_METHODS=FS,HEAPU8,UTF8ToString,stringToUTF8,lengthBytesUTF8
        -sEXPORTED_FUNCTIONS=_malloc,_free
        "SHELL:--js-library ${most}")
    set_target_properties(${program} PROPERTIES LINK_DEPENDS ${most})
endfunction()
