// A impressora do sistema e o visor de documentos. São outros programas, chamados sem shell e sem esperar por eles mais
// do que o devido; num navegador, o arquivo se baixa.
#pragma once

#include <filesystem>

namespace verdalia {

enum class Entrega { aceita, sem_impressora, recusada, sem_resposta, baixada };

inline constexpr int paciencia_com_a_impressora = 10000; // milissegundos

// Entrega o arquivo à impressora padrão (`lp`). Enquanto ela não responde, a janela continua a pintar-se; passada a
// paciência, ou se o jogo acaba no meio, `lp` é interrompido.
Entrega manda_imprimir(const std::filesystem::path& arquivo);

// Abre o arquivo no programa que o sistema usa para ele (`xdg-open`), que fica solto do jogo. Falso quando não há.
bool abre_no_visor(const std::filesystem::path& arquivo);

} // namespace verdalia
