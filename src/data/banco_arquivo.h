// Um arquivo de banco do jogo antes da primeira leitura: criar, conferir, pôr de lado.
#pragma once

#include "platform/base/dao.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace verdalia {

inline Workspace& area_do_banco() {
    return DBEngine.Workspaces(0);
}

struct Tabela {
    const char* nome;
    std::vector<std::string> inteiros, textos; // os campos
};

struct ArquivoDeBanco {
    std::string caminho;                    // caminho do jogo, como "\hortas00.mdb"
    const char* de_que;                     // "da horta": de que é o arquivo, nas frases para o jogador
    const char* recomeco;                   // "uma horta nova começa agora"
    std::vector<Tabela> tabelas;            // as que tem de ter
    std::function<void(Database&)> enche{}; // o que um banco novo já traz; pode ser vazia
    // Recebe a frase que diz por que o arquivo não serve, ou que falta, e dá o caminho da cópia que lhe toma o lugar,
    // "" para um banco novo. Pode ser vazia.
    std::function<std::string(const std::string& por_que)> escolhe_copia{};
};

// Deixa o arquivo pronto para usar. O que falta é criado; um arquivo danificado, de outro formato, de versão mais nova
// ou que é uma pasta é posto de lado com a data no nome, e a frase que o diz ao jogador é devolvida ("" quando não há
// o que dizer). Lança ErroBanco, sem mexer em nada, quando o arquivo não pode ser lido ou gravado por outra razão.
std::string prepara_arquivo(const ArquivoDeBanco& banco);

// Por que o arquivo de um caminho do jogo não serve como `banco`: "está danificado"; "" quando serve. Lança ErroBanco
// quando não pode ser lido ou gravado.
std::string defeito(const ArquivoDeBanco& banco, const std::string& caminho);

// Faz um banco sob outro nome, `enche` enche-o, e só lhe dá o do caminho quando está inteiro, depois de
// `antes_da_troca`: um disco cheio ou uma falta de luz não desfaz nada do que havia. Lança ErroBanco.
void faz_por_inteiro(const std::string& caminho, const std::function<void(Database&)>& enche,
                     const std::function<void()>& antes_da_troca = {});

// Dá ao arquivo, e ao que o acompanha, o nome de lado, e o devolve. Lança ErroBanco.
std::string poe_de_lado(const std::filesystem::path& arquivo);

// O nome com que o arquivo seria posto de lado: o dele com a data de hoje, e um número se já há outro.
std::filesystem::path nome_de_lado(const std::filesystem::path& arquivo);

} // namespace verdalia
