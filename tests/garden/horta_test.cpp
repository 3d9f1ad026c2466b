// A horta, jogada pelos controles: plantar, ser questionado, excluir, tratar, olhar a previsão.
#include "roteiro.h"

namespace verdalia {
namespace {

struct Horta : PartidaNaTela {
    Horta() { prepara_banco(); }
    trabalhando_na_horta& abre() { return entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta); }
    // Arrasta um botão de cultura até o canteiro.
    Roteiro& planta_com_mouse(const char* botao, int canteiro) {
        return roteiro.arrasta(botao, -1, 220 + canteiro % 10 * 42, 184 + canteiro / 10 * 42);
    }
    static std::string falta(trabalhando_na_horta& h, std::int16_t cultura) {
        const Rotulo& r = h.Label3(h.botao_da_cultura(cultura).k);
        return r.visivel ? r.texto : "";
    }
    static auto quantos(std::int16_t cultura) {
        return std::count(st_cod_cult.begin(), st_cod_cult.begin() + n_canteiros, cultura);
    }
};

TEST_F(Horta, LegendaDoPedidoSeEsvaziaPlantandoEVemOParabens) {
    seq_pedido[cult_cenoura] = 2;
    seq_pedido[cult_alface] = 1; // sem muda pronta, não se pode plantar
    auto& h = abre();
    EXPECT_EQ(falta(h, cult_cenoura) + "|" + falta(h, cult_alface), "2|");
    EXPECT_NE(nome(h.controle("c_alf")->figura), "az_alf.bmp");
    planta_com_mouse("c_cen", 0).confere([&] { EXPECT_EQ(falta(h, cult_cenoura) + st_nome[0], "1Cenoura"); });
    planta_com_mouse("c_cen", 99).quadro("Parabéns");
    planta_com_mouse("c_ber", 50).esta_em("trabalhando_na_horta"); // ninguém pediu, e planta-se
    roteiro.arrasta("cant", 99, 660, 300).tecla(SDLK_s).confere([&] { EXPECT_EQ(falta(h, cult_cenoura), "1"); });
    laco();
    EXPECT_EQ(nome(h.controle("c_cen")->figura), "az_cen.bmp"); // o destaque fica até o fim da visita
    EXPECT_EQ(st_cod_cult[99] * 100 + st_cod_cult[50], -100 + cult_quiabo);
    EXPECT_EQ(roteiro.tocados.size(), 4U); // um blip por queda, com a voz desligada
}

TEST_F(Horta, QuedaNasBordasNasFrestasENosOcupados) {
    som_ligado = true;
    abre();
    // O primeiro pixel, o último, e o limite entre duas casas.
    roteiro.arrasta("c_cen", -1, 200, 164).arrasta("c_cen", -1, 618, 582).arrasta("c_cen", -1, 241.9, 206);
    // A fresta à direita da figura do canteiro 0, e a própria figura.
    for (const double x : {241, 220})
        roteiro.arrasta("c_ber", -1, x, 180).aviso("Ocupado|Este canteiro já está ocupado");
    // Um canteiro sobre a terra, um botão no fundo, um canteiro fora da janela: nada.
    roteiro.arrasta("cant", 0, 400, 400).arrasta("c_ber", -1, 660, 300).arrasta("cant", 0, 900, 300);
    roteiro.esta_em("trabalhando_na_horta");
    laco();
    EXPECT_EQ(falas("\\cenoura.wav") * 10 + falas("\\quiabo.wav"), 12); // só o ocupado o deixa dizer de novo
    EXPECT_EQ(std::count(roteiro.tocados.begin(), roteiro.tocados.end(), "\\blip.wav"), 6);
    for (const int i : {0, 99, 10}) EXPECT_EQ(st_cod_cult[i], cult_cenoura) << i;
    EXPECT_EQ(quantos(cult_quiabo), 0);
}

TEST_F(Horta, RegraDeRotacaoPerguntaPorCadaMemoriaEAUltimaRespostaDecide) {
    // As duas memórias do canteiro, o que o jogador responde a cada pergunta, e se a alface fica.
    const struct {
        std::int16_t ultima, penultima;
        std::vector<bool> respostas;
        bool planta;
    } casos[] = {{-1, -1, {}, true},
                 {cult_cenoura, cult_nabo, {}, true},
                 {cult_chicoria, -1, {true}, true},
                 {cult_cenoura, cult_chicoria, {false}, false},
                 {cult_alface, cult_chicoria, {true, false}, false},
                 {cult_alface, cult_chicoria, {false, true}, true}};
    semeia(4, cult_alface, 4);
    auto& h = abre();
    for (int i = 0; const auto& caso : casos) {
        const std::int16_t antes = i % 2 == 0 ? cult_nenhuma : cult_vago;
        st_cod_cult[i] = antes;
        st_last_i_cu[i] = caso.ultima;
        st_last_last_i_cu[i] = caso.penultima;
        planta_com_mouse("c_alf", i);
        for (const bool sim : caso.respostas) {
            roteiro.confere([&h, i] { // já se vê enquanto se pergunta
                EXPECT_TRUE(tela_ativa()->titulo == "Regra de Rotação" && h.cant(i).visivel);
            });
            roteiro.clica("opções", sim ? 0 : 1);
        }
        roteiro.esta_em("trabalhando_na_horta").confere([&, i, antes] {
            EXPECT_TRUE(st_cod_cult[i] == (caso.planta ? cult_alface : antes) && h.cant.existe(i) == caso.planta) << i;
        });
        ++i;
    }
    laco();
}

TEST_F(Horta, TransplanteGastaAsLeirasNoUltimoCanteiroPedidoEAExclusaoGuardaAMemoria) {
    seq_pedido[cult_alface] = 3;
    for (const int r : {4, 9}) semeia(r, cult_alface, 4);
    semeia(10, cult_alface, 2);
    semeia(11, cult_tomate, 5);
    st_last_i_cu[2] = cult_nabo;
    auto& h = abre();
    EXPECT_EQ(falta(h, cult_alface) + falta(h, cult_tomate), "31"); // ninguém pediu o tomate, mas a muda se perderia
    for (int i = 0; i < 3; ++i)
        planta_com_mouse("c_alf", i).confere([i] {
            for (const int r : {4, 9}) EXPECT_EQ(sem_cod_cult[r], i < 2 ? cult_alface : cult_vago) << i;
        });
    for (const bool sim : {false, true})
        roteiro.arrasta("cant", 2, 660, 300)
            .pergunta("Atenção ...|Confirma que quer 'excluir' essa verdura ?", sim)
            .confere([&h, sim] {
                EXPECT_EQ(h.cant.existe(2) && h.txt_label.existe(2), !sim);
                EXPECT_EQ(st_nome[2] + std::to_string(st_cod_cult[2]), sim ? "-1" : "Alface1");
            });
    laco();
    EXPECT_EQ(st_last_i_cu[2], cult_nabo);
    EXPECT_EQ(sem_nome[9] + std::to_string(sem_idade[9]) + falta(h, cult_alface), "0");
    EXPECT_TRUE(sem_cod_cult[10] == cult_alface && sem_cod_cult[11] == cult_tomate); // não prontas, ou de outra cultura
}

TEST_F(Horta, TratoChamaMarcaDesmarcaPiscaEApaga) {
    for (const int i : {0, 1, 2}) planta(i, cult_alface, 2); // LI
    planta(3, cult_alface, 4);                               // AM
    st_check[2] = -1;
    seq_pedido[cult_alface] = 1;
    auto& h = abre();
    const auto marcas = [&](const char* esperadas) -> Roteiro& {
        return roteiro.confere([&h, esperadas] {
            std::string t;
            for (int i = 0; i < 4; ++i) t += h.txt_label(i).visivel ? "[" + h.txt_label(i).texto + "]" : "_";
            EXPECT_EQ(t, esperadas);
        });
    };
    roteiro.clica("Command2", 5);
    marcas("[][][ok]_").clica("txt_label", 0).clica("txt_label", 0).confere([] { EXPECT_EQ(st_check[0], 0); });
    marcas("[ok][][ok]_").clica("Command2", 5); // o "ok" só some na próxima chamada
    marcas("[][][ok]_").clica("txt_label", 0).clica("txt_label", 1).confere([&] {
        EXPECT_FALSE(h.Command2(5).ativo);
        EXPECT_EQ(h.Command2(5).cor_fundo, h.txt_label(0).cor_fundo);
    });
    roteiro.espera_ms(250);
    marcas("____").espera_ms(100);
    // O outro trato corta a piscada sem perder o "ok"; com ele acaba o trabalho da semana.
    marcas("[ok][ok][ok]_").espera_ms(100).clica("Command2", 7).confere([&] {
        EXPECT_EQ(h.txt_label(0).texto + std::to_string(h.Timergame.intervalo), "ok0");
    });
    marcas("___[]").clica("txt_label", 3).espera_ms(2000).quadro("Parabéns");
    marcas("____");
    laco();
    // De volta na mesma semana: coloridos, mas apagados.
    auto& de_novo = abre();
    EXPECT_TRUE(!de_novo.Command2(7).ativo && de_novo.Command2(7).cor_fundo == (Cor{128, 64, 64}));
}

TEST_F(Horta, PrevisaoVaiEVoltaComCanteirosQueAcabamEQueSoExistiramNela) {
    planta(5, cult_rabanete, 4); // acaba na segunda semana
    planta(6, cult_cenoura, 2);
    seq_pedido[cult_rabanete] = 1;
    auto& h = abre();
    const std::string de_hoje = horta(), semana = h.tempo.texto;
    roteiro.clica("previsao").espera_ms(2400).clica("previsao").confere([&] {
        EXPECT_EQ(std::stoi(h.terra.texto), std::stoi(semana) + 2);
        EXPECT_EQ(falta(h, cult_rabanete), "1");
        EXPECT_TRUE(!h.cant.existe(5) && h.Command2(6).ativo); // DES da cenoura aos 4
        EXPECT_EQ(h.faixa.texto, "Previsão: daqui a 2 semanas");
    });
    planta_com_mouse("c_rab", 7).confere([&] { EXPECT_TRUE(h.cant.existe(7)); });
    roteiro.clica("pic_semen").espera_ms(1000);
    laco();
    auto& volta = abre(); // a previsão não é de uma tela
    roteiro.clica("tempo_real").confere([&] {
        EXPECT_EQ(volta.terra.texto, semana);
        EXPECT_TRUE(volta.cant.existe(5) && volta.cant(5).visivel && !volta.cant.existe(7));
    });
    laco();
    EXPECT_EQ(horta(), de_hoje);
}

} // namespace
} // namespace verdalia
