// A partida do começo ao fim, como o jogador a faz: a pergunta da unidade, a semana nova, o centro e as saídas.
#include "roteiro.h"

#include <malloc.h>
#include <optional>

namespace verdalia {
namespace {

struct Centro : PartidaNaTela {
    // Deixa no disco uma horta gravada no dia dado.
    void guarda_horta(Dia gravada_em) {
        prepara_banco();
        planta(37, cult_alface, 6);
        st_last_i_cu[37] = cult_cenoura;
        seq_pedido[cult_alface] = 1;
        semeia(3, cult_tomate, 5);
        grava_semana(gravada_em);
        esvazia();
    }
    Roteiro& entra() { return roteiro.esta_em("Conf_cd").clica("Command1"); }
    Roteiro& vai_a_porta() { return roteiro.clica("saida").espera_ms(1050).esta_em("form_ok_nao"); }

    const std::chrono::days semanas_3{21};
};

TEST_F(Centro, SairDaPerguntaTerminaSemGuardarNada) {
    guarda_horta(hoje() - semanas_3);
    roteiro.clica("Combo1").tecla(SDLK_DOWN).clica("Command2").acabou();
    joga();
    EXPECT_EQ(le_data_semana(), hoje() - semanas_3);
    le_cd();
    EXPECT_EQ(unidade_cd, 0);
}

TEST_F(Centro, UnidadeSemFigurasDeixaEscolherDeNovo) {
    roteiro.tecla(SDLK_TAB).confere([] { tela_ativa()->foco = tela_ativa()->controle("Combo1"); }).tecla(SDLK_DOWN);
    roteiro.clica("Command1").esta_em("ok").confere([] { EXPECT_NE(msg_texto.find("D:"), std::string::npos); });
    roteiro.clica("opções").esta_em("Conf_cd").clica("Combo1").teclas({SDLK_UP, SDLK_RETURN}).clica("Command1");
    roteiro.esta_em("INTRONEW").confere([] { EXPECT_EQ(dir_media, "C:"); });
    joga();
    EXPECT_TRUE(std::filesystem::exists(arquivo));
}

TEST_F(Centro, HortaGuardadaEnvelheceOsDomingosQuePassaram) {
    guarda_horta(hoje() - semanas_3);
    entra().esta_em("ok_help").confere([this] {
        EXPECT_EQ(st_idade[37], 6); // envelhece depois do quadro
        EXPECT_EQ(le_data_semana(), hoje() - semanas_3);
    });
    roteiro.quadro("Nova Semana").esta_em("INTRONEW").confere([] {
        EXPECT_EQ(st_cod_cult[37], cult_vago); // a alface acabou na segunda semana
        EXPECT_EQ(st_last_i_cu[37], cult_alface);
        EXPECT_EQ(st_last_last_i_cu[37], cult_cenoura);
        EXPECT_EQ(sem_cod_cult[3], cult_vago); // as mudas se perderam
        EXPECT_TRUE(auto_abastecido);
        EXPECT_EQ(le_data_semana(), hoje());
    });
    // A viagem de ida e volta não recarrega nem avança nada.
    roteiro.confere([] { planta(5, cult_cenoura, 0); }).clica("pic_agenda").espera_ms(1400).esta_em("age");
    roteiro.clica("hortelino").espera_ms(1700).esta_em("INTRONEW").confere([] {
        EXPECT_EQ(st_cod_cult[5], cult_cenoura);
    });
    joga();
}

TEST_F(Centro, SegundaPartidaDoDiaESemanaVaziaNaoMostramQuadro) {
    for (const bool vazia : {false, true}) {
        recomeca_laco();
        guarda_horta(vazia ? hoje() - semanas_3 : hoje());
        if (vazia) grava_canteiros();
        entra().esta_em("INTRONEW");
        joga();
        EXPECT_EQ(st_idade[37], vazia ? 0 : 6);
        EXPECT_EQ(le_data_semana(), hoje());
    }
}

TEST_F(Centro, PortaComBancoPresoNaoPerdeNadaEDepoisGravaEAvisaPendencias) {
    guarda_horta(hoje());
    std::optional<BancoPreso> preso;
    entra().confere([&] {
        preso.emplace(arquivo);
        st_check[37] = -1;
        seq_pedido[cult_cenoura] = 2;
    });
    vai_a_porta().pergunta("Saindo ...|Deseja sair", true).pergunta("Gravar alterações|Deseja salvar ?", true);
    roteiro.esta_em("ok").confere([&] { preso.reset(); }).clica("opções").esta_em("INTRONEW");
    vai_a_porta().clica("opções", 0).clica("opções", 0).quadro("Pendências").acabou();
    joga();
    esvazia();
    le_canteiros();
    le_pedido();
    EXPECT_EQ(st_check[37], -1);
    EXPECT_EQ(seq_pedido[cult_cenoura], 2);
    EXPECT_TRUE(roteiro.tocados.empty()); // a voz começa desligada
}

TEST_F(Centro, PortaSemGravacaoESemTrabalhoAcabaEmSilencio) {
    guarda_horta(hoje());
    entra().confere([] { esvazia(); });
    // O fecho da janela é a porta; o segundo pedido, no meio da pergunta, não responde por ninguém; Esc é "Não".
    roteiro.fecha_janela().esta_em("form_ok_nao").tecla(SDLK_ESCAPE).esta_em("INTRONEW");
    roteiro.fecha_janela().fecha_janela().esta_em("form_ok_nao");
    roteiro.teclas({SDLK_s, SDLK_n}).acabou();
    joga();
    le_canteiros();
    EXPECT_EQ(st_cod_cult[37], cult_alface);
}

TEST_F(Centro, BancoEstragadoEPostoDeLadoComAviso) {
    escreve(arquivo, "isto não é um banco");
    roteiro.esta_em("ok").clica("opções");
    entra().esta_em("INTRONEW");
    joga();
    EXPECT_EQ(conteudo(jogador / "hortas00 2026-03-04.mdb"), "isto não é um banco");
}

TEST_F(Centro, ViagensFalamAteOFimEAUltimaEscolhaVence) {
    roteiro.duracao_dos_sons = 800;
    entra().confere([] { som_ligado = true; }).clica("pic_agenda").espera_ms(500).clica("pic_feira");
    roteiro.espera_ms(1000).confere([this] { EXPECT_TRUE(roteiro.tocados.empty()); }).espera_ms(150);
    roteiro.espera_ms(800).esta_em("feira_horta");
    joga();
    EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{dir_audio + "\\vamfei.wav"}));
}

TEST_F(Centro, SoOTecladoEntraLeUmaPaginaESai) {
    roteiro.tecla(SDLK_RETURN).esta_em("INTRONEW").teclas({SDLK_TAB, SDLK_RIGHT, SDLK_DOWN}).confere([] {
        EXPECT_EQ(tela_ativa()->foco->nome, "Label1");
        EXPECT_EQ(tela_ativa()->foco->indice, 3); // a da fileira de baixo
    });
    roteiro.tecla(SDLK_RETURN).esta_em("ok_help").tecla(SDLK_ESCAPE).esta_em("INTRONEW");
    roteiro.teclas({SDLK_LEFT, SDLK_UP, SDLK_UP, SDLK_SPACE}).espera_ms(1050).teclas({SDLK_s, SDLK_n}).acabou();
    joga();
}

// Uma tela cheia que se abre, se pinta e se descarrega devolve o que tomou.
TEST_F(Centro, VisitasNaoDeixamMemoriaPresa) {
    prepara_banco();
    primeira_carga = false;
    for (std::int16_t i = 0; i < n_canteiros; ++i) planta(i, static_cast<std::int16_t>(i % n_culturas + 1), 2);
    for (int r = 0; r < n_leiras; ++r) semeia(r, cult_berinjela, static_cast<std::int16_t>(r % 9));
    for (const TelaId id :
         {TelaId::INTRONEW, TelaId::feira_horta, TelaId::trabalhando_na_horta, TelaId::controle_da_sementeira}) {
        const auto visita = [id](int vezes) {
            for (int i = 0; i < vezes; ++i) {
                mostra(id);
                pinta_tudo();
                descarrega_tudo();
            }
            return mallinfo2().uordblks;
        };
        const std::size_t antes = visita(id == TelaId::INTRONEW ? 60 : 15); // enche o que as bibliotecas guardam
        EXPECT_LT(visita(20), antes + 4096) << static_cast<int>(id);
    }
}

} // namespace
} // namespace verdalia
