// A energia acaba, ou o disco falha, no meio de uma partida inteira: a semana que passa, a impressão, a gravação.
#include "flow/regras/calendario.h"
#include "platform/base/disco_de_teste.h"
#include "roteiro.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>

namespace verdalia {
namespace {

struct FaltaDeLuz : PartidaNaTela {
    FaltaDeLuz() {
        prepara_banco();
        for (std::int16_t i = 0; i < n_canteiros; ++i) planta(i, static_cast<std::int16_t>(i % n_culturas + 1), 2);
        for (std::int16_t r = 0; r < n_leiras; ++r) semeia(r, cult_berinjela, static_cast<std::int16_t>(r % 9));
        seq_pedido[cult_nabo] = 3;
        grava_semana(hoje() - std::chrono::days{21});
        guarda_copia();
    }
    static std::string tudo(Dia quando) { return sem_nomes() + texto_iso(quando); }
    static std::string no_disco() {
        seq_pedido.fill(0);
        le_canteiros();
        le_pedido();
        return tudo(le_data_semana());
    }
    static void trabalha() {
        st_check.fill(-1);
        seq_pedido[cult_nabo] = 1;
    }
    // Do começo ao fim: três semanas passam, imprime-se o relatório e trabalha-se.
    Roteiro& partida_inteira() {
        roteiro.clica("Command1").quadro("Nova Semana").clica("pic_agenda").espera_ms(1400).clica("pic_imp");
        roteiro.espera_ms(850).clica("opções", 0).esta_em("ok").clica("opções").clica("hortelino").espera_ms(1700);
        return roteiro.esta_em("INTRONEW").confere(trabalha);
    }
    Roteiro& sai_e_salva() { return roteiro.clica("saida").espera_ms(1050).teclas({SDLK_s, SDLK_s}); }
    std::string relatorio() const {
        return consulta(arquivo, "SELECT count(*) FROM relat UNION ALL SELECT count(*) FROM mapa_horta");
    }
};

// Uma partida noutro processo, que morre na escrita `morre_em`, ou passados `morre_em_us`.
TEST_F(FaltaDeLuz, FicaSempreUmEstadoInteiroENenhumaSemanaPassaDuasVezes) {
    const std::string antes = no_disco(), bytes = conteudo(arquivo), sem_relatorio = relatorio();
    for (int s = 0; s < 3; ++s) passa_semana();
    const std::string passada = tudo(hoje());
    trabalha();
    const std::string salva = tudo(hoje());
    const auto joga_e_morre = [&](int morre_em, int morre_em_us) {
        std::filesystem::remove_all(jogador);
        escreve(arquivo, bytes);
        int canal[2];
        EXPECT_EQ(pipe(canal), 0);
        const pid_t outro = fork();
        if (outro == 0) {
            DiscoDeTeste disco;
            disco.mata = true;
            disco.falha_em = morre_em;
            setenv("PATH", "/nao/ha/nada", 1);
            recomeca_laco();
            partida_inteira();
            sai_e_salva().tecla(SDLK_ESCAPE);
            joga();
            EXPECT_EQ(disco.por_descarregar, 0); // o que se confirma já não está só na memória
            _exit(write(canal[1], &disco.chamadas, sizeof disco.chamadas) > 0 && !HasFailure() ? 0 : 1);
        }
        close(canal[1]);
        if (morre_em_us >= 0) {
            usleep(static_cast<useconds_t>(morre_em_us));
            kill(outro, SIGKILL);
        }
        int escritas = 0, fim = 0;
        if (read(canal[0], &escritas, sizeof escritas) < 0) ADD_FAILURE();
        close(canal[0]);
        waitpid(outro, &fim, 0);
        EXPECT_TRUE(WIFSIGNALED(fim) || (morre_em < 0 && WEXITSTATUS(fim) == 0));
        return escritas;
    };
    const auto comeca = std::chrono::steady_clock::now();
    const int escritas = joga_e_morre(-1, -1);
    const auto us = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - comeca);
    ASSERT_GT(escritas, 60);
    const std::string com_relatorio = relatorio();
    std::mt19937 sorte(13);
    int vistos[3] = {};
    for (int vez = 0; vez < vezes(30, 500); ++vez) {
        const int qual = static_cast<int>(sorte() % static_cast<unsigned>(escritas));
        const int quando = static_cast<int>(sorte() % static_cast<unsigned>(us.count()));
        SCOPED_TRACE(std::to_string(vez) + ": " + std::to_string(qual) + ", " + std::to_string(quando) + " us");
        vez % 3 < 2 ? joga_e_morre(qual, -1) : joga_e_morre(-1, quando);
        // O começo seguinte não tem o que avisar, e acha um estado inteiro, com o relatório inteiro ou nenhum.
        recomeca_laco();
        prepara_banco();
        ASSERT_TRUE(avisos_do_banco.empty());
        const std::string achado = no_disco();
        const int estado = achado == antes ? 0 : achado == passada ? 1 : 2;
        ASSERT_TRUE(estado < 2 || achado == salva);
        ++vistos[estado];
        ASSERT_TRUE(relatorio() == sem_relatorio || relatorio() == com_relatorio) << relatorio();
        roteiro.clica("Command1");
        if (estado == 0) roteiro.quadro("Nova Semana");
        roteiro.esta_em("INTRONEW");
        joga();
        ASSERT_EQ(tudo(le_data_semana()), estado == 2 ? salva : passada);
        ASSERT_EQ(no_disco(), estado == 2 ? salva : passada);
    }
    for (const int v : vistos) EXPECT_GT(v, 0);
}

TEST_F(FaltaDeLuz, DiscoQueFalhaEDitoOJogoSegueEDepoisSeSalva) {
    grava_semana(hoje());
    const std::string antes = no_disco();
    DiscoDeTeste disco;
    disco.toda_chamada = true;
    roteiro.clica("Command1").esta_em("INTRONEW").confere(trabalha);
    for (const auto& [codigo, dito] :
         {std::pair(13, "O disco está cheio.*novo\\.$"), {10, "o disco falhou"}, {0, "só pode ser lido"}}) {
        roteiro.confere([&disco, codigo = codigo] {
            disco.codigo_falha = codigo;
            disco.so_leitura = codigo == 0;
            disco.falha_em = codigo == 0 ? -1 : disco.chamadas;
        });
        sai_e_salva().esta_em("ok").confere([&disco, dito = dito] {
            disco.falha_em = -1;
            disco.so_leitura = false;
            EXPECT_EQ(casa(msg_texto, dito).size(), 1U) << msg_texto;
        });
        roteiro.clica("opções").clica("pic_horta").espera_ms(1500).esta_em("trabalhando_na_horta").confere([&] {
            EXPECT_EQ(st_check[0], -1);
            EXPECT_EQ(no_disco(), antes);
            trabalha();
        });
        roteiro.clica("hortelino").espera_ms(1700).esta_em("INTRONEW");
    }
    sai_e_salva().quadro("Pendências").acabou();
    joga();
    trabalha();
    const std::string salva = tudo(hoje());
    EXPECT_EQ(no_disco(), salva);
}

} // namespace
} // namespace verdalia
