// O controle de relatório: dado um arquivo .rpt da pasta do programa, imprime-o a partir do banco da partida.
#pragma once

#include "platform/base/relogio.h"

#include <string>

namespace verdalia {

// Onde um relatório foi parar, e a frase que o conta ao jogador.
struct Impresso {
    enum Onde { na_impressora, no_visor, so_guardado, em_lugar_nenhum };
    Onde onde = em_lugar_nenhum;
    std::string frase;
};

struct Relatorio {
    std::string arquivo; // "\relatb.rpt"
    std::string guarda;  // o começo do nome do PDF: "semana" dá "\relatorios\semana 2026-10.pdf"

    // Desenha o relatório da semana em que está `dia` com o que as tabelas de `banco` ("\hortas00.mdb") têm no disco,
    // guarda-o como PDF na pasta do jogador e o entrega à impressora; se ela não o quer, ao visor do sistema. Nunca
    // lança: o que der errado está na frase.
    Impresso imprime(const std::string& banco, Dia dia) const;

    // O caminho do jogo em que o PDF dessa semana fica. O ano é o do dia, como o da semana.
    std::string pdf(Dia dia) const;
};

} // namespace verdalia
