// O motor do hipertexto: faz de um documento de texto dois arquivos de registros, acha um tópico, quebra o seu texto em
// linhas para a largura de um quadro, imprime-as e lembra onde ficou cada ligação. Não conhece tela: quem mede e
// imprime é o quadro que lhe dão. Os textos daqui são os bytes do documento, em Windows-1252.
#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace verdalia {

inline constexpr int max_topicos = 99, max_linhas = 500, max_ligacoes = 100;
inline constexpr std::size_t tamanho_texto = 128;                    // de um pedaço de texto, ou do nome de um tópico
inline constexpr std::size_t tamanho_registro = tamanho_texto + 4;   // e um inteiro de 32 bits, do byte menor ao maior
inline constexpr std::size_t maior_documento = std::size_t{4} << 20; // bytes

struct Indice {
    std::string topico;
    std::int32_t inicio = 0; // o registro do fim do texto; 0: não há texto
};

// Onde uma ligação ficou no quadro, na escala dele, e aonde leva.
struct Zona {
    std::int16_t esq = 0, topo = 0, dir = 0, base = 0;
    std::string alvo;
};

// A caixa em que se imprime: 1/15 de pixel lógico é a unidade de todas as medidas. Imprime na posição x, y, que anda.
struct Quadro {
    virtual ~Quadro() = default;

    double x = 0, y = 0;
    double corpo = 9; // em pontos
    bool negrito = false, sublinhado = false;
    bool vermelho = false; // a cor das ligações; senão, azul

    virtual double largura_do_texto(std::string_view texto) = 0;
    virtual double altura_da_linha() = 0;
    virtual double largura_interna() = 0;
    virtual double altura_interna() = 0;
    virtual void imprime(std::string_view texto) = 0; // e anda com x até o fim do texto
    virtual void limpa() = 0;                         // apaga tudo, e volta ao canto
    void acaba_linha() {
        x = 0;
        y += altura_da_linha();
    }
};

inline std::ifstream arq_htf, arq_idx;
inline bool arquivos_abertos = false;
inline std::array<Indice, max_topicos + 1> indice; // de 1 a n_topicos
inline int n_topicos = 0;
inline std::array<std::string, max_linhas + 1> linhas; // 0 é o título, 1 fica vazia, o texto começa na 2
inline std::int16_t n_linhas = 0, primeira_linha = 0;
inline std::array<Zona, max_ligacoes + 1> zonas; // a partir de 1
inline int n_zonas = 0, zona_aberta = 1, n_zonas_tela = 0;
inline float y_atual = 0;
inline std::string topico_atual;

// Faz de `fonte`, um caminho do jogo, os arquivos .HTF e .IDX da pasta do jogador; o nome deles é `fonte` até o
// primeiro ponto. Lança std::runtime_error, com a explicação, quando não se pode ler ou gravar. Do tópico 100 em diante
// nada entra.
void compila_texto(std::string_view fonte);
// Abre os dois arquivos, com o nome cortado como acima, e lê o índice. Lança std::runtime_error quando faltam.
void abre_hipertexto(std::string_view nome);
void fecha_hipertexto();

// O texto de um tópico; "" quando não há. Uma corrente estragada acaba onde se estragou.
std::string texto_do_topico(std::string_view topico);
// Tira a próxima palavra de `s`: a que começa em "#" vai até o "~", as outras até o branco, inclusive. "" é o fim do
// texto: não sobrou nada, ou um "#" sem "~" depois.
std::string_view proximo_termo(std::string_view& s);
// Separa "##rótulo|alvo~". Falso numa ligação malfeita, que se mostra como texto: sem "|", sem rótulo ou alvo, ou que
// passa por cima de um parágrafo ou de outra ligação.
bool le_ligacao(std::string_view termo, std::string_view& rotulo, std::string_view& alvo);
// Põe o tópico em `linhas`, com as marcas das ligações, e devolve quantas são. As que passam de 500 ficam de fora.
int quebra_linhas(std::string_view topico, Quadro& quadro);

// Imprime a partir da linha `primeira` até a `total` ou o pé do quadro, e refaz as zonas.
void desenha_linhas(Quadro& quadro, int primeira, int total);
// Acaba a linha impressa, e com ela as zonas.
void nova_linha(Quadro& quadro);
// O alvo da ligação sob o ponto; "" quando não há. A beira não é da zona.
std::string zona_em(double x, double y);
bool sobre_zona(double x, double y);

} // namespace verdalia
