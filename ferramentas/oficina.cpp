#include "oficina.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "arquivo.h"
#include "figura.h"
#include "quadros.h"

namespace fs = std::filesystem;

namespace verdalia {
namespace {

enum Coluna { raiz, arquivo, tamanho, fonte, quadro, estilo, colunas = 7 };

constexpr const char* pasta_do_tipo[] = {"arte", "textos"};
constexpr int trabalhadores = 2, maior_lado = 2000;

using Registro = std::map<std::string, std::string>; // arquivo -> marca com que foi feito

// Um arquivo a fazer, com tudo o que a lista e o disco dizem dele.
struct Tarefa {
    Midia midia;
    fs::path fonte, tabela, estilo; // vazios quando não se usam
    bool falta = false;             // sem fonte: vai o guarda-lugar
    std::string marca;              // muda quando o arquivo tem de ser feito de novo
};

std::string vazio_se_traco(const std::string& campo) {
    return campo == "-" ? "" : campo;
}

Tipo tipo_de(const std::string& nome) {
    std::string extensao = fs::path(nome).extension().string();
    std::transform(extensao.begin(), extensao.end(), extensao.begin(), [](unsigned char c) { return std::tolower(c); });
    if (extensao == ".bmp" || extensao == ".jpg") return Tipo::figura;
    if (extensao == ".txt") return Tipo::texto;
    throw std::runtime_error("extensão desconhecida: " + nome);
}

Midia le_linha(const std::string& linha, const std::vector<std::string>& campo) {
    if (campo.size() != colunas) throw std::runtime_error("tem " + std::to_string(campo.size()) + " colunas, não 7");
    if (campo[raiz] != "programa" && campo[raiz] != "media")
        throw std::runtime_error("raiz desconhecida: " + campo[raiz]);
    Midia m;
    m.linha = linha;
    m.arquivo = campo[arquivo];
    m.tipo = tipo_de(m.arquivo);
    m.fonte = vazio_se_traco(campo[fonte]);
    m.estilo = vazio_se_traco(campo[estilo]);
    if (fs::path(m.arquivo).is_absolute() || m.arquivo.find("..") != std::string::npos)
        throw std::runtime_error("o arquivo sai da pasta do programa: " + m.arquivo);
    int lidos = 0;
    if (campo[quadro] != "-" && (std::sscanf(campo[quadro].c_str(), "%d%n", &m.quadro, &lidos) != 1 || m.quadro < 1 ||
                                 std::size_t(lidos) != campo[quadro].size()))
        throw std::runtime_error("quadro \"" + campo[quadro] + "\" não é um número de 1 em diante");
    if (m.tipo == Tipo::figura && (std::sscanf(campo[tamanho].c_str(), "%dx%d%n", &m.largura, &m.altura, &lidos) != 2 ||
                                   std::size_t(lidos) != campo[tamanho].size() || m.largura < 1 || m.altura < 1 ||
                                   m.largura > maior_lado || m.altura > maior_lado))
        throw std::runtime_error("tamanho \"" + campo[tamanho] + "\" não é largura x altura");
    return m;
}

std::string marca_de(std::string_view texto) {
    std::uint64_t soma = 14695981039346656037ULL;
    for (const unsigned char c : texto) soma = (soma ^ c) * 1099511628211ULL;
    char marca[17];
    std::snprintf(marca, sizeof marca, "%016llx", static_cast<unsigned long long>(soma));
    return marca;
}

// Tamanho e hora do arquivo, "" quando não existe.
std::string estado_do_arquivo(const fs::path& nome) {
    std::error_code erro;
    const auto bytes = fs::file_size(nome, erro);
    if (erro) return "";
    return std::to_string(bytes) + ":" + std::to_string(fs::last_write_time(nome, erro).time_since_epoch().count());
}

// As peças comuns entram em qualquer figura: mudou uma, todas se desenham de novo.
std::string estado_das_pecas(const fs::path& arte) {
    std::vector<std::string> estados;
    std::error_code erro;
    for (const auto& peca : fs::directory_iterator(arte / "pecas", erro))
        estados.push_back(peca.path().filename().string() + estado_do_arquivo(peca.path()));
    std::sort(estados.begin(), estados.end());
    std::string todos;
    for (const std::string& um : estados) todos.append(um).append("\n");
    return todos;
}

Tarefa prepara(const Midia& m, const fs::path& projeto, const std::string& ferramenta, const std::string& pecas) {
    Tarefa t{m, {}, {}, {}, false, {}};
    const fs::path pasta = projeto / pasta_do_tipo[int(m.tipo)];
    if (!m.fonte.empty()) t.fonte = pasta / m.fonte;
    if (!m.estilo.empty()) t.estilo = pasta / (m.estilo + ".css");
    if (m.quadro > 0) (t.tabela = t.fonte).replace_extension(".quadros");
    const std::string da_fonte = estado_do_arquivo(t.fonte), da_tabela = estado_do_arquivo(t.tabela);
    t.falta = da_fonte.empty() || (!t.tabela.empty() && da_tabela.empty());
    std::string tudo = m.linha + "\n" + ferramenta + "\n";
    if (!t.falta) tudo += da_fonte + "\n" + da_tabela + "\n" + estado_do_arquivo(t.estilo) + "\n";
    if (!t.falta && m.tipo == Tipo::figura) tudo += pecas;
    t.marca = marca_de(tudo);
    return t;
}

void faz_figura(const Tarefa& t, const fs::path& destino) {
    const Midia& m = t.midia;
    const bool jpeg = destino.extension() == ".jpg";
    Figura figura;
    if (t.falta) {
        figura = desenha_cartao(destino.stem().string(), m.quadro, m.largura * 2, m.altura * 2, jpeg);
    } else {
        std::string folha;
        if (!t.tabela.empty()) folha = folha_do_quadro(le_arquivo(t.tabela), m.quadro);
        if (!t.estilo.empty()) folha += le_arquivo(t.estilo);
        figura = desenha_svg(t.fonte, folha, m.largura * 2, m.altura * 2);
    }
    if (jpeg) return grava_jpeg(figura, destino);
    espalha_cor(figura);
    grava_bmp(figura, destino);
}

// Os documentos são escritos em UTF-8 e lidos pelo programa em Windows-1252, com fim de linha de duas letras.
void faz_texto(const Tarefa& t, const fs::path& destino) {
    const std::string texto = t.falta ? "###Em preparo\nEste texto ainda está sendo escrito. \n" : le_arquivo(t.fonte);
    std::string linhas;
    for (const char c : texto) {
        if (c == '\n') linhas += '\r';
        if (c != '\r') linhas += c;
    }
    gsize escritos = 0;
    const std::unique_ptr<char, decltype(&g_free)> convertido(
        g_convert(linhas.data(), gssize(linhas.size()), "WINDOWS-1252", "UTF-8", nullptr, &escritos, nullptr), g_free);
    if (!convertido) throw std::runtime_error("há uma letra que não é UTF-8 ou não existe em Windows-1252");
    grava_arquivo(destino, {convertido.get(), escritos});
}

Registro le_registro(const fs::path& nome) {
    Registro registro;
    std::ifstream linhas(nome);
    for (std::string linha; std::getline(linhas, linha);)
        if (const std::size_t tab = linha.find('\t'); tab != std::string::npos)
            registro[linha.substr(tab + 1)] = linha.substr(0, tab);
    return registro;
}

void grava_registro(const fs::path& nome, const Registro& registro) {
    std::string texto;
    for (const auto& [arquivo, marca] : registro) texto.append(marca).append("\t").append(arquivo).append("\n");
    fs::path novo = nome;
    novo += ".novo";
    grava_arquivo(novo, texto);
    fs::rename(novo, nome);
}

// Faz as tarefas em duas linhas de trabalho; tira do registro o que falhou e põe nele o que saiu.
void trabalha(const std::vector<Tarefa>& tarefas, const fs::path& programa, Registro& registro, Balanco& balanco) {
    static constexpr std::array faz = {faz_figura, faz_texto};
    std::atomic<std::size_t> proxima = 0;
    std::mutex trava;
    const auto trabalho = [&] {
        for (std::size_t i; (i = proxima++) < tarefas.size();) {
            const Tarefa& t = tarefas[i];
            std::string erro;
            try {
                faz[std::size_t(t.midia.tipo)](t, programa / t.midia.arquivo);
            } catch (const std::exception& falha) {
                erro = (t.fonte.empty() ? t.midia.arquivo : t.fonte.string()) + ": " + falha.what();
            }
            const std::lock_guard guarda(trava);
            if (erro.empty())
                registro[t.midia.arquivo] = t.marca, ++balanco.feitas;
            else
                registro.erase(t.midia.arquivo), balanco.erros.push_back(erro);
        }
    };
    std::vector<std::thread> linhas;
    for (int i = 0; i < trabalhadores && std::size_t(i) < tarefas.size(); ++i) linhas.emplace_back(trabalho);
    for (std::thread& linha : linhas) linha.join();
}

} // namespace

std::vector<Midia> le_manifesto(std::string_view texto) {
    std::vector<Midia> midias;
    std::set<std::string> nomes;
    std::istringstream linhas{std::string(texto)};
    std::string linha;
    std::getline(linhas, linha); // nomes das colunas
    for (int numero = 2; std::getline(linhas, linha); ++numero) {
        try {
            std::vector<std::string> campos;
            std::istringstream resto(linha);
            for (std::string campo; std::getline(resto, campo, '\t');) campos.push_back(campo);
            Midia m = le_linha(linha, campos);
            m.numero = numero;
            if (!nomes.insert(m.arquivo).second) throw std::runtime_error("arquivo repetido: " + m.arquivo);
            midias.push_back(std::move(m));
        } catch (const std::runtime_error& erro) {
            throw std::runtime_error("midias.tsv, linha " + std::to_string(numero) + ": " + erro.what());
        }
    }
    return midias;
}

Balanco produz(const Pedido& pedido) {
    const fs::path programa = pedido.construcao / "programa", arquivo_registro = pedido.construcao / "midias.registro";
    const auto midias = le_manifesto(le_arquivo(pedido.projeto / "ferramentas" / "midias.tsv"));
    const std::string pecas = estado_das_pecas(pedido.projeto / "arte");
    const std::string ferramenta = marca_de(pedido.ferramenta);
    Registro registro = le_registro(arquivo_registro), sobram = registro;
    const Registro antes = registro;
    Balanco balanco;
    std::vector<Tarefa> tarefas;
    for (const Midia& m : midias) {
        Tarefa t = prepara(m, pedido.projeto, ferramenta, pecas);
        balanco.faltam[int(m.tipo)] += t.falta;
        sobram.erase(m.arquivo);
        const auto feita = registro.find(m.arquivo);
        if (feita == registro.end() || feita->second != t.marca || !fs::exists(programa / m.arquivo))
            tarefas.push_back(std::move(t));
    }
    for (const auto& [arquivo, marca] : sobram) {
        balanco.removidas += fs::remove(programa / arquivo);
        registro.erase(arquivo);
    }
    trabalha(tarefas, programa, registro, balanco);
    std::sort(balanco.erros.begin(), balanco.erros.end()); // a fonte de muitos quadros é dita uma vez só
    balanco.erros.erase(std::unique(balanco.erros.begin(), balanco.erros.end()), balanco.erros.end());
    if (registro != antes) grava_registro(arquivo_registro, registro);
    return balanco;
}

} // namespace verdalia
