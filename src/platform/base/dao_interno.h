// O que as duas metades do banco de dados dividem entre si; ninguém mais inclui este arquivo.
#pragma once
#include "platform/base/dao.h"

#include <sqlite3.h>

namespace verdalia {

// Uma conexão com um arquivo; fecha-se quando ninguém mais a usa.
struct Conexao {
    Conexao(std::filesystem::path caminho, int modo);
    ~Conexao() { sqlite3_close_v2(banco); }
    Conexao(const Conexao&) = delete;
    Conexao& operator=(const Conexao&) = delete;

    void executa(const char* sql) const;
    void grava() const;           // termina a transação, e o disco tem tudo o que é dela
    void exige_transacao() const; // lança quando a transação em que devia estar já não existe
    [[noreturn]] void falha(int codigo) const;

    std::filesystem::path caminho;
    sqlite3* banco = nullptr;
    bool em_transacao = false;
};

// Lança ErroBanco: quem usa o banco enganou-se.
[[noreturn]] void engano(const std::string& qual);

} // namespace verdalia
