// O que os arquivos do banco da partida dividem; ninguém mais inclui este.
#pragma once

#include "data/banco_arquivo.h"

namespace verdalia {

// Houve o que não se entendeu na leitura: antes da primeira gravação, que o perderia, o banco como estava é copiado com
// este nome. "" quando não há o que copiar.
inline std::string copia_por_fazer;

// Os caminhos das cópias semanais, da mais nova para a mais velha.
std::vector<std::string> copias_da_horta();

// A cópia mais nova que serve como `horta`, se houver e `aceita` a quiser; senão "". Põe de lado as que não servem, e
// todas quando nenhuma se usa: são de uma horta que acabou.
std::string escolhe_copia(const ArquivoDeBanco& horta, const std::string& por_que,
                          const std::function<bool(const std::string&)>& aceita);

} // namespace verdalia
