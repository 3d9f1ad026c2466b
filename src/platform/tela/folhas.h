// As folhas A4 de um PDF. Lugares e medidas são em milímetros, a partir do canto de cima, à esquerda; o tamanho das
// letras é em pontos. O texto é UTF-8; o que o Windows-1252 não tem sai como '?'.
#pragma once

#include "platform/tela/pintor.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

struct LetraImpressa {
    double corpo = 11;
    bool negrito = false;
};

struct Folhas {
    // Lança std::runtime_error quando as letras do jogo não podem ser lidas.
    explicit Folhas(const std::string& titulo);
    Folhas(const Folhas&) = delete;
    Folhas& operator=(const Folhas&) = delete;
    ~Folhas();

    static constexpr double largura = 210, altura = 297;

    void nova_folha(); // o que se desenha depois vai nela
    int quantas() const;
    void vai_a(int folha); // a partir de 0

    double mede(std::string_view texto, const LetraImpressa& letra) const;
    // As linhas do texto, quebradas entre palavras para caber na largura.
    std::vector<std::string> quebra(std::string_view texto, const LetraImpressa& letra, double largura) const;
    // Escreve sobre a linha de base `y`, dentro da faixa; o que não cabe nela é escrito menor, nunca cortado.
    void escreve(std::string_view texto, double x, double y, double faixa, LetraImpressa letra,
                 Alinha alinha = Alinha::esquerda);
    // Um traço ou uma moldura com a grossura em pontos; o fundo vai de 0 (preto) a 1 (branco).
    void traco(double x1, double y1, double x2, double y2, double grossura);
    void moldura(const Retangulo& r, double grossura);
    void fundo(const Retangulo& r, double cinza);
    // Uma forma fechada, com contorno e fundo, por curvas de Bézier: o começo e três pontos por curva.
    struct Ponto {
        double x, y;
    };
    void forma(std::span<const Ponto> pontos, double grossura, double cinza);

    // O arquivo pronto; lança std::runtime_error quando não se pôde fazê-lo.
    std::string bytes();

private:
    struct Partes;
    std::unique_ptr<Partes> partes;
};

} // namespace verdalia
