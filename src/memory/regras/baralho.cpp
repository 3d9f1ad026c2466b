#include "memory/regras/baralho.h"

#include <algorithm>
#include <limits>
#include <random>

namespace verdalia {

namespace {

// `acaso` na forma que a biblioteca pede. Sem gerador com semente: há mais arrumações do que sementes.
struct FonteDeSorte {
    using result_type = std::uint32_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() const { return acaso(); }
};

} // namespace

std::uint32_t acaso_do_sistema() {
    static std::random_device sistema;
    return sistema();
}

Baralho baralha() {
    Baralho cartas;
    for (int i = 0; i < n_cartas; ++i) cartas[i] = static_cast<std::int16_t>(i / 2 + 1);
    std::shuffle(cartas.begin(), cartas.end(), FonteDeSorte{});
    return cartas;
}

} // namespace verdalia
