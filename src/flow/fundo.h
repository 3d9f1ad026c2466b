// O fundo: a primeira tela do programa, lisa, que fica por trás de tudo e abre a pergunta da unidade.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

struct fundo : Tela {
    Rotulo nome_do_jogo{*this, "nome_do_jogo"};
    Rotulo lema{*this, "lema"};
    Matriz<Figura> verdura{*this, "verdura"}; // enfeite
    bool primeira_ativacao = false;

    fundo() : Tela("fundo") {}
    void Form_Load() override;
    void Form_Activate() override;
    void pede_fechar() override;
};

} // namespace verdalia
