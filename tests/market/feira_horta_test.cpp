// A barraca como o jogador a usa: o pedido, o limite, os pregões e as duas saídas.
#include "roteiro.h"

#include <set>

namespace verdalia {
namespace {

// Onde está cada verdura na barraca, e onde está a sua conta.
constexpr int plc_rucula = 9, plc_alface = 17, plc_tomate = 18, plc_cenoura = 20;
constexpr int qt_alface = 1, qt_cenoura = 7, qt_rucula = 18, qt_tomate = 19;
constexpr int direito = 2, do_meio = 4;

struct Feira : PartidaNaTela {
    void abre() {
        recomeca_laco();
        mostra(TelaId::feira_horta);
        laco();
    }
    static Controle& na_tela(const char* nome, int indice = -1) { return *tela_ativa()->controle(nome, indice); }
    // O texto da conta; "-" quando ela não aparece.
    static std::string conta(int qt) { return na_tela("qt", qt).visivel ? na_tela("qt", qt).texto : "-"; }
    // Confere o total e as contas: "97|13 x|-".
    Roteiro& mostra_contas(const char* esperado, std::vector<int> quais) {
        return roteiro.confere([esperado, quais = std::move(quais)] {
            std::string achado = na_tela("lbl_total").texto;
            for (const int q : quais) achado.append("|").append(conta(q));
            EXPECT_EQ(achado, esperado);
        });
    }
    // Confere o que se ouviu desde a última vez.
    Roteiro& ouviu(std::vector<std::string> esperado) {
        return roteiro.confere(
            [this, esperado = std::move(esperado)] { EXPECT_EQ(std::exchange(roteiro.tocados, {}), esperado); });
    }
    Roteiro& ouviu_pregoes(std::size_t quantos) {
        return roteiro.confere([this, quantos] {
            EXPECT_EQ(roteiro.tocados.size(), quantos);
            for (const std::string& clipe : std::exchange(roteiro.tocados, {}))
                EXPECT_TRUE(clipe.ends_with("-vz.wav")) << clipe;
        });
    }
};

TEST_F(Feira, OCaixoteEAContaSaoDaMesmaVerdura) {
    // A verdura de cada caixote e onde está a sua conta.
    constexpr std::pair<std::int16_t, int> verduras[] = {
        {5, 10}, {11, 13}, {20, 20}, {2, 9}, {13, 8}, {21, 14}, {18, 6}, {7, 4},   {12, 16}, {8, 18}, {16, 3},
        {6, 12}, {19, 11}, {17, 17}, {3, 2}, {4, 0},  {10, 5},  {1, 1},  {14, 19}, {15, 15}, {9, 7}};
    for (const char* botao : {"plc", "menos"}) // o "−" do caixote tira a que se pôs, e então some
        for (int i = 0; i < 21; ++i)
            roteiro.clica(botao, i).confere([&, botao, i] {
                const auto [cultura, qt] = verduras[i];
                const bool pos = *botao == 'p';
                EXPECT_EQ(std::to_string(seq_pedido[cultura]) + conta(qt).substr(0, 3), pos ? "11 x" : "0-") << i;
                EXPECT_TRUE(na_tela("menos", i).visivel == pos && !na_tela("plc", i).figura->falta) << i;
                EXPECT_TRUE(na_tela("plc", i).dica.starts_with(nome_cult[cultura] + "\n")) << i;
            });
    mostra_contas("0", {});
    abre();
}

TEST_F(Feira, OLimiteValeParaASomaECemEAceito) {
    for (int i = 0; i < 14; ++i) roteiro.clica("plc", plc_cenoura);
    for (const int recusada : {plc_cenoura, plc_tomate}) {
        roteiro.clica("plc", recusada).aviso("Ops ...|Sua horta pode ter no máximo  100 m2.").esta_em("feira_horta");
        mostra_contas("98|14 x|-", {qt_cenoura, qt_tomate});
    }
    roteiro.clica("plc", plc_rucula).esta_em("feira_horta");
    mostra_contas("100|14 x|-|1 x", {qt_cenoura, qt_tomate, qt_rucula});
    // Abrindo lugar, cabe o que foi recusado.
    roteiro.clica("plc", plc_cenoura, direito).clica("plc", plc_tomate);
    mostra_contas("97|13 x|1 x", {qt_cenoura, qt_tomate});
    abre();
    EXPECT_EQ(seq_pedido[cult_cenoura], 13);
}

TEST_F(Feira, OsOutrosBotoesTiramEOPedidoFicaParaAVolta) {
    roteiro.clica("plc", plc_alface, direito);
    ouviu({"\\blip.wav"}); // nunca abaixo de zero
    mostra_contas("0|-", {qt_alface});
    roteiro.clica("plc", plc_alface).clica("qt", qt_alface); // a etiqueta também é caixote
    mostra_contas("8|2 x", {qt_alface}).clica("plc", plc_alface, do_meio).clica("plc", plc_cenoura);
    roteiro.clica("Label2").esta_em("trabalhando_na_horta");
    abre();
    EXPECT_TRUE(auto_abastecido);
    mostra_contas("11|1 x|1 x|-", {qt_alface, qt_cenoura, qt_tomate});
    // "0" é pedido vazio: a horta se abre sem nada a planejar, e a volta à barraca não o mostra.
    roteiro.clica("plc", plc_cenoura, direito).clica("plc", plc_alface, direito).clica("Label2");
    abre();
    EXPECT_FALSE(auto_abastecido);
    mostra_contas("", {});
    abre();
}

TEST_F(Feira, PregaoComecaLogoOuDepoisDaTrilhaEPassaPorTodasAsVerduras) {
    som_ligado = true;
    roteiro.espera_ms(2500);
    ouviu({}).espera_ms(10);
    ouviu_pregoes(1);
    // O aviso do total não os cala.
    roteiro.clica("lbl_total").esta_em("ok").espera_ms(2500);
    ouviu_pregoes(1).clica("opções").esta_em("feira_horta");
    ouviu({dir_audio + "\\ar1.wav"}).espera_ms(std::int64_t{2500} * 600);
    abre();
    const std::set<std::string> ouvidos(roteiro.tocados.begin(), roteiro.tocados.end());
    EXPECT_EQ(ouvidos.size(), 21U);
    roteiro.tocados.clear();
    musica_ligada = true;
    trilha_feira = "\\feirafim.wav";
    ouviu({"\\feirafim.wav"}).espera_ms(14490);
    ouviu({}).espera_ms(20);
    ouviu_pregoes(1);
    abre();
    // Um clique no fundo cala a trilha e não espera mais por ela.
    ouviu({"\\feirafim.wav"}).clica_em(700, 20).espera_ms(2490);
    ouviu({"\\silencio.wav"}).espera_ms(20);
    ouviu_pregoes(1).espera_ms(25000);
    ouviu_pregoes(10);
    // A pergunta da saída cala os pregões; quem desiste os ouve de novo.
    roteiro.clica("Label3").esta_em("form_ok_nao").espera_ms(20000);
    ouviu({dir_audio + "\\s1.wav"}).pergunta("Saindo ...|Deseja sair", false).esta_em("feira_horta");
    ouviu({dir_audio + "\\s3.wav"}).espera_ms(2510);
    ouviu_pregoes(1);
    abre();
}

} // namespace
} // namespace verdalia
