#include "flow/comum/saida.h"

#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "flow/regras/calendario.h"
#include "platform/tela/laco.h"

#include <cstdio>

namespace verdalia {

namespace {

bool ja_decidiu = false; // o jogador já disse se salva, e só falta ver as pendências

bool ha_pendencias() {
    return falta_plantar() || pend_canteiro() == 1 || pend_leira() == 1 || falta_semear();
}

void grava_tudo() {
    // Sem a data, a próxima partida envelheceria a horta outra vez.
    data_por_gravar ? grava_semana(std::chrono::floor<std::chrono::days>(data_hoje)) : grava_canteiros();
    data_por_gravar = false;
    guarda_copia();
}

// false quando não se pôde gravar: o jogo então fica aberto, com tudo na memória.
bool grava_se_quer() {
    pergunta_gravar();
    return !resposta_sim ||
           tenta_no_banco("Gravar alterações", "Nada se perdeu: o jogo continua aberto, e você pode tentar de novo.",
                          grava_tudo);
}

void faz_as_perguntas() {
    fala("\\s1.wav", sem_esperar);
    if (!pergunta("Saindo ...", "Deseja sair")) {
        fala("\\s3.wav", espera_o_fim);
        return;
    }
    fala("\\s2.wav", sem_esperar);
    if (!grava_se_quer()) return;
    volta_ao_tempo_real(); // o que está por fazer é o de hoje, e não o de uma previsão
    ja_decidiu = true;
    if (ha_pendencias()) mostra_quadro("Pendências", "\\anima\\noaca.jpg");
    ja_decidiu = false;
    termina();
}

} // namespace

void pergunta_gravar() {
    pergunta("Gravar alterações", "Deseja salvar ?");
}

void sai_do_jogo() {
    na_saida = true;
    faz_as_perguntas();
    na_saida = false;
}

bool grava_ja() {
    try {
        if (!primeira_carga && !ja_decidiu) grava_tudo();
    } catch (const ErroBanco& erro) {
        std::fprintf(stderr, "verdalia: a horta não foi gravada: %s\n", erro.what());
        return false;
    }
    return true;
}

} // namespace verdalia
