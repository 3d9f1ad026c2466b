// As tabelas da horta, linha por linha, pelo que o jogador vê e ouve.
#include "roteiro.h"

#include <map>

namespace verdalia {
namespace {

struct CulturaNaHorta {
    int k;
    std::int16_t cultura;
    const char *nome, *figura, *clipe, *falado; // falado: como a mensagem a chama
};
constexpr CulturaNaHorta culturas[] = {
    {0, 1, "c_alf", "az_alf.bmp", "\\alface.wav", "Alface"},
    {1, 2, "c_chi", "az_chi.bmp", "\\chicoria.wav", "Chicória"},
    {2, 13, "c_che", "az_che.bmp", "\\cheiro.wav", "Cheiro Verde"},
    {3, 4, "c_agr", "az_agr.bmp", "\\agriao.wav", "Agrião"},
    {4, 5, "c_cou", "az_cou.bmp", "\\couve.wav", "Couve"},
    {5, 6, "c_esp", "az_esp.bmp", "\\espinafr.wav", "Espinafre"},
    {6, 7, "c_ber", "az_qui.bmp", "\\quiabo.wav", "Quiabo"},
    {7, 8, "c_ruc", "az_ruc.bmp", "\\rucula.wav", "Rúcula"},
    {8, 9, "c_cen", "az_cen.bmp", "\\cenoura.wav", "Cenoura"},
    {9, 10, "c_bet", "az_bet.bmp", "\\beterrab.wav", "Beterraba"},
    {10, 11, "c_nab", "az_nab.bmp", "\\nabo.wav", "Nabo"},
    {11, 12, "c_rab", "az_rab.bmp", "\\rabanete.wav", "Rabanete"},
    {12, 14, "c_tom", "az_tom.bmp", "\\tomate.wav", "Tomate"},
    {13, 15, "c_pim", "az_pim.bmp", "\\pimentao.wav", "Pimentão"},
    {14, 16, "c_bgl", "az_bgl.bmp", "\\beringel.wav", "Berinjela"},
    {15, 17, "c_rep", "az_rep.bmp", "\\repolho.wav", "Repolho"},
    {16, 18, "c_bro", "az_bro.bmp", "\\brocolis.wav", "Brócolis"},
    {17, 19, "c_flo", "az_flo.bmp", "\\cflor.wav", "Couve Flor"},
    {18, 20, "c_vgm", "az_vgm.bmp", "\\vagem.wav", "Vagem"},
    {19, 21, "c_pep", "az_pep.bmp", "\\pepino.wav", "Pepino"},
    {20, 3, "c_alh", "az_por.bmp", "\\alho.wav", "Alho Poró"},
};

struct TabelasDaHorta : PartidaNaTela {
    TabelasDaHorta() { prepara_banco(); }
    trabalhando_na_horta& abre() { return entra_em<trabalhando_na_horta>(TelaId::trabalhando_na_horta); }
};

TEST_F(TabelasDaHorta, CadaBotaoPlantaFalaEExplicaASuaCultura) {
    som_ligado = true;
    for (std::int16_t c = 1; c <= n_culturas; ++c) seq_pedido[c] = 2;
    for (std::int16_t r = 0; r < n_leiras - 9; ++r) { // uma leira pronta de cada cultura de muda
        const std::int16_t c = r < 6 ? r + 1 : r + 7;
        semeia(r, c, ciclo_sem[c]);
    }
    auto& h = abre();
    for (int i = 0; i < static_cast<int>(std::size(culturas)); ++i) {
        const CulturaNaHorta& linha = culturas[i];
        const std::string verbo = ciclo_sem[linha.cultura] == 0 ? "plantar" : "transplantar";
        const std::string aviso = std::string(linha.falado) + "|Voce deve " + verbo + " 2 leito(s) de " + linha.falado;
        roteiro.clica("Label3", linha.k).confere([aviso] { EXPECT_EQ(tela_ativa()->titulo + "|" + msg_texto, aviso); });
        roteiro.clica("opções").clica(linha.nome).confere([this, &linha] {
            EXPECT_EQ(falas(linha.clipe), 1) << linha.nome;
        });
        roteiro.arrasta(linha.nome, -1, 220 + i % 10 * 42, 184 + i / 10 * 42).confere([&h, &linha, i] {
            EXPECT_EQ(st_cod_cult[i], linha.cultura);
            EXPECT_EQ(nome(h.cant(i).figura), linha.figura);
            EXPECT_EQ(nome(h.controle(linha.nome)->figura), linha.figura);
            EXPECT_EQ(h.Label3(linha.k).texto, "1") << linha.nome;
        });
    }
    laco();
}

// O botão, a idade e a cultura que o acendem, a cor da marca, as falas e o que a face mostra num clique.
struct TratoNaHorta {
    int botao;
    std::int16_t cultura, idade;
    Cor cor;
    bool letra_branca;
    const char *ha, *nao_ha, *quadros;
};
constexpr TratoNaHorta tratos_da_horta[] = {
    {5, cult_alface, 2, {255, 255, 192}, false, "\\l1.wav", "\\l2.wav", "06 07 08 09 11 12 00 01 02 03 04 05 06"},
    {6, cult_quiabo, 4, {255, 255, 0}, false, "\\d1.wav", "\\d2.wav", "06 07 08 09 10 11 12 00 01 02 03 04 05"},
    {7, cult_alface, 4, {128, 64, 64}, true, "\\am1.wav", "\\am2.wav", "05 06 07 08 09 10 11 00 01 02 03 04"},
    {8, cult_alface, 6, {255, 0, 255}, false, "\\cp1.wav", "\\cp2.wav", "05 06 07 08 09 10 11 12 13 00 01 02 03 04 05"},
    {9, cult_alface, 7, {0, 192, 0}, false, "\\cf1.wav", "\\cf2.wav", "07 08 09 10 11 12 13 00 01 02 03 04 05 06"},
};

TEST_F(TabelasDaHorta, CadaTratoTemASuaCorASuaFalaEASuaAnimacao) {
    som_ligado = true;
    for (int i = 0; i < 5; ++i) planta(i, tratos_da_horta[i].cultura, tratos_da_horta[i].idade);
    auto& h = abre();
    std::map<int, std::string> vistos;
    for (int i = 0; i < 5; ++i) {
        const TratoNaHorta& t = tratos_da_horta[i];
        roteiro.clica("Command2", t.botao).confere([this, &h, &t, i] {
            EXPECT_EQ(falas(t.ha), 1) << t.ha;
            for (int outro = 0; outro < 5; ++outro)
                EXPECT_EQ(h.txt_label.existe(outro) && h.txt_label(outro).visivel, outro == i) << t.ha;
            EXPECT_EQ(h.txt_label(i).cor_fundo, t.cor);
            EXPECT_EQ(h.Command2(t.botao).cor_fundo, t.cor);
            EXPECT_EQ(h.txt_label(i).letra.cor, (t.letra_branca ? Cor{255, 255, 255} : Cor{0, 0, 0}));
        });
        roteiro.espera_ms(5);
        const auto quantos = (std::string(t.quadros).size() + 1) / 3;
        for (std::size_t tique = 0; tique < quantos; ++tique)
            roteiro.espera_ms(100).confere([&, i] {
                const std::string face = nome(h.Command2(tratos_da_horta[i].botao).figura);
                vistos[i] += (vistos[i].empty() ? "" : " ") + face.substr(face.size() - 6, 2);
            });
        // Tirado o canteiro, o botão ainda aceso diz que não há mais nenhum.
        roteiro.espera_ms(300).confere([&h, &t, i] {
            EXPECT_EQ(h.timer_.intervalo, 0);
            st_cod_cult[i] = cult_nenhuma;
            h.destroi_canteiro(i);
        });
        roteiro.clica("Command2", t.botao).confere([this, &t] { EXPECT_EQ(falas(t.nao_ha), 1) << t.nao_ha; });
    }
    laco();
    for (int i = 0; i < 5; ++i) EXPECT_EQ(vistos[i], tratos_da_horta[i].quadros);
}

TEST_F(TabelasDaHorta, CadaCaminhoMostraOsSeusQuadrosEFala) {
    som_ligado = true;
    primeira_carga = false;
    const struct {
        const char* controle;
        int indice;
        const char* quadros; // o fim do nome de cada um
        const char* fala;
        TelaId destino;
        const char* topico;
    } caminhos[] = {
        {"hortelino", -1, "01 02 03 04 05 06 07 06 05 04 03 02 01 00", "", TelaId::INTRONEW, ""},
        {"pic_agenda", -1, "00 01 02 03 04 05 06 07 08 09 10", "\\vamage.wav", TelaId::age, ""},
        {"pic_semen", -1, "00 01 02 03 04 05 06 07", "\\vamsem.wav", TelaId::controle_da_sementeira, ""},
        {"Command2", 2, "00 01 02 03 04 05 06 07", "\\vamsem.wav", TelaId::controle_da_sementeira, ""},
        {"lbl_atividades", -1, "", "\\ajuda.wav", TelaId::help, "Atividades"},
        {"lbl_verduras", 0, "", "\\ajuda.wav", TelaId::help, "Culturas1"},
        {"lbl_verduras", 1, "", "\\ajuda.wav", TelaId::help, "Culturas2"},
    };
    seq_pedido[cult_alface] = 1; // acende "Sementeira"
    for (const auto& caminho : caminhos) {
        SCOPED_TRACE(caminho.controle + std::string(caminho.topico));
        abre();
        roteiro.tocados.clear();
        topico_help.clear();
        std::string vistos;
        roteiro.clica(caminho.controle, caminho.indice).espera_ms(5);
        for (std::size_t i = 0; i + 2 <= std::string(caminho.quadros).size(); i += 3)
            roteiro.espera_ms(100).confere([&] {
                const Controle* c = tela_ativa()->controle(caminho.controle, caminho.indice);
                const std::string n = nome(c->figura);
                vistos += (vistos.empty() ? "" : " ") + n.substr(n.size() - 6, 2);
                if (caminho.indice < 0) {
                    EXPECT_EQ(c->ponteiro, ponteiro_ampulheta);
                }
            });
        roteiro.espera_ms(150).confere([&] { EXPECT_TRUE(carregada(caminho.destino)); });
        laco();
        EXPECT_EQ(vistos, caminho.quadros);
        EXPECT_EQ(topico_help, caminho.topico);
        if (*caminho.fala != '\0') {
            EXPECT_EQ(falas(caminho.fala), 1);
        }
    }
    // Os dois tempos: o planeta começa no quadro 9 e acaba no 1; o calendário anda de amanhã há uma semana até hoje.
    auto& h = abre();
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
TEST_F(TabelasDaHorta, ApresentacaoGiraAsSeisFacesEAcaba) {
    musica_ligada = true;
    trilha_horta = "\\htfimc.wav";
    auto& h = abre();
    const auto faces = [&h] {
        std::string s;
        for (const int k : {2, 5, 6, 7, 8, 9}) s += nome(h.Command2(k).figura_apagada) + " ";
        return s;
    };
    const std::string repouso = faces();
    roteiro.espera_ms(101).confere(
        [&] { EXPECT_EQ(faces(), "ssem00.bmp li00.bmp des00.bmp amo00.bmp cop00.bmp cof00.bmp "); });
    roteiro.espera_ms(12'000).confere([&] {
        EXPECT_EQ(faces(), repouso);
        EXPECT_EQ(h.timer_.intervalo, 0);
    });
    laco();
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>{trilha_horta});
}

} // namespace
} // namespace verdalia
