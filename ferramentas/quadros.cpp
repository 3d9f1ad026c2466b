#include "quadros.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace verdalia {
namespace {

enum Propriedade { x, y, giro, escala, largura, altura, opacidade, visivel, propriedades };
constexpr std::array<const char*, propriedades> nomes = {"x",       "y",      "giro",      "escala",
                                                         "largura", "altura", "opacidade", "visivel"};

using Peca = std::array<std::optional<double>, propriedades>;

struct Chave {
    double quadro, valor;
};

// As chaves quadro:valor até o fim da linha, em ordem crescente de quadro; ao menos uma.
std::vector<Chave> le_chaves(std::istringstream& linha) {
    std::vector<Chave> chaves;
    for (std::string texto; linha >> texto;) {
        Chave c{};
        int lidos = 0;
        if (std::sscanf(texto.c_str(), "%lf:%lf%n", &c.quadro, &c.valor, &lidos) != 2 ||
            texto.size() != std::size_t(lidos))
            throw std::runtime_error("a chave \"" + texto + "\" não tem a forma quadro:valor");
        if (!chaves.empty() && c.quadro <= chaves.back().quadro)
            throw std::runtime_error("a chave \"" + texto + "\" não vem depois da anterior");
        chaves.push_back(c);
    }
    if (chaves.empty()) throw std::runtime_error("falta a chave quadro:valor");
    return chaves;
}

double valor_no_quadro(const std::vector<Chave>& chaves, double quadro, bool degrau) {
    const auto depois =
        std::find_if(chaves.begin(), chaves.end(), [quadro](const Chave& c) { return c.quadro > quadro; });
    if (depois == chaves.begin()) return depois->valor;
    const Chave& antes = *(depois - 1);
    if (depois == chaves.end() || degrau) return antes.valor;
    return antes.valor + (depois->valor - antes.valor) * (quadro - antes.quadro) / (depois->quadro - antes.quadro);
}

template <class... Numeros> std::string formata(const char* formato, Numeros... numeros) {
    char texto[96];
    std::snprintf(texto, sizeof texto, formato, numeros...);
    return texto;
}

std::string regra(const Peca& p) {
    std::string css, t;
    if (p[visivel] == 0.0) css += "display:none;";
    if (p[opacidade]) css += formata("opacity:%.6g;", *p[opacidade]);
    if (p[x] || p[y]) t += formata(" translate(%.2fpx,%.2fpx)", p[x].value_or(0), p[y].value_or(0));
    if (p[giro]) t += formata(" rotate(%.2fdeg)", *p[giro]);
    const double e = p[escala].value_or(1);
    const double l = e * p[largura].value_or(1), h = e * p[altura].value_or(1);
    if (l != 1 || h != 1) t += formata(" scale(%.3f,%.3f)", l, h);
    if (!t.empty()) css += "transform:" + t + ";";
    return css;
}

} // namespace

std::string folha_do_quadro(std::string_view tabela, int quadro) {
    std::map<std::string, Peca> pecas;
    std::istringstream linhas{std::string(tabela)};
    int total = 0, numero = 0;
    for (std::string linha; std::getline(linhas, linha);) {
        ++numero;
        try {
            std::istringstream campos(linha);
            std::string peca, propriedade;
            if (!(campos >> peca) || peca[0] == '#') continue;
            if (peca == "total") {
                if (!(campos >> total) || total < 1) throw std::runtime_error("total sem número de quadros");
                continue;
            }
            campos >> propriedade;
            const auto achada = std::find(nomes.begin(), nomes.end(), propriedade);
            if (achada == nomes.end()) throw std::runtime_error("propriedade desconhecida: \"" + propriedade + "\"");
            const std::size_t p = std::size_t(achada - nomes.begin());
            pecas[peca][p] = valor_no_quadro(le_chaves(campos), quadro, p == visivel);
        } catch (const std::runtime_error& erro) {
            throw std::runtime_error("linha " + std::to_string(numero) + ": " + erro.what());
        }
    }
    if (quadro < 1 || quadro > total)
        throw std::runtime_error("quadro " + std::to_string(quadro) + " pedido, mas a tabela tem " +
                                 std::to_string(total));
    std::string folha;
    for (const auto& [peca, valores] : pecas) {
        const std::string css = regra(valores);
        if (!css.empty()) folha.append("#").append(peca).append(" {").append(css).append("}\n");
    }
    return folha;
}

} // namespace verdalia
