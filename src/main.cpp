// O programa: abre a janela, entrega a tabela das telas e começa pelo fundo.
#include "fabricas.h"
#include "flow/saida.h"
#include "platform/base/trava.h"
#include "platform/tela/janela.h"
#include "platform/tela/laco.h"

#include <cstdio>
#include <exception>
#include <malloc.h>

using namespace verdalia;

namespace {

int joga() {
    const auto janela = abre_janela("Verdalia");
    hospedeiro = janela.get();
    abre_fontes();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
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
