// A escolha da unidade das mídias, como o jogador a vê.
#pragma once

#include <string>

namespace verdalia {

// Uma frase sobre o que há agora na unidade 0 a 5.
std::string o_que_ha_na_unidade(int unidade);
// A unidade tem as figuras do jogo? Senão, avisa com esse título.
bool unidade_serve(const std::string& titulo, int unidade);
// Põe em `dir_media` a letra da unidade; fora de 0 a 5, fica como estava.
void usa_unidade(int unidade);

} // namespace verdalia
