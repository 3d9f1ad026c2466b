// A agenda: o trabalho da semana em oito listas, que também se imprimem. Aqui nada se faz na horta: as figuras contam o
// que há, e o trabalho é na tela da horta e na da sementeira.
#pragma once
#include "agenda/regras/plano.h"
#include "flow/comum/tela_de_trabalho.h"
#include "platform/tela/barra.h"

namespace verdalia {

// O quadro de uma lista: o papel com as suas pautas. A roda do mouse sobre ele rola a lista.
struct QuadroDeLista : Figura {
    using Figura::Figura;
    BarraRolagem* barra = nullptr;

    void roda(int passos) override { barra->roda(passos); }
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct ListaDaAgenda; // uma linha da tabela das listas

// Os controles de uma lista: dez linhas de até três colunas, com a barra.
struct ListaNaTela {
    ListaNaTela(Tela& tela, const ListaDaAgenda& tabela);

    QuadroDeLista quadro;
    Figura trato; // a figura da tarefa
    Matriz<Rotulo> cultura, aonde, aonde_sem;
    BarraRolagem barra;
};

struct age : TelaDeTrabalho {
    age();

    Figura pic_semen{*this, "pic_semen"};
    Figura pic_horta{*this, "pic_horta"};
    Figura pic_imp{*this, "pic_imp"};
    Matriz<Rotulo> Label1{*this, "Label1"};            // os títulos das listas, 1 a 9; não há o 4
    Matriz<Figura> PLS3{*this, "PLS3"};                // as marcas das colunas da sementeira
    Matriz<Figura> canteiro{*this, "canteiro"};        // e das da horta, 1 a 8; não há o 3
    std::vector<std::unique_ptr<ListaNaTela>> na_tela; // na ordem de Lista

    void Form_Load() override;
    void Form_Activate() override;

    void pict_inicial();
    void final_animation() override; // final_animation_3
    // Mostra as linhas da lista a partir da de número `inicio`.
    void monta(Lista lista, int inicio);
    // As listas, as barras e as tabelas do relatório, para a semana mostrada.
    void refaz_listas();

    void trato_Click(const ListaDaAgenda& tabela);
    void pic_semen_Click();
    void pic_horta_Click();
    void pic_imp_Click();

    void mudou_semana(bool adiante) override;
    void acabou_passeio() override {}

private:
    void cria_lista(const ListaDaAgenda& tabela);
    void fim_da_animacao(int acao);
};

} // namespace verdalia
