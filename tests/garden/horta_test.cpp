// A horta, jogada pelos controles: plantar, ser questionado, excluir, tratar, olhar a previsão.
#include "roteiro.h"

#include "data/plano.h"

namespace verdalia {
namespace {

struct Horta : PartidaNaTela {
    Horta() { prepara_banco(); }
    trabalhando_na_horta& abre() {
        auto_abastecido = auto_abastecimento();
        mostra(TelaId::trabalhando_na_horta);
        return carrega_como<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    }
    // Arrasta um botão de cultura até o canteiro.
    Roteiro& planta_com_mouse(const char* botao, int canteiro) {
        return roteiro.arrasta(botao, -1, 200 + canteiro % 10 * 42 + 20, 164 + canteiro / 10 * 42 + 20);
    }
    Roteiro& responde(bool sim) { return roteiro.esta_em("form_ok_nao").clica("opções", sim ? 0 : 1); }
    static bool pronta(int leira) { return sem_cod_cult[leira] > cult_vago; }
    static std::string falta(trabalhando_na_horta& h, std::int16_t cultura) {
        const Rotulo& r = h.Label3(h.botao_da_cultura(cultura).k);
        return r.visivel ? r.texto : "";
    }
    static bool em_destaque(trabalhando_na_horta& h, const char* botao) {
        return h.controle(botao)->figura->caminho.find("\\anima\\az_") != std::string::npos;
    }
};

TEST_F(Horta, LegendaDoPedidoSeEsvaziaPlantandoEVemOParabens) {
    seq_pedido[cult_cenoura] = 2;
    seq_pedido[cult_alface] = 1; // sem muda pronta, não se pode plantar
    auto& h = abre();
    EXPECT_EQ(falta(h, cult_cenoura), "2");
    EXPECT_EQ(falta(h, cult_alface), "");
    EXPECT_TRUE(em_destaque(h, "c_cen"));
    EXPECT_FALSE(em_destaque(h, "c_alf"));
    roteiro.clica("Label3", 8).esta_em("ok").confere([] {
        EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Cenoura|Voce deve plantar 2 leito(s) de Cenoura");
    });
    roteiro.clica("opções");
    planta_com_mouse("c_cen", 0).confere([&] {
        EXPECT_EQ(falta(h, cult_cenoura), "1");
        EXPECT_EQ(st_nome[0], "Cenoura");
        EXPECT_EQ(st_idade[0], 0);
    });
    planta_com_mouse("c_cen", 99).esta_em("ok_help").confere([&] {
        EXPECT_EQ(tela_ativa()->titulo, "Parabéns");
        EXPECT_FALSE(tela_ativa()->fundo->falta);
        EXPECT_EQ(falta(h, cult_cenoura), "");
        EXPECT_TRUE(em_destaque(h, "c_cen")); // o destaque fica até o fim da visita
        EXPECT_EQ(st_cod_cult[99], cult_cenoura);
    });
    roteiro.tecla(SDLK_ESCAPE);
    planta_com_mouse("c_ber", 50).confere([] {
        EXPECT_EQ(st_cod_cult[50], cult_quiabo);
    }); // ninguém pediu, e planta-se
    laco();
    EXPECT_EQ(roteiro.tocados.size(), 3U); // um blip por queda, com a voz desligada
}

TEST_F(Horta, QuedaNasBordasNasFrestasENosOcupados) {
    auto& h = abre();
    // O primeiro pixel, o último, e o limite entre duas casas.
    roteiro.arrasta("c_cen", -1, 200, 164).arrasta("c_cen", -1, 618, 582).arrasta("c_cen", -1, 241.9, 206);
    roteiro.confere([] {
        for (const int i : {0, 99, 10}) EXPECT_EQ(st_cod_cult[i], cult_cenoura) << i;
    });
    // A fresta à direita da figura do canteiro 0, e a própria figura.
    roteiro.arrasta("c_ber", -1, 241, 180).esta_em("ok").confere([] {
        EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Ocupado|Este canteiro já está ocupado");
    });
    roteiro.clica("opções").arrasta("c_ber", -1, 220, 180).esta_em("ok").clica("opções");
    // Um canteiro sobre a terra, um botão no fundo, um canteiro fora da janela: nada.
    roteiro.arrasta("cant", 0, 400, 400).arrasta("c_ber", -1, 660, 300).arrasta("cant", 0, 900, 300);
    roteiro.esta_em("trabalhando_na_horta");
    laco();
    EXPECT_EQ(st_cod_cult[0], cult_cenoura);
    EXPECT_EQ(std::count(st_cod_cult.begin(), st_cod_cult.begin() + 100, cult_quiabo), 0);
    EXPECT_EQ(h.cant(99).lugar().x, 200 + 9 * 42 + 1);
    EXPECT_EQ(h.txt_label(10).lugar().y, 164 + 42 + 2);
}

// As duas memórias do canteiro, o que o jogador responde a cada pergunta, e se a alface fica.
struct Rotacao {
    std::int16_t ultima, penultima;
    std::vector<bool> respostas;
    bool planta;
};

TEST_F(Horta, RegraDeRotacaoPerguntaPorCadaMemoriaEAUltimaRespostaDecide) {
    const Rotacao casos[] = {
        {-1, -1, {}, true},
        {cult_cenoura, cult_nabo, {}, true},
        {cult_chicoria, -1, {true}, true},
        {cult_chicoria, -1, {false}, false},
        {cult_cenoura, cult_chicoria, {true}, true},
        {cult_cenoura, cult_chicoria, {false}, false},
        {cult_alface, cult_chicoria, {true, true}, true},
        {cult_alface, cult_chicoria, {true, false}, false},
        {cult_alface, cult_chicoria, {false, true}, true},
        {cult_alface, cult_chicoria, {false, false}, false},
    };
    semeia(4, cult_alface, 4);
    auto& h = abre();
    for (int i = 0; i < static_cast<int>(std::size(casos)); ++i) {
        st_cod_cult[i] = i % 2 == 0 ? cult_vago : cult_nenhuma;
        st_last_i_cu[i] = casos[i].ultima;
        st_last_last_i_cu[i] = casos[i].penultima;
        planta_com_mouse("c_alf", i);
        for (const bool sim : casos[i].respostas) {
            roteiro.confere([&, i] {
                EXPECT_EQ(tela_ativa()->titulo, "Regra de Rotação");
                EXPECT_TRUE(h.cant(i).visivel); // já se vê enquanto se pergunta
            });
            responde(sim);
        }
        roteiro.esta_em("trabalhando_na_horta").confere([&, i] {
            EXPECT_EQ(st_cod_cult[i], casos[i].planta ? cult_alface : i % 2 == 0 ? cult_vago : cult_nenhuma) << i;
            EXPECT_EQ(h.cant.existe(i), casos[i].planta) << i;
        });
    }
    laco();
}

TEST_F(Horta, TransplanteGastaAsLeirasSoNoUltimoCanteiroPedido) {
    seq_pedido[cult_alface] = 3;
    semeia(4, cult_alface, 4);
    semeia(9, cult_alface, 4);
    semeia(10, cult_alface, 2);
    semeia(11, cult_tomate, 5);
    auto& h = abre();
    EXPECT_EQ(falta(h, cult_alface), "3");
    EXPECT_EQ(falta(h, cult_tomate), "1"); // ninguém pediu, mas a muda se perderia
    for (int i = 0; i < 3; ++i)
        planta_com_mouse("c_alf", i).confere([i] { EXPECT_EQ(pronta(4) && pronta(9), i < 2) << i; });
    roteiro.confere([&] {
        EXPECT_EQ(sem_cod_cult[4], cult_vago);
        EXPECT_EQ(sem_nome[9] + std::to_string(sem_idade[9]), "0");
        EXPECT_TRUE(pronta(10) && pronta(11)); // a que não está pronta e a de outra cultura ficam
        EXPECT_EQ(falta(h, cult_alface), "");
    });
    laco();
}

TEST_F(Horta, ExclusaoPedeConfirmacaoEGuardaAMemoria) {
    planta(12, cult_cenoura, 5);
    st_last_i_cu[12] = cult_nabo;
    st_check[12] = -1;
    seq_pedido[cult_cenoura] = 1;
    auto& h = abre();
    roteiro.arrasta("cant", 12, 660, 300);
    responde(false).confere([&] { EXPECT_TRUE(h.cant.existe(12) && st_cod_cult[12] == cult_cenoura); });
    roteiro.arrasta("cant", 12, 660, 300).confere([] {
        EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Atenção ...|Confirma que quer 'excluir' essa verdura ?");
    });
    responde(true);
    laco();
    EXPECT_FALSE(h.cant.existe(12) || h.txt_label.existe(12));
    EXPECT_EQ(st_cod_cult[12], cult_nenhuma);
    EXPECT_EQ(st_nome[12], "");
    EXPECT_EQ(st_last_i_cu[12], cult_nabo);
    EXPECT_EQ(st_check[12], -1);
}

TEST_F(Horta, TratoChamaMarcaDesmarcaPiscaEApaga) {
    for (const int i : {0, 1, 2}) planta(i, cult_alface, 2); // LI
    planta(3, cult_alface, 4);                               // AM
    planta(4, cult_alface, 1);                               // REP: sem botão
    st_check[2] = -1;
    seq_pedido[cult_alface] = 1;
    auto& h = abre();
    EXPECT_TRUE(h.Command2(5).ativo && h.Command2(7).ativo);
    EXPECT_FALSE(h.Command2(6).ativo || h.Command2(8).ativo || h.Command2(9).ativo);
    EXPECT_EQ(h.Command2(6).cor_fundo, cor_cinza);
    const auto textos = [&h] {
        std::string t;
        for (int i = 0; i < 5; ++i) t += h.txt_label(i).visivel ? "[" + h.txt_label(i).texto + "]" : "_";
        return t;
    };
    roteiro.clica("Command2", 5).confere([&] {
        EXPECT_EQ(textos(), "[][][ok]__");
        EXPECT_EQ(h.txt_label(0).cor_fundo, (Cor{255, 255, 192}));
    });
    roteiro.clica("txt_label", 0).clica("txt_label", 0).confere([&] {
        EXPECT_EQ(st_check[0], 0);
        EXPECT_EQ(textos(), "[ok][][ok]__"); // o "ok" só some na próxima chamada
    });
    roteiro.clica("Command2", 5).confere([&] { EXPECT_EQ(textos(), "[][][ok]__"); });
    roteiro.clica("txt_label", 0).clica("txt_label", 1).confere([&] {
        EXPECT_EQ(h.timer_.intervalo, 0);
        EXPECT_FALSE(h.Command2(5).ativo);
        EXPECT_EQ(h.Command2(5).cor_fundo, (Cor{255, 255, 192}));
    });
    roteiro.espera_ms(250).confere([&] { EXPECT_EQ(textos(), "_____"); });
    roteiro.espera_ms(100).confere([&] { EXPECT_EQ(textos(), "[ok][ok][ok]__"); });
    roteiro.espera_ms(1700).confere([&] {
        EXPECT_EQ(textos(), "_____");
        EXPECT_EQ(h.txt_label(1).texto, "ok");
    });
    // O outro trato é branco sobre marrom; com ele acaba o trabalho da semana.
    roteiro.clica("Command2", 7).confere([&] { EXPECT_EQ(h.txt_label(3).letra.cor, (Cor{255, 255, 255})); });
    roteiro.clica("txt_label", 3).espera_ms(2000).esta_em("ok_help").tecla(SDLK_ESCAPE);
    laco();
    EXPECT_EQ(st_check[3], -1);
    // De volta na mesma semana: coloridos, mas apagados.
    recomeca_laco();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
    auto& de_novo = abre();
    EXPECT_FALSE(de_novo.Command2(5).ativo || de_novo.Command2(7).ativo);
    EXPECT_EQ(de_novo.Command2(7).cor_fundo, (Cor{128, 64, 64}));
}

TEST_F(Horta, PiscadaCortadaPorOutroTratoNaoPerdeOOk) {
    planta(0, cult_alface, 2);
    planta(1, cult_alface, 4);
    auto& h = abre();
    roteiro.clica("Command2", 5).clica("txt_label", 0).espera_ms(250);
    roteiro.confere([&] { EXPECT_EQ(h.txt_label(0).texto, "."); }).clica("Command2", 7).confere([&] {
        EXPECT_EQ(h.txt_label(0).texto, "ok");
        EXPECT_EQ(h.Timergame.intervalo, 0);
        EXPECT_TRUE(h.txt_label(1).visivel);
    });
    laco();
}

TEST_F(Horta, SerieDaLimpezaPulaODezETerminaNaFaceDeRepouso) {
    planta(0, cult_alface, 2);
    auto& h = abre();
    std::vector<std::string> faces;
    roteiro.clica("Command2", 5).espera_ms(50);
    for (int i = 0; i < 15; ++i)
        roteiro.espera_ms(100).confere([&] { faces.push_back(h.Command2(5).figura->caminho.substr(9)); });
    laco();
    EXPECT_EQ(faces, (std::vector<std::string>{"li06.bmp", "li07.bmp", "li08.bmp", "li09.bmp", "li11.bmp", "li12.bmp",
                                               "li00.bmp", "li01.bmp", "li02.bmp", "li03.bmp", "li04.bmp", "li05.bmp",
                                               "li06.bmp", "li06.bmp", "li06.bmp"}));
}

TEST_F(Horta, PrevisaoVaiEVoltaComCanteirosQueAcabamEQueSoExistiramNela) {
    planta(5, cult_rabanete, 4); // acaba na segunda semana
    planta(6, cult_cenoura, 2);
    seq_pedido[cult_rabanete] = 1;
    auto& h = abre();
    const std::string hoje_ = h.tempo.texto;
    roteiro.clica("previsao").espera_ms(2400).clica("previsao").confere([&] {
        EXPECT_FALSE(h.cant.existe(5));
        EXPECT_EQ(std::stoi(h.terra.texto), std::stoi(hoje_) + 2);
        EXPECT_EQ(falta(h, cult_rabanete), "1");
        EXPECT_TRUE(h.Command2(6).ativo); // DES da cenoura aos 4
    });
    planta_com_mouse("c_rab", 7).confere([&] { EXPECT_TRUE(h.cant.existe(7)); });
    roteiro.clica("pic_semen").espera_ms(1000).confere([] { EXPECT_EQ(st_cod_cult[7], cult_rabanete); });
    laco();
    // A previsão não é de uma tela: na volta, `terra` ainda está adiante.
    recomeca_laco();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
    auto& volta = abre();
    EXPECT_NE(volta.terra.texto, volta.tempo.texto);
    roteiro.clica("tempo_real").confere([&] {
        EXPECT_EQ(volta.terra.texto, hoje_);
        EXPECT_TRUE(volta.cant.existe(5) && volta.cant(5).visivel);
        EXPECT_FALSE(volta.cant.existe(7));
        EXPECT_EQ(st_idade[6], 2);
        EXPECT_EQ(st_cod_cult[7], cult_nenhuma);
    });
    // Sem previsão ligada, só a animação: acaba na figura de hoje.
    roteiro.espera_ms(900).clica("tempo_real").espera_ms(900).confere([&] {
        EXPECT_EQ(volta.tempo_real.figura->caminho, fig_dia_semana());
        EXPECT_EQ(st_idade[6], 2);
    });
    laco();
}

TEST_F(Horta, PasseioGiraAsFacesEAcabaPorSiOuPorUmClique) {
    musica_ligada = true;
    trilha_horta = "\\htfimc.wav";
    auto& h = abre();
    EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{"\\htfimc.wav"}));
    roteiro.espera_ms(350).confere([&] {
        EXPECT_EQ(h.Command2(9).figura_apagada->caminho, "C:\\anima\\cof02.bmp"); // apagada: a face apagada gira
        EXPECT_EQ(h.Command2(2).figura_apagada->caminho, "C:\\anima\\ssem02.bmp");
    });
    roteiro.espera_ms(12'000).confere([&] {
        EXPECT_EQ(h.timer_.intervalo, 0);
        EXPECT_EQ(h.Command2(9).figura_apagada->caminho, "C:\\anima\\cof05bw.bmp");
    });
    laco();
    recomeca_laco();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
    auto& outra = abre();
    roteiro.espera_ms(300).clica("hortelino").confere([&] {
        EXPECT_EQ(outra.Command2(9).figura_apagada->caminho, "C:\\anima\\cof05bw.bmp");
        EXPECT_EQ(anim_acao, 14);
    });
    primeira_carga = false;
    roteiro.espera_ms(1600).esta_em("INTRONEW");
    laco();
}

TEST_F(Horta, BotaoDaSementeiraAcendeComMudaPorTratarOuSemeaduraPorFazer) {
    const auto botao = [this](std::function<void()> prepara) {
        recomeca_laco();
        registra_telas(fabricas_do_jogo, sai_do_jogo);
        seq_pedido.fill(0);
        sem_cod_cult.fill(cult_nenhuma);
        sem_check.fill(0);
        prepara();
        const Botao& b = abre().Command2(2);
        return std::pair{b.ativo, b.cor_fundo != cor_cinza};
    };
    EXPECT_EQ(botao([] {}), std::pair(false, false));
    EXPECT_EQ(botao([] { seq_pedido[cult_alface] = 1; }), std::pair(true, true));
    EXPECT_EQ(botao([] { semeia(0, cult_alface, 4); }), std::pair(true, true));
    EXPECT_EQ(botao([] {
                  semeia(0, cult_alface, 4);
                  sem_check[0] = -1;
              }),
              std::pair(false, true));
    roteiro.duracao_dos_sons = 500;
    som_ligado = true;
    seq_pedido[cult_tomate] = 1;
    recomeca_laco();
    registra_telas(fabricas_do_jogo, sai_do_jogo);
    abre();
    roteiro.clica("Command2", 2).espera_ms(1500).confere([this] {
        EXPECT_EQ(roteiro.tocados.back(), dir_audio + "\\vamsem.wav");
        EXPECT_FALSE(carregada(TelaId::trabalhando_na_horta));
    });
    laco();
}

TEST_F(Horta, NomeDaCulturaSeOuveUmaVezPorArrasteENoClique) {
    som_ligado = true;
    abre();
    const auto falas = [this] {
        return std::count(roteiro.tocados.begin(), roteiro.tocados.end(), dir_audio + "\\quiabo.wav");
    };
    roteiro.clica("c_ber").confere([&] { EXPECT_EQ(falas(), 1); });
    planta_com_mouse("c_ber", 0).confere([&] { EXPECT_EQ(falas(), 2); });
    planta_com_mouse("c_ber", 1).confere([&] { EXPECT_EQ(falas(), 2); }); // plantar na terra não zera
    planta_com_mouse("c_ber", 1).clica("opções");                         // ocupado: zera
    planta_com_mouse("c_ber", 2).confere([&] { EXPECT_EQ(falas(), 3); });
    laco();
}

TEST_F(Horta, SoOTecladoPlantaTrataEExclui) {
    planta(0, cult_alface, 2);
    auto& h = abre();
    h.foco = h.controle("c_ber");
    const auto tecla = [this](int codigo, int vezes = 1) {
        for (int i = 0; i < vezes; ++i) roteiro.tecla(codigo);
    };
    // O quiabo desce para a horta, e fica na segunda fileira da primeira coluna.
    tecla(SDLK_RIGHT); // mostra o foco
    tecla(SDLK_RETURN);
    tecla(SDLK_DOWN, 3);
    tecla(SDLK_RETURN);
    roteiro.confere([&] {
        int onde = -1;
        for (int i = 0; i < n_canteiros; ++i)
            if (st_cod_cult[i] == cult_quiabo) onde = i;
        ASSERT_GE(onde, 0);
        h.foco = &h.cant(onde);
    });
    // Excluir: o último alvo da roda é o fundo da tela.
    tecla(SDLK_RETURN);
    roteiro.tecla(SDLK_TAB, true);
    tecla(SDLK_RETURN);
    roteiro.esta_em("form_ok_nao").tecla(SDLK_s).confere([] {
        EXPECT_EQ(std::count(st_cod_cult.begin(), st_cod_cult.begin() + 100, cult_quiabo), 0);
    });
    roteiro.confere([&] { h.foco = &h.Command2(5); }).tecla(SDLK_SPACE).confere([&] { h.foco = &h.txt_label(0); });
    tecla(SDLK_SPACE);
    laco();
    EXPECT_EQ(st_check[0], -1);
}

} // namespace
} // namespace verdalia
