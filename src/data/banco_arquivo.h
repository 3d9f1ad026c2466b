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
};

// Deixa o arquivo pronto para usar. O que falta é criado; um arquivo danificado, de outro formato ou de versão mais
// nova é posto de lado com a data no nome, e a frase que o diz ao jogador é devolvida ("" quando não há o que dizer).
// Lança ErroBanco, sem mexer em nada, quando o arquivo não pode ser lido ou gravado por outra razão.
std::string prepara_arquivo(const ArquivoDeBanco& banco);

// O nome com que o arquivo seria posto de lado: o dele com a data de hoje, e um número se já há outro.
std::filesystem::path nome_de_lado(const std::filesystem::path& arquivo);

} // namespace verdalia
