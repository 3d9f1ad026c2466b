// O que acontece quando o jogador, ou o disco, faz o que não se esperava.
#include "roteiro.h"

#include <sqlite3.h>

namespace verdalia {
namespace {

struct Descuido : PartidaNaTela {
    Descuido() { prepara_banco(); }
    void abre(TelaId tela) {
        primeira_carga = false;
        auto_abastecido = auto_abastecimento();
        mostra(tela);
    }
};

TEST_F(Descuido, SemanaQueNaoSePodeGravarNaoEnvelheceDuasVezes) {
    planta(5, cult_couve, 0);
    grava_semana(hoje() - std::chrono::days{7});
    sqlite3* outro = nullptr;
    roteiro.clica("Command1").esta_em("ok_help").confere([&] {
        ASSERT_EQ(sqlite3_open((jogador / "hortas00.mdb").c_str(), &outro), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(outro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    });
    roteiro.tecla(SDLK_ESCAPE).esta_em("ok").confere([&] { sqlite3_close(outro); }).clica("opções").esta_em("INTRONEW");
    roteiro.clica("saida").espera_ms(1050).teclas({SDLK_s, SDLK_s}).acabou();
    joga();
    EXPECT_EQ(le_data_semana(), hoje());
    le_canteiros();
    EXPECT_EQ(st_idade[5], 1);
}

TEST_F(Descuido, EnterRespondeSimAindaQueAPerguntaAnteriorTenhaSidoNao) {
    abre(TelaId::INTRONEW);
    roteiro.clica("saida").espera_ms(1050).clica("opções", 1);
    roteiro.clica("saida").espera_ms(1050).tecla(SDLK_s).confere([] {
        EXPECT_EQ(tela_ativa()->titulo, "Gravar alterações");
        st_cod_cult[0] = cult_nabo;
    });
    roteiro.tecla(SDLK_RETURN);
    laco();
    le_canteiros();
    EXPECT_EQ(st_cod_cult[0], cult_nabo);
}

TEST_F(Descuido, CliqueDuranteAFalaDaSaidaNaoValeNaTelaSeguinte) {
    som_ligado = true;
    roteiro.duracao_dos_sons = 900;
    abre(TelaId::INTRONEW);
    roteiro.clica("pic_feira").espera_ms(1300).clica_em(64, 136).espera_ms(1500).esta_em("feira_horta");
    laco();
    EXPECT_EQ(seq_pedido[cult_couve], 0);
}

TEST_F(Descuido, MouseLargaOQueOTecladoPegou) {
    abre(TelaId::trabalhando_na_horta);
    roteiro.confere([] { tela_ativa()->foco = tela_ativa()->controle("c_ber"); }).tecla(SDLK_RIGHT);
    roteiro.tecla(SDLK_RETURN).clica_em(220, 185).clica("hortelino").confere([] { EXPECT_EQ(anim_acao, 14); });
    laco();
    EXPECT_EQ(st_cod_cult[0], cult_quiabo);
}

TEST_F(Descuido, TelaQueSaiEsperaODialogoFecharENaoParaPorUmaMarca) {
    planta(12, cult_alface, 2);
    abre(TelaId::trabalhando_na_horta);
    auto& horta = carrega_como<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    roteiro.clica("Command2", 5).clica("hortelino").arrasta("cant", 12, 660, 300).esta_em("form_ok_nao");
    roteiro.espera_ms(3000).confere([] { EXPECT_TRUE(carregada(TelaId::trabalhando_na_horta)); }).clica("opções", 1);
    roteiro.espera_ms(200).esta_em("INTRONEW").clica("pic_horta").espera_ms(1500).esta_em("trabalhando_na_horta");
    roteiro.clica("Command2", 5).clica("hortelino").clica("txt_label", 12).espera_ms(2500).esta_em("INTRONEW");
    EXPECT_TRUE(horta.cant.existe(12));
    laco();
}

TEST_F(Descuido, PendenciasSaoAsDeHojeAindaNaPrevisao) {
    planta(0, cult_alface, 3); // nada hoje; na semana que vem, amontoa
    abre(TelaId::trabalhando_na_horta);
    roteiro.clica("previsao").espera_ms(50).fecha_janela().tecla(SDLK_s).tecla(SDLK_s).acabou(); // sem quadro nenhum
    laco();
    le_canteiros();
    EXPECT_EQ(st_idade[0], 3);
}

TEST_F(Descuido, LetrasEstragadasSeDescobremNoComeco) {
    escreve(jogador / "fontes" / "LiberationSans-Bold.ttf", "não é uma letra");
    fecha_fontes();
    EXPECT_THROW(abre_fontes(), std::runtime_error);
    std::filesystem::remove_all(jogador / "fontes");
    abre_fontes();
}

} // namespace
} // namespace verdalia
