#include "platform/tela/relatorio.h"

#include "agenda/regras/plano.h"
#include "agenda/regras/relatorio.h"
#include "platform/tela/modelo_rpt.h"
#include "roteiro.h"

#include <sys/wait.h>

namespace verdalia {
namespace {

namespace fs = std::filesystem;

constexpr Dia quarta = dia(2026, 3, 4); // da semana 10

// Uma pasta no lugar do PATH, com os programas que o teste puser nela.
struct Impressora : PartidaNaTela {
    Impressora() {
        prepara_banco();
        fs::create_directories(programas);
        setenv("PATH", programas.c_str(), 1);
    }
    ~Impressora() override {
        setenv("PATH", path.c_str(), 1);
        espera_os_filhos();
    }
    static void espera_os_filhos() {
        while (waitpid(-1, nullptr, 0) > 0) {
        }
    }

    void instala(const char* nome, const std::string& corpo) const {
        escreve(programas / nome, "#!/bin/sh\n" + corpo);
        fs::permissions(programas / nome, fs::perms::owner_all);
    }
    // Imprime o que as tabelas da memória pedem.
    Impresso imprime(const Relatorio& relatorio) const {
        monta_listas();
        prepara_relat();
        return relatorio.imprime(nome_banco, quarta);
    }
    std::string pdf() const { return conteudo(arquivo); }
    // O que um programa de PDF diz do que ficou guardado.
    std::string do_pdf(const char* comando, const char* resto = "") const {
        const std::unique_ptr<FILE, int (*)(FILE*)> cano(
            popen(("PATH=" + path + " " + comando + " '" + arquivo.string() + "' " + resto).c_str(), "r"), pclose);
        std::string texto(1 << 20, ' ');
        texto.resize(std::fread(texto.data(), 1, texto.size(), cano.get()));
        return texto;
    }
    std::string texto_do_pdf() const { return do_pdf("pdftotext -raw", "-"); }

    const fs::path arquivo = jogador / "relatorios" / "semana 2026-10.pdf";
    const Relatorio relat{"\\relatb.rpt", "semana"};
    const std::string path = std::getenv("PATH");
    const fs::path programas = pasta.raiz / "programas";
};

int quantas(const std::string& texto, const char* padrao) {
    return static_cast<int>(casa(texto, padrao).size());
}

TEST_F(Impressora, SemanaComumTrazOTrabalhoNaOrdemEOMapa) {
    seq_pedido[cult_cenoura] = 2;
    seq_pedido[cult_alface] = 1;
    semeia(3, cult_alface, 4);  // pronta e pedida
    semeia(12, cult_couve, 5);  // pronta, mas o que se queria já está plantado
    semeia(13, cult_tomate, 2); // limpeza
    semeia(14, cult_couve, 3);  // desbaste
    planta(0, cult_couve, 0);
    planta(1, cult_alface, 2);
    planta(2, cult_rucula, 2);
    planta(3, cult_alface, 4);
    planta(4, cult_alface, 6);
    planta(99, cult_alface, 7);
    planta(10, cult_cenoura, 0);
    st_cod_cult[11] = cult_vago;
    imprime(relat);
    const std::string texto = texto_do_pdf();
    EXPECT_NE(texto.find("HORTA\nPlantio\n1m Cenoura (30 / m2)\nB 1 Cenoura\n"
                         "Transplante\n1m Alface ( 12 / m2 )\nA 1 Couve\nLimpeza\nA 2 Alface\nDesbaste\nA 3 Rúcula\n"
                         "Amontoa\nA 4 Alface\nColheita Parcial\nA 5 Alface\nColheita Final\nJ 10 Alface\n"
                         "SEMENTEIRA\nPlantio em Sementeira\n1x Alface\nTransplante\nA 4 Alface\nB 2 Couve\n"
                         "Limpeza\nB 3 Tomate\nDesbaste\nB 4 Couve\n"),
              texto.npos)
        << texto;
    EXPECT_NE(texto.find("Alf COP\nidade 6\nfaltam 2\nB\n"), texto.npos) << texto;
    EXPECT_NE(texto.find("J\nAlf COF\nidade 7\nfaltam 1\n"), texto.npos) << texto;
    const std::string letras = do_pdf("pdffonts");
    EXPECT_EQ(quantas(letras, "TrueType +WinAnsi +yes"), quantas(letras, "\n") - 2) << letras; // duas linhas de título
}

TEST_F(Impressora, CemColheitasSePartemEntreLinhas) {
    for (int i = 0; i < n_canteiros; ++i) planta(i, cult_cheiro_verde, 23);
    for (int i = 0; i < n_leiras; ++i) semeia(i, cult_berinjela, 4);
    imprime(relat);
    const std::string texto = texto_do_pdf();
    EXPECT_EQ(quantas(texto, "\n[A-J] [0-9]+ "), n_canteiros + n_leiras);
    // Em cada folha: o título, a seção, o grupo em cada coluna, o número.
    EXPECT_EQ(quantas(texto, "Agenda da horta – semana 10\nDe domingo"), 3);
    EXPECT_EQ(quantas(texto, "HORTA \\(continuação\\)\nColheita Final \\(continuação\\)\n"), 1);
    EXPECT_EQ(quantas(texto, "\nColheita Final"), 4);
    EXPECT_EQ(quantas(texto, "Página [123] de 3\n\f"), 3);
}

TEST_F(Impressora, EnganoNoModeloDizOndeEsta) {
    const std::pair<const char*, const char*> casos[] = {
        {"título", "linha 1: faltam os dois-pontos"},
        {"titulão: a", "linha 1: a palavra \"titulão\" não é conhecida aqui"},
        {"mapa: mapa_horta\ncoluna: ordem|9", "linha 1: falta ao menos uma linha \"célula:\""},
        {"tabela: rr\ncoluna: mod | 90\ncoluna: cult | 91", "linha 3: as colunas somam"},
        {"tabela: rr\ncoluna: modulo | 90", "linha 2: a tabela \"rr\" não tem o campo \"modulo\""},
        {"tabela: r\"r\ncoluna: mod | 90", "linha 1: o banco não tem a tabela"},
    };
    for (const auto& [modelo, engano] : casos) {
        escreve(jogador / "relatb.rpt", modelo);
        const std::string frase = imprime(relat).frase;
        EXPECT_NE(frase.find(std::string("\"relatb.rpt\" tem um engano na ") + engano), std::string::npos) << frase;
    }
    escreve(jogador / "relatb.rpt", std::string(70000, '#'));
    EXPECT_NE(imprime(relat).frase.find("\"relatb.rpt\" é grande demais"), std::string::npos);
    EXPECT_NE(imprime({"\\nenhum.rpt", "a"}).frase.find("Falta o arquivo \"nenhum.rpt\""), std::string::npos);
}

TEST_F(Impressora, AImpressoraAceitaRecusaOuNaoResponde) {
    const fs::path impresso = pasta.raiz / "impresso", visto = pasta.raiz / "visto";
    const auto copia = [](const fs::path& para) { return "/bin/cp \"$1\" " + para.string() + "\n"; };
    const struct {
        std::string lp;
        Impresso::Onde onde;
        const char* frase;
    } casos[] = {
        {"read x && exit 1\n" + copia(impresso), Impresso::na_impressora, ""}, // sem entrada
        {"exit 1\n", Impresso::no_visor, "não aceitou"},
        {"/bin/sleep 20\n", Impresso::no_visor, "não respondeu em 10 segundos"},
    };
    instala("xdg-open", copia(visto));
    roteiro.espera_ms(600000); // o jogador não faz nada
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.lp);
        instala("lp", caso.lp);
        roteiro.dorme = caso.lp.find("sleep") == std::string::npos;
        const int pinturas = roteiro.pinturas;
        const Impresso i = imprime(relat);
        EXPECT_TRUE(i.onde == caso.onde && i.frase.find(caso.frase) != std::string::npos) << i.frase;
        const auto antes = std::chrono::steady_clock::now();
        espera_os_filhos();
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds{10}); // nenhum ficou a dormir
        EXPECT_TRUE(pdf().starts_with("%PDF"));
        EXPECT_EQ(conteudo(visto), i.onde == Impresso::no_visor ? pdf() : ""); // só quando a impressora falha
        EXPECT_TRUE(roteiro.dorme || roteiro.pinturas - pinturas > 100);       // a janela não congelou
    }
    EXPECT_EQ(conteudo(impresso), pdf());
}

} // namespace
} // namespace verdalia
