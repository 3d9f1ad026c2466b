// O relatório da semana no banco da partida: as três tabelas que a impressão lê.
#pragma once

namespace verdalia {

// Reescreve `relat` (o trabalho da semana), `rr` (o que houve em cada canteiro vago) e `mapa_horta` (a horta, 10 por
// 10) numa só transação, a partir das listas da agenda e das tabelas do estado. Vem depois de `monta_listas`, com
// `data_previsao` já no seu valor. Lança ErroBanco, e então as três ficam como estavam.
void prepara_relat();

} // namespace verdalia
