#include "agenda/regras/relatorio.h"

#include "agenda/regras/plano.h"
#include "apoio.h"
#include "platform/base/disco_de_teste.h"

#include <sqlite3.h>

namespace verdalia {
namespace {

struct TabelasDoRelatorio : Partida {
    TabelasDoRelatorio() { prepara_banco(); }

    std::string consulta(const std::string& sql) const { return verdalia::consulta(arquivo, sql); }
    std::string tudo() const { return consulta("SELECT * FROM relat") + consulta("SELECT * FROM rr") + mapa("*"); }
    std::string mapa(const std::string& campos, const std::string& letras = "ABCDEFGHIJ") const {
        return consulta("SELECT " + campos + " FROM mapa_horta WHERE instr('" + letras + "', ordem)");
    }
    static void refaz() {
        monta_listas();
        prepara_relat();
    }
};

TEST_F(TabelasDoRelatorio, SemanaSemTrabalho) {
    refaz();
    refaz(); // nada se acumula
    EXPECT_EQ(consulta("SELECT * FROM relat") + consulta("SELECT * FROM rr"), "");
    EXPECT_EQ(mapa("group_concat(ordem, '')"), "ABCDEFGHIJ\n");
    EXPECT_EQ(mapa("DISTINCT cult1, idade1, trato10, p_fim10"), "|   ||   \n");
}

TEST_F(TabelasDoRelatorio, OTrabalhoPorSecaoEPorTrato) {
    data_previsao = dia(2026, 12, 31); // na previsão, a semana mostrada
    seq_pedido[cult_cenoura] = 2;
    seq_pedido[cult_alface] = 1;
    semeia(3, cult_alface, 4);  // pronta e pedida
    semeia(12, cult_couve, 5);  // pronta, mas o que se queria já está plantado
    semeia(13, cult_tomate, 2); // LI
    semeia(14, cult_couve, 3);  // DES
    planta(0, cult_couve, 0);
    planta(1, cult_alface, 2);   // LI
    planta(2, cult_rucula, 2);   // DES
    planta(3, cult_alface, 4);   // AM
    planta(4, cult_alface, 6);   // COP
    planta(99, cult_alface, 7);  // COF
    planta(10, cult_cenoura, 0); // PLD
    refaz();
    EXPECT_EQ(consulta("SELECT hs, ord, trato, aonde, cultura, sem, cabec1 FROM relat"),
              "0|0|Plantio| 1m|Cenoura (30 / m2)|53|HORTA\n"
              "0|0|Plantio|B 1|Cenoura|53|HORTA\n"
              "0|1|Transplante| 1m|Alface  ( 12 / m2 )|53|HORTA\n"
              "0|1|Transplante|A 1|Couve|53|HORTA\n"
              "0|2|Limpeza|A 2|Alface|53|HORTA\n"
              "0|3|Desbaste|A 3|Rúcula|53|HORTA\n"
              "0|4|Amontoa|A 4|Alface|53|HORTA\n"
              "0|5|Colheita Parcial|A 5|Alface|53|HORTA\n"
              "0|6|Colheita Final|J 10|Alface|53|HORTA\n"
              "1|0|Plantio em Sementeira|1x|Alface|53|SEMENTEIRA\n"
              "1|1|Transplante|A 4|Alface|53|SEMENTEIRA\n"
              "1|1|Transplante|B 2|Couve|53|SEMENTEIRA\n"
              "1|2|Limpeza|B 3|Tomate|53|SEMENTEIRA\n"
              "1|3|Desbaste|B 4|Couve|53|SEMENTEIRA\n");
    EXPECT_EQ(mapa("cult5, idade5, trato5, p_fim5, cult10", "A"), "Alf| 6|COP| 2|\n");
    EXPECT_EQ(mapa("cult10, idade10, trato10, p_fim10", "J"), "Alf| 7|COF| 1\n");
}

TEST_F(TabelasDoRelatorio, ARotacaoSoTemOsVagosQueForamPlantados) {
    for (const int i : {5, 20, 99}) st_cod_cult[i] = cult_vago;
    st_last_i_cu[5] = cult_cheiro_verde;
    st_last_i_cu[20] = cult_pepino;
    st_last_last_i_cu[20] = cult_alface;
    st_last_i_cu[21] = cult_alface; // fora do jogo
    refaz();
    EXPECT_EQ(consulta("SELECT mod, cult, fam, ucult, ufam FROM rr"),
              "A 6|Cheiro Verde|APIÁCEAS/LILIÁCEAS|Livre|Livre\n"
              "C 1|Pepino|CURCUBITÁCIA|Alface|CHICOREÁCEA\n"
              "J 10|Livre|Livre|Livre|Livre\n");
    EXPECT_EQ(mapa("cult6, idade6, trato6, p_fim6", "A"), "| 0|| 0\n");
}

TEST_F(TabelasDoRelatorio, DiscoCheioDeixaAsTresComoEstavam) {
    planta(0, cult_alface, 2);
    st_cod_cult[5] = cult_vago;
    refaz();
    const std::string antes = tudo();
    planta(0, cult_rabanete, 5);
    st_cod_cult[6] = cult_vago;
    const auto refez = [] {
        try {
            refaz();
            return true;
        } catch (const ErroBanco&) {
            return false;
        }
    };
    EXPECT_GT(enche_o_disco(refez, [&](bool gravou) { ASSERT_EQ(tudo() == antes, !gravou); }), 2);
}

} // namespace
} // namespace verdalia
