# As bibliotecas que ferramentas/navegador construiu, pelo caminho inteiro e na ordem em que se ligam: pelo nome
# (-lSDL2), o compilador iria buscar as suas.
foreach(nome hpdf z SDL2_image SDL2_ttf freetype SDL2_mixer SDL2 sqlite3)
  find_library(navegador_${nome} ${nome} REQUIRED)
endforeach()
find_path(navegador_cabecalhos sqlite3.h REQUIRED)

add_library(sqlite INTERFACE)
target_link_libraries(sqlite INTERFACE ${navegador_sqlite3})
target_include_directories(sqlite SYSTEM INTERFACE ${navegador_cabecalhos})
add_library(PkgConfig::sqlite ALIAS sqlite)

add_library(sdl INTERFACE)
target_link_libraries(sdl INTERFACE ${navegador_SDL2_image} ${navegador_SDL2_ttf} ${navegador_freetype}
  ${navegador_SDL2_mixer} ${navegador_SDL2})
target_include_directories(sdl SYSTEM INTERFACE ${navegador_cabecalhos} ${navegador_cabecalhos}/SDL2)
add_library(PkgConfig::sdl ALIAS sdl)
set(hpdf ${navegador_hpdf} ${navegador_z})

add_compile_options(-fexceptions)

# O programa ligado à página: `biblioteca.js` é o lado de lá de platform/base/pagina.h.
function(verdalia_no_navegador)
  set(aqui ${PROJECT_SOURCE_DIR}/src/platform/navegador)
  target_link_options(verdalia PRIVATE -fexceptions -sASYNCIFY -sASYNCIFY_STACK_SIZE=262144
    -sASYNCIFY_IMPORTS=@${aqui}/esperam.json -sASYNCIFY_REMOVE=@${aqui}/nao_esperam.json
    -sDEFAULT_LIBRARY_FUNCS_TO_INCLUDE=@${aqui}/incluidas.json
    -sINITIAL_MEMORY=67108864 -sALLOW_MEMORY_GROWTH=1 -sEXIT_RUNTIME=1 -sENVIRONMENT=web
    -sEXPORTED_RUNTIME_METHODS=FS,addRunDependency,removeRunDependency --js-library ${aqui}/biblioteca.js)
  set_target_properties(verdalia PROPERTIES LINK_DEPENDS
    "${aqui}/biblioteca.js;${aqui}/esperam.json;${aqui}/nao_esperam.json;${aqui}/incluidas.json")
endfunction()
