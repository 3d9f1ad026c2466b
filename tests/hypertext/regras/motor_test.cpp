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

TEST_F(Hipertexto, TopicosDemaisFicamDeFora) {
    std::string fonte;
    for (int i = 1; i <= 120; ++i) fonte += "###T" + std::to_string(i) + "\ntexto " + std::to_string(i) + "\n";
    compila(fonte);
    EXPECT_EQ(n_topicos, 99);
    EXPECT_EQ(texto_do_topico("T99") + texto_do_topico("T100"), "texto 99");
    // Um índice estragado também não passa do fim da tabela.
    escreve(jogador / "doc.IDX", idx() + registro("demais", 1) + "um pedaço de registro");
    abre_hipertexto("\\doc.XXX");
    EXPECT_EQ(n_topicos, 99);
}

TEST_F(Hipertexto, ALigacaoSeSepara) {
    std::string_view rotulo, alvo;
    EXPECT_TRUE(le_ligacao("####a b|\\anima\\x.bmp~", rotulo, alvo));
    EXPECT_EQ(rotulo, "a b");
    EXPECT_EQ(alvo, "\\anima\\x.bmp");
    EXPECT_TRUE(le_ligacao("##a|" + std::string(300, 'x') + "~", rotulo, alvo));
    EXPECT_EQ(alvo.size(), tamanho_texto);
    for (const char* torta : {"##a~", "##a|b", "##|b~", "##a|~", "##a \r\n b|c~", "##a|b ##c|d~", "####~", ""})
        EXPECT_FALSE(le_ligacao(torta, rotulo, alvo)) << torta;
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
    // Nada começa abaixo do pé do quadro, e nada depois da linha final.
    quadro.alto = 39;
    desenha_linhas(quadro, 1, n_linhas);
    EXPECT_TRUE(quadro.impressos.empty());
    quadro.alto = 40;
    desenha_linhas(quadro, 1, n_linhas);
    EXPECT_EQ(quadro.impressos.size(), 4U);
}

TEST_F(Hipertexto, AsZonasTemBeirasQueNaoContam) {
    quebra("##ab|Alvo~. ##cd|Outro~");
    desenha_linhas(quadro, 2, n_linhas); // de 200 a 500 e de 600 a 800, de 0 a 180
    EXPECT_EQ(zona_em(201, 1) + zona_em(499, 179) + zona_em(700, 90), "AlvoAlvoOutro");
    for (const auto& [x, y] : {std::pair{200, 90}, {500, 90}, {300, 0}, {300, 180}, {550, 90}})
        EXPECT_FALSE(sobre_zona(x, y)) << x << ',' << y;
    desenha_linhas(quadro, 3, n_linhas); // rolou para fora da vista
    EXPECT_EQ(zona_em(300, 90), "");
}

TEST_F(Hipertexto, LinhasELigacoesDemaisFicamDeFora) {
    std::string texto;
    for (int i = 1; i <= 700; ++i) texto += "linha " + std::to_string(i) + "\n\n";
    EXPECT_EQ(quebra(texto), max_linhas + 1);
    quadro.alto = 1e9;
    desenha_linhas(quadro, 0, n_linhas);
    EXPECT_TRUE(quadro.impressos.back().ends_with(":250 "));

    texto.clear();
    for (int i = 1; i <= 130; ++i) texto += "##x|T" + std::to_string(i) + "~ ";
    quebra(texto);
    testing::internal::CaptureStderr();
    for (int vez = 0; vez < 3; ++vez) desenha_linhas(quadro, 2, n_linhas);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), // uma vez só
              "verdalia: ajuda: mais de 100 ligações à vista; as últimas não levam a nada\n");
    EXPECT_EQ(zonas[n_zonas_tela].alvo, "T100");
    // A palavra enorme não passa da escala das zonas.
    quebra("##" + std::string(800, 'x') + "|Alvo~ a");
    desenha_linhas(quadro, 0, n_linhas);
    EXPECT_EQ(zonas[1].dir, 32767);
}

} // namespace
} // namespace verdalia
