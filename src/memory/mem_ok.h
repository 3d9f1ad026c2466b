// O jogo entrou no ranking: o diálogo pede o nome, que fica em `nome_jogador`.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/botao.h"
#include "platform/tela/caixa_texto.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

#include <functional>

namespace verdalia {

// Uma caixa em que cada tecla passa antes por `ao_teclar`, que diz se ela vale.
struct CaixaDoNome : CaixaTexto {
    using CaixaTexto::CaixaTexto;

    std::function<bool()> ao_teclar;
    std::function<void()> enter;

    bool teclado(const Tecla& t) override;
    void escreve(const std::string& letras) override;
};

struct mem_ok : Tela {
    Figura Image1{*this, "Image1"};
    Matriz<Rotulo> mensagem{*this, "mensagem"};
    CaixaDoNome Text1{*this, "Text1"};
    Rotulo apaga{*this, "apaga"}; // o "×" dentro da caixa
    Botao opções{*this, "opções"};

    mem_ok() : Tela("mem_ok") {}
    void Form_Load() override;
    void Form_Activate() override;
    void pede_fechar() override { opções_Click(); } // Esc e o fecho da janela: o jogo fica com o nome que houver

    bool Text1_KeyPress(); // falso: a tecla não vale
    void apaga_Click();
    void opções_Click();
};

} // namespace verdalia
