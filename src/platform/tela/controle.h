// O controle: o que toda peça de uma tela tem em comum. As propriedades são públicas e escritas à vontade;
// depois de cada evento tratado a tela é pintada inteira.
#pragma once
#include "platform/tela/pintor.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace verdalia {

struct Tela;
struct Controle;

// Um pixel lógico tem 15 twips; posições podem ser fracionárias.
inline constexpr double twip = 1.0 / 15;

// Ponteiros do mouse, pelos números do jogo.
inline constexpr int ponteiro_normal = 0;
inline constexpr int ponteiro_seta = 1;
inline constexpr int ponteiro_cruz = 2;
inline constexpr int ponteiro_ampulheta = 11;
inline constexpr int ponteiro_horta = 98;
inline constexpr int ponteiro_mao = 99;

// Botões do mouse em `botao`: 1 esquerdo, 2 direito, 4 do meio.
struct Mouse {
    int botao = 1;
    double x = 0, y = 0; // em pixels lógicos do controle
};

// Uma tecla apertada, com as que a modificam.
struct Tecla {
    int codigo = 0; // SDL_Keycode
    bool maiuscula = false, ctrl = false, alt = false;
};

// Um arraste que passa ou cai: quem foi arrastado e onde, em pixels lógicos do controle de baixo.
struct Arraste {
    Controle* fonte = nullptr;
    double x = 0, y = 0;
};

// Casas iguais dentro de um controle grande: o realce do arraste e o teclado andam por elas.
struct Grade {
    int colunas = 0, linhas = 0;
    double passo_x = 0, passo_y = 0;
};

struct Controle {
    // Entra na tela por cima dos que já lá estão. `indice` é o número do elemento de uma matriz, -1 fora dela.
    Controle(Tela& dona, std::string nome, int indice = -1);
    virtual ~Controle();
    Controle(const Controle&) = delete;
    Controle& operator=(const Controle&) = delete;

    Tela& dona;
    std::string nome;
    int indice;
    Controle* pai = nullptr; // a posição conta a partir do canto dele; nulo: do canto da tela

    double esquerda = 0, topo = 0, largura = 0, altura = 0;
    bool visivel = true;
    bool ativo = true;
    bool arrasta = false;         // apertar começa um arraste
    bool atravessa = false;       // enfeite: o mouse passa para o que está por baixo
    bool so_do_mouse = false;     // o clique é só do mouse: o teclado só para aqui se houver o que arrastar
    bool cliques_rapidos = false; // o segundo aperto de um clique duplo também vale
    int ponteiro = ponteiro_normal;
    std::string texto;
    std::string dica;
    std::function<std::string(double x, double y)> dica_viva; // a dica que muda, no ponto dado do controle
    ImagemRef figura;
    Cor cor_fundo = cor_transparente;
    Letra letra;
    Grade grade;

    std::function<void()> clique;
    std::function<void(const Mouse&)> botao;   // um botão do mouse foi solto; Enter, + e - do teclado também chegam
    std::function<void(const Arraste&)> solta; // um arraste caiu aqui
    std::function<void(const Arraste&)> sobre; // um arraste passa por cima
    std::function<bool(const Tecla&)> tecla;   // true: a tecla foi tratada e não segue
    std::function<void()> muda;                // o jogador mudou o valor
    std::function<void()> perde_foco;

    // O lugar na tela, contados os pais; `fica_em` o muda, a partir do canto do pai.
    Retangulo lugar() const;
    void fica_em(const Retangulo& onde);
    // O que se acende quando um arraste passa por cima.
    virtual Retangulo realce() const { return lugar(); }
    bool a_vista() const;
    // O foco do teclado pode parar aqui.
    virtual bool interage() const;
    // As letras que se digitam são dele, e não atalhos.
    virtual bool recebe_texto() const { return false; }

    virtual void pinta(Pintor& p, const Retangulo& r);
    // O que passa por cima de tudo, como a lista aberta; só do controle em foco.
    virtual void pinta_por_cima(Pintor&) {}
    // A parte que se abre por cima das outras e também recebe o mouse; vazia quando não há nada aberto.
    virtual Retangulo aberta() const { return {}; }
    // Mouse, em pixels da tela; `aciona` é o clique completo ou Enter.
    virtual void aperta(double, double) {}
    virtual void move(double, double) {}
    virtual void aciona();
    virtual void roda(int) {}
    virtual bool teclado(const Tecla&) { return false; }
    virtual void escreve(const std::string&) {}
    virtual void fecha_aberta() {}

protected:
    bool em_foco() const;
    bool sob_o_mouse() const;
    bool apertado() const;
};

// Relógio de uma tela: dispara a cada `intervalo` milissegundos; 0 é parado. Só anda com a tela à vista.
struct Temporizador {
    explicit Temporizador(Tela& dona);
    ~Temporizador();
    Temporizador(const Temporizador&) = delete;
    Temporizador& operator=(const Temporizador&) = delete;

    Tela& dona;
    int intervalo = 0;
    std::function<void()> dispara;
    const Controle* so_muda = nullptr; // o único controle que um disparo muda; nulo: pode mudar a tela toda

    // Do laço: a hora do próximo disparo e o intervalo com que ela foi calculada.
    std::int64_t proximo = 0;
    int intervalo_visto = 0;
    bool disparando = false;
};

} // namespace verdalia
