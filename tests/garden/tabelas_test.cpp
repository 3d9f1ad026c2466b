// As tabelas da horta e da sementeira, linha por linha, pelo que o jogador vê e ouve.
#include "seedbed/mesa.h"

#include <cstring>

namespace verdalia {
namespace {

// O que as duas telas têm em comum, e o rótulo e as palavras de cada uma; k_sem = -1: não é da sementeira.
constexpr struct {
    std::int16_t cultura;
    const char *botao, *figura, *clipe;
    int k;
    const char *falado, *trans;
    int k_sem;
    const char *titulo_sem, *lote;
} culturas[] = {
    // clang-format off
    {1, "c_alf", "az_alf.bmp", "\\alface.wav", 0, "Alface", "trans", 0, "Alface", "Alface na sementeira"},
    {2, "c_chi", "az_chi.bmp", "\\chicoria.wav", 1, "Chicória", "trans", 1, "Chicória", "Chicória na sementeira"},
    {13, "c_che", "az_che.bmp", "\\cheiro.wav", 2, "Cheiro Verde", "trans", 2, "Cheiro-Verde", "Cheiro-Verde na sementeira"},
    {4, "c_agr", "az_agr.bmp", "\\agriao.wav", 3, "Agrião", "trans", 3, "Agrião", "Agrião na sementeira"},
    {5, "c_cou", "az_cou.bmp", "\\couve.wav", 4, "Couve", "trans", 4, "Couve", "Couve na sementeira"},
    {6, "c_esp", "az_esp.bmp", "\\espinafr.wav", 5, "Espinafre", "trans", 5, "Espinhafre", "Espinafre na sementeira"},
    {7, "c_ber", "az_qui.bmp", "\\quiabo.wav", 6, "Quiabo", "", -1, "", ""},
    {8, "c_ruc", "az_ruc.bmp", "\\rucula.wav", 7, "Rúcula", "", -1, "", ""},
    {9, "c_cen", "az_cen.bmp", "\\cenoura.wav", 8, "Cenoura", "", -1, "", ""},
    {10, "c_bet", "az_bet.bmp", "\\beterrab.wav", 9, "Beterraba", "", -1, "", ""},
    {11, "c_nab", "az_nab.bmp", "\\nabo.wav", 10, "Nabo", "", -1, "", ""},
    {12, "c_rab", "az_rab.bmp", "\\rabanete.wav", 11, "Rabanete", "", -1, "", ""},
    {14, "c_tom", "az_tom.bmp", "\\tomate.wav", 12, "Tomate", "trans", 6, "Tomate", "Tomate na sementeira"},
    {15, "c_pim", "az_pim.bmp", "\\pimentao.wav", 13, "Pimentão", "trans", 7, "Pimentão", "Pimentão na sementeira"},
    {16, "c_bgl", "az_bgl.bmp", "\\beringel.wav", 14, "Berinjela", "trans", 8, "Beringela", "Beringela na sementeira"},
    {17, "c_rep", "az_rep.bmp", "\\repolho.wav", 15, "Repolho", "trans", 9, "Repolho", "Repolho na sementeira"},
    {18, "c_bro", "az_bro.bmp", "\\brocolis.wav", 16, "Brócolis", "trans", 10, "Brocólis", "Brócolis na sementeira"},
    {19, "c_flo", "az_flo.bmp", "\\cflor.wav", 17, "Couve Flor", "trans", 11, "Couve-Flor", "Couve-Flor na sementeira"},
    {20, "c_vgm", "az_vgm.bmp", "\\vagem.wav", 18, "Vagem", "", -1, "", ""},
    {21, "c_pep", "az_pep.bmp", "\\pepino.wav", 19, "Pepino", "", -1, "", ""},
    {3, "c_alh", "az_por.bmp", "\\alho.wav", 20, "Alho Poró", "trans", 12, "Alho-Poró", "Alho-Poró sementeira"},
    // clang-format on
};

using Tabelas = Sementeira;

TEST_F(Tabelas, CadaBotaoPlantaFalaEExplicaASuaCultura) {
    som_ligado = true;
    for (const bool na_horta : {false, true}) {
        esvazia();
        roteiro.tocados.clear();
        int lugar = 0, semeadas = 0;
        for (const auto& c : culturas) {
            seq_pedido[c.cultura] = 2;
            if (na_horta && c.k_sem >= 0) semeia(semeadas++, c.cultura, ciclo_sem[c.cultura]); // uma leira pronta
        }
        recomeca_laco();
        auto_abastecido = true;
        const TelaId id = na_horta ? TelaId::trabalhando_na_horta : TelaId::controle_da_sementeira;
        mostra(id);
        Tela& t = carrega(id);
        for (const auto& c : culturas) {
            const int k = na_horta ? c.k : c.k_sem;
            if (k < 0) continue;
            const std::string aviso =
                na_horta ? c.falado + std::string("|Voce deve ") + c.trans + "plantar 2 leito(s) de " + c.falado
                         : c.titulo_sem + std::string("|Voce deve plantar 1 lote de ") + c.lote;
            roteiro.clica("Label3", k).aviso(aviso).clica(c.botao).confere([&] { EXPECT_EQ(falas(c.clipe), 1); });
            const auto confere = [&, na_horta, lugar, k] { // sobre a tela pode estar o "Parabéns" do último lote
                SCOPED_TRACE(c.botao);
                const Controle &rotulo = *t.controle("Label3", k), &botao = *t.controle(c.botao);
                EXPECT_EQ((na_horta ? st_cod_cult[lugar] : sem_cod_cult[lugar]), c.cultura);
                EXPECT_EQ(nome(t.controle(na_horta ? "cant" : "Image3", lugar)->figura), c.figura);
                EXPECT_EQ(nome(botao.figura), c.figura);
                EXPECT_TRUE(na_horta ? rotulo.texto == "1" : !rotulo.visivel);
            };
            (na_horta ? roteiro.arrasta(c.botao, -1, 220 + lugar % 10 * 42, 184 + lugar / 10 * 42)
                      : semeia_com_mouse(c.botao, lugar))
                .confere(confere);
            ++lugar;
        }
        if (!na_horta) roteiro.tecla(SDLK_ESCAPE);
        laco();
        EXPECT_EQ(lugar, na_horta ? 21 : 13);
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
            for (int outra = 0; outra < 8; ++outra) {
                const Controle* m = tela_ativa()->controle(marca, outra);
                EXPECT_EQ(m != nullptr && m->visivel, outra == i) << outra;
            }
            const Controle& m = *tela_ativa()->controle(marca, i);
            EXPECT_EQ(m.cor_fundo, t.cor);
            EXPECT_EQ(tela_ativa()->controle(botao, t.botao)->cor_fundo, t.cor);
            EXPECT_TRUE(!na_horta || m.letra.cor == t.letra);
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

// O planeta começa no quadro 9 e acaba no 1; o calendário anda de amanhã há uma semana até hoje.
TEST_F(Tabelas, OPlanetaEOCalendarioMostramOsSeusQuadros) {
    som_ligado = true;
    auto& h = entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    std::string planeta, dias;
    roteiro.clica("previsao").espera_ms(5);
    for (int i = 0; i < 23; ++i)
        roteiro.espera_ms(100).confere([&] { planeta += nome(h.previsao.figura).substr(6, 2); });
    roteiro.clica("tempo_real").espera_ms(5);
    for (int i = 0; i < 7; ++i) roteiro.espera_ms(100).confere([&] { dias += nome(h.tempo_real.figura).substr(6, 1); });
    laco();
    EXPECT_EQ(planeta, "0910010203040506070809100102030405060708091001");
    EXPECT_EQ(dias, "3217654"); // hoje é quarta
    EXPECT_EQ(falas("\\previsao.wav") * 10 + falas("\\tempo.wav"), 11);
}

// A apresentação gira as seis faces juntas, cada uma desde a primeira, e acaba com elas em repouso.
TEST_F(Tabelas, ApresentacaoGiraAsSeisFacesEAcaba) {
    musica_ligada = true;
    trilha_horta = "\\htfimc.wav";
    auto& h = entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta);
    const auto faces = [&h] {
        std::string s;
        for (const int k : {2, 5, 6, 7, 8, 9}) s += nome(h.Command2(k).figura_apagada) + " ";
        return s;
    };
    const std::string repouso = faces();
    roteiro.espera_ms(101).confere(
        [&] { EXPECT_EQ(faces(), "ssem00.bmp li00.bmp des00.bmp amo00.bmp cop00.bmp cof00.bmp "); });
    roteiro.espera_ms(12'000).confere([&] { EXPECT_EQ(faces() + std::to_string(h.timer_.intervalo), repouso + "0"); });
    laco();
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>{trilha_horta});
}

} // namespace
} // namespace verdalia
