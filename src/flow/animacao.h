// As animações das telas: séries de quadros numerados, lidos do disco a cada tique de 100 ms. Uma figura quente não
// age no clique: o clique escolhe a série, e a ação vem quando os quadros acabam. Cada tela traz a sua tabela.
#pragma once
#include "platform/tela/tela.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace verdalia {

inline constexpr int intervalo_da_animacao = 100;

// Uma linha por animação da tela.
struct Serie {
    std::int16_t acao;    // valor de `anim_acao`
    const char* controle; // quem mostra os quadros
    int indice;           // número do elemento, -1 fora de matriz
    const char* antes;    // o arquivo é `dir_media` + antes + número + depois
    int algarismos;
    const char* depois;
    std::span<const std::int8_t> quadros; // os números, na ordem em que aparecem; `anim_quadros` começa no total
};

// O caminho do quadro `numero` da série.
std::string arquivo_do_quadro(const Serie& serie, int numero);

// Começa a série da tabela que tem essa ação.
void comeca_animacao(std::span<const Serie> series, std::int16_t acao, Temporizador& timer_);
// Um tique de `timer_`: mostra o próximo quadro da ação em curso ou, acabados, para o relógio e chama `fim`.
void tique_da_animacao(Tela& tela, std::span<const Serie> series, Temporizador& timer_,
                       const std::function<void(int acao)>& fim);

} // namespace verdalia
