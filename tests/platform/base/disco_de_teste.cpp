#include "platform/base/disco_de_teste.h"

#include <csignal>
#include <sqlite3.h>
#include <unistd.h>

namespace verdalia {

namespace {

DiscoDeTeste* disco = nullptr;
sqlite3_vfs* sistema = nullptr;
sqlite3_vfs intermediario;

// O arquivo do sistema vem logo depois, na mesma memória.
sqlite3_file* de_verdade(sqlite3_file* arquivo) {
    return arquivo + 1;
}

// O que dá uma chamada: SQLITE_OK quando segue.
int sorte(bool escrita) {
    if (disco == nullptr || !(escrita || disco->toda_chamada)) return SQLITE_OK;
    const int qual = disco->chamadas++;
    if (disco->falha_em < 0 || qual < disco->falha_em || (disco->so_uma && qual > disco->falha_em)) return SQLITE_OK;
    if (disco->mata) kill(getpid(), SIGKILL);
    return disco->codigo_falha;
}

template <auto Metodo> struct Adiante;
template <typename... A, int (*sqlite3_io_methods::*Metodo)(sqlite3_file*, A...)> struct Adiante<Metodo> {
    static int chama(sqlite3_file* f, A... a) { return (de_verdade(f)->pMethods->*Metodo)(de_verdade(f), a...); }
    static int ou_falha(sqlite3_file* f, A... a) {
        const int codigo = sorte(false);
        return codigo != SQLITE_OK ? codigo : chama(f, a...);
    }
};

int escreve_nele(sqlite3_file* f, const void* dados, int quantos, sqlite3_int64 lugar) {
    if (const int codigo = sorte(true); codigo != SQLITE_OK) return codigo;
    if (disco != nullptr) ++disco->por_descarregar;
    return de_verdade(f)->pMethods->xWrite(de_verdade(f), dados, quantos, lugar);
}

int descarrega(sqlite3_file* f, int modo) {
    if (const int codigo = sorte(false); codigo != SQLITE_OK) return codigo;
    if (disco != nullptr) disco->por_descarregar = 0;
    return de_verdade(f)->pMethods->xSync(de_verdade(f), modo);
}

using M = sqlite3_io_methods;
const sqlite3_io_methods metodos = [] {
    M m{};
    m.iVersion = 1;
    m.xClose = Adiante<&M::xClose>::chama;
    m.xRead = Adiante<&M::xRead>::ou_falha;
    m.xWrite = escreve_nele;
    m.xTruncate = Adiante<&M::xTruncate>::ou_falha;
    m.xSync = descarrega;
    m.xFileSize = Adiante<&M::xFileSize>::ou_falha;
    m.xLock = Adiante<&M::xLock>::ou_falha;
    m.xUnlock = Adiante<&M::xUnlock>::ou_falha;
    m.xCheckReservedLock = Adiante<&M::xCheckReservedLock>::ou_falha;
    m.xFileControl = Adiante<&M::xFileControl>::chama;
    m.xSectorSize = Adiante<&M::xSectorSize>::chama;
    m.xDeviceCharacteristics = Adiante<&M::xDeviceCharacteristics>::chama;
    return m;
}();

int abre(sqlite3_vfs*, const char* nome, sqlite3_file* f, int modo, int* modo_dado) {
    f->pMethods = nullptr;
    if (const int codigo = sorte(false); codigo != SQLITE_OK) return codigo;
    if (disco != nullptr && disco->so_leitura)
        modo = (modo & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
    const int codigo = sistema->xOpen(sistema, nome, de_verdade(f), modo, modo_dado);
    if (codigo == SQLITE_OK) f->pMethods = &metodos;
    return codigo;
}

template <auto Metodo, typename... A> int ou_falha(sqlite3_vfs*, A... a) {
    const int codigo = sorte(false);
    return codigo != SQLITE_OK ? codigo : (sistema->*Metodo)(sistema, a...);
}

} // namespace

DiscoDeTeste::DiscoDeTeste() {
    sistema = sqlite3_vfs_find("unix");
    intermediario = *sistema;
    intermediario.szOsFile += static_cast<int>(sizeof(sqlite3_file));
    intermediario.zName = "disco_de_teste";
    intermediario.xOpen = abre;
    intermediario.xDelete = ou_falha<&sqlite3_vfs::xDelete>;
    intermediario.xAccess = ou_falha<&sqlite3_vfs::xAccess>;
    sqlite3_vfs_register(&intermediario, 1);
    disco = this;
}

DiscoDeTeste::~DiscoDeTeste() {
    disco = nullptr;
    sqlite3_vfs_unregister(&intermediario);
    sqlite3_vfs_register(sistema, 1);
}

} // namespace verdalia
