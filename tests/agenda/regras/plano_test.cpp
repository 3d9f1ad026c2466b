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

} // namespace
} // namespace verdalia
