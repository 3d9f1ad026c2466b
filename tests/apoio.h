// O que os testes têm em comum: um relógio que se acerta à mão, uma pasta que some no fim e uma partida zerada.
#pragma once

#include "data/banco.h"
#include "data/estado.h"
#include "platform/base/caminhos.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex.h>
#include <sqlite3.h>
#include <sstream>
#include <string>
#include <unistd.h>

namespace verdalia {

constexpr Dia dia(int ano, unsigned mes, unsigned dia_do_mes) {
    return std::chrono::year{ano} / std::chrono::month{mes} / std::chrono::day{dia_do_mes};
}

// Toma o lugar do relógio do sistema enquanto existe.
struct RelogioDeTeste : Relogio {
    RelogioDeTeste() : anterior(relogio) { relogio = this; }
    ~RelogioDeTeste() override { relogio = anterior; }

    Momento agora() override { return momento; }
    std::int64_t milissegundos() override { return ms; }

    Momento momento = dia(2026, 3, 4) + std::chrono::hours{15}; // uma quarta-feira
    std::int64_t ms = 0;

private:
    Relogio* anterior;
};

// Quantas vezes repetir: poucas em ./testar, muitas numa corrida à parte, com VERDALIA_LONGO no ambiente.
inline int vezes(int poucas, int muitas) {
    return std::getenv("VERDALIA_LONGO") != nullptr ? muitas : poucas;
}

struct PastaTemporaria {
    PastaTemporaria() {
        // Na memória, onde há: descarregar no disco de verdade não muda o que se testa.
        const std::filesystem::path memoria = "/dev/shm";
        const bool cabe = access(memoria.c_str(), W_OK) == 0;
        std::string modelo = (cabe ? memoria : std::filesystem::temp_directory_path()) / "verdalia-XXXXXX";
        if (mkdtemp(modelo.data()) == nullptr) throw std::runtime_error("mkdtemp");
        raiz = modelo;
    }
    ~PastaTemporaria() {
        std::error_code erro;
        std::filesystem::remove_all(raiz, erro);
    }

    std::filesystem::path raiz;
};

inline std::string conteudo(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

inline void escreve(const std::filesystem::path& arquivo, const std::string& bytes) {
    std::filesystem::create_directories(arquivo.parent_path());
    std::ofstream(arquivo, std::ios::binary) << bytes;
}

// O que outro programa lê ou muda no banco: campos entre barras, um registro por linha.
inline std::string consulta(const std::filesystem::path& arquivo, const std::string& sql) {
    std::string texto;
    sqlite3* banco = nullptr;
    EXPECT_EQ(sqlite3_open(arquivo.c_str(), &banco), SQLITE_OK);
    const auto linha = [](void* saida, int n, char** campos, char**) {
        auto& onde = *static_cast<std::string*>(saida);
        for (int i = 0; i < n; ++i) onde.append(i > 0 ? "|" : "").append(campos[i] != nullptr ? campos[i] : "");
        onde += '\n';
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(banco, sql.c_str(), linha, &texto, nullptr), SQLITE_OK) << sqlite3_errmsg(banco);
    sqlite3_close(banco);
    return texto;
}

// Outro programa que está gravando no banco, enquanto existe.
struct BancoPreso {
    explicit BancoPreso(const std::filesystem::path& arquivo) {
        EXPECT_EQ(sqlite3_open(arquivo.c_str(), &outro), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(outro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~BancoPreso() { sqlite3_close(outro); }

    sqlite3* outro = nullptr;
};

// Tudo o que casa com uma expressão regular estendida: por vez, o trecho e o que cada parêntese pegou.
inline std::vector<std::vector<std::string>> casa(const std::string& texto, const char* padrao) {
    regex_t expressao;
    if (regcomp(&expressao, padrao, REG_EXTENDED) != 0) throw std::invalid_argument(padrao);
    std::vector<std::vector<std::string>> achados;
    regmatch_t partes[6];
    for (const char* c = texto.c_str(); regexec(&expressao, c, std::size(partes), partes, 0) == 0;
         c += partes[0].rm_eo) {
        auto& vez = achados.emplace_back();
        for (const regmatch_t& p : partes) vez.emplace_back(p.rm_so < 0 ? "" : std::string(c + p.rm_so, c + p.rm_eo));
        if (partes[0].rm_eo == 0) break;
    }
    regfree(&expressao);
    return achados;
}

// Um jogo novo, em memória, com as pastas do programa vazias e próprias do teste.
struct Partida : testing::Test {
    Partida() {
        define_pastas(jogador, instalada);
        carrega_tabelas();
        esvazia();
        unidade_cd = 0;
        avisos_do_banco.clear();
    }

    // Nenhum canteiro, nenhuma leira, nenhum pedido.
    static void esvazia() {
        for (auto* tabela : {&st_cod_cult, &st_last_i_cu, &st_last_last_i_cu}) tabela->fill(cult_nenhuma);
        for (auto* tabela : {&st_idade, &st_check}) tabela->fill(0);
        sem_cod_cult.fill(cult_nenhuma);
        for (auto* tabela : {&sem_idade, &sem_check}) tabela->fill(0);
        st_nome.fill("");
        sem_nome.fill("");
        seq_pedido.fill(0);
    }

    // A horta inteira num texto só, para comparar.
    static std::string horta() {
        std::ostringstream texto;
        for (int i = 0; i < n_canteiros; ++i)
            texto << st_nome[i] << ',' << st_cod_cult[i] << ',' << st_idade[i] << ',' << st_check[i] << ','
                  << st_last_i_cu[i] << ',' << st_last_last_i_cu[i] << ';';
        for (int i = 0; i < n_leiras; ++i)
            texto << sem_nome[i] << ',' << sem_cod_cult[i] << ',' << sem_idade[i] << ',' << sem_check[i] << ';';
        for (const int v : seq_pedido) texto << v << ' ';
        return texto.str();
    }

    // O mesmo sem os nomes, que um lugar esvaziado pelo tempo só volta a ter quando é lido.
    static std::string sem_nomes() {
        st_nome.fill("");
        sem_nome.fill("");
        return horta();
    }

    static void planta(int canteiro, std::int16_t cultura, std::int16_t idade) {
        st_cod_cult[canteiro] = cultura;
        st_nome[canteiro] = cultura >= cult_vago ? nome_cult[cultura] : "";
        st_idade[canteiro] = idade;
    }

    static void semeia(int leira, std::int16_t cultura, std::int16_t idade) {
        sem_cod_cult[leira] = cultura;
        sem_nome[leira] = cultura >= cult_vago ? nome_cult[cultura] : "";
        sem_idade[leira] = idade;
    }

    RelogioDeTeste relogio_de_teste;
    PastaTemporaria pasta;
    std::filesystem::path jogador = pasta.raiz / "jogador";
    std::filesystem::path instalada = pasta.raiz / "instalada";
    std::filesystem::path arquivo = jogador / "hortas00.mdb";
};

} // namespace verdalia
