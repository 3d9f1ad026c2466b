// O que as dicas dizem de cada cultura e de cada lugar: como está, o que fazer agora e o que vem depois.
#pragma once

#include <cstdint>
#include <string>

namespace verdalia {

// O próximo passo de uma cultura de 1 a 21, na horta: "transplante 2 canteiros nesta semana", "semeie antes na
// sementeira", "o próximo plantio é daqui a 3 semanas". Refaz `n_canteiros_novos`.
std::string conselho_de_plantio(std::int16_t cod_cult);

// O mesmo na sementeira, para uma cultura que passa por ela. Refaz `n_leiras_novas`.
std::string conselho_de_semeadura(std::int16_t cod_cult);

// Um canteiro (0 a 99) ou uma leira (0 a 21) por extenso: "A 1 · Cenoura · semana 3 de 14 · agora: limpar". Um canteiro
// vazio lembra as culturas que ali terminaram.
std::string situacao_do_canteiro(int i);
std::string situacao_da_leira(int r);

} // namespace verdalia
