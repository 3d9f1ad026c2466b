// As transações: o Workspace, dono delas, e o Passo.
#include "platform/base/caminhos.h"
#include "platform/base/dao_interno.h"

#include <fstream>
#include <utility>

namespace verdalia {

namespace fs = std::filesystem;

namespace {

// O byte 18 do cabeçalho é 1 ou 2; com outro valor, por estrago, o SQLite também só deixa ler.
bool pede_outro_sqlite(const fs::path& caminho) {
    std::ifstream arquivo(caminho, std::ios::binary);
    arquivo.seekg(18);
    return arquivo.get() > 2;
}

} // namespace

fs::path arquivo_do_banco(std::string_view caminho) {
    try {
        return para_gravar(caminho);
    } catch (const std::runtime_error& erro) {
        throw ErroBanco(SQLITE_CANTOPEN, erro.what());
    }
}

Workspace& Motor::Workspaces(int numero) {
    static Workspace unica;
    if (numero != 0) engano("só existe a área de trabalho 0");
    return unica;
}

Database Workspace::OpenDatabase(std::string_view caminho) {
    return abre(caminho, SQLITE_OPEN_READWRITE);
}

Database Workspace::CreateDatabase(std::string_view caminho) {
    return abre(caminho, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

Database Workspace::abre(std::string_view caminho, int modo) {
    const fs::path arquivo = arquivo_do_banco(caminho);
    std::shared_ptr<Conexao> conexao = conhecidas[arquivo].lock();
    if (!conexao) conhecidas[arquivo] = conexao = std::make_shared<Conexao>(arquivo, modo);
    if (nivel > 0) entra(conexao);
    return Database(conexao);
}

// Põe a conexão na transação em curso. IMMEDIATE: se outro programa está gravando, é melhor saber já.
void Workspace::entra(const std::shared_ptr<Conexao>& conexao) {
    if (conexao->em_transacao) return;
    // Num arquivo que só se pode ler o SQLite começaria calado uma transação de leitura.
    if (sqlite3_db_readonly(conexao->banco, "main") != 0)
        conexao->falha(pede_outro_sqlite(conexao->caminho) ? SQLITE_CORRUPT : SQLITE_READONLY);
    conexao->executa("BEGIN IMMEDIATE");
    conexao->em_transacao = true;
    em_transacao.push_back(conexao);
}

void Workspace::BeginTrans() {
    if (nivel++ > 0) return;
    try {
        for (const auto& [arquivo, fraca] : conhecidas)
            if (const auto conexao = fraca.lock()) entra(conexao);
    } catch (...) {
        termina(false);
        throw;
    }
}

void Workspace::CommitTrans() {
    if (nivel == 0) engano("CommitTrans sem BeginTrans");
    if (nivel > 1) {
        --nivel;
        return;
    }
    const bool vale = !condenada;
    termina(vale);
    if (!vale) engano("uma parte da transação já tinha sido desfeita");
}

void Workspace::Rollback() {
    if (nivel == 0) engano("Rollback sem BeginTrans");
    if (nivel > 1) {
        --nivel;
        condenada = true;
        return;
    }
    termina(false);
}

void Workspace::Close() {
    termina(false);
}

// Termina a transação de fora. Quando um arquivo não se deixa gravar, ele e os seguintes voltam atrás.
void Workspace::termina(bool grava) {
    nivel = 0;
    condenada = false;
    const auto conexoes = std::exchange(em_transacao, {});
    std::exception_ptr erro;
    for (const auto& conexao : conexoes) {
        conexao->em_transacao = false;
        try {
            if (grava && !erro) conexao->grava();
        } catch (...) {
            erro = std::current_exception();
        }
        // Falhar aqui não importa: o diário fica em disco e a próxima abertura desfaz o resto.
        if (sqlite3_get_autocommit(conexao->banco) == 0)
            sqlite3_exec(conexao->banco, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    if (erro) std::rethrow_exception(erro);
}

// ---- Passo

Passo::~Passo() {
    if (!aberto) return;
    try {
        area.Rollback();
    } catch (const ErroBanco&) { // já desfeita por um Close
    }
}

void Passo::confirma() {
    aberto = false;
    area.CommitTrans();
}

} // namespace verdalia
