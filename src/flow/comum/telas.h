// Os nomes das telas do jogo. Uma tela sai dizendo o nome da próxima; quem está atrás de cada nome, só main sabe.
#pragma once
#include "platform/tela/tela.h"

namespace verdalia {

enum class TelaId : int {
    fundo,
    Conf_cd,
    INTRONEW,
    conf,
    feira_horta,
    controle_da_sementeira,
    trabalhando_na_horta,
    age,
    help,
    gamedio,
    mem_ok,
    rank_form,
    ok,
    form_ok_nao,
    ok_help,
};

} // namespace verdalia
