// O que os dois arquivos do banco dividem; ninguém mais inclui este.
#pragma once

#include "platform/base/dao.h"

#include <filesystem>

namespace verdalia {

inline Workspace& area_do_banco() {
    return DBEngine.Workspaces(0);
}

// Houve o que não se entendeu na leitura: antes da primeira gravação, que o perderia, o banco como estava é copiado com
// este nome. "" quando não há o que copiar.
inline std::string copia_por_fazer;

// O nome com que o arquivo seria posto de lado: o dele com a data de hoje, e um número se já há outro.
std::filesystem::path nome_de_lado(const std::filesystem::path& arquivo);

} // namespace verdalia
