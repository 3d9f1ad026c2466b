// As listas da agenda e as tabelas que delas se fazem para o relatório; o que delas se lê está nos testes da impressão.
#include "agenda/regras/relatorio.h"

#include "agenda/regras/plano.h"
#include "apoio.h"
#include "platform/base/disco_de_teste.h"

namespace verdalia {
namespace {

using Relatorios = Partida;

TEST_F(Relatorios, TabelasNaoSeAcumulamEODiscoCheioAsDeixaComoEstavam) {
    prepara_banco();
    const auto tudo = [this] { return consulta(arquivo, "SELECT * FROM relat; SELECT * FROM rr; SELECT * FROM mapa_horta"); };
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
    DiscoDeTeste disco;
    disco.codigo_falha = SQLITE_FULL;
    EXPECT_GT(falha_em_cada_uma(disco, refez, [&](bool gravou) { ASSERT_EQ(tudo() == antes, !gravou); }), 2);
}

} // namespace
} // namespace verdalia
