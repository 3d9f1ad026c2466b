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

void blip_com_voz() {
    if (som_ligado) efeito("\\blip.wav", espera_o_fim);
}

// Pergunta quando a cultura é da família de outra que já terminou ali; -1 não é nenhuma.
void pergunta_se_repete_familia(std::int16_t anterior, std::int16_t cod_cult) {
    if (anterior < 0 || familia_cult[anterior] != familia_cult[cod_cult]) return;
    pergunta("Regra de Rotação", "Esta verdura pertence à mesma família botânica da verdura que ocupava este "
                                 "canteiro. Você deseja plantar assim mesmo ?");
}

void poe_no_canteiro(int i, std::int16_t cod_cult) {
    st_cod_cult[i] = cod_cult;
    st_nome[i] = nome_cult[cod_cult];
    st_idade[i] = 0;
}

int casa(double posicao) {
    return std::clamp(static_cast<int>(posicao / passo_da_horta), 0, lado_da_horta - 1);
}

} // namespace

void trabalhando_na_horta::horta_DragDrop(const Arraste& a) {
    const bool havia_direto = legenda_pede_semente();
    const BotaoDeCultura* botao = cultura_do_botao(a.fonte->nome);
    if (botao == nullptr) return;
    const int i = casa(a.y) * lado_da_horta + casa(a.x);
    // A figura não enche a casa: o que cai na fresta de um canteiro plantado cai nele.
    if (st_cod_cult[i] > cult_vago) return cant_DragDrop(a);

    efeito("\\blip.wav", espera_o_fim);
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
    pergunta_se_repete_familia(st_last_i_cu[i], cod_cult);
    pergunta_se_repete_familia(st_last_last_i_cu[i], cod_cult); // a última resposta decide
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

void trabalhando_na_horta::Form_DragDrop(const Arraste& a) {
    if (a.fonte->nome != "cant") return;
    const int i = a.fonte->indice;
    const std::int16_t c = st_cod_cult[i];
    if (!pergunta("Atenção ...", "Confirma que quer 'excluir' essa verdura ?")) return;
    efeito("\\blip.wav", espera_o_fim);
    st_cod_cult[i] = cult_nenhuma;
    st_nome[i].clear();
    st_idade[i] = 0;
    destroi_canteiro(i);
    blip_com_voz();
    pl_tr(c);
    btn_sem_horta();
}

} // namespace verdalia
