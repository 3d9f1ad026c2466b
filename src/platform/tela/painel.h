// Um painel: papel de cantos redondos atrás de outros controles.
#pragma once
#include "platform/tela/controle.h"

namespace verdalia {

struct Painel : Controle {
    Painel(Tela& dona_dele, std::string nome_dado, int indice_dado = -1)
        : Controle(dona_dele, std::move(nome_dado), indice_dado) {
        atravessa = true;
    }

    void pinta(Pintor& p, const Retangulo& r) override {
        p.moldura(r, 12, 1.5, cor_madeira_clara, cor_fundo.a != 0 ? cor_fundo : cor_papel_claro);
    }
};

} // namespace verdalia
