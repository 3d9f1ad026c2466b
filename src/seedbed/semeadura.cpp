// A semeadura: o que falta semear, e o que acontece quando algo arrastado cai na sementeira.
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "seedbed/controle_da_sementeira.h"

#include <algorithm>

namespace verdalia {

namespace {
const std::string um_lote = "1"; // por maior que seja o pedido
}

void controle_da_sementeira::pl_sem(std::int16_t cultura) {
    conta_leiras_novas();
    for (const BotaoDeCultura& b : culturas) {
        if (cultura > cult_vago && b.cultura != cultura) continue;
        Label3(b.k).visivel = false;
        Label3(b.k).texto = nada_a_fazer;
        Des_Liga_sem(b, leiras_a_semear(b.cultura) > 0);
    }
    if (!modo_sem.empty()) leg_sem(modo_sem);
}

void controle_da_sementeira::Des_Liga_sem(const BotaoDeCultura& b, bool falta) {
    if (!auto_abastecido) { // sem pedido, semeia-se o que se quiser
        for (const BotaoDeCultura& outro : culturas) destaca(outro);
    } else if (falta) {
        Label3(b.k).visivel = true;
        Label3(b.k).texto = um_lote;
        destaca(b);
    }
}

void controle_da_sementeira::ocupa_leira(const BotaoDeCultura& b, int Index) {
    sem_cod_cult[Index] = b.cultura;
    sem_nome[Index] = nome_cult[b.cultura];
    sem_idade[Index] = 0;
}

void controle_da_sementeira::Image3_DragDrop(int Index, const Arraste& a) {
    const bool havia_falta =
        std::any_of(Label3.begin(), Label3.end(), [](const auto& rotulo) { return rotulo.second->visivel; });
    falou_nome = false;
    const BotaoDeCultura* botao = cultura_do_botao(a.fonte->nome);
    if (botao == nullptr) return; // uma leira sobre outra
    blip();
    if (Image3(Index).figura) return avisa("Ocupado ...", "Este 'lote' está ocupado");
    poe_muda(Index, carrega_figura(a.fonte->figura->caminho));
    ocupa_leira(*botao, Index);
    blip_com_voz();
    pl_sem(botao->cultura);
    CRESCER(Index);
    if (havia_falta) parabeniza(falta_semear(), "\\anima\\paras.jpg");
}

bool controle_da_sementeira::Form_DragDrop(const Arraste& a) {
    if (a.fonte->nome != Image3.nome) return false;
    const int r = a.fonte->indice;
    if (sem_cod_cult[r] <= cult_vago) return false;
    if (!pergunta("Atenção", "Quer 'excluir' a  muda ?", {.perde_algo = true})) return true;
    blip();
    poe_muda(r, nullptr);
    sem_cod_cult[r] = cult_nenhuma;
    sem_nome[r].clear();
    sem_idade[r] = 0;
    const bool era_do_trato = Label4(r).visivel;
    pl_sem(cult_vago);
    CRESCER(r);
    if (era_do_trato) confere_fim_do_trato(Label4(r).cor_fundo);
    return true;
}

} // namespace verdalia
