// Os oito documentos, como a construção os deixou: o que se prometeu ao leitor de cada um.
#include "hypertext/regras/motor.h"
#include "hypertext/tabelas.h"
#include "platform/base/texto.h"
#include "roteiro.h"

#include <map>
#include <set>

namespace verdalia {
namespace {

using namespace ajuda_tabelas;

// Um tópico lido: o texto sem as marcas, em UTF-8, com "\n" entre os parágrafos, e as suas ligações.
struct Lido {
    std::string texto;
    std::vector<std::pair<std::string, std::string>> ligacoes; // rótulo, alvo
};

struct Documentos : PartidaNaTela {
    Documentos() {
        for (const Documento& d : documentos) {
            compila_texto(d.fonte);
            abre_hipertexto(d.aberto_como);
            primeiro[d.topico_help] = utf8_de_1252(indice[1].topico);
            for (int i = 1; i <= n_topicos; ++i)
                lidos[d.topico_help].emplace(utf8_de_1252(indice[i].topico), le(indice[i].topico));
        }
        fecha_hipertexto();
    }

    static Lido le(const std::string& topico) {
        Lido lido;
        const std::string bytes = texto_do_topico(topico);
        std::string lisos;
        std::string_view resto = bytes, rotulo, alvo;
        while (!resto.empty()) {
            const std::string_view termo = proximo_termo(resto);
            const bool ligacao = !termo.empty() && termo[0] == '#';
            if (termo.empty() || (ligacao && !le_ligacao(termo, rotulo, alvo))) {
                ADD_FAILURE() << topico << ": ligação malfeita: " << termo;
                break;
            }
            lisos += ligacao ? rotulo : termo;
            if (ligacao) lido.ligacoes.emplace_back(utf8_de_1252(rotulo), utf8_de_1252(alvo));
        }
        for (const auto& paragrafo : casa(utf8_de_1252(lisos), "[^\r\n]+"))
            if (const auto limpo = casa(paragrafo[0], "[^ ](.*[^ ])?"); !limpo.empty())
                lido.texto += (lido.texto.empty() ? "" : "\n") + limpo[0][0];
        return lido;
    }

    std::map<std::string, std::string> primeiro; // tópico de cada documento
    std::map<std::string, std::map<std::string, Lido>> lidos;
};

TEST_F(Documentos, CadaLigacaoLevaAAlgumLugarEACadaTopicoSeChega) {
    for (const auto& [nome, topicos] : lidos) {
        std::set<std::string> chega_se{primeiro[nome]};
        for (const auto& [topico, lido] : topicos)
            for (const auto& [rotulo, alvo] : lido.ligacoes) {
                const std::string onde = nome + ", " + topico + ", \"" + rotulo + "\": " + alvo;
                chega_se.insert(alvo);
                const bool de_arquivo = !casa(maiusculas(alvo), "\\.(WAV|MID|BMP|JPG)$").empty();
                EXPECT_TRUE(de_arquivo ? acha(dir_media + alvo).has_value() : topicos.contains(alvo)) << onde;
            }
        for (const auto& [topico, lido] : topicos) EXPECT_TRUE(chega_se.contains(topico)) << nome << ", " << topico;
    }
}

TEST_F(Documentos, CabemNosLimitesENenhumTopicoSeRepete) {
    for (const Documento& d : documentos) {
        EXPECT_EQ(lidos[d.topico_help].size(), casa("\n" + conteudo(*acha(d.fonte)), "\n###").size()) << d.fonte;
        topico_help = d.topico_help;
        auto& h = entra_em<help>(TelaId::help);
        for (const auto& [topico, lido] : lidos[d.topico_help]) {
            h.mostra_topico(cp1252_de_utf8(topico));
            EXPECT_TRUE(n_linhas > 3 && n_linhas < max_linhas && n_zonas_tela < max_ligacoes) << topico;
        }
    }
}

// Todos os números que uma frase fixa traz no texto.
std::set<int> numeros(const std::string& texto, const char* frase) {
    std::set<int> achados;
    for (const auto& vez : casa(texto, frase)) achados.insert(std::stoi(vez[1]));
    return achados;
}

// O que a página manda fazer, "semana:TRATO ", a partir da pergunta `titulo` e até a pergunta seguinte.
std::string tratos_da_pagina(const std::string& texto, const std::string& titulo) {
    std::istringstream paragrafos(texto.substr(std::min(texto.find("\n" + titulo + "\n"), texto.size())));
    std::string paragrafo, achados;
    std::getline(paragrafos, paragrafo);
    std::getline(paragrafos, paragrafo);
    while (std::getline(paragrafos, paragrafo) && !paragrafo.ends_with('?'))
        for (const auto& m : casa(paragrafo, "^Semanas? ([0-9]+)( (a|e) ([0-9]+))?: ([^.]+)\\.")) {
            const int de = std::stoi(m[1]), ate = m[4].empty() ? de : std::stoi(m[4]);
            for (int s = de; s <= ate; ++s) achados += std::to_string(s) + ":" + maiusculas(m[5]) + " ";
        }
    return achados;
}

std::string tratos_do_catalogo(const Calendario& calendario, int cultura) {
    std::string achados;
    for (const auto& [semana, trato] : calendario[cultura])
        if (semana >= 0) achados += std::to_string(semana) + ":" + maiusculas(tratos[trato][1]) + " ";
    return achados;
}

TEST_F(Documentos, OsNumerosDasCulturasSaoOsDoCatalogo) {
    // As páginas que não têm o nome da cultura; o cheiro-verde do jogo são duas.
    std::map<std::int16_t, std::vector<std::string>> paginas = {{cult_alho_poro, {"ALHO-PORÓ"}},
                                                                {cult_brocolis, {"BRÓCOLIS"}},
                                                                {cult_couve_flor, {"COUVE-FLÔR"}},
                                                                {cult_cheiro_verde, {"SALSA", "CEBOLINHA"}}};
    for (std::int16_t c = 1; c <= n_culturas; ++c) {
        const bool de_muda = ciclo_sem[c] > 0;
        if (!paginas.contains(c)) paginas[c] = {maiusculas(nome_cult[c])};
        for (const std::string& pagina : paginas[c]) {
            SCOPED_TRACE(pagina);
            const std::string& texto = lidos[de_muda ? "Culturas2" : "Culturas1"][pagina].texto;
            EXPECT_EQ(numeros(texto, "Cabem? ([0-9]+) plantas? por canteiro"), std::set{std::stoi(densidade_cult[c])});
            EXPECT_EQ(numeros(texto, "([0-9]+) semanas no canteiro"), std::set<int>{ciclo_horta[c]});
            EXPECT_EQ(numeros(texto, "a cada ([0-9]+) semanas?"), std::set<int>{intervalo_plantio[c]});
            EXPECT_EQ(numeros(texto, "([0-9]+) semanas na sementeira"),
                      de_muda ? std::set<int>{ciclo_sem[c]} : std::set<int>{});
            EXPECT_EQ(tratos_da_pagina(texto, de_muda ? "O que se faz no canteiro?" : "O que se faz em cada semana?"),
                      tratos_do_catalogo(oper_horta, c));
            EXPECT_EQ(tratos_da_pagina(texto, "O que se faz na sementeira?"), tratos_do_catalogo(oper_sem, c));
        }
    }
}

} // namespace
} // namespace verdalia
