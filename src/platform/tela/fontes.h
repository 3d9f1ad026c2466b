// As letras do jogo: Andika nas legendas e títulos, Liberation Sans nas mensagens e textos de leitura.
#pragma once
#include "platform/tela/cores.h"

#include <SDL_ttf.h>
#include <string>
#include <string_view>
#include <vector>

namespace verdalia {

enum class Familia { leitura, legenda };

// Como um texto se escreve. `corpo` em pontos (1 ponto = 4/3 de pixel lógico).
struct Letra {
    Familia familia = Familia::leitura;
    double corpo = 12;
    bool negrito = false;
    bool sublinhado = false;
    Cor cor = cor_tinta;
};

// Abre a biblioteca de letras e confere os arquivos de letras; lança std::runtime_error com o nome do que falta ou está
// estragado.
void abre_fontes();
// Fecha tudo o que foi aberto. Pode ser chamada mais de uma vez.
void fecha_fontes();
// A letra pronta na escala dada (pixels por pixel lógico). Vale até a próxima chamada.
TTF_Font* fonte(const Letra& letra, double escala);
// Solta as letras das escalas que já não se usam; chamada quando a janela muda de tamanho.
void esquece_tamanhos();

// Medidas em pixels lógicos, iguais em qualquer tamanho de janela: as linhas quebram sempre nos mesmos lugares.
double largura_texto(std::string_view texto, const Letra& letra);
double altura_linha(const Letra& letra);
// Quebra em linhas que cabem em `largura`; "\n" quebra sempre; palavra maior que a largura se parte.
std::vector<std::string> quebra_linhas(std::string_view texto, const Letra& letra, double largura);

} // namespace verdalia
