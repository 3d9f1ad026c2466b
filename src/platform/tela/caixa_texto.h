// Caixa de texto de uma linha, UTF-8. `travada` mostra e não deixa escrever.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct CaixaTexto : Controle {
    using Controle::Controle;

    int maximo = 0; // letras que cabem; 0 é sem limite
    bool travada = false;
    Alinha alinha = Alinha::esquerda;

    bool interage() const override { return ativo && a_vista() && (!travada || clique); }
    bool recebe_texto() const override { return !travada; }
    void aperta(double x, double y) override;
    bool teclado(const Tecla& t) override;
    void escreve(const std::string& letras) override;
    void pinta(Pintor& p, const Retangulo& r) override;

private:
    std::size_t cursor_ = 0; // em bytes, sempre no começo de uma letra
};

// Uma caixa que pergunta antes de cada tecla sua se ela vale: `filtro` ainda vê o texto de antes. Enter, se vale, chama
// `enter`. Um texto que chega de uma vez passa letra por letra; Tab e as setas para cima e para baixo não são da caixa.
struct CaixaFiltrada : CaixaTexto {
    using CaixaTexto::CaixaTexto;

    std::function<bool()> filtro;
    std::function<void()> enter;

    bool teclado(const Tecla& t) override;
    void escreve(const std::string& letras) override;
};

} // namespace verdalia
