// Semear: o que o pedido exige, o que se arrasta para as leiras e o que se tira delas.
#include "seedbed/mesa.h"

#include "flow/calendario.h"

#include <malloc.h>

namespace verdalia {
namespace {

TEST_F(Sementeira, LoteDoPedidoSemeadoSomeDaListaEVemOParabens) {
    seq_pedido[cult_alface] = 1;
    seq_pedido[cult_cenoura] = 3; // vai direto ao canteiro
    auto& s = abre();
    EXPECT_EQ(faltam(s), "0");
    EXPECT_EQ(s.Label3(0).texto, "1");
    EXPECT_EQ(destacados(s), 1);
    roteiro.clica("Label3", 0);
    mensagem("Alface|Voce deve plantar 1 lote de Alface na sementeira");
    semeia_com_mouse("c_alf", 0);
    quadro_parabens().confere([&] {
        EXPECT_EQ(faltam(s), "");
        EXPECT_EQ(sem_cod_cult[0], cult_alface);
        EXPECT_EQ(sem_nome[0] + std::to_string(sem_idade[0]), "Alface0");
        EXPECT_EQ(leira(s, 0), "az_alf.bmp cresce0.bmp");
        EXPECT_EQ(destacados(s), 1); // o destaque fica até o fim da visita
    });
    // O que ninguém pediu e um segundo lote também se semeiam, sem novo quadro; o botão é o que estava à vista.
    semeia_com_mouse("c_alf", 21);
    semeia_com_mouse("c_tom", 10).esta_em("controle_da_sementeira").confere([&] {
        EXPECT_EQ(sem_cod_cult[21], cult_alface);
        EXPECT_EQ(leira(s, 10), "botao_tom.bmp cresce0.bmp");
    });
    laco();
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>(3, "\\blip.wav")); // um por queda, com a voz desligada
}

TEST_F(Sementeira, OcupadaLeiraSobreLeiraEFundoNaoMudamNada) {
    semeia(3, cult_tomate, 2);
    semeia(4, cult_couve, 1);
    abre();
    semeia_com_mouse("c_alf", 3);
    mensagem("Ocupado ...|Este 'lote' está ocupado");
    roteiro.arrasta("Image3", 3, 185.5, 280).arrasta("Image3", 3, 361.5, 280); // sobre vazia e sobre ocupada
    roteiro.arrasta("Image3", 3, 185.5, 340);                                  // sobre o crescimento de outra
    roteiro.arrasta("Image3", 3, 900, 280);                                    // fora da janela
    roteiro.arrasta("c_alf", -1, 420, 575).arrasta("c_alf", -1, 185.5, 340);
    roteiro.arrasta("Image3", 0, 420, 575); // vazia: não se carrega
    roteiro.esta_em("controle_da_sementeira");
    laco();
    EXPECT_EQ(sem_cod_cult[3], cult_tomate);
    EXPECT_EQ(sem_idade[3], 2);
    EXPECT_EQ(sem_cod_cult[4], cult_couve);
    EXPECT_EQ(std::count(sem_cod_cult.begin(), sem_cod_cult.begin() + n_leiras, cult_nenhuma), n_leiras - 2);
    EXPECT_EQ(roteiro.tocados.size(), 1U);
}

TEST_F(Sementeira, LeiraTiradaPedeConfirmacaoEOLoteVoltaAFaltar) {
    seq_pedido[cult_alface] = 1;
    semeia(13, cult_alface, 1);
    auto& s = abre();
    EXPECT_EQ(faltam(s), "");
    leva_para_fora(13).esta_em("form_ok_nao").confere([] {
        EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Atenção|Quer 'excluir' a  muda ?");
    });
    roteiro.clica("opções", 1).confere([] { EXPECT_EQ(sem_cod_cult[13], cult_alface); });
    leva_para_fora(13).clica("opções", 0).confere([&] {
        EXPECT_EQ(sem_cod_cult[13], cult_nenhuma);
        EXPECT_EQ(sem_nome[13] + std::to_string(sem_idade[13]), "0");
        EXPECT_EQ(leira(s, 13), "vazia crescepb.bmp");
        EXPECT_EQ(faltam(s), "0");
        EXPECT_FALSE(s.Image3(13).arrasta);
    });
    semeia_com_mouse("c_alf", 13).tecla(SDLK_ESCAPE).confere([&] { EXPECT_EQ(sem_cod_cult[13], cult_alface); });
    laco();
}

TEST_F(Sementeira, LoteVoltaAFaltarNoIntervaloDaCultura) {
    seq_pedido[cult_tomate] = 5; // um lote basta
    seq_pedido[cult_alface] = 1;
    seq_pedido[cult_couve] = 2;
    auto& s = abre();
    EXPECT_EQ(faltam(s), "0 4 6");
    for (int i = 0; i < 3; ++i) semeia(i, std::array{cult_tomate, cult_alface, cult_couve}[i], 0);
    const auto em = [&](int semanas) {
        for (int i = 0; i < semanas; ++i) passa_semana();
        s.pl_sem(cult_vago);
        return faltam(s);
    };
    EXPECT_EQ(em(0), "");
    EXPECT_EQ(em(1), "");
    EXPECT_EQ(em(1), "0"); // a alface, de duas em duas semanas, embora a leira ainda cresça
    EXPECT_EQ(sem_cod_cult[1], cult_alface);
    EXPECT_EQ(em(2), "0 6"); // o tomate, de quatro em quatro
    // Transplantadas aos 4 e aos 5: a couve conta pelo canteiro por mais 7 semanas, a alface já não.
    EXPECT_EQ(em(1), "0 6");
    sem_cod_cult[2] = cult_vago;
    planta(50, cult_couve, 0);
    planta(51, cult_alface, 0);
    EXPECT_EQ(em(0), "0 6");
    EXPECT_EQ(em(6), "0 6");
    EXPECT_EQ(em(1), "0 4 6");
}

TEST_F(Sementeira, SemPedidoTudoSeDestacaENadaSePede) {
    auto& s = abre();
    EXPECT_EQ(destacados(s), 13);
    EXPECT_EQ(faltam(s), "");
    semeia_com_mouse("c_rep", 5).esta_em("controle_da_sementeira");
    laco();
    EXPECT_EQ(sem_cod_cult[5], cult_repolho);
}

TEST_F(Sementeira, NomeDaCulturaSeOuveUmaVezPorEntradaEOCliqueCala) {
    som_ligado = true;
    semeia(0, cult_couve, 1);
    auto& s = abre();
    const auto falas = [this](const char* clipe) {
        return std::count(roteiro.tocados.begin(), roteiro.tocados.end(), dir_audio + clipe);
    };
    roteiro.clica("c_tom").confere([&] { EXPECT_EQ(falas("\\tomate.wav"), 1); });
    semeia_com_mouse("c_tom", 1).confere([&] {
        EXPECT_EQ(falas("\\tomate.wav"), 2);
        EXPECT_EQ(roteiro.tocados.size(), 4U); // e dois blips, com a voz ligada
    });
    // Uma leira que passa por cima de um botão também diz o nome dele; cair nele não faz nada.
    roteiro.arrasta("Image3", 0, 175, 130).confere([&] { EXPECT_EQ(falas("\\tomate.wav"), 3); });
    // Mexer o mouse em cima do botão não repete; a semeadura pelo teclado, que não passa pelo fundo, também zera.
    roteiro.arrasta("c_tom", -1, 188, 138).confere([&] { EXPECT_EQ(falas("\\tomate.wav"), 4); });
    roteiro.confere([&] { s.foco = s.controle("c_tom"); });
    for (const int codigo : {SDLK_RETURN, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN, SDLK_RETURN}) roteiro.tecla(codigo);
    roteiro.confere([] { EXPECT_EQ(sem_cod_cult[11], cult_tomate); }).tecla(SDLK_ESCAPE);
    roteiro.confere([&] { EXPECT_EQ(falas("\\tomate.wav"), 6); });
    for (const char* nome : {"Image3", "CRESCE"}) roteiro.clica(nome, 12);
    roteiro.clica_em(420, 575).confere(
        [&] { EXPECT_EQ(std::count(roteiro.tocados.begin(), roteiro.tocados.end(), "\\silencio.wav"), 3); });
    laco();
    EXPECT_EQ(sem_cod_cult[0], cult_couve);
}

TEST_F(Sementeira, SoOTecladoSemeiaTrataETira) {
    semeia(10, cult_alface, 2);
    auto& s = abre();
    const auto tecla = [this](int codigo, int vezes = 1) {
        for (int i = 0; i < vezes; ++i) roteiro.tecla(codigo);
    };
    tecla(SDLK_TAB); // o hortelão
    tecla(SDLK_RIGHT);
    roteiro.confere([&] { EXPECT_EQ(s.foco->nome, "c_alf"); });
    tecla(SDLK_RETURN);
    tecla(SDLK_DOWN, 2); // passa pelo pimentão e chega às leiras
    tecla(SDLK_RETURN);
    roteiro.confere([] { EXPECT_EQ(sem_cod_cult[1], cult_alface); });
    tecla(SDLK_RIGHT, 7);
    roteiro.confere([&] { EXPECT_EQ(s.foco, &s.Command4(1)); });
    tecla(SDLK_SPACE);
    tecla(SDLK_DOWN, 2); // pelo alho-poró
    roteiro.confere([&] { EXPECT_EQ(s.foco, &s.Label4(10)); });
    tecla(SDLK_SPACE);
    roteiro.confere([] { EXPECT_EQ(sem_check[10], -1); }).espera_ms(2000);
    // Desce da marca para a muda, que o último alvo da roda, o fundo, recebe.
    roteiro.confere([&] { s.foco = &s.Image3(10); });
    tecla(SDLK_RETURN);
    roteiro.tecla(SDLK_TAB, true);
    tecla(SDLK_RETURN);
    roteiro.esta_em("form_ok_nao").tecla(SDLK_s);
    laco();
    EXPECT_EQ(sem_cod_cult[10], cult_nenhuma);
}

TEST_F(Sementeira, ArrasteCortadoPorUmDialogoNaoPerdeNada) {
    semeia(0, cult_alface, 4);
    semeia(1, cult_couve, 1);
    abre();
    // A piscada do transplante acaba com a mensagem enquanto o teclado carrega a leira 1.
    roteiro.clica("Command4", 3).clica("Label4", 0).clica("Image3", 1).tecla(SDLK_RETURN).espera_ms(2000);
    mensagem("Transplante - Sementeira/Horta|Para fazer o transplante va para a tela da horta e arraste para algum "
             "espaço vazio as verduras indicadas.");
    roteiro.esta_em("controle_da_sementeira");
    // O hortelão parte enquanto se pergunta pela leira: a resposta ainda vale.
    roteiro.confere([] { primeira_carga = false; }).clica("hortelino");
    leva_para_fora(0).esta_em("form_ok_nao").espera_ms(1600).clica("opções", 0).esta_em("INTRONEW");
    laco();
    EXPECT_EQ(sem_cod_cult[0], cult_nenhuma);
    EXPECT_EQ(sem_cod_cult[1], cult_couve);
}

TEST_F(Sementeira, VisitasNaoDeixamMemoriaPresa) {
    for (int r = 0; r < n_leiras; ++r) semeia(r, cult_berinjela, static_cast<std::int16_t>(r % 9));
    const auto visita = [this] {
        abre();
        pinta_tudo();
        descarrega_tudo();
    };
    for (int i = 0; i < 5; ++i) visita();
    const std::size_t antes = mallinfo2().uordblks;
    for (int i = 0; i < 20; ++i) visita();
    EXPECT_LT(mallinfo2().uordblks, antes + 4096);
}

} // namespace
} // namespace verdalia
