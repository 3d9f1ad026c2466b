// O caminho de uma alface, da feira ao canteiro que a lembra: as telas de verdade, o banco de verdade, e o programa
// fechado entre uma semana e outra.
#include "seedbed/mesa.h"

namespace verdalia {
namespace {

struct Caminho : PartidaNaTela {
    // O jogador abre o programa, depois de `semanas`; a memória da vez anterior não existe mais.
    Roteiro& abre_o_jogo(int semanas) {
        recomeca_laco();
        relogio_de_teste.momento += std::chrono::days{7 * semanas};
        esvazia();
        auto_abastecido = false;
        roteiro.esta_em("Conf_cd").clica("Command1");
        if (semanas > 0) roteiro.quadro("Nova Semana");
        return roteiro.esta_em("INTRONEW");
    }
    Roteiro& vai_a_sementeira() { return roteiro.clica("pic_semen").espera_ms(1000).esta_em("controle_da_sementeira"); }
    Roteiro& vai_a_horta() { return roteiro.clica("pic_horta").espera_ms(1500).esta_em("trabalhando_na_horta"); }
    // Volta ao centro pelo hortelão, sai pela porta gravando, e o programa acaba.
    void sai_gravando(bool ha_pendencia) {
        roteiro.clica("hortelino").espera_ms(1700).esta_em("INTRONEW").clica("saida").espera_ms(1050);
        roteiro.pergunta("Saindo ...|Deseja sair", true).pergunta("Gravar alterações|Deseja salvar ?", true);
        if (ha_pendencia) roteiro.quadro("Pendências");
        joga();
    }
    static controle_da_sementeira& s() { return carrega_como<controle_da_sementeira>(TelaId::controle_da_sementeira); }
    static trabalhando_na_horta& h() { return carrega_como<trabalhando_na_horta>(TelaId::trabalhando_na_horta); }
};

TEST_F(Caminho, DaFeiraAoCanteiroQueLembraAAlface) {
    abre_o_jogo(0).clica("pic_feira").espera_ms(1200).esta_em("feira_horta").clica("plc", 17);
    roteiro.clica("Label2").esta_em("trabalhando_na_horta").confere([] {
        EXPECT_FALSE(h().Label3(0).visivel); // sem muda, não se planta
        EXPECT_TRUE(h().Command2(2).ativo);
    });
    roteiro.clica("Command2", 2).espera_ms(1000).esta_em("controle_da_sementeira");
    roteiro.confere([] { EXPECT_EQ(Sementeira::faltam(s()), "0"); }).arrasta("c_alf", -1, 185.5, 280);
    roteiro.esta_em("ok_help").tecla(SDLK_ESCAPE);
    sai_gravando(false);

    // Duas semanas depois: limpeza, e um lote novo que já se pede.
    abre_o_jogo(2);
    vai_a_sementeira().confere([] {
        EXPECT_EQ(Sementeira::leira(s(), 0), "az_alf.bmp cresce2.bmp");
        EXPECT_EQ(Sementeira::botoes(s())[0], 'A');
        EXPECT_EQ(Sementeira::faltam(s()), "0");
    });
    roteiro.clica("Command4", 1).clica("Label4", 0).espera_ms(2000).esta_em("controle_da_sementeira");
    sai_gravando(true);

    // Mais duas: as mudas estão prontas; o plantio leva as da leira.
    abre_o_jogo(2);
    vai_a_sementeira().confere([] {
        EXPECT_EQ(sem_check[0], 0);
        EXPECT_EQ(Sementeira::botoes(s()).substr(0, 3), "--A");
        EXPECT_TRUE(s().CRESCE(0).pronta);
    });
    roteiro.clica("Command4", 3).clica("Label4", 0).espera_ms(2000).esta_em("ok").clica("opções");
    vai_a_horta().confere([] { EXPECT_EQ(h().Label3(0).texto, "1"); }).arrasta("c_alf", -1, 220, 184).confere([] {
        EXPECT_TRUE(st_cod_cult[0] == cult_alface && sem_cod_cult[0] == cult_vago && !h().Label3(0).visivel);
    });
    sai_gravando(true);

    // Os tratos do canteiro, semana a semana, até o que o acaba.
    const struct {
        int botao;
        const char* trato;
    } da_semana[] = {{0, ""}, {5, "LI"}, {0, ""}, {7, "AM"}, {0, ""}, {8, "COP"}, {9, "COF"}};
    for (const auto& [botao, trato] : da_semana) {
        abre_o_jogo(1);
        vai_a_horta().confere([botao = botao, trato = trato] {
            for (const int i : {5, 6, 7, 8, 9}) EXPECT_EQ(h().Command2(i).ativo, i == botao) << trato << st_idade[0];
        });
        sai_gravando(true);
    }
    abre_o_jogo(1);
    vai_a_horta().confere([] { EXPECT_TRUE(st_cod_cult[0] == cult_vago && !h().cant.existe(0)); });
    roteiro.arrasta("c_chi", -1, 220, 184).esta_em("form_ok_nao").clica("opções", 0);
    sai_gravando(true);

    prepara_banco();
    le_canteiros();
    EXPECT_EQ(st_cod_cult[0], cult_chicoria);
    EXPECT_EQ(st_last_i_cu[0], cult_alface);
}

} // namespace
} // namespace verdalia
