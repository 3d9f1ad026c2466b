// Um rótulo: texto sobre a tela. `quente` é palavra que se clica: cor de ligação, sublinhada sob o mouse.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct Rotulo : Controle {
    using Controle::Controle;

    Alinha alinha = Alinha::centro;
    bool quente = false;
    bool borda = false;

    void pinta(Pintor& p, const Retangulo& r) override;
};

} // namespace verdalia
