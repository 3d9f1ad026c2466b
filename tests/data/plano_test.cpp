#include "data/plano.h"

#include "apoio.h"

namespace verdalia {

struct Plano : Partida {
    static std::string celula(std::int16_t c) {
        conta_canteiros_novos();
        return celula_plano(c);
    }
};

TEST_F(Plano, OPlantioSegueOIntervaloEAMudaProntaSoEsperaUmaSemana) {
    seq_pedido[cult_cenoura] = 2;
    EXPECT_EQ(celula(cult_cenoura), "2");
    planta(7, cult_cenoura, 0);
    EXPECT_EQ(celula(cult_cenoura), "1");
    planta(93, cult_cenoura, 1);
    EXPECT_EQ(celula(cult_cenoura), "-");
    EXPECT_FALSE(falta_plantar());
    st_idade[7] = st_idade[93] = 2;
    EXPECT_EQ(celula(cult_cenoura), "2");
    EXPECT_TRUE(falta_plantar());

    esvazia();
    seq_pedido[cult_alface] = 1;
    EXPECT_EQ(celula(cult_alface), "x");
    EXPECT_FALSE(falta_plantar());
    semeia(21, cult_alface, 4);
    EXPECT_EQ(celula(cult_alface), "1");
    planta(0, cult_alface, 1); // o pedido já está coberto, mas a muda se perderia
    EXPECT_EQ(celula(cult_alface), "1");
    EXPECT_TRUE(falta_plantar());
    planta(1, cult_alface, 0);
    EXPECT_EQ(celula(cult_alface), "-");
    sem_idade[21] = 3;
    EXPECT_EQ(celula(cult_alface), "x");
}

TEST_F(Plano, UmaLeiraRecenteBasta) {
    seq_pedido[cult_cenoura] = 4; // não passa pela sementeira
    EXPECT_FALSE(falta_semear());
    seq_pedido[cult_couve] = 5; // intervalo de 12 semanas, 5 de sementeira
    EXPECT_TRUE(falta_semear());
    semeia(0, cult_couve, 0);
    EXPECT_FALSE(falta_semear());
    semeia(0, cult_nenhuma, 0);
    planta(50, cult_couve, 6); // semeado há 11 semanas
    EXPECT_FALSE(falta_semear());
    st_idade[50] = 7;
    EXPECT_TRUE(falta_semear());
    // A alface se semeia de duas em duas semanas, embora a leira anterior ainda cresça.
    esvazia();
    seq_pedido[cult_alface] = 1;
    semeia(0, cult_alface, 1);
    EXPECT_FALSE(falta_semear());
    sem_idade[0] = 2;
    EXPECT_TRUE(falta_semear());
}

TEST_F(Plano, Pendencias) {
    planta(0, cult_alface, 0);  // TR
    planta(1, cult_alface, 1);  // REP
    planta(2, cult_cenoura, 0); // PLD
    planta(3, cult_cenoura, 1); // nada
    EXPECT_EQ(pend_canteiro(), 0);
    planta(98, cult_alface, 2); // LI
    planta(99, cult_alface, 7); // COF
    st_check[98] = -1;
    EXPECT_EQ(pend_canteiro(), 1);
    st_check[99] = -1;
    EXPECT_EQ(pend_canteiro(), 2);

    semeia(0, cult_alface, 0); // PLS
    EXPECT_EQ(pend_leira(), 0);
    semeia(21, cult_alface, 4); // TR, que na sementeira conta
    EXPECT_EQ(pend_leira(), 1);
    sem_check[21] = -1;
    EXPECT_EQ(pend_leira(), 2);
}

} // namespace verdalia
