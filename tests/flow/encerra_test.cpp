// O sistema manda acabar já: nada se pergunta, e o que se fez não se perde.
#include "roteiro.h"

namespace verdalia {
namespace {

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

TEST_F(Encerra, NaoEsperaQueAVozAcabe) {
    som_ligado = true;
    roteiro.duracao_dos_sons = 60'000;
    roteiro.clica("pic_feira").espera_ms(1300).confere([this] { EXPECT_EQ(falas("\\vamfei.wav"), 1); });
    roteiro.clica_em(64, 136).encerra().acabou();
    abre(TelaId::INTRONEW);
    EXPECT_LT(relogio_de_teste.ms, 2000);
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
