#include "agenda/regras/relatorio.h"

#include "agenda/regras/plano.h"
#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "platform/base/texto.h"

namespace verdalia {

namespace {

// Um grupo de linhas do relatório: as linhas da lista que têm lugar na coluna do grupo. A densidade vem entre os dois
// textos; sem eles, não vem.
struct Grupo {
    int hs; // 0 horta, 1 sementeira
    int ord;
    const char* trato;
    Lista lista;
    std::string LinhaDeTrabalho::*aonde;
    const char* antes_da_densidade = "";
    const char* depois_da_densidade = "";
};
constexpr auto aonde = &LinhaDeTrabalho::aonde, aonde_sem = &LinhaDeTrabalho::aonde_sem;
constexpr Grupo grupos[] = {
    {0, 0, "Plantio", r_pld, aonde, " (", ")"},
    {0, 1, "Transplante", r_tr, aonde, "  ( ", " )"},
    {0, 2, "Limpeza", r_li, aonde},
    {0, 3, "Desbaste", r_des, aonde},
    {0, 4, "Amontoa", r_amo, aonde},
    {0, 5, "Colheita Parcial", r_cop, aonde},
    {0, 6, "Colheita Final", r_cof, aonde},
    {1, 0, "Plantio em Sementeira", r_pls, aonde},
    {1, 1, "Transplante", r_tr, aonde_sem},
    {1, 2, "Limpeza", r_li, aonde_sem},
    {1, 3, "Desbaste", r_des, aonde_sem},
};
constexpr const char* cabecalhos[] = {"HORTA", "SEMENTEIRA"}; // por `hs`

std::string com_densidade(const LinhaDeTrabalho& linha, const Grupo& g) {
    if (*g.antes_da_densidade == '\0' || linha.densidade.empty()) return linha.cultura;
    return linha.cultura + g.antes_da_densidade + linha.densidade + g.depois_da_densidade;
}

void escreve_relat(Recordset& relat) {
    const int semana = semana_do_ano(std::chrono::floor<std::chrono::days>(data_previsao));
    for (const Grupo& g : grupos)
        for (const LinhaDeTrabalho& linha : listas[g.lista]) {
            if ((linha.*g.aonde).empty()) continue;
            relat.AddNew();
            relat.Fields("hs") = g.hs;
            relat.Fields("ord") = g.ord;
            relat.Fields("trato") = g.trato;
            relat.Fields("aonde") = linha.*g.aonde;
            relat.Fields("cultura") = com_densidade(linha, g);
            relat.Fields("sem") = semana;
            relat.Fields("cabec1") = cabecalhos[g.hs];
            relat.Update();
        }
}

void poe_cultura_anterior(Recordset& rr, const char* cult, const char* fam, std::int16_t c) {
    rr.Fields(cult) = c > 0 ? nome_cult[c] : "Livre";
    rr.Fields(fam) = c > 0 ? nome_familia[familia_cult[c]] : "Livre";
}

void escreve_rr(Recordset& rr) {
    for (int i = 0; i < n_canteiros; ++i) {
        if (st_cod_cult[i] != cult_vago) continue;
        rr.AddNew();
        rr.Fields("mod") = nome_canteiro(i);
        poe_cultura_anterior(rr, "cult", "fam", st_last_i_cu[i]);
        poe_cultura_anterior(rr, "ucult", "ufam", st_last_last_i_cu[i]);
        rr.Update();
    }
}

void escreve_mapa(Recordset& mapa) {
    constexpr int lado = 10;
    for (int linha = 0; linha < lado; ++linha) {
        mapa.AddNew();
        mapa.Fields("ordem") = std::string(1, static_cast<char>('A' + linha));
        for (int k = 1; k <= lado; ++k) {
            const int i = linha * lado + k - 1;
            const std::int16_t c = st_cod_cult[i];
            const bool no_jogo = c >= cult_vago;
            const std::string coluna = std::to_string(k);
            mapa.Fields("cult" + coluna) = no_jogo ? abrev_cult[c] : "";
            mapa.Fields("idade" + coluna) = no_jogo ? texto_de_numero(st_idade[i]) : "   ";
            mapa.Fields("trato" + coluna) = oper_canteiro(c, st_idade[i]);
            mapa.Fields("p_fim" + coluna) = no_jogo ? texto_de_numero(ciclo_horta[c] - st_idade[i]) : "   ";
        }
        mapa.Update();
    }
}

} // namespace

void prepara_relat() {
    Passo passo(DBEngine.Workspaces(0)); // as três tabelas são da mesma semana
    reescreve("relat", escreve_relat);
    reescreve("rr", escreve_rr);
    reescreve("mapa_horta", escreve_mapa);
    passo.confirma();
}

} // namespace verdalia
