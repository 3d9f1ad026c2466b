#include "platform/tela/botao.h"

#include <algorithm>

namespace verdalia {

namespace {
constexpr double faixa_da_legenda = 15;
}

Botao::Botao(Tela& tela, std::string nome_dado, int indice_dado) : Controle(tela, std::move(nome_dado), indice_dado) {
    letra = {.familia = Familia::legenda, .corpo = 12, .negrito = true};
}

void Botao::pinta_grafico(Pintor& p, const Retangulo& r, Imagem& face, bool afundado) {
    const double faixa = texto.empty() ? 0 : faixa_da_legenda, desce = afundado ? 1 : 0;
    const double lado = std::min(r.largura, r.altura - faixa) - 6;
    p.moldura(r, 9, 1, cor_madeira_escura, cor_fundo.a != 0 ? cor_fundo : cor_papel_claro);
    p.imagem(face, {r.x + (r.largura - lado) / 2, r.y + 3 + desce, lado, lado});
    if (texto.empty()) return;
    const Cor fundo = cor_fundo.a != 0 ? cor_fundo : cor_papel_claro;
    const Letra escrita{.familia = Familia::legenda, .corpo = 9, .negrito = true, .cor = tinta_sobre(fundo)};
    p.texto_que_cabe(texto, {r.x + 4, r.y + r.altura - faixa - 4, r.largura - 8, faixa + 2}, escrita);
}

void Botao::pinta(Pintor& p, const Retangulo& r) {
    const bool afundado = apertado() && ativo;
    if (const ImagemRef& face = ativo ? figura : figura_apagada) return pinta_grafico(p, r, *face, afundado);
    const Cor cor = !ativo ? cor_papel_escuro : sob_o_mouse() ? Cor{0xf9, 0xdd, 0x7e} : cor_ouro;
    const double desce = afundado ? 2 : 0;
    if (!afundado) p.redondo({r.x, r.y + 3, r.largura, r.altura - 3}, 9, cor_madeira_escura);
    const Retangulo tampa{r.x, r.y + desce, r.largura, r.altura - 3};
    p.moldura(tampa, 9, 1.5, cor_madeira_escura, cor);
    Letra escrita = letra;
    if (!ativo) escrita.cor = cor_tinta_apagada;
    const std::size_t atalho = texto.find('&');
    const bool tem_atalho = atalho != std::string::npos && atalho + 1 < texto.size();
    std::string limpo = texto;
    if (tem_atalho) limpo.erase(atalho, 1);
    p.texto_em(limpo, tampa, escrita);
    if (!tem_atalho) return;
    const double x = tampa.x + (tampa.largura - largura_texto(limpo, escrita)) / 2;
    const double antes = largura_texto(limpo.substr(0, atalho), escrita);
    const double dela = largura_texto(limpo.substr(atalho, 1), escrita);
    p.retangulo({x + antes, tampa.y + (tampa.altura + escrita.corpo * 4 / 3) / 2 - 1, dela, 1}, escrita.cor);
}

} // namespace verdalia
