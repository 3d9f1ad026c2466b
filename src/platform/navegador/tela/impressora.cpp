// Num navegador o papel é com o próprio navegador: o arquivo se baixa, e de lá se abre e se imprime.
#include "platform/tela/impressora.h"

#include "platform/base/pagina.h"

namespace verdalia {

Entrega manda_imprimir(const std::filesystem::path& arquivo) {
    pagina_baixa(arquivo.c_str());
    return Entrega::baixada;
}

bool abre_no_visor(const std::filesystem::path& arquivo) {
    pagina_baixa(arquivo.c_str());
    return true;
}

} // namespace verdalia
