// As tabelas da sementeira, linha por linha, pelo que o jogador vê e ouve.
#include "seedbed/mesa.h"

#include <map>

namespace verdalia {
namespace {

TEST_F(Sementeira, CadaBotaoSemeiaFalaEExplicaASuaCultura) {
    const struct {
        int k;
        std::int16_t cultura;
        const char *nome, *figura, *clipe, *aviso;
    } culturas[] = {
        {0, 1, "c_alf", "az_alf.bmp", "\\alface.wav", "Alface|Voce deve plantar 1 lote de Alface na sementeira"},
        {1, 2, "c_chi", "az_chi.bmp", "\\chicoria.wav", "Chicória|Voce deve plantar 1 lote de Chicória na sementeira"},
        {2, 13, "c_che", "az_che.bmp", "\\cheiro.wav",
         "Cheiro-Verde|Voce deve plantar 1 lote de Cheiro-Verde na sementeira"},
        {3, 4, "c_agr", "az_agr.bmp", "\\agriao.wav", "Agrião|Voce deve plantar 1 lote de Agrião na sementeira"},
        {4, 5, "c_cou", "az_cou.bmp", "\\couve.wav", "Couve|Voce deve plantar 1 lote de Couve na sementeira"},
        {5, 6, "c_esp", "az_esp.bmp", "\\espinafr.wav",
         "Espinhafre|Voce deve plantar 1 lote de Espinafre na sementeira"},
        {6, 14, "c_tom", "az_tom.bmp", "\\tomate.wav", "Tomate|Voce deve plantar 1 lote de Tomate na sementeira"},
        {7, 15, "c_pim", "az_pim.bmp", "\\pimentao.wav", "Pimentão|Voce deve plantar 1 lote de Pimentão na sementeira"},
        {8, 16, "c_bgl", "az_bgl.bmp", "\\beringel.wav",
         "Beringela|Voce deve plantar 1 lote de Beringela na sementeira"},
        {9, 17, "c_rep", "az_rep.bmp", "\\repolho.wav", "Repolho|Voce deve plantar 1 lote de Repolho na sementeira"},
        {10, 18, "c_bro", "az_bro.bmp", "\\brocolis.wav",
         "Brocólis|Voce deve plantar 1 lote de Brócolis na sementeira"},
        {11, 19, "c_flo", "az_flo.bmp", "\\cflor.wav",
         "Couve-Flor|Voce deve plantar 1 lote de Couve-Flor na sementeira"},
        {12, 3, "c_alh", "az_por.bmp", "\\alho.wav", "Alho-Poró|Voce deve plantar 1 lote de Alho-Poró sementeira"},
    };
    som_ligado = true;
    seq_pedido.fill(1);
    auto& s = abre();
    for (int i = 0; i < static_cast<int>(std::size(culturas)); ++i) {
        const auto& linha = culturas[i];
        roteiro.clica("Label3", linha.k).aviso(linha.aviso).clica(linha.nome).confere([this, &linha] {
            EXPECT_EQ(falas(linha.clipe), 1) << linha.nome;
        });
        semeia_com_mouse(linha.nome, i).confere([&s, &linha, i] {
            EXPECT_EQ(sem_cod_cult[i], linha.cultura);
            EXPECT_EQ(leira(s, i), linha.figura + std::string(" cresce0.bmp"));
            EXPECT_FALSE(s.Label3(linha.k).visivel) << linha.nome;
        });
    }
    roteiro.tecla(SDLK_ESCAPE); // o "Parabéns" do último lote
    laco();
    EXPECT_EQ(std::count(sem_check.begin(), sem_check.end(), 0), n_leiras + 1);
}

TEST_F(Sementeira, CadaTratoTemASuaCorASuaFalaEASuaAnimacao) {
    const struct {
        int botao;
        std::int16_t cultura, idade;
        Cor cor;
        const char *ha, *nao_ha, *quadros;
    } tratos[] = {
        {1, cult_alface, 2, {255, 255, 192}, "\\mudlimp.wav", "\\nlimp.wav", "06 07 08 09 11 12 00 01 02 03 04 05 06"},
        {2, cult_couve, 3, {255, 255, 0}, "\\muddesb.wav", "\\ndesb.wav", "06 07 08 09 10 11 12 00 01 02 03 04 05 06"},
        {3, cult_alface, 4, {255, 0, 255}, "\\mudtran.wav", "\\ntran.wav", "04 05 06 07 08 09 10 11 12 00 01 02 03 04"},
    };
    som_ligado = true;
    for (int i = 0; i < 3; ++i) semeia(i + 10, tratos[i].cultura, tratos[i].idade);
    auto& s = abre();
    std::map<int, std::string> vistos;
    for (int i = 0; i < 3; ++i) {
        const auto& t = tratos[i];
        roteiro.clica("Command4", t.botao).confere([this, &s, &t, i] {
            EXPECT_EQ(falas(t.ha), 1) << t.ha;
            EXPECT_EQ(s.Label4(i + 10).cor_fundo, t.cor);
            EXPECT_EQ(s.Command4(t.botao).cor_fundo, t.cor);
            for (int r = 10; r < 13; ++r) EXPECT_EQ(s.Label4(r).visivel, r == i + 10) << t.ha;
        });
        roteiro.espera_ms(5);
        for (std::size_t tique = 0; tique < (std::string(t.quadros).size() + 1) / 3; ++tique)
            roteiro.espera_ms(100).confere([&, i] {
                const std::string face = nome(s.Command4(tratos[i].botao).figura);
                vistos[i] += (vistos[i].empty() ? "" : " ") + face.substr(face.size() - 6, 2);
            });
        roteiro.espera_ms(300).confere([&s, i] {
            semeia(i + 10, cult_vago, 0);
            s.Image3(i + 10).figura = nullptr;
        });
        roteiro.clica("Command4", t.botao).confere([this, &t] { EXPECT_EQ(falas(t.nao_ha), 1) << t.nao_ha; });
    }
    laco();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(vistos[i], tratos[i].quadros);
}

TEST_F(Sementeira, AsLeirasEstaoNosSeusLugares) {
    auto& s = abre();
    for (int r = 0; r < n_leiras; ++r) {
        const Retangulo muda = s.Image3(r).lugar(), cresce = s.CRESCE(r).lugar(), marca = s.Label4(r).lugar();
        EXPECT_DOUBLE_EQ(muda.x, (2490 + 660 * (r % 11)) / 15.0) << r;
        EXPECT_DOUBLE_EQ(muda.y, (r < 11 ? 3810 : 6090) / 15.0) << r;
        EXPECT_DOUBLE_EQ(cresce.y, (r < 11 ? 4500 : 6780) / 15.0) << r;
        EXPECT_DOUBLE_EQ(marca.x - muda.x + marca.y - muda.y, 4) << r;
        // A leira inteira se acende quando uma semente passa por qualquer das metades.
        EXPECT_DOUBLE_EQ(s.CRESCE(r).realce().altura, cresce.y + cresce.altura - muda.y) << r;
        EXPECT_DOUBLE_EQ(s.Image3(r).realce().y, muda.y) << r;
    }
    for (const auto& [k, rotulo] : s.Label3) { // no canto de cima do seu botão
        const Retangulo b = s.c_[static_cast<std::size_t>(k)]->lugar();
        EXPECT_NEAR(rotulo->lugar().x + rotulo->lugar().largura, b.x + b.largura, 1e-9) << k;
        EXPECT_DOUBLE_EQ(rotulo->lugar().y, b.y);
    }
}

} // namespace
} // namespace verdalia
