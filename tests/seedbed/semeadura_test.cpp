// Semear: o que o pedido exige, o que se arrasta para as leiras e o que se tira delas.
#include "seedbed/mesa.h"

namespace verdalia {
namespace {

TEST_F(Sementeira, LoteDoPedidoSemeadoSomeDaListaEVemOParabens) {
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
    // O que ninguém pediu e um segundo lote também se semeiam, sem novo quadro; o botão é o que estava à vista.
    semeia_com_mouse("c_alf", 21);
    semeia_com_mouse("c_tom", 10).esta_em("controle_da_sementeira");
    laco();
    EXPECT_EQ(leira(s, 21), "az_alf.bmp cresce0.bmp");
    EXPECT_EQ(leira(s, 10), "botao_tom.bmp cresce0.bmp");
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>(3, "\\blip.wav")); // um por queda, com a voz desligada
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

TEST_F(Sementeira, LeiraTiradaPedeConfirmacaoEOLoteVoltaAFaltar) {
    seq_pedido[cult_alface] = 1;
    semeia(13, cult_alface, 1);
    auto& s = abre();
    EXPECT_EQ(faltam(s), "");
    for (const bool sim : {false, true})
        leva_para_fora(13).pergunta("Atenção|Quer 'excluir' a  muda ?", sim).confere([&, sim] {
            EXPECT_EQ(sem_cod_cult[13], sim ? cult_nenhuma : cult_alface);
            EXPECT_EQ(sem_nome[13] + std::to_string(sem_idade[13]), sim ? "0" : "Alface1");
            EXPECT_EQ(leira(s, 13) + faltam(s), sim ? "vazia crescepb.bmp0" : "az_alf.bmp cresce1.bmp");
        });
    semeia_com_mouse("c_alf", 13).quadro("Parabéns");
    laco();
    EXPECT_EQ(sem_cod_cult[13], cult_alface);
}

TEST_F(Sementeira, NomeDaCulturaSeOuveUmaVezPorEntradaEOCliqueCala) {
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
    for (const char* nome : {"Image3", "CRESCE"}) roteiro.clica(nome, 12);
    roteiro.clica_em(420, 575);
    laco();
    EXPECT_EQ(sem_cod_cult[11], cult_tomate);
    EXPECT_EQ(falas("\\tomate.wav"), 6);
    EXPECT_EQ(std::count(roteiro.tocados.begin(), roteiro.tocados.end(), "\\silencio.wav"), 3);
}

TEST_F(Sementeira, ArrasteCortadoPorUmDialogoNaoPerdeNada) {
    semeia(0, cult_alface, 4);
    semeia(1, cult_couve, 1);
    abre();
    // A piscada do transplante acaba com a mensagem enquanto o teclado carrega a leira 1.
    roteiro.clica("Command4", 3).clica("Label4", 0).clica("Image3", 1).tecla(SDLK_RETURN).espera_ms(2000);
    roteiro.aviso("Transplante - Sementeira/Horta|Para fazer o transplante va para a tela da horta e arraste para "
                  "algum espaço vazio as verduras indicadas.");
    roteiro.esta_em("controle_da_sementeira");
    // O hortelão já ia saindo quando se perguntou pela leira: ele espera a resposta.
    roteiro.confere([] { primeira_carga = false; }).clica("hortelino");
    leva_para_fora(0).esta_em("form_ok_nao").espera_ms(1600).clica("opções", 0).espera_ms(200).esta_em("INTRONEW");
    laco();
    EXPECT_EQ(sem_cod_cult[0], cult_nenhuma);
    EXPECT_EQ(sem_cod_cult[1], cult_couve);
}

TEST_F(Sementeira, AsLeirasEstaoNosSeusLugaresEAcendemInteiras) {
    auto& s = abre();
    for (int r = 0; r < n_leiras; ++r) {
        const Retangulo muda = s.Image3(r).lugar(), cresce = s.CRESCE(r).lugar();
        EXPECT_DOUBLE_EQ(muda.x, (2490 + 660 * (r % 11)) / 15.0) << r;
        EXPECT_DOUBLE_EQ(muda.y, (r < 11 ? 3810 : 6090) / 15.0) << r;
        EXPECT_DOUBLE_EQ(cresce.y, (r < 11 ? 4500 : 6780) / 15.0) << r;
        EXPECT_DOUBLE_EQ(s.CRESCE(r).realce().altura, cresce.y + cresce.altura - muda.y) << r;
        EXPECT_DOUBLE_EQ(s.Image3(r).realce().y, muda.y) << r;
    }
}

} // namespace
} // namespace verdalia
