// Caixa de figura em que se imprime texto numa posição corrente, com tamanho, negrito, sublinhado e cor. Guarda o
// que foi impresso, para pintar nítido em qualquer tamanho de janela.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct CaixaImpressao : Controle {
    using Controle::Controle;

    double pos_x = 0, pos_y = 0; // onde o próximo texto começa, em pixels lógicos da caixa

    // Imprime com `letra` a partir da posição corrente, que avança até o fim do texto.
    void imprime(std::string_view escrito);
    // Volta à margem, uma linha abaixo.
    void nova_linha();
    // Põe uma figura na posição dada.
    void poe_figura(ImagemRef imagem, const Retangulo& onde);
    // Apaga tudo e volta ao canto.
    void limpa();
    double mede(std::string_view escrito) const { return largura_texto(escrito, letra); }
    double mede_linha() const { return altura_linha(letra); }

    void pinta(Pintor& p, const Retangulo& r) override;

private:
    struct Impresso {
        std::string texto;
        Letra letra;
        ImagemRef imagem;
        Retangulo onde;
    };
    std::vector<Impresso> impressos_;
};

} // namespace verdalia
