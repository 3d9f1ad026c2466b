// O programa: abre a janela, diz que classe está atrás de cada nome de tela e começa pelo fundo.
#include "flow/conf_cd.h"
#include "flow/dialogos.h"
#include "flow/em_construcao.h"
#include "flow/fundo.h"
#include "flow/intronew.h"
#include "flow/saida.h"
#include "platform/base/relogio.h"
#include "platform/base/trava.h"
#include "platform/tela/janela.h"
#include "platform/tela/laco.h"

#include <cstdio>
#include <exception>
#include <malloc.h>

using namespace verdalia;

namespace {

template <class T> std::unique_ptr<Tela> nova() {
    return std::make_unique<T>();
}

constexpr FabricaDeTela fabricas[] = {
    {TelaId::fundo, nova<fundo>},
    {TelaId::Conf_cd, nova<Conf_cd>},
    {TelaId::INTRONEW, nova<INTRONEW>},
    {TelaId::conf, nova<em_construcao>},
    {TelaId::feira_horta, nova<em_construcao>},
    {TelaId::controle_da_sementeira, nova<em_construcao>},
    {TelaId::trabalhando_na_horta, nova<em_construcao>},
    {TelaId::age, nova<em_construcao>},
    {TelaId::help, nova<em_construcao>},
    {TelaId::ok, nova<ok>},
    {TelaId::form_ok_nao, nova<form_ok_nao>},
    {TelaId::ok_help, nova<ok_help>},
};

int joga() {
    const auto janela = abre_janela("Verdalia");
    hospedeiro = janela.get();
    abre_fontes();
    registra_telas(fabricas, sai_do_jogo);
    if (!trava_partida()) {
        avisa("Verdalia", "O jogo já está aberto em outra janela.");
        std::fprintf(stderr, "verdalia: o jogo já está aberto em outra janela\n");
        return 1;
    }
    mostra(TelaId::fundo);
    laco();
    return 0;
}

} // namespace

int main() {
    // As figuras grandes vivem pouco: com o limite fixo, a memória delas volta logo ao sistema.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
    int saiu = 1;
    try {
        saiu = joga();
        recomeca_laco();
    } catch (const std::exception& erro) {
        std::fprintf(stderr, "verdalia: %s\n", erro.what());
        recomeca_laco();
    }
    fecha_fontes();
    return saiu;
}
