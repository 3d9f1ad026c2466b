// O que acontece quando o jogador, ou o disco, faz o que não se esperava.
#include "roteiro.h"

namespace verdalia {
namespace {

struct Descuido : PartidaNaTela {
    Descuido() { prepara_banco(); }
    template <class T> T& abre(TelaId tela) {
        primeira_carga = false;
        return entra_em<T>(tela);
    }
    trabalhando_na_horta& abre_horta() { return abre<trabalhando_na_horta>(TelaId::trabalhando_na_horta); }
    Roteiro& pega_o_quiabo_com_o_teclado() {
        roteiro.confere([] { tela_ativa()->foco = tela_ativa()->controle("c_ber"); });
        return roteiro.teclas({SDLK_RIGHT, SDLK_RETURN});
    }
};

TEST_F(Descuido, TelaQueSaiEsperaODialogoFecharENaoParaPorUmaMarca) {
    planta(12, cult_alface, 2);
    abre_horta();
    roteiro.clica("Command2", 5).clica("hortelino").arrasta("cant", 12, 660, 300).esta_em("form_ok_nao");
    roteiro.espera_ms(3000).confere([] { EXPECT_TRUE(carregada(TelaId::trabalhando_na_horta)); }).clica("opções", 1);
    roteiro.espera_ms(200).esta_em("INTRONEW").clica("pic_horta").espera_ms(1500).esta_em("trabalhando_na_horta");
    roteiro.clica("Command2", 5).clica("hortelino").clica("txt_label", 12).espera_ms(2500).esta_em("INTRONEW");
    laco();
}

TEST_F(Descuido, OSegundoApertoDeUmCliqueDuploNaoEOutroClique) {
    for (const int i : {0, 1}) planta(i, cult_alface, 2);
    auto& h = abre_horta();
    roteiro.clica("Command2", 5).clica_duplo("txt_label", 0).confere([] { EXPECT_EQ(st_check[0], -1); });
    roteiro.clica_duplo("previsao").confere([] { EXPECT_EQ(data_previsao - data_hoje, std::chrono::days{7}); });
    // Num ponto em que a tela acaba de mudar também não: a pergunta que se abriu ali não foi vista.
    roteiro.confere([&] {
        h.cant(0).arrasta = h.txt_label(0).visivel = false;
        h.cant(0).clique = [] { avisa("", "oi"); };
    });
    roteiro.clica_duplo("cant", 0).aviso("|oi").clica("tempo_real");
    laco();
    // Na feira os cliques rápidos contam.
    abre<feira_horta>(TelaId::feira_horta);
    roteiro.clica_duplo("plc", 0);
    laco();
    EXPECT_EQ(seq_pedido[cult_couve], 2);
}

TEST_F(Descuido, EnquantoSoaOuPiscaOCliqueNaoValeParaOQueVemDepois) {
    planta(0, cult_alface, 2);
    semeia(0, cult_tomate, 5);
    som_ligado = true;
    auto& h = abre_horta();
    roteiro.clica_em(400, 400).confere([this] { EXPECT_EQ(roteiro.tocados.back(), "\\silencio.wav"); });
    roteiro.clica("Command2", 5).clica("txt_label", 0).espera_ms(350).clica("txt_label", 0);
    // A mensagem aberta no meio da piscada fica; o fim dela vem depois.
    roteiro.clica("Label3", 12).espera_ms(5000).aviso("Tomate|Voce deve transplantar 1 leito(s) de Tomate");
    roteiro.espera_ms(150).confere([&] { EXPECT_EQ(st_check[0] * 1000 + h.Timergame.intervalo, -1000); });
    laco();
    roteiro.duracao_dos_sons = 900;
    abre<controle_da_sementeira>(TelaId::controle_da_sementeira);
    roteiro.arrasta("c_tom", -1, 185.5, 280).espera_ms(100).clica_em(396, 360).clica_em(590, 376).tecla(SDLK_RETURN);
    roteiro.espera_ms(2500).aviso("Ocupado ...|Este 'lote' está ocupado").esta_em("controle_da_sementeira");
    laco();
    abre<INTRONEW>(TelaId::INTRONEW);
    roteiro.clica("pic_feira").espera_ms(1300).clica_em(64, 136).espera_ms(1500).esta_em("feira_horta");
    laco();
    EXPECT_EQ(seq_pedido[cult_couve], 0);
}

TEST_F(Descuido, OMouseLargaOQueOTecladoPegouOndeEstaESoOBotaoQueArrastaOSolta) {
    abre_horta();
    pega_o_quiabo_com_o_teclado().clica_em(220, 185).clica("hortelino").confere([] { EXPECT_EQ(anim_acao, 14); });
    laco();
    EXPECT_EQ(st_cod_cult[0], cult_quiabo);
    abre_horta();
    pega_o_quiabo_com_o_teclado().solta(220, 226, 1).confere([] { EXPECT_EQ(st_cod_cult[10], cult_quiabo); });
    roteiro.aperta(256, 58, 1).aponta(300, 300).solta(300, 300, 2).solta(304, 394, 1);
    laco();
    EXPECT_EQ(std::count(st_cod_cult.begin(), st_cod_cult.end(), cult_cenoura), 1);
    EXPECT_EQ(st_cod_cult[52], cult_cenoura);
}

TEST_F(Descuido, ASerieCortadaEOTratoQueAcabaNoMeioDelaVoltamAoRepouso) {
    for (const int i : {0, 1}) {
        planta(i, cult_alface, 2);
        semeia(i, cult_alface, 2);
    }
    musica_ligada = true;
    auto& h = abre_horta();
    // O calendário e o caminho escolhidos acabam a apresentação.
    roteiro.espera_ms(250).confere([&] { EXPECT_EQ(nome(h.Command2(6).figura_apagada), "des01.bmp"); });
    roteiro.clica("tempo_real").confere([&] { EXPECT_EQ(nome(h.Command2(6).figura_apagada), "des06bw.bmp"); });
    roteiro.clica("hortelino").espera_ms(450).clica("Command2", 5).espera_ms(250).confere([&] {
        EXPECT_EQ(nome(h.hortelino.figura) + std::to_string(h.hortelino.ponteiro), "hort00.bmp0");
        EXPECT_NE(nome(h.Command2(5).figura), "li06.bmp");
    });
    // Tirado o último canteiro por marcar, o trato acaba.
    const auto acabou = [](auto& tela, auto& botao) {
        return !botao.ativo && tela.Timergame.intervalo != 0 &&
               tela.Timer1.intervalo == 0; // nem recomeça a apresentação
    };
    roteiro.clica("txt_label", 0).arrasta("cant", 1, 660, 300).tecla(SDLK_s).confere([&] {
        EXPECT_TRUE(acabou(h, h.Command2(5)));
        EXPECT_EQ(nome(h.Command2(5).figura) + nome(h.Command2(5).figura_apagada), "li06.bmpli06bw.bmp");
    });
    laco();
    auto& s = abre<controle_da_sementeira>(TelaId::controle_da_sementeira);
    roteiro.clica("hortelino").confere([&] { EXPECT_EQ(s.Timer1.intervalo, 0); });
    roteiro.clica("Command4", 1).clica("Label4", 0).arrasta("Image3", 1, 420, 575).tecla(SDLK_s);
    roteiro.confere([&] { EXPECT_TRUE(acabou(s, s.Command4(1))); });
    laco();
}

TEST_F(Descuido, FecharAJanelaAcabaSempreNasPerguntasDaSaida) {
    planta(0, cult_alface, 2);
    st_last_i_cu[11] = st_last_last_i_cu[11] = cult_alface;
    abre_horta();
    const auto desiste_de_sair = [this](const char* volta) -> Roteiro& {
        return roteiro.fecha_janela().pergunta("Saindo ...|Deseja sair", false).espera_ms(3000).esta_em(volta);
    };
    roteiro.arrasta("c_cen", -1, 220, 184).esta_em("ok"); // ocupado
    desiste_de_sair("trabalhando_na_horta").clica("lbl_tempo").esta_em("ok_help");
    // As duas perguntas da rotação ficam sem resposta, e nada se planta.
    desiste_de_sair("trabalhando_na_horta").arrasta("c_alf", -1, 262, 226).esta_em("form_ok_nao");
    desiste_de_sair("trabalhando_na_horta").confere([] { EXPECT_EQ(st_cod_cult[11], cult_nenhuma); });
    // Um caminho já começado é esquecido: pergunta-se uma vez só.
    roteiro.clica("hortelino").espera_ms(300);
    desiste_de_sair("trabalhando_na_horta");
    laco();
    abre<INTRONEW>(TelaId::INTRONEW);
    roteiro.clica("saida").espera_ms(300);
    desiste_de_sair("INTRONEW");
    laco();
}

TEST_F(Descuido, OndeSePerdeAlgoEnterNaoConfirma) {
    planta(0, cult_alface, 2);
    st_last_i_cu[11] = cult_alface;
    abre_horta();
    roteiro.arrasta("cant", 0, 660, 300).esta_em("form_ok_nao").tecla(SDLK_RETURN);
    roteiro.arrasta("c_alf", -1, 262, 226).esta_em("form_ok_nao").confere([] {
        auto& d = carrega_como<form_ok_nao>(TelaId::form_ok_nao);
        EXPECT_EQ(nome(d.ilustracao(0).figura) + nome(d.ilustracao(1).figura), "az_alf.bmpaz_alf.bmp");
        EXPECT_GT(d.origem_y() - 40, 248); // o canteiro de que se fala continua à vista
    });
    roteiro.tecla(SDLK_RETURN).esta_em("trabalhando_na_horta");
    laco();
    EXPECT_EQ(st_cod_cult[0], cult_alface);
    EXPECT_EQ(st_cod_cult[11], cult_nenhuma);
}

// ---- O sistema manda acabar já: nada se pergunta, e o que se fez não se perde.

struct Encerra : PartidaNaTela {
    Encerra() {
        prepara_banco();
        planta(0, cult_alface, 3);
    }
    static void abre(TelaId tela) {
        primeira_carga = false;
        auto_abastecido = auto_abastecimento();
        mostra(tela);
        laco();
    }
    static std::int16_t idade_gravada() {
        le_canteiros();
        return st_cod_cult[0] == cult_alface ? st_idade[0] : cult_nenhuma;
    }
};

TEST_F(Encerra, NaPerguntaDeUmaPrevisaoGravaOEstadoVerdadeiro) {
    roteiro.clica("previsao").espera_ms(50).confere([] { EXPECT_EQ(st_idade[0], 4); });
    roteiro.arrasta("cant", 0, 660, 300).esta_em("form_ok_nao").encerra().acabou();
    abre(TelaId::trabalhando_na_horta);
    EXPECT_FALSE(terminou_com_falha());
    EXPECT_EQ(idade_gravada(), 3);
}

TEST_F(Encerra, AntesDaPrimeiraCargaOuQuandoSeDisseQueNaoNadaSeGrava) {
    grava_semana(hoje());
    esvazia();
    roteiro.esta_em("Conf_cd").encerra();
    joga();
    EXPECT_EQ(idade_gravada(), 3);
    recomeca_laco();
    st_idade[0] = 5;
    seq_pedido[cult_cenoura] = 1;
    roteiro.fecha_janela().teclas({SDLK_s, SDLK_n}).esta_em("ok_help").encerra().acabou();
    abre(TelaId::INTRONEW);
    EXPECT_EQ(idade_gravada(), 3);
}

TEST_F(Encerra, OQueNaoSePodeGravarEFalha) {
    const BancoPreso preso(arquivo);
    roteiro.encerra().acabou();
    abre(TelaId::INTRONEW);
    EXPECT_TRUE(terminou_com_falha());
}

} // namespace
} // namespace verdalia
