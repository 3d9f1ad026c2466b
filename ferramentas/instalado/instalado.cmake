# O que `cmake --install` põe no sistema, e o pacote do Debian que `cpack` faz disso.
set(instalado ${CMAKE_CURRENT_LIST_DIR})
set(feito ${CMAKE_BINARY_DIR}/instalado)
set(identidade br.verdalia.Verdalia)
file(MAKE_DIRECTORY ${feito})

# O ícone em cada tamanho da mesa de trabalho; `figura` desenha com o dobro dos pontos que se pedem.
set(pedidos)
set(feitos)
foreach(lado 16 22 24 32 48 64 128 256)
  math(EXPR metade "${lado} / 2")
  list(APPEND pedidos ${metade} ${metade} - - ${feito}/${lado}.png)
  list(APPEND feitos ${feito}/${lado}.png)
  install(FILES ${feito}/${lado}.png DESTINATION share/icons/hicolor/${lado}x${lado}/apps RENAME ${identidade}.png)
endforeach()
set(icone ${PROJECT_SOURCE_DIR}/arte/icone.svg)
set(estilo ${PROJECT_SOURCE_DIR}/arte/pecas/estilo.svg)
add_custom_command(OUTPUT ${feitos} COMMAND figura ${icone} ${pedidos}
  DEPENDS figura ${icone} ${estilo} COMMENT "Ícones da mesa de trabalho" VERBATIM)

# E como desenho, com o estilo dentro, que lá fora não haverá pecas/ de onde o incluir.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icone} ${estilo})
file(READ ${icone} desenho)
file(READ ${estilo} dentro)
string(REPLACE "<xi:include href=\"pecas/estilo.svg\" parse=\"xml\"/>" "${dentro}" desenho "${desenho}")
file(WRITE ${feito}/icone.svg "${desenho}")
install(FILES ${feito}/icone.svg DESTINATION share/icons/hicolor/scalable/apps RENAME ${identidade}.svg)

foreach(texto verdalia.6 changelog)
  add_custom_command(OUTPUT ${feito}/${texto}.gz COMMAND gzip -9nc ${instalado}/${texto} > ${feito}/${texto}.gz
    DEPENDS ${instalado}/${texto} VERBATIM)
  list(APPEND feitos ${feito}/${texto}.gz)
endforeach()
add_custom_target(instalado ALL DEPENDS ${feitos})

install(TARGETS verdalia RUNTIME DESTINATION games)
install(DIRECTORY ${pasta_do_programa}/ DESTINATION share/games/verdalia)
install(FILES ${instalado}/${identidade}.desktop DESTINATION share/applications)
install(FILES ${instalado}/${identidade}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${instalado}/copyright README.md DESTINATION share/doc/verdalia)
install(FILES ${feito}/changelog.gz DESTINATION share/doc/verdalia RENAME changelog.Debian.gz)
foreach(lingua man man/pt_BR) # o jogo só fala português: em qualquer língua a página é a mesma
  install(FILES ${feito}/verdalia.6.gz DESTINATION share/${lingua}/man6)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Os autores de Verdalia <verdalia@example.org>")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# As bibliotecas, o próprio programa as diz. `lp` imprime, `xdg-open` mostra a folha onde não há impressora.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, fonts-sil-andika")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups-client, libdecor-0-plugin-1-cairo, xdg-utils")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plan a family vegetable garden and keep it going")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Verdalia is an educational game, in Brazilian Portuguese, for children,
families and schools. At the market you say what the family wants to eat
every week; the game works out how many beds that takes, what to sow and
what to plant or transplant now, and then the garden is looked after week
by week. One week of the game is one real week.

Verdalia é um jogo educativo em português do Brasil, para crianças,
famílias e escolas. Na feira se diz o que a família quer comer toda semana;
o jogo calcula quantos canteiros isso ocupa, o que se semeia e o que se
planta ou transplanta agora, e a horta se cuida semana por semana. Uma
semana do jogo é uma semana de verdade.")
include(CPack)
