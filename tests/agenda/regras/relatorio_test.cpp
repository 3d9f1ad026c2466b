// As listas da agenda e as tabelas que delas se fazem para o relatório; o que delas se lê está nos testes da impressão.
#include "agenda/regras/relatorio.h"

#include "agenda/regras/plano.h"
#include "apoio.h"
#include "platform/base/disco_de_teste.h"

namespace verdalia {
namespace {

struct Relatorios : Partida {
    static std::string transplantes() {
        monta_listas();
        std::string texto;
        for (const LinhaDeTrabalho& l : listas[r_tr])
            texto += l.cultura + '|' + l.aonde + '|' + l.aonde_sem + '|' + l.densidade + "; ";
        return texto;
    }
};

TEST_F(Relatorios, AMudaProntaLevaAQuantidadeQueOPedidoQuer) {
    semeia(3, cult_alface, 4);
    semeia(12, cult_alface, 4);
    EXPECT_EQ(transplantes(), "Alface| 1m|A 4|12 / m2; Alface| 1m|B 2|12 / m2; "); // sem pedido, para não se perder
    seq_pedido[cult_alface] = 3;
    sem_idade[12] = 3;
    EXPECT_EQ(transplantes(), "Alface| 3m|A 4|12 / m2; ");
    seq_pedido[cult_alface] = 0;
    planta(99, cult_alface, 0);
    EXPECT_EQ(transplantes(), "Alface||A 4|; Alface|J 10||; ");
    EXPECT_EQ(qt_tratos("TR") * 10 + qt_sem_tratos("TR"), 11);
}

TEST_F(Relatorios, TabelasNaoSeAcumulamEODiscoCheioAsDeixaComoEstavam) {
    prepara_banco();
    const auto tudo = [this] {
        return consulta(arquivo, "SELECT * FROM relat") + consulta(arquivo, "SELECT * FROM rr") +
               consulta(arquivo, "SELECT * FROM mapa_horta");
    };
    const auto refez = [] {
        try {
            monta_listas();
            prepara_relat();
            return true;
        } catch (const ErroBanco&) {
            return false;
        }
    };
    planta(0, cult_alface, 2);
    st_cod_cult[5] = cult_vago;
    refez();
    const std::string antes = tudo();
    EXPECT_NE(antes.find("Limpeza"), std::string::npos);
    refez();
    EXPECT_EQ(tudo(), antes);
    planta(0, cult_rabanete, 5);
    st_cod_cult[6] = cult_vago;
    EXPECT_GT(enche_o_disco(refez, [&](bool gravou) { ASSERT_EQ(tudo() == antes, !gravou); }), 2);
}

} // namespace
} // namespace verdalia
