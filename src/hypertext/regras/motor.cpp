#include "hypertext/regras/motor.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace verdalia {

namespace {

constexpr double margem_do_texto = 200, margem_do_titulo = 700;
constexpr double corpo_do_texto = 9, corpo_do_titulo = 14, corpo_da_linha_vazia = 2;
constexpr std::size_t maior_termo = 1024; // nenhuma ligação bem-feita é tão comprida

bool ja_avisou_das_zonas = false; // uma linha em stderr por tópico, e não por pintura

std::string_view sem_brancos_a_direita(std::string_view s) {
    return s.substr(0, s.find_last_not_of(' ') + 1);
}

std::int16_t em_16_bits(double medida) {
    return static_cast<std::int16_t>(std::clamp(std::nearbyint(medida), -32768.0, 32767.0));
}

// A palavra simples: até o primeiro branco, inclusive.
std::string_view ate_o_branco(std::string_view& s) {
    const std::string_view palavra = s.substr(0, std::min(s.find(' '), s.size() - 1) + 1);
    s.remove_prefix(palavra.size());
    return palavra;
}

// Uma palavra do texto: o que dela se lê, e como está no documento.
struct Palavra {
    std::string lida;
    std::string_view crua;
    std::string_view alvo; // "" numa palavra simples
};

// As palavras de um texto, uma por uma. A letra depois de uma ligação é dela.
struct Palavras {
    explicit Palavras(std::string_view texto)
        : resto(texto), depois_do_ultimo_til(texto.data() + (texto.rfind('~') + 1)) {}

    std::string_view resto;
    const char* depois_do_ultimo_til;

    // Falso no fim, e num "#" sem "~" depois.
    bool proxima(Palavra& p) {
        if (resto.empty() || (resto[0] == '#' && resto.data() >= depois_do_ultimo_til)) return false;
        if (resto[0] == '#' && ligacao(p)) return true;
        simples(p);
        return true;
    }
    void simples(Palavra& p) {
        p.crua = ate_o_branco(resto);
        p.lida = p.crua;
        p.alvo = {};
    }

private:
    bool ligacao(Palavra& p) {
        std::string_view perto = resto.substr(0, maior_termo), rotulo;
        const std::string_view termo = proximo_termo(perto);
        if (!termo.starts_with("##") || !le_ligacao(termo, rotulo, p.alvo)) return false;
        p.crua = resto.substr(0, termo.size() + 1);
        p.lida = rotulo;
        p.lida += p.crua.substr(termo.size());
        resto.remove_prefix(p.crua.size());
        return true;
    }
};

} // namespace

std::string texto_do_topico(std::string_view topico) {
    int i = 1;
    while (i <= n_topicos && indice[i].topico != topico) ++i;
    if (i > n_topicos) return "";

    arq_htf.clear();
    arq_htf.seekg(0, std::ios::end);
    const std::int64_t registros = std::int64_t{arq_htf.tellg()} / std::int64_t{tamanho_registro};
    std::int64_t r = indice[i].inicio;
    std::string ao_contrario; // os pedaços vêm do último para o primeiro
    std::array<char, tamanho_registro> registro{};
    for (std::int64_t lidos = 0; r >= 1 && r <= registros && lidos < registros; ++lidos) {
        arq_htf.seekg((r - 1) * std::int64_t{tamanho_registro});
        if (!arq_htf.read(registro.data(), registro.size())) break;
        std::string t(sem_brancos_a_direita({registro.data(), tamanho_texto}));
        if (t.ends_with('\1')) t.back() = ' ';
        ao_contrario.append(t.rbegin(), t.rend());
        r = 0;
        for (std::size_t b = tamanho_registro; b-- > tamanho_texto;)
            r = (r << 8) | static_cast<unsigned char>(registro[b]);
    }
    return {ao_contrario.rbegin(), ao_contrario.rend()};
}

std::string_view proximo_termo(std::string_view& s) {
    if (s.empty()) return {};
    if (s[0] != '#') return ate_o_branco(s);
    const std::size_t til = s.find('~');
    if (til == s.npos) return {};
    const std::string_view termo = s.substr(0, til + 1);
    s.remove_prefix(termo.size());
    return termo;
}

bool le_ligacao(std::string_view termo, std::string_view& rotulo, std::string_view& alvo) {
    termo.remove_prefix(std::min(termo.find_first_not_of('#'), termo.size()));
    const std::size_t barra = termo.find('|');
    const std::size_t til = barra == termo.npos ? barra : termo.find('~', barra);
    if (til == termo.npos) return false;
    rotulo = termo.substr(0, barra);
    alvo = termo.substr(barra + 1, std::min(til - barra - 1, tamanho_texto));
    const std::string_view tudo = termo.substr(0, til);
    return !rotulo.empty() && !alvo.empty() && tudo.find('\r') == tudo.npos && tudo.find("##") == tudo.npos;
}

int quebra_linhas(std::string_view topico, Quadro& quadro) {
    linhas.fill("");
    topico_atual = topico;
    ja_avisou_das_zonas = false;
    const std::string texto = texto_do_topico(topico);
    linhas[0] = sem_brancos_a_direita(topico);
    quadro.corpo = corpo_do_texto;

    int n = 2;
    std::int16_t x = em_16_bits(margem_do_texto);
    Palavras palavras(texto);
    for (Palavra p; palavras.proxima(p);) {
        quadro.sublinhado = quadro.vermelho = !p.alvo.empty();
        if (p.lida[0] == '\r') {
            n += 2;
            x = em_16_bits(margem_do_texto);
            p.crua = {};
            p.lida.clear();
        }
        const double w = quadro.largura_do_texto(p.lida);
        if (x + w > quadro.largura_interna()) {
            ++n;
            x = em_16_bits(margem_do_texto + w);
        } else {
            x = em_16_bits(x + w);
        }
        if (n > max_linhas) {
            std::fprintf(stderr, "verdalia: ajuda: um tópico passa de %d linhas; o resto dele fica de fora\n",
                         max_linhas);
            n = max_linhas;
            break;
        }
        linhas[n] += p.crua;
    }
    quadro.sublinhado = quadro.vermelho = false;
    return n + 1;
}

void nova_linha(Quadro& quadro) {
    quadro.acaba_linha();
    y_atual = static_cast<float>(quadro.y);
    for (; zona_aberta <= n_zonas; ++zona_aberta) zonas[zona_aberta].base = em_16_bits(y_atual);
}

namespace {

void imprime_ligacao(Quadro& quadro, const Palavra& p) {
    const double esq = quadro.x;
    quadro.sublinhado = quadro.vermelho = true;
    quadro.imprime(p.lida);
    quadro.sublinhado = quadro.vermelho = false;
    if (n_zonas < max_ligacoes) {
        zonas[++n_zonas] = {em_16_bits(esq), em_16_bits(y_atual), em_16_bits(quadro.x), 0, std::string(p.alvo)};
    } else if (!ja_avisou_das_zonas) {
        ja_avisou_das_zonas = true;
        std::fprintf(stderr, "verdalia: ajuda: mais de %d ligações à vista; as últimas não levam a nada\n",
                     max_ligacoes);
    }
}

void imprime_linha(Quadro& quadro, const std::string& linha) {
    quadro.x = margem_do_texto;
    y_atual = static_cast<float>(quadro.y);
    Palavras palavras(linha);
    for (Palavra p; !palavras.resto.empty();) {
        if (!palavras.proxima(p)) palavras.simples(p); // um "#" cujo "~" ficou noutra linha
        if (p.alvo.empty())
            quadro.imprime(p.lida);
        else
            imprime_ligacao(quadro, p);
    }
    nova_linha(quadro);
}

} // namespace

void desenha_linhas(Quadro& quadro, int primeira, int total) {
    quadro.limpa();
    n_zonas = 0;
    zona_aberta = 1;
    int i = std::max(primeira, 0);
    quadro.vermelho = false;
    if (i == 0) {
        quadro.sublinhado = false;
        quadro.negrito = true; // e assim fica, também para o texto
        quadro.corpo = corpo_do_titulo;
        quadro.x = margem_do_titulo;
        quadro.imprime(sem_brancos_a_direita(linhas[0]));
        quadro.acaba_linha();
        quadro.acaba_linha();
        i = 2;
    }
    quadro.corpo = corpo_do_texto;
    for (; i <= std::min(total, max_linhas) && quadro.y <= quadro.altura_interna(); ++i) {
        if (!linhas[i].empty()) {
            imprime_linha(quadro, linhas[i]);
            continue;
        }
        quadro.corpo = corpo_da_linha_vazia;
        nova_linha(quadro);
        quadro.corpo = corpo_do_texto;
    }
    n_zonas_tela = n_zonas;
}

std::string zona_em(double x, double y) {
    const auto fim = zonas.begin() + 1 + n_zonas_tela;
    const auto zona = std::find_if(
        zonas.begin() + 1, fim, [x, y](const Zona& z) { return z.esq < x && x < z.dir && z.topo < y && y < z.base; });
    return zona == fim ? "" : zona->alvo;
}

bool sobre_zona(double x, double y) {
    return !zona_em(x, y).empty();
}

} // namespace verdalia
