#include "platform/base/caminhos.h"

#ifdef __EMSCRIPTEN__
#include "platform/base/pagina.h"
#endif
#include "platform/base/texto.h"

#include <algorithm>
#include <cstdlib>
#include <pwd.h>
#include <stdexcept>
#include <unistd.h>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

struct Pastas {
    fs::path jogador, instalada;
};

fs::path pasta_pessoal() {
    const char* casa = std::getenv("HOME");
    if (casa != nullptr && *casa == '/') return casa;
    const passwd* conta = getpwuid(getuid());
    return conta != nullptr && conta->pw_dir != nullptr ? conta->pw_dir : "/";
}

fs::path pasta_do_jogador() {
    const char* dados = std::getenv("XDG_DATA_HOME");
    return (dados != nullptr && *dados == '/' ? fs::path(dados) : pasta_pessoal() / ".local" / "share") / "verdalia";
}

fs::path pasta_instalada() {
    std::error_code erro;
    const fs::path aqui = fs::read_symlink("/proc/self/exe", erro).parent_path();
    fs::path ao_lado = aqui / "programa";
    if (fs::is_directory(ao_lado, erro)) return ao_lado;
    return (aqui / ".." / "share" / "games" / "verdalia").lexically_normal();
}

Pastas& pastas() {
    static Pastas atuais{pasta_do_jogador(), pasta_instalada()};
    return atuais;
}

std::vector<fs::path> pastas_do_sistema() {
    std::vector<fs::path> lista;
    if (const passwd* conta = getpwuid(getuid()); conta != nullptr)
        for (const char* raiz : {"/media", "/run/media"}) lista.push_back(fs::path(raiz) / conta->pw_name);
    lista.emplace_back("/media");
    return lista;
}

// Volumes das unidades 1 a 5, na ordem.
std::vector<fs::path> volumes;

struct Caminho {
    int unidade; // -1: a pasta do programa
    std::vector<std::string> partes;
};

std::optional<Caminho> entende(std::string_view texto) {
    Caminho caminho{-1, {}};
    if (texto.size() >= 2 && texto[1] == ':') {
        const int letra = texto[0] >= 'a' ? texto[0] - 'a' : texto[0] - 'A';
        caminho.unidade = letra - 2;
        if (caminho.unidade < 0 || caminho.unidade >= static_cast<int>(letras_de_unidade.size())) return std::nullopt;
        texto.remove_prefix(2);
    }
    if (texto.empty() || texto[0] != '\\') return std::nullopt;
    while (!texto.empty()) {
        texto.remove_prefix(1);
        const std::string_view parte = texto.substr(0, texto.find('\\'));
        texto.remove_prefix(parte.size());
        if (parte == ".." || parte.find('/') != parte.npos || parte.find('\0') != parte.npos) return std::nullopt;
        if (!parte.empty() && parte != ".") caminho.partes.emplace_back(parte);
    }
    return caminho;
}

// Desce de `pasta` pelas partes a partir de `i`. Vale primeiro o nome exato; depois, por ordem, os que só diferem em
// maiúsculas. Volta atrás quando "Anima" e "anima" existem e só uma tem o resto.
std::optional<fs::path> desce(const fs::path& pasta, const std::vector<std::string>& partes, std::size_t i) {
    std::error_code erro;
    if (i == partes.size()) return fs::exists(pasta, erro) ? std::optional(pasta) : std::nullopt;
    if (const fs::path exato = pasta / partes[i]; fs::exists(exato, erro))
        if (auto achado = desce(exato, partes, i + 1)) return achado;

    const std::string procurado = maiusculas(partes[i]);
    std::vector<fs::path> parecidos;
    for (fs::directory_iterator item(pasta, erro), fim; !erro && item != fim; item.increment(erro))
        if (item->path().filename() != partes[i] && maiusculas(item->path().filename().string()) == procurado)
            parecidos.push_back(item->path());
    std::sort(parecidos.begin(), parecidos.end());
    for (const fs::path& parecido : parecidos)
        if (auto achado = desce(parecido, partes, i + 1)) return achado;
    return std::nullopt;
}

std::optional<fs::path> acha_em(const fs::path& raiz, const std::vector<std::string>& partes) {
    if (raiz.empty()) return std::nullopt;
    fs::path direto = raiz;
    for (const std::string& parte : partes) direto /= parte;
    std::error_code erro;
    if (fs::exists(direto, erro)) return direto;
    return desce(raiz, partes, 0);
}

bool tem_anima(const fs::path& raiz) {
    const auto achada = acha_em(raiz, {"anima"});
    std::error_code erro;
    return achada && fs::is_directory(*achada, erro);
}

} // namespace

std::vector<fs::path> pastas_de_montagem = pastas_do_sistema();

void define_pastas(const fs::path& jogador, const fs::path& instalada) {
    pastas() = {jogador, instalada};
}

std::optional<fs::path> acha(std::string_view texto) {
    const auto caminho = entende(texto);
    if (!caminho) return std::nullopt;
    if (caminho->unidade > 0) {
        const auto volume = static_cast<std::size_t>(caminho->unidade - 1);
        return volume < volumes.size() ? acha_em(volumes[volume], caminho->partes) : std::nullopt;
    }
    if (auto achado = acha_em(pastas().jogador, caminho->partes)) return achado;
    auto achado = acha_em(pastas().instalada, caminho->partes);
#ifdef __EMSCRIPTEN__
    if (achado) pagina_traz(achado->c_str()); // num navegador os arquivos vêm à medida que se pedem
#endif
    return achado;
}

fs::path para_gravar(std::string_view texto) {
    const auto caminho = entende(texto);
    if (!caminho || caminho->unidade > 0 || caminho->partes.empty())
        throw std::runtime_error("Não é um nome de arquivo que o jogo possa gravar: \"" + std::string(texto) + "\".");
    // Um arquivo que já existe com outras maiúsculas é o mesmo: não pode haver um para ler e outro para gravar.
    if (auto existente = acha_em(pastas().jogador, caminho->partes)) return *existente;
    fs::path destino = pastas().jogador;
    for (const std::string& parte : caminho->partes) destino /= parte;
    std::error_code erro;
    fs::create_directories(destino.parent_path(), erro);
    if (erro)
        throw std::runtime_error("A pasta \"" + destino.parent_path().string() +
                                 "\" não pôde ser criada. Veja se há espaço no disco e permissão para gravar ali.");
    return destino;
}

void procura_unidades() {
    volumes.clear();
    for (const fs::path& pai : pastas_de_montagem) {
        std::error_code erro;
        for (fs::directory_iterator item(pai, erro), fim; !erro && item != fim; item.increment(erro)) {
            // /media/<pessoa> é pasta de montagem, não volume, mesmo que um dos volumes se chame "anima".
            const bool pai_de_volumes = std::find(pastas_de_montagem.begin(), pastas_de_montagem.end(), item->path()) !=
                                        pastas_de_montagem.end();
            if (!pai_de_volumes && tem_anima(item->path())) volumes.push_back(item->path());
        }
    }
    std::sort(volumes.begin(), volumes.end(), [](const fs::path& a, const fs::path& b) {
        return a.filename() != b.filename() ? a.filename() < b.filename() : a < b;
    });
    if (volumes.size() >= letras_de_unidade.size()) volumes.resize(letras_de_unidade.size() - 1);
}

std::string nome_da_unidade(int unidade) {
    if (unidade < 1 || unidade > static_cast<int>(volumes.size())) return "";
    return volumes[static_cast<std::size_t>(unidade - 1)].filename().string();
}

bool unidade_tem_figuras(int unidade) {
    if (unidade == 0) return tem_anima(pastas().jogador) || tem_anima(pastas().instalada);
    return unidade > 0 && unidade <= static_cast<int>(volumes.size()) &&
           tem_anima(volumes[static_cast<std::size_t>(unidade - 1)]);
}

} // namespace verdalia
