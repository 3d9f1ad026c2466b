// O laço, nas telas do jogo: a dica, o arraste, o teclado, os diálogos e o repouso.
#include "platform/tela/laco_interno.h"
#include "roteiro.h"

namespace verdalia {
namespace {

struct Laco : PartidaNaTela {
    Laco() { prepara_banco(); }
    trabalhando_na_horta& horta() { return entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta); }
};

TEST_F(Laco, DicaEDeQuemAChamouESoVemQuandoOMouseAnda) {
    auto& f = entra_em<feira_horta>(TelaId::feira_horta);
    // A que se vê depois de um tempo, ou "".
    const auto dica = [this](int ms, const std::string& esperada) -> Roteiro& {
        return roteiro.espera_ms(ms).confere(
            [=] { EXPECT_EQ(estado_do_laco.dica_a_vista ? estado_do_laco.dica : "", esperada); });
    };
    const std::string couve = f.plc(0).dica;
    roteiro.aponta(64, 136);
    dica(500, "");
    dica(200, couve).confere([&] { f.foco = f.controle("menos", 20); }).tecla(SDLK_TAB);
    roteiro.espera_ms(700).confere([&] { EXPECT_EQ(estado_do_laco.dica, f.foco->dica); }).aponta(65, 137);
    dica(700, couve).clica("plc", 0); // o mouse, mesmo no mesmo lugar, toma-a de volta
    dica(2000, "");                   // com o clique, já não vem
    laco();
}

TEST_F(Laco, ArrasteVoltaVoandoETeclaComSublinhadoEFecharAcionam) {
    auto& h = horta();
    roteiro.arrasta("c_ber", -1, 660, 300).confere([] { EXPECT_TRUE(voando()); }).espera_ms(400);
    roteiro.confere([] { EXPECT_FALSE(voando()); }).arrasta("c_ber", -1, 220, 184);
    roteiro.confere([] { EXPECT_FALSE(voando()); }).clica("lbl_tempo").clica_em(40, 40).esta_em("ok_help");
    roteiro.confere([&] {
        const Retangulo r = tela_ativa()->caixa_de_fechar();
        roteiro.clica_em(r.x + r.largura / 2, r.y + r.altura / 2).esta_em("trabalhando_na_horta");
    });
    laco();
    EXPECT_TRUE(h.cant.existe(0));
}

} // namespace
} // namespace verdalia
