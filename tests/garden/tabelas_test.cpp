// As tabelas da horta e da sementeira, linha por linha, pelo que o jogador vê e ouve.
#include "seedbed/mesa.h"

#include <cstring>

namespace verdalia {
namespace {

// As culturas na ordem dos rótulos; as da sementeira têm um título lá, e a ordem entre elas é a dos rótulos de lá.
constexpr struct {
    std::int16_t cultura;
    const char *botao, *figura, *clipe, *falado, *titulo_sem, *lote;
} culturas[] = {
    // clang-format off
    {1, "c_alf", "alf", "alface", "Alface", "Alface", "Alface na sementeira"},
    {2, "c_chi", "chi", "chicoria", "Chicória", "Chicória", "Chicória na sementeira"},
    {13, "c_che", "che", "cheiro", "Cheiro Verde", "Cheiro-Verde", "Cheiro-Verde na sementeira"},
    {4, "c_agr", "agr", "agriao", "Agrião", "Agrião", "Agrião na sementeira"},
    {5, "c_cou", "cou", "couve", "Couve", "Couve", "Couve na sementeira"},
    {6, "c_esp", "esp", "espinafr", "Espinafre", "Espinhafre", "Espinafre na sementeira"},
    {7, "c_ber", "qui", "quiabo", "Quiabo", "", ""},
    {8, "c_ruc", "ruc", "rucula", "Rúcula", "", ""},
    {9, "c_cen", "cen", "cenoura", "Cenoura", "", ""},
    {10, "c_bet", "bet", "beterrab", "Beterraba", "", ""},
    {11, "c_nab", "nab", "nabo", "Nabo", "", ""},
    {12, "c_rab", "rab", "rabanete", "Rabanete", "", ""},
    {14, "c_tom", "tom", "tomate", "Tomate", "Tomate", "Tomate na sementeira"},
    {15, "c_pim", "pim", "pimentao", "Pimentão", "Pimentão", "Pimentão na sementeira"},
    {16, "c_bgl", "bgl", "beringel", "Berinjela", "Beringela", "Beringela na sementeira"},
    {17, "c_rep", "rep", "repolho", "Repolho", "Repolho", "Repolho na sementeira"},
    {18, "c_bro", "bro", "brocolis", "Brócolis", "Brocólis", "Brócolis na sementeira"},
    {19, "c_flo", "flo", "cflor", "Couve Flor", "Couve-Flor", "Couve-Flor na sementeira"},
    {20, "c_vgm", "vgm", "vagem", "Vagem", "", ""},
    {21, "c_pep", "pep", "pepino", "Pepino", "", ""},
    {3, "c_alh", "por", "alho", "Alho Poró", "Alho-Poró", "Alho-Poró sementeira"},
    // clang-format on
};

using Tabelas = Sementeira;

TEST_F(Tabelas, CadaBotaoPlantaFalaEExplicaASuaCultura) {
    som_ligado = true;
    for (const bool na_horta : {false, true}) {
        recomeca_laco();
        esvazia();
        roteiro.tocados.clear();
        for (int leira = 0; const auto& c : culturas) {
            seq_pedido[c.cultura] = 2;
            if (na_horta && *c.lote != 0) semeia(leira++, c.cultura, ciclo_sem[c.cultura]); // uma leira pronta
        }
        auto_abastecido = true;
        const TelaId id = na_horta ? TelaId::trabalhando_na_horta : TelaId::controle_da_sementeira;
        mostra(id);
        Tela& t = carrega(id);
        int k = 0; // o rótulo, e o lugar em que se põe a verdura
        for (const auto& c : culturas) {
            if (!na_horta && *c.lote == 0) continue;
            const std::string aviso = na_horta ? c.falado + std::string("|Voce deve ") + (*c.lote != 0 ? "trans" : "") +
                                                     "plantar 2 leito(s) de " + c.falado
                                               : c.titulo_sem + std::string("|Voce deve plantar 1 lote de ") + c.lote;
            roteiro.clica("Label3", k).aviso(aviso).clica(c.botao);
            (na_horta ? roteiro.arrasta(c.botao, -1, 220 + k % 10 * 42, 184 + k / 10 * 42)
                      : semeia_com_mouse(c.botao, k))
                .confere([&, na_horta, k] { // sobre a tela pode estar o "Parabéns" do último lote
                    const Controle& rotulo = *t.controle("Label3", k);
                    const std::string figura = std::string("az_") + c.figura + ".bmp";
                    EXPECT_GE(falas(("\\" + std::string(c.clipe) + ".wav").c_str()), 1) << c.botao;
                    EXPECT_EQ((na_horta ? st_cod_cult[k] : sem_cod_cult[k]), c.cultura);
                    EXPECT_EQ(nome(t.controle(na_horta ? "cant" : "Image3", k)->figura), figura);
                    EXPECT_EQ(nome(t.controle(c.botao)->figura), figura);
                    EXPECT_TRUE(na_horta ? rotulo.texto == "1" : !rotulo.visivel) << c.botao;
                });
            ++k;
        }
        if (!na_horta) roteiro.tecla(SDLK_ESCAPE);
        laco();
        EXPECT_EQ(k, na_horta ? 21 : 13);
    }
}

// O botão, a idade e a cultura que o acendem, a cor da marca e da letra, as falas e o que a face mostra num clique.
constexpr struct {
    int botao;
    std::int16_t cultura, idade;
    Cor cor, letra;
    const char *ha, *nao_ha, *quadros;
} tratos_das_telas[] = {
    // clang-format off
    {5, cult_alface, 2, {255, 255, 192}, {0, 0, 0}, "\\l1.wav", "\\l2.wav", "06 07 08 09 11 12 00 01 02 03 04 05 06"},
    {6, cult_quiabo, 4, {255, 255, 0}, {0, 0, 0}, "\\d1.wav", "\\d2.wav", "06 07 08 09 10 11 12 00 01 02 03 04 05"},
    {7, cult_alface, 4, {128, 64, 64}, {255, 255, 255}, "\\am1.wav", "\\am2.wav", "05 06 07 08 09 10 11 00 01 02 03 04"},
    {8, cult_alface, 6, {255, 0, 255}, {0, 0, 0}, "\\cp1.wav", "\\cp2.wav", "05 06 07 08 09 10 11 12 13 00 01 02 03 04 05"},
    {9, cult_alface, 7, {0, 192, 0}, {0, 0, 0}, "\\cf1.wav", "\\cf2.wav", "07 08 09 10 11 12 13 00 01 02 03 04 05 06"},
    {1, cult_alface, 2, {255, 255, 192}, {0, 0, 0}, "\\mudlimp.wav", "\\nlimp.wav", "06 07 08 09 11 12 00 01 02 03 04 05 06"},
    {2, cult_couve, 3, {255, 255, 0}, {0, 0, 0}, "\\muddesb.wav", "\\ndesb.wav", "06 07 08 09 10 11 12 00 01 02 03 04 05 06"},
    {3, cult_alface, 4, {255, 0, 255}, {0, 0, 0}, "\\mudtran.wav", "\\ntran.wav", "04 05 06 07 08 09 10 11 12 00 01 02 03 04"},
    // clang-format on
};

TEST_F(Tabelas, CadaTratoTemASuaCorASuaFalaEASuaAnimacao) {
    som_ligado = true;
    for (int i = 0; i < 8; ++i) {
        const auto& t = tratos_das_telas[i];
        i < 5 ? planta(i, t.cultura, t.idade) : semeia(i, t.cultura, t.idade);
    }
    for (int i = 0; i < 8; ++i) {
        const auto& t = tratos_das_telas[i];
        SCOPED_TRACE(t.ha);
        const bool na_horta = i < 5;
        const char *botao = na_horta ? "Command2" : "Command4", *marca = na_horta ? "txt_label" : "Label4";
        na_horta ? mostra(TelaId::trabalhando_na_horta) : mostra(TelaId::controle_da_sementeira);
        roteiro.clica(botao, t.botao).confere([&] {
            EXPECT_EQ(falas(t.ha), 1);
            const Controle& m = *tela_ativa()->controle(marca, i);
            EXPECT_TRUE(m.visivel && m.cor_fundo == t.cor && (!na_horta || m.letra.cor == t.letra));
            EXPECT_EQ(tela_ativa()->controle(botao, t.botao)->cor_fundo, t.cor);
        });
        std::string vistos;
        roteiro.espera_ms(5);
        for (std::size_t tique = 0; tique * 3 < std::strlen(t.quadros); ++tique)
            roteiro.espera_ms(100).confere([&] {
                const std::string face = nome(tela_ativa()->controle(botao, t.botao)->figura);
                vistos += (vistos.empty() ? "" : " ") + face.substr(face.size() - 6, 2);
            });
        // Tirado o que havia, o botão ainda aceso diz que não há mais nada.
        roteiro.espera_ms(300).confere([&] {
            EXPECT_EQ(anim_quadros, 0);
            st_cod_cult[i] = cult_nenhuma;
            sem_cod_cult[i] = cult_vago;
        });
        roteiro.clica(botao, t.botao).confere([&] { EXPECT_EQ(falas(t.nao_ha), 1); });
        laco();
        recomeca_laco();
        EXPECT_EQ(vistos, t.quadros);
    }
}

// O planeta começa no quadro 9 e acaba no 1; o calendário anda de amanhã há uma semana até hoje. A apresentação gira as
// seis faces juntas, cada uma desde a primeira, e acaba com elas em repouso.
TEST_F(Tabelas, OPlanetaOCalendarioEAApresentacaoMostramOsSeusQuadros) {
    musica_ligada = true;
    trilha_horta = "\\htfimc.wav";
    auto& h = entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    const auto faces = [&h] {
        std::string s;
        for (const int k : {2, 5, 6, 7, 8, 9}) s += nome(h.Command2(k).figura_apagada) + " ";
        return s;
    };
    const std::string repouso = faces();
    std::string planeta, dias;
    roteiro.espera_ms(101).confere(
        [&] { EXPECT_EQ(faces(), "ssem00.bmp li00.bmp des00.bmp amo00.bmp cop00.bmp cof00.bmp "); });
    roteiro.espera_ms(12'000).confere([&] { EXPECT_EQ(faces() + std::to_string(h.timer_.intervalo), repouso + "0"); });
    roteiro.confere([] { som_ligado = true; }).clica("previsao").espera_ms(5);
    for (int i = 0; i < 23; ++i)
        roteiro.espera_ms(100).confere([&] { planeta += nome(h.previsao.figura).substr(6, 2); });
    roteiro.clica("tempo_real").espera_ms(5);
    for (int i = 0; i < 7; ++i) roteiro.espera_ms(100).confere([&] { dias += nome(h.tempo_real.figura).substr(6, 1); });
    laco();
    EXPECT_EQ(planeta, "0910010203040506070809100102030405060708091001");
    EXPECT_EQ(dias, "3217654"); // hoje é quarta
    EXPECT_EQ(roteiro.tocados, (std::vector{trilha_horta, dir_audio + "\\previsao.wav", dir_audio + "\\tempo.wav"}));
}

} // namespace
} // namespace verdalia
