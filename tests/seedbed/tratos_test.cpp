// Os tratos da semana, os botões que os chamam, e o que a tela mostra quando se volta a ela ou o tempo passa.
#include "seedbed/mesa.h"

namespace verdalia {
namespace {

TEST_F(Sementeira, TratoChamaMarcaDesmarcaPiscaEApaga) {
    for (const int r : {0, 1, 3}) semeia(r, cult_alface, 2); // LI
    semeia(2, cult_alface, 3);                               // nada
    semeia(4, cult_couve, 3);                                // DES
    seq_pedido[cult_couve] = 1;
    auto& s = abre();
    EXPECT_EQ(botao(s, 1) + botao(s, 2) + botao(s, 3) + botao(s, 4), "acesoacesoapagadoapagado");
    roteiro.clica("Command4", 1).confere([&] {
        EXPECT_EQ(marcas(s, 5), "[][]_[]_");
        EXPECT_EQ(s.Label4(3).cor_fundo, (Cor{255, 255, 192}));
        EXPECT_EQ(s.modo_sem, "LI");
    });
    roteiro.clica("Label4", 0).clica("Label4", 1).clica("Label4", 1).confere([&] {
        EXPECT_EQ(sem_check[0] + 10 * sem_check[1], -1);
        EXPECT_EQ(marcas(s, 5), "[ok][ok]_[]_"); // o "ok" só some na próxima chamada
        EXPECT_EQ(s.Timergame.intervalo, 0);
    });
    roteiro.clica("Command4", 1).confere([&] { EXPECT_EQ(marcas(s, 5), "[ok][]_[]_"); });
    roteiro.clica("Label4", 1).clica("Label4", 3).confere([&] {
        EXPECT_EQ(s.timer_.intervalo, 0);
        EXPECT_EQ(botao(s, 1), "feito");
        EXPECT_EQ(s.Command4(1).figura_apagada->caminho, "C:\\anima\\li06bw.bmp");
    });
    // Some no primeiro tique, volta no segundo, e em 1,8 s acabou.
    roteiro.espera_ms(150).confere([&] { EXPECT_EQ(marcas(s, 5), "_____"); });
    roteiro.espera_ms(100).confere([&] { EXPECT_EQ(marcas(s, 5), "[ok][ok]_[ok]_"); });
    roteiro.espera_ms(1500).confere([&] { EXPECT_EQ(s.modo_sem, "LI"); }).espera_ms(100).confere([&] {
        EXPECT_EQ(marcas(s, 5) + s.Label4(3).texto, "_____ok");
        EXPECT_EQ(s.modo_sem, "");
    });
    // O desbaste fecha a semana.
    roteiro.esta_em("controle_da_sementeira").clica("Command4", 2).clica("Label4", 4).espera_ms(2000);
    quadro_parabens();
    laco();
    EXPECT_EQ(sem_check[4], -1);
}

TEST_F(Sementeira, ParabensVemDoUltimoTratoOuDaUltimaSemeadura) {
    seq_pedido[cult_tomate] = 1;
    semeia(0, cult_alface, 2);
    abre();
    roteiro.clica("Command4", 1).clica("Label4", 0).espera_ms(2000).esta_em("controle_da_sementeira");
    semeia_com_mouse("c_tom", 8);
    quadro_parabens();
    laco();
    // Com um trato aceso, a semeadura não basta.
    sem_cod_cult[8] = cult_vago;
    sem_check[0] = 0;
    abre();
    semeia_com_mouse("c_tom", 8).esta_em("controle_da_sementeira");
    laco();
}

TEST_F(Sementeira, PiscadaCortadaPorOutroTratoNaoDaParabens) {
    seq_pedido[cult_alface] = 1;
    semeia(0, cult_alface, 0);
    semeia(1, cult_alface, 4);
    semeia(2, cult_couve, 3);
    sem_check[2] = -1; // feito: o botão está apagado
    auto& s = abre();
    EXPECT_EQ(botao(s, 2), "feito");
    roteiro.clica("Command4", 3).clica("Label4", 1).espera_ms(150);
    roteiro.confere([&] { EXPECT_EQ(s.Label4(1).texto, "."); }).confere([&] { s.chama_trato(2); }).confere([&] {
        EXPECT_EQ(marcas(s, 3), "__[ok]");
        EXPECT_EQ(s.Timergame.intervalo, 0);
    });
    roteiro.espera_ms(2500).esta_em("controle_da_sementeira");
    laco();
    EXPECT_EQ(sem_check[1], -1);
}

TEST_F(Sementeira, FalasDizemSeHaMudasPorTratar) {
    som_ligado = true;
    semeia(0, cult_alface, 2);
    auto& s = abre();
    roteiro.clica("Command4", 1);
    roteiro.confere([&] { sem_cod_cult[0] = cult_vago; }).clica("Command4", 1).confere([&] {
        EXPECT_EQ(marcas(s, 1), "_");
    });
    laco();
    EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{dir_audio + "\\mudlimp.wav", dir_audio + "\\nlimp.wav"}));
}

TEST_F(Sementeira, AberturaOlhaOFeitoEAMontagemDaSemanaNao) {
    semeia(0, cult_alface, 2);
    semeia(1, cult_alface, 2);
    sem_check[0] = -1;
    semeia(2, cult_alface, 0);  // PLS não acende nada
    semeia(3, cult_cenoura, 1); // não é da sementeira
    semeia(4, cult_alho_poro, 5);
    semeia(5, cult_berinjela, 7);
    planta(0, cult_alface, 2);
    st_check[0] = -1;
    auto& s = abre();
    EXPECT_EQ(botao(s, 1), "aceso"); // pela leira 1
    EXPECT_EQ(botao(s, 4), "feito");
    EXPECT_EQ(leira(s, 2), "az_alf.bmp cresce0.bmp");
    EXPECT_EQ(leira(s, 3), "vazia cresce1.bmp");
    sem_check[1] = -1;
    s.Monta_sem2();
    EXPECT_EQ(botao(s, 1), "feito");
    s.Monta_sem();
    EXPECT_EQ(botao(s, 1) + botao(s, 2) + botao(s, 3) + botao(s, 4), "acesoapagadoapagadoaceso");
    st_check[0] = 0;
    s.Monta_sem2();
    EXPECT_EQ(botao(s, 4), "aceso");
    // Uma leira pronta também leva à horta, e se vê de longe.
    st_cod_cult[0] = cult_vago;
    s.Monta_sem2();
    EXPECT_EQ(botao(s, 4), "apagado");
    sem_idade[5] = 8;
    s.Monta_sem2();
    EXPECT_EQ(botao(s, 3) + botao(s, 4), "acesoaceso");
    EXPECT_TRUE(s.CRESCE(5).pronta);
    EXPECT_FALSE(s.CRESCE(4).pronta);
    s.modo_sem = "LI"; // um trato chamado continua chamado
    s.Monta_sem2();
    EXPECT_EQ(marcas(s, 3), "[ok][ok]_");
    EXPECT_FALSE(s.leg_sem("DES"));
    EXPECT_TRUE(s.leg_sem("LI"));
    EXPECT_FALSE(s.leg_sem("PLS"));
    EXPECT_EQ(marcas(s, 6), "______");
}

TEST_F(Sementeira, PrevisaoVaiEVoltaComLeirasQueSePerdemEQueSoExistiramNela) {
    semeia(0, cult_alface, 3);  // pronta na primeira semana, perdida na segunda
    semeia(12, cult_couve, 1);  // LI na primeira, DES na segunda
    semeia(13, cult_tomate, 2); // LI hoje
    seq_pedido[cult_alface] = 1;
    auto& s = abre();
    const std::string hoje_ = s.tempo.texto;
    roteiro.clica("Command4", 1).confere([&] { EXPECT_TRUE(s.Label4(13).visivel); }).clica("previsao").confere([&] {
        EXPECT_FALSE(s.Label4(12).visivel || s.Label4(13).visivel); // as marcas eram da semana passada
        EXPECT_TRUE(s.CRESCE(0).pronta);
        EXPECT_EQ(botao(s, 3), "aceso");
    });
    // O segundo clique vem antes de o planeta parar: recomeça a volta, e a semana anda.
    roteiro.espera_ms(500).clica("previsao").confere([&] {
        EXPECT_EQ(leira(s, 0), "vazia crescepb.bmp");
        EXPECT_EQ(sem_cod_cult[0], cult_vago);
        EXPECT_EQ(leira(s, 12), "az_cou.bmp cresce3.bmp");
        EXPECT_EQ(std::stoi(s.terra.texto), std::stoi(hoje_) + 2);
        EXPECT_EQ(faltam(s), "0");
        EXPECT_EQ(botao(s, 2) + botao(s, 3), "acesoapagado");
        EXPECT_EQ(anim_quadros, 22);
    });
    semeia_com_mouse("c_alf", 0).confere([&] { EXPECT_EQ(sem_cod_cult[0], cult_alface); });
    roteiro.espera_ms(2400).confere([&] { EXPECT_EQ(s.previsao.figura->caminho, "C:\\anima\\planet01.bmp"); });
    roteiro.clica("tempo_real").confere([&] {
        EXPECT_EQ(s.terra.texto, hoje_);
        EXPECT_EQ(leira(s, 0), "az_alf.bmp cresce3.bmp"); // a de verdade; a semeada na previsão se foi
        EXPECT_EQ(leira(s, 12), "az_cou.bmp cresce1.bmp");
        EXPECT_EQ(botao(s, 1) + botao(s, 2) + botao(s, 3), "acesoapagadoapagado");
    });
    // Sem previsão ligada, só a animação: acaba na figura de hoje.
    roteiro.espera_ms(900).clica("tempo_real").espera_ms(900).confere([&] {
        EXPECT_EQ(s.tempo_real.figura->caminho, fig_dia_semana());
        EXPECT_EQ(sem_idade[13], 2);
    });
    laco();
}

TEST_F(Sementeira, PasseioGiraAsFacesEAcabaPorSiOuPorUmClique) {
    musica_ligada = true;
    trilha_sem = "\\sefimc.wav";
    semeia(0, cult_alface, 2);
    sem_check[0] = -1;
    auto& s = abre();
    EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{"\\sefimc.wav"}));
    roteiro.espera_ms(350).confere([&] {
        EXPECT_EQ(s.Command4(3).figura_apagada->caminho, "C:\\anima\\tra02.bmp"); // apagada: a face apagada gira
        EXPECT_EQ(s.Command4(4).figura_apagada->caminho, "C:\\anima\\enx02.bmp");
        EXPECT_EQ(botao(s, 1), "feito");
    });
    roteiro.espera_ms(12'000).confere([&] {
        EXPECT_EQ(s.timer_.intervalo + s.Timer1.intervalo, 0);
        EXPECT_EQ(s.Command4(3).figura_apagada->caminho, "C:\\anima\\tra04bw.bmp");
        EXPECT_EQ(s.Command4(4).figura_apagada->caminho, "\\trab3pb.bmp");
        EXPECT_EQ(botao(s, 1), "aceso"); // montada de novo, sem olhar o feito
    });
    laco();
    // Um clique num trato corta a apresentação, e a série dele corre só.
    sem_check[0] = 0;
    auto& outra = abre();
    roteiro.espera_ms(320).clica("Command4", 1).espera_ms(250).confere([&] {
        EXPECT_EQ(outra.Timer1.intervalo, 0);
        EXPECT_EQ(outra.Command4(3).figura_apagada->caminho, "C:\\anima\\tra04bw.bmp");
        EXPECT_EQ(outra.Command4(1).figura->caminho, "C:\\anima\\li07.bmp");
        EXPECT_TRUE(outra.Label4(0).visivel);
    });
    laco();
    musica_ligada = false;
    EXPECT_EQ(abre().timer_.intervalo, 0);
}

TEST_F(Sementeira, SeriesDosTratosDaoUmaVoltaEPulamODezDaLimpeza) {
    semeia(0, cult_alface, 2);
    semeia(1, cult_couve, 3);
    semeia(2, cult_alface, 4);
    auto& s = abre();
    std::vector<std::string> faces;
    // Uma face por tique, sem repetir as do repouso.
    const auto volta = [&](int i, int tiques) {
        roteiro.confere([&] { faces.clear(); }).clica("Command4", i).espera_ms(50);
        for (int t = 0; t < tiques; ++t)
            roteiro.espera_ms(100).confere([&, i] { faces.push_back(s.Command4(i).figura->caminho.substr(9)); });
    };
    volta(1, 14);
    roteiro.confere([&] {
        EXPECT_EQ(faces, (std::vector<std::string>{"li06.bmp", "li07.bmp", "li08.bmp", "li09.bmp", "li11.bmp",
                                                   "li12.bmp", "li00.bmp", "li01.bmp", "li02.bmp", "li03.bmp",
                                                   "li04.bmp", "li05.bmp", "li06.bmp", "li06.bmp"}));
    });
    volta(2, 15);
    roteiro.confere([&] {
        EXPECT_EQ(faces[0] + faces[7] + faces[12] + faces[13] + faces[14],
                  "des06.bmpdes00.bmpdes05.bmpdes06.bmpdes06.bmp");
    });
    volta(3, 15);
    roteiro.confere([&] { EXPECT_EQ(faces[0] + faces[13] + faces[14], "tra04.bmptra04.bmptra04.bmp"); });
    laco();
}

TEST_F(Sementeira, CadaSaidaLevaAoSeuLugar) {
    som_ligado = true;
    primeira_carga = false;
    roteiro.duracao_dos_sons = 400;
    struct Saida {
        const char* controle;
        int indice;
        int demora; // até a fala ou a tela seguinte
        const char* fala;
        const char* topico;
        TelaId destino;
    };
    const Saida saidas[] = {
        {"hortelino", -1, 1550, "", "", TelaId::INTRONEW},
        {"pic_agenda", -1, 1250, "\\vamage.wav", "", TelaId::age},
        {"pic_horta", -1, 1350, "\\vamhor.wav", "", TelaId::trabalhando_na_horta},
        {"Command4", 4, 1350, "\\vamhor.wav", "", TelaId::trabalhando_na_horta},
        {"lbl_atividades", -1, 10, "\\ajuda.wav", "Atividades_Sem", TelaId::help},
        {"lbl_verduras", -1, 10, "\\ajuda.wav", "Culturas2", TelaId::help},
    };
    for (const Saida& saida : saidas) {
        planta(0, cult_alface, 2); // acende "Horta"
        abre();
        roteiro.tocados.clear();
        topico_help.clear();
        EXPECT_EQ(tela_origem, "sementeira");
        roteiro.clica(saida.controle, saida.indice).espera_ms(saida.demora);
        if (*saida.fala != '\0')
            roteiro.confere([&] {
                EXPECT_EQ(roteiro.tocados, std::vector<std::string>{dir_audio + saida.fala}) << saida.controle;
                EXPECT_TRUE(carregada(TelaId::controle_da_sementeira)) << saida.controle; // ouve-se até o fim
            });
        roteiro.espera_ms(600).confere([&] {
            EXPECT_FALSE(carregada(TelaId::controle_da_sementeira)) << saida.controle;
            EXPECT_TRUE(carregada(saida.destino)) << saida.controle;
            EXPECT_EQ(topico_help, saida.topico);
        });
        laco();
    }
    abre();
    roteiro.clica("lbl_tempo").esta_em("ok_help").confere([] { EXPECT_EQ(tela_ativa()->titulo, "Tempo Real"); });
    roteiro.tecla(SDLK_ESCAPE).clica("tempo").escreve("9").tecla(SDLK_9).confere([] {
        EXPECT_EQ(tela_ativa()->controle("tempo")->texto, "10");
    });
    laco();
}

} // namespace
} // namespace verdalia
