// Os arquivos de registros, byte por byte, inteiros ou estragados; as ligações, a quebra em linhas e as zonas.
#include "apoio.h"
#include "quadro_de_teste.h"

namespace verdalia {
namespace {

struct Hipertexto : Partida {
    ~Hipertexto() override { fecha_hipertexto(); }

    void compila(const std::string& fonte) const {
        escreve(instalada / "doc.Txt", fonte);
        compila_texto("\\doc.Txt");
        abre_hipertexto("\\doc.XXX");
    }
    // Um registro como fica no disco.
    static std::string registro(std::string texto, std::int32_t numero) {
        texto.resize(128, ' ');
        for (int i = 0; i < 4; ++i) texto += static_cast<char>(numero >> (8 * i));
        return texto;
    }
    std::string htf() const { return conteudo(jogador / "doc.HTF"); }
    std::string idx() const { return conteudo(jogador / "doc.IDX"); }
    // Quebra o texto de um tópico "Um".
    int quebra(const std::string& texto) {
        compila("###Um\n" + texto);
        n_linhas = static_cast<std::int16_t>(quebra_linhas("Um", quadro));
        return n_linhas;
    }

    QuadroDeTeste quadro;
};

TEST_F(Hipertexto, OsRegistrosSaemByteAByte) {
    // Antes do primeiro tópico o texto fica sem índice; a linha vazia é um parágrafo; as outras se emendam.
    compila("perdido\n###Um\nabc\r\ndef \n\nghi\n###\nsem nome\n###Dois\n###Três");
    EXPECT_EQ(htf(), registro("perdido", 0) + registro("abcdef  \r\n ghi", 0) + registro("sem nome", 0));
    EXPECT_EQ(idx(), registro("Um", 2) + registro("Dois", 0) + registro("Três", 0));
    EXPECT_EQ(texto_do_topico("Um"), "abcdef  \r\n ghi");
    for (const char* vazio : {"Dois", "Quatro", "um"}) EXPECT_EQ(texto_do_topico(vazio), "") << vazio;
    compila("###Um\nnovo"); // mais curto do que o de antes
    EXPECT_EQ(texto_do_topico("Um") + texto_do_topico("Dois"), "novo");
}

TEST_F(Hipertexto, OsPedacosSeEncadeiamParaTras) {
    const std::string curto(128, 'a'), quase(127, 'b'), com_branco = quase + " c", longo(300, 'd');
    compila("###A\n" + curto + "\n###B\n" + com_branco + "\n###C\n" + longo + "\n");
    EXPECT_EQ(htf(), registro(curto, 0) + registro(quase + '\1', 0) + registro("c", 2) +
                         registro(longo.substr(0, 128), 0) + registro(longo.substr(0, 128), 4) +
                         registro(longo.substr(0, 44), 5));
    EXPECT_EQ(idx(), registro("A", 1) + registro("B", 3) + registro("C", 6));
    EXPECT_EQ(texto_do_topico("A") + texto_do_topico("B") + texto_do_topico("C"), curto + com_branco + longo);
}

TEST_F(Hipertexto, AsLinhasQuebramNaLargura) {
    // Cabem 48 letras depois da margem de 200, e o branco do fim da palavra conta.
    EXPECT_EQ(quebra("123456789 123456789 123456789 123456789 1234567 abc"), 4);
    EXPECT_EQ(linhas[0] + linhas[1] + linhas[2], "Um123456789 123456789 123456789 123456789 1234567 ");
    quebra("123456789 123456789 123456789 123456789 12345678 abc");
    EXPECT_EQ(linhas[3], "12345678 abc");
    // A que não cabe em linha nenhuma fica só numa delas.
    quebra("a " + std::string(60, 'x') + " b");
    EXPECT_EQ(linhas[2] + "/" + linhas[3] + "/" + linhas[4], "a /" + std::string(60, 'x') + " /b");
    // Da ligação mede-se o rótulo com a letra seguinte, e guardam-se as marcas.
    quebra("123456789 123456789 123456789 123456789 ##1234567|Um alvo bem comprido~. b");
    EXPECT_EQ(linhas[3], " b");
    // As linhas do documento se emendam; a vazia é um parágrafo.
    EXPECT_EQ(quebra("um\ndois \ntrês\n\nquatro"), 5);
    EXPECT_EQ(linhas[2] + "/" + linhas[3] + "/" + linhas[4], "umdois três //quatro");
    EXPECT_EQ(quebra_linhas("Não há", quadro), 3);
}

TEST_F(Hipertexto, OTituloSoSeImprimeNoComeco) {
    quebra("abc ##de|Alvo~, fg\n\nh");
    desenha_linhas(quadro, 0, n_linhas);
    // O título tem 14 pontos e uma linha em branco embaixo; a linha vazia, 2.
    EXPECT_EQ(quadro.impressos, (std::vector<std::string>{"700,0:Um", "200,560:abc ", "600,560:de,*",
                                                          "900,560: ", "1000,560:fg ", "200,780:h"}));
    EXPECT_TRUE(quadro.negrito);
    desenha_linhas(quadro, 1, n_linhas);
    EXPECT_EQ(quadro.impressos.front(), "200,40:abc ");
    quadro.alto = 39; // nada começa abaixo do pé do quadro
    desenha_linhas(quadro, 1, n_linhas);
    EXPECT_TRUE(quadro.impressos.empty());
}

} // namespace
} // namespace verdalia
