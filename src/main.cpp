// O programa: abre a janela, entrega a tabela das telas e começa pelo fundo.
#include "fabricas.h"
#include "flow/comum/saida.h"
#include "platform/base/trava.h"
#include "platform/tela/janela.h"
#include "platform/tela/laco.h"

#include <SDL.h>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <malloc.h>

using namespace verdalia;

namespace {

int joga() {
    abre_fontes();
    registra_telas(fabricas_do_jogo, sai_do_jogo, grava_ja);
    std::string recusa;
    try {
        if (!trava_partida()) recusa = "O jogo já está aberto em outra janela.";
    } catch (const std::runtime_error& erro) {
        recusa = erro.what(); // a pasta do jogador não pode ser usada
    }
    if (!recusa.empty()) {
        std::fprintf(stderr, "verdalia: %s\n", recusa.c_str());
        avisa("Verdalia", recusa);
        return 1;
    }
    mostra(TelaId::fundo);
    laco();
    return terminou_com_falha() ? 1 : 0;
}

} // namespace

int main() {
    // As figuras grandes vivem pouco: com o limite fixo, a memória delas volta logo ao sistema.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
    int saiu = 1;
    std::unique_ptr<Hospedeiro> janela; // vive mais que as telas, que ao sair ainda lhe podem pedir algo
    try {
        janela = abre_janela("Verdalia");
        hospedeiro = janela.get();
        saiu = joga();
    } catch (const std::exception& erro) {
        std::fprintf(stderr, "verdalia: %s\n", erro.what());
        SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_ERROR, "Verdalia", erro.what(), nullptr);
    }
    recomeca_laco();
    janela.reset();
    fecha_fontes();
    std::exit(saiu); // num navegador main já tinha voltado, ao esperar pela primeira vez
}
