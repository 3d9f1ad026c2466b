#include "platform/base/disco_de_teste.h"

#include <cstring>
#include <sqlite3.h>

namespace verdalia {

namespace {

DiscoDeTeste* disco = nullptr;
sqlite3_vfs* sistema = nullptr;
sqlite3_vfs intermediario;

// O arquivo do sistema vem logo depois, na mesma memória.
struct Arquivo {
    sqlite3_file nosso;
    char nome[256];
};

sqlite3_file* de_verdade(sqlite3_file* arquivo) {
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<Arquivo*>(arquivo) + 1);
}

int anota(sqlite3_file* arquivo, Gravacao::Tipo tipo, std::int64_t lugar, std::string bytes) {
    if (disco == nullptr) return SQLITE_OK;
    const bool escrita = tipo == Gravacao::Tipo::escreve;
    if (escrita && disco->falha_em >= 0 && disco->escritas >= disco->falha_em) return disco->codigo_falha;
    if (escrita) ++disco->escritas;
    disco->diario.push_back({reinterpret_cast<Arquivo*>(arquivo)->nome, tipo, lugar, std::move(bytes)});
    return SQLITE_OK;
}

// A maior parte só passa adiante.
template <auto Metodo> struct Adiante;
template <typename... A, int (*sqlite3_io_methods::*Metodo)(sqlite3_file*, A...)> struct Adiante<Metodo> {
    static int chama(sqlite3_file* f, A... a) { return (de_verdade(f)->pMethods->*Metodo)(de_verdade(f), a...); }
};

int escreve(sqlite3_file* f, const void* dados, int quantos, sqlite3_int64 lugar) {
    const std::string bytes(static_cast<const char*>(dados), static_cast<std::size_t>(quantos));
    const int codigo = anota(f, Gravacao::Tipo::escreve, lugar, bytes);
    return codigo != SQLITE_OK ? codigo : de_verdade(f)->pMethods->xWrite(de_verdade(f), dados, quantos, lugar);
}

int corta(sqlite3_file* f, sqlite3_int64 tamanho) {
    anota(f, Gravacao::Tipo::corta, tamanho, "");
    return de_verdade(f)->pMethods->xTruncate(de_verdade(f), tamanho);
}

int descarrega(sqlite3_file* f, int modo) {
    anota(f, Gravacao::Tipo::descarrega, 0, "");
    return de_verdade(f)->pMethods->xSync(de_verdade(f), modo);
}

using M = sqlite3_io_methods;
const sqlite3_io_methods metodos = [] {
    M m{};
    m.iVersion = 1;
    m.xClose = Adiante<&M::xClose>::chama;
    m.xRead = Adiante<&M::xRead>::chama;
    m.xWrite = escreve;
    m.xTruncate = corta;
    m.xSync = descarrega;
    m.xFileSize = Adiante<&M::xFileSize>::chama;
    m.xLock = Adiante<&M::xLock>::chama;
    m.xUnlock = Adiante<&M::xUnlock>::chama;
    m.xCheckReservedLock = Adiante<&M::xCheckReservedLock>::chama;
    m.xFileControl = Adiante<&M::xFileControl>::chama;
    m.xSectorSize = Adiante<&M::xSectorSize>::chama;
    m.xDeviceCharacteristics = Adiante<&M::xDeviceCharacteristics>::chama;
    return m;
}();

int abre(sqlite3_vfs*, const char* nome, sqlite3_file* f, int modo, int* modo_dado) {
    f->pMethods = nullptr;
    if (disco != nullptr && disco->so_leitura)
        modo = (modo & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
    const int codigo = sistema->xOpen(sistema, nome, de_verdade(f), modo, modo_dado);
    if (codigo != SQLITE_OK) return codigo;
    f->pMethods = &metodos;
    const std::string so_o_nome = nome == nullptr ? "" : std::filesystem::path(nome).filename().string();
    char* destino = reinterpret_cast<Arquivo*>(f)->nome;
    std::strncpy(destino, so_o_nome.c_str(), sizeof(Arquivo::nome) - 1);
    destino[sizeof(Arquivo::nome) - 1] = '\0';
    return SQLITE_OK;
}

int apaga(sqlite3_vfs*, const char* nome, int descarrega_pasta) {
    if (disco != nullptr)
        disco->diario.push_back({std::filesystem::path(nome).filename().string(), Gravacao::Tipo::apaga, 0, ""});
    return sistema->xDelete(sistema, nome, descarrega_pasta);
}

void aplica(std::string& bytes, const Gravacao& gravacao) {
    const auto lugar = static_cast<std::size_t>(gravacao.lugar);
    if (gravacao.tipo == Gravacao::Tipo::corta) {
        bytes.resize(lugar);
    } else {
        bytes.resize(std::max(bytes.size(), lugar + gravacao.bytes.size()));
        bytes.replace(lugar, gravacao.bytes.size(), gravacao.bytes);
    }
}

} // namespace

DiscoDeTeste::DiscoDeTeste() {
    sistema = sqlite3_vfs_find("unix");
    intermediario = *sistema;
    intermediario.szOsFile += static_cast<int>(sizeof(Arquivo));
    intermediario.zName = "disco_de_teste";
    intermediario.xOpen = abre;
    intermediario.xDelete = apaga;
    sqlite3_vfs_register(&intermediario, 1);
    disco = this;
}

DiscoDeTeste::~DiscoDeTeste() {
    disco = nullptr;
    sqlite3_vfs_unregister(&intermediario);
    sqlite3_vfs_register(sistema, 1);
}

Arquivos apos_queda(const Arquivos& antes, const std::vector<Gravacao>& diario, std::size_t ate, Perda perda,
                    std::mt19937& sorte) {
    Arquivos firmes = antes;
    std::map<std::string, std::vector<Gravacao>> pendentes;
    for (std::size_t i = 0; i < ate; ++i) {
        const Gravacao& g = diario[i];
        if (g.tipo == Gravacao::Tipo::apaga) {
            firmes.erase(g.arquivo);
            pendentes.erase(g.arquivo);
        } else if (g.tipo == Gravacao::Tipo::descarrega) {
            for (const Gravacao& p : pendentes[g.arquivo]) aplica(firmes[g.arquivo], p);
            pendentes[g.arquivo].clear();
        } else {
            pendentes[g.arquivo].push_back(g);
        }
    }
    if (perda == Perda::tudo) return firmes;
    for (auto& [arquivo, lista] : pendentes)
        for (Gravacao& p : lista) {
            // Ao acaso, umas chegam ao disco, outras não, e outras só até um setor.
            const auto dado = perda == Perda::nenhuma ? 0U : sorte() % 3;
            if (dado == 1) continue;
            if (dado == 2 && p.tipo == Gravacao::Tipo::escreve) p.bytes.resize(p.bytes.size() / 1024 * 512);
            aplica(firmes[arquivo], p);
        }
    return firmes;
}

} // namespace verdalia
