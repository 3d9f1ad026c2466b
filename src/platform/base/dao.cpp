#include "platform/base/dao_interno.h"

#include "platform/base/arquivo.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <sqlite3.h>
#include <utility>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

constexpr int espera_ms = 250; // por outro programa que esteja no arquivo

std::string frase(int codigo, bool sem_cota, const fs::path& caminho) {
    const std::string entre = "\"" + caminho.filename().string() + "\"";
    if (codigo == SQLITE_FULL || sem_cota) return "O disco está cheio: não há espaço para gravar " + entre + ".";
    const std::string nome = "O arquivo " + entre + " ";
    switch (codigo) {
    case SQLITE_READONLY:
        return nome + "só pode ser lido. Veja as permissões dele e da pasta onde está.";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return nome + "está em uso por outro programa.";
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return nome + "está danificado ou não é um banco do jogo.";
    case SQLITE_CANTOPEN:
        return nome + "não pôde ser aberto. Veja se ele existe e as permissões dele e da pasta.";
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return nome + "não pode ser usado: falta permissão.";
    case SQLITE_IOERR:
        return nome + "não pôde ser lido ou gravado: o disco falhou.";
    case SQLITE_NOMEM:
        return nome + "não pôde ser usado: falta memória.";
    default:
        return nome + "não pôde ser usado (erro " + std::to_string(codigo) + ": " + sqlite3_errstr(codigo) + ").";
    }
}

std::string entre_aspas(const std::string& nome) {
    std::string saida = "\"";
    for (const char letra : nome) saida.append(letra == '"' ? 2 : 1, letra);
    return saida + '"';
}

std::string lista(const std::vector<std::string>& nomes, const char* depois) {
    std::string saida;
    for (const std::string& nome : nomes) saida += (saida.empty() ? "" : ", ") + entre_aspas(nome) + depois;
    return saida;
}

} // namespace

void engano(const std::string& qual) {
    throw ErroBanco(0, "Engano no uso do banco: " + qual + ".");
}

bool ErroBanco::danificado() const {
    return codigo == SQLITE_CORRUPT || codigo == SQLITE_NOTADB || codigo == SQLITE_ERROR;
}

// ---- Conexao

Conexao::Conexao(fs::path onde, int modo) : caminho(std::move(onde)) {
    const int codigo = sqlite3_open_v2(caminho.c_str(), &banco, modo, nullptr);
    try {
        if (codigo != SQLITE_OK) falha(codigo);
        sqlite3_busy_timeout(banco, espera_ms);
        // Um arquivo alheio não manda no jogo: sem gatilhos nem funções de dentro do esquema.
        sqlite3_db_config(banco, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
        sqlite3_db_config(banco, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        executa("PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL");
    } catch (...) {
        sqlite3_close_v2(banco);
        throw;
    }
}

void Conexao::falha(int codigo) const {
    const bool sem_cota = (codigo & 0xFF) == SQLITE_IOERR && banco != nullptr && sqlite3_system_errno(banco) == EDQUOT;
    throw ErroBanco(codigo & 0xFF, frase(codigo & 0xFF, sem_cota, caminho));
}

void Conexao::exige_transacao() const {
    // Um erro grave faz o SQLite desfazer a transação por si; o que viesse depois se gravaria solto, um a um.
    if (em_transacao && sqlite3_get_autocommit(banco) != 0) falha(SQLITE_ABORT);
}

void Conexao::executa(const char* sql) const {
    exige_transacao();
    if (const int codigo = sqlite3_exec(banco, sql, nullptr, nullptr, nullptr); codigo != SQLITE_OK) falha(codigo);
}

void Conexao::grava() const {
    executa("COMMIT");
    if (const int codigo = espera_disco(caminho.parent_path()); codigo != 0)
        falha(codigo == EIO ? SQLITE_IOERR : SQLITE_FULL);
}

// ---- Campo

std::optional<std::int64_t> Campo::inteiro() const {
    const auto* numero = std::get_if<std::int64_t>(&valor);
    return numero == nullptr ? std::nullopt : std::optional(*numero);
}

std::string Campo::texto() const {
    if (const auto* numero = std::get_if<std::int64_t>(&valor)) return std::to_string(*numero);
    const auto* letras = std::get_if<std::string>(&valor);
    return letras == nullptr ? "" : *letras;
}

Campo& Campo::operator=(std::string_view texto) {
    valor = std::string(texto);
    return *this;
}

Campo& Campo::operator=(std::nullptr_t) {
    valor = std::monostate{};
    return *this;
}

// ---- Comando

Comando::Comando(std::shared_ptr<Conexao> com, const std::string& sql) : conexao(std::move(com)) {
    const int codigo = sqlite3_prepare_v2(conexao->banco, sql.c_str(), -1, &comando, nullptr);
    if (codigo != SQLITE_OK) conexao->falha(codigo);
}

Comando::~Comando() {
    sqlite3_finalize(comando);
}

void Comando::poe(int posicao, const Campo& campo) {
    int codigo = SQLITE_OK;
    if (const auto* numero = std::get_if<std::int64_t>(&campo.valor))
        codigo = sqlite3_bind_int64(comando, posicao, *numero);
    else if (const auto* letras = std::get_if<std::string>(&campo.valor))
        codigo = sqlite3_bind_text64(comando, posicao, letras->data(), letras->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    else
        codigo = sqlite3_bind_null(comando, posicao);
    if (codigo != SQLITE_OK) conexao->falha(codigo);
}

bool Comando::passo() {
    conexao->exige_transacao();
    const int codigo = sqlite3_step(comando);
    if (codigo == SQLITE_ROW) return true;
    sqlite3_reset(comando);
    if (codigo != SQLITE_DONE) conexao->falha(codigo);
    return false;
}

void Comando::executa() {
    while (passo()) {
    }
}

void Comando::recomeca() {
    sqlite3_reset(comando);
}

Campo Comando::coluna(int posicao) const {
    Campo campo;
    switch (sqlite3_column_type(comando, posicao)) {
    case SQLITE_NULL:
        break;
    case SQLITE_INTEGER:
        campo = sqlite3_column_int64(comando, posicao);
        break;
    default: // texto; frações e blocos de bytes também, pois nenhum campo do jogo os tem
        const auto* letras = reinterpret_cast<const char*>(sqlite3_column_text(comando, posicao));
        campo = std::string_view(letras == nullptr ? "" : letras, sqlite3_column_bytes(comando, posicao));
    }
    return campo;
}

// ---- Recordset

static std::vector<std::string> campos_de(const std::shared_ptr<Conexao>& conexao, const std::string& tabela) {
    // Uma vista, ou uma tabela sem rowid, não serve a um Recordset: é como se não existisse.
    Comando busca(conexao, "SELECT c.name FROM pragma_table_list t, pragma_table_info(t.name) c "
                           "WHERE t.schema = 'main' AND t.type = 'table' AND t.wr = 0 AND t.name = ? ORDER BY c.cid");
    Campo nome;
    nome = tabela;
    busca.poe(1, nome);
    std::vector<std::string> nomes;
    while (busca.passo()) nomes.push_back(busca.coluna(0).texto());
    return nomes;
}

struct Recordset::Partes {
    enum class Modo { leitura, novo, edicao };

    Partes(const std::shared_ptr<Conexao>& conexao, const std::string& tabela, std::vector<std::string> campos)
        : nomes(std::move(campos)), le(conexao, "SELECT rowid, " + lista(nomes, "") + " FROM " + entre_aspas(tabela) +
                                                    " WHERE rowid >= ? ORDER BY rowid LIMIT 1"),
          inclui(conexao, "INSERT INTO " + entre_aspas(tabela) + " (" + lista(nomes, "") + ") VALUES (?" +
                              repetido(", ?", nomes.size() - 1) + ")"),
          muda(conexao, "UPDATE " + entre_aspas(tabela) + " SET " + lista(nomes, " = ?") + " WHERE rowid = ?"),
          apaga(conexao, "DELETE FROM " + entre_aspas(tabela) + " WHERE rowid = ?"), registro(nomes.size()) {}

    static std::string repetido(const char* texto, std::size_t vezes) {
        std::string saida;
        while (vezes-- > 0) saida += texto;
        return saida;
    }

    // Põe no registro atual o primeiro de número `desde` em diante. Nenhuma leitura fica em suspenso entre dois
    // registros: mudar e apagar no meio do caminho não atrapalha.
    void procura(std::int64_t desde) {
        Campo numero;
        numero = desde;
        le.poe(1, numero);
        fim = !le.passo();
        modo = Modo::leitura;
        if (fim) return;
        rowid = *le.coluna(0).inteiro();
        for (std::size_t i = 0; i < registro.size(); ++i) registro[i] = le.coluna(static_cast<int>(i) + 1);
        le.recomeca();
    }

    Campo atual() const {
        if (fim) engano("não há registro atual");
        Campo numero;
        numero = rowid;
        return numero;
    }

    std::vector<std::string> nomes;
    Comando le, inclui, muda, apaga;
    std::vector<Campo> registro, novo;
    std::int64_t rowid = 0;
    bool fim = true;
    Modo modo = Modo::leitura;
};

Recordset::Recordset(const std::shared_ptr<Conexao>& conexao, const std::string& tabela)
    : partes(std::make_unique<Partes>(conexao, tabela, campos_de(conexao, tabela))) {
    MoveFirst();
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::Partes& Recordset::aberto() const {
    if (!partes) engano("a tabela já foi fechada");
    return *partes;
}

bool Recordset::EOF() const {
    return aberto().fim;
}

void Recordset::MoveFirst() {
    aberto().procura(std::numeric_limits<std::int64_t>::min());
}

void Recordset::MoveNext() {
    Partes& p = aberto();
    if (p.fim) return;
    p.fim = p.rowid == std::numeric_limits<std::int64_t>::max();
    if (!p.fim) p.procura(p.rowid + 1);
}

void Recordset::AddNew() {
    Partes& p = aberto();
    p.novo.assign(p.nomes.size(), Campo{});
    p.modo = Partes::Modo::novo;
}

void Recordset::Edit() {
    Partes& p = aberto();
    p.atual();
    p.modo = Partes::Modo::edicao;
}

void Recordset::Update() {
    Partes& p = aberto();
    if (p.modo == Partes::Modo::leitura) engano("Update sem AddNew nem Edit");
    const bool novo = p.modo == Partes::Modo::novo;
    const std::vector<Campo>& valores = novo ? p.novo : p.registro;
    Comando& comando = novo ? p.inclui : p.muda;
    for (std::size_t i = 0; i < valores.size(); ++i) comando.poe(static_cast<int>(i) + 1, valores[i]);
    if (!novo) comando.poe(static_cast<int>(valores.size()) + 1, p.atual());
    comando.executa();
    p.modo = Partes::Modo::leitura;
}

void Recordset::Delete() {
    Partes& p = aberto();
    p.apaga.poe(1, p.atual());
    p.apaga.executa();
}

Campo& Recordset::Fields(std::string_view nome) {
    Partes& p = aberto();
    const auto achado = std::find(p.nomes.begin(), p.nomes.end(), nome);
    if (achado == p.nomes.end()) engano("não existe o campo \"" + std::string(nome) + "\"");
    const bool novo = p.modo == Partes::Modo::novo;
    if (!novo) p.atual();
    return (novo ? p.novo : p.registro)[static_cast<std::size_t>(achado - p.nomes.begin())];
}

void Recordset::Close() {
    partes.reset();
}

// ---- Database

std::shared_ptr<Conexao> Database::aberta() const {
    if (!conexao) engano("o arquivo já foi fechado");
    return conexao;
}

Recordset Database::OpenRecordset(const std::string& tabela) {
    return {aberta(), tabela};
}

void Database::executa(const std::string& sql) {
    aberta()->executa(sql.c_str());
}

std::int64_t Database::numero(const std::string& sql) {
    Comando comando(aberta(), sql);
    return comando.passo() ? comando.coluna(0).inteiro().value_or(0) : 0;
}

std::string Database::texto(const std::string& sql) {
    Comando comando(aberta(), sql);
    return comando.passo() ? comando.coluna(0).texto() : "";
}

std::vector<std::string> Database::campos(const std::string& tabela) {
    return campos_de(aberta(), tabela);
}

void Database::copia_para(Database& destino) {
    const auto para = destino.aberta();
    sqlite3_backup* copia = sqlite3_backup_init(para->banco, "main", aberta()->banco, "main");
    if (copia == nullptr) para->falha(sqlite3_errcode(para->banco));
    const int passo = sqlite3_backup_step(copia, -1);
    const int fim = sqlite3_backup_finish(copia);
    if (passo != SQLITE_DONE) para->falha(fim == SQLITE_OK ? passo : fim);
}

} // namespace verdalia
