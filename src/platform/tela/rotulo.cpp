#include "platform/tela/rotulo.h"

namespace verdalia {

void Rotulo::pinta(Pintor& p, const Retangulo& r) {
    p.retangulo(r, cor_fundo);
    if (borda) p.contorno(r, 1, cor_madeira_escura);
    Letra escrita = letra;
    if (quente) {
        escrita.cor = cor_ligacao;
        escrita.sublinhado = sob_o_mouse();
    }
    if (!ativo) escrita.cor = cor_tinta_apagada;
    p.texto_em(texto, r, escrita, alinha);
}

} // namespace verdalia
