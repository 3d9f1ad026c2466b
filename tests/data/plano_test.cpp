// O que falta plantar e semear, e o que se diz disso a quem joga.
#include "data/plano.h"

#include "apoio.h"
#include "data/conselho.h"

namespace verdalia {

using Plano = Partida;

TEST_F(Plano, DizOProximoPassoDeCadaCulturaNaHortaENaSementeira) {
    // O pedido de uma cultura, as idades nos canteiros e nas leiras, e o conselho: se manda agir, algo falta.
    const std::string fora = "não está no pedido da feira";
    const struct {
        std::int16_t cultura, pedido;
        std::vector<std::int16_t> canteiros, leiras;
        bool na_horta;
        std::string conselho;
    } casos[] = {
        {cult_cenoura, 0, {}, {}, true, fora},
        {cult_cenoura, 2, {}, {}, true, "plante 2 canteiros nesta semana"},
        {cult_cenoura, 2, {1, 2}, {}, true, "plante 1 canteiro nesta semana"},
        {cult_cenoura, 1, {0}, {}, true, "o próximo plantio é daqui a 2 semanas"},
        {cult_quiabo, 2, {1, 6}, {}, true, "o próximo plantio é daqui a 2 semanas"},
        {cult_quiabo, 1, {1, 6}, {}, true, "o próximo plantio é daqui a 7 semanas"}, // sobra um
        {cult_couve, 1, {}, {}, true, "semeie antes na sementeira"},
        {cult_couve, 0, {}, {}, true, fora},
        {cult_couve, 1, {}, {1, 4}, true, "as mudas ficam prontas daqui a 1 semana"},
        {cult_couve, 0, {1}, {4, 5}, true, "transplante 1 canteiro nesta semana"}, // a muda se perderia
        {cult_couve, 0, {0}, {5}, true, fora},
        {cult_couve, 0, {}, {}, false, fora},
        {cult_couve, 3, {}, {}, false, "semeie uma leira nesta semana"},
        {cult_couve, 3, {}, {2}, false, "a próxima semeadura é daqui a 10 semanas"},
        {cult_couve, 3, {1}, {2}, false, "a próxima semeadura é daqui a 10 semanas"},
        {cult_couve, 3, {6}, {}, false, "a próxima semeadura é daqui a 1 semana"}, // semeado há 11, de 12
        {cult_couve, 3, {7}, {}, false, "semeie uma leira nesta semana"},
        {cult_alface, 5, {}, {1}, false, "a próxima semeadura é daqui a 1 semana"},
        {cult_alface, 5, {}, {2}, false, "semeie uma leira nesta semana"}, // embora a anterior ainda cresça
    };
    for (const auto& c : casos) {
        esvazia();
        semeia(20, cult_tomate, 4);
        seq_pedido[c.cultura] = c.pedido;
        for (int i = 99; const std::int16_t idade : c.canteiros) planta(i--, c.cultura, idade);
        for (int r = 21; const std::int16_t idade : c.leiras) semeia(r -= 3, c.cultura, idade);
        SCOPED_TRACE(nome_cult[c.cultura] + ": " + c.conselho);
        EXPECT_EQ(c.na_horta ? conselho_de_plantio(c.cultura) : conselho_de_semeadura(c.cultura), c.conselho);
        EXPECT_EQ(c.na_horta ? falta_plantar() : falta_semear(), c.conselho.ends_with("nesta semana"));
    }
}

TEST_F(Plano, Pendencias) {
    planta(0, cult_alface, 0);  // TR
    planta(1, cult_alface, 1);  // REP
    planta(2, cult_cenoura, 0); // PLD
    planta(3, cult_cenoura, 1); // nada
    semeia(0, cult_alface, 0);  // PLS
    EXPECT_EQ(pend_canteiro() + pend_leira(), 0);
    planta(98, cult_alface, 2); // LI
    planta(99, cult_alface, 7); // COF
    st_check[98] = -1;
    EXPECT_EQ(pend_canteiro(), 1);
    st_check[99] = -1;
    EXPECT_EQ(pend_canteiro(), 2);
    semeia(21, cult_alface, 4); // TR, que na sementeira conta
    EXPECT_EQ(pend_leira(), 1);
    sem_check[21] = -1;
    EXPECT_EQ(pend_leira(), 2);
}

TEST_F(Plano, ContaComoEstaCadaLugar) {
    // O que a situação diz, com o primeiro canteiro ou a última leira assim; as memórias são pepino e chicória.
    // clang-format off
    const struct {
        std::int16_t cultura, idade, feito;
        const char* situacao;
    } casos[] = {
        {cult_cenoura, 2, 0, "A 1 · Cenoura · semana 3 de 14 · agora: limpar\ndepois: desbastar, daqui a 2 semanas"},
        {cult_cenoura, 2, -1, "A 1 · Cenoura · semana 3 de 14 · agora: limpar (feito)\ndepois: desbastar, daqui a 2 semanas"},
        {cult_alface, 0, 0, "A 1 · Alface · semana 1 de 8\ndepois: repor as mudas que falharam, daqui a 1 semana"},
        {cult_alface, 1, 0, "A 1 · Alface · semana 2 de 8 · agora: repor as mudas que falharam\ndepois: limpar, daqui a 1 semana"},
        {cult_alface, 5, 0, "A 1 · Alface · semana 6 de 8\ndepois: colher uma parte, daqui a 1 semana"},
        {cult_alface, 7, 0, "A 1 · Alface · semana 8 de 8 · agora: colher tudo"},
        {cult_vago, 0, 0, "A 1 · livre\nantes: Pepino, Chicória"},
        {cult_couve, 2, 0, "B 11 · Couve · semana 3 de 6 · agora: limpar\ndepois: desbastar, daqui a 1 semana"},
        {cult_couve, 4, 0, "B 11 · Couve · semana 5 de 6\ndepois: transplantar, daqui a 1 semana"},
        {cult_couve, 5, 0, "B 11 · Couve · semana 6 de 6\npronta para transplantar: leve-a nesta semana para a horta"},
        {cult_nenhuma, 0, 0, "B 11 · livre"},
    };
    // clang-format on
    st_last_i_cu[0] = st_last_i_cu[50] = cult_pepino;
    st_last_last_i_cu[0] = cult_chicoria;
    for (const auto& c : casos) {
        planta(0, c.cultura, c.idade);
        semeia(21, c.cultura, c.idade);
        st_check[0] = c.feito;
        EXPECT_EQ(*c.situacao == 'A' ? situacao_do_canteiro(0) : situacao_da_leira(21), c.situacao);
    }
    EXPECT_EQ(situacao_do_canteiro(50) + situacao_do_canteiro(99), "F 1 · livre\nantes: PepinoJ 10 · livre");
}

} // namespace verdalia
