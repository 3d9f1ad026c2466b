// Uma só cópia do jogo por pasta do jogador.
#pragma once

namespace verdalia {

// Verdadeiro quando esta cópia do programa tem a pasta do jogador para si, até terminar; falso quando outra já a tem.
// Lança std::runtime_error com a explicação quando a pasta não pode ser gravada.
bool trava_partida();

} // namespace verdalia
