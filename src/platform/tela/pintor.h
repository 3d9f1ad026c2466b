// O pintor: desenha em pixels lógicos (792 × 592) numa superfície de qualquer tamanho, sem deformar.
#pragma once
#include "platform/tela/fontes.h"
#include "platform/tela/imagem.h"

namespace verdalia {

inline constexpr int largura_logica = 792;
inline constexpr int altura_logica = 592;

// Um retângulo em pixels lógicos, que podem ser fracionários.
struct Retangulo {
    double x = 0, y = 0, largura = 0, altura = 0;
    bool contem(double px, double py) const { return px >= x && py >= y && px < x + largura && py < y + altura; }
};

enum class Alinha { esquerda, centro, direita };

struct Pintor {
    // Mede a escala para uma superfície de 32 bits sem transparência.
    explicit Pintor(SDL_Surface* alvo);

    // Escurece as faixas em volta do jogo, quando a janela não tem a proporção dele.
    void pinta_folgas();

    void retangulo(const Retangulo& r, Cor cor);
    // Retângulo cheio de cantos redondos, de raio em pixels lógicos.
    void redondo(const Retangulo& r, double raio, Cor cor);
    // Contorno de cantos redondos: `espessura` para dentro da borda, por cima de `miolo`.
    void moldura(const Retangulo& r, double raio, double espessura, Cor cor, Cor miolo);
    // Só as quatro bordas, sem tocar no meio.
    void contorno(const Retangulo& r, double espessura, Cor cor);
    // O anel em volta do que está em foco, ou do que vai receber um arraste.
    void anel(const Retangulo& r);
    void imagem(Imagem& figura, const Retangulo& r);
    // Uma linha de texto com o canto de cima em (x, y).
    void texto(std::string_view texto, double x, double y, const Letra& letra);
    // Texto quebrado e alinhado dentro do retângulo, centrado na altura; o que não cabe é cortado.
    void texto_em(std::string_view texto, const Retangulo& r, const Letra& letra, Alinha alinha = Alinha::centro);
    // Texto de uma linha, centrado, que diminui até caber no retângulo.
    void texto_que_cabe(std::string_view texto, const Retangulo& r, Letra letra);
    // Limita o desenho ao retângulo; sem argumento, desfaz.
    void recorta(const Retangulo& r);
    void recorta();
    // Só se pinta dentro deste retângulo, e nenhum recorte sai dele.
    void limita(const Retangulo& r);

    double escala = 1; // pixels da janela por pixel lógico
    int folga_x = 0;   // faixa vazia à esquerda, em pixels da janela
    int folga_y = 0;
    SDL_Surface* alvo;
    SDL_Rect area; // o que se pinta, em pixels da janela

    // Da janela para os pixels lógicos.
    double logico_x(int px) const { return (px - folga_x) / escala; }
    double logico_y(int py) const { return (py - folga_y) / escala; }
    SDL_Rect na_janela(const Retangulo& r) const;
};

} // namespace verdalia
