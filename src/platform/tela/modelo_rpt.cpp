#include "platform/tela/modelo_rpt.h"

#include "platform/base/texto.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace verdalia {

namespace {

constexpr double menor_coluna = 4; // milímetros

std::string_view apara(std::string_view texto) {
    const auto comeco = texto.find_first_not_of(" \t\r");
    if (comeco == texto.npos) return {};
    return texto.substr(comeco, texto.find_last_not_of(" \t\r") - comeco + 1);
}

std::vector<std::string> reparte(std::string_view texto, char separador) {
    std::vector<std::string> partes;
    while (true) {
        const auto corte = texto.find(separador);
        partes.emplace_back(apara(texto.substr(0, corte)));
        if (corte == texto.npos) return partes;
        texto.remove_prefix(corte + 1);
    }
}

// ---- As palavras

struct Leitura {
    ModeloDeRelatorio modelo;
    int linha = 0;

    [[noreturn]] void engano(const std::string& qual) const { engano_no_modelo(modelo.arquivo, linha, qual); }
};

using Bloco = BlocoImpresso;
using Texto = std::string;

struct PalavraDoModelo {
    const char* nome;
    Texto ModeloDeRelatorio::*valor;
};
constexpr PalavraDoModelo palavras_do_modelo[] = {
    {"título", &ModeloDeRelatorio::titulo},
    {"subtítulo", &ModeloDeRelatorio::subtitulo},
    {"rodapé", &ModeloDeRelatorio::rodape},
};

constexpr const char* tipos_de_bloco[] = {"lista", "mapa", "tabela"}; // na ordem de Bloco::Tipo

constexpr int na_lista = 1 << Bloco::lista, no_mapa = 1 << Bloco::mapa, na_tabela = 1 << Bloco::tabela,
              em_todos = na_lista | no_mapa | na_tabela;

void poe_coluna(Leitura& l, Bloco& b, std::string_view valor) {
    const auto partes = reparte(valor, '|');
    if (partes.size() < 2 || partes.size() > 3)
        l.engano("uma coluna é \"coluna: campo | largura\", ou \"coluna: campo | largura | cabeçalho\"");
    const std::string& numero = partes[1];
    const bool certo = !numero.empty() && numero.size() <= 3 && numero.find_first_not_of("0123456789") == Texto::npos;
    const double largura = certo ? std::stoi(numero) : 0;
    if (largura < menor_coluna || largura > largura_util)
        l.engano("a largura de uma coluna é um número inteiro de milímetros, de 4 a 180");
    b.colunas.push_back({l.linha, partes[0], largura, partes.size() == 3 ? partes[2] : ""});
    const double soma = std::accumulate(b.colunas.begin(), b.colunas.end(), 0.0,
                                        [](double total, const ColunaImpressa& c) { return total + c.largura; });
    if (soma > largura_util) l.engano("as colunas somam mais que os 180 milímetros da folha");
}

void poe_celula(Leitura& l, Bloco& b, std::string_view valor) {
    const auto partes = reparte(valor, '|');
    if (partes.size() > 2) l.engano("uma célula é \"célula: campo\" ou \"célula: campo | texto\"");
    b.celulas.push_back({l.linha, partes[0], 0, partes.size() == 2 ? partes[1] : ""});
}

template <Texto Bloco::*campo> void poe_texto(Leitura&, Bloco& b, std::string_view valor) {
    b.*campo = valor;
}

struct PalavraDeBloco {
    const char* nome;
    int onde;
    void (*poe)(Leitura& l, Bloco& b, std::string_view valor);
};
constexpr PalavraDeBloco palavras_de_bloco[] = {
    {"título", em_todos, poe_texto<&Bloco::titulo>},
    {"vazio", na_lista | na_tabela, poe_texto<&Bloco::vazio>},
    {"seção", na_lista, poe_texto<&Bloco::secao>},
    {"grupo", na_lista, poe_texto<&Bloco::grupo>},
    {"ordem", em_todos, [](Leitura&, Bloco& b, std::string_view valor) { b.ordem = reparte(valor, ','); }},
    {"nota", em_todos, [](Leitura&, Bloco& b, std::string_view valor) { b.notas.emplace_back(valor); }},
    {"coluna", em_todos, poe_coluna},
    {"célula", no_mapa, poe_celula},
};

// Maiúsculas não fazem diferença nas palavras.
bool mesma(std::string_view escrita, const char* palavra) {
    return maiusculas(escrita) == maiusculas(palavra);
}

// Um bloco sem as suas colunas não tem o que mostrar.
void confere_ultimo(Leitura& l) {
    if (l.modelo.blocos.empty()) return;
    const Bloco& b = l.modelo.blocos.back();
    l.linha = b.linha;
    if (b.colunas.empty()) l.engano("falta ao menos uma linha \"coluna:\" depois desta");
    if (b.tipo == Bloco::mapa && b.celulas.empty()) l.engano("falta ao menos uma linha \"célula:\" depois desta");
}

bool comeca_bloco(Leitura& l, std::string_view palavra, std::string_view valor) {
    for (const auto tipo : {Bloco::lista, Bloco::mapa, Bloco::tabela}) {
        if (!mesma(palavra, tipos_de_bloco[tipo])) continue;
        const int aqui = l.linha;
        confere_ultimo(l);
        l.linha = aqui;
        Bloco& novo = l.modelo.blocos.emplace_back();
        novo.tipo = tipo;
        novo.linha = l.linha;
        novo.nome = valor;
        return true;
    }
    return false;
}

void le_linha(Leitura& l, std::string_view linha) {
    const auto dois_pontos = linha.find(':');
    if (dois_pontos == linha.npos) l.engano("faltam os dois-pontos depois da palavra");
    const auto palavra = apara(linha.substr(0, dois_pontos)), valor = apara(linha.substr(dois_pontos + 1));
    if (valor.empty()) l.engano("falta alguma coisa depois dos dois-pontos");
    if (comeca_bloco(l, palavra, valor)) return;
    if (l.modelo.blocos.empty()) {
        for (const PalavraDoModelo& p : palavras_do_modelo)
            if (mesma(palavra, p.nome)) {
                l.modelo.*p.valor = valor;
                return;
            }
    } else {
        Bloco& b = l.modelo.blocos.back();
        for (const PalavraDeBloco& p : palavras_de_bloco)
            if (mesma(palavra, p.nome) && (p.onde & (1 << b.tipo)) != 0) return p.poe(l, b, valor);
    }
    l.engano("a palavra \"" + std::string(palavra) + "\" não é conhecida aqui");
}

} // namespace

void engano_no_modelo(const std::string& arquivo, int linha, const std::string& qual) {
    throw std::runtime_error("O arquivo \"" + arquivo + "\" tem um engano na linha " + std::to_string(linha) + ": " +
                             qual + ".");
}

ModeloDeRelatorio entende_modelo(const std::string& arquivo, std::string_view texto) {
    constexpr std::string_view marca_utf8 = "\xEF\xBB\xBF"; // alguns editores a põem no começo
    if (texto.starts_with(marca_utf8)) texto.remove_prefix(marca_utf8.size());
    Leitura l;
    l.modelo.arquivo = arquivo;
    while (!texto.empty()) {
        ++l.linha;
        const auto fim = texto.find('\n');
        const std::string_view linha = apara(texto.substr(0, fim));
        texto.remove_prefix(fim == texto.npos ? texto.size() : fim + 1);
        if (!linha.empty() && linha[0] != '#') le_linha(l, linha);
    }
    confere_ultimo(l);
    l.linha = std::max(l.linha, 1); // um arquivo vazio também tem onde faltar
    if (l.modelo.blocos.empty()) l.engano("o relatório não tem nenhuma \"lista:\", \"mapa:\" nem \"tabela:\"");
    return l.modelo;
}

} // namespace verdalia
