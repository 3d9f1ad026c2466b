// Caixa de marcar e botão de opção; a legenda fica à direita da marca.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct Marca : Controle {
    using Controle::Controle;

    bool marcada = false;

    bool interage() const override { return ativo && a_vista(); }
    void aciona() override;
    void pinta(Pintor& p, const Retangulo& r) override;
};

// Das opções de mesmo nome na tela, só uma fica marcada.
struct Opcao : Controle {
    using Controle::Controle;

    bool marcada = false;

    // Marca esta e desmarca as irmãs; não chama `muda`.
    void marca();
    bool interage() const override { return ativo && a_vista(); }
    void aciona() override;
    void pinta(Pintor& p, const Retangulo& r) override;
};

} // namespace verdalia
