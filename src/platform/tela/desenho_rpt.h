// O desenho de um relatório: as tabelas do banco, lidas do disco, postas em folhas como o modelo diz.
#pragma once

#include "platform/base/relogio.h"
#include "platform/tela/modelo_rpt.h"

namespace verdalia {

// O PDF do relatório da semana em que está `dia`. Lança std::runtime_error, com a explicação, quando o banco ou as
// letras não podem ser lidos ou quando o modelo pede uma tabela ou um campo que o banco não tem.
std::string desenha_relatorio(const ModeloDeRelatorio& modelo, const std::string& nome_do_banco, Dia dia);

} // namespace verdalia
