// O banco da partida antes da primeira leitura: as suas tabelas e o que um banco novo já traz.
#include "data/banco.h"

#include "data/banco_interno.h"
#include "data/estado.h"

namespace verdalia {

namespace {

std::vector<Tabela> tabelas_do_banco() {
    Tabela mapa{"mapa_horta", {}, {"ordem"}};
    for (const char* campo : {"cult", "idade", "trato", "p_fim"})
        for (int coluna = 1; coluna <= 10; ++coluna) mapa.textos.push_back(campo + std::to_string(coluna));
    return {
        {"semana", {"cd"}, {"data"}},
        {"st", {"indice", "cod_cult", "idade", "check", "last_i_cu", "last_last_i_cu"}, {}},
        {"sem", {"indice", "cod_cult", "idade", "check"}, {}},
        {"seq", {"indice", "seq"}, {}},
        {"relat", {"hs", "ord", "sem"}, {"trato", "aonde", "cultura", "cabec1"}},
        {"rr", {}, {"mod", "cult", "fam", "ucult", "ufam"}},
        mapa,
    };
}

void enche_banco_novo(Database& banco) {
    Recordset semana = banco.OpenRecordset("semana");
    semana.AddNew();
    semana.Fields("data") = texto_iso(hoje());
    semana.Fields("cd") = 0;
    semana.Update();
    Recordset seq = banco.OpenRecordset("seq");
    for (int c = 1; c <= n_culturas; ++c) {
        seq.AddNew();
        seq.Fields("indice") = c;
        seq.Fields("seq") = 0;
        seq.Update();
    }
}

// O registro da semana tem de existir e fazer sentido: dele dependem a data e a unidade das mídias.
void completa_semana() {
    Database banco = area_do_banco().OpenDatabase(nome_banco);
    Recordset semana = banco.OpenRecordset("semana");
    const bool falta = semana.EOF();
    const bool data_ruim = falta || !dia_de_iso(semana.Fields("data").texto());
    const auto cd = falta ? std::nullopt : semana.Fields("cd").inteiro();
    const bool cd_ruim = !cd || *cd < 0 || *cd > 5;
    if (!data_ruim && !cd_ruim) return;
    falta ? semana.AddNew() : semana.Edit();
    if (data_ruim) semana.Fields("data") = texto_iso(hoje());
    if (cd_ruim) semana.Fields("cd") = 0;
    semana.Update();
    avisos_do_banco.emplace_back(
        data_ruim ? "A data da última semana tinha-se perdido. A horta continua a contar a partir de hoje."
                  : "A unidade das figuras tinha-se perdido. Escolha-a de novo.");
}

} // namespace

void prepara_banco(const std::function<bool(const std::string&)>& aceita_copia) {
    copia_por_fazer.clear();
    ArquivoDeBanco horta{nome_banco, "da horta", "uma horta nova começa agora", tabelas_do_banco(), enche_banco_novo};
    horta.escolhe_copia = [&](const std::string& por_que) { return escolhe_copia(horta, por_que, aceita_copia); };
    const std::string aviso = prepara_arquivo(horta);
    if (!aviso.empty()) avisos_do_banco.push_back(aviso);
    completa_semana();
}

} // namespace verdalia
