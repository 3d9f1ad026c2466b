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
    // O canteiro: a idade e o que a situação diz depois de "A 1 · ".
    const struct {
        std::int16_t cultura, idade;
        const char* situacao;
    } canteiros[] =
        {
            // clang-format off
        {cult_cenoura, 2, "Cenoura · semana 3 de 14 · agora: limpar\ndepois: desbastar, daqui a 2 semanas"},
        {cult_alface, 0, "Alface · semana 1 de 8\ndepois: repor as mudas que falharam, daqui a 1 semana"}, // o plantio está feito por si
        {cult_alface, 5, "Alface · semana 6 de 8\ndepois: colher uma parte, daqui a 1 semana"},
        {cult_alface, 7, "Alface · semana 8 de 8 · agora: colher tudo"},
        {cult_vago, 0, "livre\nantes: Pepino, Chicória"},
            // clang-format on
        },
      leiras[] = {
          {cult_couve, 2, "Couve · semana 3 de 6 · agora: limpar\ndepois: desbastar, daqui a 1 semana"},
          {cult_couve, 4, "Couve · semana 5 de 6\ndepois: transplantar, daqui a 1 semana"},
          {cult_couve, 5, "Couve · semana 6 de 6\npronta para transplantar: leve-a nesta semana para a horta"},
          {cult_nenhuma, 0, "livre"},
      };
    st_last_i_cu[0] = cult_pepino;
    st_last_last_i_cu[0] = cult_chicoria;
    for (const auto& c : canteiros) {
        planta(0, c.cultura, c.idade);
        EXPECT_EQ(situacao_do_canteiro(0), std::string("A 1 · ") + c.situacao);
    }
    for (const auto& l : leiras) {
        semeia(21, l.cultura, l.idade);
        EXPECT_EQ(situacao_da_leira(21), std::string("B 11 · ") + l.situacao);
    }
    planta(99, cult_cenoura, 2);
    st_check[99] = -1;
    EXPECT_NE(situacao_do_canteiro(99).find("J 10 · Cenoura · semana 3 de 14 · agora: limpar (feito)"),
              std::string::npos);
    st_last_i_cu[50] = cult_alface;
    EXPECT_EQ(situacao_do_canteiro(50) + situacao_do_canteiro(51), "F 1 · livre\nantes: AlfaceF 2 · livre");
}

} // namespace verdalia
