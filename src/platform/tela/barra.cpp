#include "platform/tela/barra.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>

namespace verdalia {

BarraRolagem::BarraRolagem(Tela& tela, std::string nome_dado, int indice_dado)
    : Controle(tela, std::move(nome_dado), indice_dado) {
    cliques_rapidos = true;
}

double BarraRolagem::tamanho_do_cursor() const {
    const double faixa = maximo - minimo + pagina;
    return std::max(18.0, comprimento() * pagina / std::max(1.0, faixa));
}

double BarraRolagem::inicio_do_cursor() const {
    if (maximo <= minimo) return 0;
    return (comprimento() - tamanho_do_cursor()) * (valor - minimo) / double(maximo - minimo);
}

void BarraRolagem::vai(int novo) {
    novo = std::clamp(novo, minimo, std::max(minimo, maximo));
    if (novo == valor) return;
    valor = novo;
    if (muda) muda();
}

void BarraRolagem::aperta(double x, double y) {
    const Retangulo r = lugar();
    const double onde = de_pe() ? y - r.y : x - r.x;
    const double inicio = inicio_do_cursor();
    pegou_em_ = -1;
    if (onde < inicio)
        vai(valor - pagina);
    else if (onde > inicio + tamanho_do_cursor())
        vai(valor + pagina);
    else
        pegou_em_ = onde - inicio;
}

void BarraRolagem::move(double x, double y) {
    if (pegou_em_ < 0) return;
    const Retangulo r = lugar();
    const double curso = comprimento() - tamanho_do_cursor();
    const double inicio = (de_pe() ? y - r.y : x - r.x) - pegou_em_;
    if (curso > 0) vai(minimo + static_cast<int>(std::lround(inicio / curso * (maximo - minimo))));
}

bool BarraRolagem::teclado(const Tecla& t) {
    const bool antes = t.codigo == (de_pe() ? SDLK_UP : SDLK_LEFT),
               depois = t.codigo == (de_pe() ? SDLK_DOWN : SDLK_RIGHT);
    if (antes || depois) vai(valor + (antes ? -passo : passo));
    if (t.codigo == SDLK_PAGEUP || t.codigo == SDLK_PAGEDOWN) vai(valor + (t.codigo == SDLK_PAGEUP ? -pagina : pagina));
    if (t.codigo == SDLK_HOME) vai(minimo);
    if (t.codigo == SDLK_END) vai(maximo);
    return antes || depois || t.codigo == SDLK_PAGEUP || t.codigo == SDLK_PAGEDOWN || t.codigo == SDLK_HOME ||
           t.codigo == SDLK_END;
}

void BarraRolagem::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, 6, 1, cor_madeira_escura, cor_papel_escuro);
    if (maximo <= minimo) return;
    const double i = inicio_do_cursor(), t = tamanho_do_cursor();
    p.moldura(de_pe() ? Retangulo{r.x + 1, r.y + i, r.largura - 2, t} : Retangulo{r.x + i, r.y + 1, t, r.altura - 2}, 6,
              1, cor_madeira_escura, cor_ouro);
}

} // namespace verdalia
