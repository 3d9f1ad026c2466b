// Quanto custam as regras e a gravação. Limites: cem anos de semanas em 5 ms, uma gravação com seu fsync em 20 ms,
// como as oito listas da agenda com as tabelas do relatório.
#include "agenda/regras/plano.h"
#include "agenda/regras/relatorio.h"
#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "flow/regras/calendario.h"
#include "platform/base/caminhos.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace verdalia {

namespace {

// Todos os canteiros e leiras ocupados, e um pedido para cada cultura.
void enche() {
    carrega_tabelas();
    for (std::int16_t i = 0; i < n_canteiros; ++i) {
        const auto c = static_cast<std::int16_t>(i % n_culturas + 1);
        st_cod_cult[i] = c;
        st_nome[i] = nome_cult[c];
        st_idade[i] = 0;
        st_last_i_cu[i] = st_last_last_i_cu[i] = cult_alface;
    }
    for (std::int16_t i = 0; i < n_leiras; ++i) {
        const auto c = static_cast<std::int16_t>(i % 6 + 1);
        sem_cod_cult[i] = c;
        sem_nome[i] = nome_cult[c];
        sem_idade[i] = 0;
    }
    for (std::int16_t c = 1; c <= n_culturas; ++c) seq_pedido[c] = 1;
}

void trato_do_canteiro(benchmark::State& estado) {
    enche();
    std::int16_t idade = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(oper_canteiro(cult_couve, idade));
        idade = static_cast<std::int16_t>((idade + 1) % 24);
    }
}
BENCHMARK(trato_do_canteiro);

void plano_de_todas_as_culturas(benchmark::State& estado) {
    enche();
    for (auto _ : estado) {
        conta_canteiros_novos();
        for (std::int16_t c = 1; c <= n_culturas; ++c) benchmark::DoNotOptimize(celula_plano(c));
    }
}
BENCHMARK(plano_de_todas_as_culturas);

void falta_semear_algo(benchmark::State& estado) {
    enche();
    for (auto _ : estado) benchmark::DoNotOptimize(falta_semear());
}
BENCHMARK(falta_semear_algo);

void oito_listas_de_horta_cheia(benchmark::State& estado) {
    enche();
    for (auto _ : estado) monta_listas();
}
BENCHMARK(oito_listas_de_horta_cheia)->Unit(benchmark::kMicrosecond);

// Uma horta que não se esvazia: cada cultura volta à primeira semana antes de chegar ao fim.
void uma_semana_de_horta_cheia(benchmark::State& estado) {
    enche();
    int semana = 0;
    for (auto _ : estado) {
        passa_semana();
        if (++semana % 4 != 0) continue;
        st_idade.fill(0);
        sem_idade.fill(0);
    }
}
BENCHMARK(uma_semana_de_horta_cheia);

void cem_anos(benchmark::State& estado) {
    for (auto _ : estado) {
        estado.PauseTiming();
        enche();
        estado.ResumeTiming();
        for (int semana = 0; semana < 5218; ++semana) passa_semana();
    }
}
BENCHMARK(cem_anos)->Unit(benchmark::kMillisecond);

// Uma pasta de verdade, no disco onde o programa roda, com um banco novo.
struct Pasta {
    std::filesystem::path raiz;
    Pasta() {
        std::string modelo = (std::filesystem::current_path() / "medidas-XXXXXX").string();
        if (mkdtemp(modelo.data()) == nullptr) std::abort();
        raiz = modelo;
        define_pastas(raiz / "jogador", raiz / "instalada");
        enche();
        prepara_banco();
    }
    ~Pasta() { std::filesystem::remove_all(raiz); }
};

void gravacao(benchmark::State& estado, void (*grava)()) {
    const Pasta pasta;
    for (auto _ : estado) grava();
}
BENCHMARK_CAPTURE(gravacao, grava_canteiros, grava_canteiros)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(gravacao, grava_semana, [] { grava_semana(hoje()); })->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(gravacao, listas_e_relatorio,
                  [] {
                      monta_listas();
                      prepara_relat();
                  })
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(gravacao, prepara_e_le,
                  [] {
                      prepara_banco();
                      le_canteiros();
                      le_pedido();
                  })
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Um arquivo da pasta instalada, escrito com as maiúsculas certas, entre 400 outros.
void acha_um_arquivo(benchmark::State& estado) {
    const Pasta pasta;
    std::filesystem::create_directories(pasta.raiz / "instalada" / "anima");
    for (int i = 0; i < 400; ++i)
        std::ofstream(pasta.raiz / "instalada" / "anima" / ("quadro" + std::to_string(i) + ".bmp")) << i;
    for (auto _ : estado) benchmark::DoNotOptimize(acha("C:\\anima\\quadro200.bmp"));
}
BENCHMARK(acha_um_arquivo)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace verdalia
