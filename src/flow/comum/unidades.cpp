#include "flow/comum/unidades.h"

#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "platform/base/caminhos.h"

namespace verdalia {

namespace {

bool existe(int unidade) {
    return unidade >= 0 && unidade < static_cast<int>(letras_de_unidade.size());
}

} // namespace

std::string o_que_ha_na_unidade(int unidade) {
    procura_unidades();
    if (unidade == 0) return "As figuras e os sons que vêm com o jogo.";
    const std::string nome_do_volume = nome_da_unidade(unidade);
    return nome_do_volume.empty() ? "Nenhum disco com figuras nesta unidade." : "Disco " + nome_do_volume + ".";
}

bool unidade_serve(const std::string& titulo, int unidade) {
    procura_unidades();
    if (unidade_tem_figuras(unidade)) return true;
    avisa(titulo, std::string("A unidade ") +
                      (existe(unidade) ? letras_de_unidade[static_cast<std::size_t>(unidade)] : "") +
                      " não tem as figuras do jogo (a pasta anima). Escolha outra unidade, ou ponha o disco e tente de "
                      "novo.");
    return false;
}

void usa_unidade(int unidade) {
    if (existe(unidade)) dir_media = letras_de_unidade[static_cast<std::size_t>(unidade)];
}

} // namespace verdalia
