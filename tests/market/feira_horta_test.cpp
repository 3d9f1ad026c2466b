// A barraca como o jogador a usa: o pedido, o limite, os pregões e as duas saídas.
#include "roteiro.h"

#include <malloc.h>
#include <set>

namespace verdalia {
namespace {

// Onde está cada verdura na barraca, e onde está a sua conta.
constexpr int plc_vagem = 2, plc_rucula = 9, plc_alface = 17, plc_tomate = 18, plc_cenoura = 20;
constexpr int qt_alface = 1, qt_cenoura = 7, qt_rucula = 18, qt_tomate = 19;
constexpr int direito = 2, do_meio = 4;

struct Feira : PartidaNaTela {
    void abre() {
        mostra(TelaId::feira_horta);
        laco();
    }
    static Controle& na_tela(const char* nome, int indice = -1) {
        Controle* c = tela_ativa()->controle(nome, indice);
        if (c == nullptr) throw std::logic_error(tela_ativa()->nome + " não tem " + nome);
        return *c;
    }
    static std::string total() { return na_tela("lbl_total").texto; }
    // O texto da conta; "-" quando ela não aparece.
    static std::string conta(int qt) { return na_tela("qt", qt).visivel ? na_tela("qt", qt).texto : "-"; }
    // Confere o que se ouviu desde a última vez.
    Roteiro& ouviu(std::vector<std::string> esperado) {
        return roteiro.confere([this, esperado = std::move(esperado)] {
            EXPECT_EQ(roteiro.tocados, esperado);
            roteiro.tocados.clear();
        });
    }
    Roteiro& ouviu_pregoes(std::size_t quantos) {
        return roteiro.confere([this, quantos] {
            EXPECT_EQ(roteiro.tocados.size(), quantos);
            for (const std::string& clipe : roteiro.tocados) EXPECT_TRUE(clipe.ends_with("-vz.wav")) << clipe;
            roteiro.tocados.clear();
        });
    }
    static std::string fala_de(const char* clipe) { return dir_audio + clipe; }
};

TEST_F(Feira, CadaCaixoteVendeUmaVerduraENaSuaEtiqueta) {
    std::set<int> vendidas;
    std::vector<std::string> em_ordem(21);
    for (int i = 0; i < 21; ++i)
        roteiro.clica("plc", i).confere([&, i] {
            const Controle& caixote = na_tela("plc", i);
            EXPECT_GE(std::min(caixote.largura, caixote.altura), 56);
            ASSERT_TRUE(caixote.figura);
            EXPECT_FALSE(caixote.figura->falta) << caixote.figura->caminho;
            for (int c = 1; c <= n_culturas; ++c) {
                if (seq_pedido[c] == 0 || !vendidas.insert(c).second) continue;
                EXPECT_EQ(seq_pedido[c], 1);
                EXPECT_TRUE(caixote.dica.starts_with(nome_cult[c] + "\n")) << caixote.dica;
                for (int q = 0; q < 21; ++q) {
                    const Retangulo r = na_tela("qt", q).lugar();
                    if (!caixote.lugar().contem(r.x + r.largura / 2, r.y + r.altura / 2)) continue;
                    EXPECT_EQ(conta(q), "1 x");
                    em_ordem[q] = nome_cult[c];
                }
            }
            EXPECT_EQ(vendidas.size(), i + 1U);
        });
    roteiro.confere([] { EXPECT_EQ(total(), "67"); });
    abre();
    EXPECT_EQ(em_ordem[4], nome_cult[cult_quiabo]); // o único fora da ordem alfabética
    em_ordem.erase(em_ordem.begin() + 4);
    EXPECT_TRUE(std::is_sorted(em_ordem.begin(), em_ordem.end()));
}

TEST_F(Feira, OLimiteValeParaASomaECemEAceito) {
    for (int i = 0; i < 14; ++i) roteiro.clica("plc", plc_cenoura);
    roteiro.confere([] { EXPECT_EQ(total() + "|" + conta(qt_cenoura), "98|14 x"); });
    for (const int recusada : {plc_cenoura, plc_tomate})
        roteiro.clica("plc", recusada)
            .esta_em("ok")
            .confere([] {
                EXPECT_EQ(tela_ativa()->titulo, "Ops ...");
                EXPECT_EQ(msg_texto, "Sua horta pode ter no máximo  100 m2.");
            })
            .clica("opções")
            .esta_em("feira_horta")
            .confere([] {
                EXPECT_EQ(total() + "|" + conta(qt_cenoura) + "|" + conta(qt_tomate), "98|14 x|-");
                EXPECT_EQ(seq_pedido[cult_cenoura], 14);
                EXPECT_EQ(seq_pedido[cult_tomate], 0);
            });
    roteiro.clica("plc", plc_rucula).esta_em("feira_horta").confere([] {
        EXPECT_EQ(total() + "|" + conta(qt_rucula), "100|1 x");
    });
    // Abrindo lugar, cabe o que foi recusado.
    roteiro.clica("plc", plc_cenoura, direito).clica("plc", plc_tomate).confere([] {
        EXPECT_EQ(total() + "|" + conta(qt_cenoura) + "|" + conta(qt_tomate), "97|13 x|1 x");
    });
    abre();
}

TEST_F(Feira, OsOutrosBotoesTiramENuncaAbaixoDeZero) {
    roteiro.clica("plc", plc_alface, direito);
    ouviu({"\\blip.wav"}).esta_em("feira_horta").confere([] {
        EXPECT_EQ(seq_pedido[cult_alface], 0);
        EXPECT_EQ(conta(qt_alface), "-");
    });
    // A etiqueta também é caixote.
    roteiro.clica("plc", plc_alface).clica("qt", qt_alface).confere([] {
        EXPECT_EQ(total() + "|" + conta(qt_alface), "8|2 x");
    });
    roteiro.clica("plc", plc_alface, do_meio).confere([] { EXPECT_EQ(total() + "|" + conta(qt_alface), "4|1 x"); });
    roteiro.clica("plc", plc_alface, direito).confere([] { EXPECT_EQ(total() + "|" + conta(qt_alface), "0|-"); });
    // "0" é pedido vazio: a horta se abre sem nada a planejar, e a volta à barraca não o mostra.
    roteiro.confere([] { auto_abastecido = true; }).clica("Label2").esta_em("trabalhando_na_horta");
    abre();
    EXPECT_FALSE(auto_abastecido);
    recomeca_laco();
    roteiro.confere([] { EXPECT_EQ(total(), ""); });
    abre();
}

TEST_F(Feira, OClipeSoaInteiroAntesDeOPedidoMudar) {
    roteiro.duracao_dos_sons = 120;
    roteiro.clica("plc", plc_vagem).confere([] { EXPECT_EQ(seq_pedido[cult_vagem], 0); });
    // O segundo clique, dado durante o som, não se perde.
    roteiro.clica("plc", plc_vagem).espera_ms(125).confere([] { EXPECT_EQ(seq_pedido[cult_vagem], 1); });
    roteiro.espera_ms(130).confere([] { EXPECT_EQ(seq_pedido[cult_vagem], 2); });
    abre();
}

TEST_F(Feira, ReabrirMostraOPedidoMesmoSemGravar) {
    roteiro.clica("plc", plc_alface).clica("plc", plc_alface).clica("plc", plc_cenoura).clica("Label2");
    abre();
    EXPECT_TRUE(auto_abastecido);
    recomeca_laco();
    roteiro.confere([] {
        EXPECT_EQ(total() + "|" + conta(qt_alface) + "|" + conta(qt_cenoura) + "|" + conta(qt_tomate), "15|2 x|1 x|-");
    });
    roteiro.clica("plc", plc_cenoura, direito).confere([] { EXPECT_EQ(total(), "8"); });
    abre();
}

TEST_F(Feira, SemMusicaOPregaoComecaLogoESeRepete) {
    som_ligado = true;
    roteiro.espera_ms(2500);
    ouviu({}).espera_ms(10);
    ouviu_pregoes(1).espera_ms(2480);
    ouviu({}).espera_ms(20);
    ouviu_pregoes(1);
    // O aviso do total não os cala.
    roteiro.clica("plc", plc_alface).clica("lbl_total").esta_em("ok").confere([this] {
        EXPECT_EQ(tela_ativa()->titulo, "Quantidade de 'leitos de plantio'");
        EXPECT_EQ(msg_texto, "Essa é a quantidade de 'leitos de plantio' que voce precisará para poder produzir seu "
                             "pedido semanalmente.");
        roteiro.tocados.clear();
    });
    roteiro.espera_ms(2500);
    ouviu_pregoes(1).clica("opções").esta_em("feira_horta");
    ouviu({fala_de("\\ar1.wav")});
    abre();
}

TEST_F(Feira, ComMusicaOPregaoEsperaATrilhaOuUmCliqueNoFundo) {
    som_ligado = musica_ligada = true;
    trilha_feira = "\\feirafim.wav";
    ouviu({"\\feirafim.wav"}).espera_ms(14490);
    ouviu({}).espera_ms(20);
    ouviu_pregoes(1);
    abre();
    recomeca_laco();

    roteiro.espera_ms(1000).confere([this] { roteiro.tocados.clear(); }).clica_em(700, 20);
    ouviu({"\\silencio.wav"}).espera_ms(2490);
    ouviu({}).espera_ms(20);
    ouviu_pregoes(1).espera_ms(25000); // a demora já não volta: um pregão a cada 2,5 s e nada mais
    ouviu_pregoes(10);
    abre();
}

TEST_F(Feira, OSorteioPassaPorTodasAsVerduras) {
    som_ligado = true;
    roteiro.espera_ms(std::int64_t{2500} * 600);
    abre();
    std::map<std::string, int> vezes;
    for (const std::string& clipe : roteiro.tocados) ++vezes[clipe];
    EXPECT_EQ(vezes.size(), 21U);
    for (const auto& [clipe, n] : vezes) {
        EXPECT_TRUE(acha(clipe)) << clipe;
        EXPECT_LT(n, 60) << clipe; // duas vezes a parte que cabe a cada uma
    }
}

TEST_F(Feira, SemVozSoSeOuveOBlip) {
    roteiro.espera_ms(10000).clica_em(700, 20).espera_ms(5000).clica("lbl_total").clica("opções");
    roteiro.clica("Label3").clica("opções", 1);
    ouviu({}).clica("plc", plc_tomate);
    ouviu({"\\blip.wav"}).clica("Label2").esta_em("trabalhando_na_horta");
    abre();
}

TEST_F(Feira, QuemDesisteDeSairOuveDeNovoOsPregoes) {
    som_ligado = true;
    roteiro.espera_ms(2510);
    ouviu_pregoes(1).clica("Label3").esta_em("form_ok_nao").confere([] {
        EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, "Saindo ...|Deseja sair");
    });
    roteiro.espera_ms(20000);
    ouviu({fala_de("\\s1.wav")}).clica("opções", 1).esta_em("feira_horta");
    ouviu({fala_de("\\s3.wav")}).espera_ms(2510);
    ouviu_pregoes(1);
    // O fecho da janela faz o mesmo que a porta.
    roteiro.fecha_janela().esta_em("form_ok_nao").espera_ms(20000);
    ouviu({fala_de("\\s1.wav")}).clica("opções", 1).confere([this] { roteiro.tocados.clear(); }).espera_ms(2510);
    ouviu_pregoes(1);
    abre();
}

TEST_F(Feira, ADemoraQueAcabaDuranteAPerguntaNaoSoltaPregoes) {
    som_ligado = musica_ligada = true;
    roteiro.espera_ms(1000).clica("Label3").confere([this] { roteiro.tocados.clear(); }).espera_ms(15000);
    ouviu({}).clica("opções", 1).confere([this] { roteiro.tocados.clear(); }).espera_ms(14500);
    roteiro.confere([this] { EXPECT_FALSE(roteiro.tocados.empty()); }); // e eles vêm depois
    abre();
}

TEST_F(Feira, SairGravandoGuardaOPedidoEAvisaPendencias) {
    prepara_banco();
    som_ligado = true;
    roteiro.clica("plc", plc_cenoura).clica("plc", plc_cenoura).confere([this] { roteiro.tocados.clear(); });
    roteiro.clica("Label3").clica("opções", 0).esta_em("form_ok_nao");
    ouviu({fala_de("\\s1.wav"), fala_de("\\s2.wav")}).confere([] { EXPECT_EQ(msg_texto, "Deseja salvar ?"); });
    roteiro.clica("opções", 0).esta_em("ok_help").confere([] {
        EXPECT_EQ(tela_ativa()->titulo, "Pendências");
        EXPECT_FALSE(tela_ativa()->fundo->falta);
    });
    roteiro.tecla(SDLK_ESCAPE).confere([] { FAIL() << "o jogo devia ter acabado"; });
    abre();
    seq_pedido.fill(0);
    le_pedido();
    EXPECT_EQ(seq_pedido[cult_cenoura], 2);
}

TEST_F(Feira, SairSemGravarNemPedidoAcabaSemAviso) {
    prepara_banco();
    roteiro.clica("plc", plc_cenoura).clica("plc", plc_cenoura, direito);
    roteiro.clica("Label3").clica("opções", 0).clica("opções", 1).confere([] { FAIL() << "devia ter acabado"; });
    abre();
    EXPECT_TRUE(terminando());
}

TEST_F(Feira, OCaminhoDaHortaFalaAteOFimComAAmpulheta) {
    som_ligado = true;
    roteiro.clica("plc", plc_tomate).confere([this] {
        roteiro.tocados.clear();
        roteiro.duracao_dos_sons = 3000;
    });
    roteiro.clica("Label2").espera_ms(2900).esta_em("feira_horta").confere([] {
        EXPECT_EQ(na_tela("Label2").ponteiro, ponteiro_ampulheta);
        EXPECT_TRUE(auto_abastecido);
    });
    ouviu({fala_de("\\vamhor.wav")}).espera_ms(200).esta_em("trabalhando_na_horta");
    abre();
    EXPECT_FALSE(carregada(TelaId::feira_horta));
}

TEST_F(Feira, SoOTecladoPedeTiraEVaiParaAHorta) {
    // O Tab anda pelas prateleiras: da primeira verdura, uma à direita e uma abaixo.
    roteiro.tecla(SDLK_TAB).confere([] { EXPECT_EQ(tela_ativa()->foco, &na_tela("plc", 0)); });
    roteiro.tecla(SDLK_TAB).tecla(SDLK_TAB).tecla(SDLK_DOWN).confere(
        [] { EXPECT_EQ(tela_ativa()->foco, &na_tela("plc", plc_rucula)); });
    for (const int tecla : {SDLK_RETURN, SDLK_SPACE, SDLK_PLUS, SDLK_KP_PLUS, SDLK_MINUS}) roteiro.tecla(tecla);
    roteiro.confere([] { EXPECT_EQ(total() + "|" + conta(qt_rucula), "6|3 x"); });
    // Shift+Tab volta pela ponta: sair, horta.
    for (int i = 0; i < plc_rucula; ++i) roteiro.tecla(SDLK_TAB, true);
    roteiro.tecla(SDLK_TAB, true).confere([] { EXPECT_EQ(tela_ativa()->foco->nome, "Label3"); });
    roteiro.tecla(SDLK_TAB, true).tecla(SDLK_RETURN).esta_em("trabalhando_na_horta");
    abre();
    EXPECT_TRUE(auto_abastecido);
}

TEST_F(Feira, VisitasNaoDeixamMemoriaPresa) {
    const auto visita = [] {
        mostra(TelaId::feira_horta);
        pinta_tudo();
        descarrega_tudo();
    };
    for (int i = 0; i < 5; ++i) visita();
    const std::size_t antes = mallinfo2().uordblks;
    for (int i = 0; i < 20; ++i) visita();
    EXPECT_LT(mallinfo2().uordblks, antes + 4096);
}

} // namespace
} // namespace verdalia
