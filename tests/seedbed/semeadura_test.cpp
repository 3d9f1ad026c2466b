// Semear: o que o pedido exige, o que se arrasta para as leiras e o que se tira delas.
#include "seedbed/mesa.h"

namespace verdalia {
namespace {

TEST_F(Sementeira, OLoteDoPedidoEntraComParabensEVoltaAFaltarTirado) {
    seq_pedido[cult_alface] = 5;  // um lote basta
    seq_pedido[cult_cenoura] = 3; // vai direto ao canteiro
    auto& s = abre();
    EXPECT_EQ(faltam(s) + s.Label3(0).texto, "01");
    EXPECT_EQ(destacados(s), 1);
    semeia_com_mouse("c_alf", 0).quadro("Parabéns").confere([&] {
        EXPECT_EQ(faltam(s), "");
        EXPECT_EQ(sem_nome[0] + std::to_string(sem_idade[0]), "Alface0");
        EXPECT_EQ(leira(s, 0), "az_alf.bmp cresce0.bmp");
        EXPECT_EQ(destacados(s), 1); // o destaque fica até o fim da visita
    });
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

TEST_F(Sementeira, NomeDaCulturaSeOuveUmaVezPorEntrada) {
    som_ligado = true;
    semeia(0, cult_couve, 1);
    auto& s = abre();
    roteiro.clica("c_tom");
    semeia_com_mouse("c_tom", 1);
    roteiro.arrasta("Image3", 0, 175, 130); // uma leira que passa por cima do botão também diz o nome dele
    roteiro.arrasta("c_tom", -1, 188, 138); // mexer o mouse em cima dele não repete
    // A semeadura pelo teclado, que não passa pelo fundo, também o deixa dizer de novo.
    roteiro.confere([&] { s.foco = s.controle("c_tom"); });
    roteiro.teclas({SDLK_RETURN, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN, SDLK_RETURN, SDLK_ESCAPE});
    laco();
    EXPECT_EQ(sem_cod_cult[11], cult_tomate);
    EXPECT_EQ(falas("\\tomate.wav"), 6);
}

} // namespace
} // namespace verdalia
