// Tabelas de quadros-chave: o movimento de uma série de figuras.
#pragma once

#include <string>
#include <string_view>

namespace verdalia {

// A folha de estilo CSS que põe as peças de um SVG na posição do quadro (1 em diante). Cada linha da tabela é
// `peça propriedade quadro:valor ...`; x, y, giro, escala, largura, altura e opacidade são interpolados, visivel muda
// em degrau; antes da primeira chave vale a primeira, depois da última, a última. `total N` diz quantos quadros há.
// Linha malformada ou quadro fora de 1 a N: std::runtime_error com o número da linha.
std::string folha_do_quadro(std::string_view tabela, int quadro);

} // namespace verdalia
