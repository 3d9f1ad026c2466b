#include "data/conselho.h"

#include "apoio.h"

namespace verdalia {

struct Conselho : Partida {
    // O conselho da horta depois de pôr canteiros da cultura com essas idades.
    static std::string com_canteiros(std::int16_t cultura, std::int16_t pedido,
                                     std::initializer_list<std::int16_t> idades) {
        esvazia();
        seq_pedido[cultura] = pedido;
        int i = 0;
        for (const std::int16_t idade : idades) planta(i++, cultura, idade);
        return conselho_de_plantio(cultura);
    }
};

TEST_F(Conselho, DizOProximoPassoDeCadaCulturaNaHorta) {
    EXPECT_EQ(com_canteiros(cult_cenoura, 0, {}), "não está no pedido da feira");
    EXPECT_EQ(com_canteiros(cult_cenoura, 2, {}), "plante 2 canteiros nesta semana");
    EXPECT_EQ(com_canteiros(cult_cenoura, 2, {0, 5}), "plante 1 canteiro nesta semana");
    EXPECT_EQ(com_canteiros(cult_cenoura, 1, {0}), "o próximo plantio é daqui a 2 semanas");
    EXPECT_EQ(com_canteiros(cult_quiabo, 2, {1, 6}), "o próximo plantio é daqui a 2 semanas");
    EXPECT_EQ(com_canteiros(cult_quiabo, 1, {1, 6}), "o próximo plantio é daqui a 7 semanas"); // sobra um
    // As que vêm da sementeira.
    EXPECT_EQ(com_canteiros(cult_couve, 1, {}), "semeie antes na sementeira");
    EXPECT_EQ(com_canteiros(cult_couve, 0, {}), "não está no pedido da feira");
    semeia(3, cult_couve, 1);
    semeia(4, cult_couve, 4);
    semeia(5, cult_tomate, 4);
    EXPECT_EQ(conselho_de_plantio(cult_couve), "as mudas ficam prontas daqui a 1 semana");
    semeia(4, cult_couve, 5);
    EXPECT_EQ(conselho_de_plantio(cult_couve), "transplante 1 canteiro nesta semana");
}

TEST_F(Conselho, DizQuandoSemearDeNovo) {
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "não está no pedido da feira");
    seq_pedido[cult_couve] = 3;
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "semeie uma leira nesta semana");
    semeia(0, cult_couve, 2);
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "a próxima semeadura é daqui a 10 semanas");
    planta(0, cult_couve, 1); // 5 na sementeira e 1 aqui, de 12: falta menos do que a leira
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "a próxima semeadura é daqui a 10 semanas");
    semeia(0, cult_vago, 0);
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "a próxima semeadura é daqui a 6 semanas");
    st_idade[0] = 7;
    EXPECT_EQ(conselho_de_semeadura(cult_couve), "semeie uma leira nesta semana");
}

TEST_F(Conselho, ContaComoEstaCadaLugar) {
    // O que a situação diz, com o primeiro canteiro ou a última leira assim; as memórias são pepino e chicória.
    // clang-format off
    const struct {
        std::int16_t cultura, idade, feito;
        const char* situacao;
    } casos[] = {
        {cult_cenoura, 2, 0, "A 1 · Cenoura · semana 3 de 14 · agora: limpar\ndepois: desbastar, daqui a 2 semanas"},
        {cult_cenoura, 2, -1, "A 1 · Cenoura · semana 3 de 14 · agora: limpar (feito)\ndepois: desbastar, daqui a 2 semanas"},
        {cult_alface, 0, 0, "A 1 · Alface · semana 1 de 8\ndepois: repor as mudas que falharam, daqui a 1 semana"},
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
