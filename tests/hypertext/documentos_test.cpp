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

struct Ligacao {
    std::string rotulo, alvo;
};

// Um tópico lido: o texto sem as marcas, em UTF-8, com "\n" entre os parágrafos, e as suas ligações.
struct Lido {
    std::string texto;
    std::vector<Ligacao> ligacoes;
};

struct Documentos : PartidaNaTela {
    Documentos() {
        for (const Documento& d : documentos) {
            compila_texto(d.fonte);
            abre_hipertexto(d.aberto_como);
            for (int i = 1; i <= n_topicos; ++i) {
                ordem[d.topico_help].push_back(utf8_de_1252(indice[i].topico));
                lidos[d.topico_help].emplace(ordem[d.topico_help].back(), le(indice[i].topico));
            }
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
            if (termo.empty()) {
                ADD_FAILURE() << topico << ": \"#\" sem \"~\"";
                break;
            }
            if (termo[0] != '#') {
                lisos += termo;
            } else if (le_ligacao(termo, rotulo, alvo)) {
                lisos += rotulo;
                lido.ligacoes.push_back({utf8_de_1252(rotulo), utf8_de_1252(alvo)});
            } else {
                ADD_FAILURE() << topico << ": ligação malfeita: " << termo;
            }
        }
        for (const auto& paragrafo : casa(utf8_de_1252(lisos), "[^\r\n]+"))
            if (const auto limpo = casa(paragrafo[0], "[^ ](.*[^ ])?"); !limpo.empty())
                lido.texto += (lido.texto.empty() ? "" : "\n") + limpo[0][0];
        return lido;
    }

    std::map<std::string, std::vector<std::string>> ordem;
    std::map<std::string, std::map<std::string, Lido>> lidos;
};

bool de_arquivo(const std::string& alvo) {
    return alvo.size() >= 4 && alvo[alvo.size() - 4] == '.';
}

TEST_F(Documentos, CadaLigacaoLevaAAlgumLugarECadaTopicoSeAlcanca) {
    for (const auto& [nome, topicos] : lidos) {
        std::set<std::string> vistos;
        std::vector<std::string> por_ver{ordem[nome].front()};
        while (!por_ver.empty()) {
            const std::string topico = por_ver.back();
            por_ver.pop_back();
            if (!vistos.insert(topico).second) continue;
            for (const auto& [rotulo, alvo] : topicos.at(topico).ligacoes) {
                const std::string onde = nome + ", " + topico + ", \"" + rotulo + "\": " + alvo;
                if (de_arquivo(alvo)) {
                    EXPECT_TRUE(acha(dir_media + alvo)) << onde;
                    const std::string tipo = maiusculas(alvo.substr(alvo.size() - 3));
                    EXPECT_TRUE(tipo == "WAV" || tipo == "MID" || tipo == "BMP" || tipo == "JPG") << onde;
                } else if (topicos.contains(alvo)) {
                    por_ver.push_back(alvo);
                } else {
                    ADD_FAILURE() << onde;
                }
            }
        }
        for (const std::string& topico : ordem[nome]) EXPECT_TRUE(vistos.contains(topico)) << nome << ", " << topico;
    }
}

TEST_F(Documentos, CabemNosLimitesENenhumTopicoSeRepete) {
    for (const Documento& d : documentos) {
        const std::string fonte = conteudo(*acha(d.fonte));
        int escritos = fonte.starts_with("###") ? 1 : 0;
        for (std::size_t i = 0; (i = fonte.find("\n###", i)) != std::string::npos; ++i) ++escritos;
        EXPECT_EQ(ordem[d.topico_help].size(), static_cast<std::size_t>(escritos)) << d.fonte;
        EXPECT_EQ(lidos[d.topico_help].size(), static_cast<std::size_t>(escritos)) << d.fonte;
        EXPECT_TRUE(fonte.starts_with("###")) << d.fonte;
        // Os cinco bytes que o Windows-1252 deixa vagos, e os códigos que não são letra.
        for (const char c : fonte)
            EXPECT_TRUE((static_cast<unsigned char>(c) >= ' ' || c == '\r' || c == '\n') &&
                        std::string_view("\x81\x8d\x8f\x90\x9d").find(c) == std::string_view::npos)
                << d.fonte;
    }
    testing::internal::CaptureStderr();
    for (const Documento& d : documentos) {
        topico_help = d.topico_help;
        auto& h = entra_em<help>(TelaId::help);
        for (const std::string& topico : ordem[d.topico_help]) {
            h.mostra_topico(cp1252_de_utf8(topico));
            EXPECT_GT(n_linhas, 3) << d.fonte << ", " << topico;
            EXPECT_LE(lidos[d.topico_help][topico].ligacoes.size(), std::size_t{max_ligacoes}) << topico;
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Documentos, CadaTopicoIlustradoExisteComAsSuasFiguras) {
    for (const Ilustracao& i : ilustracoes) {
        const bool existe = std::any_of(lidos.begin(), lidos.end(),
                                        [&i](const auto& documento) { return documento.second.contains(i.topico); });
        EXPECT_TRUE(existe) << i.topico;
        EXPECT_TRUE(i.figura == nullptr || acha(i.figura)) << i.topico;
        const bool animado =
            std::any_of(std::begin(series), std::end(series), [&i](const Serie& s) { return s.acao == i.acao; });
        EXPECT_EQ(animado, i.acao != 0) << i.topico;
    }
    for (const Serie& s : series)
        for (const int numero : s.quadros.numeros) {
            const std::string algarismos = std::to_string(100 + numero).substr(1);
            EXPECT_TRUE(acha(s.quadros.antes + algarismos + s.quadros.depois)) << s.quadros.antes << algarismos;
        }
}

// As páginas das culturas. O cheiro-verde do jogo tem duas.
struct Pagina {
    const char* documento;
    const char* topico;
    std::int16_t cultura;
    const char* figura;
};
constexpr Pagina paginas[] = {
    {"Culturas2", "ALFACE", cult_alface, "alf"},       {"Culturas2", "CHICÓRIA", cult_chicoria, "chi"},
    {"Culturas2", "ALHO-PORÓ", cult_alho_poro, "por"}, {"Culturas2", "AGRIÃO", cult_agriao, "agr"},
    {"Culturas2", "COUVE", cult_couve, "cou"},         {"Culturas2", "ESPINAFRE", cult_espinafre, "esp"},
    {"Culturas1", "QUIABO", cult_quiabo, "qui"},       {"Culturas1", "RÚCULA", cult_rucula, "ruc"},
    {"Culturas1", "CENOURA", cult_cenoura, "cen"},     {"Culturas1", "BETERRABA", cult_beterraba, "bet"},
    {"Culturas1", "NABO", cult_nabo, "nab"},           {"Culturas1", "RABANETE", cult_rabanete, "rab"},
    {"Culturas2", "SALSA", cult_cheiro_verde, "che"},  {"Culturas2", "CEBOLINHA", cult_cheiro_verde, "che"},
    {"Culturas2", "TOMATE", cult_tomate, "tom"},       {"Culturas2", "PIMENTÃO", cult_pimentao, "pim"},
    {"Culturas2", "BERINJELA", cult_berinjela, "bgl"}, {"Culturas2", "REPOLHO", cult_repolho, "rep"},
    {"Culturas2", "BRÓCOLIS", cult_brocolis, "bro"},   {"Culturas2", "COUVE-FLÔR", cult_couve_flor, "flo"},
    {"Culturas1", "VAGEM", cult_vagem, "vgm"},         {"Culturas1", "PEPINO", cult_pepino, "pep"},
};

// Todos os números que uma frase fixa traz no texto.
std::set<int> numeros(const std::string& texto, const char* frase) {
    std::set<int> achados;
    for (const auto& vez : casa(texto, frase)) achados.insert(std::stoi(vez[1]));
    return achados;
}

// O que a página manda fazer, "semana:código ", a partir da pergunta `titulo` e até a pergunta seguinte.
std::string tratos_da_pagina(const std::string& texto, const std::string& titulo) {
    static const std::map<std::string, std::string> codigos = {{"plantio em sementeira", "PLS"},
                                                               {"plantio direto", "PLD"},
                                                               {"transplante", "TR"},
                                                               {"reposição", "REP"},
                                                               {"limpeza", "LI"},
                                                               {"amontoa", "AM"},
                                                               {"desbaste", "DES"},
                                                               {"colheita parcial", "COP"},
                                                               {"colheita final", "COF"}};
    std::istringstream paragrafos(texto.substr(std::min(texto.find("\n" + titulo + "\n"), texto.size())));
    std::string paragrafo, achados;
    std::getline(paragrafos, paragrafo);
    std::getline(paragrafos, paragrafo);
    while (std::getline(paragrafos, paragrafo) && !paragrafo.ends_with('?')) {
        const auto vezes = casa(paragrafo, "^Semanas? ([0-9]+)( (a|e) ([0-9]+))?: ([^.]+)\\.");
        if (vezes.empty()) continue;
        const auto& m = vezes.front();
        const int de = std::stoi(m[1]), ate = m[4].empty() ? de : std::stoi(m[4]);
        const auto codigo = codigos.find(m[5]);
        for (int s = de; s <= ate; ++s)
            achados += std::to_string(s) + ":" + (codigo == codigos.end() ? "?" : codigo->second) + " ";
    }
    return achados;
}

std::string tratos_do_catalogo(const Calendario& calendario, int cultura) {
    std::string achados;
    for (const auto& [semana, trato] : calendario[cultura])
        if (semana >= 0) achados += std::to_string(semana) + ":" + tratos[trato][0] + " ";
    return achados;
}

TEST_F(Documentos, OsNumerosDasCulturasSaoOsDoCatalogo) {
    std::set<std::int16_t> com_pagina;
    for (const Pagina& p : paginas) {
        SCOPED_TRACE(p.topico);
        com_pagina.insert(p.cultura);
        ASSERT_TRUE(lidos[p.documento].contains(p.topico));
        const auto& [texto, ligacoes] = lidos[p.documento][p.topico];
        EXPECT_EQ(numeros(texto, "Cabem? ([0-9]+) plantas? por canteiro"),
                  std::set{std::stoi(densidade_cult[p.cultura])});
        EXPECT_EQ(numeros(texto, "([0-9]+) semanas no canteiro"), std::set<int>{ciclo_horta[p.cultura]});
        EXPECT_EQ(numeros(texto, "a cada ([0-9]+) semanas?"), std::set<int>{intervalo_plantio[p.cultura]});
        const bool de_muda = ciclo_sem[p.cultura] > 0;
        EXPECT_EQ(numeros(texto, "([0-9]+) semanas na sementeira"),
                  de_muda ? std::set<int>{ciclo_sem[p.cultura]} : std::set<int>{});
        EXPECT_EQ(tratos_da_pagina(texto, de_muda ? "O que se faz no canteiro?" : "O que se faz em cada semana?"),
                  tratos_do_catalogo(oper_horta, p.cultura));
        EXPECT_EQ(tratos_da_pagina(texto, "O que se faz na sementeira?"), tratos_do_catalogo(oper_sem, p.cultura));
        // A planta inteira está a uma palavra.
        const std::string planta = "\\anima\\pe_" + std::string(p.figura) + ".jpg";
        EXPECT_TRUE(std::any_of(ligacoes.begin(), ligacoes.end(), [&](const Ligacao& l) { return l.alvo == planta; }));
    }
    EXPECT_EQ(com_pagina.size(), std::size_t{n_culturas});
}

// As sílabas de uma palavra: uma por vogal que não faz ditongo com a de antes.
int silabas(const std::u32string& palavra) {
    static const std::u32string vogais = U"aeiouáéíóúâêôãõàü";
    static const std::set<std::u32string> ditongos = {U"ai", U"ei", U"oi", U"ui", U"au", U"eu", U"ou", U"iu",
                                                      U"ão", U"ãe", U"õe", U"éu", U"éi", U"ói", U"ái", U"áu"};
    int n = 0;
    bool juntou = true; // a vogal de antes não espera par
    for (std::size_t i = 0; i < palavra.size(); ++i) {
        if (vogais.find(palavra[i]) == std::u32string::npos) {
            juntou = true;
            continue;
        }
        const bool de_gue = palavra[i] == U'u' && i > 0 && (palavra[i - 1] == U'q' || palavra[i - 1] == U'g') &&
                            i + 1 < palavra.size() && vogais.find(palavra[i + 1]) != std::u32string::npos;
        if (de_gue) continue;
        // "raiz", "sair", "ruim"
        const bool hiato = i + 2 == palavra.size() && palavra[i] == U'i' &&
                           std::u32string_view(U"zrlm").find(palavra[i + 1]) != std::u32string_view::npos;
        if (!juntou && !hiato && ditongos.contains(palavra.substr(i - 1, 2))) {
            juntou = true;
            continue;
        }
        ++n;
        juntou = false;
    }
    return std::max(n, 1);
}

// A facilidade de leitura: 248,835 − 1,015 palavras por frase − 84,6 sílabas por palavra.
double facilidade(const std::string& texto) {
    const std::string bytes = cp1252_de_utf8(texto); // um byte por letra
    std::u32string palavra;
    int palavras = 0, frases = 0, n_silabas = 0;
    bool na_frase = false;
    const auto acaba_palavra = [&] {
        if (palavra.empty()) return;
        ++palavras;
        n_silabas += silabas(palavra);
        palavra.clear();
        na_frase = true;
    };
    for (const char c : bytes) {
        auto letra = static_cast<unsigned char>(c);
        if ((letra >= 'A' && letra <= 'Z') || (letra >= 0xC0 && letra <= 0xDE)) letra += 32;
        if ((letra >= 'a' && letra <= 'z') || letra >= 0xE0) {
            palavra += letra;
            continue;
        }
        acaba_palavra();
        if (na_frase && (c == '.' || c == '!' || c == '?' || c == ':' || c == '\n')) {
            ++frases;
            na_frase = false;
        }
    }
    acaba_palavra();
    frases += na_frase;
    return 248.835 - 1.015 * palavras / frases - 84.6 * n_silabas / palavras;
}

TEST_F(Documentos, SaoFaceisDeLer) {
    // O contador, em palavras de que se sabem as sílabas.
    const std::vector<std::pair<std::u32string, int>> sabidas = {
        {U"pé", 1},  {U"horta", 2},    {U"água", 2},       {U"canteiro", 3}, {U"não", 1},
        {U"mãe", 1}, {U"saúde", 3},    {U"sementeira", 4}, {U"raiz", 2},     {U"quiabo", 3},
        {U"rua", 2}, {U"colheita", 3}, {U"guia", 2},       {U"pimentão", 3}};
    for (const auto& [palavra, n] : sabidas) EXPECT_EQ(silabas(palavra), n) << testing::PrintToString(palavra);
    for (const auto& [nome, topicos] : lidos) {
        std::string tudo;
        for (const auto& [topico, lido] : topicos) tudo += lido.texto + "\n";
        EXPECT_GE(facilidade(tudo), 55) << nome;
        RecordProperty(nome, std::to_string(facilidade(tudo)));
    }
    for (const Pagina& p : paginas) EXPECT_GE(facilidade(lidos[p.documento][p.topico].texto), 60) << p.topico;
}

} // namespace
} // namespace verdalia
