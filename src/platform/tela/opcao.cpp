#include "platform/tela/opcao.h"

#include "platform/tela/tela.h"

#include <algorithm>

namespace verdalia {

namespace {

void pinta_marca(Pintor& p, const Controle& c, const Retangulo& r, bool redonda, bool marcada) {
    const double lado = std::min(r.altura, 20.0);
    const Retangulo caixa{r.x, r.y + (r.altura - lado) / 2, lado, lado};
    const double raio = redonda ? lado / 2 : 4;
    p.moldura(caixa, raio, 1.5, c.ativo ? cor_madeira_escura : cor_tinta_apagada, cor_papel_claro);
    const double folga = lado * 0.26;
    if (marcada)
        p.redondo({caixa.x + folga, caixa.y + folga, lado - 2 * folga, lado - 2 * folga}, redonda ? lado / 2 : 2,
                  c.ativo ? Cor{0x3f, 0x8a, 0x3c} : cor_tinta_apagada);
    Letra escrita = c.letra;
    if (!c.ativo) escrita.cor = cor_tinta_apagada;
    p.texto_em(c.texto, {r.x + lado + 8, r.y, r.largura - lado - 8, r.altura}, escrita, Alinha::esquerda);
}

} // namespace

void Marca::aciona() {
    marcada = !marcada;
    if (muda) muda();
    Controle::aciona();
}

void Marca::pinta(Pintor& p, const Retangulo& r) {
    pinta_marca(p, *this, r, false, marcada);
}

void Opcao::marca() {
    for (Controle* c : dona.controles)
        if (auto* irma = dynamic_cast<Opcao*>(c); irma != nullptr && irma->nome == nome) irma->marcada = false;
    marcada = true;
}

void Opcao::aciona() {
    marca();
    if (muda) muda();
    Controle::aciona();
}

void Opcao::pinta(Pintor& p, const Retangulo& r) {
    pinta_marca(p, *this, r, true, marcada);
}

} // namespace verdalia
