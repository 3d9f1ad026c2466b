// A geometria do tabuleiro, em pixels da figura `horta`.
#pragma once

namespace verdalia {

inline constexpr int lado_da_horta = 10;  // canteiros por fileira e por coluna
inline constexpr int passo_da_horta = 42; // de um canteiro ao seguinte

} // namespace verdalia
