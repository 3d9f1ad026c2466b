#include "agenda/regras/plano.h"

#include "apoio.h"

namespace verdalia {
namespace {

struct PlanoDaAgenda : Partida {
    // A lista como se lê: "cultura|onde|leira|densidade" por linha.
    static std::string lista(Lista qual) {
        monta_listas();
        std::string texto;
        for (const LinhaDeTrabalho& l : listas[qual])
            texto += (texto.empty() ? "" : "; ") + l.cultura + '|' + l.aonde + '|' + l.aonde_sem + '|' + l.densidade;
        return texto;
    }
};

TEST_F(PlanoDaAgenda, SemMudaProntaSeSemeiaUmaLeiraSo) {
    seq_pedido[cult_alface] = 5;
    EXPECT_EQ(lista(r_pls), "Alface|1x||");
    EXPECT_TRUE(lista_tr.empty());
    semeia(21, cult_alface, 0);
    EXPECT_EQ(lista(r_pls), "Alface|B 11||");
}

TEST_F(PlanoDaAgenda, AMudaProntaLevaAQuantidadeQueOPedidoQuer) {
    semeia(3, cult_alface, 4);
    semeia(12, cult_alface, 4);
    EXPECT_EQ(lista(r_tr), "Alface| 1m|A 4|12 / m2; Alface| 1m|B 2|12 / m2"); // sem pedido, para não se perder
    seq_pedido[cult_alface] = 3;
    sem_idade[12] = 3;
    EXPECT_EQ(lista(r_tr), "Alface| 3m|A 4|12 / m2");
    seq_pedido[cult_alface] = 0;
    planta(99, cult_alface, 0);
    EXPECT_EQ(lista(r_tr), "Alface||A 4|; Alface|J 10||");
    EXPECT_TRUE(lista_tr.empty());
}

TEST_F(PlanoDaAgenda, OCalendarioDizOsTratosLeirasPrimeiro) {
    st_cod_cult[0] = sem_cod_cult[0] = cult_vago;
    planta(1, cult_alface, 1);   // REP, que não tem lista
    planta(2, cult_cenoura, 2);  // LI
    planta(13, cult_nabo, 2);    // DES
    planta(24, cult_tomate, 10); // AM
    planta(35, cult_couve, 22);  // COP
    planta(46, cult_couve, 23);  // COF
    semeia(10, cult_tomate, 2);  // LI
    semeia(11, cult_agriao, 3);  // DES
    st_check[2] = -1;            // o que já foi feito continua na agenda da semana
    EXPECT_EQ(lista(r_li), "Tomate||A 11|; Cenoura|A 3||");
    EXPECT_EQ(lista(r_des), "Agrião||B 1|; Nabo|B 4||");
    EXPECT_EQ(lista(r_amo), "Tomate|C 5||");
    EXPECT_EQ(lista(r_cop), "Couve|D 6||");
    EXPECT_EQ(lista(r_cof), "Couve|E 7||");
    EXPECT_EQ(lista(r_pld) + lista(r_tr) + lista(r_pls), "");
    EXPECT_EQ(qt_tratos("LI") * 10 + qt_sem_tratos("LI"), 11);
}

} // namespace
} // namespace verdalia
