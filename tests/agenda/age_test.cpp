// A agenda na tela: as listas, as figuras das tarefas, a previsão, a impressão e os caminhos.
#include "agenda/age.h"

#include "agenda/regras/plano.h"
#include "roteiro.h"

namespace verdalia {
namespace {

using namespace std::string_literals;

struct Agenda : PartidaNaTela {
    Agenda() { prepara_banco(); }
    age& abre() { return entra_em<age>(TelaId::age); }
    // As linhas à vista de uma lista: "Alface|A 1|; Couve||B 2".
    static std::string lista(age& a, int l) {
        ListaNaTela& t = *a.na_tela[l];
        const auto texto = [](auto& coluna, int i) { return "|" + (coluna.existe(i) ? coluna(i).texto : ""); };
        std::string s;
        for (int i = 0; i < 10 && !t.cultura(i).texto.empty(); ++i)
            s += (i > 0 ? "; " : "") + t.cultura(i).texto + texto(t.aonde, i) + texto(t.aonde_sem, i);
        return s;
    }
    static std::string todas(age& a) {
        std::string s;
        for (int l = 0; l < n_listas; ++l) s += lista(a, l) + "/";
        return s;
    }
};

TEST_F(Agenda, MostraOTrabalhoDaSemanaComOSeuLugar) {
    seq_pedido[cult_cenoura] = 2;
    seq_pedido[cult_couve] = 1;
    semeia(0, cult_alface, 4); // pronta, e ninguém pediu mais
    semeia(1, cult_alface, 2); // limpeza
    semeia(12, cult_chicoria, 0);
    planta(7, cult_alface, 2);  // limpeza
    planta(99, cult_nabo, 0);   // plantado nesta semana
    planta(10, cult_quiabo, 4); // desbaste
    planta(11, cult_alface, 6); // colheita parcial
    planta(12, cult_alface, 7); // final
    planta(13, cult_alface, 4); // amontoa
    planta(14, cult_alface, 1); // reposição: não é da agenda
    st_check[7] = -1;           // o que já foi feito continua na agenda da semana
    auto& a = abre();
    EXPECT_EQ(todas(a), "Cenoura| 2m|; Nabo|J 10|/Couve||1x; Chicória||B 2/Alface| 1m|A 1/"
                        "Alface||A 2; Alface|A 8|/Quiabo|B 1|/Alface|B 4|/Alface|B 2|/Alface|B 3|/");
}

TEST_F(Agenda, ListaCompridaRolaComARodaEComOTeclado) {
    for (int i = 0; i < 22; ++i) planta(i, cult_alface, 2);
    planta(50, cult_couve, 3);
    auto& a = abre();
    BarraRolagem& barra = a.na_tela[r_li]->barra;
    EXPECT_TRUE(barra.visivel && !a.na_tela[r_tr]->barra.visivel && lista(a, r_li).starts_with("Alface|A 1|"));
    roteiro.confere([&] { a.foco = &barra; }).teclas({SDLK_TAB, SDLK_DOWN}).confere([&] {
        EXPECT_TRUE(lista(a, r_li).starts_with("Alface|A 2|") && lista(a, r_li).ends_with("Alface|B 1|"));
    });
    roteiro.tecla(SDLK_END).confere([&] { EXPECT_TRUE(lista(a, r_li).ends_with("Couve|F 1|")); });
    // O polegar, a página e a ponta, com o mouse.
    const Retangulo r = barra.lugar();
    const double x = a.origem_x() + r.x + r.largura / 2, y = a.origem_y() + r.y;
    roteiro.aperta(x, y + r.altura * 0.7, 1).aponta(x, 0).solta(x, 0, 1).confere([&] { EXPECT_EQ(barra.valor, 0); });
    roteiro.clica_em(x, y + r.altura - 30).confere([&] { EXPECT_EQ(barra.valor, 10); }).tecla(SDLK_END);
    roteiro.aponta(660, 200).roda(3).confere([&] { EXPECT_EQ(barra.valor, 10); }).clica("previsao");
    laco();
    // Na semana seguinte a lista é outra, e recomeça do alto, sem barra.
    EXPECT_EQ(std::to_string(barra.valor) + lista(a, r_li) + (barra.visivel ? "barra" : ""), "0");
}

TEST_F(Agenda, PrevisaoVaiEVoltaComAsListasEAsTabelas) {
    planta(0, cult_alface, 5);
    planta(1, cult_rabanete, 4);
    auto& a = abre();
    const auto tabelas = [this] {
        return consulta(arquivo, "SELECT DISTINCT sem FROM relat UNION SELECT mod FROM rr");
    };
    const std::string de_hoje = todas(a) + horta() + tabelas();
    const auto mostra = [&](const char* esperado) {
        return [&, esperado] { EXPECT_EQ(lista(a, r_cop) + lista(a, r_cof) + a.terra.texto + tabelas(), esperado); };
    };
    roteiro.clica("previsao").confere(mostra("Alface|A 1|Rabanete|A 2|1111\n")).espera_ms(500);
    roteiro.clica("previsao").confere(mostra("Alface|A 1|1212\nA 2\n"));
    roteiro.clica("tempo_real").confere([&] { EXPECT_EQ(todas(a) + horta() + tabelas(), de_hoje); });
    laco();
}

TEST_F(Agenda, CadaTarefaFalaEDaASuaVolta) {
    const struct {
        const char* figura;
        Lista lista;
        std::int16_t cultura, idade; // um canteiro que a pede; -1: uma leira
        const char *ha, *nao_ha, *repouso;
        int tiques;
    } tarefas[] = {
        // clang-format off
        {"pld", r_pld, cult_nabo, 0, "\\agepla.wav", "\\agenpla.wav", "pla06.bmp", 61},
        {"pls", r_pls, -1, 0, "\\agesem.wav", "\\agensem.wav", "sem08.bmp", 79},
        {"tr", r_tr, cult_alface, 0, "\\agetra.wav", "\\agentra.wav", "tra04.bmp", 79},
        {"limp", r_li, cult_alface, 2, "\\agelim.wav", "\\l2.wav", "li06.bmp", 85},
        {"desb", r_des, cult_quiabo, 4, "\\agedes.wav", "\\d2.wav", "des06.bmp", 79},
        {"amo", r_amo, cult_alface, 4, "\\ageamo.wav", "\\am2.wav", "amo05.bmp", 73},
        {"cop", r_cop, cult_alface, 6, "\\agecop.wav", "\\cp2.wav", "cop05.bmp", 85},
        {"cof", r_cof, cult_alface, 7, "\\agecof.wav", "\\cf2.wav", "cof07.bmp", 85},
        // clang-format on
    };
    som_ligado = true;
    for (const auto& t : tarefas)
        for (const bool ha : {false, true}) {
            SCOPED_TRACE(t.figura);
            esvazia();
            if (ha) t.cultura > 0 ? planta(0, t.cultura, t.idade) : semeia(0, cult_alface, 0);
            auto& a = abre();
            const Figura& f = a.na_tela[t.lista]->trato;
            roteiro.tocados.clear();
            // A volta começa e acaba no repouso.
            roteiro.clica(t.figura).espera_ms(105).confere([&] { EXPECT_EQ(nome(f.figura), t.repouso); });
            roteiro.espera_ms((t.tiques - 2) * 100).confere([&] { EXPECT_EQ(anim_quadros, 1); }).espera_ms(200);
            roteiro.confere([&] { EXPECT_EQ(nome(f.figura) + std::to_string(a.timer_.intervalo), t.repouso + "0"s); });
            laco();
            EXPECT_EQ(roteiro.tocados, std::vector<std::string>{dir_audio + (ha ? t.ha : t.nao_ha)});
        }
}

} // namespace
} // namespace verdalia
