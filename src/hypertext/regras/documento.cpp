// Do documento de texto aos arquivos de registros, e de volta ao índice em memória.
#include "hypertext/regras/motor.h"

#include "platform/base/arquivo.h"
#include "platform/base/caminhos.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view marca_de_topico = "###";

std::string base(std::string_view nome) {
    return std::string(nome.substr(0, nome.find('.')));
}

// Só um arquivo comum se abre: ler de um canal, por exemplo, nunca acabaria.
fs::path acha_comum(const std::string& nome) {
    const auto achado = acha(nome);
    std::error_code erro;
    if (!achado || !fs::is_regular_file(*achado, erro))
        throw std::runtime_error("O arquivo \"" + nome.substr(nome.find_last_of('\\') + 1) +
                                 "\", com o texto da ajuda, não foi encontrado.");
    return *achado;
}

void junta_registro(std::string& arquivo, std::string_view texto, std::int32_t numero) {
    texto = texto.substr(0, tamanho_texto);
    arquivo += texto;
    arquivo.append(tamanho_texto - texto.size(), ' ');
    for (int bits = 0; bits < 32; bits += 8) arquivo += static_cast<char>(static_cast<std::uint32_t>(numero) >> bits);
}

// O que se vai construindo, linha por linha do documento.
struct Compilacao {
    std::string htf, idx;
    std::int32_t n = 0; // registros em htf
    int m = 0;          // e em idx
    std::string acc, nome;
    std::int32_t inicio = 0;

    void linha(std::string_view l) { acc += l.empty() ? " \r\n " : l; }

    // O texto juntado vira pedaços ligados de trás para diante.
    void acaba_topico() {
        std::int32_t anterior = 0;
        std::string_view resto = acc;
        while (!resto.empty()) {
            std::string pedaco(resto.substr(0, tamanho_texto));
            // Um branco no fim se perderia na leitura; o código 1 guarda o lugar dele.
            if (resto.size() > tamanho_texto && pedaco.back() == ' ') pedaco.back() = '\1';
            resto.remove_prefix(pedaco.size());
            junta_registro(htf, pedaco, anterior);
            anterior = ++n;
        }
        acc.clear();
        inicio = anterior;
        indexa();
    }
    void indexa() {
        if (nome.find_last_not_of(' ') == nome.npos) return;
        junta_registro(idx, nome, inicio);
        ++m;
    }
    void comeca_topico(std::string_view novo) {
        nome = novo;
        inicio = 0;
    }
};

// Tira a próxima linha de `resto`; o fim de linha é "\r\n", "\n" ou "\r".
std::string_view tira_linha(std::string_view& resto) {
    const std::string_view linha = resto.substr(0, std::min(resto.find_first_of("\r\n"), resto.size()));
    resto.remove_prefix(linha.size());
    if (!resto.empty()) resto.remove_prefix(resto.starts_with("\r\n") ? 2 : 1);
    return linha;
}

Compilacao compila(std::string_view resto) {
    Compilacao c;
    while (!resto.empty()) {
        const std::string_view l = tira_linha(resto);
        const bool topico = l.starts_with(marca_de_topico);
        if (!topico) c.linha(l);
        if (!topico && !resto.empty()) continue;
        c.acaba_topico();
        if (topico && c.m == max_topicos) {
            std::fprintf(stderr, "verdalia: ajuda: o documento passa de %d tópicos; os outros ficam de fora\n",
                         max_topicos);
            return c;
        }
        c.comeca_topico(topico ? l.substr(marca_de_topico.size()) : "");
    }
    c.indexa(); // um nome na última linha, sem texto
    return c;
}

// Refeito a cada abertura, o arquivo não precisa esperar pelo disco nem sobreviver a uma falta de luz.
void grava(const std::string& nome, const std::string& bytes) {
    const fs::path arquivo = para_gravar(nome);
    std::error_code erro;
    fs::remove(arquivo, erro);
    std::ofstream saida(arquivo, std::ios::binary);
    saida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    saida.close();
    if (!saida)
        throw std::runtime_error("O arquivo \"" + arquivo.filename().string() + "\" não pôde ser gravado na pasta \"" +
                                 arquivo.parent_path().string() +
                                 "\". Veja se há espaço no disco e permissão para gravar ali.");
}

void abre(std::ifstream& arquivo, const std::string& nome) {
    arquivo.clear();
    arquivo.open(acha_comum(nome), std::ios::binary);
    if (!arquivo) throw std::runtime_error("O arquivo \"" + nome.substr(1) + "\" não pôde ser lido.");
}

} // namespace

void compila_texto(std::string_view fonte) {
    const fs::path arquivo = acha_comum(std::string(fonte));
    const Compilacao c = compila(le_arquivo(arquivo, std::min<std::size_t>(fs::file_size(arquivo), maior_documento)));
    fecha_hipertexto();
    grava(base(fonte) + ".HTF", c.htf);
    grava(base(fonte) + ".IDX", c.idx);
}

void abre_hipertexto(std::string_view nome) {
    n_topicos = 0;
    fecha_hipertexto();
    abre(arq_htf, base(nome) + ".HTF");
    abre(arq_idx, base(nome) + ".IDX");
    arquivos_abertos = true;
    std::array<char, tamanho_registro> registro{};
    while (arq_idx.read(registro.data(), registro.size())) {
        if (n_topicos == max_topicos) {
            std::fprintf(stderr, "verdalia: ajuda: o índice passa de %d tópicos; os outros ficam de fora\n",
                         max_topicos);
            break;
        }
        const std::string_view topico(registro.data(), tamanho_texto);
        std::uint32_t inicio = 0;
        for (std::size_t b = tamanho_registro; b-- > tamanho_texto;)
            inicio = (inicio << 8) | static_cast<unsigned char>(registro[b]);
        indice[++n_topicos] = {std::string(topico.substr(0, topico.find_last_not_of(' ') + 1)),
                               static_cast<std::int32_t>(inicio)};
    }
}

void fecha_hipertexto() {
    arquivos_abertos = false;
    arq_htf.close();
    arq_idx.close();
}

} // namespace verdalia
