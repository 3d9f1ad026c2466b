// A partida do começo ao fim, como o jogador a faz: a pergunta da unidade, a semana nova, o centro e as saídas.
#include "roteiro.h"

#include <optional>

namespace verdalia {
namespace {

struct Centro : PartidaNaTela {
    // Deixa no disco uma horta gravada no dia dado.
    void guarda_horta(Dia gravada_em) {
        prepara_banco();
        planta(37, cult_alface, 6);
        st_last_i_cu[37] = cult_cenoura;
        seq_pedido[cult_alface] = 1;
        semeia(3, cult_tomate, 5);
        grava_semana(gravada_em);
        esvazia();
    }
    Roteiro& entra() { return roteiro.esta_em("Conf_cd").clica("Command1"); }

    const std::chrono::days semanas_3{21};
};

TEST_F(Centro, UnidadeSemFigurasDeixaEscolherDeNovoESairNaoGuardaNada) {
    roteiro.clica("Combo1").teclas({SDLK_DOWN, SDLK_RETURN}).clica("Command1").esta_em("ok").confere([] {
        EXPECT_NE(msg_texto.find("D:"), std::string::npos);
    });
    roteiro.clica("opções").esta_em("Conf_cd").clica("Combo1").teclas({SDLK_UP, SDLK_RETURN}).clica("Command1");
    roteiro.esta_em("INTRONEW").confere([] { EXPECT_EQ(dir_media, "C:"); });
    joga();
    recomeca_laco();
    guarda_horta(hoje() - semanas_3);
    roteiro.clica("Combo1").tecla(SDLK_DOWN).clica("Command2").acabou();
    joga();
    EXPECT_EQ(le_data_semana(), hoje() - semanas_3);
    le_cd();
    EXPECT_EQ(unidade_cd, 0);
}

TEST_F(Centro, HortaGuardadaEnvelheceOsDomingosQuePassaram) {
    guarda_horta(hoje() - semanas_3);
    entra().esta_em("ok_help").confere([this] {
        EXPECT_TRUE(st_idade[37] == 6 && le_data_semana() == hoje() - semanas_3); // envelhece depois do quadro
    });
    roteiro.quadro("Nova Semana").esta_em("INTRONEW").confere([] {
        // A alface acabou na segunda semana, e as mudas se perderam.
        EXPECT_EQ((std::vector{st_cod_cult[37], st_last_i_cu[37], st_last_last_i_cu[37], sem_cod_cult[3]}),
                  (std::vector{cult_vago, cult_alface, cult_cenoura, cult_vago}));
        EXPECT_TRUE(auto_abastecido && le_data_semana() == hoje());
    });
    // A viagem de ida e volta não recarrega nem avança nada; nem a mesma semana, sem nada plantado, se anuncia.
    roteiro.confere([] { planta(5, cult_cenoura, 0); }).clica("pic_agenda").espera_ms(1400).esta_em("age");
    roteiro.clica("hortelino").espera_ms(1700).confere([] { EXPECT_EQ(st_cod_cult[5], cult_cenoura); });
    joga();
    recomeca_laco();
    esvazia();
    grava_semana(hoje() - semanas_3);
    entra().esta_em("INTRONEW");
    joga();
}

TEST_F(Centro, PortaSemGravacaoESemTrabalhoAcabaEmSilencio) {
    guarda_horta(hoje());
    // Pelo teclado; o segundo fecho da janela, no meio da pergunta, não responde por ninguém; Esc é "Não".
    roteiro.tecla(SDLK_RETURN).esta_em("INTRONEW").confere([] { esvazia(); }).teclas({SDLK_TAB, SDLK_UP, SDLK_SPACE});
    roteiro.espera_ms(1050).esta_em("form_ok_nao").tecla(SDLK_ESCAPE).esta_em("INTRONEW");
    roteiro.fecha_janela().fecha_janela().esta_em("form_ok_nao").teclas({SDLK_s, SDLK_n}).acabou();
    joga();
    le_canteiros();
    EXPECT_EQ(st_cod_cult[37], cult_alface);
}

TEST_F(Centro, BancoEstragadoDeixaEscolherACopiaDaHorta) {
    guarda_horta(hoje());
    guarda_copia();
    escreve(arquivo, "isto não é um banco");
    const auto guardado = jogador / "hortas00 2026-03-04.mdb";
    for (const bool fecha : {true, false}) { // quem fecha a janela, ou desliga o computador, não respondeu
        roteiro.esta_em("form_ok_nao");
        fecha ? roteiro.fecha_janela() : roteiro.encerra();
        joga();
        recomeca_laco();
    }
    EXPECT_FALSE(std::filesystem::exists(guardado));
    roteiro.pergunta("Atenção ...|O arquivo da horta, \"hortas00.mdb\", está danificado. Há uma cópia da horta como "
                     "estava em 4/3/2026. Deseja continuar com ela ?",
                     true);
    roteiro.esta_em("ok").clica("opções");
    entra().esta_em("INTRONEW").confere([] { EXPECT_EQ(st_cod_cult[37], cult_alface); });
    joga();
    EXPECT_EQ(conteudo(guardado), "isto não é um banco");
}

// O relógio de uma partida para a seguinte: adiantado, atrasado, nas viradas de mês, de ano e de horário de verão.
TEST_F(Centro, ASemanaSoPassaNoDomingoDigaORelogioOQueDisser) {
    using std::chrono::hours, std::chrono::minutes;
    const struct {
        Dia gravada;
        Momento agora;
        int semanas;
        bool muito_adiante = false;
    } casos[] = {
        {dia(2026, 3, 4), dia(2026, 3, 3) + hours{9}, 0},
        {dia(2026, 3, 11), dia(2026, 3, 4), 0}, // uma semana de atraso ainda pode ser engano; mais se diz
        {dia(2026, 3, 12), dia(2026, 3, 4), 0, true},
        {dia(2026, 3, 7), dia(2026, 3, 8), 1},
        {dia(2026, 3, 8), dia(2026, 3, 7) + hours{23}, 0}, // atrasado para antes do domingo...
        {dia(2026, 3, 8), dia(2026, 3, 8) + hours{9}, 0},  // ...e acertado: o domingo não conta outra vez
        {dia(2026, 3, 4), dia(2126, 3, 4), 5218},
        {dia(2126, 3, 4), dia(2026, 3, 4), 0, true},
        {dia(2028, 12, 31), dia(2029, 1, 1), 0},
        {dia(2018, 11, 3), dia(2018, 11, 4) + hours{1}, 1},                // o domingo que começou à uma hora
        {dia(2018, 2, 17), dia(2018, 2, 17) + hours{23} + minutes{30}, 0}, // o sábado que teve duas vinte e três horas
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(texto_iso(c.gravada) + " " + texto_iso(std::chrono::floor<std::chrono::days>(c.agora)));
        recomeca_laco();
        relogio_de_teste.momento = c.agora;
        prepara_banco();
        planta(5, cult_couve, 0);
        grava_semana(c.gravada);
        entra();
        const std::string dito = "hoje é 4/3/2026.*até " + texto_do_dia(c.gravada);
        const auto confere = [&dito] { EXPECT_EQ(casa(msg_texto, dito.c_str()).size(), 1U) << msg_texto; };
        if (c.muito_adiante) roteiro.esta_em("ok").confere(confere).clica("opções");
        if (c.semanas > 0) roteiro.quadro("Nova Semana");
        roteiro.esta_em("INTRONEW");
        joga();
        EXPECT_EQ(st_idade[5], c.semanas < ciclo_horta[cult_couve] ? c.semanas : 0);
        EXPECT_EQ(le_data_semana(), std::max(c.gravada, hoje()));
    }
}

TEST_F(Centro, MeiaNoiteDeDomingoComOJogoAbertoContaUmaVezSo) {
    prepara_banco();
    planta(5, cult_couve, 0);
    grava_semana(dia(2026, 2, 28));
    consulta(arquivo, "INSERT INTO st VALUES (5,1,99,0,-1,-1)"); // o que não faz sentido é dito antes da semana nova
    const auto vira = [this] { relogio_de_teste.momento = dia(2026, 3, 8) + std::chrono::minutes{1}; };
    std::optional<BancoPreso> preso;
    for (const bool primeira :
         {true, false}) { // a meia-noite antes de pôr a semana em dia, sem poder gravar, ou depois
        recomeca_laco();
        relogio_de_teste.momento = dia(2026, 3, 7) + std::chrono::hours{23};
        entra();
        if (primeira) {
            roteiro.esta_em("ok").confere(vira).clica("opções");
            roteiro.esta_em("ok_help").confere([&] { preso.emplace(arquivo); }).tecla(SDLK_ESCAPE);
            roteiro.esta_em("ok").confere([&] { preso.reset(); }).clica("opções");
        }
        roteiro.esta_em("INTRONEW").confere(vira).confere([] { EXPECT_EQ(st_idade[5], 1); });
        roteiro.clica("saida").espera_ms(1050).clica("opções", 0).clica("opções", 0);
        joga();
        EXPECT_EQ(le_data_semana(), dia(2026, 3, 7));
    }
    recomeca_laco();
    entra().quadro("Nova Semana").esta_em("INTRONEW");
    joga();
    EXPECT_EQ(st_idade[5], 2);
}

} // namespace
} // namespace verdalia
