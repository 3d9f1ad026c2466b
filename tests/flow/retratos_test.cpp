// As telas e os diálogos como o jogador os vê, pintados de verdade, ao lado dos retratos que se olharam e guardaram.
#include "flow/comum/dialogos.h"
#include "prancha.h"

namespace verdalia {
namespace {

struct Retratos : PartidaNaTela {
    Retratos() {
        prepara_banco();
        topico_help = tela_origem = "Orgânico";
        seq_pedido[cult_alface] = 6;
        seq_pedido[cult_cenoura] = 2;
        planta(0, cult_cenoura, 3);
        planta(11, cult_tomate, 8);
        planta(99, cult_brocolis, 0);
        st_last_i_cu[5] = cult_alface;
        semeia(0, cult_alface, 0);
        semeia(12, cult_alface, 4);
        grava_canteiros();
    }

    // Uma letra a mais, um botão que não se vê ou uma linha fora do lugar mudam alguma casa de 8 por 8 pixels.
    void retrata(const std::string& o_que) { EXPECT_LT(prancha.compara(*roteiro.janela).maior, 10) << o_que; }

    Prancha prancha{VERDALIA_TESTES "/flow/retratos.png", largura_logica / 8, altura_logica / 8};
};

TEST_F(Retratos, CadaTelaECadaDialogoEOQueSeGuardou) {
    for (const auto& fabrica : fabricas_do_jogo) {
        if (fabrica.id >= TelaId::ok) continue;
        for (const auto& [x, y] : {std::pair{2, 2}, {124, 180}}) { // e com o mouse sobre alguma coisa
            entra_em<Tela>(fabrica.id);
            roteiro.aponta(x, y).espera_ms(1000).confere([&] { retrata(tela_ativa()->nome); });
            laco();
        }
    }
    esvazia(); // sem pedido, tudo se pode plantar
    entra_em<Tela>(TelaId::trabalhando_na_horta);
    roteiro.espera_ms(300).confere([&] { retrata("aviso"); }).tecla(SDLK_RETURN);
    avisa("Abóbora", "Uma mensagem de duas frases. Esta é a segunda, que passa da linha.");
    roteiro.espera_ms(300).confere([&] { retrata("pergunta"); }).tecla(SDLK_s);
    pergunta("Regra de Rotação", "Planta-se mesmo assim?",
             {.perde_algo = true,
              .ilustracao = {"\\recursos\\feira_alf.bmp", "\\recursos\\feira_cen.bmp"},
              .legenda = "1 de 2",
              .evita = {300, 200, 200, 100}});
    roteiro.espera_ms(300).confere([&] { retrata("quadro"); }).tecla(SDLK_ESCAPE);
    mostra_quadro("Parabéns", "\\anima\\parah.jpg");
}

} // namespace
} // namespace verdalia
