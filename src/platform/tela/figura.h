// Uma figura na tela: mostra `figura` estirada no seu lugar. Vazia, só a cor de fundo.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct Figura : Controle {
    using Controle::Controle;
};

} // namespace verdalia
