#include <gtest/gtest.h>

#include <unistd.h>

#include "ferramentas/arquivo.h"
#include "ferramentas/oficina.h"
#include "ferramentas/quadros.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

TEST(Quadros, InterpolaEntreAsChavesESeguraNasPontas) {
    const std::string tabela = "total 12\nmao x 2:10 4:20 8:0\nmao giro 1:-10 3:10\nmao visivel 1:1 9:0\n";
    EXPECT_EQ(folha_do_quadro(tabela, 1), "#mao {transform: translate(10.00px,0.00px) rotate(-10.00deg);}\n");
    EXPECT_EQ(folha_do_quadro(tabela, 3), "#mao {transform: translate(15.00px,0.00px) rotate(10.00deg);}\n");
    EXPECT_NE(folha_do_quadro(tabela, 12).find("display:none"), std::string::npos);
    for (const char* errada : {"mao altitude 1:2", "mao x 1;2", "mao x 1:2z", "mao x 4:1 4:2", "mao x"})
        EXPECT_THROW(folha_do_quadro(std::string("total 5\n") + errada, 2), std::runtime_error) << errada;
    for (const int fora : {0, 13}) EXPECT_THROW(folha_do_quadro(tabela, fora), std::runtime_error);
}

// Um projeto pequeno numa pasta passageira: faz-se cada tipo, só se refaz o que mudou, e o engano é dito com o nome.
TEST(Oficina, FazOQueMudouEDizOQueNaoPode) {
    std::string modelo = fs::temp_directory_path() / "midias-XXXXXX";
    const fs::path pasta = mkdtemp(modelo.data()), projeto = pasta / "projeto", programa = pasta / "c/programa";
    const auto faz = [&] { return produz({projeto, pasta / "c", "a mesma"}); };
    const std::string bola = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20'>"
                             "<rect id='bola' fill='#204060' width='10' height='20'/></svg>";
    grava_arquivo(projeto / "arte/bola.svg", bola);
    grava_arquivo(projeto / "arte/bola.quadros", "total 2\nbola x 1:0 2:20\n");
    grava_arquivo(projeto / "textos/guia.txt", "###Horta\nA couve é boa.\n");
    grava_arquivo(projeto / "ferramentas/midias.tsv", "raiz\tarquivo\ttamanho\tfonte\tquadro\testilo\tdiz\n"
                                                      "programa\tb0.bmp\t20x10\tbola.svg\t1\t-\tx\n"
                                                      "programa\tb1.bmp\t20x10\tbola.svg\t2\t-\tx\n"
                                                      "programa\tfundo.jpg\t20x10\tbola.svg\t-\t-\tx\n"
                                                      "programa\tguia.Txt\t-\tguia.txt\t-\t-\tx\n");
    const Balanco b = faz();
    EXPECT_EQ(b.erros, std::vector<std::string>{});
    EXPECT_EQ(b.feitas, 4);
    EXPECT_EQ(le_arquivo(programa / "b0.bmp").substr(18, 8), bytes_de<std::uint32_t>({40, 20})); // o dobro do lógico
    EXPECT_NE(le_arquivo(programa / "b0.bmp"), le_arquivo(programa / "b1.bmp"));
    EXPECT_EQ(le_arquivo(programa / "guia.Txt"), "###Horta\r\nA couve \xe9 boa.\r\n");
    EXPECT_EQ(faz().feitas, 0);
    grava_arquivo(projeto / "arte/bola.quadros", "total 2\nbola x 1:0 2:2\n");
    EXPECT_EQ(faz().feitas, 2);
    grava_arquivo(projeto / "arte/bola.svg", bola.substr(0, bola.size() - 8));
    for (int vez = 0; vez < 2; ++vez) { // até ser consertada
        const Balanco quebrada = faz();
        ASSERT_FALSE(quebrada.erros.empty());
        EXPECT_NE(quebrada.erros[0].find("arte/bola.svg: "), std::string::npos) << quebrada.erros[0];
    }
    fs::remove_all(pasta);
}

} // namespace
} // namespace verdalia
