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
    // A leira e o canteiro de uma cultura pedida, e se falta semear; -1: não há.
    const struct {
        std::int16_t cultura, na_leira, no_canteiro;
        bool falta;
    } casos[] = {
        {cult_cenoura, -1, -1, false}, // não passa pela sementeira
        {cult_couve, -1, -1, true},    // intervalo de 12 semanas, 5 de sementeira
        {cult_couve, 0, -1, false},
        {cult_couve, -1, 6, false}, // semeado há 11 semanas
        {cult_couve, -1, 7, true},
        {cult_alface, 1, -1, false}, // de duas em duas semanas, embora a leira anterior ainda cresça
        {cult_alface, 2, -1, true},
    };
    for (const auto& c : casos) {
        esvazia();
        seq_pedido[c.cultura] = 5;
        if (c.na_leira >= 0) semeia(0, c.cultura, c.na_leira);
        if (c.no_canteiro >= 0) planta(50, c.cultura, c.no_canteiro);
        EXPECT_EQ(falta_semear(), c.falta) << nome_cult[c.cultura] << c.na_leira << c.no_canteiro;
    }
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
