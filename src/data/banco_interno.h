// O que os dois arquivos do banco da partida dividem; ninguém mais inclui este.
#pragma once

#include "data/banco_arquivo.h"

namespace verdalia {

// Houve o que não se entendeu na leitura: antes da primeira gravação, que o perderia, o banco como estava é copiado com
// este nome. "" quando não há o que copiar.
inline std::string copia_por_fazer;

} // namespace verdalia
