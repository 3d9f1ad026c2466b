// O ranking do jogo da memória: os cinco melhores tempos e as cinco menores contas de tentativas.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/botao.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/painel.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

struct rank_form : Tela {
    Matriz<Painel> painel{*this, "painel"};
    // 0 a 4: os tempos; 5 a 9: as tentativas; 10 e 11: os cabeçalhos; 12: o título.
    Matriz<Rotulo> posição{*this, "posição"};
    // Esconde o nome da tela, que está em Tela::nome.
    Matriz<Rotulo> nome{*this, "nome"}; // cppcheck-suppress duplInheritedMember
    Matriz<Rotulo> valor{*this, "valor"};
    Matriz<Rotulo> quando{*this, "quando"};
    Figura enfeite{*this, "enfeite"};
    Matriz<Botao> Label1{*this, "Label1"};
    Temporizador Timer1{*this}; // pisca os lugares novos

    int piscadas = 0;

    rank_form();
    void Form_Load() override;
    void Form_Activate() override { Mostra(); }

    void Mostra();
    void Timer1_Timer();
    void Label1_Click(int Index); // "Zerar", "Retornar"

private:
    void cria_tabela(int primeira, int cabecalho, double topo);
};

} // namespace verdalia
