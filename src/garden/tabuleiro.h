// A geometria do tabuleiro, em pixels da figura `horta`.
#pragma once
#include <algorithm>

namespace verdalia {

inline constexpr int lado_da_horta = 10;  // canteiros por fileira e por coluna
inline constexpr int passo_da_horta = 42; // de um canteiro ao seguinte

// O canteiro no ponto dado da figura; fora dela, o da borda mais perto.
inline int casa_da_horta(double x, double y) {
    const auto casa = [](double posicao) {
        return std::clamp(static_cast<int>(posicao / passo_da_horta), 0, lado_da_horta - 1);
    };
    return casa(y) * lado_da_horta + casa(x);
}

} // namespace verdalia
