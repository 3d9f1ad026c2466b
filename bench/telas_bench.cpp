// Medidas das telas, com o pintor de software e sem janela: abrir, pintar em dois tamanhos, acertar o tabuleiro cheio,
// um tique da apresentação; a ajuda de um documento grande; o jogo da memória.
#include "agenda/regras/plano.h"
#include "agenda/regras/relatorio.h"
#include "data/banco.h"
#include "data/estado.h"
#include "data/plano.h"
#include "fabricas.h"
#include "flow/comum/saida.h"
#include "flow/regras/calendario.h"
#include "platform/base/arquivo.h"
#include "platform/base/caminhos.h"
#include "platform/tela/desenho_rpt.h"
#include "platform/tela/laco.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <malloc.h>

namespace {

using namespace verdalia;

struct SemJanela : Hospedeiro {
    explicit SemJanela(int largura, int altura)
        : pontos(SDL_CreateRGBSurfaceWithFormat(0, largura, altura, 32, SDL_PIXELFORMAT_XRGB8888)) {
        esquece_tamanhos();
        hospedeiro = this;
    }
    bool proximo(Evento&) override { return false; }
    bool espera(std::int64_t) override { return false; }
    SDL_Surface* superficie() override { return pontos.get(); }
    void apresenta(const SDL_Rect&) override {}
    void mostra_ponteiro(int) override {}
    void troca_tela_cheia() override {}
    int toca(const std::string&) override { return 0; }

    Superficie pontos;
};

void comeca() {
    static bool pronto = false;
    if (pronto) return;
    pronto = true;
    std::string pasta = (std::filesystem::temp_directory_path() / "verdalia-medidas-XXXXXX").string();
    if (mkdtemp(pasta.data()) == nullptr) std::abort();
    define_pastas(pasta, VERDALIA_PROGRAMA);
    abre_fontes();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
    carrega_tabelas();
    prepara_banco();
    dir_media = "C:";
    primeira_carga = false;
    for (int i = 0; i < n_canteiros; ++i) {
        st_cod_cult[i] = static_cast<std::int16_t>(i % n_culturas + 1);
        st_nome[i] = nome_cult[st_cod_cult[i]];
        st_idade[i] = 2;
    }
}

void pinta_tela(benchmark::State& estado, TelaId tela, int largura, int altura) {
    comeca();
    SemJanela janela(largura, altura);
    mostra(tela);
    pinta_tudo();
    for (auto _ : estado) pinta_tudo();
    descarrega_tudo();
}
BENCHMARK_CAPTURE(pinta_tela, centro_1x, TelaId::INTRONEW, 792, 592);
BENCHMARK_CAPTURE(pinta_tela, centro_4k, TelaId::INTRONEW, 3840, 2160);
BENCHMARK_CAPTURE(pinta_tela, horta_cheia_1x, TelaId::trabalhando_na_horta, 792, 592);
BENCHMARK_CAPTURE(pinta_tela, horta_cheia_4k, TelaId::trabalhando_na_horta, 3840, 2160);

// Da carga ao primeiro quadro pintado, e a despedida.
void visita(benchmark::State& estado, TelaId tela) {
    comeca();
    SemJanela janela(792, 592);
    for (auto _ : estado) {
        mostra(tela);
        pinta_tudo();
        descarrega_tudo();
    }
}
BENCHMARK_CAPTURE(visita, centro, TelaId::INTRONEW)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(visita, horta_com_100_canteiros, TelaId::trabalhando_na_horta)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(visita, feira, TelaId::feira_horta)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(visita, agenda, TelaId::age)->Unit(benchmark::kMillisecond);

// Um clique no planeta da agenda, com a horta cheia: a semana, as listas, as tabelas gravadas e a pintura.
void planeta_na_agenda(benchmark::State& estado) {
    comeca();
    SemJanela janela(largura_logica, altura_logica);
    mostra(TelaId::age);
    auto& agenda = carrega_como<age>(TelaId::age);
    for (auto _ : estado) {
        agenda.previsao_Click();
        pinta_tudo();
        estado.PauseTiming();
        volta_ao_tempo_real();
        estado.ResumeTiming();
    }
    descarrega_tudo();
}
BENCHMARK(planeta_na_agenda)->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(visita, ranking, TelaId::rank_form)->Unit(benchmark::kMillisecond);

// O jogo da memória, das 36 cartas lidas e distribuídas até o primeiro quadro. Limite: 40 ms.
BENCHMARK_CAPTURE(visita, memoria, TelaId::gamedio)->Unit(benchmark::kMillisecond);

// Do clique à carta pintada. Limite: um quadro, 16 ms.
void vira_carta(benchmark::State& estado, int largura, int altura) {
    comeca();
    SemJanela janela(largura, altura);
    mostra(TelaId::gamedio);
    pinta_tudo();
    auto& jogo = carrega_como<gamedio>(TelaId::gamedio);
    int carta = 0;
    for (auto _ : estado) {
        jogo.Timer1.intervalo = 0;
        jogo.figura(carta = (carta + 1) % n_cartas).clique();
        pinta_tudo();
    }
    descarrega_tudo();
}
BENCHMARK_CAPTURE(vira_carta, 1x, 792, 592)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK_CAPTURE(vira_carta, 4k, 3840, 2160)->Unit(benchmark::kMillisecond)->Iterations(200);

// Mil jogos seguidos, sem pedir nome; `bytes` é quanto a memória cresceu depois dos primeiros dez.
void mil_jogos(benchmark::State& estado) {
    comeca();
    SemJanela janela(792, 592);
    mostra(TelaId::gamedio);
    auto& jogo = carrega_como<gamedio>(TelaId::gamedio);
    std::size_t antes = 0;
    int jogados = 0;
    for (auto _ : estado) {
        if (jogados++ == 10) antes = mallinfo2().uordblks;
        jogo.iniciar();
        for (int f = 1; f <= n_pares; ++f) {
            for (int i = 0; i < n_cartas; ++i)
                if (jogo.valor_carta[i] == f) jogo.figura(i).clique();
            while (jogo.Timer1.intervalo != 0) jogo.Timer1_Timer();
        }
        jogo.Timer3.intervalo = 0;
    }
    estado.counters["bytes"] = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(antes);
    descarrega_tudo();
}
BENCHMARK(mil_jogos)->Unit(benchmark::kMillisecond)->Iterations(1000);

void monta_matriz_e_pinta(benchmark::State& estado) {
    comeca();
    SemJanela janela(792, 592);
    mostra(TelaId::trabalhando_na_horta);
    pinta_tudo();
    auto& horta = carrega_como<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    for (auto _ : estado) {
        horta.monta_matriz(0, "");
        pinta_tudo();
    }
    descarrega_tudo();
}
BENCHMARK(monta_matriz_e_pinta)->Unit(benchmark::kMillisecond);

void tique_da_apresentacao(benchmark::State& estado) {
    comeca();
    SemJanela janela(792, 592);
    musica_ligada = true;
    mostra(TelaId::trabalhando_na_horta);
    auto& horta = carrega_como<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    for (auto _ : estado) {
        anim_quadros = 10000;
        horta.animacao.tique();
        pinta_tudo();
    }
    musica_ligada = false;
    descarrega_tudo();
}
BENCHMARK(tique_da_apresentacao)->Unit(benchmark::kMillisecond);

// Do modelo e do banco ao PDF inteiro, com trabalho em todos os canteiros. Limite: 200 ms.
void pdf_de_horta_cheia(benchmark::State& estado) {
    comeca();
    st_cod_cult.fill(cult_couve);
    st_nome.fill(nome_cult[cult_couve]);
    st_idade.fill(22);
    monta_listas();
    prepara_relat();
    for (auto _ : estado) {
        const auto modelo = entende_modelo("relatb.rpt", le_arquivo(*acha("\\relatb.rpt"), 65536));
        benchmark::DoNotOptimize(desenha_relatorio(modelo, nome_banco, hoje()));
    }
}
BENCHMARK(pdf_de_horta_cheia)->Unit(benchmark::kMillisecond);

// A ajuda com um documento de 200 kB: sete tópicos de 30 kB, cada um quase no limite das 500 linhas.
void com_documento_grande() {
    comeca();
    std::string documento;
    for (int topico = 0; topico < 7; ++topico) {
        documento += "###T" + std::to_string(topico) + "\r\n";
        for (const std::size_t fim = documento.size() + 30000; documento.size() < fim;)
            documento +=
                "A ##cenoura|T1~ e o ##rabanete|T2~ guardam comida na raiz. Raiz mexida muitas vezes cresce torta. A "
                "vagem e o pepino têm semente grande, que nasce com força, e a muda nem faz falta.\r\n\r\n";
    }
    grava_arquivo(para_gravar("\\help.Txt"), documento);
    topico_help = "Atividades";
}

// Compila, abre e pinta o primeiro tópico. Limite: 50 ms.
void abre_ajuda_de_200_kB(benchmark::State& estado) {
    com_documento_grande();
    visita(estado, TelaId::help);
}
BENCHMARK(abre_ajuda_de_200_kB)->Unit(benchmark::kMillisecond);

// Rola uma linha e pinta. Limite: 5 ms.
void rola_uma_linha_da_ajuda(benchmark::State& estado) {
    com_documento_grande();
    SemJanela janela(792, 592);
    mostra(TelaId::help);
    pinta_tudo();
    auto& h = carrega_como<help>(TelaId::help);
    for (auto _ : estado) {
        h.TextVScroll.valor = (h.TextVScroll.valor + 1) % h.TextVScroll.maximo;
        h.TextVScroll_Change();
        pinta_tudo();
    }
    descarrega_tudo();
}
BENCHMARK(rola_uma_linha_da_ajuda)->Unit(benchmark::kMillisecond);

} // namespace
