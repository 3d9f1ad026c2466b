// Semear e tratar: o que o pedido exige, o que se arrasta para as leiras, os tratos da semana e o que a previsão
// mostra.
#include "seedbed/mesa.h"

namespace verdalia {
namespace {

TEST_F(Sementeira, OLoteDoPedidoEntraComParabensEVoltaAFaltarTirado) {
    seq_pedido[cult_alface] = 5;  // um lote basta
    seq_pedido[cult_cenoura] = 3; // vai direto ao canteiro
    auto& s = abre();
    EXPECT_EQ(faltam(s) + s.Label3(0).texto + marcas(s, 3) + s.Label1(10).texto + s.Label2(1).texto, "01___11B");
    EXPECT_EQ(destacados(s), 1);
    semeia_com_mouse("c_alf", 0).quadro("Parabéns").confere([&] {
        EXPECT_EQ(faltam(s), "");
        EXPECT_EQ(sem_nome[0] + std::to_string(sem_idade[0]), "Alface0");
        EXPECT_EQ(leira(s, 0), "az_alf.bmp cresce0.bmp");
        EXPECT_EQ(destacados(s), 1); // o destaque fica até o fim da visita
    });
    leva_para_fora(0).esta_em("form_ok_nao").tecla(SDLK_RETURN); // onde se perde algo, Enter não confirma
    for (const bool sim : {false, true})
        leva_para_fora(0).pergunta("Atenção|Quer 'excluir' a  muda ?", sim).confere([&, sim] {
            EXPECT_EQ(sem_cod_cult[0], sim ? cult_nenhuma : cult_alface);
            EXPECT_EQ(sem_nome[0] + std::to_string(sem_idade[0]), sim ? "0" : "Alface0");
            EXPECT_EQ(leira(s, 0) + faltam(s), sim ? "vazia crescepb.bmp0" : "az_alf.bmp cresce0.bmp");
        });
    semeia_com_mouse("c_alf", 0).quadro("Parabéns");
    // O que ninguém pediu e um segundo lote também se semeiam, sem novo quadro; o botão é o que estava à vista.
    semeia_com_mouse("c_alf", 21);
    semeia_com_mouse("c_tom", 10).esta_em("controle_da_sementeira");
    laco();
    EXPECT_EQ(leira(s, 21), "az_alf.bmp cresce0.bmp");
    EXPECT_EQ(leira(s, 10), "botao_tom.bmp cresce0.bmp");
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>(5, "\\blip.wav")); // um por queda, com a voz desligada
    esvazia();
    EXPECT_EQ(destacados(abre()), 13); // sem pedido, semeia-se o que se quiser
}

TEST_F(Sementeira, OcupadaLeiraSobreLeiraEFundoNaoMudamNada) {
    semeia(3, cult_tomate, 2);
    semeia(4, cult_couve, 1);
    abre();
    const std::string antes = horta();
    // A muda de uma leira ocupada e a terra embaixo dela.
    for (const double y : {280, 340})
        roteiro.arrasta("c_alf", -1, 317.5, y).aviso("Ocupado ...|Este 'lote' está ocupado");
    // Sobre vazia, sobre ocupada, sobre o crescimento de outra e fora da janela.
    for (const auto& [x, y] : {std::pair{185.5, 280}, {361.5, 280}, {185.5, 340}, {900, 280}})
        roteiro.arrasta("Image3", 3, x, y);
    roteiro.arrasta("c_alf", -1, 420, 575);
    leva_para_fora(0).esta_em("controle_da_sementeira"); // vazia: não se carrega
    laco();
    EXPECT_EQ(horta(), antes);
}

TEST_F(Sementeira, ArrasteCortadoPorUmDialogoNaoPerdeNada) {
    semeia(0, cult_alface, 4);
    semeia(1, cult_couve, 1);
    auto& s = abre();
    // A piscada do transplante acaba com a mensagem enquanto o teclado carrega a leira 1.
    roteiro.clica("Command4", 3).clica("Label4", 0).clica("Image3", 1).tecla(SDLK_RETURN).espera_ms(2000);
    roteiro.esta_em("ok").clica("opções").esta_em("controle_da_sementeira");
    // O teclado sozinho semeia, e o nome diz-se.
    roteiro.confere([&] { som_ligado = true, s.foco = s.controle("c_tom"); });
    roteiro.teclas({SDLK_RETURN, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN});
    laco();
    EXPECT_EQ(sem_cod_cult[1], cult_couve);
    EXPECT_EQ(std::count(sem_cod_cult.begin(), sem_cod_cult.end(), cult_tomate) + falas("\\tomate.wav"), 2);
    EXPECT_EQ(std::count(roteiro.tocados.begin(), roteiro.tocados.end(), "\\blip.wav"), 2); // um da queda
}

TEST_F(Sementeira, SoComTratosESemeaduraFeitosVemOParabens) {
    semeia(0, cult_alface, 2);
    semeia(2, cult_alface, 3); // nada a fazer
    semeia(4, cult_alface, 4);
    seq_pedido[cult_tomate] = 1;
    auto& s = abre();
    EXPECT_EQ(botoes(s), "A-AA");
    roteiro.clica("Command4", 1).confere([&] { EXPECT_EQ(marcas(s, 5), "[]____"); }).clica("Label4", 0);
    roteiro.confere([&] { EXPECT_EQ(botoes(s) + nome(s.Command4(1).figura_apagada), "f-AAli06bw.bmp"); });
    roteiro.espera_ms(2000).confere([&] { EXPECT_EQ(marcas(s, 5) + s.modo_sem, "_____"); });
    roteiro.clica("Command4", 3).clica("Label4", 4).espera_ms(2000);
    roteiro.aviso("Transplante - Sementeira/Horta|Para fazer o transplante va para a tela da horta e arraste para "
                  "algum espaço vazio as verduras indicadas.");
    semeia_com_mouse("c_tom", 8).quadro("Parabéns");
    laco();
    EXPECT_EQ(sem_check[0] + sem_check[4], -2);
}

TEST_F(Sementeira, AberturaOlhaOFeitoEAMontagemDaSemanaNao) {
    for (const int r : {0, 1}) semeia(r, cult_alface, 2);
    sem_check[0] = -1;
    semeia(2, cult_alface, 0);  // PLS não acende nada
    semeia(3, cult_cenoura, 1); // não é da sementeira
    semeia(5, cult_berinjela, 7);
    planta(0, cult_alface, 2);
    st_check[0] = -1;
    auto& s = abre();
    EXPECT_EQ(botoes(s), "A--f"); // pela leira 1
    EXPECT_EQ(leira(s, 2) + "|" + leira(s, 3), "az_alf.bmp cresce0.bmp|vazia cresce1.bmp");
    const auto montada = [&] {
        s.Monta_sem2();
        return botoes(s);
    };
    sem_check[1] = -1;
    EXPECT_EQ(montada(), "f--f");
    s.Monta_sem();
    EXPECT_EQ(botoes(s), "A--A");
    st_check[0] = 0;
    EXPECT_EQ(montada(), "f--A");
    st_cod_cult[0] = cult_vago;
    EXPECT_EQ(montada(), "f---");
    sem_idade[5] = 8; // uma leira pronta também leva à horta, e se vê de longe
    EXPECT_EQ(montada(), "f-AA");
    EXPECT_TRUE(s.CRESCE(5).pronta && !s.CRESCE(0).pronta);
}

TEST_F(Sementeira, PrevisaoVaiEVoltaComLeirasQueSePerdemEQueSoExistiramNela) {
    semeia(0, cult_alface, 3);  // pronta na primeira semana, perdida na segunda
    semeia(12, cult_couve, 1);  // LI na primeira, DES na segunda
    semeia(13, cult_tomate, 2); // LI hoje
    seq_pedido[cult_alface] = 1;
    auto& s = abre();
    const std::string de_hoje = horta(), semana = s.tempo.texto;
    roteiro.clica("Command4", 1).confere([&] { EXPECT_TRUE(s.Label4(13).visivel); }).clica("previsao").confere([&] {
        EXPECT_FALSE(s.Label4(12).visivel || s.Label4(13).visivel); // as marcas eram da semana passada
        EXPECT_TRUE(s.CRESCE(0).pronta && s.Command4(3).ativo);
    });
    roteiro.espera_ms(500).clica("previsao").confere([&] {
        EXPECT_EQ(leira(s, 0) + "|" + leira(s, 12), "vazia crescepb.bmp|az_cou.bmp cresce3.bmp");
        EXPECT_EQ(std::stoi(s.terra.texto), std::stoi(semana) + 2);
        EXPECT_EQ(faltam(s) + botoes(s).substr(0, 3), "0-A-");
    });
    semeia_com_mouse("c_alf", 0).confere([&] { EXPECT_EQ(sem_cod_cult[0], cult_alface); });
    roteiro.clica("tempo_real").clica("lbl_tempo").quadro("Tempo Real");
    laco();
    EXPECT_EQ(s.terra.texto, semana);
    EXPECT_EQ(leira(s, 0) + "|" + leira(s, 12), "az_alf.bmp cresce3.bmp|az_cou.bmp cresce1.bmp");
    EXPECT_EQ(botoes(s).substr(0, 3), "A--");
    EXPECT_EQ(horta(), de_hoje); // a semeada na previsão se foi
}

} // namespace
} // namespace verdalia
