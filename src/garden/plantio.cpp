// O plantio: o que acontece quando algo arrastado cai na horta, e a regra de rotação.
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "garden/tabelas.h"
#include "garden/tabuleiro.h"
#include "garden/trabalhando_na_horta.h"

#include <algorithm>

namespace verdalia {

namespace {

// Pergunta quando a cultura é da família de outra que já terminou ali; `qual` diz qual das duas perguntas é.
void pergunta_se_repete_familia(std::int16_t anterior, std::int16_t cod_cult, const std::string& qual,
                                const Retangulo& canteiro, const TelaDeTratos& tela) {
    const auto figura = [&tela](std::int16_t c) { return dir_media + tela.botao_da_cultura(c).figura; };
    pergunta("Regra de Rotação",
             "Esta verdura pertence à mesma família botânica da verdura que ocupava este canteiro. Você deseja "
             "plantar assim mesmo ?",
             {.perde_algo = true,
              .ilustracao = {figura(anterior), figura(cod_cult)},
              .legenda = nome_cult[anterior] + ", depois " + nome_cult[cod_cult] + qual,
              .evita = canteiro});
}

bool mesma_familia(std::int16_t anterior, std::int16_t cod_cult) {
    return anterior >= 0 && familia_cult[anterior] == familia_cult[cod_cult];
}

void poe_no_canteiro(int i, std::int16_t cod_cult) {
    st_cod_cult[i] = cod_cult;
    st_nome[i] = nome_cult[cod_cult];
    st_idade[i] = 0;
}

} // namespace

void trabalhando_na_horta::horta_DragDrop(const Arraste& a) {
    const bool havia_direto = legenda_pede_semente();
    const BotaoDeCultura* botao = cultura_do_botao(a.fonte->nome);
    if (botao == nullptr) return;
    const int i = casa_da_horta(a.x, a.y);
    // A figura não enche a casa: o que cai na fresta de um canteiro plantado cai nele.
    if (st_cod_cult[i] > cult_vago) return cant_DragDrop(a);

    blip();
    const std::int16_t c = botao->cultura;
    const std::int16_t cod_antes = st_cod_cult[i], idade_antes = st_idade[i];
    const std::string nome_antes = st_nome[i];
    poe_no_canteiro(i, c);
    cria_canteiro(i);
    paint_modulo(i); // já se vê no canteiro enquanto se pergunta
    arrastar_soltar_horta(c, i);
    if (!resposta_sim) {
        st_cod_cult[i] = cod_antes;
        st_nome[i] = nome_antes;
        st_idade[i] = idade_antes;
        destroi_canteiro(i);
        return;
    }
    mostra_legenda(leg_modo, leg_op, i, true, "");
    blip_com_voz();
    pl_tr(c);
    paint_modulo(i);
    btn_sem_horta();
    if (havia_direto) parabeniza(falta_plantar(), "\\anima\\parah.jpg");
}

void trabalhando_na_horta::arrastar_soltar_horta(std::int16_t cod_cult, int i) {
    resposta_sim = true;
    const std::int16_t ultima = st_last_i_cu[i], penultima = st_last_last_i_cu[i];
    const bool repete_a_ultima = mesma_familia(ultima, cod_cult),
               repete_a_penultima = mesma_familia(penultima, cod_cult);
    const bool duas = repete_a_ultima && repete_a_penultima;
    const Retangulo canteiro = cant(i).lugar();
    if (repete_a_ultima) pergunta_se_repete_familia(ultima, cod_cult, duas ? "\n1 de 2" : "", canteiro, *this);
    if (repete_a_penultima) // a última resposta decide
        pergunta_se_repete_familia(penultima, cod_cult, duas ? "\n2 de 2" : "", canteiro, *this);
    if (!resposta_sim) return;
    poe_no_canteiro(i, cod_cult);
    if (ciclo_sem[cod_cult] == 0 || Label3(botao_da_cultura(cod_cult).k).texto != "1") return;
    // O último canteiro que a legenda pedia leva as mudas: todas as leiras prontas se esvaziam.
    for (int r = 0; r < n_leiras; ++r) {
        if (sem_cod_cult[r] != cod_cult || sem_idade[r] != ciclo_sem[cod_cult]) continue;
        sem_cod_cult[r] = cult_vago;
        sem_idade[r] = 0;
        sem_nome[r].clear();
    }
}

void trabalhando_na_horta::cant_DragDrop(const Arraste& a) {
    if (cultura_do_botao(a.fonte->nome) == nullptr) return;
    falou_nome = false;
    avisa("Ocupado", "Este canteiro já está ocupado");
}

bool trabalhando_na_horta::Form_DragDrop(const Arraste& a) {
    if (a.fonte->nome != "cant") return false;
    const int i = a.fonte->indice;
    const std::int16_t c = st_cod_cult[i];
    if (!pergunta("Atenção ...", "Confirma que quer 'excluir' essa verdura ?", {.perde_algo = true})) return true;
    blip();
    st_cod_cult[i] = cult_nenhuma;
    st_nome[i].clear();
    st_idade[i] = 0;
    const bool era_do_trato = txt_label(i).visivel;
    const Cor cor_do_trato = txt_label(i).cor_fundo;
    destroi_canteiro(i);
    blip_com_voz();
    pl_tr(c);
    btn_sem_horta();
    if (era_do_trato) confere_fim_do_trato(cor_do_trato);
    return true;
}

} // namespace verdalia
