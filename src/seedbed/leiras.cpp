// As leiras: os seus controles e as passadas que os acertam com as tabelas.
#include "data/conselho.h"
#include "data/estado.h"
#include "data/plano.h"
#include "seedbed/controle_da_sementeira.h"
#include "seedbed/tabelas.h"

#include <algorithm>

namespace verdalia {

using namespace sementeira_tabelas;

Retangulo MeiaLeira::realce() const {
    const Retangulo a = lugar(), b = outra->lugar();
    const double topo = std::min(a.y, b.y), base = std::max(a.y + a.altura, b.y + b.altura);
    return {a.x, topo, a.largura, base - topo};
}

void MeiaLeira::pinta(Pintor& p, const Retangulo& r) {
    Figura::pinta(p, r);
    if (pronta) p.contorno(r, 2.5, cor_tra);
}

void controle_da_sementeira::cria_leira(int r) {
    const double esquerda = primeira_coluna + passo_da_coluna * (r % colunas);
    const int bloco = r / colunas;
    MeiaLeira& cresce = CRESCE.cria(r);
    cresce.fica_em({esquerda, topo_do_crescimento[bloco], largura_da_leira, altura_do_crescimento});
    MeiaLeira& muda = Image3.cria(r);
    muda.fica_em({esquerda, topo_da_muda[bloco], largura_da_leira, altura_da_muda});
    cresce.outra = &muda;
    muda.outra = &cresce;
    for (MeiaLeira* metade : {&cresce, &muda}) {
        metade->solta = [this, r](const Arraste& a) { Image3_DragDrop(r, a); };
        metade->clique = [this] { Form_Click(); }; // como no fundo: cala o que se ouve
        metade->so_do_mouse = true;
        metade->dica_viva = [r](double, double) { return situacao_da_leira(r); };
    }
    Rotulo& marca = Label4.cria(r);
    marca.fica_em({esquerda + 30 * twip, muda.topo + 30 * twip, 530 * twip, 225 * twip});
    marca.borda = true;
    marca.visivel = false;
    marca.ponteiro = ponteiro_mao;
    marca.letra = {.corpo = 9, .negrito = true, .cor = preto};
    marca.dica_viva = muda.dica_viva;
    marca.clique = [this, r] { Label4_Click(r); };
}

void controle_da_sementeira::poe_muda(int r, ImagemRef figura) {
    Image3(r).arrasta = figura != nullptr;
    Image3(r).figura = std::move(figura);
}

void controle_da_sementeira::passa_pelas_leiras(bool olha_o_feito) {
    apaga_botoes();
    for (int r = 0; r < n_leiras; ++r) {
        ImagemRef figura = Image3(r).figura;
        std::string caminho; // fica vazio se a cultura não é da sementeira
        for (const BotaoDeCultura& b : culturas)
            if (b.cultura == sem_cod_cult[r]) caminho = dir_media + b.figura;
        troca_figura(figura, caminho);
        poe_muda(r, std::move(figura));
        acende(oper_leira(sem_cod_cult[r], sem_idade[r]), olha_o_feito ? sem_check[r] : std::int16_t{0});
    }
    if (!modo_sem.empty()) leg_sem(modo_sem);
    acende_horta(olha_o_feito);
    CRESCER(todas_as_leiras);
}

void controle_da_sementeira::Monta_sem() {
    passa_pelas_leiras(false);
}

void controle_da_sementeira::Monta_sem2() {
    passa_pelas_leiras(true);
}

void controle_da_sementeira::acende_horta(bool olha_o_feito) {
    Botao& b = Command4(botao_horta);
    const int pendencia = pend_canteiro();
    b.ativo = falta_plantar() || pendencia == 1 || (pendencia == 2 && !olha_o_feito);
    b.cor_fundo = pendencia > 0 || b.ativo ? cor_horta : cor_cinza;
}

bool controle_da_sementeira::leg_sem(const std::string& modo) {
    bool achou = false;
    for (int r = 0; r < n_leiras; ++r) {
        Rotulo& marca = Label4(r);
        marca.visivel = false;
        marca.texto = sem_check[r] == -1 ? "ok" : "";
        if (!Image3(r).figura || modo == "PLS" || oper_leira(sem_cod_cult[r], sem_idade[r]) != modo) continue;
        if (const Trabalho* t = trato(modo)) marca.cor_fundo = t->cor;
        marca.visivel = true;
        achou = true;
    }
    return achou;
}

void controle_da_sementeira::CRESCER(int linha) {
    for (int r = 0; r < n_leiras; ++r) {
        if (linha != todas_as_leiras && linha != r) continue;
        const bool semeada = sem_cod_cult[r] > cult_vago;
        troca_figura(CRESCE(r).figura,
                     dir_media + "\\anima\\cresce" + (semeada ? std::to_string(sem_idade[r]) : "pb") + ".bmp");
        CRESCE(r).pronta = oper_leira(sem_cod_cult[r], sem_idade[r]) == "TR";
    }
}

} // namespace verdalia
