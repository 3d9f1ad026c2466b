#include <gtest/gtest.h>

#include <unistd.h>

#include <functional>

#include "ferramentas/arquivo.h"
#include "ferramentas/figura.h"
#include "ferramentas/oficina.h"
#include "ferramentas/quadros.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

std::string mensagem_de(const std::function<void()>& acao) {
    try {
        acao();
    } catch (const std::exception& erro) {
        return erro.what();
    }
    return "";
}

std::uint32_t numero_em(const std::string& bytes, std::size_t lugar) {
    std::uint32_t n = 0;
    for (std::size_t i = 4; i-- > 0;) n = n << 8 | static_cast<unsigned char>(bytes.at(lugar + i));
    return n;
}

// O ponto (x, y), contado de cima, de um BMP gravado de baixo para cima.
std::uint32_t ponto_do_bmp(const std::string& bmp, std::uint32_t x, std::uint32_t y) {
    const std::uint32_t largura = numero_em(bmp, 18), altura = numero_em(bmp, 22);
    return numero_em(bmp, numero_em(bmp, 10) + 4 * ((altura - 1 - y) * largura + x));
}

TEST(Quadros, InterpolaEntreAsChavesESeguraNasPontas) {
    const std::string tabela = "# comentário\n\n"
                               "total 12\n"
                               "mao   x     2:10 4:20 8:0\n"
                               "mao   giro  1:-10 3:10\n"
                               "luz   opacidade 1:0 7:.8 8:.8\n"
                               "folha escala 4:.5 12:1\n"
                               "folha largura 1:.5\n";
    const auto tem = [&](int quadro, const char* trecho) {
        const std::string folha = folha_do_quadro(tabela, quadro);
        EXPECT_NE(folha.find(trecho), std::string::npos) << "quadro " << quadro << ":\n" << folha;
    };
    tem(1, "#mao {transform: translate(10.00px,0.00px) rotate(-10.00deg);}"); // antes da primeira chave
    tem(2, "translate(10.00px,0.00px) rotate(0.00deg)");
    tem(3, "translate(15.00px,0.00px) rotate(10.00deg)");
    tem(5, "translate(15.00px,");
    tem(12, "translate(0.00px,"); // depois da última
    tem(4, "#luz {opacity:0.4;}");
    tem(1, "#folha {transform: scale(0.250,0.500);}");
    tem(8, "#folha {transform: scale(0.375,0.750);}");
}

TEST(Quadros, VisivelMudaEmDegrau) {
    const std::string tabela = "total 12\nraiz visivel 3:0 8:1 10:0\n";
    for (const int escondido : {1, 3, 7, 10, 12})
        EXPECT_EQ(folha_do_quadro(tabela, escondido), "#raiz {display:none;}\n");
    for (const int visto : {8, 9}) EXPECT_EQ(folha_do_quadro(tabela, visto), "");
}

TEST(Quadros, TabelaErradaDizALinha) {
    const auto erro = [](const char* linha) {
        return mensagem_de([&] { folha_do_quadro(std::string("total 5\n") + linha, 2); });
    };
    EXPECT_NE(erro("mao altitude 1:2").find("linha 2: propriedade desconhecida: \"altitude\""), std::string::npos);
    EXPECT_NE(erro("mao x 1;2").find("\"1;2\""), std::string::npos);
    EXPECT_NE(erro("mao x 1:2z").find("\"1:2z\""), std::string::npos);
    EXPECT_NE(erro("mao x 4:1 4:2").find("\"4:2\""), std::string::npos);
    EXPECT_NE(erro("mao x").find("falta a chave"), std::string::npos);
    for (const int fora : {0, 6}) EXPECT_THROW(folha_do_quadro("total 5\n", fora), std::runtime_error);
}

TEST(Figura, CorDaBordaSeEspalhaSemMudarOAlfa) {
    Figura f{5, 1, {0xff204060, 0, 0, 0, 0}};
    espalha_cor(f);
    EXPECT_EQ(f.pontos, (std::vector<std::uint32_t>{0xff204060, 0x204060, 0x204060, 0, 0}));
}

TEST(Manifesto, LinhaErradaDizONumero) {
    const auto erro = [](const std::string& linha) {
        return mensagem_de([&] { le_manifesto("raiz\tarquivo\nprograma\ta.txt\t-\t-\t-\t-\tx\n" + linha + "\n"); });
    };
    EXPECT_EQ(erro("programa\tb.txt\t-\t-\t-\t-\tx"), "");
    for (const char* errada :
         {"programa\tb.bmp\t10x10", "programa\tb.bmp\t10\t-\t-\t-\tx", "programa\tb.bmp\t0x5\t-\t-\t-\tx",
          "programa\tb.bmp\t10x10\ta.svg\t0\t-\tx", "programa\tb.bmp\t10x10\ta.svg\t2x\t-\tx",
          "programa\tb.tif\t10x10\t-\t-\t-\tx", "quintal\tb.txt\t-\t-\t-\t-\tx", "programa\t../b.txt\t-\t-\t-\t-\tx",
          "programa\ta.txt\t-\t-\t-\t-\tx", ""})
        EXPECT_NE(erro(errada).find("midias.tsv, linha 3: "), std::string::npos) << errada;
}

// Um projeto pequeno numa pasta passageira.
struct Oficina : testing::Test {
    fs::path pasta, projeto, programa;

    void SetUp() override {
        std::string modelo = fs::temp_directory_path() / "midias-XXXXXX";
        pasta = mkdtemp(modelo.data());
        projeto = pasta / "projeto";
        programa = pasta / "construcao" / "programa";
        grava_arquivo(projeto / "arte/pecas/cor.svg",
                      "<svg xmlns='http://www.w3.org/2000/svg'><style>.v{fill:#204060}</style></svg>");
        grava_arquivo(projeto / "arte/bola.svg", bola);
        grava_arquivo(projeto / "arte/bola.quadros", "total 2\nbola x 1:0 2:20\n");
        grava_arquivo(projeto / "arte/apaga.css", "svg { opacity: .5 }");
        grava_arquivo(projeto / "textos/guia.txt", "###Horta\nA couve é boa.\n");
        lista(linhas);
    }
    void TearDown() override { fs::remove_all(pasta); }

    void lista(const std::string& texto) const {
        grava_arquivo(projeto / "ferramentas/midias.tsv",
                      "raiz\tarquivo\ttamanho\tfonte\tquadro\testilo\tdiz\n" + texto);
    }
    Balanco faz(const char* ferramenta = "a mesma") const {
        return produz({projeto, pasta / "construcao", ferramenta});
    }

    const std::string bola =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xi='http://www.w3.org/2001/XInclude' viewBox='0 0 40 20'>"
        "<xi:include href='pecas/cor.svg' parse='xml'/><rect id='bola' class='v' width='10' height='20'/></svg>";
    const std::string linhas = "media\tanima/b0.bmp\t20x10\tbola.svg\t1\t-\tx\n"
                               "media\tanima/b1.bmp\t20x10\tbola.svg\t2\t-\tx\n"
                               "programa\tb0pb.bmp\t20x10\tbola.svg\t1\tapaga\tx\n"
                               "programa\tfundo.jpg\t20x10\tbola.svg\t-\t-\tx\n"
                               "programa\tnada.bmp\t30x30\tnada.svg\t3\t-\tx\n"
                               "programa\tguia.Txt\t-\tguia.txt\t-\t-\tx\n"
                               "programa\toutro.Txt\t-\toutro.txt\t-\t-\tx\n";
};

TEST_F(Oficina, FazCadaTipoComoOProgramaOLe) {
    const Balanco b = faz();
    EXPECT_EQ(b.erros, std::vector<std::string>{});
    EXPECT_EQ(b.feitas, 7);
    EXPECT_EQ(b.faltam[int(Tipo::figura)], 1);
    EXPECT_EQ(b.faltam[int(Tipo::texto)], 1);

    const std::string parada = le_arquivo(programa / "anima/b0.bmp"), apagada = le_arquivo(programa / "b0pb.bmp");
    EXPECT_EQ(numero_em(parada, 2), parada.size());
    EXPECT_EQ(numero_em(parada, 18), 40u); // o dobro do tamanho lógico
    EXPECT_EQ(numero_em(parada, 22), 20u);
    EXPECT_EQ(numero_em(parada, 14 + 40 + 12), 0xff000000u); // máscara do alfa
    EXPECT_EQ(ponto_do_bmp(parada, 5, 5), 0xff204060u);
    EXPECT_EQ(ponto_do_bmp(parada, 11, 5), 0x00204060u); // transparente com a cor da borda
    EXPECT_EQ(ponto_do_bmp(parada, 20, 5), 0u);
    EXPECT_EQ(ponto_do_bmp(le_arquivo(programa / "anima/b1.bmp"), 25, 5), 0xff204060u);
    const std::uint32_t meia = ponto_do_bmp(apagada, 5, 5); // alfa reto: metade do alfa, a mesma cor
    EXPECT_NEAR(double(meia >> 24), 128, 1);
    EXPECT_NEAR(double(meia >> 16 & 255), 0x20, 1);
    EXPECT_NEAR(double(meia & 255), 0x60, 1);

    EXPECT_EQ(le_arquivo(programa / "fundo.jpg").substr(0, 2), "\xff\xd8");
    const std::string cartao = le_arquivo(programa / "nada.bmp");
    EXPECT_EQ(numero_em(cartao, 18), 60u);
    EXPECT_EQ(ponto_do_bmp(cartao, 0, 0) >> 24, 0u);
    EXPECT_EQ(ponto_do_bmp(cartao, 30, 6), 0xfffbedc4u); // papel, nunca cinza
    EXPECT_EQ(le_arquivo(programa / "guia.Txt"), "###Horta\r\nA couve \xe9 boa.\r\n");
}

TEST_F(Oficina, SoFazDeNovoOQueMudou) {
    faz();
    EXPECT_EQ(faz().feitas, 0);
    grava_arquivo(projeto / "arte/bola.quadros", "total 2\nbola x 1:0 2:2\n");
    EXPECT_EQ(faz().feitas, 3);
    grava_arquivo(projeto / "arte/apaga.css", "svg { opacity: .25 }");
    EXPECT_EQ(faz().feitas, 1);
    fs::last_write_time(projeto / "arte/bola.svg", fs::file_time_type::clock::now() - std::chrono::hours(24));
    EXPECT_EQ(faz().feitas, 4); // uma fonte mais velha também é outra fonte
    grava_arquivo(projeto / "arte/pecas/outra.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    EXPECT_EQ(faz().feitas, 4);
    fs::remove(programa / "guia.Txt");
    EXPECT_EQ(faz().feitas, 1);
    grava_arquivo(projeto / "textos/outro.txt", "###Fim\n");
    const Balanco chegou = faz();
    EXPECT_EQ(chegou.feitas, 1);
    EXPECT_EQ(chegou.faltam[int(Tipo::texto)], 0);
    EXPECT_EQ(faz("outra").feitas, 7);
}

TEST_F(Oficina, LinhaQueMudaRefazELinhaQueSaiApaga) {
    faz();
    grava_arquivo(programa / "fontes/letra.ttf", "não é da lista");
    std::string menos = linhas.substr(linhas.find('\n') + 1); // sem b0.bmp
    menos.replace(menos.find("20x10"), 5, "40x20");
    lista(menos);
    const Balanco b = faz();
    EXPECT_EQ(b.feitas, 1);
    EXPECT_EQ(b.removidas, 1);
    EXPECT_FALSE(fs::exists(programa / "anima/b0.bmp"));
    EXPECT_EQ(numero_em(le_arquivo(programa / "anima/b1.bmp"), 18), 80u);
    EXPECT_TRUE(fs::exists(programa / "fontes/letra.ttf"));
}

TEST_F(Oficina, FonteQuebradaEErroComONomeAteSerConsertada) {
    grava_arquivo(projeto / "arte/bola.svg", bola.substr(0, bola.size() - 8));
    grava_arquivo(projeto / "textos/guia.txt", "Preço em ienes: ¥, em rúpias: ₹\n");
    for (int vez = 0; vez < 2; ++vez) {
        const Balanco b = faz();
        ASSERT_EQ(b.erros.size(), 2u);
        EXPECT_NE(b.erros[0].find("arte/bola.svg: "), std::string::npos) << b.erros[0];
        EXPECT_NE(b.erros[1].find("textos/guia.txt: "), std::string::npos) << b.erros[1];
        EXPECT_EQ(b.feitas, vez == 0 ? 2 : 0); // o resto saiu
    }
    grava_arquivo(projeto / "arte/bola.svg", bola);
    grava_arquivo(projeto / "arte/bola.quadros", "total 1\n"); // o quadro 2 não existe
    const Balanco b = faz();
    ASSERT_EQ(b.erros.size(), 2u); // e o documento, que continua errado
    EXPECT_NE(b.erros[0].find("quadro 2"), std::string::npos) << b.erros[0];
}

} // namespace
} // namespace verdalia
