// O baralho do jogo da memória: dezoito pares, baralhados.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

namespace verdalia {

inline constexpr std::int16_t n_pares = 18;
inline constexpr int n_cartas = 2 * n_pares; // seis fileiras de seis; índice = fileira vezes 6 mais coluna

// A figura de cada carta, de 1 a `n_pares`; cada uma está em exatamente duas.
using Baralho = std::array<std::int16_t, n_cartas>;

// De onde vem o acaso, 32 bits de cada vez: do sistema. Quem quer sempre as mesmas cartas põe outro.
std::uint32_t acaso_do_sistema();
inline std::function<std::uint32_t()> acaso = acaso_do_sistema;

// Um baralho novo; todas as arrumações são igualmente prováveis.
Baralho baralha();

} // namespace verdalia
