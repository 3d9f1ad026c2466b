#include "platform/tela/caixa_texto.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>

namespace verdalia {

namespace {

bool continua_letra(char c) {
    return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}

std::size_t letra_antes(const std::string& s, std::size_t i) {
    while (i > 0 && continua_letra(s[--i])) {
    }
    return i;
}

std::size_t letra_depois(const std::string& s, std::size_t i) {
    if (i < s.size()) ++i;
    while (i < s.size() && continua_letra(s[i])) ++i;
    return i;
}

} // namespace

void CaixaTexto::aperta(double x, double) {
    const double dentro = x - lugar().x - 5;
    cursor_ = 0;
    double melhor = std::abs(dentro);
    for (std::size_t i = 0; i < texto.size();) {
        i = letra_depois(texto, i);
        const double d = std::abs(largura_texto(texto.substr(0, i), letra) - dentro);
        if (d <= melhor) {
            melhor = d;
            cursor_ = i;
        }
    }
}

bool CaixaTexto::teclado(const Tecla& t) {
    if (travada) return false;
    cursor_ = std::min(cursor_, texto.size());
    const std::string antes = texto;
    switch (t.codigo) {
    case SDLK_LEFT:
        cursor_ = letra_antes(texto, cursor_);
        return true;
    case SDLK_RIGHT:
        cursor_ = letra_depois(texto, cursor_);
        return true;
    case SDLK_HOME:
        cursor_ = 0;
        return true;
    case SDLK_END:
        cursor_ = texto.size();
        return true;
    case SDLK_BACKSPACE: {
        const std::size_t inicio = letra_antes(texto, cursor_);
        texto.erase(inicio, cursor_ - inicio);
        cursor_ = inicio;
        break;
    }
    case SDLK_DELETE:
        texto.erase(cursor_, letra_depois(texto, cursor_) - cursor_);
        break;
    case SDLK_SPACE:
        return true; // o branco chega por `escreve`
    default:
        return false;
    }
    if (texto != antes && muda) muda();
    return true;
}

void CaixaTexto::escreve(const std::string& letras) {
    if (travada) return;
    const auto conta = [](const std::string& s) {
        return std::count_if(s.begin(), s.end(), [](char c) { return !continua_letra(c); });
    };
    if (maximo > 0 && conta(texto) + conta(letras) > maximo) return;
    cursor_ = std::min(cursor_, texto.size());
    texto.insert(cursor_, letras);
    cursor_ += letras.size();
    if (muda) muda();
}

void CaixaTexto::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, 3, 1, cor_madeira_escura, cor_fundo.a != 0 ? cor_fundo : cor_papel_claro);
    const Retangulo dentro{r.x + 2, r.y, r.largura - 4, r.altura};
    if (alinha != Alinha::esquerda) return p.texto_em(texto, dentro, letra, alinha);
    p.recorta(dentro);
    const double y = r.y + (r.altura - altura_linha(letra)) / 2;
    p.texto(texto, r.x + 5, y, letra);
    if (em_foco() && !travada) {
        const double x = r.x + 5 + largura_texto(texto.substr(0, std::min(cursor_, texto.size())), letra);
        p.retangulo({x, y + 1, 1.2, altura_linha(letra) - 2}, letra.cor);
    }
    p.recorta();
}

bool CaixaFiltrada::teclado(const Tecla& t) {
    switch (t.codigo) {
    case SDLK_BACKSPACE:
    case SDLK_DELETE:
    case SDLK_LEFT:
    case SDLK_RIGHT:
    case SDLK_HOME:
    case SDLK_END:
        return !filtro() || CaixaTexto::teclado(t);
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        if (filtro()) enter();
        return true;
    default:
        return CaixaTexto::teclado(t);
    }
}

void CaixaFiltrada::escreve(const std::string& letras) {
    for (std::size_t i = 0; i < letras.size();) {
        std::size_t fim = i + 1;
        while (fim < letras.size() && continua_letra(letras[fim])) ++fim;
        if (filtro()) CaixaTexto::escreve(letras.substr(i, fim - i));
        i = fim;
    }
}

} // namespace verdalia
