// Os arquivos de registros, byte por byte, e o que se lê deles, inteiros ou estragados.
#include "apoio.h"
#include "hypertext/regras/motor.h"

namespace verdalia {
namespace {

struct Documento : Partida {
    ~Documento() override { fecha_hipertexto(); }

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
};

TEST_F(Documento, OsRegistrosSaemByteAByte) {
    // Antes do primeiro tópico o texto fica sem índice; a linha vazia é um parágrafo; as outras se emendam.
    compila("perdido\n###Um\nabc\r\ndef \n\nghi\n###\nsem nome\n###Dois\n###Três");
    EXPECT_EQ(htf(), registro("perdido", 0) + registro("abcdef  \r\n ghi", 0) + registro("sem nome", 0));
    EXPECT_EQ(idx(), registro("Um", 2) + registro("Dois", 0) + registro("Três", 0));
    EXPECT_EQ(n_topicos, 3);
    EXPECT_EQ(texto_do_topico("Um"), "abcdef  \r\n ghi");
    for (const char* vazio : {"Dois", "Três", "Quatro", "um"}) EXPECT_EQ(texto_do_topico(vazio), "") << vazio;
}

TEST_F(Documento, OsPedacosSeEncadeiamParaTras) {
    const std::string curto(128, 'a'), quase(127, 'b'), com_branco = quase + " c", longo(300, 'd');
    compila("###A\n" + curto + "\n###B\n" + com_branco + "\n###C\n" + longo + "\n");
    EXPECT_EQ(htf(), registro(curto, 0) + registro(quase + '\1', 0) + registro("c", 2) +
                         registro(longo.substr(0, 128), 0) + registro(longo.substr(0, 128), 4) +
                         registro(longo.substr(0, 44), 5));
    EXPECT_EQ(idx(), registro("A", 1) + registro("B", 3) + registro("C", 6));
    EXPECT_EQ(texto_do_topico("A"), curto);
    EXPECT_EQ(texto_do_topico("B"), com_branco);
    EXPECT_EQ(texto_do_topico("C"), longo);
    const std::string nulos("antes\0depois", 12);
    compila("###Um\n" + nulos);
    EXPECT_EQ(texto_do_topico("Um"), nulos);
}

TEST_F(Documento, QuemMudaOTextoVeAMudancaNaProximaVez) {
    compila("###Um\nvelho, e bem mais comprido do que o que vem depois\n###Dois\nx");
    escreve(jogador / "doc.Txt", "###Um\nnovo"); // o da pasta do jogador vale mais
    compila_texto("\\doc.Txt");
    EXPECT_FALSE(arquivos_abertos);
    abre_hipertexto("\\doc.1.XXX"); // o nome vai até o primeiro ponto
    EXPECT_EQ(n_topicos, 1);
    EXPECT_EQ(texto_do_topico("Um"), "novo");
    EXPECT_EQ(htf().size() + idx().size(), 2U * tamanho_registro);
}

TEST_F(Documento, OQuePassaDosLimitesFicaDeFora) {
    std::string fonte;
    for (int i = 1; i <= 120; ++i) fonte += "###T" + std::to_string(i) + "\ntexto " + std::to_string(i) + "\n";
    testing::internal::CaptureStderr();
    compila(fonte);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "verdalia: ajuda: o documento passa de 99 tópicos; os outros ficam de fora\n");
    EXPECT_EQ(n_topicos, 99);
    EXPECT_EQ(texto_do_topico("T99"), "texto 99");
    EXPECT_EQ(texto_do_topico("T100"), "");

    // Um índice estragado também não passa do fim da tabela.
    escreve(jogador / "doc.IDX", idx() + registro("demais", 1) + "um pedaço de registro");
    testing::internal::CaptureStderr();
    abre_hipertexto("\\doc.XXX");
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(n_topicos, 99);
}

TEST_F(Documento, CorrenteEstragadaAcabaOndeSeEstragou) {
    compila("###Um\n" + std::string(300, 'a'));
    const std::string bom = htf();
    const auto com_ligacao = [&](std::int32_t numero) {
        escreve(jogador / "doc.HTF", registro("1", numero) + bom.substr(tamanho_registro));
        abre_hipertexto("\\doc.XXX");
        return texto_do_topico("Um").size();
    };
    EXPECT_EQ(com_ligacao(3), 128U + 44 + 1); // em círculo: cada registro se lê uma vez
    EXPECT_EQ(com_ligacao(-5), 128U + 44 + 1);
    EXPECT_EQ(com_ligacao(2147483647), 128U + 44 + 1);
    escreve(jogador / "doc.HTF", bom.substr(0, 100));
    abre_hipertexto("\\doc.XXX");
    EXPECT_EQ(texto_do_topico("Um"), "");
}

TEST_F(Documento, OQueNaoSePodeLerOuGravarDizPorQue) {
    EXPECT_THROW(compila_texto("\\doc.Txt"), std::runtime_error);
    EXPECT_THROW(abre_hipertexto("\\doc.XXX"), std::runtime_error);
    std::filesystem::create_directories(jogador / "doc.Txt"); // uma pasta no lugar do documento
    EXPECT_THROW(compila_texto("\\doc.Txt"), std::runtime_error);
    std::filesystem::remove(jogador / "doc.Txt");
    escreve(jogador / "doc.Txt", std::string(maior_documento + 1, 'x'));
    EXPECT_THROW(compila_texto("\\doc.Txt"), std::runtime_error);
    escreve(jogador / "doc.Txt", "###Um\nx");
    escreve(jogador / "doc.HTF" / "ocupado", "x");
    EXPECT_THROW(compila_texto("\\doc.Txt"), std::runtime_error);
    EXPECT_FALSE(arquivos_abertos);
    EXPECT_EQ(texto_do_topico("Um"), "");
}

} // namespace
} // namespace verdalia
