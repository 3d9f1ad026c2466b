#include "platform/tela/impressao.h"

namespace verdalia {

void CaixaImpressao::imprime(std::string_view escrito) {
    const double largura_escrita = mede(escrito);
    impressos_.push_back({std::string(escrito), letra, nullptr, {pos_x, pos_y, largura_escrita, mede_linha()}});
    pos_x += largura_escrita;
}

void CaixaImpressao::nova_linha() {
    pos_x = 0;
    pos_y += mede_linha();
}

void CaixaImpressao::poe_figura(ImagemRef imagem, const Retangulo& onde) {
    if (imagem) impressos_.push_back({"", letra, std::move(imagem), onde});
}

void CaixaImpressao::limpa() {
    impressos_.clear();
    pos_x = pos_y = 0;
}

void CaixaImpressao::pinta(Pintor& p, const Retangulo& r) {
    Controle::pinta(p, r);
    p.recorta(r);
    for (const Impresso& i : impressos_) {
        const Retangulo onde{r.x + i.onde.x, r.y + i.onde.y, i.onde.largura, i.onde.altura};
        if (i.imagem)
            p.imagem(*i.imagem, onde);
        else
            p.texto(i.texto, onde.x, onde.y, i.letra);
    }
    p.recorta();
}

} // namespace verdalia
