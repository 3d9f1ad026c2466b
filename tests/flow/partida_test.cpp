// A partida do começo ao fim, como o jogador a faz: a pergunta da unidade, a semana nova, o centro e as saídas.
#include "roteiro.h"

#include "data/plano.h"

#include <malloc.h>
#include <sqlite3.h>

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
        st_cod_cult.fill(cult_nenhuma);
        sem_cod_cult.fill(cult_nenhuma);
        seq_pedido.fill(0);
    }
    Dia dia_no_disco() const { return le_data_semana(); }
    Roteiro& entra() { return roteiro.esta_em("Conf_cd").clica("Command1"); }

    const std::chrono::days semanas_3{21};
};

TEST_F(Centro, JogoNovoComecaSemSemanaNovaEGuardaAUnidade) {
    entra().esta_em("INTRONEW").confere([] {
        EXPECT_EQ(dir_media, "C:");
        EXPECT_FALSE(primeira_carga);
        EXPECT_FALSE(auto_abastecido);
        EXPECT_EQ(st_cod_cult[0], cult_nenhuma);
    });
    joga();
    EXPECT_TRUE(std::filesystem::exists(jogador / "hortas00.mdb"));
}

TEST_F(Centro, SairDaPerguntaTerminaSemGuardarNada) {
    guarda_horta(hoje() - semanas_3);
    roteiro.clica("Combo1").tecla(SDLK_DOWN).clica("Command2").confere([] { FAIL() << "o jogo devia ter acabado"; });
    joga();
    EXPECT_EQ(dia_no_disco(), hoje() - semanas_3);
    unidade_cd = 5;
    le_cd();
    EXPECT_EQ(unidade_cd, 0);
}

TEST_F(Centro, UnidadeSemFigurasDeixaEscolherDeNovo) {
    roteiro.tecla(SDLK_TAB).confere([] { tela_ativa()->foco = tela_ativa()->controle("Combo1"); }).tecla(SDLK_DOWN);
    roteiro.clica("Command1").esta_em("ok").confere([] { EXPECT_NE(msg_texto.find("D:"), std::string::npos); });
    roteiro.clica("opções")
        .esta_em("Conf_cd")
        .clica("Combo1")
        .tecla(SDLK_UP)
        .tecla(SDLK_RETURN)
        .clica("Command1")
        .esta_em("INTRONEW");
    joga();
    EXPECT_EQ(unidade_cd, 0);
}

TEST_F(Centro, HortaGuardadaEnvelheceOsDomingosQuePassaram) {
    guarda_horta(hoje() - semanas_3);
    entra().esta_em("ok_help").confere([this] {
        EXPECT_EQ(tela_ativa()->titulo, "Nova Semana");
        EXPECT_FALSE(tela_ativa()->fundo->falta);
        EXPECT_EQ(st_idade[37], 6);                    // envelhece depois do quadro
        EXPECT_EQ(dia_no_disco(), hoje() - semanas_3); // e só então grava
    });
    roteiro.tecla(SDLK_ESCAPE).esta_em("INTRONEW").confere([this] {
        EXPECT_EQ(st_cod_cult[37], cult_vago); // a alface acabou na segunda semana
        EXPECT_EQ(st_last_i_cu[37], cult_alface);
        EXPECT_EQ(st_last_last_i_cu[37], cult_cenoura);
        EXPECT_EQ(sem_cod_cult[3], cult_vago); // as mudas se perderam
        EXPECT_TRUE(auto_abastecido);
        EXPECT_EQ(dia_no_disco(), hoje());
    });
    // A viagem de ida e volta não recarrega nem avança nada.
    roteiro.confere([] { planta(5, cult_cenoura, 0); }).clica("pic_agenda").espera_ms(1400).esta_em("ok");
    roteiro.clica("opções").esta_em("INTRONEW").confere([] { EXPECT_EQ(st_cod_cult[5], cult_cenoura); });
    joga();
}

TEST_F(Centro, SegundaPartidaDoDiaESemanaVaziaNaoMostramQuadro) {
    guarda_horta(hoje());
    entra().esta_em("INTRONEW");
    joga();
    EXPECT_EQ(st_idade[37], 6);
    recomeca_laco();
    st_cod_cult.fill(cult_nenhuma);
    sem_cod_cult.fill(cult_nenhuma);
    grava_semana(hoje() - semanas_3);
    entra().esta_em("INTRONEW");
    joga();
    EXPECT_EQ(dia_no_disco(), hoje());
}

TEST_F(Centro, PortaComGravacaoGuardaTudoEAvisaPendencias) {
    guarda_horta(hoje());
    entra().confere([] {
        seq_pedido[cult_cenoura] = 2;
        st_check[37] = -1;
    });
    roteiro.clica("saida").espera_ms(1050).esta_em("form_ok_nao");
    roteiro.confere([] { EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Saindo ...|Deseja sair"); });
    roteiro.clica("opções", 0).esta_em("form_ok_nao");
    roteiro.confere([] { EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Gravar alterações|Deseja salvar ?"); });
    roteiro.clica("opções", 0).esta_em("ok_help");
    roteiro.confere([] { EXPECT_EQ(tela_ativa()->titulo, "Pendências"); }).tecla(SDLK_ESCAPE);
    roteiro.confere([] { FAIL() << "o jogo devia ter acabado"; });
    joga();
    st_check.fill(0);
    seq_pedido.fill(0);
    le_canteiros();
    le_pedido();
    EXPECT_EQ(seq_pedido[cult_cenoura], 2);
    EXPECT_EQ(st_check[37], -1);
    EXPECT_TRUE(roteiro.tocados.empty()); // a voz começa desligada
}

TEST_F(Centro, PortaSemGravacaoESemTrabalhoAcabaEmSilencio) {
    guarda_horta(hoje());
    entra().confere([] {
        st_cod_cult.fill(cult_nenhuma);
        sem_cod_cult.fill(cult_nenhuma);
        seq_pedido.fill(0);
    });
    // O fecho da janela é a porta; o segundo pedido, no meio da pergunta, não responde por ninguém.
    roteiro.fecha_janela().esta_em("form_ok_nao").fecha_janela().tecla(SDLK_ESCAPE).esta_em("form_ok_nao");
    roteiro.tecla(SDLK_s).tecla(SDLK_n).confere([] { FAIL() << "o jogo devia ter acabado"; });
    joga();
    le_canteiros();
    EXPECT_EQ(st_cod_cult[37], cult_alface);
}

TEST_F(Centro, QuemDesisteDeSairFicaComTudo) {
    som_ligado = false;
    entra().confere([] { som_ligado = true; }).clica("saida").espera_ms(1050).clica("opções", 1).esta_em("INTRONEW");
    roteiro.confere([] {
        EXPECT_EQ(tela_ativa()->controle("saida")->figura->caminho, "C:\\anima\\port00.bmp");
        EXPECT_FALSE(terminando());
    });
    joga();
    EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{dir_audio + "\\s1.wav", dir_audio + "\\s3.wav"}));
}

TEST_F(Centro, BancoPresoNaSaidaNaoPerdeNada) {
    guarda_horta(hoje());
    sqlite3* outro = nullptr;
    entra().confere([&] {
        ASSERT_EQ(sqlite3_open((jogador / "hortas00.mdb").c_str(), &outro), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(outro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        st_check[37] = -1;
    });
    roteiro.clica("saida").espera_ms(1050).clica("opções", 0).clica("opções", 0).esta_em("ok");
    roteiro.confere([&] { sqlite3_close(outro); }).clica("opções").esta_em("INTRONEW").confere([] {
        EXPECT_EQ(st_check[37], -1);
    });
    // Solto o banco, a segunda tentativa grava.
    roteiro.clica("saida").espera_ms(1050).clica("opções", 0).clica("opções", 0).tecla(SDLK_ESCAPE);
    joga();
    st_check.fill(0);
    le_canteiros();
    EXPECT_EQ(st_check[37], -1);
}

TEST_F(Centro, BancoEstragadoEPostoDeLadoComAviso) {
    escreve(jogador / "hortas00.mdb", "isto não é um banco");
    roteiro.esta_em("ok").clica("opções").esta_em("Conf_cd").clica("Command1").esta_em("INTRONEW");
    joga();
    int guardados = 0;
    for (const auto& arquivo : std::filesystem::directory_iterator(jogador))
        guardados += conteudo(arquivo.path()) == "isto não é um banco";
    EXPECT_EQ(guardados, 1);
}

TEST_F(Centro, PalavrasQuentesAbremOsTrezeQuadros) {
    entra();
    std::vector<std::string> titulos;
    for (int i = 0; i < 13; ++i)
        roteiro.clica("Label1", i)
            .esta_em("ok_help")
            .confere([&titulos] {
                titulos.push_back(tela_ativa()->titulo);
                EXPECT_FALSE(tela_ativa()->fundo->falta) << tela_ativa()->titulo;
            })
            .tecla(SDLK_RETURN)
            .esta_em("INTRONEW");
    joga();
    ASSERT_EQ(titulos.size(), 13U);
    EXPECT_EQ(titulos[0], "Vaso ou Canteiro");
    EXPECT_EQ(titulos[7], "Previsão");
    EXPECT_EQ(titulos[12], "Pergunte que o Hortelão responde");
}

TEST_F(Centro, ViagensFalamAteOFimEAUltimaEscolhaVence) {
    roteiro.duracao_dos_sons = 800;
    entra().confere([] { som_ligado = true; }).clica("pic_agenda").espera_ms(500).clica("pic_feira");
    roteiro.espera_ms(1000).confere([this] { EXPECT_TRUE(roteiro.tocados.empty()); }).espera_ms(150);
    roteiro.espera_ms(800).esta_em("feira_horta").confere([this] {
        EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{dir_audio + "\\vamfei.wav"}));
    });
    joga();
}

TEST_F(Centro, MinhocaAndaNosTresUltimosTemposEViraNasPontas) {
    double antes = 0;
    std::vector<double> passos;
    entra().espera_ms(50).confere([&] { antes = tela_ativa()->controle("pic_nhoca")->esquerda; });
    for (int i = 0; i < 7; ++i)
        roteiro.espera_ms(100).confere([&] {
            const double agora = tela_ativa()->controle("pic_nhoca")->esquerda;
            passos.push_back(std::round((antes - agora) / twip));
            antes = agora;
        });
    double menor = 1e9, maior = 0;
    for (int i = 0; i < 900; ++i)
        roteiro.espera_ms(100).confere([&] {
            const double x = tela_ativa()->controle("pic_nhoca")->esquerda / twip;
            menor = std::min(menor, x);
            maior = std::max(maior, x);
        });
    joga();
    EXPECT_EQ(passos, (std::vector<double>{0, 0, 0, 0, 50, 50, 50}));
    EXPECT_LT(menor, 2400);
    EXPECT_GE(menor, 2350);
    EXPECT_GT(maior, 10200);
    EXPECT_LE(maior, 10250);
}

TEST_F(Centro, SoOTecladoEntraLeUmaPaginaESai) {
    roteiro.tecla(SDLK_RETURN).esta_em("INTRONEW");
    roteiro.tecla(SDLK_TAB).tecla(SDLK_RIGHT).tecla(SDLK_DOWN).confere([] {
        EXPECT_EQ(tela_ativa()->foco->nome, "Label1");
        EXPECT_EQ(tela_ativa()->foco->indice, 3); // a da fileira de baixo
    });
    roteiro.tecla(SDLK_RETURN).esta_em("ok_help").tecla(SDLK_ESCAPE).esta_em("INTRONEW");
    for (const int seta : {SDLK_LEFT, SDLK_UP, SDLK_UP}) roteiro.tecla(seta);
    roteiro.confere([] { EXPECT_EQ(tela_ativa()->foco->nome, "saida"); }).tecla(SDLK_SPACE).espera_ms(1050);
    roteiro.tecla(SDLK_s).tecla(SDLK_n).confere([] { FAIL() << "o jogo devia ter acabado"; });
    joga();
}

TEST_F(Centro, VisitasNaoDeixamMemoriaPresa) {
    const auto visita = [] {
        mostra(TelaId::INTRONEW);
        pinta_tudo();
        descarrega_tudo();
    };
    entra();
    joga();
    recomeca_laco();
    for (int i = 0; i < 60; ++i) visita(); // enche o que as bibliotecas guardam
    const std::size_t antes = mallinfo2().uordblks;
    for (int i = 0; i < 20; ++i) visita();
    EXPECT_LT(mallinfo2().uordblks, antes + 4096);
}

} // namespace
} // namespace verdalia
