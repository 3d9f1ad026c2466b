// Um botão: de texto ("&" marca a letra de atalho), ou gráfico, com uma face para ativo e outra para apagado, a
// cor de fundo em volta e o texto embaixo.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct Botao : Controle {
    Botao(Tela& dona, std::string nome, int indice = -1);

    ImagemRef figura_apagada; // a face de quando `ativo` é false; `figura` é a outra

    void pinta(Pintor& p, const Retangulo& r) override;

private:
    void pinta_grafico(Pintor& p, const Retangulo& r, Imagem& face, bool afundado);
};

} // namespace verdalia
