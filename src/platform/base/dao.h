// O banco de dados, com os nomes que as regras usam, sobre o SQLite.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// <cstdio> define a macro EOF, que tomaria o nome de Recordset::EOF; quem precisar dela escreve -1.
#undef EOF

struct sqlite3;
struct sqlite3_stmt;

namespace verdalia {

// Uma operação do banco que não deu certo. what() é uma frase em português para o jogador.
struct ErroBanco : std::runtime_error {
    ErroBanco(int codigo, const std::string& frase) : std::runtime_error(frase), codigo(codigo) {}

    bool danificado() const; // o arquivo não é um banco, está estragado ou tem tabelas que não se entendem

    int codigo; // o código primário do SQLite, ou 0
};

// O valor de um campo: nulo, inteiro ou texto.
struct Campo {
    std::variant<std::monostate, std::int64_t, std::string> valor;

    bool nulo() const { return std::holds_alternative<std::monostate>(valor); }
    std::optional<std::int64_t> inteiro() const; // nada quando é nulo ou não é um número inteiro
    std::string texto() const;                   // "" quando é nulo

    template <std::integral T>
    requires(!std::same_as<T, bool>) // verdadeiro, nas tabelas, é -1
        Campo&
        operator=(T numero) {
        valor = std::int64_t{numero};
        return *this;
    }
    Campo& operator=(std::string_view texto);
    Campo& operator=(const char* texto) { return *this = std::string_view(texto); }
    Campo& operator=(std::nullptr_t);
};

struct Conexao;

// Um comando preparado.
struct Comando {
    Comando(std::shared_ptr<Conexao> conexao, const std::string& sql);
    ~Comando();
    Comando(const Comando&) = delete;
    Comando& operator=(const Comando&) = delete;

    void poe(int posicao, const Campo& campo); // posição a partir de 1
    bool passo();                              // verdadeiro quando há uma linha; senão, terminou
    void executa();                            // corre até o fim e fica pronto para outra vez
    void recomeca();
    Campo coluna(int posicao) const; // a partir de 0

private:
    std::shared_ptr<Conexao> conexao;
    sqlite3_stmt* comando = nullptr;
};

// Os registros de uma tabela, um de cada vez, na ordem em que foram criados. Ao abrir, está no primeiro.
struct Recordset {
    Recordset(const std::shared_ptr<Conexao>& conexao, const std::string& tabela);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    bool EOF() const;
    void MoveFirst();
    void MoveNext(); // no fim, não faz nada
    void AddNew();   // começa um registro novo, com todos os campos nulos
    void Edit();     // começa a mudar o registro atual
    void Update();   // grava o que AddNew ou Edit começou
    void Delete();   // apaga o registro atual; MoveNext passa ao seguinte
    Campo& Fields(std::string_view nome);
    void Close();

private:
    struct Partes;
    Partes& aberto() const;
    std::unique_ptr<Partes> partes;
};

// Um arquivo aberto. Fechar (ou destruir) devolve a conexão ao Workspace.
struct Database {
    Recordset OpenRecordset(const std::string& tabela);
    void executa(const std::string& sql);        // um ou mais comandos que não devolvem linhas
    std::int64_t numero(const std::string& sql); // o inteiro da primeira coluna da primeira linha; 0 quando não há
    std::string texto(const std::string& sql);   // o mesmo, como texto
    std::vector<std::string> campos(const std::string& tabela); // vazio quando a tabela não existe
    void copia_para(Database& destino);                         // o arquivo inteiro, como está gravado
    void Close() { conexao.reset(); }

private:
    friend struct Workspace;
    explicit Database(std::shared_ptr<Conexao> conexao) : conexao(std::move(conexao)) {}
    std::shared_ptr<Conexao> aberta() const;
    std::shared_ptr<Conexao> conexao;
};

// O dono das transações. Elas se encaixam: a de fora vale por todas, e só o CommitTrans dela grava. Enquanto
// houver uma aberta, fechar um arquivo não o solta. Um Rollback de dentro condena a de fora. O tudo ou nada vale para
// cada arquivo, não entre dois deles.
struct Workspace {
    // `caminho` é um caminho do jogo, como "\hortas00.mdb"; o arquivo tem de existir.
    Database OpenDatabase(std::string_view caminho);
    // Como OpenDatabase, para um arquivo que ainda não existe.
    Database CreateDatabase(std::string_view caminho);
    void BeginTrans();
    void CommitTrans(); // em caso de erro nada fica gravado
    void Rollback();
    void Close(); // desfaz o que estiver em transação e solta os arquivos

private:
    Database abre(std::string_view caminho, int modo);
    void entra(const std::shared_ptr<Conexao>& conexao);
    void termina(bool grava);

    std::map<std::filesystem::path, std::weak_ptr<Conexao>> conhecidas;
    std::vector<std::shared_ptr<Conexao>> em_transacao;
    int nivel = 0;
    bool condenada = false;
};

// Onde fica no disco o banco de um caminho do jogo; lança ErroBanco quando a pasta não pode ser usada.
std::filesystem::path arquivo_do_banco(std::string_view caminho);

struct Motor {
    Workspace& Workspaces(int numero); // só há o 0
};
inline Motor DBEngine;

// Uma transação que se desfaz sozinha quando o bloco termina sem `confirma`.
struct Passo {
    explicit Passo(Workspace& area) : area(area) { area.BeginTrans(); }
    ~Passo();
    Passo(const Passo&) = delete;
    Passo& operator=(const Passo&) = delete;

    void confirma();

private:
    Workspace& area;
    bool aberto = true;
};

} // namespace verdalia
