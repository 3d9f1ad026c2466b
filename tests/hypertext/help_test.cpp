// A ajuda como o jogador a usa: abrir de cada tela e voltar, seguir ligações, rolar, e o que dá errado.
#include "hypertext/regras/motor.h"
#include "platform/base/texto.h"
#include "roteiro.h"

namespace verdalia {
namespace {

struct Ajuda : PartidaNaTela {
    help& abre(const char* topico) {
        topico_help = topico;
        tela_origem = "horta";
        return entra_em<help>(TelaId::help);
    }
    // Um documento do jogador no lugar de "Atividades".
    help& abre_texto(const std::string& texto) {
        escreve(jogador / "help.Txt", cp1252_de_utf8(texto));
        return abre("Atividades");
    }
    static const Zona& zona(const std::string& alvo) {
        for (int i = 1; i <= n_zonas_tela; ++i)
            if (utf8_de_1252(zonas[i].alvo) == alvo) return zonas[i];
        throw std::logic_error("não há à vista ligação para " + alvo);
    }
    static double meio_x(const Zona& z) { return (z.esq + z.dir) / 2.0; }
    static double meio_y(const Zona& z) { return (z.topo + z.base) / 2.0; }
    static std::string topico() { return utf8_de_1252(topico_atual); }
    // Clica com o mouse no meio da ligação, que tem de estar à vista já.
    Roteiro& clica_ligacao(const help& h, const std::string& alvo) {
        const Retangulo primeira = h.controle("ligacao", 1)->lugar();
        const double desvio_x = primeira.x - zonas[1].esq * twip, desvio_y = primeira.y - zonas[1].topo * twip;
        return roteiro.clica_em(desvio_x + meio_x(zona(alvo)) * twip, desvio_y + meio_y(zona(alvo)) * twip);
    }
    static std::string a_vista(const help& h) {
        return std::string(h.TextPictureBox.visivel ? "texto" : "") + (h.imagespicturebox.visivel ? "+figura" : "");
    }
};

TEST_F(Ajuda, DeCadaTelaCadaPalavraAbreOSeuDocumentoEVolta) {
    struct Palavra {
        TelaId de;
        const char *controle, *topico;
        int indice = -1;
    };
    constexpr Palavra palavras[] = {
        {TelaId::trabalhando_na_horta, "lbl_atividades", "Atividades da Horta"},
        {TelaId::trabalhando_na_horta, "lbl_verduras", "Verduras de Plantio Direto", 0},
        {TelaId::trabalhando_na_horta, "lbl_verduras", "Verduras de Muda", 1},
        {TelaId::controle_da_sementeira, "lbl_atividades", "Atividades da Sementeira"},
        {TelaId::controle_da_sementeira, "lbl_verduras", "Verduras de Muda"},
        {TelaId::age, "Label1", "A agenda", 1},
        {TelaId::INTRONEW, "interroga", "A horta orgânica"},
        {TelaId::conf, "interroga", "O programa Verdalia"},
    };
    prepara_banco();
    primeira_carga = false;
    for (const Palavra& p : palavras) {
        SCOPED_TRACE(p.controle);
        const std::string tela = entra_em<Tela>(p.de).nome;
        roteiro.clica(p.controle, p.indice).espera_ms(2000).esta_em("help").confere([&p] {
            EXPECT_EQ(topico(), p.topico);
            // O centro do jogo e as opções ficam por baixo; as telas de trabalho saem antes.
            EXPECT_EQ(carregada(p.de), p.de == TelaId::INTRONEW || p.de == TelaId::conf);
        });
        roteiro.clica("theLabel1").esta_em(tela.c_str());
        laco();
        EXPECT_FALSE(carregada(TelaId::help) || arquivos_abertos);
    }
}

TEST_F(Ajuda, OMouseSegueUmaLigacaoEAIlustracaoSeAnima) {
    auto& h = abre("Atividades");
    clica_ligacao(h, "O Transplante").confere([&] {
        EXPECT_EQ(topico() + a_vista(h) + nome(h.imagespicturebox.figura), "O Transplantetexto+figuratra04.bmp");
        EXPECT_EQ(h.TextPictureBox.ponteiro, ponteiro_normal);
    });
    roteiro.clica("imagespicturebox").espera_ms(150 + 100 * 77).confere([&] {
        EXPECT_EQ(nome(h.imagespicturebox.figura), "tra03.bmp");
    });
    roteiro.espera_ms(300);
    laco();
    EXPECT_EQ(nome(h.imagespicturebox.figura) + std::to_string(h.timer_.intervalo), "tra04.bmp0");
    // A que não se anima fecha-se, e o texto fica como estava.
    h.segue_ligacao("ALFACE");
    EXPECT_EQ(nome(h.imagespicturebox.figura), "az_ALF.bmp");
    h.imagespicturebox_Click();
    EXPECT_EQ(a_vista(h) + topico(), "textoALFACE");
    // A do dia de hoje (uma quarta-feira), e nenhuma.
    h.segue_ligacao(cp1252_de_utf8("O botão do calendário (tempo real)"));
    EXPECT_EQ(nome(h.imagespicturebox.figura), "seman04.bmp");
    h.segue_ligacao("As Ferramentas");
    EXPECT_EQ(a_vista(h), "texto");
    // A figura que uma ligação abre toma o lugar do texto, e um clique o devolve.
    h.segue_ligacao("\\anima\\pe_tom.jpg");
    EXPECT_EQ(a_vista(h) + (h.TextVScroll.visivel ? "barra" : ""), "+figura");
    h.imagespicturebox_Click();
    EXPECT_EQ(a_vista(h) + topico(), "textoAs Ferramentas");
}

TEST_F(Ajuda, ArquivosTocamAbremOuSeRecusam) {
    for (const char* nome : {"jogador/x.doc", "fora.wav"}) escreve(pasta.raiz / nome, "x");
    escreve(jogador / "torta.bmp", "isto não é uma figura");
    std::filesystem::create_directories(jogador / "pasta.bmp");
    pastas_de_montagem = {pasta.raiz / "volumes"};
    escreve(pasta.raiz / "volumes" / "outro" / "anima" / "y.wav", "x");
    procura_unidades();
    auto& h = abre_texto("###Um\ntexto");
    h.segue_ligacao("\\audio\\correto\\alface.wav");
    h.segue_ligacao("C:\\silencio.wav");
    EXPECT_EQ(std::exchange(roteiro.tocados, {}),
              (std::vector<std::string>{"C:\\audio\\correto\\alface.wav", "C:\\silencio.wav"}));
    const std::string falta = "Hyperlink Error|Unable to locate media file ";
    for (const std::string alvo :
         {"\\anima\\nada.bmp", "\\..\\fora.wav", "D:\\anima\\y.wav", "\\pasta.bmp", "\\torta.bmp", ".bmp"}) {
        roteiro.confere([&h, alvo] { h.segue_ligacao(alvo); }).aviso(falta + (alvo[1] == ':' ? alvo : "C:" + alvo));
        roteiro.confere([&h] { EXPECT_EQ(a_vista(h), "texto"); });
    }
    roteiro.confere([&h] { h.segue_ligacao("\\x.doc"); });
    roteiro.aviso("Hyperlink Error|Unknown media file type C:\\x.doc").esta_em("help");
    laco();
    dir_media = "D:"; // as mídias noutra unidade
    h.segue_ligacao("\\anima\\y.wav");
    EXPECT_EQ(roteiro.tocados, std::vector<std::string>{"D:\\anima\\y.wav"});
}

TEST_F(Ajuda, RolarRefazAsLigacoes) {
    std::string texto = "###Um\n##cima|Dois~ ";
    for (int i = 0; i < 120; ++i) texto += "\n\nlinha " + std::to_string(i);
    auto& h = abre_texto(texto + "\n\n##baixo|Dois~\n###Dois\nx");
    const double x = meio_x(zona("Dois")), y = meio_y(zona("Dois"));
    const auto ponteiro = [&h, x, y] {
        h.TextPictureBox_MouseMove(0, 0, x, y);
        return h.TextPictureBox.ponteiro;
    };
    EXPECT_EQ(ponteiro(), ponteiro_mao);
    roteiro.teclas({SDLK_DOWN, SDLK_PAGEDOWN}).confere([&] {
        EXPECT_EQ(primeira_linha, 1 + h.TextVScroll.pagina);
        EXPECT_EQ(ponteiro(), ponteiro_normal);
    });
    roteiro.teclas({SDLK_HOME, SDLK_PAGEUP}).aponta(400, 300).roda(-1).confere([&] { EXPECT_EQ(primeira_linha, 3); });
    roteiro.tecla(SDLK_END).confere([&] {
        EXPECT_EQ(primeira_linha, h.TextVScroll.maximo);
        ASSERT_EQ(n_zonas_tela, 1); // a última linha está à vista, inteira
        EXPECT_LE(zonas[1].base * twip, h.TextPictureBox.altura);
        h.segue_ligacao("Dois");
    });
    laco();
    EXPECT_EQ(topico() + std::to_string(primeira_linha + h.TextVScroll.valor + h.TextVScroll.maximo), "Dois0");
}

TEST_F(Ajuda, OTecladoAndaPelasLigacoesNaOrdemDeLeitura) {
    auto& h = abre_texto("###Um\n##a|A~ ##b|B~\n\n##c|C~\n###C\nfim ##volta|Um~");
    const auto em = [&h](const char* alvo) { return [&h, alvo] { EXPECT_EQ(zonas[h.foco->indice].alvo, alvo); }; };
    for (const char* alvo : {"A", "B", "C"}) roteiro.tecla(SDLK_TAB).confere(em(alvo));
    roteiro.tecla(SDLK_TAB).confere([&] { EXPECT_EQ(h.foco, &h.theLabel1); }).tecla(SDLK_TAB, true).confere(em("C"));
    roteiro.tecla(SDLK_RETURN).confere([] { EXPECT_EQ(topico(), "C"); });
    roteiro.tecla(SDLK_TAB).confere(em("Um")).tecla(SDLK_SPACE).confere([] { EXPECT_EQ(topico(), "Um"); });
    laco();
}

} // namespace
} // namespace verdalia
