// As animações das telas: séries de quadros numerados, lidos do disco a cada tique de 100 ms. Uma figura quente não
// age no clique: o clique escolhe a série, e a ação vem quando os quadros acabam. Cada tela traz a sua tabela.
#pragma once
#include "flow/comum/telas.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace verdalia {

inline constexpr int intervalo_da_animacao = 100;
inline constexpr TelaId sem_destino{-1};

// Os arquivos de uma série: `dir_media` + antes + número + depois, ou o que `arquivo` disser do número.
struct Quadros {
    const char* antes = "";
    std::span<const std::int8_t> numeros; // na ordem; do último volta-se ao primeiro
    int algarismos = 2;
    const char* depois = ".bmp";
    std::string (*arquivo)(int numero) = nullptr;
};

// A viagem no fim de uma série: a fala que se ouve inteira e a tela que se abre no lugar desta.
struct Viagem {
    const char* fala = nullptr;
    TelaId destino = sem_destino;
};

// Uma linha por animação da tela.
struct Serie {
    std::int16_t acao;    // valor de `anim_acao`
    const char* controle; // quem mostra os quadros; um botão os põe na face que está à vista
    int indice = -1;      // número do elemento, -1 fora de matriz
    Quadros quadros{};
    std::int16_t do_clique = 0; // quantos quadros um clique mostra; 0: todos, uma vez
    std::int16_t inicio = 1;    // o quadro da lista em que o clique começa, a partir de 1
    bool no_passeio = false;    // gira também na apresentação
    std::int16_t repouso = -1;  // o número que fica no fim; -1: o último mostrado
    Viagem viagem{};
};

// O andamento das séries de uma tela. `anim_acao` e `anim_quadros` dizem qual corre e quantos quadros faltam.
struct Animacao {
    Tela& tela;
    Temporizador& timer_;
    std::span<const Serie> series;
    std::function<void(int acao)> fim{}; // o que a tela faz no fim de uma série sem viagem; pode ser vazia
    std::vector<std::int16_t> contador = std::vector<std::int16_t>(series.size(), 1);
    bool passeio = false; // a apresentação: todas as séries `no_passeio` giram juntas

    // A série em curso, e como estava antes dela quem a mostra.
    const Serie* em_curso = nullptr;
    ImagemRef figura_antes{}, apagada_antes{};
    int ponteiro_antes = ponteiro_normal;

    // Começa a série dessa ação, que tem de estar na tabela; a que corria é cortada.
    void comeca(std::int16_t acao);
    // Corta a série em curso: o controle volta à figura e ao ponteiro de antes dela.
    void para();
    // Corre uma série que no fim leva a outra tela.
    bool saindo() const;
    // Um tique de `timer_`.
    void tique();

private:
    void mostra(const Serie& serie, int numero);
    void acaba(const Serie& serie);
    Controle* quem_mostra(const Serie& serie) const { return tela.controle(serie.controle, serie.indice); }
};

} // namespace verdalia
